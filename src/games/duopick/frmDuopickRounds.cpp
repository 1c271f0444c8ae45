// SPDX-License-Identifier: GPL-3.0-or-later
// The rounds of Duopick: Play and End Game, pause, the round clock, the end
// of a round with its awards, the next round or bonus round, and the end of
// the game.
#include "games/duopick/frmDuopick.h"

#include "suite/cards.h"
#include "suite/common.h"
#include "suite/dial.h"
#include "suite/roundsteps.h"
#include "suite/sound.h"
#include "suite/windowsteps.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace duopick;

namespace {
const char* const kGameOverScore = "50000";
const char* const kRoundTip = "Ends the current game";
}  // namespace

// ---- Play and End Game ----------------------------------------------------------------

// The button and the menu entry both come here; the caption of cmdPlay says
// whether a game starts or the running one is to end.
void frmDuopick::cmdPlay_Click() { Play(); }

void frmDuopick::Play() {
    if (c("cmdPlay").caption() == kPlayCaption) {
        try {
            CurrentRound = 1;
            CurrentScore = 0;
            ShowScore();
            GameInProgress = true;
            c("frmSplash").setVisible(false);
            InitRound();
        } catch (const std::exception& error) {
            MsgBox(error.what(), MsgButtons::OK, MsgIcon::None, AppTitle);
            runtime().end();
        }
        return;
    }
    bool quit = false;
    RunPausedIfRunning(*this, [&quit] { quit = AskYesNo(kQuitQuestion); });
    if (!quit || !loaded()) return;
    // An abandoned game enters no score in the table. The selection stands:
    // its outline stays, and the card keeps it into the next game.
    c("mnuTime").setEnabled(true);
    c("mnuCustom").setEnabled(true);
    SetPlayCaptions(*this, false);
    GameInProgress = false;
    ShowCards(false);
    ShowControls(false, true);
    for (const char* name : {"mnuTakeScore", "mnuPause", "cmdTakeScore", "cmdPause"}) c(name).setEnabled(false);
    c("Timer1").setEnabled(false);
    ShowSplash(*this, true);
    if (PlayMusic) StopMusic();
}

void frmDuopick::InitRound() {
    DoEvents();
    if (!loaded()) return;
    if (!CreateStandardDeck() || !ShuffleDeck()) return;
    Deal();
    ElapsedSeconds = 0;
    RoundCompleted = false;
    c("lblMessage").setVisible(false);
    TakingScore = false;
    c("cmdPlay").setToolTipText(kRoundTip);
    Board.cardsSelected = 0;
    Board.firstCardIndex = 0;
    PairsCount = 0;
    c("lblScorePairs").setCaption(NumText(PairsCount));
    RunsCount = 0;
    c("lblScoreRuns").setCaption(NumText(RunsCount));
    c("lblTime").setCaption("Time: " + NumText(TimeLimit));
    c("cmdPlay").setCaption(kEndGameCaption);
    c("mnuPlay").setCaption(kEndGameCaption);
    for (const char* name : {"cmdTakeScore", "mnuTakeScore", "cmdPause", "mnuPause"}) c(name).setEnabled(true);
    c("lblCurrentRound").setCaption(NumText(CurrentRound));
    c("mnuTime").setEnabled(false);
    c("mnuCustom").setEnabled(false);
    if (PlayMusic) StartMusic();
}

// ---- Pause ------------------------------------------------------------------------------

// A paused game can't be studied: the cards and the selection leave the
// table. Resuming shows the board as it is then: every card that has a
// picture (a gap has none), the up card, the stack and the selection, also
// when the game was paused while a round change had the cards hidden.
void frmDuopick::cmdPause_Click() {
    PauseOrResume(*this, [this](bool show) {
        if (show)
            ResumeBoard(Board);
        else
            PauseBoard(Board);
        ShowBoard();
    });
}

// ---- The clock --------------------------------------------------------------------------

void frmDuopick::Timer1_Timer() {
    if (!RoundClockRunsOut(*this)) return;
    setMousePointer(Pointer::Hourglass);
    ShowCards(false);
    // A half-made pair counts for nothing.
    ClearSelection(Board);
    ShowBoard();
    if (TimesUpThenScore(*this, [this] { raise(&c("cmdTakeScore"), Ev::Click); })) setMousePointer(Pointer::Default);
}

// ---- The end of a round ---------------------------------------------------------------

void frmDuopick::cmdTakeScore_Click() {
    if (TakingScore) return;
    EndingOnError([this] { TakeScore(); }, [this](const RuntimeError& error) { EndOnError(error); });
}

// A run-time error in the end of a round (a score past its 32-bit range) is
// told, and the game ends there with the score made so far.
void frmDuopick::EndOnError(const RuntimeError& error) {
    if (StopOnRunTimeError(*this, error)) GameOver();
}

// Nothing is paid during play: the round pays here, the completion bonus,
// the time bonus, the runs and last the pairs.
void frmDuopick::TakeScore() {
    TakingScore = true;
    // The clock stands while the round is paid.
    c("Timer1").setEnabled(false);
    ClearSelection(Board);
    ShowBoard();
    const char* const buttons[] = {"cmdTakeScore", "cmdPause", "cmdExit", "cmdPlay"};
    for (const char* name : buttons) c(name).setEnabled(false);
    setMousePointer(Pointer::Hourglass);
    ShowCards(false);
    if (PlayMusic) StopMusic();

    CurrentRound += 1;
    Control& message = c("lblMessage");
    message.setForeColor(Colour::Red);
    for (const Award& award :
         RoundAwards(Scoring, TimeBonus, RoundCompleted, TimeLimit - ElapsedSeconds, RunsCount, PairsCount)) {
        if (award.kind == Award::Kind::Time)
            CountTimeBonus(*this, TimeBonus);
        else
            AwardBonus(*this, award.title, award.count, award.value);
    }

    switch (NextStep(CurrentRound, CurrentScore, Scoring.BonusScore)) {
        case AfterRound::RoundTwo:
            for (const char* name : buttons) c(name).setEnabled(true);
            AnnounceRound("Prepare for Round Two!");
            InitRound();
            break;
        case AfterRound::BonusRound:
            for (const char* name : buttons) c(name).setEnabled(true);
            AnnounceRound("Prepare for Bonus Round!", "\\Applause.wav");
            InitRound();
            break;
        case AfterRound::GameOver:
            GameOver();
            break;
    }
    if (!loaded()) return;
    c("lblScoring").setVisible(false);
    setMousePointer(Pointer::Default);
}

void frmDuopick::GameOver() {
    setMousePointer(Pointer::Hourglass);
    FinishGame(*this, kTable, kGameOverScore,
               {[this](bool v) { ShowCards(v); }, [this](bool v, bool s) { ShowControls(v, s); }});
    if (!loaded()) return;
    Control& message = c("lblMessage");
    message.setForeColor(Colour::Red);
    c("cmdPlay").setToolTipText(kStartsTip);
    c("cmdTakeScore").setEnabled(false);
    for (const char* name : {"cmdPlay", "cmdExit", "mnuTime", "mnuCustom"}) c(name).setEnabled(true);
    message.setCaption(kGameOver);
    message.setVisible(true);
    runtime().refresh();
    Sleep(2000);
    // "Game Over" stays on show over the splash panel until the next game.
    ShowSplash(*this, true);
    setMousePointer(Pointer::Default);
}

void frmDuopick::ShowScore() { c("lblCurrentScore").setCaption(FormatScore(CurrentScore)); }

}  // namespace ch
