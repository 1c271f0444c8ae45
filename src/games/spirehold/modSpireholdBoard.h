// SPDX-License-Identifier: GPL-3.0-or-later
// Spirehold's board as plain data: the 28 tower cards, the up card, the stack
// and the deck's order, with the moves a click makes. The window shows the
// board on its controls after each move.
//
// A place shows a card's face, a back or nothing. A back is kept as the
// picture of the back design that was current when it was drawn: a card is
// face down while it shows the current design's back, so a back drawn under
// another design (a card that took clicks while the design changed) no longer
// counts as face down. A place on the table is shown; one that is enabled
// takes clicks.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "games/spirehold/modSpirehold.h"

namespace ch::spirehold {

struct Place {
    std::string card;  // the face it shows; "" for none
    int back = 0;      // with no face: the back picture it shows, 0 for nothing
    bool onTable = false;
    bool enabled = true;
    bool HasPicture() const { return !card.empty() || back != 0; }
    bool FaceDown(int currentBack) const { return card.empty() && back == currentBack; }
    void ShowFace(const std::string& code) {
        card = code;
        back = 0;
    }
};

struct Board {
    std::array<Place, kTowerCards> towers;
    Place upCard;
    bool stackShown = false;
    std::vector<std::string> deckCards = std::vector<std::string>(kDeckCardsSize);
    int16_t stackIndex = kFirstStackIndex;
    std::string upCardCode;  // the up card of the deal
    int16_t upCardValue = kNoRank;
};

// The deal from `deck` (slots 1..52): cards 0 to 17 show `back`, the bottom
// row its faces, DeckCards(51) the up card; everything on show, the cards
// dealt face down take no clicks.
void DealBoard(Board& board, const std::vector<std::string>& deck, int back);

// A click on a tower card: a face-up card one rank from the up card becomes
// the up card and leaves the table. False when it is refused.
bool TakeCard(Board& board, int index, int currentBack);
// After a card below the tops went: the cards it uncovers turn face up.
void TurnCardsBy(Board& board, int removed);

// A click on the stack: its next card turns up. Past the deck's end the up
// card keeps its picture and, past DeckCards(52), its rank. At the top of its
// 16-bit range the stack's index can't be raised, and stays.
void ClickStack(Board& board, const std::vector<std::string>& deck);

// Every place, the stack and the up card on or off the table together;
// `disable` also stops clicks on cards 0 to 17.
void ShowCardsOnBoard(Board& board, bool show, bool disable);
// Resuming puts back every tower card with a picture, the stack and the up card.
void ResumeBoard(Board& board);
// A new back design: the cards on the table that take no clicks show it.
void RedrawBacks(Board& board, int back);

}  // namespace ch::spirehold
