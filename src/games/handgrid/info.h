// SPDX-License-Identifier: GPL-3.0-or-later
// Handgrid as the suite knows it: its selector button, its window, its high score
// tables, its settings file and its time limits.
#pragma once

#include "games/handgrid/modHandgrid.h"
#include "suite/gameinfo.h"

namespace ch {

void RegisterHandgrid(Runtime& runtime);

namespace handgrid {

inline constexpr const char* kTable = "HandgridHighScores";
inline constexpr const char* kDefaultScore = "30000";
inline constexpr const char* kSettingsFile = "\\Handgrid.Ini";

inline constexpr TimeEntry kTimeEntries[] = {
    {"mnu30", 30, "&30 seconds"},   {"mnu45", 45, "&45 seconds"},   {"mnu60", 60, "&60 seconds  "},
    {"mnu75", 75, "&75 seconds (default)"}, {"mnu90", 90, "&90 seconds"}, {"mnu105", 105, "&105 seconds"},
    {"mnu120", 120, "&120 seconds"},
};

inline constexpr GameInfo kGame = {
    .name = "handgrid",
    .title = "Handgrid!",
    .form = "frmHandgrid",
    .button = "cmdHandgrid",
    .buttonCaption = "&Handgrid",
    .buttonSlot = 5,
    .tableName = kTable,
    .defaultScore = kDefaultScore,
    .settingsFile = kSettingsFile,
    .timeEntries = kTimeEntries,
    .defaultTime = kDefaultTimeLimit,
    .registerForms = RegisterHandgrid,
    .bonusSection = "[Bonus Score]",
};

}  // namespace handgrid
}  // namespace ch
