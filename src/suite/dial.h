// SPDX-License-Identifier: GPL-3.0-or-later
// The round dial and the two count-ups of a bonus.
//
// The dial is a pie on the window's picture surface `Surface` that fills
// clockwise from the top as the round runs out: green for the first half,
// yellow in the third quarter, blinking red and black in the last (Timer2
// redraws it every 200 ms to make the blink), red when the time is up.
//
// A game window uses them so:
//   Form_Load:      InitTimeDial(*this);
//   Timer1_Timer:   ElapsedSeconds += 1; DrawTimeDial(DialAngle(ElapsedSeconds), *this);
//                   DialSeconds = ElapsedSeconds;   (or AdvanceRoundClock, gamewindow.h)
//   Timer2_Timer:   DrawTimeDial(DialAngle(DialSeconds), *this);
//   end of a round: AwardBonus(*this, "Tower Bonus!", TowersCompleted, TowerBonus);
//                   CountTimeBonus(*this, TimeBonus);
// The count-ups block: they repaint, sleep and repaint, so the player sees
// each step while no event is served.
#pragma once

#include <functional>
#include <string>

namespace ch {

class Form;

// Centre and radius from the size of `Surface`; the last quarter white; the
// surface cleared.
void InitTimeDial(Form& window);

// The dial at an angle in degrees: 1 to 360 draws the pie, 0 or above 360
// only the cross and the frame circle. From 271 to 359 it switches Timer2 on
// and flips the last quarter between red and black at each call; at 360 it
// switches Timer2 off and stands full with a red last quarter.
void DrawTimeDial(int angle, Form& window);

// The angle of a number of seconds of the round: 360 / TimeLimit * seconds,
// rounded half to even. 0 for a limit of 0 or less, which never runs out.
int DialAngle(int seconds);

// One step of a counted bonus: the score grows by `amount` and is shown on
// screen, `shown` runs (what it changes appears with the next step), then
// "\Snap.wav" and 75 ms.
void CountStep(Form& window, long long amount, const std::function<void()>& shown = {});

// The seconds left in the round counted one at a time, each a CountStep of
// `perSecond`, with the dial running on to the end of the round.
void CountClockSeconds(Form& window, long long perSecond, const std::function<void()>& shown = {});

// What varies between the games in the speed bonus count.
struct TimeBonusOptions {
    // A further factor on the bonus per second: the total is multiplied by
    // it and each counted second adds the factor times the bonus.
    int factor = 1;
    // Where lblScoring is centred: empty for the window, or the name of a
    // control to centre it on.
    const char* centreOn = "";
    // lblMessage moves to stand 100 twips to the left of lblScoring.
    bool messageBesideScoring = false;
};

// The speed bonus: (TimeLimit - ElapsedSeconds) * bonusPerSecond, shown in
// lblScoring under "Speed Bonus!" for 2000 ms, then, with CountDownScore,
// counted into the score a second at a time (the dial runs on to the end,
// "\Snap.wav", 75 ms each), whatever is left added at the end. With no
// seconds left it shows 0 and counts nothing. A total beyond 32 bits raises
// "Overflow" (RuntimeError 6) before anything is shown.
void CountTimeBonus(Form& window, long long bonusPerSecond, const TimeBonusOptions& options = {});

// What varies between the games in a named bonus.
struct AwardOptions {
    // The count runs on 16-bit numbers: a total beyond 32767 (or below
    // -32768) overflows as the count starts, after it has been shown.
    bool sixteenBitCount = false;
};

// A named bonus of count * value: lblMessage = title + "!", the total in
// lblScoring for 1000 ms, then, with CountDownScore, counted in steps of
// total / 20 (rounded) with "\Snap.wav" and 75 ms each; otherwise added at
// once. A step of 0 (a total below 10) adds the total at once.
void AwardBonus(Form& window, const std::string& title, long long count, long long value,
                const AwardOptions& options = {});

// CurrentScore += amount as a 32-bit score: "Overflow" (RuntimeError 6)
// beyond its range.
void AddToScore(long long amount);

}  // namespace ch
