// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/sumfall/modSumfallBoard.h"

#include <algorithm>

#include "suite/cards.h"

namespace ch::sumfall {

namespace {
constexpr const char* kChord = "\\Chord.wav";
constexpr const char* kMark = "\\Markq.wav";
constexpr const char* kTick = "\\Tick.wav";

Step Toggle(bool& selected, int16_t& total, int value, int cardGoal) {
    if (selected) {
        total = static_cast<int16_t>(total - value);
        selected = false;
        return {Outcome::Dropped, kTick};
    }
    if (value + total > cardGoal) return {Outcome::Refused, kChord};
    total = static_cast<int16_t>(total + value);
    selected = true;
    return {Outcome::Selected, kMark};
}
}  // namespace

void DealBoard(Board& board, const std::vector<std::string>& deck) {
    const int lastCard = static_cast<int>(deck.size()) - 1;
    board.stock.assign(static_cast<size_t>(std::max(lastCard - 22, 0)) + 1, std::string());
    const int stockUpperBound = static_cast<int>(board.stock.size()) - 1;
    board.stockIndex = static_cast<int16_t>(stockUpperBound - 1);
    for (int i = 0; i < kFieldPlaces; ++i) {
        board.field[static_cast<size_t>(i)] = deck.at(static_cast<size_t>(i + 1));
        board.holds[static_cast<size_t>(i)] = true;
    }
    ClearSelections(board);
    board.up.assign(kUpPileSize + 1, std::string());
    board.up[1] = deck.at(23);
    board.upIndex = 1;
    board.upSelected = false;
    board.upEmpty = false;
    for (int i = 23, j = 0; i <= lastCard && j <= stockUpperBound; ++i, ++j)
        board.stock[static_cast<size_t>(j)] = deck[static_cast<size_t>(i)];
    board.pileKey = "FULL";
    board.total = 0;
    board.faceDown = false;
}

Step ClickField(Board& board, int index, int cardGoal) {
    const size_t i = static_cast<size_t>(index);
    return Toggle(board.selected[i], board.total, CardValue(board.field[i]), cardGoal);
}

Step ClickUp(Board& board, int cardGoal) {
    if (board.upIndex == 0) return {Outcome::Refused, kChord};
    return Toggle(board.upSelected, board.total, CardValue(board.up[static_cast<size_t>(board.upIndex)]), cardGoal);
}

std::vector<int> SelectedPlaces(const Board& board) {
    std::vector<int> places;
    for (int i = 0; i < kFieldPlaces; ++i)
        if (board.selected[static_cast<size_t>(i)]) places.push_back(i);
    return places;
}

void TakeFromField(Board& board, int index) {
    board.selected[static_cast<size_t>(index)] = false;
    board.holds[static_cast<size_t>(index)] = false;
}

void TakeUpCard(Board& board) {
    board.upSelected = false;
    board.upIndex -= 1;
    board.upEmpty = board.upIndex <= 0;
}

int FallBack(Board& board) {
    for (int i = 0; i < kFieldPlaces; ++i) {
        if (board.holds[static_cast<size_t>(i)]) continue;
        board.holds[static_cast<size_t>(i)] = true;
        board.field[static_cast<size_t>(i)] = board.up[static_cast<size_t>(board.upIndex)];
        board.upIndex -= 1;
        return i;
    }
    return -1;
}

void TurnUpCard(Board& board) {
    const std::string turned = board.stock[static_cast<size_t>(board.stockIndex)];
    board.upIndex += 1;
    // The pile grows as far as the player turns cards without using them.
    if (static_cast<size_t>(board.upIndex) >= board.up.size()) board.up.resize(static_cast<size_t>(board.upIndex) + 1);
    board.up[static_cast<size_t>(board.upIndex)] = turned;
    board.upEmpty = false;
    board.stockIndex -= 1;
    board.selected.fill(false);
    board.upSelected = false;
    board.total = 0;
    board.pileKey = PlayPileKey(board.stockIndex + 1);
}

void ClearSelections(Board& board) {
    std::fill(board.selected.begin() + 1, board.selected.end(), false);
    board.upSelected = false;
}

void ShowField(Board& board, bool show) { board.holds.fill(show); }

bool IsExposed(const Board& board, int index) { return IsExposed(index, board.holds); }

bool FieldCleared(const Board& board) {
    return std::none_of(board.holds.begin(), board.holds.end(), [](bool h) { return h; });
}

}  // namespace ch::sumfall
