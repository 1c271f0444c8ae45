// SPDX-License-Identifier: GPL-3.0-or-later
// Sound effects and the background music, as requests to the platform.
//
// PlayWaveFile never looks at PlaySounds: every caller tests it first
//     if (PlaySounds) PlayWaveFile("\\Snap.wav");
// StartMusic and StopMusic are likewise called only `if (PlayMusic)`. Music
// plays once from its start; a failure anywhere is silent.
#pragma once

#include <string>

namespace ch {

// Starts a wave file of the program's folder ("\Chord.wav") without waiting;
// a new sound cuts the one playing; a missing file is silent.
void PlayWaveFile(const std::string& path);
// Opens the music file and plays it from its beginning.
void StartMusic();
// Closes the music; closing it twice does no harm.
void StopMusic();

}  // namespace ch
