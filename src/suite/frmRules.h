// SPDX-License-Identifier: GPL-3.0-or-later
// The rules window: its text is composed anew at each opening from AppTitle
// and the live settings of the running game, by the composer that game
// registers under its title (each game registers its own from its register
// function, GameInfo::registerForms):
//
//   RegisterRules(kGame.title, [] {
//       return RulesText(33, {"Requirements: To run " + AppTitle + " ...", ..., "Good luck and have fun!"});
//   });
//
// Opened modally through ShowModalPaused(*this, "frmRules"); OK unloads it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "window/form.h"

namespace ch {

using RulesComposer = std::function<std::string()>;
// Adds or replaces the composer of a title.
void RegisterRules(const std::string& title, RulesComposer composer);

// The usual shape: a line break, `indent` blanks, AppTitle, " Rules, Notes
// and Strategy", two line breaks, then the paragraphs, each but the last
// closed by two line breaks. Line breaks are CR LF. A paragraph may hold
// lines of its own joined by single line breaks (a table of hands).
std::string RulesText(int indent, const std::vector<std::string>& paragraphs);
// The paragraphs most games open with: what the game needs, and its object:
// `rounds` ("two") rounds of `seconds` each, and the bonus round above
// `bonusScore`, both as the game writes its numbers.
std::string RequirementsParagraph();
std::string ObjectParagraph(const std::string& rounds, const std::string& seconds, const std::string& bonusScore);

class frmRules : public Form {
public:
    explicit frmRules(Runtime& runtime);

private:
    void Form_Load();
    void cmdOK_Click();
};

}  // namespace ch
