// SPDX-License-Identifier: GPL-3.0-or-later
// The Fivestack rounds: Play and End Game, pause, the round clock with its
// falling Time Bonus, giving up and taking the score, the next round, the
// bonus round and the end of the game.
#include <string>

#include "games/fivestack/frmFivestack.h"
#include "suite/cards.h"
#include "suite/common.h"
#include "suite/dial.h"
#include "suite/highscores.h"
#include "suite/sound.h"
#include "suite/windowsteps.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace fivestack;

namespace {
const char* const kTakeScore = "&Take score";
}  // namespace

// ---- Play and End Game -------------------------------------------------------------

void frmFivestack::cmdPlay_Click(bool fromMenu) {
    if (c(fromMenu ? "mnuPlay" : "cmdPlay").caption() == kPlayCaption) {
        SetPlayCaptions(*this, true);
        ShowSplash(*this, false);
        Play();
        return;
    }
    EndGame(fromMenu);
}

void frmFivestack::Play() {
    setMousePointer(Pointer::Hourglass);
    TakingScore = false;
    QuitRequested = false;
    ShowSplash(*this, false);
    c("StatusBar1").setPanel(2, "Click on Hit buttons to create columns of 21!   ");
    ShowBonusGoal();
    c("Surface").setVisible(true);
    c("mnuTime").setEnabled(false);
    c("mnuCustom").setEnabled(false);
    SetPlayCaptions(*this, true);

    if (!NewDeck()) {
        SetPlayCaptions(*this, false);
        ShowSplash(*this, true);
        c("mnuTime").setEnabled(true);
        c("mnuCustom").setEnabled(true);
        setMousePointer(Pointer::Default);
        return;
    }
    EnableControls();
    CurrentRound = 1;
    setCaption(AppTitle + ": Round " + NumText(CurrentRound));
    Reset();
    DeckPosition = 1;
    for (const char* name : {"PlayCardPicture", "lblHighScore", "lblRound"}) c(name).setVisible(true);
    c("PlayCardPicture").setPicture(ImageList2().indexOf("BACK"));

    DealFirstCard();
    // The column lines, not the totals: EnableControls has shown those of
    // columns 2 to 5, and the first keeps what the last game left.
    for (const char* line : kColumnLines) c(line).setVisible(true);
    c("cmdPass").setEnabled(PassesLeft != 0);
    c("cmdPass").setVisible(true);
    c("cmdPause").setEnabled(true);
    c("mnuPause").setEnabled(true);
    ShowHitButtons(true);
    for (const char* name : {"lblCurrentRoundScore", "lblTime", "lblTimeBonus", "frmScore"}) c(name).setVisible(true);

    CurrentScore = 0;
    ShowScore();
    UpdateCardTotalValue();
    for (const char* name : {"lblScore", "ScoreRectangle", "ScoreBevelBottom", "ScoreBevelSide", "lblCurrentTotal",
                             "lblTotalScore"})
        c(name).setVisible(true);
    ClearDial();
    c("Timer1").setEnabled(true);
    for (const char* name : {"TimerRectangle", "TimerBevelSide", "TimerBevelBottom"}) c(name).setVisible(true);
    GameInProgress = true;
    if (PlayMusic) StartMusic();
    setMousePointer(Pointer::Default);
}

// The game is paused behind the question; a confirmed end puts the board
// away and writes no score to the table.
void frmFivestack::EndGame(bool fromMenu) {
    if (PlayMusic) StopMusic();
    cmdPause_Click();
    if (!AskYesNo(fromMenu ? kRestartQuestion : kQuitQuestion)) {
        if (loaded()) cmdPause_Click();
        return;
    }
    if (!loaded()) return;
    QuitRequested = true;
    GameInProgress = false;
    // The pause handler shows the board again; Reset then takes the cards
    // and the buttons away, and the rest of the board stays beside the
    // splash panel until the next Play.
    cmdPause_Click();
    Reset();
    int16_t over = 5;
    EndRound(over);
    ClearDial();
    c("cmdPlay").setToolTipText(kStartsTip);
    c("frmScore").setVisible(false);
    for (const char* name : {"mnuTime", "mnuDeck", "mnuCustom"}) c(name).setEnabled(true);
}

// ---- Pause -------------------------------------------------------------------------

void frmFivestack::cmdPause_Click() { PauseGame(); }

// A paused game cannot be studied: the board and its buttons are hidden.
void frmFivestack::PauseGame() {
    PauseOrResume(
        *this,
        [this](bool show) {
            if (!show) {
                c("ScoringLabel").setForeColor(Colour::Blue);
                CenterScoringLabel();
            }
            ShowCards(show);
            ShowHitButtons(show);
        },
        "ScoringLabel");
}

// ---- The round clock ---------------------------------------------------------------

// The Time Bonus falls with every second; at the time limit the round is
// closed as by the Give Up button, whose caption decides whether the Card
// Total is scored (at the minimum bonus).
void frmFivestack::Timer1_Timer() {
    ElapsedSeconds += 1;
    DrawTimeDial(DialAngle(ElapsedSeconds), *this);
    DialSeconds = ElapsedSeconds;
    TimeBonus = TimeBonusAt(ElapsedSeconds, Scoring.TimeBonusMax, Scoring.TimeBonusMin, TimeBonusDecay);
    c("lblTimeBonus").setCaption(Str(TimeBonus));
    c("lblTime").setCaption("Time Bonus:");
    if (ElapsedSeconds < TimeLimit) return;
    ShowCards(false);
    Control& message = c("ScoringLabel");
    message.setForeColor(Colour::Red);
    c("Timer1").setEnabled(false);
    message.setCaption(kTimesUp);
    CenterScoringLabel();
    message.setVisible(true);
    c("ScoringLabelOutline").setVisible(true);
    runtime().refresh();
    Sleep(Scoring.WaitPeriod);
    cmdGiveUp_Click();
}

// ---- Closing a round ---------------------------------------------------------------

// Every close uses up a round: a taken score is counted, a lost or given up
// round flashes its message and scores nothing.
void frmFivestack::cmdGiveUp_Click() {
    if (TakingScore) return;
    TakingScore = true;
    setMousePointer(Pointer::Hourglass);
    CurrentRound += 1;
    if (c("cmdGiveUp").caption() == kTakeScore) {
        TakeScore();
    } else {
        Wave("\\Busted.wav");
        if (PlayMusic) StopMusic();
        ShowCards(false);
        Control& message = c("ScoringLabel");
        message.setForeColor(Colour::Red);
        if (CardTotal < kLowestScoringTotal) {
            message.setFontSize(18);
            message.setCaption("Sorry, 97 or more needed to win!");
        } else {
            message.setCaption("Busted!");
            Wave("\\Busted.wav");
        }
        CenterScoringLabel();
        c("ScoringLabelOutline").setVisible(true);
        message.setVisible(true);
        for (int i = 0; i < 12; ++i) {
            message.setForeColor(message.foreColor() == Colour::Red ? 0 : Colour::Red);
            runtime().refresh();
            Sleep(150);
        }
        message.setVisible(false);
        c("Timer1").setEnabled(false);
    }
    if (!loaded()) return;
    const bool reset = Reset();
    DoEvents();
    if (!loaded()) return;
    if (GameInProgress) EndRound(CurrentRound);
    if (!loaded()) return;
    if (!reset) {
        MsgBox("Unable to reset the board.", MsgButtons::OK, MsgIcon::None, AppTitle);
        runtime().end();
    }
    setMousePointer(Pointer::Default);
}

// The round's score: the Card Total Value times the Time Bonus of the last
// tick, shown as one line in the outline and then counted into the total.
void frmFivestack::TakeScore() {
    try {
        c("Timer1").setEnabled(false);
        if (PlayMusic) StopMusic();
        ShowCards(false);
        // A 32-bit product: the shared TimeBonus that the first second of a
        // round uses may come from another game's settings.
        const int32_t roundScore = CLng(static_cast<double>(CardTotalValue) * TimeBonus);

        Control& roundTotal = c("ScoringLabelRoundTotal");
        Control& message = c("ScoringLabel");
        Control& info = c("ScoringLabelInfo");
        const Control& outline = c("ScoringLabelOutline");
        roundTotal.setCaption("Round " + NumText(CurrentRound - 1) + " Total: ");
        message.setFontSize(18);
        message.setCaption(FormatScore(roundScore));
        FitLabelToText(roundTotal);
        FitLabelToText(message);
        roundTotal.setLeft(outline.left() + outline.width() / 2 - roundTotal.width() / 2 - message.width() / 2);
        roundTotal.setTop(outline.top() + outline.height() / 2 - roundTotal.height());
        message.setLeft(roundTotal.left() + roundTotal.width());
        message.setTop(roundTotal.top());

        info.setForeColor(Colour::Black);
        message.setForeColor(Colour::Black);
        info.setCaption("Card Total Value (" + NumText(CardTotalValue) + ") X Time Bonus (" + NumText(TimeBonus) + ")");
        ShowScoringLabel(true);
        c("ScoringLabelOutline").setVisible(true);
        runtime().refresh();
        Sleep(Scoring.WaitPeriod);
        if (CardTotalValue == kAwesomeValue) {
            info.setCaption("Totally Awesome Score!");
            Wave("\\Applause.wav");
            Sleep(2 * Scoring.WaitPeriod);
        }
        message.setForeColor(Colour::Red);
        if (CountDownScore) {
            CountRoundScore(roundScore);
        } else {
            AddToScore(roundScore);
            ShowScore();
        }
        ShowScoringLabel(false);
    } catch (const RuntimeError& e) {
        MsgBox(e.description(), MsgButtons::OK, MsgIcon::None, AppTitle);
    }
}

// The round's score runs down in ScoringLabel while the total climbs, two
// Time Bonuses a step, a tick sound every third step.
void frmFivestack::CountRoundScore(int32_t roundScore) {
    Control& message = c("ScoringLabel");
    const long long step = 2LL * TimeBonus;
    long long remaining = roundScore;
    int ticks = 0;
    // A counted loop from 1 to the round's score: a negative bonus (a
    // minimum below 0 in the settings file) counts downwards.
    for (long long i = 1; step > 0 ? i <= roundScore : step < 0 && i >= roundScore; i += step) {
        ticks += 1;
        message.setCaption(FormatScore(remaining));
        runtime().refresh();
        remaining -= step;
        AddToScore(step);
        ShowScore();
        if (ticks % 3 == 0) Wave("\\Tick.wav");
        Sleep(10);
    }
    message.setCaption("0");
    Sleep(50);
    message.setForeColor(Colour::Blue);
}

// ---- The next round or the end -----------------------------------------------------

bool frmFivestack::EndRound(int16_t& round) {
    ElapsedSeconds = 0;
    if (CurrentRound == 4 && CurrentScore < Scoring.BonusScore) CurrentRound = 5;
    if (PlayMusic) StopMusic();
    if (round >= 1 && round <= 4) {
        StartRound();
        return loaded();
    }
    GameOver();
    return loaded();
}

void frmFivestack::GameOver() {
    Control& message = c("ScoringLabel");
    if (!QuitRequested) {
        if (!UpdateHighScoreTable(kTable, *this) || !loaded() || !ShowHighScore(kTable, *this, kDefaultTopScore))
            MsgBox("An error occured when attmpting to access the High Score Table. Please close and restart the "
                   "game.",
                   MsgButtons::OK, MsgIcon::Critical, AppTitle);
        if (!loaded()) return;
        message.setCaption(kGameOver);
        message.setForeColor(Colour::Red);
        message.setVisible(true);
        setMousePointer(Pointer::Hourglass);
        CenterScoringLabel();
        runtime().refresh();
        Sleep(2000);
        message.setVisible(false);
        setMousePointer(Pointer::Default);
    }
    GameInProgress = false;
    setCaption(AppTitle + ": Game Over");
    c("lblRound").setVisible(false);
    c("lblRound").setCaption("Round: 1");
    message.setForeColor(Colour::Blue);
    message.setCaption(kGameOver);
    CenterScoringLabel();
    message.setVisible(false);
    c("ScoringLabelOutline").setVisible(false);
    c("lblTimeBonus").setVisible(false);
    CurrentScore = 0;
    CurrentRound = 0;
    c("cmdPlay").setCaption(kPlayCaption);
    c("mnuPlay").setCaption(kPlayCaption);
    for (const char* name : {"mnuCustom", "mnuTime", "mnuDeck"}) c(name).setEnabled(true);
    ElapsedSeconds = 0;
    ClearDial();
    c("Timer1").setEnabled(false);
    ShowSplash(*this, true);
    c("frmScore").setVisible(false);
    c("StatusBar1").setPanel(1, "Game over!  ");
    c("StatusBar1").setPanel(2, "Click on Play to start a new game.  ");
    c("lblCurrentTotal").setForeColor(Colour::Red);
}

// The announcement of the round, then a fresh deck on a cleared board.
void frmFivestack::StartRound() {
    DoEvents();
    if (!loaded()) return;
    if (PlayMusic) StartMusic();
    setCaption(AppTitle + ": Round " + NumText(CurrentRound));
    c("lblRound").setCaption("Round: " + NumText(CurrentRound));
    ShowCards(false);
    Control& message = c("ScoringLabel");
    if (CurrentRound == 4) {
        message.setCaption("Prepare for Bonus Round!");
        Wave("\\HighScore.wav");
    } else {
        message.setCaption("Prepare for Round " + NumText(CurrentRound));
    }
    message.setForeColor(Colour::Blue);
    CenterScoringLabel();
    message.setVisible(true);
    runtime().refresh();
    Sleep(Scoring.WaitPeriod);
    c("ScoringLabelOutline").setVisible(false);
    message.setVisible(false);
    ShowCards(true);

    if (NewDeck()) EnableControls();
    if (Reset()) {
        DeckPosition = 1;
        c("PlayCardPicture").setVisible(true);
    }
    DealFirstCard();
    c("cmdPass").setEnabled(PassesLeft > 0);
    c("cmdPass").setVisible(true);
    c("lblRound").setVisible(true);
    c("cmdPause").setEnabled(true);
    c("mnuPause").setEnabled(true);
    for (int i = 0; i < kColumns; ++i) c("cmdHit", i).setVisible(true);
    for (const char* name : {"lblCurrentRoundScore", "lblTime", "lblTimeBonus", "cmdGiveUp"}) c(name).setVisible(true);
    UpdateCardTotalValue();
    ClearDial();
    c("Timer1").setEnabled(true);
    for (const char* name : {"TimerRectangle", "TimerBevelSide", "TimerBevelBottom"}) c(name).setVisible(true);
    TakingScore = false;
    c("lblCurrentTotal").setForeColor(Colour::Red);
}

// The rounds' half of Reset; the board's half is ClearBoard.
bool frmFivestack::Reset() {
    c("Timer1").setEnabled(false);
    ElapsedSeconds = 0;
    c("ScoringLabel").setFontSize(18);
    c("lblTimeBonus").setCaption(Str(Scoring.TimeBonusMax));
    PassesLeft = Scoring.CardsToPass;
    ClearBoard();
    return true;
}

bool frmFivestack::NewDeck() { return CreateStandardDeck() && ShuffleDeck(); }

// The dial stands empty, and its blink stops.
void frmFivestack::ClearDial() {
    DialSeconds = 0;
    c("Timer2").setEnabled(false);
    DrawTimeDial(0, *this);
}

// ---- The big labels ----------------------------------------------------------------

void frmFivestack::CenterScoringLabel() {
    Control& message = c("ScoringLabel");
    const Control& outline = c("ScoringLabelOutline");
    FitLabelToText(message);
    message.setLeft(outline.left() + (outline.width() - message.width()) / 2);
    message.setTop(outline.top() + (outline.height() - message.height()) / 2);
}

void frmFivestack::CenterScoringInfo() {
    Control& info = c("ScoringLabelInfo");
    const Control& outline = c("ScoringLabelOutline");
    FitLabelToText(info);
    info.setLeft(outline.left() + (outline.width() - info.width()) / 2);
    info.setTop(outline.top() + outline.height() / 2 + 60);
}

void frmFivestack::ShowScoringLabel(bool show) {
    for (const char* name : {"ScoringLabel", "ScoringLabelRoundTotal", "ScoringLabelInfo"}) c(name).setVisible(show);
}

// The Time Bonus stands in its box over the dial.
void frmFivestack::CenterTimeBonus() {
    Control& bonus = c("lblTimeBonus");
    const Control& box = c("TimerRectangle");
    FitLabelToText(bonus);
    bonus.setLeft(box.left() + box.width() / 2 - CLng(bonus.width() / 1.3));
    bonus.setTop(box.top() + box.height() / 2 - CLng(bonus.height() / 1.3));
}

// The score label writes its own number in the score format.
void frmFivestack::lblTotalScore_Change() {
    Control& score = c("lblTotalScore");
    std::string digits;
    for (char ch : score.caption())
        if (ch != ',') digits += ch;
    const std::string formatted = FormatScore(static_cast<long long>(Val(digits)));
    if (score.caption() != formatted) {
        score.setCaption(formatted);
        return;
    }
    CentreLabelIn(*this, "lblTotalScore", "ScoreRectangle");
}

void frmFivestack::ShowScore() { c("lblTotalScore").setCaption(NumText(CurrentScore)); }

}  // namespace ch
