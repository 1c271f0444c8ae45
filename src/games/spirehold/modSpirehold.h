// SPDX-License-Identifier: GPL-3.0-or-later
// The rules of Spirehold as plain data and functions: the 28 places of the
// three towers and which places cover which, the neighbour rule of the run
// (King and Ace are neighbours both ways), which cards a removal turns over,
// the stages of the stack, and the scoring values with their defaults.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace ch::spirehold {

constexpr int kTowerCards = 28;  // UpCardImage(0..27)
constexpr int kTopRowCards = 18; // cards 0 to 17 are dealt face down
constexpr int kFirstStackIndex = 28;
constexpr int kLastDealtIndex = 51;  // DeckCards(51) is the first up card
constexpr int kDeckCardsSize = 53;   // DeckCards(0..52); 52 stays empty
constexpr int kCardsInStack = 24;
constexpr int16_t kNoRank = 99;      // UpCardValue before the first deal

constexpr int kCardWidth = 1065;
constexpr int kCardHeight = 1455;
constexpr int kDesignWidth = 9570;
constexpr int kDesignHeight = 7200;

constexpr int16_t kDefaultTimeLimit = 45;
constexpr int32_t kDefaultTimeBonus = 100;  // the suite's TimeBonus while Spirehold is open

// One place of the towers at the window's design size.
struct TowerPlace {
    int row;            // 1 the top row .. 4 the bottom row
    int left, top;      // twips
    int coveredBy[2];   // the pair that lies on it; -1 for none (row 4)
};
extern const std::array<TowerPlace, kTowerCards> kTowerPlaces;

// The design places of the stack and the up card.
constexpr int kStackLeft = 2100;
constexpr int kUpCardLeft = 3300;
constexpr int kPilesTop = 4215;

// The rank of a card code: 1 for an Ace .. 13 for a King.
int Rank(const std::string& code);

// Whether a face-up card of rank `rank` may follow the up card of rank
// `upRank`: one above or one below, King and Ace neighbours both ways. An up
// rank that is no rank (99 before the first deal, 0 after the stack ran out)
// allows nothing.
bool IsNeighbour(int rank, int upRank);

// The tower (1 to 3) that falls with a card, or 0 for a card below the tops.
int TowerOfTop(int index);

// The cards turned over when card `removed` goes: each card it covers whose
// other covering card is no longer on the table, in ascending order.
// `onTable` tells which cards are still there (the removed one already not).
std::vector<int> CardsTurnedBy(int removed, const std::array<bool, kTowerCards>& onTable);

// The picture key of the stack for the index of its next card: "FULL",
// "HALF", "BACK", "EMPTY" at 52, and "" past it (the stack has run out).
const char* StackStageKey(int stackIndex);

// The values the custom scoring dialog edits, with their defaults; the
// settings file keeps them.
struct ScoringValues {
    int16_t CardValue = 100;      // what each card added to a run adds to its worth
    int32_t BonusScore = 40000;   // the score that earns the bonus round
    int32_t HighRunBonus = 1000;  // each card of a new longest run
    int32_t TowerBonus = 5000;    // each tower cleared
};
// CustomScoringInUse: a value or the time bonus differs from its default.
bool IsCustomScoring(const ScoringValues& values, int32_t timeBonus);

}  // namespace ch::spirehold
