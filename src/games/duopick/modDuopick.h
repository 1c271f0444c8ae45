// SPDX-License-Identifier: GPL-3.0-or-later
// The rules of Duopick as plain data and functions: the places of the 23
// field cards and the up card, which two cards cover each field card, pairs
// and runs, the stages of the stack picture, the order of the awards at the
// end of a round, and the default scoring values.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace ch::duopick {

constexpr int kFieldCards = 23;      // PlayCard(0..22)
constexpr int kUpCard = 23;          // PlayCard(23), the top of the waste pile
constexpr int kFirstStackCard = 24;  // DeckCards(24..51) is the stack
constexpr int kDeckCardsSize = 53;   // DeckCards(0..52); entry 52 stays empty
constexpr int kUpCardsSize = 31;     // UpCards(0..30); entry 0 is not used
constexpr int kStackCards = 28;
constexpr int kCardWidth = 1035;
constexpr int kCardHeight = 1455;

constexpr int32_t kDefaultTimeBonus = 100;  // the suite's TimeBonus while Duopick is open

struct CardPlace {
    int left, top;
};
// PlayCard(0..23) at the window's design size.
extern const std::array<CardPlace, kFieldCards + 1> kPlaces;

// The two cards that lie on each field card; -1 where none does (the bottom
// row). Each card lies under the two cards of the next row whose index is 4
// and 5 higher, except the four end cards of rows 1 and 3 (0, 4, 9, 13): with
// only one neighbour in the next row, the card straight below them two rows
// down covers them as well.
extern const std::array<std::array<int, 2>, kFieldCards> kCoveredBy;

// True when the card at `index` is exposed: neither of its two covering cards
// is on the table. The up card is always exposed.
bool IsExposed(int index, const std::array<bool, kFieldCards>& onTable);

enum class Match { None, Pair, Run };
// What the second card makes with the first, by rank (1 Ace .. 13 King):
// the same rank a pair, neighbouring ranks a run, King and Ace neighbours
// both ways round. A rank of 0 (an empty up card) runs only into an Ace.
Match MatchOf(int firstRank, int secondRank);

// The picture of the stack once StackIndex has reached `stackIndex`: empty
// for no change (up to 27), "FULL", "HALF", "BACK", then "EMPTY" at 52.
// Beyond 52 the stack has overrun: StackOverrun.
std::string StackStage(int stackIndex);
inline bool StackOverrun(int stackIndex) { return stackIndex > 52; }

// The first place from 0 to 22 without a picture, -1 when every one has one.
int FirstGap(const std::array<bool, kFieldCards>& hasPicture);

// ---- Scoring --------------------------------------------------------------
// The values the custom scoring dialog edits, with their defaults; the
// settings file keeps them.
struct ScoringValues {
    int32_t PairsBonus = 3000;
    int32_t RunsBonus = 500;
    int32_t BonusScore = 80000;
    int32_t CompletionBonus = 10000;
};
// True unless every value and the time bonus have their defaults.
bool IsCustom(const ScoringValues& scoring, int32_t timeBonus);

// One award of the end of a round, in the order paid.
struct Award {
    enum class Kind { Named, Time } kind = Kind::Named;
    std::string title;  // "Runs Bonus"; the count-up adds the "!"
    long long count = 0;
    long long value = 0;
};
// The awards of a round: the completion bonus when the top row was cleared,
// the time bonus for any second left, the runs, then the pairs; a count of 0
// pays nothing and is left out.
std::vector<Award> RoundAwards(const ScoringValues& scoring, int32_t timeBonus, bool roundCompleted,
                               int secondsLeft, int32_t runs, int32_t pairs);
// What follows a round, by CurrentRound once it has been raised by one:
// round two after round 1, the bonus round after round 2 for a score of at
// least BonusScore, otherwise the end of the game.
enum class AfterRound { RoundTwo, BonusRound, GameOver };
AfterRound NextStep(int roundAfter, int32_t score, int32_t bonusScore);

}  // namespace ch::duopick
