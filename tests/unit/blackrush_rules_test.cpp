// SPDX-License-Identifier: GPL-3.0-or-later
// Blackrush's rules at edges a scenario passes only once: the pile's
// thresholds, custom scoring, the wait in seconds.
#include <gtest/gtest.h>

#include "games/blackrush/modBlackrush.h"

using namespace ch::blackrush;

TEST(BlackrushRules, ThePileThinsAtSeventeenAndThirtyFive) {
    EXPECT_STREQ(PileKey(16), "FULL");
    EXPECT_STREQ(PileKey(17), "HALF");
    EXPECT_STREQ(PileKey(34), "HALF");
    EXPECT_STREQ(PileKey(35), "BACK");
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
