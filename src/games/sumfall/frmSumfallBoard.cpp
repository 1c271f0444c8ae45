// SPDX-License-Identifier: GPL-3.0-or-later
// The Sumfall board: the deck and the deal, the clicks on field cards, the up
// card and the play pile, the combinations they make, and what the board
// shows (selections, faces and backs, the card total).
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
        StockCards.assign(static_cast<size_t>(StockUpperBound(CardGoal)) + 1, std::string());
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
        const int lastCard = DeckUpperBound();
        StockCards.assign(static_cast<size_t>(std::max(lastCard - 22, 0)) + 1, std::string());
        const int stockUpperBound = static_cast<int>(StockCards.size()) - 1;
        UpCardIndex = 1;
        StockIndex = static_cast<int16_t>(stockUpperBound - 1);

        c("UpCardSelectionRectangle").setVisible(false);
        c("UpCardPicture").setBorderStyle(1);
        c("PlayCardPicture").setVisible(false);
        c("lblMessage").setCaption("");
        c("lblMessage").setVisible(false);
        for (int i = 1; i < kFieldPlaces; ++i) {
            c("FieldCardPicture", i).setVisible(false);
            c("FieldSelectionRectangle", i).setVisible(false);
        }

        Control& bar = c("StatusBar1");
        bar.setPanel(1, "Make " + FormatScore(Scoring.BonusRoundScore) + " for Bonus Round!   ");
        bar.setPanel(2, "Click on exposed cards to total " + NumText(CardGoal) + "!   ");

        CardTotalVisible(true);
        c("lblCardCount").setCaption("Cards: " + NumText(stockUpperBound));
        c("lblCardCount").setVisible(true);

        for (int i = 0; i < kFieldPlaces; ++i) {
            const std::string& code = Deck.at(static_cast<size_t>(i + 1));
            Control& card = c("FieldCardPicture", i);
            card.setPicture(PictureOf(code));
            card.setBorderStyle(1);
            FieldCards[static_cast<size_t>(i)] = code;
            card.setVisible(true);
        }

        UpCards.assign(kUpPileSize + 1, std::string());
        c("UpCardPicture").setPicture(PictureOf(Deck.at(23)));
        UpCards[1] = Deck[23];
        c("UpCardPicture").setVisible(true);

        // From 23, not 24: the first up card is also the bottom card of the
        // play pile and can turn up again at its very end.
        for (int i = 23, j = 0; i <= lastCard && j <= stockUpperBound; ++i, ++j)
            StockCards[static_cast<size_t>(j)] = Deck[static_cast<size_t>(i)];

        c("PlayCardPicture").setPicture(ImageList2().indexOf("FULL"));
        c("PlayCardPicture").setVisible(true);
        CurrentTotal = 0;
        c("lblCurrentTotal").setCaption("0");
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
    if (message == kGamePaused || message == kGameOver || !CheckLegalFieldCardMove(index)) {
        Wave("\\Chord.wav");
        return;
    }
    const int value = CardValue(FieldCards[static_cast<size_t>(index)]);
    Control& selection = c("FieldSelectionRectangle", index);
    if (!selection.visible()) {
        if (value + CurrentTotal > CardGoal) {
            Wave("\\Chord.wav");
            return;
        }
        selection.setVisible(true);
        CurrentTotal = static_cast<int16_t>(CurrentTotal + value);
        c("lblCurrentTotal").setCaption(NumText(CurrentTotal));
        Wave("\\Markq.wav");
        CheckTotal();
    } else {
        CurrentTotal = static_cast<int16_t>(CurrentTotal - value);
        c("lblCurrentTotal").setCaption(NumText(CurrentTotal));
        Wave("\\Tick.wav");
        selection.setVisible(false);
    }
}

void frmSumfall::UpCardPicture_Click() {
    const std::string& message = c("lblMessage").caption();
    if (message == kGamePaused || message == kGameOver || UpCardIndex == 0) {
        Wave("\\Chord.wav");
        return;
    }
    const int value = CardValue(UpCards[static_cast<size_t>(UpCardIndex)]);
    Control& selection = c("UpCardSelectionRectangle");
    if (!selection.visible()) {
        if (value + CurrentTotal > CardGoal) {
            Wave("\\Chord.wav");
            return;
        }
        Wave("\\Markq.wav");
        CurrentTotal = static_cast<int16_t>(CurrentTotal + value);
        c("lblCurrentTotal").setCaption(NumText(CurrentTotal));
        selection.setVisible(true);
        CheckTotal();
    } else {
        Wave("\\Tick.wav");
        CurrentTotal = static_cast<int16_t>(CurrentTotal - value);
        c("lblCurrentTotal").setCaption(NumText(CurrentTotal));
        selection.setVisible(false);
    }
}

void frmSumfall::CheckTotal() {
    UpCardUsed = false;
    if (CurrentTotal != CardGoal) return;
    Wave("\\TwentyOne.wav");
    for (int i = 0; i < kFieldPlaces; ++i) {
        Control& selection = c("FieldSelectionRectangle", i);
        if (!selection.visible()) continue;
        AddToScore(kField[static_cast<size_t>(i)].points);
        selection.setVisible(false);
        c("FieldCardPicture", i).setVisible(false);
    }
    Control& upSelection = c("UpCardSelectionRectangle");
    if (upSelection.visible()) {
        UpCardUsed = true;
        AddToScore(kUpCardPoints);
        upSelection.setVisible(false);
        UpCardIndex -= 1;
        Control& up = c("UpCardPicture");
        if (UpCardIndex > 0) {
            up.setPicture(PictureOf(UpCards[static_cast<size_t>(UpCardIndex)]));
        } else {
            up.setBorderStyle(0);
            up.setPicture(ImageList2().indexOf("EMPTY"));
        }
    }
    CombinationCount += 1;
    c("lblCurrentElevens").setCaption(NumText(CombinationCount));
    c("lblCurrentTotal").setCaption("0");
    CurrentTotal = 0;
    ShowScore();
    if (CheckForCompletion()) cmdTakeScore_Click(false);
    if (!loaded()) return;
    if (UpCardUsed && c("UpCardPicture").picture() == ImageList2().indexOf("EMPTY")) PlayCardPicture_Click();
    UpCardUsed = false;
}

void frmSumfall::PlayCardPicture_Click() {
    const std::string& message = c("lblMessage").caption();
    if (message == kGamePaused || message == kGameOver || StockIndex < 0) {
        if (!UpCardUsed) Wave("\\Chord.wav");
        return;
    }
    setMousePointer(Pointer::Hourglass);
    if (UpCardIndex > 0) MoveUpCardToFieldArea();
    if (!UpCardUsed) Wave("\\Markq.wav");
    Control& up = c("UpCardPicture");
    const std::string turned = StockCards[static_cast<size_t>(StockIndex)];
    up.setBorderStyle(1);
    up.setPicture(PictureOf(turned));
    UpCardIndex += 1;
    // The pile grows as far as the player turns cards without using them.
    if (static_cast<size_t>(UpCardIndex) >= UpCards.size()) UpCards.resize(static_cast<size_t>(UpCardIndex) + 1);
    UpCards[static_cast<size_t>(UpCardIndex)] = turned;
    StockIndex -= 1;

    for (int i = 0; i < kFieldPlaces; ++i) c("FieldSelectionRectangle", i).setVisible(false);
    up.setVisible(true);
    c("UpCardSelectionRectangle").setVisible(false);
    CurrentTotal = 0;
    c("lblCurrentTotal").setCaption(NumText(CurrentTotal));
    c("lblCardCount").setCaption("Cards: " + NumText(StockIndex + 1));
    RefreshPlayCard();
    if (!UpCardUsed) {
        AddToScore(-kFlipCost);
        ShowScore();
    }
    setMousePointer(Pointer::Default);
}

// An up card passed over falls back into the highest free field place.
bool frmSumfall::MoveUpCardToFieldArea() {
    for (int i = 0; i < kFieldPlaces; ++i) {
        Control& card = c("FieldCardPicture", i);
        if (card.visible()) continue;
        card.setPicture(c("UpCardPicture").picture());
        card.setBorderStyle(1);
        card.setVisible(true);
        FieldCards[static_cast<size_t>(i)] = UpCards[static_cast<size_t>(UpCardIndex)];
        UpCardIndex -= 1;
        AddToScore(-kFallBackCost);
        ShowScore();
        return true;
    }
    return false;
}

void frmSumfall::FieldCardPicture_MouseMove(int index) {
    const bool playable = c("lblMessage").caption() != kGameOver && CheckLegalFieldCardMove(index);
    c("FieldCardPicture", index).setMouseIcon(playable ? ImageCatalogue::kPointer : 0);
}

void frmSumfall::UpCardPicture_MouseMove() {
    Control& up = c("UpCardPicture");
    const bool empty = up.picture() == ImageList2().indexOf("EMPTY");
    up.setMouseIcon(empty || c("lblMessage").caption() == kGameOver ? 0 : ImageCatalogue::kPointer);
}

void frmSumfall::PlayCardPicture_MouseMove() {
    Control& pile = c("PlayCardPicture");
    const bool empty = pile.picture() == ImageList2().indexOf("EMPTY");
    pile.setMouseIcon(empty || c("lblMessage").caption() == kGameOver ? 0 : ImageCatalogue::kPointer);
}

bool frmSumfall::CheckLegalFieldCardMove(int index) const {
    std::array<bool, kFieldPlaces> holdsCard{};
    for (int i = 0; i < kFieldPlaces; ++i) holdsCard[static_cast<size_t>(i)] = c("FieldCardPicture", i).visible();
    return IsExposed(index, holdsCard);
}

bool frmSumfall::CheckForCompletion() const {
    for (int i = 0; i < kFieldPlaces; ++i)
        if (c("FieldCardPicture", i).visible()) return false;
    return true;
}

// ---- What the window shows ----------------------------------------------------------

void frmSumfall::FieldCardDisplay(bool visible) {
    for (int i = 0; i < kFieldPlaces; ++i) c("FieldCardPicture", i).setVisible(visible);
}

// Place 0 is left out: a selection there survives this call.
void frmSumfall::SelRectangle(bool visible) {
    for (int i = 1; i < kFieldPlaces; ++i) c("FieldSelectionRectangle", i).setVisible(visible);
    c("UpCardSelectionRectangle").setVisible(visible);
}

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

void frmSumfall::RefreshPlayCard() {
    c("PlayCardPicture").setPicture(ImageList2().indexOf(PlayPileKey(StockIndex + 1)));
}

void frmSumfall::RefreshFieldCards() {
    const int back = ImageList2().indexOf("BACK");
    for (int i = 0; i < kFieldPlaces; ++i) {
        Control& card = c("FieldCardPicture", i);
        if (!card.visible()) continue;
        card.setPicture(back);
        card.setBorderStyle(0);
    }
}

// The faces again after a pause.
void frmSumfall::ShowFieldFaces() {
    for (int i = 0; i < kFieldPlaces; ++i) {
        Control& card = c("FieldCardPicture", i);
        if (!card.visible()) continue;
        card.setPicture(ImageList2().indexOf(CardKey(FieldCards[static_cast<size_t>(i)])));
        card.setBorderStyle(1);
    }
    Control& up = c("UpCardPicture");
    if (UpCardIndex > 0) {
        up.setPicture(ImageList2().indexOf(CardKey(UpCards[static_cast<size_t>(UpCardIndex)])));
        up.setBorderStyle(1);
    }
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
