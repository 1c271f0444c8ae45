// SPDX-License-Identifier: GPL-3.0-or-later
// The rules of Treyshift as plain data and functions: how a column of three
// cards scores (Trip, Run, flush Run) and what each pays with which sound,
// the deck stack and card count, the end of a round, and the scoring values
// with their defaults. The board and its moves are in modTreyshiftBoard.h.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace ch::treyshift {

constexpr int kFieldSlots = 12;  // column c holds slots c, c + 4, c + 8, top to bottom
constexpr int kColumns = 4;
constexpr int kTempSlots = 3;
constexpr int kUpSlots = 3;      // UpCards(2) is the card in play

// The three zones a card moves between.
constexpr int16_t ZoneDeck = 0;
constexpr int16_t ZoneTemp = 1;
constexpr int16_t ZoneField = 2;

// The deck slot last turned up after the deal; each card taken adds one.
constexpr int kFirstDeckPosition = 3;
// From here on a move does nothing: the empty card past the deck was taken.
constexpr int kDeckPositionSpent = 56;

// The values the custom scoring dialog edits, with their defaults; the
// window, its rules text and the dialog read them from here.
struct ScoringValues {
    int32_t TripValue = 6000;     // three of a rank
    int32_t RunValue = 300;       // three in sequence
    int32_t FlushValue = 5000;    // extra for a Run of one suit
    int32_t DeckValue = 15000;    // using up the deck
    int32_t PenaltyValue = 250;   // each left over card after the deck is used up, held positive
    int32_t BonusScore = 100000;  // score after round 2 that earns the bonus round
};
inline constexpr ScoringValues kDefaults{};
constexpr int32_t kDefaultTimeBonus = 200;  // the suite's TimeBonus while Treyshift is open: each second left
constexpr int16_t kDefaultTimeLimit = 120;

// The high score table. A missing table is made with the default score the
// call passes: the table shown at load and by the clear command passes
// 50000, the time limit entries and the end of a game pass 30000.
inline constexpr const char* kTable = "TreyshiftHiScores";
inline constexpr const char* kTableDefault = "50000";
inline constexpr const char* kRoundsDefault = "30000";

// True unless every value and the time bonus equal their defaults.
bool IsCustomScoring(const ScoringValues& values, int32_t timeBonus);

// ---- Columns -----------------------------------------------------------------
enum class ColumnKind { None, Trip, Run, FlushRun };

// Three of a rank, by the numbers at the start of the codes.
bool IsTrip(int top, int middle, int bottom);
// Three in sequence read from the top, up or down; the ace counts low in
// both, and high only in ace-king-queen and queen-king-ace.
bool IsRun(int top, int middle, int bottom);
// The three codes end in the same suit letter.
bool IsFlush(const std::string& top, const std::string& middle, const std::string& bottom);
// What a full column makes; a Trip is never tested for a flush.
ColumnKind ScoreColumn(const std::string& top, const std::string& middle, const std::string& bottom);

// What a column pays during play and the sound it makes. A flush Run pays
// its flush first, with the flush message, then the Run.
struct ColumnAward {
    long long points;       // TripValue or RunValue; 0 for a column that stays
    long long flushPoints;  // FlushValue for a flush Run, else 0
    const char* sound;      // "" for a column that stays
};
ColumnAward AwardFor(ColumnKind kind, const ScoringValues& values);

// ---- Deck ----------------------------------------------------------------------
// The stack picture after a card is taken: "FULL", "HALF", "BACK", "EMPTY".
const char* StackKey(int deckPosition);
// "Cards remaining: 52"; -1 once the empty card past the deck is taken.
std::string CardsRemainingText(int deckPosition);

// The penalty as the player sees it: a minus sign before the value held,
// "-250"; "--20000" for the limit kept with its sign.
std::string PenaltyText(int32_t penalty);

// ---- Round ---------------------------------------------------------------------
// After the round just scored: the game ends after round 2 unless the score
// reached BonusScore, and always after the bonus round.
bool GameEndsAfter(int round, long long score, long long bonusScore);
// "Prepare For Round 2", "Prepare For Bonus Round".
std::string PrepareText(int nextRound);

}  // namespace ch::treyshift
