// SPDX-License-Identifier: GPL-3.0-or-later
// The shared variables of the suite: one copy for the whole program, read and
// written by the selector, every game window and the shared routines.
#pragma once

#include <cstdint>
#include <string>

namespace ch {

class Runtime;

inline std::string AppTitle;       // title of the game chosen in the selector
inline std::string AppPath;        // folder of settings files, tables and saved games
inline std::string DataPath;       // folder of the wave and music files
inline std::string CommandLine;    // the program's command line as the games see it
inline int16_t TimeLimit = 0;      // seconds per round
inline int16_t ElapsedSeconds = 0; // seconds used of the round
inline int16_t DialSeconds = 0;    // the value the dial shows
inline int32_t CurrentScore = 0;
inline int32_t PreviousScore = 0;
inline bool TakingScore = false;   // true while an end of round routine counts
inline bool GameInProgress = false;
inline bool PlaySounds = true;
inline bool PlayMusic = false;
inline bool CountDownScore = true;
inline int16_t DeckDesign = 1;     // 1 to 4
inline int32_t TimeBonus = 0;      // points per second left
inline bool CustomScoringInUse = false;
inline std::string PlayerName;
inline int64_t GameStartTime = 0;  // wall clock when the game window was loaded
// The card goal of a game that keeps tables per goal (GameInfo::cardGoals):
// part of its table names and of its Hall of Fame caption. The game window
// keeps it here so that the shared windows can read it without knowing the game.
inline int16_t CardGoal = 11;

// The round dial (see dial.h): centre and radius on the picture surface
// `Surface`, and the colours of its quarters. InitTimeDial computes them.
inline int16_t DialCenterX = 0;
inline int16_t DialCenterY = 0;
inline double DialRadius = 0;
inline int32_t DialFirstColor = 65280;    // green: the first two quarters
inline int32_t DialSecondColor = 65535;   // yellow: the third quarter
inline int32_t DialLastColor = 0xFFFFFF;  // the last quarter: blinks red and black
inline int32_t DialLineColor = 0xC0C0C0;  // the cross and the frame circle

// Puts every shared variable back as at program start.
void ResetShared();
// Lets the driver read the shared variables by name.
void ExposeShared(Runtime& runtime);

// The path of a file named as the games name it ("\X.Ini") in AppPath.
std::string AppFile(const std::string& name);

}  // namespace ch
