// SPDX-License-Identifier: GPL-3.0-or-later
// Steps of play and of the end of a round that the game windows share: a
// step that ends the game on a run-time error, the pause button's toggle and
// the clock running out.
#pragma once

#include <functional>

#include "window/basic.h"

namespace ch {

class Form;

// Runs a step of play; a run-time error it raises (a score carried past its
// range) goes to `endOnError`, which tells it and ends the game.
template <class Step, class EndOnError>
void EndingOnError(Step&& step, EndOnError&& endOnError) {
    try {
        step();
    } catch (const RuntimeError& error) {
        endOnError(error);
    }
}

// One second of the round clock (Timer1): the dial moves on and the time
// warnings are shown. True when that second ends the round's time, and the
// clock is then stopped.
bool RoundClockRunsOut(Form& window);

// The clock ran out: "Times Up!" blinks ten times in lblMessage, the round
// is scored by `takeScore`, and the message goes unless the game is over.
// False when the window was closed meanwhile.
bool TimesUpThenScore(Form& window, const std::function<void()>& takeScore);

}  // namespace ch
