// SPDX-License-Identifier: GPL-3.0-or-later
// The Duopick board: the deal, the clicks on the cards and on the stack, the
// selection, and what the board shows.
#include <array>
#include <cstdint>

#include "games/duopick/frmDuopick.h"
#include "suite/cards.h"
#include "suite/common.h"
#include "suite/dial.h"
#include "suite/sound.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace duopick;

namespace {
// The picture of a card code; a code with no picture (the empty entry the
// stack yields once it is spent) raises the error the catalogue always gave.
int PictureOf(const std::string& code) {
    const int index = ImageList2().indexOf(CardKey(code));
    if (index == 0) throw RuntimeError(35601, "Element not found");
    return index;
}

// One statement of a handler that runs with errors ignored: a failing
// statement is skipped and the next one runs.
template <typename Step>
void Ignoring(Step step) {
    try {
        step();
    } catch (const std::exception&) {
    }
}
}  // namespace

// ---- The deal ---------------------------------------------------------------------------

void frmDuopick::Deal() {
    for (int i = 0; i < kDeckCardsSize - 1; ++i) {
        const std::string& code = Deck.at(static_cast<size_t>(i) + 1);
        DeckCards[static_cast<size_t>(i)] = code;
        if (i <= kUpCard) {
            Control& card = c("PlayCard", i);
            card.setPicture(PictureOf(code));
            card.setEnabled(true);
            if (i == kUpCard) UpCards[1] = code;
        } else {
            StackIndex = kFirstStackCard;
            WastePos = 1;
        }
    }
    ShowCards(true);
    ShowControls(true);
    Control& stack = c("CardStackPicture");
    stack.setPicture(ImageList2().indexOf("FULL"));
    stack.setVisible(true);
    CardsRemaining = kStackCards;
    c("lblCards").setCaption(NumText(CardsRemaining));
    InitTimeDial(*this);
    c("Timer1").setEnabled(true);
    c("StatusBar1").setPanel(1, "Make " + FormatScore(Scoring.BonusScore) + " for Bonus Round!   ");
    c("StatusBar1").setPanel(2, "Create runs by clicking on exposed cards!   ");
}

// ---- Exposure and selection -----------------------------------------------------------

bool frmDuopick::CheckForLegalMove(int index) const {
    std::array<bool, kFieldCards> onTable{};
    for (int i = 0; i < kFieldCards; ++i) onTable[static_cast<size_t>(i)] = c("PlayCard", i).visible();
    return IsExposed(index, onTable);
}

// FirstCardIndex keeps its value.
void frmDuopick::ClearSelectionRectangles() {
    for (int i = 0; i < kFieldCards; ++i) {
        c("FieldSelectionRectangle", i).setVisible(false);
        c("PlayCard", i).setEnabled(true);
    }
    c("FieldSelectionRectangle", kUpCard).setVisible(false);
    if (WastePos != 0) c("PlayCard", kUpCard).setEnabled(true);
    CardsSelected = 0;
    FirstCardValue = 0;
}

// ---- Clicks on the cards ----------------------------------------------------------------

void frmDuopick::PlayCard_Click(int index) {
    if (TakingScore) return;
    if ((index == kUpCard && WastePos == 0) || !CheckForLegalMove(index)) {
        Wave("\\Chord.wav");
        return;
    }
    if (CardsSelected == 0) {
        FirstCardValue = static_cast<int16_t>(CardValue(DeckCards[static_cast<size_t>(index)]));
        CardsSelected = 1;
        FirstCardIndex = static_cast<int16_t>(index);
        Wave("\\Markq.wav");
        c("FieldSelectionRectangle", index).setVisible(true);
        c("PlayCard", index).setEnabled(false);
        return;
    }
    SecondCard(index);
    CardsSelected = 0;
    FirstCardIndex = 0;
}

void frmDuopick::SecondCard(int index) {
    Control& selection = c("FieldSelectionRectangle", index);
    if (selection.visible()) {
        Wave("\\Tick.wav");
        selection.setVisible(false);
        c("PlayCard", index).setEnabled(true);
        return;
    }
    const int first = FirstCardIndex;
    const Match match = MatchOf(FirstCardValue, CardValue(DeckCards[static_cast<size_t>(index)]));
    if (match == Match::Pair) {
        PairsCount += 1;
        c("lblScorePairs").setCaption(NumText(PairsCount));
    } else if (match == Match::Run) {
        RunsCount += 1;
        c("lblScoreRuns").setCaption(NumText(RunsCount));
    }

    if (match != Match::None) {
        Wave("\\TwentyOne.wav");
        for (int taken : {index, first}) {
            if (taken == kUpCard) continue;
            c("PlayCard", taken).setVisible(false);
            c("PlayCard", taken).setPicture(0);
        }
        if (index == kUpCard || first == kUpCard) {
            WastePos -= 1;
            Control& up = c("PlayCard", kUpCard);
            if (WastePos > 0) {
                up.setEnabled(true);
                ShowCardImage(kUpCard, UpCards.at(static_cast<size_t>(WastePos)));
                c("PlayCard", index).setEnabled(true);
                c("PlayCard", first).setEnabled(true);
                DeckCards[kUpCard] = UpCards.at(static_cast<size_t>(WastePos));
            } else {
                up.setEnabled(false);
                up.setPicture(ImageList2().indexOf("EMPTY"));
                DeckCards[kUpCard] = "";
            }
        }
        bool topRowLeft = false;
        for (int i = 0; i < 5; ++i) topRowLeft = topRowLeft || c("PlayCard", i).visible();
        if (!topRowLeft) {
            RoundCompleted = true;
            raise(&c("cmdTakeScore"), Ev::Click);
            RoundCompleted = false;
            if (!loaded()) return;
        }
    } else {
        if (WastePos != 0) c("PlayCard", kUpCard).setEnabled(true);
        c("PlayCard", first).setEnabled(true);
        Wave("\\Chord.wav");
    }
    c("FieldSelectionRectangle", index).setVisible(false);
    c("FieldSelectionRectangle", first).setVisible(false);
}

// ---- The stack ----------------------------------------------------------------------------

// Runs with errors ignored statement by statement: once the stack is spent
// the entries past its end fail to read, and the steps after them go on. At
// the top of their 16-bit range WastePos and StackIndex can't be raised, and
// stay.
void frmDuopick::CardStackPicture_Click() {
    setMousePointer(Pointer::Hourglass);
    CardsRemaining = static_cast<int16_t>(CardsRemaining > 0 ? CardsRemaining - 1 : 0);
    c("lblCards").setCaption(NumText(CardsRemaining));
    Wave("\\Click.wav");

    std::array<bool, kFieldCards> hasPicture{};
    for (int i = 0; i < kFieldCards; ++i) hasPicture[static_cast<size_t>(i)] = c("PlayCard", i).picture() != 0;
    const int gap = FirstGap(hasPicture);
    if (gap >= 0 && WastePos != 0) {
        // The up card goes back to the field.
        Control& card = c("PlayCard", gap);
        Ignoring([&] { card.setPicture(PictureOf(UpCards.at(static_cast<size_t>(WastePos)))); });
        card.setEnabled(true);
        card.setVisible(true);
        Ignoring([&] { DeckCards[static_cast<size_t>(gap)] = UpCards.at(static_cast<size_t>(WastePos)); });
        WastePos -= 1;
    }
    if (WastePos < INT16_MAX) WastePos += 1;
    Ignoring([&] { UpCards.at(static_cast<size_t>(WastePos)) = DeckCards.at(static_cast<size_t>(StackIndex)); });
    if (StackIndex < INT16_MAX) StackIndex += 1;

    Control& up = c("PlayCard", kUpCard);
    Ignoring([&] { up.setPicture(PictureOf(Deck.at(static_cast<size_t>(StackIndex)))); });
    up.setEnabled(true);
    Ignoring([&] { DeckCards[kUpCard] = UpCards.at(static_cast<size_t>(WastePos)); });
    c("FieldSelectionRectangle", kUpCard).setVisible(false);
    ClearSelectionRectangles();

    ShowStackStage();
    if (StackOverrun(StackIndex)) Wave("\\Chord.wav");
    setMousePointer(Pointer::Default);
}

// The stack's picture by how far it has been turned; up to 27 it keeps the
// picture it has.
void frmDuopick::ShowStackStage() {
    std::string key = StackStage(StackIndex);
    if (StackIndex <= 27) key = "FULL";
    if (!key.empty()) c("CardStackPicture").setPicture(ImageList2().indexOf(key));
}

// A card's picture; a code without one leaves the picture as it was.
void frmDuopick::ShowCardImage(int index, const std::string& code) {
    Ignoring([&] { c("PlayCard", index).setPicture(PictureOf(code)); });
}

// ---- What the board shows ---------------------------------------------------------------

void frmDuopick::ShowCards(bool visible) {
    for (int i = 0; i <= kUpCard; ++i) c("PlayCard", i).setVisible(visible);
    c("CardStackPicture").setVisible(visible);
}

void frmDuopick::ShowControls(bool visible, bool scoreVisible) {
    for (const char* name : {"lblScore", "ScoreRectangle", "ScoreBevelSide", "ScoreBevelBottom", "lblCurrentScore"})
        c(name).setVisible(scoreVisible);
    for (const char* name : {"lblTime", "Surface", "TimerRectangle", "TimerBevelSide", "TimerBevelBottom", "lblRound",
                             "RoundRectangle", "RoundBevelSide", "RoundBevelBottom", "lblCurrentRound",
                             "lblCardCount", "lblCards", "lblPairs", "lblScorePairs", "lblRuns", "lblScoreRuns"})
        c(name).setVisible(visible);
}

}  // namespace ch
