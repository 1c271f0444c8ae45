// SPDX-License-Identifier: GPL-3.0-or-later
// The Sumfall rounds: Play and End Game, pause and resume, the round clock
// and its time-up, Take Score with its completion, combination and speed
// bonuses, the second round, the bonus round, the end of the game, Replay
// and the opening of a saved game.
#include "games/sumfall/frmSumfall.h"
#include "suite/cards.h"
#include "suite/common.h"
#include "suite/dial.h"
#include "suite/files.h"
#include "suite/highscores.h"
#include "suite/roundsteps.h"
#include "suite/sound.h"
#include "suite/windowsteps.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace sumfall;

// ---- Play, pause, end --------------------------------------------------------------

void frmSumfall::cmdPlay_Click(bool fromMenu) {
    if (c(fromMenu ? "mnuPlay" : "cmdPlay").caption() == kPlayCaption) {
        SetPlayCaptions(*this, true);
        if (fromMenu) {
            c("frmSplash").setVisible(false);
        } else {
            ShowSplash(*this, false);
            c("mnuSave").setEnabled(false);
        }
        Play();
        if (!fromMenu && PlayMusic && loaded()) StartMusic();
        return;
    }
    if (fromMenu && !GameInProgress) {
        Control& message = c("lblMessage");
        message.setCaption("Select your options and play again!");
        message.setVisible(true);
        runtime().refresh();
        Sleep(2000);
        return;
    }
    c("cmdPlay").setToolTipText(kStartsTip);
    if (!GameInProgress) return;
    cmdPause_Click();
    const bool yes = AskYesNo(fromMenu ? kRestartQuestion : kQuitNowQuestion);
    cmdPause_Click();
    if (!yes) return;
    SetPlayCaptions(*this, false);
    EndGame();
}

void frmSumfall::Play() {
    setMousePointer(Pointer::Hourglass);
    bool ok = true;
    if (ReplayPending) {
        for (size_t i = 1; i < Deck.size() && i < Round1Deck.size(); ++i) Deck[i] = Round1Deck[i];
    } else {
        ok = CreateSumfallDeck() && ShuffleDeck();
        if (ok) {
            for (auto* round : {&Round1Deck, &Round2Deck, &Round3Deck}) round->assign(Deck.size(), std::string());
            DecksCardGoal = CardGoal;
        }
    }
    ok = ok && Deal(true);
    if (ok) {
        GameInProgress = true;
        TakingScore = false;
        c("lblHighScore").setVisible(true);
        for (const char* name : {"cmdTakeScore", "mnuTakeScore"}) {
            c(name).setEnabled(true);
            c(name).setCaption(kTakeScoreCaption);
        }
        c("cmdTakeScore").setToolTipText("Ends current round and awards time bonus");
        c("cmdPause").setEnabled(true);
        for (const char* name : {"mnuPause", "mnuViewHiScore", "mnuDeck"}) c(name).setEnabled(true);
        for (const char* name : {"mnuOpen", "mnuTime", "mnuGoal", "mnuScoring"}) c(name).setEnabled(false);
    } else {
        MsgBox("Unknown Error! Unable to play " + AppTitle, MsgButtons::OKCancel, MsgIcon::Critical, AppTitle);
        runtime().unload(*this);
        if (!loaded()) return;
    }
    setMousePointer(Pointer::Default);
}

// A paused game cannot be studied: the selection goes and the cards are
// turned down.
void frmSumfall::cmdPause_Click() {
    PauseOrResume(*this, [this](bool show) {
        if (!show) {
            ClearSelections(Board);
            Board.total = 0;
            ShowTotal();
        }
        Board.faceDown = !show;
        ShowBoard();
    });
}

void frmSumfall::cmdTakeScore_Click(bool fromMenu) {
    if (c("cmdTakeScore").caption() == kReplayCaption) {
        ReplayPending = true;
        cmdPlay_Click(false);
        return;
    }
    if (TakingScore) return;
    try {
        TakeScore();
    } catch (const RuntimeError& error) {
        EndOnError(error);
    }
    if (!fromMenu && loaded() && PlayMusic && GameInProgress) StartMusic();
}

void frmSumfall::Timer1_Timer() {
    // A round that never runs out (a saved game's limit of 0 or less) counts
    // its seconds in 16 bits: the 32,768th overflows.
    if (ElapsedSeconds == INT16_MAX) {
        EndOnError(RuntimeError(kErrOverflow, "Overflow"));
        return;
    }
    if (!RoundClockRunsOut(*this)) return;
    DisableCommandButtons(true);
    TimesUpThenScore(*this, [this] { cmdTakeScore_Click(false); });
}

// The end of a round: completion, combinations and speed bonus in this order,
// then the next round, the bonus round or the end of the game.
void frmSumfall::TakeScore() {
    Control& message = c("lblMessage");
    Control& score = c("lblCurrentScore");
    TakingScore = true;
    c("Timer1").setEnabled(false);
    setMousePointer(Pointer::Hourglass);
    if (PlayMusic) StopMusic();

    DisableCommandButtons(true);
    ClearSelections(Board);
    const bool completed = FieldCleared(Board);
    ShowField(Board, false);
    ShowBoard();
    CardTotalVisible(false);
    ShowLowerCards(false);

    if (completed) {
        Wave("\\Wingame.wav");
        message.setCaption("Completion Bonus! " + NumText(Scoring.CompletionBonus));
        message.setVisible(true);
        runtime().refresh();
        score.setForeColor(Colour::Cyan);
        Sleep(1000);
        if (CountDownScore) {
            const int32_t step = Scoring.CompletionBonus / 10;
            for (int i = 0; i < 10; ++i) {
                message.setForeColor(message.foreColor() == Colour::Red ? Colour::Black : Colour::Red);
                CountStep(*this, step);
            }
        } else {
            AddToScore(Scoring.CompletionBonus);
            ShowScore();
            runtime().refresh();
            Sleep(1000);
        }
    }

    Control& combinations = c("lblCurrentElevens");
    if (CombinationCount != 0) {
        const std::string& word = c("lblElevens").caption();
        message.setCaption(NumText(CombinationCount) + " " + word.substr(0, word.empty() ? 0 : word.size() - 1) +
                           "! Bonus = " +
                           NumText(CLng(static_cast<double>(Scoring.CombinationBonus) * CombinationCount)));
        message.setVisible(true);
        runtime().refresh();
        score.setForeColor(Colour::Cyan);
        combinations.setForeColor(Colour::Cyan);
        if (CountDownScore) {
            while (CombinationCount > 0) {
                CountStep(*this, Scoring.CombinationBonus, [&] {
                    CombinationCount -= 1;
                    combinations.setCaption(NumText(CombinationCount));
                });
            }
        } else {
            AddToScore(static_cast<long long>(Scoring.CombinationBonus) * CombinationCount);
            ShowScore();
            CombinationCount = 0;
            combinations.setCaption(NumText(CombinationCount));
            Sleep(1000);
        }
    }
    combinations.setForeColor(Colour::Blue);

    const int left = TimeLimit - ElapsedSeconds;
    if (left >= 1) {
        // The bonus is a 32-bit product: one past the range overflows here.
        message.setCaption("Speed Bonus! " + NumText(CLng(static_cast<double>(left) * TimeBonus)));
        message.setVisible(true);
        runtime().refresh();
        score.setForeColor(Colour::Cyan);
        Sleep(1000);
        if (!CountDownScore) {
            ElapsedSeconds = TimeLimit;
            AddToScore(static_cast<long long>(left) * TimeBonus);
            DrawTimeDial(0, *this);
            score.setForeColor(Colour::Red);
            ShowScore();
            runtime().refresh();
            Sleep(1000);
            score.setForeColor(Colour::Black);
        } else {
            CountClockSeconds(*this, TimeBonus);
        }
    }

    DoEvents();
    TakingScore = false;
    if (!loaded()) return;

    if (CurrentRound == 1) {
        message.setCaption("Prepare for Round Two!");
        message.setVisible(true);
        BlinkLabel(message, 11, 250);
        message.setVisible(false);
        CurrentRound = 2;
        c("lblCurrentRound").setCaption(NumText(CurrentRound));
        if (ReplayPending && Round2Deck.size() > 1 && !Round2Deck[1].empty())
            Deck = Round2Deck;
        else
            ShuffleDeck();
        Deal();
        message.setVisible(false);
        DisableCommandButtons(false);
        ShowField(Board, true);
        ShowBoard();
    } else if (CurrentRound == 2 && CurrentScore >= Scoring.BonusRoundScore) {
        Wave("\\HighScore.wav");
        message.setCaption("Bonus Round!");
        message.setVisible(true);
        BlinkLabel(message, 11, 250);
        message.setVisible(false);
        CurrentRound = 3;
        if (ReplayPending && Round3Deck.size() > 1 && !Round3Deck[1].empty())
            Deck = Round3Deck;
        else
            ShuffleDeck();
        Deal();
        DisableCommandButtons(false);
        c("lblCurrentRound").setCaption("Bonus");
        if (PlayMusic) StartMusic();
        ShowField(Board, true);
        ShowBoard();
        ReplayPending = false;
    } else {
        GameOver();
        if (!loaded()) return;
    }

    CloseScoring();
}

// The last round is over: the board goes, the score is offered to the table,
// "Game Over" stands for two seconds and the splash panel returns.
void frmSumfall::GameOver() {
    Control& message = c("lblMessage");
    ShowField(Board, false);
    Board.selected.fill(false);
    ShowBoard();
    CurrentRound = 1;
    GameInProgress = false;
    PreviousScore = CurrentScore;
    ShowLowerCards(false);
    c("mnuSave").setEnabled(true);
    c("mnuOpen").setEnabled(true);
    c("StatusBar1").setPanel(2, "Game over");
    c("lblCurrentTotal").setCaption("0");

    if (!UpdateHighScoreTable(kTable, *this) || !loaded() || !ShowHighScore(kTable, *this, kDefaultScore))
        MsgBox("An error occured when attmpting to access the High Score Table. Please close and restart the "
               "game.",
               MsgButtons::OK, MsgIcon::Critical, AppTitle);
    if (!loaded()) return;

    // The caption's Change places the label again, over the field.
    message.setTop(height() / 2);
    message.setCaption(kGameOver);
    message.setForeColor(Colour::Red);
    setMousePointer(Pointer::Hourglass);
    message.setVisible(true);
    runtime().refresh();
    Sleep(2000);
    message.setVisible(false);
    setMousePointer(Pointer::Default);

    ShowSplash(*this, true);
    c("cmdExit").setEnabled(true);
    c("cmdPlay").setEnabled(true);
    // The captions only: the tool tip changes with a confirmed End Game.
    c("cmdPlay").setCaption(kPlayCaption);
    c("mnuPlay").setCaption(kPlayCaption);
    for (const char* name : {"cmdTakeScore", "mnuTakeScore"}) {
        c(name).setCaption(kReplayCaption);
        c(name).setEnabled(true);
    }
    c("cmdTakeScore").setToolTipText(kReplayTip);
    for (const char* name : {"mnuExit", "mnuPlay", "mnuTime", "mnuGoal", "mnuScoring"}) c(name).setEnabled(true);
    c("cmdPause").setEnabled(false);
    c("mnuPause").setEnabled(false);
    ElapsedSeconds = TimeLimit;
    DrawTimeDial(0, *this);
    ReplayPending = false;
}

// How every end of a round leaves the window.
void frmSumfall::CloseScoring() {
    Control& score = c("lblCurrentScore");
    Control& message = c("lblMessage");
    ElapsedSeconds = 0;
    score.setForeColor(Colour::Blue);
    message.setForeColor(Colour::Red);
    ClearSelections(Board);
    ShowBoard();
    CardTotalVisible(true);
    setMousePointer(Pointer::Default);
}

// A score past its 32-bit range: the platform's message, then the game ends
// with the score made so far, as after its last round.
void frmSumfall::EndOnError(const RuntimeError& error) {
    c("Timer1").setEnabled(false);  // the clock stands behind the message
    ShowRunTimeError(error);
    if (!loaded()) return;
    if (PlayMusic) StopMusic();
    DisableCommandButtons(true);
    c("lblMessage").setVisible(false);
    c("lblCurrentElevens").setForeColor(Colour::Blue);
    TakingScore = false;
    UpCardUsed = false;
    GameOver();
    if (!loaded()) return;
    CloseScoring();
}

// After a confirmed End Game: no score goes to the table.
void frmSumfall::EndGame() {
    GameInProgress = false;
    ReplayPending = false;
    ShowField(Board, false);
    ShowBoard();
    ShowLowerCards(false);
    c("Timer1").setEnabled(false);
    c("Timer2").setEnabled(false);
    ElapsedSeconds = 0;
    c("lblTime").setCaption("Time:");
    c("Surface").cls();
    for (const char* name : {"CardTotalRectangle", "CardTotalBevelSide", "CardTotalBevelBottom"})
        c(name).setVisible(false);
    ClearSelections(Board);
    ShowBoard();
    PreviousScore = CurrentScore;
    CurrentScore = 0;
    ShowScore();
    c("lblCurrentTotal").setVisible(false);
    c("lblTotal").setVisible(false);
    CurrentRound = 1;
    c("lblCurrentRound").setCaption(NumText(CurrentRound));
    CombinationCount = 0;
    c("lblCurrentElevens").setCaption(NumText(CombinationCount));
    c("cmdPause").setEnabled(false);
    for (const char* name : {"cmdTakeScore", "mnuTakeScore"}) {
        c(name).setCaption(kReplayCaption);
        c(name).setEnabled(true);
    }
    c("cmdTakeScore").setToolTipText(kReplayTip);
    for (const char* name : {"mnuTime", "mnuGoal", "mnuScoring", "mnuSave", "mnuOpen", "mnuPlay"})
        c(name).setEnabled(true);
    c("mnuPause").setEnabled(false);
    ShowSplash(*this, true);
    if (PlayMusic) StopMusic();
}

// ---- Saved games ----------------------------------------------------------------------

bool frmSumfall::LoadSavedGame(const std::string& path) {
    Board.stock.assign(31, std::string());
    std::string text;
    SavedGame game;
    if (!ReadWholeFile(path, text) || !ParseSavedGame(text, game)) {
        MsgBox("Unable to open the requested file. It may be damaged or you may have entered an invalid file name.",
               MsgButtons::OK, MsgIcon::Critical, AppTitle);
        return false;
    }
    if (game.cardGoal >= 10 && game.cardGoal <= 15) mnuGoal_Click(game.cardGoal);
    Deck.assign(static_cast<size_t>(DeckSize(game.cardGoal)) + 1, std::string());
    DecksCardGoal = game.cardGoal;
    Round1Deck = game.round1;
    Round2Deck = game.round2;
    Round3Deck = game.round3;

    std::string message = SavedGameMessage(game);
    const bool otherLimit = game.timeLimitRead && game.timeLimit != TimeLimit;
    if (otherLimit) {
        message += "This game was saved with the time limit set to " + NumText(game.timeLimit) +
                   ". Your time limit is currently set to " + NumText(TimeLimit) +
                   ". Do you want to change your time limit to " + NumText(game.timeLimit) + "?";
        if (MsgBox(message, MsgButtons::YesNo, MsgIcon::Question, "Saved Game Information") == MsgAnswer::Yes) {
            TimeLimit = static_cast<int16_t>(game.timeLimit);
            ApplyTimeSetting(*this, NumText(game.timeLimit), kTimeEntries);
            // A limit the menu hasn't still gets its table shown, and made,
            // so that the replay's score can go in.
            ShowHighScore(kTable, *this, kDefaultScore);
        }
    } else {
        MsgBox(message, MsgButtons::OK, MsgIcon::Information, "Saved Game Information");
    }
    ReplayPending = true;
    c("Timer4").setEnabled(false);
    c("frmSplash").setVisible(false);
    c("cmdTakeScore").setCaption(kReplayCaption);
    cmdTakeScore_Click(false);
    return true;
}

}  // namespace ch
