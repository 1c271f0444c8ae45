// SPDX-License-Identifier: GPL-3.0-or-later
// The rules of Blackrush as plain data and functions: the scoring values and
// their defaults, what a card counts on a column, the pile picture for a place
// in the deck, the 21 Counter's step, the round's 21s payout, the bonus round
// test, and the wait as the user options dialog shows it.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace ch::blackrush {

// The window's files: its high score tables (one per time limit, a new one
// led by this score) and its settings.
inline constexpr const char* kTableName = "BlackrushHiScores";
inline constexpr const char* kTableTopScore = "50000";
inline constexpr const char* kSettingsFileName = "\\Blackrush.Ini";

constexpr int kColumns = 4;
constexpr int kSlots = 5;         // cards a column can hold; the fifth is a Five Card Gimme
constexpr int kDeckCards = 52;
constexpr int32_t kBustCost = 100;
constexpr int kFlashAt = 50;      // the 21 Counter starts to flash at this value

constexpr int16_t kNormalSpeed = 90;
constexpr int16_t kSlowSpeed = 180;
constexpr int16_t kSlowestSpeed = 360;

// The values a player may change in the user options dialog, with their
// defaults. They are kept in the settings file.
struct ScoringValues {
    int16_t CardsToPass = 3;
    int32_t TwentyOneBonusValue = 1000;
    int32_t CardsUsedBonusValue = 100;
    int32_t FiveCardGimmeBonus = 750;
    int32_t DeckCompletionBonus = 100000;
    int32_t BonusScore = 250000;
    int16_t CounterSpeed = kNormalSpeed;  // interval of the 21 Counter's timer
    int16_t WaitPeriod = 2000;            // milliseconds between rounds
};

// CustomScoringInUse: any value but the 21 bonus and the wait differs from
// its default. (CountDownScore does not count either.)
bool IsCustomScoring(const ScoringValues& values);

// What a card counts on a column before its ace is judged: the number at
// the start of its code, 10 for a picture card; an ace is 1.
int CardPoints(const std::string& code);

// An ace counts 11 while that keeps the column at 21 or less, else 1.
int AceWorth(int columnTotal);

// The picture of the deck pile with the card at `deckPosition` on show:
// "FULL" below 17, "HALF" from 17 to 34, "BACK" from 35.
const char* PileKey(int deckPosition);

// One tick of the 21 Counter on a bar from `min` to `max`.
struct CounterStep {
    int value;          // the bar's new value
    bool startFlash;    // the bar has just reached kFlashAt
    bool expired;       // the bar was full: it starts again and the bonus falls back
};
CounterStep AdvanceCounter(int value, int min, int max);

// The round's 21s payout line: "3 X 3,000 = 9,000".
std::string RoundScoreText(long long twentyOnes, long long bonus);

// The bonus round is played only by a score strictly above BonusScore at the
// end of round 3 (`nextRound` 4).
bool EarnsBonusRound(int nextRound, int32_t score, int32_t bonusScore);

// Milliseconds as seconds without trailing zeros: 2000 "2", 2500 "2.5".
std::string SecondsText(int milliseconds);

}  // namespace ch::blackrush
