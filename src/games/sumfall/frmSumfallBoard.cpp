// SPDX-License-Identifier: GPL-3.0-or-later
// The Sumfall board: the deck and the deal, the clicks on field cards, the up
// card and the play pile, the combinations they make, and what the board
// shows (selections, faces and backs, the card total). The board itself is
// plain data (modSumfallBoard.h); each click makes its move there, then the
// controls show the result.
#include "games/sumfall/frmSumfall.h"

#include <algorithm>

#include "suite/cards.h"
#include "suite/common.h"
#include "suite/dial.h"
#include "suite/sound.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace sumfall;

// The picture of a card code; a code with no picture (an empty slot of a
// damaged saved game) is an error, as the catalogue's lookup always was.
int frmSumfall::PictureOf(const std::string& code) {
    const int index = ImageList2().indexOf(CardKey(code));
    if (index == 0) throw RuntimeError(35601, "Element not found");
    return index;
}

// ---- The deck and the deal ----------------------------------------------------------

bool frmSumfall::CreateSumfallDeck() {
    try {
        Deck = DeckForCardGoal(CardGoal);
        for (auto* round : {&Round1Deck, &Round2Deck, &Round3Deck}) round->assign(Deck.size(), std::string());
        Board.stock.assign(static_cast<size_t>(StockUpperBound(CardGoal)) + 1, std::string());
        return true;
    } catch (const std::exception&) {
        MsgBox("Unable to create the deck.", MsgButtons::OK, MsgIcon::None, AppTitle);
        return false;
    }
}

bool frmSumfall::ReplayDecksHavePictures() const {
    for (const std::vector<std::string>* deck : {&Round1Deck, &Round2Deck, &Round3Deck}) {
        // A later round the stored game never reached is shuffled anew.
        if (deck != &Round1Deck && (deck->size() < 2 || (*deck)[1].empty())) continue;
        for (size_t i = 1; i < deck->size(); ++i)
            if (ImageList2().indexOf(CardKey((*deck)[i])) == 0) return false;
    }
    return true;
}

bool frmSumfall::Deal(bool newGame) {
    try {
        // A replay's decks are all checked before a card is shown.
        if (newGame && ReplayPending && !ReplayDecksHavePictures()) throw RuntimeError(35601, "Element not found");
        // Every card the deal shows has a picture before the board changes.
        for (int i = 1; i <= kFieldPlaces + 1; ++i) PictureOf(Deck.at(static_cast<size_t>(i)));
        DealBoard(Board, Deck);
        const int stockUpperBound = static_cast<int>(Board.stock.size()) - 1;

        c("PlayCardPicture").setVisible(false);
        c("lblMessage").setCaption("");
        c("lblMessage").setVisible(false);

        Control& bar = c("StatusBar1");
        bar.setPanel(1, "Make " + FormatScore(Scoring.BonusRoundScore) + " for Bonus Round!   ");
        bar.setPanel(2, "Click on exposed cards to total " + NumText(CardGoal) + "!   ");

        CardTotalVisible(true);
        c("lblCardCount").setCaption("Cards: " + NumText(stockUpperBound));
        c("lblCardCount").setVisible(true);

        ShowBoard();
        c("UpCardPicture").setVisible(true);
        c("PlayCardPicture").setVisible(true);
        ShowTotal();
        c("lblCurrentTotal").setVisible(true);
        c("lblTime").setCaption("Time: " + NumText(TimeLimit));
        c("lblTime").setVisible(true);
        c("Timer1").setEnabled(true);
        ElapsedSeconds = 0;

        if (newGame) {
            PreviousScore = CurrentScore;
            CurrentScore = 0;
            ShowScore();
            CurrentRound = 1;
        }

        CentreLabelIn(*this, "lblCurrentScore", "ScoreRectangle");
        for (const char* name : {"lblCurrentScore", "ScoreRectangle", "ScoreBevelSide", "ScoreBevelBottom", "lblScore"})
            c(name).setVisible(true);
        c("lblCurrentRound").setCaption(NumText(CurrentRound));
        CentreLabelIn(*this, "lblCurrentRound", "RoundRectangle");
        for (const char* name : {"lblCurrentRound", "RoundRectangle", "RoundBevelSide", "RoundBevelBottom", "lblRound"})
            c(name).setVisible(true);

        CombinationCount = 0;
        c("lblCurrentElevens").setCaption(NumText(CombinationCount));
        CentreLabelIn(*this, "lblCurrentElevens", "ElevensRectangle");
        for (const char* name :
             {"lblCurrentElevens", "ElevensRectangle", "ElevensBevelSide", "ElevensBevelBottom", "lblElevens"})
            c(name).setVisible(true);

        std::vector<std::string>* stored = CurrentRound == 1 ? &Round1Deck : CurrentRound == 2 ? &Round2Deck : &Round3Deck;
        *stored = Deck;

        InitTimeDial(*this);
        ShowTimerRect();
        return true;
    } catch (const std::exception&) {
        MsgBox("Unable to deal the cards.", MsgButtons::OK, MsgIcon::None, AppTitle);
        return false;
    }
}

// ---- Clicks on the cards -------------------------------------------------------------

void frmSumfall::FieldCardPicture_Click(int index) {
    const std::string& message = c("lblMessage").caption();
    if (message == kGamePaused || message == kGameOver || !IsExposed(Board, index)) {
        Wave("\\Chord.wav");
        return;
    }
    const Step step = ClickField(Board, index, CardGoal);
    ShowBoard();
    ShowTotal();
    Wave(step.sound);
    if (step.outcome == Outcome::Selected) CheckTotal();
}

void frmSumfall::UpCardPicture_Click() {
    const std::string& message = c("lblMessage").caption();
    if (message == kGamePaused || message == kGameOver) {
        Wave("\\Chord.wav");
        return;
    }
    const Step step = ClickUp(Board, CardGoal);
    ShowBoard();
    ShowTotal();
    Wave(step.sound);
    if (step.outcome == Outcome::Selected) CheckTotal();
}

// A total that makes the card goal pays each selected card, field places
// first, lowest place first, and ends the selection.
void frmSumfall::CheckTotal() {
    UpCardUsed = false;
    if (Board.total != CardGoal) return;
    Wave("\\TwentyOne.wav");
    for (const int place : SelectedPlaces(Board)) {
        AddToScore(kField[static_cast<size_t>(place)].points);
        TakeFromField(Board, place);
        ShowBoard();
    }
    if (Board.upSelected) {
        UpCardUsed = true;
        AddToScore(kUpCardPoints);
        TakeUpCard(Board);
        ShowBoard();
    }
    CombinationCount += 1;
    c("lblCurrentElevens").setCaption(NumText(CombinationCount));
    Board.total = 0;
    ShowTotal();
    ShowScore();
    if (FieldCleared(Board)) cmdTakeScore_Click(false);
    if (!loaded()) return;
    // The up card pile used up turns the next card of the play pile free of charge.
    if (UpCardUsed && Board.upEmpty) PlayCardPicture_Click();
    UpCardUsed = false;
}

void frmSumfall::PlayCardPicture_Click() {
    const std::string& message = c("lblMessage").caption();
    if (message == kGamePaused || message == kGameOver || Board.stockIndex < 0) {
        if (!UpCardUsed) Wave("\\Chord.wav");
        return;
    }
    setMousePointer(Pointer::Hourglass);
    // An up card passed over falls back into the first free field place.
    if (Board.upIndex > 0 && FallBack(Board) >= 0) {
        ShowBoard();
        AddToScore(-kFallBackCost);
        ShowScore();
    }
    if (!UpCardUsed) Wave("\\Markq.wav");
    PictureOf(Board.stock[static_cast<size_t>(Board.stockIndex)]);
    TurnUpCard(Board);
    ShowBoard();
    c("UpCardPicture").setVisible(true);
    ShowTotal();
    c("lblCardCount").setCaption("Cards: " + NumText(Board.stockIndex + 1));
    if (!UpCardUsed) {
        AddToScore(-kFlipCost);
        ShowScore();
    }
    setMousePointer(Pointer::Default);
}

void frmSumfall::FieldCardPicture_MouseMove(int index) {
    const bool playable = c("lblMessage").caption() != kGameOver && IsExposed(Board, index);
    c("FieldCardPicture", index).setMouseIcon(playable ? ImageCatalogue::kPointer : 0);
}

void frmSumfall::UpCardPicture_MouseMove() {
    const bool playable = !Board.upEmpty && c("lblMessage").caption() != kGameOver;
    c("UpCardPicture").setMouseIcon(playable ? ImageCatalogue::kPointer : 0);
}

void frmSumfall::PlayCardPicture_MouseMove() {
    const bool playable = Board.pileKey != "EMPTY" && c("lblMessage").caption() != kGameOver;
    c("PlayCardPicture").setMouseIcon(playable ? ImageCatalogue::kPointer : 0);
}

// ---- What the window shows ----------------------------------------------------------

// The board on the controls. A field place that holds no card keeps the
// picture it last had; a paused game shows backs with no border.
void frmSumfall::ShowBoard() {
    const int back = ImageList2().indexOf("BACK");
    for (int i = 0; i < kFieldPlaces; ++i) {
        const size_t at = static_cast<size_t>(i);
        Control& card = c("FieldCardPicture", i);
        if (Board.holds[at]) {
            card.setPicture(Board.faceDown ? back : PictureOf(Board.field[at]));
            card.setBorderStyle(Board.faceDown ? 0 : 1);
        }
        card.setVisible(Board.holds[at]);
        c("FieldSelectionRectangle", i).setVisible(Board.selected[at]);
    }
    Control& up = c("UpCardPicture");
    if (Board.upEmpty) {
        up.setPicture(ImageList2().indexOf("EMPTY"));
        up.setBorderStyle(0);
    } else if (Board.upIndex > 0) {
        up.setPicture(Board.faceDown ? back : PictureOf(Board.up[static_cast<size_t>(Board.upIndex)]));
        up.setBorderStyle(Board.faceDown ? 0 : 1);
    }
    c("UpCardSelectionRectangle").setVisible(Board.upSelected);
    if (!Board.pileKey.empty()) c("PlayCardPicture").setPicture(ImageList2().indexOf(Board.pileKey));
}

void frmSumfall::ShowTotal() { c("lblCurrentTotal").setCaption(NumText(Board.total)); }

void frmSumfall::CardTotalVisible(bool flag) {
    for (const char* name : {"CardTotalRectangle", "CardTotalBevelSide", "CardTotalBevelBottom", "lblCurrentTotal", "lblTotal"})
        c(name).setVisible(flag);
}

void frmSumfall::ShowLowerCards(bool flag) {
    for (const char* name : {"PlayCardPicture", "UpCardPicture", "lblCardCount"}) c(name).setVisible(flag);
}

void frmSumfall::DisableCommandButtons(bool flag) {
    for (const char* name : {"cmdPause", "cmdPlay", "cmdExit", "cmdTakeScore", "mnuPause", "mnuPlay", "mnuExit", "mnuTakeScore"})
        c(name).setEnabled(!flag);
}

void frmSumfall::ShowTimerRect() {
    for (const char* name : {"TimerRectangle", "TimerBevelSide", "TimerBevelBottom"}) c(name).setVisible(true);
}

void frmSumfall::SelectionColor(int index) {
    const int color = kSelectionColours[static_cast<size_t>(index)].color;
    for (int i = 0; i < kFieldPlaces; ++i) c("FieldSelectionRectangle", i).setBorderColor(color);
    c("UpCardSelectionRectangle").setBorderColor(color);
    SelectionColorIndex = static_cast<int16_t>(index);
}

void frmSumfall::ClearColorCheck() {
    for (const SelectionColour& s : kSelectionColours) c(s.menu).setChecked(false);
}


}  // namespace ch
