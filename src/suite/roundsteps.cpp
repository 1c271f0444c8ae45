// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/roundsteps.h"

#include "suite/common.h"
#include "suite/gamewindow.h"
#include "window/form.h"

namespace ch {

bool RoundClockRunsOut(Form& window) {
    AdvanceRoundClock(window);
    ShowTimeWarnings(window);
    if (ElapsedSeconds != TimeLimit) return false;
    window.c("Timer1").setEnabled(false);
    return true;
}

bool TimesUpThenScore(Form& window, const std::function<void()>& takeScore) {
    ShowTimesUp(window);
    BlinkLabel(window.c("lblMessage"), 10, 250);
    takeScore();
    if (!window.loaded()) return false;
    Control& message = window.c("lblMessage");
    if (message.caption() != kGameOver) message.setVisible(false);
    return true;
}

}  // namespace ch
