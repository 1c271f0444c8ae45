// SPDX-License-Identifier: GPL-3.0-or-later
// Settings files ("\X.Ini" ...): a section line in square brackets, its
// value on the next line, an empty line; CR LF line ends.
//
// A game describes its file once, as a list of sections in writing order,
// each with the handler that applies a value read (the same handler its menu
// uses, so ticks, captions and the high score label follow) and the text
// written for it:
//
//   SettingsLayout frmX::SettingsSections() {
//       return {
//           {"[Play Music]", [this](auto& v) { SetPlayMusic(*this, ParseBoolText(v), false); },
//                            [] { return std::string(BoolText(PlayMusic)); }},
//           {"[Time]", [this](auto& v) { ApplyTimeSetting(*this, v, kTimeEntries); },
//                      [] { return NumText(TimeLimit); }},
//           ...
//           {"[State]", [this](auto& v) { ApplyWindowState(*this, v); }, [this] { return WindowStateText(*this); }},
//           {"[Width]", ...}, {"[Height]", ...},
//       };
//   }
//   Form_Load:     ReadSettingsINI("\\X.Ini", SettingsSections());  (after the defaults are set)
//   closing:       WriteSettingsINI("\\X.Ini", SettingsSections());
//
// "[State]" must stand before "[Width]" and "[Height]" (WindowSizeSections in
// gamewindow.h gives the three in that order): the reader applies the
// file line by line, and a size is not applied to a maximised window.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace ch {

class Form;

struct SettingsSection {
    std::string name;                                 // "[Time]"
    std::function<void(const std::string&)> apply;    // null: written, never read back
    std::function<std::string()> value;               // null: read, never written
};
using SettingsLayout = std::vector<SettingsSection>;

// The whole file as the writer makes it, sections in the layout's order.
std::string SettingsText(const SettingsLayout& layout);

// Goes through a file's text line by line: a line naming a known section
// (the first of that name in the layout) has its next line applied as the
// value; every other line is skipped. A section on the last line has no value
// and changes nothing.
void ApplySettingsText(const std::string& text, const SettingsLayout& layout);

// Replaces the file in AppPath with the current values. False when it can't
// be written, or when the last ReadSettingsINI found it but could not read it.
bool WriteSettingsINI(const std::string& fileName, const SettingsLayout& layout);

// Reads the file and applies it. A missing file is first written with the
// current values (the defaults, at load) and read again; when even that fails
// nothing is applied. A file that is there but can't be read (no permission,
// a folder in its place) applies nothing and is not written over, neither now
// nor on close. There is no message in any case.
void ReadSettingsINI(const std::string& fileName, const SettingsLayout& layout);

}  // namespace ch
