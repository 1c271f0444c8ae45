// SPDX-License-Identifier: GPL-3.0-or-later
// Treyshift's board as plain data: the fan of up cards, the storage, the four
// columns of the field and the selection, with the moves a click makes. Each
// move says what came of it and the sound it makes; the window then shows the
// board on its controls in one step.
//
// A slot shows a card, the "EMPTY" picture or no picture at all (a lower slot
// of a column with no card). Whether a lower slot of a column is visible is
// part of the board: a click on a column acts on its lowest visible slot, and
// the visible slot under a column's last card is where the next card lands.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "games/treyshift/modTreyshift.h"

namespace ch::treyshift {

struct Slot {
    std::string card;         // the code of the card it shows; "" for none
    bool showsEmpty = false;  // with no card: the "EMPTY" picture rather than none
    bool framed = false;      // a border is drawn around it
    bool visible = false;     // kept for the field's slots
    bool outlined = false;    // a selection outline stands on it

    bool HasCard() const { return !card.empty(); }
    bool ShowsEmpty() const { return card.empty() && showsEmpty; }
    bool HasPicture() const { return !card.empty() || showsEmpty; }
};

struct Board {
    std::array<Slot, kUpSlots> fan;  // fan[2] is the card in play, fan[0] the one at the back
    std::array<Slot, kTempSlots> storage;
    std::array<Slot, kFieldSlots> field;  // column c holds slots c, c + 4, c + 8, top to bottom
    bool fanOutlined = false;             // the outline on the card in play
    int16_t deckPosition = 0;             // the deck slot last turned up
    bool selected = false;
    // The source of the selection; a move ends the selection but leaves these.
    int16_t sourceZone = -1;
    int16_t sourceIndex = -1;
};

enum class Outcome {
    Refused,    // nothing changes
    Picked,     // a card is selected
    Cancelled,  // the selected card was clicked again
    Moved,      // the selected card went to the slot clicked
    Kept,       // past the spent deck: the selection ends, nothing moves
    Full,       // the column clicked holds three cards; the selection stays
};

struct Step {
    Outcome outcome;
    const char* sound;  // "" for none
    int slot;           // the slot the click came to act on, after any move
};

// A new round's board: no pictures, no selection; the fan is framed. The deck
// position and whether the top row of the field is visible stay as they were.
void ClearBoard(Board& board);
// The fan takes deck slots 1 to 3, storage and the top row show "EMPTY".
void DealBoard(Board& board, const std::vector<std::string>& deck);

Step ClickFan(Board& board, int index);
Step ClickStorage(Board& board, int index, const std::vector<std::string>& deck);
Step ClickField(Board& board, int index, const std::vector<std::string>& deck);

// A column whose bottom slot shows a picture is tested for a Trip or a Run.
bool BottomFilled(const Board& board, int column);
// A column that scores: its top slot shows "EMPTY", the others nothing and are hidden.
void ClearColumn(Board& board, int column);

// Pause and the end of a round hide the top row, the lower slots that show a
// picture and the outline of the selection; the lower slots with no picture
// keep their visibility.
void ShowCardsOnBoard(Board& board, bool show);
void ClearOutlines(Board& board);

// A full storage and four full bottom slots: the only position taken as stuck.
bool IsStuck(const Board& board);

}  // namespace ch::treyshift
