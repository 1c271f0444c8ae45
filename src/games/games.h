// SPDX-License-Identifier: GPL-3.0-or-later
// The one list of the games the program knows, each by its GameInfo
// (src/games/<game>/info.h). The selector offers a game once it is
// registered here.
#pragma once

#include <span>

#include "suite/gameinfo.h"

namespace ch {

class Runtime;

// The seven games in the order they are registered and listed.
std::span<const GameInfo* const> Games();
// Registers every game of Games() (RegisterGame) before the suite starts.
void RegisterGameForms(Runtime& runtime);

}  // namespace ch
