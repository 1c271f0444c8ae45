// SPDX-License-Identifier: GPL-3.0-or-later
// Blackrush's rules as plain functions: card points, aces, the pile, the 21
// Counter, the round's payout line, the bonus round test and the checks of
// the user options dialog.
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

bool IsCounterSpeed(int interval) {
    return interval == kNormalSpeed || interval == kSlowSpeed || interval == kSlowestSpeed;
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

bool CheckUserOptions(OptionTexts& texts, ScoringValues& values, int16_t& passesLeft, const RefuseField& refuse) {
    bool passed = true;
    const auto fail = [&](OptionBox box, const char* message, const char* text) {
        texts[box] = text;
        refuse(message, box);
        passed = false;
    };

    const double passes = Val(texts[kPassBox]);
    if (passes < 0) {
        passesLeft = 0;
        fail(kPassBox, "Sorry, you cannot pass fewer than 0 cards.", "0");
    } else if (passes > 10) {
        passesLeft = 10;
        fail(kPassBox, "Sorry, you cannot pass more than 10 cards.", "10");
    } else {
        values.CardsToPass = CInt(passes);
        passesLeft = values.CardsToPass;
    }

    // A minute in milliseconds does not fit the wait: storing it overflows.
    const double wait = Val(texts[kWaitBox]);
    if (wait < 0) {
        values.WaitPeriod = 0;
        fail(kWaitBox, "Sorry, a minimum of 0 seconds is required for the waiting period between rounds.", "0");
    } else if (wait > 60) {
        // The box reads "0" before the minute is stored; the store overflows.
        texts[kWaitBox] = "0";
        values.WaitPeriod = CInt(60000);
        fail(kWaitBox, "Sorry, a maximum of 60 seconds is allowed for the waiting period between rounds.", "0");
    } else {
        values.WaitPeriod = CInt(wait * 1000);
    }

    const double cardsUsed = Val(texts[kCardsUsedBox]);
    if (cardsUsed < 0) {
        values.CardsUsedBonusValue = 0;
        fail(kCardsUsedBox, "Sorry, a minimum of 0 is required for the Cards Used bonus score.", "0");
    } else if (cardsUsed > 5000) {
        values.CardsUsedBonusValue = 5000;
        fail(kCardsUsedBox, "Sorry, the maximum value for the Cards Used bonus score is 5000.", "5000");
    } else {
        values.CardsUsedBonusValue = CLng(cardsUsed);
    }

    // A 21 bonus below 0 corrects the bonus round box, not its own.
    const double twentyOne = Val(texts[kTwentyOneBox]);
    if (twentyOne < 0) {
        values.TwentyOneBonusValue = 0;
        fail(kBonusBox, "Sorry, a minimum of 0 is required for the Twenty One bonus score.", "0");
    } else if (twentyOne > 5000) {
        values.TwentyOneBonusValue = 5000;
        fail(kTwentyOneBox, "Sorry, the maximum value for the Twenty One bonus score is 5000.", "5000");
    } else {
        values.TwentyOneBonusValue = CLng(twentyOne);
    }

    const double deck = Val(texts[kDeckBox]);
    if (deck < 0) {
        values.DeckCompletionBonus = 0;
        fail(kDeckBox, "Sorry, a minimum of 0 is required for the Deck Completion Bonus.", "0");
    } else if (deck > 1000000) {
        values.DeckCompletionBonus = 1000000;
        fail(kDeckBox, "Sorry, the maximum value for the Deck Completion Bonus is 1000000.", "1000000");
    } else {
        values.DeckCompletionBonus = CLng(deck);
    }

    const double gimme = Val(texts[kGimmeBox]);
    if (gimme < 0) {
        values.FiveCardGimmeBonus = 0;
        fail(kGimmeBox, "Sorry, a minimum of 0 is required for the Five Cards Gimme Bonus.", "0");
    } else if (gimme > 50000) {
        values.FiveCardGimmeBonus = 50000;
        fail(kGimmeBox, "Sorry, the maximum value for the Five Cards Gimme Bonus is 50000.", "50000");
    } else {
        values.FiveCardGimmeBonus = CLng(gimme);
    }

    const double bonus = Val(texts[kBonusBox]);
    if (bonus < 0) {
        values.BonusScore = 0;
        fail(kBonusBox, "Sorry, a minimum of 0 is required for the bonus round score.", "0");
    } else if (bonus > 2147483647.0) {
        values.BonusScore = 2147483647;
        fail(kBonusBox, "Sorry, the maximum value for achieving a bonus round is 2147483647.", "2147483647");
    } else {
        values.BonusScore = CLng(bonus);
    }
    return passed;
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

OptionTexts OptionTextsFor(const ScoringValues& v) {
    OptionTexts texts;
    texts[kPassBox] = NumText(v.CardsToPass);
    texts[kWaitBox] = SecondsText(v.WaitPeriod);
    texts[kCardsUsedBox] = NumText(v.CardsUsedBonusValue);
    texts[kTwentyOneBox] = NumText(v.TwentyOneBonusValue);
    texts[kDeckBox] = NumText(v.DeckCompletionBonus);
    texts[kGimmeBox] = NumText(v.FiveCardGimmeBonus);
    texts[kBonusBox] = NumText(v.BonusScore);
    return texts;
}

}  // namespace ch::blackrush
