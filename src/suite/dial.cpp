// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/dial.h"

#include <cmath>

#include "suite/common.h"
#include "suite/sound.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

namespace {

constexpr int kTop = -90;  // twelve o'clock in screen degrees

// Quarter q (0 to 3) of the dial, whole, starting at the top and going clockwise.
void Quarter(Control& surface, int q, int color) {
    surface.drawPie(DialCenterX, DialCenterY, DialRadius, kTop + 90 * q, kTop + 90 * (q + 1), color, color);
}

void Slice(Control& surface, int q, int angle, int color) {
    surface.drawPie(DialCenterX, DialCenterY, DialRadius, kTop + 90 * q, kTop + angle, color, color);
}

void ShowScore(Form& window) {
    if (Control* score = window.find("lblCurrentScore")) score->setCaption(FormatScore(CurrentScore));
}

void Repaint() { Runtime::current().refresh(); }

void SetForeColor(Form& window, const char* name, int color) {
    if (Control* c = window.find(name)) c->setForeColor(color);
}

// lblScoring in the middle of the window or of another control.
void CentreScoring(Form& window, Control& scoring, const char* centreOn) {
    Control* frame = centreOn && *centreOn ? window.find(centreOn) : nullptr;
    if (frame)
        scoring.setLeft(frame->left() + (frame->width() - scoring.width()) / 2);
    else
        scoring.setLeft((window.width() - scoring.width()) / 2);
}

void ShowMessage(Form& window, const std::string& text) {
    if (Control* message = window.find("lblMessage")) {
        message->setCaption(text);
        message->setVisible(true);
        Repaint();
    }
}

}  // namespace

void AddToScore(long long amount) {
    const long long sum = static_cast<long long>(CurrentScore) + amount;
    if (sum > INT32_MAX || sum < INT32_MIN) throw RuntimeError(kErrOverflow, "Overflow");
    CurrentScore = static_cast<int32_t>(sum);
}

void InitTimeDial(Form& window) {
    Control& surface = window.c("Surface");
    DialCenterX = static_cast<int16_t>(surface.width() / 2);
    DialCenterY = static_cast<int16_t>(surface.height() / 2);
    DialRadius = std::max(0, std::min<int>(DialCenterX, DialCenterY) - 30);
    DialFirstColor = 65280;
    DialSecondColor = 65535;
    DialLastColor = 0xFFFFFF;
    DialLineColor = 0xC0C0C0;
    surface.cls();
}

int DialAngle(int seconds) {
    // A limit of 0 or less (a saved game may bring one) never runs out: the
    // dial stays empty rather than overflow as the seconds pass.
    if (TimeLimit <= 0) return 0;
    return CInt(360.0 / TimeLimit * seconds);
}

void DrawTimeDial(int angle, Form& window) {
    Control& surface = window.c("Surface");
    Control* timer2 = window.find("Timer2");
    surface.cls();
    surface.setFillColor(DialFirstColor);
    surface.setForeColor(DialFirstColor);
    if (angle >= 1 && angle <= 90) {
        Slice(surface, 0, angle, DialFirstColor);
    } else if (angle >= 91 && angle <= 180) {
        Quarter(surface, 0, DialFirstColor);
        Slice(surface, 1, angle, DialFirstColor);
    } else if (angle >= 181 && angle <= 270) {
        Quarter(surface, 0, DialFirstColor);
        Quarter(surface, 1, DialFirstColor);
        Slice(surface, 2, angle, DialSecondColor);
    } else if (angle >= 271 && angle <= 359) {
        if (timer2) timer2->setEnabled(true);
        DialLastColor = DialLastColor == 0 ? 255 : 0;
        Quarter(surface, 0, DialFirstColor);
        Quarter(surface, 1, DialFirstColor);
        Quarter(surface, 2, DialSecondColor);
        Slice(surface, 3, angle, DialLastColor);
    } else if (angle == 360) {
        if (timer2) timer2->setEnabled(false);
        DialLastColor = 255;
        Quarter(surface, 0, DialFirstColor);
        Quarter(surface, 1, DialFirstColor);
        Quarter(surface, 2, DialSecondColor);
        Quarter(surface, 3, DialLastColor);
    }
    const double r = DialRadius;
    surface.drawLine(DialCenterX, DialCenterY - r, DialCenterX, DialCenterY + r, DialLineColor);
    surface.drawLine(DialCenterX - r, DialCenterY, DialCenterX + r, DialCenterY, DialLineColor);
    surface.drawCircle(DialCenterX, DialCenterY, r, DialLineColor);
}

void CountStep(Form& window, long long amount, const std::function<void()>& shown) {
    AddToScore(amount);
    ShowScore(window);
    Repaint();
    if (shown) shown();
    if (PlaySounds) PlayWaveFile("\\Snap.wav");
    Sleep(75);
}

void CountClockSeconds(Form& window, long long perSecond, const std::function<void()>& shown) {
    for (int second = ElapsedSeconds + 1; second <= TimeLimit; ++second) {
        DrawTimeDial(DialAngle(ElapsedSeconds), window);
        DialSeconds = static_cast<int16_t>(second);
        ElapsedSeconds += 1;
        CountStep(window, perSecond, shown);
    }
}

void CountTimeBonus(Form& window, long long bonusPerSecond, const TimeBonusOptions& options) {
    const long long stepPerSecond = bonusPerSecond * options.factor;
    long long left = static_cast<long long>(TimeLimit - ElapsedSeconds) * stepPerSecond;
    // The total is a 32-bit number: one that can't be held raises "Overflow"
    // before anything is shown.
    if (left > INT32_MAX || left < INT32_MIN) throw RuntimeError(kErrOverflow, "Overflow");

    ShowMessage(window, "Speed Bonus!");
    SetForeColor(window, "lblCurrentScore", 0xFFFF00);
    Control& scoring = window.c("lblScoring");
    scoring.setCaption(FormatScore(left));
    scoring.setForeColor(255);
    CentreScoring(window, scoring, options.centreOn);
    if (options.messageBesideScoring)
        if (Control* message = window.find("lblMessage")) message->setLeft(scoring.left() - message->width() - 100);
    scoring.setVisible(true);
    Repaint();
    Sleep(2000);

    if (CountDownScore) {
        CountClockSeconds(window, stepPerSecond, [&] {
            left -= stepPerSecond;
            scoring.setForeColor(0);
            scoring.setCaption(FormatScore(left));
        });
    }
    AddToScore(left);
    ShowScore(window);
    scoring.setVisible(false);
    SetForeColor(window, "lblCurrentScore", 0xFF0000);
}

void AwardBonus(Form& window, const std::string& title, long long count, long long value,
                const AwardOptions& options) {
    const long long total = count * value;
    ShowMessage(window, title + "!");
    SetForeColor(window, "lblCurrentScore", 0xFFFF00);
    Control& scoring = window.c("lblScoring");
    scoring.setCaption(FormatScore(total));
    CentreScoring(window, scoring, "");
    scoring.setForeColor(255);
    scoring.setVisible(true);
    Repaint();
    Sleep(1000);

    if (CountDownScore && options.sixteenBitCount && (total > INT16_MAX || total < INT16_MIN))
        throw RuntimeError(kErrOverflow, "Overflow");
    const long long step = CountDownScore ? CLng(static_cast<double>(total) / 20) : 0;
    if (step != 0) {
        // A counted loop from 1 to the total in steps of the step, as the
        // rounding of the step leaves it: the last step may overshoot.
        long long left = total;
        for (long long i = 1; step > 0 ? i <= total : i >= total; i += step) {
            CountStep(window, step, [&] {
                left -= step;
                scoring.setForeColor(0);
                scoring.setCaption(FormatScore(left));
            });
        }
    } else {
        AddToScore(total);
        ShowScore(window);
    }
    SetForeColor(window, "lblCurrentScore", 0xFF0000);
    scoring.setVisible(false);
}

}  // namespace ch
