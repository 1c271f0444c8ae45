// SPDX-License-Identifier: GPL-3.0-or-later
// The Duopick board: the deal, the clicks on the cards and on the stack, the
// selection, and what the board shows. The moves are decided on the board
// (modDuopickBoard.h); the controls show it after each click.
#include <exception>

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
int PictureOf(const Place& place) {
    if (place.picture.empty()) return 0;
    if (place.picture == "EMPTY") return ImageList2().indexOf("EMPTY");
    return ImageList2().indexOf(CardKey(place.picture));
}
}  // namespace

// ---- The deal ---------------------------------------------------------------------------

void frmDuopick::Deal() {
    DealBoard(Board, Deck);
    ShowBoard();
    ShowControls(true);
    c("CardStackPicture").setPicture(ImageList2().indexOf("FULL"));
    CardsRemaining = kStackCards;
    c("lblCards").setCaption(NumText(CardsRemaining));
    InitTimeDial(*this);
    c("Timer1").setEnabled(true);
    c("StatusBar1").setPanel(1, "Make " + FormatScore(Scoring.BonusScore) + " for Bonus Round!   ");
    c("StatusBar1").setPanel(2, "Create runs by clicking on exposed cards!   ");
}

// ---- The board on the controls ----------------------------------------------------------

void frmDuopick::ShowBoard() {
    for (int i = 0; i <= kUpCard; ++i) {
        const Place& place = Board.places[static_cast<size_t>(i)];
        Control& card = c("PlayCard", i);
        card.setPicture(PictureOf(place));
        card.setEnabled(place.enabled);
        card.setVisible(place.onTable);
        c("FieldSelectionRectangle", i).setVisible(place.outlined);
    }
    c("CardStackPicture").setVisible(Board.stackShown);
}

// ---- Clicks on the cards ----------------------------------------------------------------

// A move that stops on the waste pile's end still shows what it did and
// makes its sound before the error goes on.
void frmDuopick::PlayCard_Click(int index) {
    if (TakingScore) return;
    Step step;
    try {
        ClickCard(Board, index, step);
    } catch (const std::exception&) {
        CountMatch(step);
        Wave(step.sound);
        ShowBoard();
        throw;
    }
    CountMatch(step);
    Wave(step.sound);
    ShowBoard();
    if (step.topRowCleared) {
        RoundCompleted = true;
        raise(&c("cmdTakeScore"), Ev::Click);
        RoundCompleted = false;
    }
}

void frmDuopick::CountMatch(const Step& step) {
    if (step.outcome == Outcome::Pair) {
        PairsCount += 1;
        c("lblScorePairs").setCaption(NumText(PairsCount));
    } else if (step.outcome == Outcome::Run) {
        RunsCount += 1;
        c("lblScoreRuns").setCaption(NumText(RunsCount));
    }
}

// ---- The stack ----------------------------------------------------------------------------

void frmDuopick::CardStackPicture_Click() {
    setMousePointer(Pointer::Hourglass);
    CardsRemaining = static_cast<int16_t>(CardsRemaining > 0 ? CardsRemaining - 1 : 0);
    c("lblCards").setCaption(NumText(CardsRemaining));
    const Step step = ClickStack(Board, Deck);
    Wave(step.sound);
    ShowBoard();
    ShowStackStage();
    if (step.overrun) Wave("\\Chord.wav");
    setMousePointer(Pointer::Default);
}

// The stack's picture by how far it has been turned; up to 27 it keeps the
// picture it has.
void frmDuopick::ShowStackStage() {
    std::string key = StackStage(Board.stackIndex);
    if (Board.stackIndex <= 27) key = "FULL";
    if (!key.empty()) c("CardStackPicture").setPicture(ImageList2().indexOf(key));
}

// ---- What the board shows ---------------------------------------------------------------

void frmDuopick::ShowCards(bool visible) {
    ShowCardsOnBoard(Board, visible);
    ShowBoard();
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
