// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/duopick/modDuopickBoard.h"

#include "suite/cards.h"

namespace ch::duopick {

namespace {
Place& At(Board& board, int index) { return board.places.at(static_cast<size_t>(index)); }

// A picture from a code; an entry with no card (past the stack's end) leaves it as it was.
void ShowCode(Place& place, const std::string& code) {
    if (!code.empty()) place.picture = code;
}

bool OnTable(const Board& board, int index) { return board.places[static_cast<size_t>(index)].onTable; }

void SecondCard(Board& board, int index, Step& step) {
    Place& second = At(board, index);
    if (second.outlined) {
        step = {Outcome::Cancelled, "\\Tick.wav"};
        second.outlined = false;
        second.enabled = true;
        return;
    }
    const int first = board.firstCardIndex;
    const Match match = MatchOf(board.firstCardValue, CardValue(board.deckCards.at(static_cast<size_t>(index))));
    if (match == Match::None) {
        if (board.wastePos != 0) At(board, kUpCard).enabled = true;
        At(board, first).enabled = true;
        step = {Outcome::NoMatch, "\\Chord.wav"};
    } else {
        step = {match == Match::Pair ? Outcome::Pair : Outcome::Run, "\\TwentyOne.wav"};
        for (int taken : {index, first}) {
            if (taken == kUpCard) continue;
            At(board, taken).onTable = false;
            At(board, taken).picture.clear();
        }
        if (index == kUpCard || first == kUpCard) {
            board.wastePos -= 1;
            Place& up = At(board, kUpCard);
            if (board.wastePos > 0) {
                up.enabled = true;
                const auto waste = static_cast<size_t>(board.wastePos);
                if (waste < board.upCards.size()) ShowCode(up, board.upCards[waste]);
                At(board, index).enabled = true;
                At(board, first).enabled = true;
                board.deckCards[kUpCard] = board.upCards.at(waste);
            } else {
                up.enabled = false;
                up.picture = "EMPTY";
                board.deckCards[kUpCard] = "";
            }
        }
        bool topRowLeft = false;
        for (int i = 0; i < 5; ++i) topRowLeft = topRowLeft || OnTable(board, i);
        step.topRowCleared = !topRowLeft;
    }
    At(board, index).outlined = false;
    At(board, first).outlined = false;
}
}  // namespace

void DealBoard(Board& board, const std::vector<std::string>& deck) {
    for (int i = 0; i < kDeckCardsSize - 1; ++i) {
        const std::string& code = deck.at(static_cast<size_t>(i) + 1);
        board.deckCards[static_cast<size_t>(i)] = code;
        if (i <= kUpCard) {
            At(board, i).picture = code;
            At(board, i).enabled = true;
            if (i == kUpCard) board.upCards[1] = code;
        } else {
            board.stackIndex = kFirstStackCard;
            board.wastePos = 1;
        }
    }
    ShowCardsOnBoard(board, true);
}

void ClickCard(Board& board, int index, Step& step) {
    std::array<bool, kFieldCards> onTable{};
    for (int i = 0; i < kFieldCards; ++i) onTable[static_cast<size_t>(i)] = OnTable(board, i);
    if ((index == kUpCard && board.wastePos == 0) || !IsExposed(index, onTable)) {
        step = {Outcome::Refused, "\\Chord.wav"};
        return;
    }
    if (board.cardsSelected == 0) {
        board.firstCardValue = static_cast<int16_t>(CardValue(board.deckCards[static_cast<size_t>(index)]));
        board.cardsSelected = 1;
        board.firstCardIndex = static_cast<int16_t>(index);
        At(board, index).outlined = true;
        At(board, index).enabled = false;
        step = {Outcome::Picked, "\\Markq.wav"};
        return;
    }
    SecondCard(board, index, step);
    board.cardsSelected = 0;
    board.firstCardIndex = 0;
}

// At the top of their 16-bit range wastePos and stackIndex can't be raised, and stay.
Step ClickStack(Board& board, const std::vector<std::string>& deck) {
    const auto inRange = [](const auto& list, int i) { return i >= 0 && static_cast<size_t>(i) < list.size(); };
    std::array<bool, kFieldCards> hasPicture{};
    for (int i = 0; i < kFieldCards; ++i) hasPicture[static_cast<size_t>(i)] = At(board, i).HasPicture();
    const int gap = FirstGap(hasPicture);
    if (gap >= 0 && board.wastePos != 0) {
        // The up card goes back to the field.
        Place& card = At(board, gap);
        if (inRange(board.upCards, board.wastePos)) {
            ShowCode(card, board.upCards[static_cast<size_t>(board.wastePos)]);
            board.deckCards[static_cast<size_t>(gap)] = board.upCards[static_cast<size_t>(board.wastePos)];
        }
        card.enabled = true;
        card.onTable = true;
        board.wastePos -= 1;
    }
    if (board.wastePos < INT16_MAX) board.wastePos += 1;
    if (inRange(board.upCards, board.wastePos) && inRange(board.deckCards, board.stackIndex))
        board.upCards[static_cast<size_t>(board.wastePos)] = board.deckCards[static_cast<size_t>(board.stackIndex)];
    if (board.stackIndex < INT16_MAX) board.stackIndex += 1;

    Place& up = At(board, kUpCard);
    if (inRange(deck, board.stackIndex)) ShowCode(up, deck[static_cast<size_t>(board.stackIndex)]);
    up.enabled = true;
    if (inRange(board.upCards, board.wastePos))
        board.deckCards[kUpCard] = board.upCards[static_cast<size_t>(board.wastePos)];
    ClearSelection(board);
    Step step{Outcome::Picked, "\\Click.wav"};
    step.overrun = StackOverrun(board.stackIndex);
    return step;
}

void ClearSelection(Board& board) {
    for (int i = 0; i < kFieldCards; ++i) {
        At(board, i).outlined = false;
        At(board, i).enabled = true;
    }
    At(board, kUpCard).outlined = false;
    if (board.wastePos != 0) At(board, kUpCard).enabled = true;
    board.cardsSelected = 0;
    board.firstCardValue = 0;
}

void ShowCardsOnBoard(Board& board, bool show) {
    for (Place& place : board.places) place.onTable = show;
    board.stackShown = show;
}

void PauseBoard(Board& board) {
    for (Place& place : board.places) place.outlined = false;
    ShowCardsOnBoard(board, false);
}

void ResumeBoard(Board& board) {
    for (int i = 0; i < kFieldCards; ++i) At(board, i).onTable = At(board, i).HasPicture();
    At(board, kUpCard).onTable = true;
    board.stackShown = true;
    if (board.cardsSelected == 1) At(board, board.firstCardIndex).outlined = true;
}

}  // namespace ch::duopick
