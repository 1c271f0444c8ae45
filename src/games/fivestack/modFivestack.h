// SPDX-License-Identifier: GPL-3.0-or-later
// The rules of Fivestack as plain data and functions: card values, aces, the
// play of a card on a column and the rescue of a column by its soft ace, the
// Card Total Value table, the falling Time Bonus, the default settings, and
// the checks of the User Options dialog.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
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
constexpr int16_t kDefaultTimeBonusMax = 300;
constexpr int16_t kDefaultTimeBonusMin = 100;
constexpr int32_t kDefaultBonusScore = 200000;
constexpr int16_t kDefaultWaitPeriod = 2000;
constexpr int16_t kDefaultCardsToPass = 1;

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
    int total;              // 105 .. 97, 0 for "< 97"
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

// A high score made under other values than these four defaults is marked.
bool IsCustomScoring(int timeBonusMin, int timeBonusMax, int32_t bonusScore, int passesLeft);

// A number as the dialog's boxes show it: a whole number without a decimal
// part ("2"), a fraction as it is ("1.5").
std::string NumberText(double value);

// ---- The User Options dialog's check ------------------------------------------
enum class OptionField { Passes, Wait, Bonus, Maximum, Minimum };

// The texts of the dialog's boxes, as the check reads and rewrites them.
struct OptionTexts {
    std::string passes, wait, bonus, maximum, minimum;
    std::string& of(OptionField field);
};
// The values the check stores, field by field.
struct OptionValues {
    int16_t passesLeft = kDefaultCardsToPass;
    int16_t cardsToPass = kDefaultCardsToPass;
    int16_t waitPeriod = kDefaultWaitPeriod;
    int32_t bonusScore = kDefaultBonusScore;
    int16_t timeBonusMax = kDefaultTimeBonusMax;
    int16_t timeBonusMin = kDefaultTimeBonusMin;
};
// Told of each failed test in turn: the message and the text the box takes.
using OptionFailure = std::function<void(OptionField field, const std::string& message, const std::string& text)>;

// Checks the fields in their fixed order (passes, wait, bonus, maximum,
// minimum). In each field the tests run in order until one fails: its
// message is reported and the box takes the text the test gives; a clamped
// value is stored. A field that passes is stored at once, rounded to a whole
// number. Text that is no number counts as 0. True when every test passed.
bool CheckOptions(OptionTexts& texts, OptionValues& values, const OptionFailure& failed);

}  // namespace ch::fivestack
