// SPDX-License-Identifier: GPL-3.0-or-later
// The one list of game windows the program knows. The selector offers a game
// only when its window is registered here.
#pragma once

namespace ch {

class Runtime;

void RegisterGameForms(Runtime& runtime);

}  // namespace ch
