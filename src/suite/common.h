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

// Puts every shared variable back as at program start.
void ResetShared();
// Lets the driver read the shared variables by name.
void ExposeShared(Runtime& runtime);

// The path of a file named as the games name it ("\Sumfall.Ini") in AppPath.
std::string AppFile(const std::string& name);

}  // namespace ch
