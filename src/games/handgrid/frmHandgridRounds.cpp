// SPDX-License-Identifier: GPL-3.0-or-later
// The Handgrid rounds: Play and End Game, pause, the round clock, and
// NextRound, which pays a filled grid, announces the next round or the bonus
// round, or ends the game.
#include "games/handgrid/frmHandgrid.h"

#include "suite/cards.h"
#include "suite/common.h"
#include "suite/dial.h"
#include "suite/sound.h"
#include "suite/windowsteps.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace handgrid;

namespace {
}  // namespace

// ---- Play and End Game ------------------------------------------------------------------

void frmHandgrid::Play() {
    if (TakingScore) return;
    if (c("cmdPlay").caption() == kPlayCaption)
        StartGame();
    else
        EndGameAsked();
}

void frmHandgrid::StartGame() {
    try {
        setMousePointer(Pointer::Hourglass);
        TakingScore = false;
        CurrentRound = 1;
        CurrentScore = 0;
        c("lblCurrentScore").setCaption("0");
        c("lblPointsEarned").setCaption("Points Earned: 0");
        ShowSplash(*this, false);
        runtime().refresh();
        c("StatusBar1").setPanel(2, "Click on cards to get the best Poker hand!   ");
        ShowBonusGoal();
        c("mnuTime").setEnabled(false);
        c("mnuCustom").setEnabled(false);
        SetPlayCaptions(*this, true);
        c("mnuPause").setEnabled(true);
        c("cmdPause").setEnabled(true);
        ShowOverWrites();
        c("lblTimeBonus").setCaption(NumText(TimeLimit));
        ElapsedSeconds = 0;
        DialSeconds = 0;
        ResetDial();
        c("Timer1").setEnabled(true);
        ShowTimerFrame(true);
        if (CreateStandardDeck()) {
            Reset(false);
            ShuffleDeck();
            Deal();
            ShowControls(true, true);
            ShowCards(true);
        }
        if (PlayMusic) StartMusic();
        GameInProgress = true;
        setMousePointer(Pointer::Default);
    } catch (const RuntimeError& error) {
        MsgBox(error.description(), MsgButtons::OK, MsgIcon::Critical, AppTitle);
        runtime().end();
    }
}

// No score goes to the table for a game ended this way.
void frmHandgrid::EndGameAsked() {
    if (PlayMusic) StopMusic();
    cmdPause_Click();
    if (!AskYesNo(kQuitQuestion)) {
        cmdPause_Click();
        return;
    }
    GameInProgress = false;
    cmdPause_Click();
    ShowCards(false);
    ShowControls(false, false);
    Reset(true);
    ResetDial();
    c("cmdPlay").setToolTipText(kStartsTip);
    for (const char* name : {"mnuTime", "mnuDeck", "mnuCustom"}) c(name).setEnabled(true);
    c("Timer1").setEnabled(false);
    ShowTimerFrame(false);
    c("Timer4").setEnabled(true);
}

void frmHandgrid::cmdPause_Click() {
    if (TakingScore) return;
    PauseOrResume(*this, [this](bool show) { ShowCards(show); });
}

// ---- The clock ----------------------------------------------------------------------------

// The dial shows the second before this tick; Timer2 catches up with it.
void frmHandgrid::Timer1_Timer() {
    ElapsedSeconds += 1;
    DrawTimeDial(DialAngle(DialSeconds), *this);
    DialSeconds = ElapsedSeconds;
    c("lblTimeBonus").setCaption(NumText(TimeLimit - ElapsedSeconds));
    c("lblTime").setCaption("Time:");
    if (ElapsedSeconds < TimeLimit) return;
    c("ScoringLabel").setCaption(kTimesUp);
    NextRound();
}

void frmHandgrid::ResetDial() { InitTimeDial(*this); }

void frmHandgrid::ShowTimerFrame(bool visible) {
    for (const char* name : {"TimerRectangle", "TimerBevelSide", "TimerBevelBottom"}) c(name).setVisible(visible);
}

// ---- The end of a round -------------------------------------------------------------------

// Entered from the click that fills the grid or from the clock. It holds the
// thread throughout; TakingScore stays set until the selector's next tick,
// so that input made during the change is dropped.
void frmHandgrid::NextRound() {
    TakingScore = true;
    setMousePointer(Pointer::Hourglass);
    if (PlayMusic) StopMusic();
    CurrentRound += 1;

    Control& scoring = c("ScoringLabel");
    Control& outline = c("ScoringLabelOutline");
    Control& message = c("lblMessage");
    ShowCards(false);
    ShowControls(false, true);
    scoring.setForeColor(Colour::Red);
    c("Timer1").setEnabled(false);
    CenterScoringLabel();

    if (scoring.caption() == kTimesUp) {
        // The round is forfeit.
        scoring.setVisible(true);
        outline.setVisible(true);
        runtime().refresh();
        Wave("\\Slide.wav");
        Sleep(2000);
    } else {
        const int secondsLeft = TimeLimit - ElapsedSeconds;
        if (secondsLeft > 0) {
            scoring.setFont("Arial", 20, scoring.fontBold());
            scoring.setCaption(NumText(RoundPoints) + " X " + NumText(secondsLeft) + " =");
            message.setCaption("Round Points X Seconds Remaining");
            CenterScoringLabel();
            c("lblScoring").setTop(scoring.top() + scoring.height() + 50);
            scoring.setVisible(true);
            outline.setVisible(true);
            try {
                // Total, seconds left times the bonus times the points, is
                // worked out in 32-bit numbers from the left; so is the score
                // it is counted into.
                const int32_t perPoint = CLng(static_cast<double>(secondsLeft) * TimeBonus);
                CLng(static_cast<double>(perPoint) * RoundPoints);
                CountTimeBonus(*this, TimeBonus, {RoundPoints, "ScoringLabelOutline"});
            } catch (const RuntimeError& error) {
                EndOnError(error);
                return;
            }
            message.setVisible(false);
        }
    }
    scoring.setFont("MS Sans Serif", 18, scoring.fontBold());

    const bool anotherRound = CurrentRound < 4;
    const bool bonusRound = CurrentRound == 4 && CurrentScore >= Scoring.BonusScore;
    if (!anotherRound && !bonusRound) {
        GameOver();
        return;
    }

    scoring.setVisible(true);
    outline.setVisible(true);
    if (CurrentRound >= 4) {
        c("lblRound").setCaption("Bonus Round");
        scoring.setCaption("Bonus round!");
        Wave("\\HighScore.wav");
    } else {
        c("lblRound").setCaption("Round: " + NumText(CurrentRound));
        // The number keeps the blank of its sign: "Prepare for round  2!".
        scoring.setCaption("Prepare for round " + Str(CurrentRound) + "!");
    }
    BlinkLabel(scoring, 10, 250);

    Reset(false);
    ElapsedSeconds = 0;
    outline.setVisible(false);
    scoring.setVisible(false);

    ShuffleDeck();
    Deal();
    ShowCards(true);
    ShowControls(true, true);

    ElapsedSeconds = 0;
    DialSeconds = 0;
    OverWritesUsed = 0;
    c("lblTimeBonus").setCaption(NumText(TimeLimit));
    ShowOverWrites();
    ResetDial();

    c("Timer1").setEnabled(true);
    c("lblPointsEarned").setCaption("Points Earned: 0");
    if (PlayMusic) StartMusic();
    setMousePointer(Pointer::Default);
}

// The score goes to the table, "Game Over" stands for two seconds, and the
// splash panel comes back.
void frmHandgrid::GameOver() {
    Control& scoring = c("ScoringLabel");
    scoring.setCaption(kGameOver);
    FinishGame(*this, kTable, kDefaultScore,
               {[this](bool v) { ShowCards(v); }, [this](bool v, bool s) { ShowControls(v, s); }, false});
    if (!loaded()) return;
    runtime().refresh();
    setMousePointer(Pointer::Hourglass);
    ShowControls(false, false);
    CenterScoringLabel();
    scoring.setVisible(true);
    Sleep(2000);
    c("ScoringLabelOutline").setVisible(false);
    scoring.setVisible(false);
    Reset(true);
    GameInProgress = false;
    c("Timer4").setEnabled(true);
    setMousePointer(Pointer::Default);
}

// A score or a sum of hands past its 32-bit range, in a placement or in the
// count of a round: the platform's overflow message, then the board is put
// away as at the end of a round and the game ends with the score made so far.
void frmHandgrid::EndOnError(const RuntimeError& error) {
    c("Timer1").setEnabled(false);  // the clock stands behind the message
    ShowRunTimeError(error);
    if (!loaded()) return;
    TakingScore = true;
    setMousePointer(Pointer::Hourglass);
    if (PlayMusic) StopMusic();
    ShowCards(false);
    ShowControls(false, true);
    c("lblScoring").setVisible(false);
    c("lblMessage").setVisible(false);
    c("lblCurrentScore").setForeColor(Colour::Blue);
    Control& scoring = c("ScoringLabel");
    scoring.setForeColor(Colour::Red);
    scoring.setFont("MS Sans Serif", 18, scoring.fontBold());
    GameOver();
}

}  // namespace ch
