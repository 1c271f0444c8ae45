// SPDX-License-Identifier: GPL-3.0-or-later
// Treyshift's board: the deal and the deck, the clicks in the three zones,
// the moves between them, the column scoring and what the board shows.
// Much of the board's state is read back from its images: a slot shows a
// card, shows the "EMPTY" picture, or has no picture at all (the transparent
// landing slot under the last card of a column).
#include "games/treyshift/frmTreyshift.h"

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
}  // namespace

bool frmTreyshift::ShowsEmpty(const Control& slot) const { return slot.picture() == EmptyPicture(); }

bool frmTreyshift::HasCard(const Control& slot) const { return slot.picture() != 0 && !ShowsEmpty(slot); }

void frmTreyshift::ShowCard(Control& slot, const std::string& code) {
    slot.setPicture(ImageList2().indexOf(CardKey(code)));
}

void frmTreyshift::ShowEmpty(Control& slot) {
    slot.setBorderStyle(0);
    slot.setPicture(EmptyPicture());
}

// ---- Clicks ------------------------------------------------------------------------

void frmTreyshift::UpCard_Click(int index) {
    if (TakingScore) return;
    if (index != 2) {
        Wave("\\Chord.wav");
    } else if (Selected && SourceZone == ZoneDeck) {
        CancelSelection();
        c("UpCardSelection").setVisible(false);
        Wave("\\Markq.wav");
    } else if (Selected) {
        Wave("\\Chord.wav");
    } else {
        // No test that a card is there: past the deck the empty card is taken too.
        SourceIndex = 2;
        SourceZone = ZoneDeck;
        Selected = true;
        c("UpCardSelection").setVisible(true);
        Wave("\\Click.wav");
    }
}

void frmTreyshift::CardStackPicture_Click() { Wave("\\Chord.wav"); }

void frmTreyshift::TempCard_Click(int index) {
    Control& slot = c("TempCard", index);
    if (Selected) {
        if (ShowsEmpty(slot)) {
            MoveCard(index, ZoneTemp);
        } else if (SourceIndex == index && SourceZone == ZoneTemp) {
            CancelSelection();
            c("TempCardSelection", index).setVisible(false);
            Wave("\\Markq.wav");
        } else {
            Wave("\\Chord.wav");
        }
    } else if (ShowsEmpty(slot)) {
        Wave("\\Chord.wav");
    } else {
        SourceZone = ZoneTemp;
        SourceIndex = static_cast<int16_t>(index);
        Selected = true;
        c("TempCardSelection", index).setVisible(true);
        Wave("\\Click.wav");
    }
    StuckTest();
}

// A click anywhere on a column acts on its lowest visible slot.
void frmTreyshift::PlayCard_Click(int index) {
    for (int pass = 0; pass < 2; ++pass)
        if (index < 8 && c("PlayCard", index + 4).visible()) index += 4;

    if (!Selected) {
        if (ShowsEmpty(c("PlayCard", index))) {
            Wave("\\Chord.wav");
        } else {
            // The landing slot goes while a card of its column is selected.
            for (int pass = 0; pass < 2; ++pass) {
                Control& slot = c("PlayCard", index);
                if (slot.picture() != 0 || index < 4) break;
                slot.setVisible(false);
                index -= 4;
            }
            if (index >= 8 || c("PlayCard", index + 4).picture() == 0) {
                SourceIndex = static_cast<int16_t>(index);
                SourceZone = ZoneField;
                Selected = true;
                c("PlayCardSelection", index).setVisible(true);
                Wave("\\Click.wav");
            } else {
                Wave("\\Chord.wav");
            }
        }
    } else if (SourceIndex == index && SourceZone == ZoneField) {
        CancelSelection();
        c("PlayCardSelection", index).setVisible(false);
        Wave("\\Markq.wav");
    } else {
        if (index <= 3) {
            MoveCard(index, ZoneField);
            c("PlayCard", index).setVisible(true);
        } else if (index <= 7) {
            MoveCard(index, ZoneField);
            c("PlayCard", index >= 8 ? index : index + 4).setVisible(true);
        } else if (c("PlayCard", index).picture() == 0) {
            MoveCard(index, ZoneField);
        } else {
            Wave("\\Chord.wav");  // the column is full
        }
        try {
            for (int column = 0; column < kColumns; ++column)
                if (c("PlayCard", column + 8).picture() != 0) CheckColumn(column);
        } catch (const RuntimeError& error) {
            EndOnError(error);
            return;
        }
    }
    if (index > 7) StuckTest();
}

void frmTreyshift::CancelSelection() {
    SourceIndex = -1;
    SourceZone = -1;
    Selected = false;
}

// A full storage over four full columns is the one position taken as stuck.
void frmTreyshift::StuckTest() {
    if (!IsStuck(TempCards, FieldCards)) return;
    NoMovesLeft();
    cmdTakeScore_Click();
}

// ---- Moves -----------------------------------------------------------------------------

// Once the empty card past the deck has been taken nothing moves any more;
// only the selection ends.
void frmTreyshift::MoveCard(int& DestIndex, int16_t DestZone) {
    if (DeckPosition < kDeckPositionSpent) {
        if (DestZone == ZoneField)
            MoveToField(DestIndex);
        else
            MoveToTemp(DestIndex);
    }
    Selected = false;
    if (SourceZone == ZoneDeck) c("UpCardSelection").setVisible(false);
}

// No test refuses a move from one column to another; a move within a column
// can't be made, since selecting hid the column's landing slot.
void frmTreyshift::MoveToField(int& d) {
    if (d >= 4 && ShowsEmpty(c("PlayCard", d - 4))) d -= 4;
    if (HasCard(c("PlayCard", d))) d += 4;
    Control& dest = c("PlayCard", d);
    const size_t di = static_cast<size_t>(d);
    const size_t si = static_cast<size_t>(SourceIndex);
    if (SourceZone == ZoneDeck) {
        dest.setBorderStyle(1);
        dest.setPicture(c("UpCard", 2).picture());
        FieldCards[di] = UpCards[2];
        Wave("\\Click.wav");
        if (d < 8) c("PlayCard", d + 4).setVisible(true);
        UpDateDeck();
    } else if (SourceZone == ZoneTemp) {
        Control& source = c("TempCard", SourceIndex);
        FieldCards[di] = TempCards[si];
        TempCards[si].clear();
        dest.setBorderStyle(1);
        dest.setPicture(source.picture());
        ShowEmpty(source);
        c("TempCardSelection", SourceIndex).setVisible(false);
        Wave("\\Click.wav");
    } else if (SourceZone == ZoneField) {
        Control& source = c("PlayCard", SourceIndex);
        FieldCards[di] = FieldCards[si];
        FieldCards[si].clear();
        dest.setPicture(source.picture());
        source.setBorderStyle(0);
        c("PlayCardSelection", SourceIndex).setVisible(false);
        dest.setBorderStyle(1);
        ClearFieldSource(SourceIndex);
        Wave("\\Click.wav");
    }
}

void frmTreyshift::MoveToTemp(int d) {
    Control& dest = c("TempCard", d);
    const size_t di = static_cast<size_t>(d);
    const size_t si = static_cast<size_t>(SourceIndex);
    if (SourceZone == ZoneDeck) {
        TempCards[di] = UpCards[2];
        dest.setBorderStyle(1);
        dest.setPicture(c("UpCard", 2).picture());
        Wave("\\Click.wav");
        UpDateDeck();
    } else if (SourceZone == ZoneTemp) {
        Control& source = c("TempCard", SourceIndex);
        TempCards[di] = TempCards[si];
        TempCards[si].clear();
        dest.setPicture(source.picture());
        ShowEmpty(source);
        dest.setBorderStyle(1);
        c("TempCardSelection", SourceIndex).setVisible(false);
        Wave("\\Click.wav");
    } else if (SourceZone == ZoneField) {
        Control& source = c("PlayCard", SourceIndex);
        TempCards[di] = FieldCards[si];
        FieldCards[si].clear();
        dest.setPicture(source.picture());
        dest.setBorderStyle(1);
        source.setBorderStyle(0);
        c("PlayCardSelection", SourceIndex).setVisible(false);
        ClearFieldSource(SourceIndex);
        Wave("\\Click.wav");
    }
}

// A card taken from a column: the top slot shows "EMPTY" again and hides its
// landing slot; a lower slot loses its picture and is hidden.
void frmTreyshift::ClearFieldSource(int s) {
    Control& source = c("PlayCard", s);
    if (s < 4) {
        source.setPicture(EmptyPicture());
        c("PlayCard", s + 4).setVisible(false);
    } else {
        source.setPicture(0);
        source.setVisible(false);
    }
}

// ---- The deck -----------------------------------------------------------------------------

// The fan moves on by one: the card behind comes into play and the next card
// of the deck joins the fan. Past the deck the fan empties from the back.
void frmTreyshift::UpDateDeck() {
    DeckPosition += 1;
    c("UpCard", 2).setPicture(c("UpCard", 1).picture());
    UpCards[2] = UpCards[1];
    c("UpCard", 1).setPicture(c("UpCard", 0).picture());
    UpCards[1] = UpCards[0];
    c("CardStackPicture").setPicture(ImageList2().indexOf(StackKey(DeckPosition)));
    Control& back = c("UpCard", 0);
    if (DeckPosition < 53) {
        ShowCard(back, Deck[static_cast<size_t>(DeckPosition)]);
        UpCards[0] = Deck[static_cast<size_t>(DeckPosition)];
    } else {
        ShowEmpty(back);
        UpCards[0].clear();
    }
    if (DeckPosition == 54) {
        c("UpCard", 1).setBorderStyle(0);
        UpCards[1].clear();
    }
    if (DeckPosition == 55) {
        c("UpCard", 2).setBorderStyle(0);
        UpCards[2].clear();
    }
    c("lblCardCount").setCaption(CardsRemainingText(DeckPosition));
}

void frmTreyshift::Deal() {
    for (int i = 0; i < kUpSlots; ++i) {
        ShowCard(c("UpCard", i), Deck[static_cast<size_t>(i + 1)]);
        UpCards[static_cast<size_t>(i)] = Deck[static_cast<size_t>(i + 1)];
    }
    for (int i = 0; i < 3; ++i) {
        c("TempCard", i).setPicture(EmptyPicture());
        c("PlayCard", i).setPicture(EmptyPicture());
    }
    c("PlayCard", 3).setPicture(EmptyPicture());
    c("CardStackPicture").setPicture(ImageList2().indexOf("FULL"));
    DeckPosition = kFirstDeckPosition;
    ResetDial();
    c("Timer1").setEnabled(true);
    Control& bar = c("StatusBar1");
    bar.setPanel(1, "Make " + FormatScore(BonusScore) + " for Bonus Round!   ");
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
    for (int i = 0; i < 4; ++i) c("PlayCard", i).setVisible(show);
    for (int i = 0; i < kFieldSlots; ++i)
        if (c("PlayCard", i).picture() != 0) c("PlayCard", i).setVisible(show);
    if (!Selected) return;
    if (SourceZone == ZoneDeck) c("UpCardSelection").setVisible(show);
    if (SourceZone == ZoneTemp) c("TempCardSelection", SourceIndex).setVisible(show);
    if (SourceZone == ZoneField) c("PlayCardSelection", SourceIndex).setVisible(show);
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
    const std::string& top = FieldCards[static_cast<size_t>(column)];
    const std::string& middle = FieldCards[static_cast<size_t>(column + 4)];
    const std::string& bottom = FieldCards[static_cast<size_t>(column + 8)];
    const ColumnKind kind = ScoreColumn(top, middle, bottom);
    const char* sound = AwardFor(kind, ScoringValues{}).sound;
    if (kind == ColumnKind::None) return;
    if (kind == ColumnKind::Trip) {
        ClearColumn(column);
        TripCount += 1;
        c("lblScoreTrips").setCaption(NumText(TripCount));
        AddToScore(TripValue);
        ShowScore();
        Wave(sound);
        return;
    }
    bool isFlush = false;
    CheckFlush(column, isFlush);
    ClearColumn(column);
    if (isFlush) {
        ShowFlushMessage(column);
        Wave(sound);
        AddToScore(FlushValue);
        ShowScore();
        c("lblFlush").setVisible(false);
    } else {
        Wave(sound);
    }
    RunCount += 1;
    c("lblScoreRuns").setCaption(NumText(RunCount));
    AddToScore(RunValue);
    ShowScore();
}

void frmTreyshift::CheckFlush(int column, bool& flush) {
    const auto card = [this](int i) { return FieldCards[static_cast<size_t>(i)]; };
    flush = IsFlush(card(column), card(column + 4), card(column + 8));
}

void frmTreyshift::ClearColumn(int column) {
    for (int i = column; i < kFieldSlots; i += 4) FieldCards[static_cast<size_t>(i)].clear();
    ShowEmpty(c("PlayCard", column));
    for (int i : {column + 4, column + 8}) {
        Control& slot = c("PlayCard", i);
        slot.setBorderStyle(0);
        slot.setPicture(0);
        slot.setVisible(false);
    }
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
