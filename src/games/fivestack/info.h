// SPDX-License-Identifier: GPL-3.0-or-later
// Fivestack as the suite knows it: its selector button, its window, its high score
// tables, its settings file and its time limits.
#pragma once

#include "games/fivestack/modFivestack.h"
#include "suite/gameinfo.h"

namespace ch {

void RegisterFivestack(Runtime& runtime);

namespace fivestack {

inline constexpr TimeEntry kTimeEntries[] = {
    {"mnu15", 15, "&15 seconds"},
    {"mnu30", 30, "&30 seconds"},
    {"mnu45", 45, "&45 seconds"},
    {"mnu60", 60, "&60 seconds (default)"},
    {"mnu75", 75, "&75 seconds"},
};

inline constexpr GameInfo kGame = {
    .name = "fivestack",
    .title = "Fivestack!",
    .form = "frmFivestack",
    .button = "cmdFivestack",
    .buttonCaption = "&Fivestack ",
    .buttonSlot = 1,
    .tableName = kTable,
    .defaultScore = kDefaultTopScore,
    .settingsFile = kSettingsFile,
    .timeEntries = kTimeEntries,
    .defaultTime = kDefaultTimeLimit,
    .registerForms = RegisterFivestack,
    .bonusSection = "[BonusScore]",
};

}  // namespace fivestack
}  // namespace ch
