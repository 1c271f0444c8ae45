// SPDX-License-Identifier: GPL-3.0-or-later
// Treyshift's board and its moves as plain functions.
#include "games/treyshift/modTreyshiftBoard.h"

namespace ch::treyshift {

namespace {

constexpr const char* kClick = "\\Click.wav";
constexpr const char* kChord = "\\Chord.wav";
constexpr const char* kMarkq = "\\Markq.wav";

bool InRange(int index, int size) { return index >= 0 && index < size; }

Slot& At(auto& slots, int index) { return slots[static_cast<size_t>(index)]; }

// The picture moves with the card: a card, or the "EMPTY" picture taken past the deck.
void TakeFace(Slot& dest, const Slot& source) {
    dest.card = source.card;
    dest.showsEmpty = source.showsEmpty;
}

void PutCard(Slot& slot, const std::string& code) {
    slot.card = code;
    slot.showsEmpty = false;
}

void PutEmpty(Slot& slot) {
    slot.card.clear();
    slot.showsEmpty = true;
}

void PutNothing(Slot& slot) {
    slot.card.clear();
    slot.showsEmpty = false;
}

// "EMPTY" with no border, as a slot that has given up its card shows.
void EmptySlot(Slot& slot) {
    slot.framed = false;
    PutEmpty(slot);
}

std::string DeckCard(const std::vector<std::string>& deck, int position) {
    return InRange(position, static_cast<int>(deck.size())) ? deck[static_cast<size_t>(position)] : std::string();
}

void CancelSelection(Board& b) {
    b.selected = false;
    b.sourceZone = -1;
    b.sourceIndex = -1;
}

void Select(Board& b, int16_t zone, int index) {
    b.sourceZone = zone;
    b.sourceIndex = static_cast<int16_t>(index);
    b.selected = true;
}

// The fan moves on by one: the card behind comes into play and the next card
// of the deck joins the fan. Past the deck the fan empties from the back and
// each emptied slot loses its border.
void AdvanceFan(Board& b, const std::vector<std::string>& deck) {
    b.deckPosition += 1;
    TakeFace(b.fan[2], b.fan[1]);
    TakeFace(b.fan[1], b.fan[0]);
    if (b.deckPosition < 53)
        PutCard(b.fan[0], DeckCard(deck, b.deckPosition));
    else
        EmptySlot(b.fan[0]);
    if (b.deckPosition == 54) b.fan[1].framed = false;
    if (b.deckPosition == 55) b.fan[2].framed = false;
}

// A card taken from a column: the top slot shows "EMPTY" again and hides the
// slot under it; a lower slot loses its picture and is hidden.
void ClearFieldSource(Board& b, int s) {
    Slot& source = At(b.field, s);
    if (s < 4) {
        PutEmpty(source);
        At(b.field, s + 4).visible = false;
    } else {
        PutNothing(source);
        source.visible = false;
    }
}

// The card lands on the top slot of a column showing "EMPTY" when its
// landing slot was clicked, and under a card when that card was clicked.
// No test refuses a move from one column to another; a move within a column
// can't be made, since selecting hid the column's landing slot.
void MoveToField(Board& b, int& d, const std::vector<std::string>& deck) {
    if (d >= 4 && At(b.field, d - 4).ShowsEmpty()) d -= 4;
    if (At(b.field, d).HasCard()) d += 4;
    if (!InRange(d, kFieldSlots)) return;
    Slot& dest = At(b.field, d);
    const int s = b.sourceIndex;
    if (b.sourceZone == ZoneDeck) {
        dest.framed = true;
        TakeFace(dest, b.fan[2]);
        if (d < 8) At(b.field, d + 4).visible = true;
        AdvanceFan(b, deck);
    } else if (b.sourceZone == ZoneTemp) {
        Slot& source = At(b.storage, s);
        dest.framed = true;
        TakeFace(dest, source);
        EmptySlot(source);
        source.outlined = false;
    } else if (b.sourceZone == ZoneField) {
        Slot& source = At(b.field, s);
        TakeFace(dest, source);
        source.framed = false;
        source.outlined = false;
        dest.framed = true;
        ClearFieldSource(b, s);
    }
}

void MoveToTemp(Board& b, int d, const std::vector<std::string>& deck) {
    Slot& dest = At(b.storage, d);
    const int s = b.sourceIndex;
    if (b.sourceZone == ZoneDeck) {
        TakeFace(dest, b.fan[2]);
        dest.framed = true;
        AdvanceFan(b, deck);
    } else if (b.sourceZone == ZoneTemp) {
        Slot& source = At(b.storage, s);
        TakeFace(dest, source);
        EmptySlot(source);
        dest.framed = true;
        source.outlined = false;
    } else if (b.sourceZone == ZoneField) {
        Slot& source = At(b.field, s);
        TakeFace(dest, source);
        dest.framed = true;
        source.framed = false;
        source.outlined = false;
        ClearFieldSource(b, s);
    }
}

// Once the empty card past the deck has been taken nothing moves any more;
// only the selection ends, and the outline of a card in storage or in the
// field stays where it stood.
Step MoveSelected(Board& b, int& dest, int16_t destZone, const std::vector<std::string>& deck) {
    const bool moves = b.deckPosition < kDeckPositionSpent;
    if (moves) {
        if (destZone == ZoneField)
            MoveToField(b, dest, deck);
        else
            MoveToTemp(b, dest, deck);
    }
    b.selected = false;
    if (b.sourceZone == ZoneDeck) b.fanOutlined = false;
    return moves ? Step{Outcome::Moved, kClick, dest} : Step{Outcome::Kept, "", dest};
}

}  // namespace

void ClearBoard(Board& b) {
    std::array<bool, 4> topVisible{};
    for (size_t i = 0; i < 4; ++i) topVisible[i] = b.field[i].visible;
    const int16_t deckPosition = b.deckPosition;
    b = Board{};
    b.deckPosition = deckPosition;
    for (size_t i = 0; i < 4; ++i) b.field[i].visible = topVisible[i];
    for (Slot& slot : b.fan) slot.framed = true;
}

void DealBoard(Board& b, const std::vector<std::string>& deck) {
    for (int i = 0; i < kUpSlots; ++i) PutCard(At(b.fan, i), DeckCard(deck, i + 1));
    for (Slot& slot : b.storage) PutEmpty(slot);
    for (int i = 0; i < 4; ++i) PutEmpty(At(b.field, i));
    b.deckPosition = kFirstDeckPosition;
}

// Only the card in play can be taken. No test that a card is there: past the
// deck the "EMPTY" picture is taken too.
Step ClickFan(Board& b, int index) {
    if (index != 2) return {Outcome::Refused, kChord, index};
    if (b.selected && b.sourceZone == ZoneDeck) {
        CancelSelection(b);
        b.fanOutlined = false;
        return {Outcome::Cancelled, kMarkq, index};
    }
    if (b.selected) return {Outcome::Refused, kChord, index};
    Select(b, ZoneDeck, 2);
    b.fanOutlined = true;
    return {Outcome::Picked, kClick, index};
}

Step ClickStorage(Board& b, int index, const std::vector<std::string>& deck) {
    if (!InRange(index, kTempSlots)) return {Outcome::Refused, "", index};
    Slot& slot = At(b.storage, index);
    if (b.selected) {
        if (slot.ShowsEmpty()) return MoveSelected(b, index, ZoneTemp, deck);
        if (b.sourceIndex == index && b.sourceZone == ZoneTemp) {
            CancelSelection(b);
            slot.outlined = false;
            return {Outcome::Cancelled, kMarkq, index};
        }
        return {Outcome::Refused, kChord, index};
    }
    if (slot.ShowsEmpty()) return {Outcome::Refused, kChord, index};
    Select(b, ZoneTemp, index);
    slot.outlined = true;
    return {Outcome::Picked, kClick, index};
}

// A click anywhere on a column acts on its lowest visible slot.
Step ClickField(Board& b, int index, const std::vector<std::string>& deck) {
    if (!InRange(index, kFieldSlots)) return {Outcome::Refused, "", index};
    for (int pass = 0; pass < 2; ++pass)
        if (index < 8 && At(b.field, index + 4).visible) index += 4;

    if (!b.selected) {
        if (At(b.field, index).ShowsEmpty()) return {Outcome::Refused, kChord, index};
        // The landing slot goes while a card of its column is selected.
        for (int pass = 0; pass < 2; ++pass) {
            Slot& slot = At(b.field, index);
            if (slot.HasPicture() || index < 4) break;
            slot.visible = false;
            index -= 4;
        }
        // Only the lowest card of a column can be taken.
        if (index < 8 && At(b.field, index + 4).HasPicture()) return {Outcome::Refused, kChord, index};
        Select(b, ZoneField, index);
        At(b.field, index).outlined = true;
        return {Outcome::Picked, kClick, index};
    }
    if (b.sourceIndex == index && b.sourceZone == ZoneField) {
        CancelSelection(b);
        At(b.field, index).outlined = false;
        return {Outcome::Cancelled, kMarkq, index};
    }
    if (index <= 3) {
        const Step step = MoveSelected(b, index, ZoneField, deck);
        At(b.field, index).visible = true;
        return step;
    }
    if (index <= 7) {
        // MoveSelected moves `index` to the slot the card lands in. A card
        // that went under a card whose landing slot a cancelled selection
        // left hidden (slot 8 and on) is itself shown; otherwise the slot
        // under the card placed opens.
        const Step step = MoveSelected(b, index, ZoneField, deck);
        At(b.field, index >= 8 ? index : index + 4).visible = true;
        return step;
    }
    if (!At(b.field, index).HasPicture()) return MoveSelected(b, index, ZoneField, deck);
    return {Outcome::Full, kChord, index};
}

bool BottomFilled(const Board& b, int column) {
    return InRange(column, kColumns) && b.field[static_cast<size_t>(column + 8)].HasPicture();
}

void ClearColumn(Board& b, int column) {
    if (!InRange(column, kColumns)) return;
    EmptySlot(At(b.field, column));
    for (int i : {column + 4, column + 8}) {
        Slot& slot = At(b.field, i);
        slot.framed = false;
        PutNothing(slot);
        slot.visible = false;
    }
}

void ShowCardsOnBoard(Board& b, bool show) {
    for (int i = 0; i < kFieldSlots; ++i) {
        Slot& slot = At(b.field, i);
        if (i < 4 || slot.HasPicture()) slot.visible = show;
    }
    if (!b.selected) return;
    if (b.sourceZone == ZoneDeck) b.fanOutlined = show;
    if (b.sourceZone == ZoneTemp && InRange(b.sourceIndex, kTempSlots)) At(b.storage, b.sourceIndex).outlined = show;
    if (b.sourceZone == ZoneField && InRange(b.sourceIndex, kFieldSlots)) At(b.field, b.sourceIndex).outlined = show;
}

void ClearOutlines(Board& b) {
    b.fanOutlined = false;
    for (Slot& slot : b.storage) slot.outlined = false;
    for (Slot& slot : b.field) slot.outlined = false;
}

bool IsStuck(const Board& b) {
    for (const Slot& slot : b.storage)
        if (!slot.HasCard()) return false;
    for (int i = 8; i < kFieldSlots; ++i)
        if (!b.field[static_cast<size_t>(i)].HasCard()) return false;
    return true;
}

}  // namespace ch::treyshift
