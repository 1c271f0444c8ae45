// SPDX-License-Identifier: GPL-3.0-or-later
// Spirehold as the suite knows it: its selector button, its window, its high score
// tables, its settings file and its time limits.
#pragma once

#include "games/spirehold/modSpirehold.h"
#include "suite/gameinfo.h"

namespace ch {

void RegisterSpirehold(Runtime& runtime);

namespace spirehold {

inline constexpr const char* kTable = "SpireholdHiScores";
inline constexpr const char* kDefaultScore = "30000";
inline constexpr const char* kSettingsFile = "\\Spirehold.Ini";

inline constexpr TimeEntry kTimeEntries[] = {
    {"mnu30", 30, "&30 seconds"},
    {"mnu45", 45, "&45 seconds (default)"},
    {"mnu60", 60, "&60 seconds"},
    {"mnu90", 90, "&90 seconds "},
};

inline constexpr GameInfo kGame = {
    .name = "spirehold",
    .title = "Spirehold!",
    .form = "frmSpirehold",
    .button = "cmdSpirehold",
    .buttonCaption = "&Spirehold",
    .buttonSlot = 4,
    .tableName = kTable,
    .defaultScore = kDefaultScore,
    .settingsFile = kSettingsFile,
    .timeEntries = kTimeEntries,
    .defaultTime = kDefaultTimeLimit,
    .registerForms = RegisterSpirehold,
    .bonusSection = "[Bonus Score]",
    .highScoreCaption = "Current High Score: ",
};

}  // namespace spirehold
}  // namespace ch
