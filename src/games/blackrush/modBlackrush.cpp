// SPDX-License-Identifier: GPL-3.0-or-later
// Blackrush's rules as plain functions: card points, aces, the pile, the 21
// Counter, the round's payout line, the bonus round test and the wait in
// seconds.
#include "games/blackrush/modBlackrush.h"

#include <cstdlib>

#include "suite/cards.h"
#include "window/basic.h"

namespace ch::blackrush {

bool IsCustomScoring(const ScoringValues& v) {
    const ScoringValues d;
    return !(v.CardsToPass == d.CardsToPass && v.CardsUsedBonusValue == d.CardsUsedBonusValue &&
             v.BonusScore == d.BonusScore && v.DeckCompletionBonus == d.DeckCompletionBonus &&
             v.FiveCardGimmeBonus == d.FiveCardGimmeBonus && v.CounterSpeed == d.CounterSpeed);
}

int CardPoints(const std::string& code) {
    const int value = CardValue(code);
    return value > 10 ? 10 : value;
}

int AceWorth(int columnTotal) { return columnTotal + 11 <= 21 ? 11 : 1; }

const char* PileKey(int deckPosition) {
    if (deckPosition >= 35) return "BACK";
    if (deckPosition >= 17) return "HALF";
    return "FULL";
}

CounterStep AdvanceCounter(int value, int min, int max) {
    if (value < max) return {value + 1, value + 1 == kFlashAt, false};
    return {min, false, true};
}

std::string RoundScoreText(long long twentyOnes, long long bonus) {
    return NumText(twentyOnes) + " X " + FormatScore(bonus) + " = " + FormatScore(twentyOnes * bonus);
}

bool EarnsBonusRound(int nextRound, int32_t score, int32_t bonusScore) {
    return nextRound == 4 && score > bonusScore;
}

std::string SecondsText(int milliseconds) {
    std::string text = NumText(milliseconds / 1000);
    int rest = std::abs(milliseconds % 1000);
    if (rest == 0) return text;
    if (milliseconds < 0 && milliseconds > -1000) text = "-0";
    std::string digits = std::to_string(1000 + rest).substr(1);
    while (digits.back() == '0') digits.pop_back();
    return text + "." + digits;
}

}  // namespace ch::blackrush
