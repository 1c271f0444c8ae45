// SPDX-License-Identifier: GPL-3.0-or-later
// Duopick as the suite knows it: its selector button, its window, its high score
// tables, its settings file and its time limits.
#pragma once

#include "suite/gameinfo.h"

namespace ch {

void RegisterDuopick(Runtime& runtime);

namespace duopick {

inline constexpr const char* kTable = "DuopickHighScores";
inline constexpr const char* kDefaultScore = "30000";
inline constexpr const char* kSettingsFile = "\\Duopick.Ini";

inline constexpr TimeEntry kTimeEntries[] = {
    {"mnu30", 30, "&30 seconds"},  {"mnu45", 45, "&45 seconds (default)"}, {"mnu60", 60, "&60 seconds"},
    {"mnu75", 75, "&75 seconds"},  {"mnu90", 90, "&90 seconds"},           {"mnu105", 105, "&105 seconds"},
    {"mnu120", 120, "1&20 seconds"},
};

inline constexpr GameInfo kGame = {
    .name = "duopick",
    .title = "Duopick!",
    .form = "frmDuopick",
    .button = "cmdDuopick",
    .buttonCaption = "D&uopick",
    .buttonSlot = 3,
    .tableName = kTable,
    .defaultScore = kDefaultScore,
    .settingsFile = kSettingsFile,
    .timeEntries = kTimeEntries,
    .defaultTime = 45,
    .registerForms = RegisterDuopick,
    .bonusSection = "[Bonus Score]",
};

}  // namespace duopick
}  // namespace ch
