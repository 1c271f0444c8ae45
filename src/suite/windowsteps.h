// SPDX-License-Identifier: GPL-3.0-or-later
// Small steps that every game window takes the same way, kept here once:
// the menus of a game window, the pause button and the Clear
// High Scores entry.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "suite/gamewindow.h"
#include "window/control.h"

namespace ch {

class Form;

// The menus of a game window: "&File" with mnuPlay, mnuTakeScore (unless
// `takeScore` is false), mnuPause, mnuExit; "&Options" with the common
// entries, the scoring dialog's entry mnuCustom (`customCaption`), the time
// limit entries under mnuTime and the back designs; "&Help".
std::vector<ControlSpec> GameMenus(std::span<const TimeEntry> times, const char* customCaption, bool takeScore);

// cmdPause as most games have it: "Pau&se" pauses (the shared controls with
// `messageLabel` showing "Paused", the cards hidden through the game's
// `showCards(false)`, the music stopped), "&Resume" resumes (`showCards(true)`,
// the music restarted from its beginning if a game is running).
void PauseOrResume(Form& window, const std::function<void(bool)>& showCards,
                   const char* messageLabel = "lblMessage");

// mnuClear: after a Yes to "This will clear all High Scores. Are You Sure?"
// the table of the current limit gets its ten default lines and the high
// score label shows its leader.
void ClearHighScores(Form& window, const std::string& tableName, const std::string& defaultScore);

}  // namespace ch
