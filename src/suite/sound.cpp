// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/sound.h"

#include "window/runtime.h"

namespace ch {

void PlayWaveFile(const std::string& path) { Runtime::current().platform().playWave(path); }

void StartMusic() { Runtime::current().platform().startMusic(); }

void StopMusic() { Runtime::current().platform().stopMusic(); }

}  // namespace ch
