// SPDX-License-Identifier: GPL-3.0-or-later
// Treyshift as the suite knows it: its selector button, its window, its high score
// tables, its settings file and its time limits.
#pragma once

#include "games/treyshift/modTreyshift.h"
#include "suite/gameinfo.h"

namespace ch {

void RegisterTreyshift(Runtime& runtime);

namespace treyshift {

inline constexpr const char* kSettingsFile = "\\Treyshift.Ini";

inline constexpr TimeEntry kTimeEntries[] = {
    {"mnu60", 60, "&60 seconds"},   {"mnu75", 75, "&75 seconds"},   {"mnu90", 90, "&90 seconds"},
    {"mnu105", 105, "&105 seconds"}, {"mnu120", 120, "1&20 seconds (default)"}, {"mnu135", 135, "1&35 seconds"},
    {"mnu150", 150, "1&50 seconds"}, {"mnu180", 180, "1&80 seconds"},
};

inline constexpr GameInfo kGame = {
    .name = "treyshift",
    .title = "Treyshift!",
    .form = "frmTreyshift",
    .button = "cmdTreyshift",
    .buttonCaption = "Trey&shift",
    .buttonSlot = 6,
    .tableName = kTable,
    .defaultScore = kTableDefault,
    .settingsFile = kSettingsFile,
    .timeEntries = kTimeEntries,
    .defaultTime = kDefaultTimeLimit,
    .registerForms = RegisterTreyshift,
    .bonusSection = "[Bonus Score]",
};

}  // namespace treyshift
}  // namespace ch
