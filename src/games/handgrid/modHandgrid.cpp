// SPDX-License-Identifier: GPL-3.0-or-later
// Handgrid's rules: naming a poker hand in a line of five cells, the grid's
// transposition, the tables of hand names and stack pictures, and whether the
// scoring is custom.
#include "games/handgrid/modHandgrid.h"

#include <cmath>
#include <utility>

#include "window/basic.h"

namespace ch::handgrid {

const std::array<const char*, kHands> kHandNames = {
    "Nothing", "1 Pair", "2 Pair", "3 of a kind", "Straight", "Flush", "Full House", "4 of a kind", "St. Flush",
    "Royal Flush",
};


int HandColour(const std::string& handName) {
    return handName == kHandNames[Nothing] ? kButtonTextColour : kHandColour;
}

Line LineOf(const Grid& cells, int line) {
    Line out;
    for (int i = 0; i < kLines; ++i) {
        const std::string& cell = cells[static_cast<size_t>(line * kLines + i)];
        out[static_cast<size_t>(i)] = cell.empty() ? "0" : Trim(cell);
    }
    return out;
}

void TransposeCards(Grid& cells) {
    static const std::pair<int, int> kSwaps[] = {{1, 5},  {2, 10}, {3, 15},  {4, 20},  {7, 11},
                                                 {8, 16}, {9, 21}, {13, 17}, {14, 22}, {19, 23}};
    for (const auto& [a, b] : kSwaps) std::swap(cells[static_cast<size_t>(a)], cells[static_cast<size_t>(b)]);
}

std::string HandString(Line hand) {
    // Bubble passes; equal values keep their order.
    for (int pass = 0; pass < 4; ++pass)
        for (size_t i = 0; i < 4; ++i)
            if (Val(hand[i + 1]) < Val(hand[i])) std::swap(hand[i], hand[i + 1]);
    std::string text;
    for (const std::string& card : hand) text += NumText(static_cast<long long>(Val(card)));
    return text;
}

bool IsStraightString(const std::string& handString) {
    if (handString.empty()) return false;
    switch (handString[0]) {
        case '1': return handString == "110111213" || handString == "12345";
        case '2': return handString == "23456";
        case '3': return handString == "34567";
        case '4': return handString == "45678";
        case '5': return handString == "56789";
        case '6': return handString == "678910";
        case '7': return handString == "7891011";
        case '8': return handString == "89101112";
        case '9': return handString == "910111213";
        default: return false;
    }
}

Hand EvaluateHand(const Line& hand) {
    // Tally suits by the last character and ranks by the numeric value.
    std::array<int, 4> suits{};
    std::array<int, 14> ranks{};
    for (const std::string& card : hand) {
        const char suit = card.empty() ? '\0' : card.back();
        static const char kSuits[] = "SHCD";
        for (int s = 0; s < 4; ++s)
            if (suit == kSuits[s]) suits[static_cast<size_t>(s)] += 1;
        const double value = Val(card);
        if (value >= 1 && value <= 13 && value == std::floor(value)) ranks[static_cast<size_t>(value)] += 1;
    }
    int pairs = 0, trips = 0, fours = 0;
    for (int rank = 1; rank <= 13; ++rank) {
        const int tally = ranks[static_cast<size_t>(rank)];
        if (tally == 2) pairs += 1;
        if (tally == 3) trips += 1;
        if (tally == 4) fours += 1;
    }

    Hand name = Nothing;
    if (pairs == 1) name = OnePair;
    if (pairs == 2) name = TwoPair;
    if (trips == 1) name = Trips;
    for (int tally : suits)
        if (tally == 5) name = Flush;

    const std::string handString = HandString(hand);
    const bool straight = IsStraightString(handString);
    if (name != Flush && straight) name = Straight;
    if (name == Flush && straight) name = handString == "110111213" ? RoyalFlush : StraightFlush;

    if (trips == 1 && pairs == 1) name = FullHouse;
    if (fours == 1) name = Four;
    return name;
}

const char* StackPictureKey(int cardsLeft) {
    if (cardsLeft > 25) return "FULL";
    if (cardsLeft > 12) return "HALF";
    if (cardsLeft < 1) return "EMPTY";
    return "BACK";
}

std::string OverWritesText(int remaining) { return "Over Writes Remaining: " + NumText(remaining); }

int OverWritesColour(const std::string& caption) {
    const bool zero = caption.size() >= 2 && caption.compare(caption.size() - 2, 2, " 0") == 0;
    return zero ? Colour::Red : Colour::Blue;
}

bool IsCustomScoring(const ScoringValues& values, int32_t timeBonus) {
    const ScoringValues d;
    return values.HandScores != d.HandScores || timeBonus != kDefaultTimeBonus || values.BonusScore != d.BonusScore ||
           values.OverWritesAllowed != d.OverWritesAllowed;
}

}  // namespace ch::handgrid
