// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/spirehold/modSpireholdBoard.h"

namespace ch::spirehold {

void DealBoard(Board& board, const std::vector<std::string>& deck, int back) {
    for (int i = 0; i <= kLastDealtIndex; ++i) {
        const std::string& code = deck.at(static_cast<size_t>(i) + 1);
        board.deckCards[static_cast<size_t>(i)] = code;
        if (i < kTopRowCards) {
            Place& card = board.towers[static_cast<size_t>(i)];
            card.card.clear();
            card.back = back;
        } else if (i < kTowerCards) {
            Place& card = board.towers[static_cast<size_t>(i)];
            card.ShowFace(code);
            card.enabled = true;
            card.onTable = true;
        } else if (i == kLastDealtIndex) {
            board.upCard.ShowFace(code);
            board.upCard.enabled = true;
            board.upCardCode = code;
            board.upCardValue = static_cast<int16_t>(Rank(code));
        }
    }
    board.stackIndex = kFirstStackIndex;
    ShowCardsOnBoard(board, true, true);
}

bool TakeCard(Board& board, int index, int currentBack) {
    Place& card = board.towers.at(static_cast<size_t>(index));
    if (card.FaceDown(currentBack)) return false;
    const int rank = Rank(board.deckCards[static_cast<size_t>(index)]);
    if (!IsNeighbour(rank, board.upCardValue)) return false;
    board.upCardValue = static_cast<int16_t>(rank);
    board.upCard.card = card.card;
    board.upCard.back = card.back;
    // No picture marks the card as gone.
    card.card.clear();
    card.back = 0;
    card.onTable = false;
    return true;
}

void TurnCardsBy(Board& board, int removed) {
    std::array<bool, kTowerCards> onTable{};
    for (size_t i = 0; i < onTable.size(); ++i) onTable[i] = board.towers[i].onTable;
    for (int p : CardsTurnedBy(removed, onTable)) {
        Place& card = board.towers[static_cast<size_t>(p)];
        card.ShowFace(board.deckCards[static_cast<size_t>(p)]);
        card.enabled = true;
    }
}

void ClickStack(Board& board, const std::vector<std::string>& deck) {
    const int next = board.stackIndex + 1;
    if (next < static_cast<int>(deck.size())) board.upCard.ShowFace(deck[static_cast<size_t>(next)]);
    if (board.stackIndex < INT16_MAX) board.stackIndex += 1;
    if (board.stackIndex - 1 < kDeckCardsSize)
        board.upCardValue = static_cast<int16_t>(Rank(board.deckCards[static_cast<size_t>(board.stackIndex) - 1]));
}

void ShowCardsOnBoard(Board& board, bool show, bool disable) {
    for (int i = 0; i < kTowerCards; ++i) {
        Place& card = board.towers[static_cast<size_t>(i)];
        card.onTable = show;
        if (disable && i < kTopRowCards) card.enabled = false;
    }
    board.stackShown = show;
    board.upCard.onTable = show;
}

void ResumeBoard(Board& board) {
    for (Place& card : board.towers) card.onTable = card.HasPicture();
    board.stackShown = true;
    board.upCard.onTable = true;
}

void RedrawBacks(Board& board, int back) {
    for (Place& card : board.towers)
        if (card.onTable && !card.enabled) {
            card.card.clear();
            card.back = back;
        }
}

}  // namespace ch::spirehold
