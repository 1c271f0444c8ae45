// SPDX-License-Identifier: GPL-3.0-or-later
// Treyshift's board: the deal and the deck, the clicks in the three zones,
// the moves between them, the column scoring and what the board shows.
// The moves are decided on the board (modTreyshiftBoard.h); the controls
// show it after each click.
#include "games/treyshift/frmTreyshift.h"
#include "games/treyshift/modTreyshiftBoard.h"

#include "suite/cards.h"
#include "suite/common.h"
#include "suite/dial.h"
#include "suite/sound.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace treyshift;

namespace {
int EmptyPicture() { return ImageList2().indexOf("EMPTY"); }

int PictureOf(const Slot& slot) {
    if (slot.HasCard()) return ImageList2().indexOf(CardKey(slot.card));
    return slot.showsEmpty ? EmptyPicture() : 0;
}

void ShowFace(Control& control, const Slot& slot) {
    control.setBorderStyle(slot.framed ? 1 : 0);
    control.setPicture(PictureOf(slot));
}
}  // namespace

// ---- The board on the controls ---------------------------------------------------------

void frmTreyshift::ShowBoard() {
    for (int i = 0; i < kUpSlots; ++i) ShowFace(c("UpCard", i), Board.fan[static_cast<size_t>(i)]);
    for (int i = 0; i < kTempSlots; ++i) ShowFace(c("TempCard", i), Board.storage[static_cast<size_t>(i)]);
    for (int i = 0; i < kFieldSlots; ++i) ShowFace(c("PlayCard", i), Board.field[static_cast<size_t>(i)]);
    ShowPlaces();
}

// What is visible of the field and where the selection's outlines stand.
void frmTreyshift::ShowPlaces() {
    for (int i = 0; i < kFieldSlots; ++i) {
        const Slot& slot = Board.field[static_cast<size_t>(i)];
        c("PlayCard", i).setVisible(slot.visible);
        c("PlayCardSelection", i).setVisible(slot.outlined);
    }
    for (int i = 0; i < kTempSlots; ++i)
        c("TempCardSelection", i).setVisible(Board.storage[static_cast<size_t>(i)].outlined);
    c("UpCardSelection").setVisible(Board.fanOutlined);
}

// The board after a click; a card taken from the fan turns the deck on.
void frmTreyshift::ShowStep(const Step& step) {
    ShowBoard();
    if (step.outcome == Outcome::Moved && Board.sourceZone == ZoneDeck) {
        c("CardStackPicture").setPicture(ImageList2().indexOf(StackKey(Board.deckPosition)));
        c("lblCardCount").setCaption(CardsRemainingText(Board.deckPosition));
    }
    Wave(step.sound);
}

// ---- Clicks ------------------------------------------------------------------------

void frmTreyshift::UpCard_Click(int index) {
    if (TakingScore) return;
    ShowStep(ClickFan(Board, index));
}

void frmTreyshift::CardStackPicture_Click() { Wave("\\Chord.wav"); }

void frmTreyshift::TempCard_Click(int index) {
    ShowStep(ClickStorage(Board, index, Deck));
    StuckTest();
}

// Every column whose bottom slot shows a picture is tested after a card is
// placed, or refused by a full column.
void frmTreyshift::PlayCard_Click(int index) {
    const Step step = ClickField(Board, index, Deck);
    ShowStep(step);
    if (step.outcome == Outcome::Moved || step.outcome == Outcome::Kept || step.outcome == Outcome::Full) {
        try {
            for (int column = 0; column < kColumns; ++column)
                if (BottomFilled(Board, column)) CheckColumn(column);
        } catch (const RuntimeError& error) {
            EndOnError(error);
            return;
        }
    }
    if (step.slot > 7) StuckTest();
}

// A full storage over four full columns is the one position taken as stuck.
void frmTreyshift::StuckTest() {
    if (!IsStuck(Board)) return;
    NoMovesLeft();
    cmdTakeScore_Click();
}

// ---- The deal ----------------------------------------------------------------------------

void frmTreyshift::Deal() {
    DealBoard(Board, Deck);
    ShowBoard();
    c("CardStackPicture").setPicture(ImageList2().indexOf("FULL"));
    ResetDial();
    c("Timer1").setEnabled(true);
    Control& bar = c("StatusBar1");
    bar.setPanel(1, "Make " + FormatScore(Scoring.BonusScore) + " for Bonus Round!   ");
    bar.setPanel(2, "Create runs and triples by moving available cards!   ");
}

// ---- What the board shows ---------------------------------------------------------------

// The landing slots are left as they are, and so is the deck stack: only the
// clock running out, a stuck position and a used up deck hide the stack, and
// from then on it stays hidden while the window is open.
void frmTreyshift::ShowCards(bool show) {
    for (int i = 0; i < 3; ++i) {
        c("TempCard", i).setVisible(show);
        c("UpCard", i).setVisible(show);
    }
    ShowCardsOnBoard(Board, show);
    ShowPlaces();
}

void frmTreyshift::ShowControls(bool showBoard, bool showScore) {
    for (const char* name : {"lblScore", "ScoreRectangle", "ScoreBevelSide", "ScoreBevelBottom", "lblCurrentScore"})
        c(name).setVisible(showScore);
    for (const char* name :
         {"lblHighScore", "lblCardCount", "lblTime", "Surface", "TimerBevelSide", "TimerRectangle", "TimerBevelBottom",
          "lblRound", "lblTrips", "lblScoreTrips", "TripsRectangle", "TripsBevelSide", "TripsBevelBottom", "lblRuns",
          "lblScoreRuns", "RunRectangle", "RunBevelSide", "RunBevelBottom", "lblTemp", "lblFieldCards", "FieldRect"})
        c(name).setVisible(showBoard);
}

void frmTreyshift::NoMovesLeft() {
    setMousePointer(Pointer::Hourglass);
    for (int i = 0; i < kUpSlots; ++i) c("UpCard", i).setVisible(false);
    c("CardStackPicture").setVisible(false);
    ShowControls(false, true);
    Control& scoring = c("lblScoring");
    scoring.setCaption("No more legal moves left!");
    Wave("\\Slide.wav");
    CentreAcross(scoring);
    scoring.setTop(c("FieldRect").top());
    scoring.setVisible(true);
    runtime().refresh();
    Sleep(2000);
}

// ---- Column scoring -------------------------------------------------------------------------

// A full column is tested top to bottom: a Trip, or a Run (a flush Run pays
// its flush first). A column that scores empties itself; one that doesn't stays.
void frmTreyshift::CheckColumn(int column) {
    const auto card = [this](int i) { return Board.field[static_cast<size_t>(i)].card; };
    const std::string top = card(column), middle = card(column + 4), bottom = card(column + 8);
    const ColumnKind kind = ScoreColumn(top, middle, bottom);
    const ColumnAward award = AwardFor(kind, Scoring);
    if (kind == ColumnKind::None) return;
    if (kind == ColumnKind::Trip) {
        ClearColumn(column);
        TripCount += 1;
        c("lblScoreTrips").setCaption(NumText(TripCount));
        AddToScore(award.points);
        ShowScore();
        Wave(award.sound);
        return;
    }
    bool isFlush = false;
    CheckFlush(column, isFlush);
    ClearColumn(column);
    if (isFlush) {
        ShowFlushMessage(column);
        Wave(award.sound);
        AddToScore(award.flushPoints);
        ShowScore();
        c("lblFlush").setVisible(false);
    } else {
        Wave(award.sound);
    }
    RunCount += 1;
    c("lblScoreRuns").setCaption(NumText(RunCount));
    AddToScore(award.points);
    ShowScore();
}

void frmTreyshift::CheckFlush(int column, bool& flush) {
    const auto card = [this](int i) { return Board.field[static_cast<size_t>(i)].card; };
    flush = IsFlush(card(column), card(column + 4), card(column + 8));
}

void frmTreyshift::ClearColumn(int column) {
    treyshift::ClearColumn(Board, column);
    ShowBoard();
}

// The word stands on the emptied column for a quarter of a second.
void frmTreyshift::ShowFlushMessage(int column) {
    runtime().refresh();
    Control& flush = c("lblFlush");
    const Control& card = c("PlayCard", column);
    flush.setLeft(card.left() + card.width() / 2 - flush.width() / 2);
    flush.setTop(card.top() + card.height() / 2 - flush.height() / 2);
    flush.setVisible(true);
    runtime().refresh();
    Sleep(250);
}

}  // namespace ch
