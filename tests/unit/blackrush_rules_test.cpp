// SPDX-License-Identifier: GPL-3.0-or-later
// Blackrush's rules at the edges a scenario passes only once: the pile's
// thresholds, the counter's flash and expiry, the bonus round test, custom
// scoring and the wait in seconds.
#include <gtest/gtest.h>

#include "games/blackrush/modBlackrush.h"

using namespace ch::blackrush;

TEST(BlackrushRules, ThePileThinsAtSeventeenAndThirtyFive) {
    EXPECT_STREQ(PileKey(16), "FULL");
    EXPECT_STREQ(PileKey(17), "HALF");
    EXPECT_STREQ(PileKey(34), "HALF");
    EXPECT_STREQ(PileKey(35), "BACK");
    EXPECT_EQ(AceWorth(10), 11);
    EXPECT_EQ(AceWorth(11), 1);
}

TEST(BlackrushRules, TheCounterFlashesFromFiftyAndExpiresPastTheTop) {
    EXPECT_FALSE(AdvanceCounter(48, 0, 100).startFlash);
    EXPECT_TRUE(AdvanceCounter(49, 0, 100).startFlash);
    EXPECT_FALSE(AdvanceCounter(50, 0, 100).startFlash);
    const CounterStep full = AdvanceCounter(99, 0, 100);
    EXPECT_EQ(full.value, 100);
    EXPECT_FALSE(full.expired);
    const CounterStep expired = AdvanceCounter(100, 0, 100);
    EXPECT_TRUE(expired.expired);
    EXPECT_EQ(expired.value, 0);
}

TEST(BlackrushRules, BonusRoundNeedsMoreThanTheBonusScoreAfterRoundThree) {
    EXPECT_FALSE(EarnsBonusRound(4, 250000, 250000));
    EXPECT_TRUE(EarnsBonusRound(4, 250001, 250000));
    EXPECT_FALSE(EarnsBonusRound(5, 900000, 250000));
}

TEST(BlackrushRules, CustomScoringIgnoresTheTwentyOneBonusAndTheWait) {
    ScoringValues v;
    v.TwentyOneBonusValue = 5000;
    v.WaitPeriod = 0;
    EXPECT_FALSE(IsCustomScoring(v));
    for (auto change : {+[](ScoringValues& s) { s.CardsToPass = 2; }, +[](ScoringValues& s) { s.BonusScore = 1; },
                        +[](ScoringValues& s) { s.CardsUsedBonusValue = 99; },
                        +[](ScoringValues& s) { s.DeckCompletionBonus = 0; },
                        +[](ScoringValues& s) { s.FiveCardGimmeBonus = 751; },
                        +[](ScoringValues& s) { s.CounterSpeed = kSlowestSpeed; }}) {
        ScoringValues changed;
        change(changed);
        EXPECT_TRUE(IsCustomScoring(changed));
    }
}

TEST(BlackrushRules, TheWaitIsShownInSecondsWithoutTrailingZeros) {
    EXPECT_EQ(SecondsText(2500), "2.5");
    EXPECT_EQ(SecondsText(32767), "32.767");
    EXPECT_EQ(SecondsText(-500), "-0.5");
    EXPECT_EQ(SecondsText(0), "0");
}
