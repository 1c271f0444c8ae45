// SPDX-License-Identifier: GPL-3.0-or-later
// Treyshift's rounds: Play and End Game, pause, the round clock, Take Score
// and the end of a round with its deck completion bonus, the removal of left
// over cards and the speed bonus, then the next round, the bonus round or the
// end of the game.
#include "games/treyshift/frmTreyshift.h"
#include "games/treyshift/modTreyshiftBoard.h"

#include "suite/cards.h"
#include "suite/common.h"
#include "suite/dial.h"
#include "suite/labels.h"
#include "suite/roundsteps.h"
#include "suite/sound.h"
#include "suite/windowsteps.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace treyshift;

// ---- Play, End Game, pause ----------------------------------------------------------

void frmTreyshift::cmdPlay_Click(bool fromMenu) {
    if (TakingScore) return;
    if (c(fromMenu ? "mnuPlay" : "cmdPlay").caption() == kPlayCaption) {
        Play();
        return;
    }
    if (PlayMusic) StopMusic();
    cmdPause_Click();
    if (!AskYesNo(fromMenu ? kRestartQuestion : kQuitQuestion)) {
        cmdPause_Click();
        return;
    }
    EndGame();
}

void frmTreyshift::Play() {
    TakingScore = false;
    CurrentRound = 1;
    CurrentScore = 0;
    InitRound();
    if (!loaded()) return;
    ShowSplash(*this, false);
    Control& bar = c("StatusBar1");
    // Deal writes both panels again at once.
    bar.setPanel(2, "Click on cards to straights or runs!   ");
    bar.setPanel(1, "Make " + FormatScore(Scoring.BonusScore) + " for bonus round.  ");
    c("mnuTime").setEnabled(false);
    c("mnuCustom").setEnabled(false);
    SetPlayCaptions(*this, true);
    for (const char* name : {"cmdTakeScore", "mnuTakeScore", "mnuPause", "cmdPause"}) c(name).setEnabled(true);
    c("lblTime").setCaption("Time: " + NumText(TimeLimit));
    ElapsedSeconds = 0;
    ResetDial();
    c("Timer1").setEnabled(true);
    for (const char* name : {"TimerRectangle", "TimerBevelSide", "TimerBevelBottom"}) c(name).setVisible(true);
    if (!CreateStandardDeck() || !ShuffleDeck()) {
        EndGame();
        return;
    }
    GameInProgress = true;
    Deal();
    ShowControls(true, true);
    ShowCards(true);
    if (PlayMusic) StartMusic();
    c("lblCardCount").setCaption(CardsRemainingText(Board.deckPosition));
}

// A confirmed End Game: the board goes, nothing reaches the table.
void frmTreyshift::EndGame() {
    GameInProgress = false;
    SetResumedControls(*this);
    // The menu entries of pause and Take Score stay as they are.
    for (const char* name : {"cmdPause", "cmdTakeScore"}) c(name).setEnabled(false);
    SetPlayCaptions(*this, false);
    ShowControls(false, false);
    ShowCards(false);
    ResetDial();
    ShowSplash(*this, true);
    for (const char* name : {"mnuTime", "mnuDeck", "mnuCustom"}) c(name).setEnabled(true);
    c("Timer1").setEnabled(false);
    for (const char* name : {"TimerRectangle", "TimerBevelSide", "TimerBevelBottom"}) c(name).setVisible(false);
}

// A paused game shows no cards; the message stands over the field.
void frmTreyshift::cmdPause_Click() {
    if (TakingScore) return;
    PauseOrResume(*this, [this](bool show) {
        if (!show) {
            Control& message = c("lblMessage");
            CentreAcross(message);
            const Control& field = c("FieldRect");
            message.setTop(field.top() + (field.height() - message.height()) / 2);
        }
        ShowCards(show);
    });
}

// ---- The clock and Take Score ------------------------------------------------------------

// Time running out is no forfeit: the round is scored as if taken, with no
// seconds left to pay.
void frmTreyshift::Timer1_Timer() {
    if (!RoundClockRunsOut(*this)) return;
    setMousePointer(Pointer::Hourglass);
    for (int i = 0; i < kUpSlots; ++i) c("UpCard", i).setVisible(false);
    for (const char* name : {"UpCardSelection", "CardStackPicture", "lblCardCount"}) c(name).setVisible(false);
    Control& scoring = c("lblScoring");
    scoring.setCaption(kTimesUp);
    CentreAcross(scoring);
    scoring.setTop(c("UpCardSelection").top());
    scoring.setVisible(true);
    runtime().refresh();
    c("StatusBar1").setPanel(2, "Time has expired!");
    Wave("\\Slide.wav");
    BlinkLabel(scoring, 10, 250);
    cmdTakeScore_Click();
    if (!loaded()) return;
    if (c("lblMessage").caption() != kGameOver) c("lblMessage").setVisible(false);
    setMousePointer(Pointer::Default);
}

// One round end at a time, whatever order the waiting events are served in:
// none starts while a round is being scored, and a click whose wait let the
// clock's last tick end the round asks for nothing more.
void frmTreyshift::cmdTakeScore_Click() {
    if (EndingRound) return;
    const long roundEnds = RoundEnds;
    DoEvents();
    if (!loaded() || EndingRound || RoundEnds != roundEnds) return;
    TakingScore = true;
    EndingRound = true;
    RoundEnds += 1;
    try {
        EndRound();
    } catch (const RuntimeError& error) {
        EndOnError(error);
    }
    EndingRound = false;
    if (!loaded()) return;
    DoEvents();
}

// A score carried past the 32-bit range ("Overflow") is told with the
// platform's message; the game then ends as after its last round, with the
// score made before the step that failed, which is offered to the table.
void frmTreyshift::EndOnError(const RuntimeError& error) {
    if (PlayMusic) StopMusic();
    ShowRunTimeError(error);
    if (!loaded()) return;
    // The removal of left over cards may have stopped with a card outlined.
    RestoreFlushLabel();
    ClearOutlines(Board);
    ShowPlaces();
    for (const char* name : {"lblMessage", "lblScoring", "ScoringLabelOutline"}) c(name).setVisible(false);
    c("lblCurrentScore").setForeColor(Colour::Blue);
    GameOver();
}

// ---- The end of a round -------------------------------------------------------------------

// Deck completion bonus and left over cards (only when the deck is used up),
// speed bonus, then the next round or the end of the game; all of it blocks.
void frmTreyshift::EndRound() {
    Control& scoring = c("lblScoring");
    Control& message = c("lblMessage");
    setMousePointer(Pointer::Hourglass);
    c("Timer1").setEnabled(false);
    scoring.setForeColor(Colour::Blue);
    if (PlayMusic) StopMusic();
    ShowControls(false, true);

    if (Board.fan[2].ShowsEmpty()) {
        for (int i = 0; i < kUpSlots; ++i) c("UpCard", i).setVisible(false);
        c("CardStackPicture").setVisible(false);
        scoring.setCaption("Deck Completion Bonus!");
        message.setCaption(FormatScore(Scoring.DeckValue) + "!");
        AddToScore(Scoring.DeckValue);
        ShowScore();
        Wave("\\Applause.wav");
        CentreAcross(scoring);
        scoring.setTop(c("UpCardSelection").top());
        CentreAcross(message);
        message.setTop(scoring.height() + c("UpCardSelection").top() + 100);
        scoring.setVisible(true);
        message.setVisible(true);
        runtime().refresh();
        Sleep(2000);
        scoring.setVisible(false);
        message.setVisible(false);
        RemoveLeftOverCards();
    }

    ShowCards(false);
    message.setCaption("Speed Bonus!");
    const Control& outline = c("ScoringLabelOutline");
    message.setTop(outline.top() + (outline.height() - message.height()) / 2);
    CenterScoringLabel();
    if (TimeLimit - ElapsedSeconds > 0) {
        TimeBonusOptions options;
        options.messageBesideScoring = true;
        CountTimeBonus(*this, TimeBonus, options);
    }
    message.setVisible(false);

    if (GameEndsAfter(CurrentRound, CurrentScore, Scoring.BonusScore)) {
        GameOver();
        return;
    }
    scoring.setForeColor(Colour::Red);
    CurrentRound += 1;
    scoring.setCaption(PrepareText(CurrentRound));
    CenterScoringLabel();
    scoring.setVisible(true);
    c("ScoringLabelOutline").setVisible(true);
    runtime().refresh();
    Sleep(2000);
    InitRound();
    if (!loaded()) return;
    CreateStandardDeck();
    ShuffleDeck();
    Deal();
    c("ScoringLabelOutline").setVisible(false);
    scoring.setVisible(false);
    ShowControls(true, true);
    ShowCards(true);
    c("lblRound").setCaption("Round: " + NumText(CurrentRound));
    c("lblTime").setCaption("Time: " + NumText(TimeLimit));
    if (PlayMusic) StartMusic();
    setMousePointer(Pointer::Default);
}

// The score goes to the table, the board goes, "Game Over" stands a second,
// then the splash.
void frmTreyshift::GameOver() {
    Control& scoring = c("lblScoring");
    FinishGameSteps steps;
    steps.showCards = [this](bool show) { ShowCards(show); };
    steps.showControls = [this](bool board, bool score) { ShowControls(board, score); };
    steps.disableTakeScoreMenu = false;
    FinishGame(*this, kTable, kRoundsDefault, steps);
    if (!loaded()) return;
    GameInProgress = false;
    ShowCards(false);
    ShowControls(false, false);
    ResetDial();
    c("cmdPlay").setToolTipText(kStartsTip);
    ShowCards(false);
    scoring.setForeColor(Colour::Blue);
    scoring.setCaption(kGameOver);
    CenterScoringLabel();
    scoring.setVisible(true);
    c("ScoringLabelOutline").setVisible(true);
    runtime().refresh();
    Sleep(1000);
    scoring.setVisible(false);
    c("ScoringLabelOutline").setVisible(false);
    ShowSplash(*this, true);
    runtime().refresh();
    setMousePointer(Pointer::Default);
}

// After the deck is used up every card left in the field and in storage
// costs PenaltyValue, taken off one at a time, the lowest field card first.
void frmTreyshift::RemoveLeftOverCards() {
    bool any = false;
    for (const Slot& slot : Board.field) any = any || slot.HasCard();
    for (const Slot& slot : Board.storage) any = any || slot.HasCard();
    if (!any) return;
    Control& scoring = c("lblScoring");
    Control& message = c("lblMessage");
    scoring.setCaption("Removing left over cards");
    message.setCaption(PenaltyText(Scoring.PenaltyValue));
    CentreAcross(scoring);
    CentreAcross(message);
    scoring.setVisible(true);
    message.setVisible(true);
    runtime().refresh();
    Sleep(1000);

    Control& flush = c("lblFlush");
    flush.setCaption(PenaltyText(Scoring.PenaltyValue));
    flush.setBackStyle(0);
    flush.setFontSize(10);
    FitLabelToText(flush);
    // The board keeps its cards; only the controls show them taken off.
    const auto remove = [&](Slot& slot, const char* cardName, int i, bool keepsSlot) {
        Control& card = c(cardName, i);
        slot.outlined = true;
        ShowPlaces();
        AddToScore(-static_cast<long long>(Scoring.PenaltyValue));
        ShowScore();
        flush.setLeft(card.left() + card.width() / 2 - flush.width() / 2);
        flush.setVisible(true);
        Wave("\\Click.wav");
        runtime().refresh();
        Sleep(500);
        slot.outlined = false;
        if (keepsSlot) {
            ShowPlaces();
            card.setBorderStyle(0);
            card.setPicture(ImageList2().indexOf("EMPTY"));
        } else {
            slot.visible = false;
            ShowPlaces();
        }
    };
    flush.setTop(c("PlayCardSelection", 0).top() - 250);
    for (int i = kFieldSlots - 1; i >= 0; --i) {
        Slot& slot = Board.field[static_cast<size_t>(i)];
        if (slot.HasCard()) remove(slot, "PlayCard", i, i < 4);
    }
    flush.setTop(c("TempCardSelection", 0).top() - 250);
    for (int i = kTempSlots - 1; i >= 0; --i) {
        Slot& slot = Board.storage[static_cast<size_t>(i)];
        if (slot.HasCard()) remove(slot, "TempCard", i, true);
    }

    RestoreFlushLabel();
    message.setVisible(false);
    scoring.setVisible(false);
}

// The flush word as the removal of left over cards found it: hidden.
void frmTreyshift::RestoreFlushLabel() {
    Control& flush = c("lblFlush");
    flush.setCaption("Flush!");
    flush.setBackStyle(1);
    flush.setFontSize(8);
    FitLabelToText(flush);
    flush.setVisible(false);
}

// A new round's board: nothing dealt, nothing selected. The trip and run
// counts start again, but their boxes keep the last round's figures until
// the first Trip or Run of this round.
void frmTreyshift::InitRound() {
    DoEvents();
    if (!loaded()) return;
    TakingScore = false;
    ClearBoard(Board);
    ShowBoard();
    ElapsedSeconds = 0;
    TripCount = 0;
    RunCount = 0;
    c("lblRound").setCaption("Round: " + NumText(CurrentRound));
    c("lblCardCount").setCaption(CardsRemainingText(Board.deckPosition));
    ShowScore();
    CentreIn("lblScoreRuns", "RunRectangle");
    CentreIn("lblScoreTrips", "TripsRectangle");
    c("lblTrips").setCaption("Trips (" + NumText(Scoring.TripValue) + "):");
    c("lblRuns").setCaption("Runs (" + NumText(Scoring.RunValue) + "):");
}

// ---- Placing and showing ------------------------------------------------------------------

void frmTreyshift::ResetDial() {
    InitTimeDial(*this);
    DialSeconds = 0;
}

void frmTreyshift::CenterScoringLabel() {
    Control& scoring = c("lblScoring");
    const Control& outline = c("ScoringLabelOutline");
    scoring.setLeft(outline.left() + (outline.width() - scoring.width()) / 2);
    scoring.setTop(outline.top() + (outline.height() - scoring.height()) / 2);
}

void frmTreyshift::CentreAcross(Control& label) { label.setLeft((ScaleWidth() - label.width()) / 2); }

// The counters stay inside their boxes; the captions above them may run over.
void frmTreyshift::CentreIn(const char* label, const char* rectangle) {
    const std::string name = label;
    CentreLabelIn(*this, label, rectangle, name != "lblTrips" && name != "lblRuns");
}

void frmTreyshift::FitLabel(const char* label) { FitLabelToText(c(label)); }

void frmTreyshift::ShowScore() { c("lblCurrentScore").setCaption(FormatScore(CurrentScore)); }

// The inner width of the window, inside its borders.
int frmTreyshift::ScaleWidth() const { return width() - 120; }

}  // namespace ch
