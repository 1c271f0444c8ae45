// SPDX-License-Identifier: GPL-3.0-or-later
// Duopick's board as plain data: the 23 field cards and the up card, the
// waste pile, the stack and the selection, with the moves a click makes. Each
// move says what came of it and the sound it makes; the window then shows the
// board on its controls in one step.
//
// A place is on the table or not, shows a card, the "EMPTY" picture or none,
// takes clicks or not, and carries the selection outline or not. These are
// kept apart on purpose: a stack click that finds no picture for the card it
// puts back leaves a place on the table with no picture, and an outline left
// standing from an abandoned game still cancels a selection when clicked.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "games/duopick/modDuopick.h"

namespace ch::duopick {

struct Place {
    std::string picture;   // the card code it shows, "EMPTY", or "" for no picture
    bool onTable = false;  // shown and clickable when enabled
    bool enabled = true;
    bool outlined = false;
    bool HasPicture() const { return !picture.empty(); }
};

struct Board {
    std::array<Place, kFieldCards + 1> places;  // 0..22 the field, kUpCard the up card
    // deckCards(0..22) the field, 23 the up card, 24..51 the stack; upCards(1..wastePos) the waste pile.
    std::vector<std::string> deckCards = std::vector<std::string>(kDeckCardsSize);
    std::vector<std::string> upCards = std::vector<std::string>(kUpCardsSize);
    int16_t wastePos = 0;
    int16_t stackIndex = kFirstStackCard;
    int16_t cardsSelected = 0;
    int16_t firstCardValue = 0;
    int16_t firstCardIndex = 0;
    bool stackShown = false;
};

enum class Outcome {
    Refused,    // a covered card, or the up card once the waste pile is spent
    Picked,     // the first card of a pair or run is selected
    Cancelled,  // a card with an outline was clicked again
    Pair,
    Run,
    NoMatch,  // the two cards make nothing; both stay
};

struct Step {
    Outcome outcome = Outcome::Refused;
    const char* sound = "";
    bool topRowCleared = false;  // a pair or run took the last card of the top row
    bool overrun = false;        // a stack click went past the stack's end
};

// The deal from `deck` (slots 1..52): the field and the up card face up and
// enabled, the stack's first card next; every place and the stack on show.
void DealBoard(Board& board, const std::vector<std::string>& deck);

// A click on a field card or the up card. Filled as it goes: when the waste
// pile's index runs past its end the move stops with std::out_of_range, and
// `step` holds what was decided up to there.
void ClickCard(Board& board, int index, Step& step);
// A click on the stack: a gap in the field takes the up card back, and the
// stack's next card turns up. Entries past the stack's end are skipped one by
// one, the rest of the move goes on.
Step ClickStack(Board& board, const std::vector<std::string>& deck);

// Every outline goes and every card takes clicks again (the up card only
// while the waste pile holds one); the selection ends, its index stays.
void ClearSelection(Board& board);
// Every place and the stack go on or off the table together.
void ShowCardsOnBoard(Board& board, bool show);
// Pause takes the cards and the outlines off; resuming puts back every field
// card with a picture, the up card, the stack and the selection's outline.
void PauseBoard(Board& board);
void ResumeBoard(Board& board);

}  // namespace ch::duopick
