// SPDX-License-Identifier: GPL-3.0-or-later
// Sumfall's board as plain data: the 22 field places, the up card pile, the
// play pile and the running total, with the moves a click makes. A move says
// what came of it and the sound it makes; the window then shows the board on
// its controls in one step.
//
// A field place that "holds" a card is one whose card is on show: the end of
// a round hides the whole field at once, and the places keep their codes.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "games/sumfall/modSumfall.h"

namespace ch::sumfall {

struct Board {
    std::array<std::string, kFieldPlaces> field;  // the code each place was last given
    std::array<bool, kFieldPlaces> holds{};
    std::array<bool, kFieldPlaces> selected{};
    std::vector<std::string> up = std::vector<std::string>(kUpPileSize + 1);  // from index 1
    int16_t upIndex = 0;  // the up card on show; 0 when the pile is used up
    bool upSelected = false;
    bool upEmpty = false;  // the pile was used up by a combination: it shows "EMPTY"
    std::vector<std::string> stock;  // the play pile, turned from stockIndex down to 0
    int16_t stockIndex = -1;
    std::string pileKey;  // the play pile's picture; "" before the first deal
    int16_t total = 0;
    bool faceDown = false;  // a paused game shows the backs of the cards
};

enum class Outcome {
    Refused,   // nothing changes
    Selected,  // the card joins the total
    Dropped,   // the card leaves the total
};

struct Step {
    Outcome outcome;
    const char* sound;
};

// A new deal from `deck` (slot 0 unused): places 0 to 21 from slots 1 to 22,
// the up card from slot 23 and the play pile from slot 23 on, so that the
// first up card is also the bottom card of the pile and can turn up again at
// its very end. A total of 0 and no selection but place 0's, which a deal
// leaves as it was, as ClearSelections does.
void DealBoard(Board& board, const std::vector<std::string>& deck);

// A click on a field place (already found exposed) or on the up card.
Step ClickField(Board& board, int index, int cardGoal);
Step ClickUp(Board& board, int cardGoal);

// The places that go in a combination, lowest first.
std::vector<int> SelectedPlaces(const Board& board);
// A place taken in a combination: its card leaves the field.
void TakeFromField(Board& board, int index);
// The up card taken in a combination: the one under it shows, or "EMPTY".
void TakeUpCard(Board& board);

// An up card passed over falls back into the first free field place; the
// place, or -1 when every place holds a card and the pile grows instead.
int FallBack(Board& board);
// The next card of the play pile turns up; the selection and the total end.
void TurnUpCard(Board& board);

// Every selection but place 0's ends: a selection there survives.
void ClearSelections(Board& board);
// Every field place shows, or none does.
void ShowField(Board& board, bool show);

bool IsExposed(const Board& board, int index);
// No field place holds a card.
bool FieldCleared(const Board& board);

}  // namespace ch::sumfall
