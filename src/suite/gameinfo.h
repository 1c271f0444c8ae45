// SPDX-License-Identifier: GPL-3.0-or-later
// What the suite knows of a game: its title, its selector button, its window,
// its high score tables and its settings file. Each game keeps its GameInfo
// in its own folder (src/games/<game>/info.h); src/games/games.cpp lists
// them and registers each with RegisterGame before the suite starts. The
// selector, the Hall of Fame, the high score tables, the fuzzer and the
// program's --list-games read a game's facts from here, never by its name.
#pragma once

#include <span>
#include <string>
#include <vector>

namespace ch {

class Runtime;

// One time limit of a game's Time menu.
struct TimeEntry {
    const char* menu;     // "mnu45"
    int seconds;          // 45
    const char* caption;  // "&45 seconds (default)"
};

struct GameInfo {
    const char* name;           // the short name of the tools: "xgame"
    const char* title;          // AppTitle: "Xgame!"
    const char* form;           // the game window: "frmXgame"
    const char* button;         // its selector button: "cmdXgame"; null for none
    const char* buttonCaption;  // "&Xgame"
    int buttonSlot;             // the button's place in the selector's column, 0 at the top
    const char* tableName;      // its high score tables: "XgameHiScores" + time limit
    const char* defaultScore;   // the score of a new table's ten lines: "30000"
    const char* settingsFile;   // "\\Xgame.Ini" in AppPath
    std::span<const TimeEntry> timeEntries;
    int defaultTime;            // the time limit a first start takes, one of timeEntries
    void (*registerForms)(Runtime& runtime);  // its windows and its rules text
    // The settings section that holds the score a bonus round needs; "" when
    // the file keeps none.
    const char* bonusSection = "";
    // lblHighScore's caption before the table's top score.
    const char* highScoreCaption = "High Score: ";
    // A game that keeps one table per card goal as well as per time limit
    // lists its goals; the table's name then ends in "_" + CardGoal.
    std::span<const int> cardGoals = {};
};

// Registers the game's windows and makes its facts known to the suite. A
// second registration of the same title replaces the first.
void RegisterGame(Runtime& runtime, const GameInfo& game);
// The games registered, in their order of registration.
const std::vector<const GameInfo*>& RegisteredGames();
// The game of a title (AppTitle) or of a window name; null for none.
const GameInfo* GameByTitle(const std::string& title);
const GameInfo* GameByForm(const std::string& form);

}  // namespace ch
