// SPDX-License-Identifier: GPL-3.0-or-later
// Blackrush as the suite knows it: its selector button, its window, its high score
// tables, its settings file and its time limits.
#pragma once

#include "games/blackrush/modBlackrush.h"
#include "suite/gameinfo.h"

namespace ch {

void RegisterBlackrush(Runtime& runtime);

namespace blackrush {

inline constexpr TimeEntry kTimeEntries[] = {
    {"mnu15", 15, "&15 Seconds (for the daring)"}, {"mnu30", 30, "&30 Seconds"}, {"mnu60", 60, "&60 Seconds"},
    {"mnu90", 90, "&90 Seconds (default)"},        {"mnu120", 120, "1&20 Seconds"},
};

inline constexpr GameInfo kGame = {
    .name = "blackrush",
    .title = "Blackrush!",
    .form = "frmBlackrush",
    .button = "cmdBlackrush",
    .buttonCaption = "&Blackrush",
    .buttonSlot = 2,
    .tableName = kTableName,
    .defaultScore = kTableTopScore,
    .settingsFile = kSettingsFileName,
    .timeEntries = kTimeEntries,
    .defaultTime = 90,
    .registerForms = RegisterBlackrush,
    .bonusSection = "[Bonus Round Score]",
};

}  // namespace blackrush
}  // namespace ch
