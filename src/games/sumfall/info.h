// SPDX-License-Identifier: GPL-3.0-or-later
// Sumfall as the suite knows it: its selector button, its window, its high score
// tables, its settings file and its time limits.
#pragma once

#include "suite/gameinfo.h"

namespace ch {

void RegisterSumfall(Runtime& runtime);

namespace sumfall {

inline constexpr const char* kTable = "HiScores";
inline constexpr const char* kDefaultScore = "50000";
inline constexpr const char* kSettingsFile = "\\Sumfall.Ini";

inline constexpr TimeEntry kTimeEntries[] = {
    {"mnu30", 30, "&30 seconds"},    {"mnu60", 60, "&60 seconds"},    {"mnu90", 90, "&90 seconds (default)"},
    {"mnu120", 120, "1&20 seconds"}, {"mnu150", 150, "1&50 seconds"}, {"mnu180", 180, "1&80 seconds"},
};

// Each card goal keeps tables of its own.
inline constexpr int kCardGoals[] = {10, 11, 12, 13, 14, 15};

inline constexpr GameInfo kGame = {
    .name = "sumfall",
    .title = "Sumfall!",
    .form = "frmSumfall",
    .button = "cmdSumfall",
    .buttonCaption = "&Sumfall!",
    .buttonSlot = 0,
    .tableName = kTable,
    .defaultScore = kDefaultScore,
    .settingsFile = kSettingsFile,
    .timeEntries = kTimeEntries,
    .defaultTime = 90,
    .registerForms = RegisterSumfall,
    .cardGoals = kCardGoals,
};

}  // namespace sumfall
}  // namespace ch
