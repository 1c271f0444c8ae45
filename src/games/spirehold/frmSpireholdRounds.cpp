// SPDX-License-Identifier: GPL-3.0-or-later
// Spirehold's rounds: Play and End Game, pause and resume, the round clock,
// the end of a round with its awards in their order (time bonus, tower bonus,
// high run bonus), the next round, the bonus round and the end of the game.
#include "games/spirehold/frmSpirehold.h"
#include "suite/cards.h"
#include "suite/common.h"
#include "suite/dial.h"
#include "suite/roundsteps.h"
#include "suite/sound.h"
#include "suite/windowsteps.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace spirehold;

namespace {
const char* const kEndsCurrentTip = "Ends the current game";
}  // namespace

// ---- Play and End Game ------------------------------------------------------------

void frmSpirehold::cmdPlay_Click(bool) {
    try {
        Play();
    } catch (const RuntimeError& error) {
        // A run-time error inside Play is told and ends the program.
        MsgBox(error.description(), MsgButtons::OK, MsgIcon::None, AppTitle);
        runtime().end();
    }
}

void frmSpirehold::Play() {
    if (c("cmdPlay").caption() == kPlayCaption) {
        ShowSplash(*this, false);
        GameInProgress = true;
        CurrentRound = 1;
        TowersCompleted = 0;
        CurrentScore = 0;
        ShowScore();
        InitRound();
        c("cmdPlay").setToolTipText(kEndsCurrentTip);
        return;
    }
    if (!GameInProgress) return;
    cmdPause_Click();
    const bool yes = AskYesNo(kQuitQuestion);
    cmdPause_Click();
    if (yes) EndGame();
}

// A game given up counts as ended: its score is offered to the table.
void frmSpirehold::EndGame() {
    FinishGame(*this, kTable, kDefaultScore,
               {[this](bool v) { ShowCards(v); }, [this](bool v, bool s) { ShowControls(v, s); }});
    if (!loaded()) return;
    ShowSplash(*this, true);
    HideTowerLabels();
    c("cmdPlay").setToolTipText(kStartsTip);
    if (PlayMusic) StopMusic();
}

void frmSpirehold::InitRound() {
    DoEvents();
    if (!loaded()) return;
    CreateStandardDeck();
    ShuffleDeck();
    Deal();
    TakingScore = false;
    ElapsedSeconds = 0;
    CurrentRun = 0;
    Control& message = c("lblMessage");
    message.setCaption("");
    message.setVisible(false);
    c("lblCurrentRun").setCaption("Current Run: " + NumText(CurrentRun));
    c("lblHighRun").setCaption("Highest Run: " + NumText(HighestRun));
    c("lblTime").setCaption("Time: " + NumText(TimeLimit));
    c("lblCurrentRound").setCaption(CurrentRound == 3 ? std::string("Bonus") : NumText(CurrentRound));
    // The menu's Play entry keeps its caption in this window.
    c("cmdPlay").setCaption(kEndGameCaption);
    for (const char* name : {"mnuCustom", "mnuTime", "mnuClearHighRun"}) c(name).setEnabled(false);
    for (const char* name : {"cmdPause", "cmdTakeScore", "cmdPlay", "cmdExit", "mnuPause", "mnuTakeScore"})
        c(name).setEnabled(true);
    ShowControls(true);
    if (PlayMusic) StartMusic();
}

// ---- Pause ---------------------------------------------------------------------------

// A paused game cannot be studied: the cards go; those still on the table
// (they keep a picture) come back on resuming.
void frmSpirehold::cmdPause_Click() {
    PauseOrResume(*this, [this](bool show) {
        if (!show) {
            ShowCards(false, false);
            return;
        }
        ResumeBoard(Board);
        ShowBoard();
    });
}

// ---- The round clock -------------------------------------------------------------------

void frmSpirehold::Timer1_Timer() {
    if (!RoundClockRunsOut(*this)) return;
    setMousePointer(Pointer::Hourglass);
    ShowCards(false, false);
    if (TimesUpThenScore(*this, [this] { cmdTakeScore_Click(); })) setMousePointer(Pointer::Default);
}

// ---- The end of a round ------------------------------------------------------------------

void frmSpirehold::cmdTakeScore_Click() {
    if (TakingScore) return;
    EndingOnError([this] { TakeScore(); }, [this](const RuntimeError& error) { EndOnError(error); });
}

// A run-time error in play or in the end of a round (a count-up past its
// range) is told, and the game ends there with the score made so far.
void frmSpirehold::EndOnError(const RuntimeError& error) {
    if (!StopOnRunTimeError(*this, error)) return;
    c("lblMessage").setVisible(true);
    GameOver();
}

void frmSpirehold::TakeScore() {
    TakingScore = true;
    for (const char* name : {"cmdTakeScore", "cmdPlay", "cmdPause", "cmdExit"}) c(name).setEnabled(false);
    setMousePointer(Pointer::Hourglass);
    ShowCards(false, false);
    if (PlayMusic) StopMusic();
    CurrentRound += 1;
    Control& message = c("lblMessage");
    message.setForeColor(Colour::Red);
    message.setVisible(true);

    if (TimeLimit - ElapsedSeconds > 0) {
        if (TowersCompleted != 0) {
            CountTimeBonus(*this, TimeBonus);
        } else {
            message.setCaption("Sorry, you must complete at least\r\none tower to receive the time bonus!");
            Wave("\\Slide.wav");
            runtime().refresh();
            Sleep(3000);
        }
    }
    TowerScore();
    HighRunScore();

    if (CurrentRound == 2) {
        AnnounceRound("Prepare for Round Two!");
        InitRound();
    } else if (CurrentRound == 3 && CurrentScore >= Scoring.BonusScore) {
        AnnounceRound("Prepare for Bonus Round!", "\\Applause.wav");
        InitRound();
    } else {
        GameOver();
    }
    if (!loaded()) return;
    c("lblScoring").setVisible(false);
    setMousePointer(Pointer::Default);
}

void frmSpirehold::GameOver() {
    setMousePointer(Pointer::Hourglass);
    FinishGame(*this, kTable, kDefaultScore,
               {[this](bool v) { ShowCards(v); }, [this](bool v, bool s) { ShowControls(v, s); }});
    if (!loaded()) return;
    HideTowerLabels();
    Control& message = c("lblMessage");
    message.setForeColor(Colour::Red);
    c("cmdPlay").setToolTipText(kStartsTip);
    message.setCaption(kGameOver);
    runtime().refresh();
    Sleep(2000);
    ShowSplash(*this, true);
    setMousePointer(Pointer::Default);
    c("cmdPlay").setEnabled(true);
    c("cmdExit").setEnabled(true);
}

void frmSpirehold::TowerScore() {
    if (TowersCompleted > 0) {
        AwardBonus(*this, "Tower Bonus!", TowersCompleted, Scoring.TowerBonus);
        TowersCompleted = 0;
    }
    c("lblScoring").setVisible(false);
}

// Paid only for a record set in the round just ended; its count runs on
// 16-bit numbers.
void frmSpirehold::HighRunScore() {
    if (!NewHighRun) {
        c("lblScoring").setVisible(false);
        return;
    }
    NewHighRun = false;
    AwardBonus(*this, "Highest Run Bonus", HighestRun, Scoring.HighRunBonus, {.sixteenBitCount = true});
}

}  // namespace ch
