// SPDX-License-Identifier: GPL-3.0-or-later
// The Blackrush rounds: Play and End Game, pause, the round clock, the 21
// Counter and its flash, the end of a round with its payouts, and the next
// round, the bonus round or the end of the game.
#include "games/blackrush/frmBlackrush.h"
#include "suite/cards.h"
#include "suite/common.h"
#include "suite/dial.h"
#include "suite/highscores.h"
#include "suite/roundsteps.h"
#include "suite/sound.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace blackrush;

namespace {
const char* const kEndGameHere = "&End game";
const char* const kPauseHere = "P&ause";
const char* const kGoalHint = "Create columns of 21 to increase bonus score!";
}  // namespace

// ---- Play and End Game -------------------------------------------------------------------

void frmBlackrush::cmdPlay_Click() {
    if (c("cmdPlay").caption() == kPlayCaption)
        Play();
    else
        EndGameQuestion();
}

void frmBlackrush::Play() {
    TakingScore = false;
    TwentyOnes = 0;
    c("lbl21s").setCaption("0");
    c("lblBonus").setCaption("0");
    CurrentRound = 1;
    c("lblRound").setCaption("Round: 1");
    CurrentScore = 0;
    ShowScore();
    PassesLeft = Scoring.CardsToPass;
    // A new game is not quit: its score goes to the table. The last game's
    // "Game Over" stays in ScoringLabelInfo until the next message, so the
    // rules and the about box, which read it, don't pause this game's first
    // round.
    QuitRequested = false;
    ShowSplash(*this, false);
    GameInProgress = true;
    SetPlayCaptions(*this, true, kEndGameHere);
    for (const char* name : {"cmdPause", "mnuPause", "cmdTakeScore", "mnuTakeScore"}) c(name).setEnabled(true);
    for (const char* name : {"mnuUserOptions", "mnuTimeLimit"}) c(name).setEnabled(false);
    c("cmdPass").setEnabled(Scoring.CardsToPass != 0);
    EnableHitButtons(true);
    c("StatusBar1").setPanel(2, kGoalHint);
    ShowBonusGoal("");
    for (int i = 0; i < kColumns; ++i) {
        Control& place = ColumnImage(i, 0);
        place.setPicture(ImageList2().indexOf("EMPTY"));
        place.setVisible(true);
    }
    if (!CreateStandardDeck() || !ShuffleDeck()) return;
    ShowGameBoard(true);
    Control& time = c("lblTime");
    time.setCaption("Time: " + NumText(TimeLimit));
    time.setVisible(true);
    c("Timer1").setEnabled(true);
    c("Surface").setVisible(true);
    ClearDial();
    ElapsedSeconds = 0;
    DeckPosition = 0;
    // The pile keeps its last picture until the first card is laid or the
    // next round deals; the next card keeps its border style.
    ShowCard(c("NextCardPicture"), Deck.at(static_cast<size_t>(DeckPosition + 1)));
    c("lblCardsUsedCount").setCaption(NumText(DeckPosition));
    DeckPosition += 1;
    if (PlayMusic) StartMusic();
}

// The clock runs on while the question stands.
void frmBlackrush::EndGameQuestion() {
    if (PlayMusic) StopMusic();
    if (MsgBox("You have a game in progress. Are you sure you want to quit?", MsgButtons::YesNo, MsgIcon::Question,
               AppTitle) != MsgAnswer::Yes) {
        if (PlayMusic && loaded()) StartMusic();
        return;
    }
    if (!loaded() || !GameInProgress) return;
    SetPlayCaptions(*this, false);
    for (const char* name : {"cmdPause", "mnuPause"}) c(name).setEnabled(false);
    c("lblTime").setCaption("Time:");
    CurrentRound = 5;
    QuitRequested = true;
    NextRound();
}

// ---- Pause --------------------------------------------------------------------------------

void frmBlackrush::PauseGame() {
    Control& pause = c("cmdPause");
    if (pause.caption() == kPauseHere) {
        EnablePlayControls(false);
        pause.setCaption(kResumeCaption);
        c("mnuPause").setCaption(kResumeCaption);
        pause.setToolTipText("Resumes the current game");
        c("Timer1").setEnabled(false);
        CounterWasRunning = c("Timer3").enabled();
        c("Timer3").setEnabled(false);
        ShowCards(false);
        ShowGameBoard(false);
        ShowMessage(kGamePaused, true);
        if (PlayMusic) StopMusic();
        return;
    }
    EnablePlayControls(true);
    pause.setCaption(kPauseHere);
    c("mnuPause").setCaption(kPauseHere);
    pause.setToolTipText("Pauses the game in progress");
    c("Timer1").setEnabled(true);
    if (CounterWasRunning) c("Timer3").setEnabled(true);
    ShowCards(true);
    ShowGameBoard(true);
    c("ScoringLabelInfo").setVisible(false);
    c("ScoringLabelOutline").setVisible(false);
    c("ScoringLabelInfo").setCaption("");
    if (PlayMusic) StartMusic();
}

// ---- The clocks ---------------------------------------------------------------------------

void frmBlackrush::Timer1_Timer() {
    if (!RoundClockRunsOut(*this)) return;
    c("Timer3").setEnabled(false);
    ClearColumns();
    ShowMessage(kTimesUp, true);
    c("StatusBar1").setPanel(2, "Time has expired!");
    c("lblTime").setCaption("Time:");
    Control& info = c("ScoringLabelInfo");
    BlinkLabel(info, 10, 250);
    cmdTakeScore_Click();
    if (loaded() && info.caption() != kGameOver) info.setVisible(false);
}

// The 21 Counter: a tick a step up the bar, the flash from the middle, and
// at the top the bonus falls back to one step and the bar starts again.
void frmBlackrush::Timer3_Timer() {
    Control& bar = c("ProgressBar1");
    const CounterStep step = AdvanceCounter(bar.value(), bar.minValue(), bar.maxValue());
    bar.setValue(step.value);
    if (step.startFlash) c("Timer5").setEnabled(true);
    if (!step.expired) return;
    c("Timer5").setEnabled(false);
    c("lblTwentyoneTime").setForeColor(Colour::Blue);
    Control& bonus = c("lblBonus");
    bonus.setCaption(NumText(Scoring.TwentyOneBonusValue));
    bonus.setForeColor(Colour::Red);
    runtime().refresh();
    Pause(250);
    bonus.setForeColor(Colour::Blue);
}

void frmBlackrush::Timer5_Timer() {
    Control& label = c("lblTwentyoneTime");
    label.setForeColor(label.foreColor() != Colour::Red ? Colour::Red : 0);
}

// ---- The end of a round -------------------------------------------------------------------

// Cards used, then the 21s times the bonus as it stands; the clock runs on.
// A count past the score's 32-bit range ends the game.
void frmBlackrush::cmdTakeScore_Click() {
    if (TakingScore) return;
    EndingOnError([this] { TakeScore(); }, [this](const RuntimeError& error) { EndOnError(error); });
}

// The platform's message for the error, then the game ends with the score
// made so far, through the end of the last round: the count's labels as
// they stand between rounds, the score offered to the table, Game Over.
void frmBlackrush::EndOnError(const RuntimeError& error) {
    ShowRunTimeError(error);
    if (!loaded()) return;
    for (const char* name : {"lbl21Bonus", "lblTwentyOnes", "lbl21s", "lblBonus", "lblCardsUsed", "lblCardsUsedCount"})
        c(name).setForeColor(Colour::Blue);
    for (const char* name : {"lblRoundScore", "lblRoundScoreCount", "lblBust", "lblFiveCards"}) c(name).setVisible(false);
    c("ProgressBar1").setVisible(true);
    c("lblTwentyoneTime").setVisible(true);
    c("lbl21s").setCaption("0");
    c("lblBonus").setCaption("0");
    TwentyOnes = 0;
    CurrentRound = 5;
    NextRound();
    if (loaded()) setMousePointer(Pointer::Default);
}

void frmBlackrush::TakeScore() {
    TakingScore = true;
    setMousePointer(Pointer::Hourglass);
    Control& cardsUsed = c("lblCardsUsed");
    Control& cardsUsedCount = c("lblCardsUsedCount");
    const int count = CInt(Val(cardsUsedCount.caption()));

    c("ProgressBar1").setVisible(false);
    c("lblTwentyoneTime").setVisible(false);
    EnablePlayControls(false);
    for (const char* name : {"cmdPause", "mnuPause"}) c(name).setEnabled(false);
    if (PlayMusic) StopMusic();
    cardsUsed.setForeColor(Colour::Red);
    cardsUsedCount.setForeColor(Colour::Red);

    if (CountDownScore) {
        for (int i = 0; i < count; ++i) {
            Pause(75);
            AddToScore(Scoring.CardsUsedBonusValue);
            ShowScore();
            Wave("\\CountScore.wav");
            cardsUsedCount.setCaption(NumText(CInt(Val(cardsUsedCount.caption())) - 1));
            runtime().refresh();
        }
    } else {
        AddToScore(static_cast<long long>(count) * Scoring.CardsUsedBonusValue);
        ShowScore();
        cardsUsedCount.setCaption("0");
        Pause(500);
    }
    runtime().refresh();
    cardsUsed.setForeColor(Colour::Blue);
    cardsUsedCount.setForeColor(Colour::Blue);
    runtime().refresh();

    Control& twentyOnes = c("lbl21s");
    Control& bonus = c("lblBonus");
    Control& roundScore = c("lblRoundScore");
    Control& roundScoreCount = c("lblRoundScoreCount");
    const char* const fourLabels[] = {"lbl21Bonus", "lblTwentyOnes", "lbl21s", "lblBonus"};
    if (twentyOnes.caption() != "0") {
        for (const char* name : fourLabels) c(name).setForeColor(Colour::Red);
        const long long made = CLng(Val(twentyOnes.caption()));
        const long long value = static_cast<long long>(Val(bonus.caption()));
        const long long payout = made * value;
        roundScore.setCaption(RoundScoreText(made, value));
        roundScoreCount.setCaption(NumText(payout));
        roundScore.setVisible(true);
        roundScoreCount.setVisible(true);
        runtime().refresh();
        Pause(750);
        const long long step = Scoring.TwentyOneBonusValue;
        if (CountDownScore) {
            // From 1 to the payout in steps of the bonus value, downwards for
            // a negative one; a zero value has nothing to count.
            for (long long i = 1; step != 0 && (step > 0 ? i <= payout : i >= payout); i += step) {
                Pause(75);
                AddToScore(step);
                ShowScore();
                roundScoreCount.setCaption(NumText(static_cast<long long>(Val(roundScoreCount.caption())) - step));
                Wave("\\CountScore.wav");
                runtime().refresh();
            }
        } else {
            AddToScore(payout);
            ShowScore();
            Pause(500);
        }
        for (const char* name : fourLabels) c(name).setForeColor(Colour::Blue);
        roundScore.setVisible(false);
        roundScoreCount.setVisible(false);
    }

    twentyOnes.setCaption("0");
    bonus.setCaption("0");
    TwentyOnes = 0;
    ClearDial();
    for (const char* name : {"TimerRectangle", "TimerBevelSide", "TimerBevelBottom"}) c(name).setVisible(true);
    c("ProgressBar1").setVisible(true);
    c("lblTwentyoneTime").setVisible(true);

    CurrentRound += 1;
    ElapsedSeconds = 0;
    c("lblRound").setCaption("Round: " + NumText(CurrentRound));
    NextRound();
    if (!loaded()) return;
    if (PlayMusic && GameInProgress) StartMusic();
    setMousePointer(Pointer::Default);
}

// The next round, the bonus round for a score above BonusScore after the
// third, or the end of the game.
void frmBlackrush::NextRound() {
    DoEvents();
    if (!loaded()) return;
    if (PlayMusic) StopMusic();
    ClearColumns();
    for (int i = 0; i < kColumns; ++i) {
        c("ColumnTotal", i).setCaption("0");
        c("ColumnSoft", i).setCaption("");
    }
    c("Timer3").setEnabled(false);
    StopCounterBack();
    c("StatusBar1").setPanel(2, std::string(kGoalHint) + "   ");
    ColumnCards.fill(0);

    const bool bonusRound = EarnsBonusRound(CurrentRound, CurrentScore, Scoring.BonusScore);
    Control& info = c("ScoringLabelInfo");
    if (CurrentRound >= 4 && !bonusRound) {
        c("Timer1").setEnabled(false);
        c("Timer3").setEnabled(false);
        if (!QuitRequested) {
            FinishGame(*this, kTableName, kTableTopScore, {nullptr, nullptr, false});
            if (!loaded()) return;
        }
        info.setCaption(kGameOver);
        info.setForeColor(Colour::Red);
        setMousePointer(Pointer::Hourglass);
        CentreIn(info, c("ScoringLabelOutline"));
        info.setVisible(true);
        runtime().refresh();
        Pause(2000);
        info.setVisible(false);
        setMousePointer(Pointer::Default);
        DeckPosition = 0;
        c("lblRound").setCaption(kGameOver);
        GameInProgress = false;
        // The captions only: the tool tip changes with a confirmed End Game.
        c("cmdPlay").setCaption(kPlayCaption);
        c("mnuPlay").setCaption(kPlayCaption);
        ShowMessage(kGameOver, false);
        c("frameScoreInfo").setVisible(false);
        ShowSplash(*this, true);
        ClearDial();
        ShowGameBoard(false);
        for (const char* name : {"cmdPause", "mnuPause"}) c(name).setEnabled(false);
        c("lblTime").setCaption("Time:");
        for (const char* name : {"mnuUserOptions", "mnuTimeLimit"}) c(name).setEnabled(true);
        ElapsedSeconds = 0;
    } else {
        if (PlayMusic) StartMusic();
        ShuffleDeck();
        c("PlayCardPicture").setPicture(ImageList2().indexOf("FULL"));
        if (bonusRound) {
            Wave("\\HighScore.wav");
            ShowMessage("Prepare for Bonus Round", false);
        } else {
            ShowMessage("Prepare for Round " + NumText(CurrentRound), false);
        }
        if (!loaded()) return;
        c("Timer1").setEnabled(true);
        for (int i = 0; i < kColumns; ++i) {
            Control& place = ColumnImage(i, 0);
            place.setPicture(ImageList2().indexOf("EMPTY"));
            place.setVisible(true);
        }
        DeckPosition = 1;
        ShowCard(c("NextCardPicture"), Deck.at(1));
        if (Scoring.CardsToPass != 0) {
            c("cmdPass").setEnabled(true);
            PassesLeft = Scoring.CardsToPass;
        }
    }

    DoEvents();
    if (!loaded()) return;
    TakingScore = false;
    EnablePlayControls(true);
    if (info.caption() == kGameOver) {
        for (const char* name : {"cmdPause", "mnuPause"}) c(name).setEnabled(false);
        c("StatusBar1").setPanel(1, "Click on Play to start a new game  ");
        c("StatusBar1").setPanel(2, "Game Over ");
        EnableHitButtons(false);
        c("NextCardPicture").setBorderStyle(0);
    } else {
        for (const char* name : {"cmdPause", "mnuPause"}) c(name).setEnabled(true);
    }
}

}  // namespace ch
