// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/frmRules.h"

#include <map>

#include "suite/gamewindow.h"
#include "suite/common.h"
#include "window/runtime.h"

namespace ch {

namespace {
using K = ControlKind;

const ControlSpec kLayout[] = {
    {K::TextBox, "lblRules", -1, 120, 120, 7680, 5160, ""},
    {K::Button, "cmdOK", -1, 3360, 5400, 1215, 375, "&OK"},
};

std::map<std::string, RulesComposer>& Composers() {
    static std::map<std::string, RulesComposer> composers;
    return composers;
}

const char* const kBreak = "\r\n";
}  // namespace

void RegisterRules(const std::string& title, RulesComposer composer) { Composers()[title] = std::move(composer); }

std::string RulesText(int indent, const std::vector<std::string>& paragraphs) {
    std::string text = kBreak + std::string(static_cast<size_t>(std::max(indent, 0)), ' ') + AppTitle +
                       " Rules, Notes and Strategy" + kBreak + kBreak;
    for (size_t i = 0; i < paragraphs.size(); ++i) {
        text += paragraphs[i];
        if (i + 1 < paragraphs.size()) text += std::string(kBreak) + kBreak;
    }
    return text;
}

std::string RequirementsParagraph() {
    return "Requirements: To run " + AppTitle + " you need Windows 95 or above and a mouse.  Recommended: Soundcard.";
}

std::string ObjectParagraph(const std::string& rounds, const std::string& seconds, const std::string& bonusScore) {
    return "As with most games, the object of " + AppTitle +
           " is to attain the highest number of points possible. The game consists of " + rounds +
           " rounds, each lasting " + seconds + " seconds. If you earn more than " + bonusScore +
           " points in these rounds you are awarded an additional bonus round.";
}

frmRules::frmRules(Runtime& runtime) : Form(runtime, "frmRules") {
    setSize(8040, 6300);
    add(kLayout);
    c("cmdOK").setDefault(true);
    c("cmdOK").setCancel(true);
    on(Ev::Load, [this](EventArgs&) { Form_Load(); });
    on("cmdOK", Ev::Click, [this](EventArgs&) { cmdOK_Click(); });
}

void frmRules::Form_Load() {
    CentreOnScreen(*this);
    setCaption(AppTitle + " Rules, Notes and Strategy");
    Control& ok = c("cmdOK");
    ok.setLeft((width() - ok.width()) / 2);
    auto it = Composers().find(AppTitle);
    c("lblRules").setText(it != Composers().end() ? it->second() : RulesText(30, {}));
}

void frmRules::cmdOK_Click() { runtime().unload(*this); }

}  // namespace ch
