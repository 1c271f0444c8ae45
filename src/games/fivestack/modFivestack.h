// SPDX-License-Identifier: GPL-3.0-or-later
// The rules of Fivestack as plain data and functions: card values, aces, the
// play of a card on a column and the rescue of a column by its soft ace, the
// Card Total Value table, the falling Time Bonus, and the scoring values with
// their defaults.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace ch::fivestack {

constexpr int kColumns = 5;
constexpr int kSlots = 5;  // cards a column holds
constexpr int kLowestScoringTotal = 97;
constexpr int kPerfectTotal = 105;
constexpr int16_t kBustTotal = 9999;  // CardTotal after a bust
constexpr int kAwesomeValue = 1000;   // the value of a perfect 105

// The window's files and its design size.
inline constexpr const char* kTable = "HiScores";
inline constexpr const char* kDefaultTopScore = "50000";
inline constexpr const char* kSettingsFile = "\\Fivestack.Ini";
constexpr int kDesignWidth = 9540;
constexpr int kDesignHeight = 7305;
constexpr int kCardWidth = 1035;
constexpr int kCardHeight = 1455;

// The image arrays of the columns (index = card slot) and their rules.
inline constexpr const char* kColumnImages[kColumns] = {"Column1", "Column2", "Column3", "Column4", "Column5"};
inline constexpr const char* kColumnLines[kColumns] = {"Column1Line", "Column2Line", "Column3Line", "Column4Line",
                                                       "Column5Line"};

constexpr int16_t kDefaultTimeLimit = 60;

// The values the User Options dialog edits, with their defaults; the
// settings file keeps them.
struct ScoringValues {
    int32_t BonusScore = 200000;  // the score after round 3 that earns the bonus round
    int16_t TimeBonusMax = 300;   // the Time Bonus at second 0
    int16_t TimeBonusMin = 100;   // the Time Bonus at the time limit
    int16_t WaitPeriod = 2000;    // milliseconds between rounds
    int16_t CardsToPass = 1;      // cards a player may pass each round
};

// A card code's value: its leading number, and 10 for anything above 10. An
// ace comes back as 1 and is judged by AceWorth.
int GetCardValue(const std::string& code);

// One column as the window shows it: the total of its label, the cards laid
// and the aces in it that stand at 11.
struct Column {
    int16_t total = 0;
    int16_t cards = 0;
    int16_t softAces = 0;
};

// An ace is worth 11 when the column's total before it plus 11 stays at 21
// or less, and then counts as a soft ace of the column; otherwise 1.
int16_t CalculateAces(Column& column);

// What laying a card did to its column.
struct LaidCard {
    int16_t value = 0;   // what the card added to the total
    bool soft = false;   // an ace that counts 11 ("Soft" shows)
    bool closes = false; // the column's fifth card
};
// Lays a card of GetCardValue `cardValue` on the column: cards + 1, an ace
// judged, the total raised.
LaidCard LayCard(Column& column, int cardValue);

// A column over 21: false when it holds no soft ace (the round is lost).
// Otherwise its soft ace goes down to 1: softAces falls by 1 and, when none
// is left, the total is lowered by 10; true.
bool SaveWithSoftAce(Column& column);

// The Card Total Value table, best row first; the last row stands for every
// total below 97.
struct CardTotalRow {
    const char* rowLabel;   // "lbl105"
    const char* valueLabel; // "lblScore105"
    const char* caption;    // "105", "< 97"
    int value;              // 1000 .. 50, 0
};
extern const std::array<CardTotalRow, 10> kCardTotalRows;
// The row of a Card Total: 105 to 97 their own, below 97 the last, above 105
// (a bust) none (-1).
int CardTotalRowIndex(int cardTotal);
// A Card Total that may be scored: 97 to 105.
inline bool IsScoringTotal(int cardTotal) { return cardTotal >= kLowestScoringTotal && cardTotal <= kPerfectTotal; }

// (max - min) / limit, in single precision.
float TimeBonusDecay(int timeBonusMax, int timeBonusMin, int timeLimit);
// The Time Bonus after `elapsed` seconds: (max + min) - (elapsed * decay +
// min), rounded half to even: the maximum at second 0, the minimum at the
// time limit.
int32_t TimeBonusAt(int elapsed, int timeBonusMax, int timeBonusMin, float decay);

// A high score made under other values than the defaults of the Time Bonus
// range, the bonus score and the passes left is marked.
bool IsCustomScoring(const ScoringValues& values, int passesLeft);

}  // namespace ch::fivestack
