// SPDX-License-Identifier: GPL-3.0-or-later
// Blackrush's rules at edges a scenario passes once: the pile's thresholds, custom scoring, the wait.
#include <gtest/gtest.h>

#include "games/blackrush/modBlackrush.h"

using namespace ch::blackrush;

TEST(BlackrushRules, ThePileThinsAtSeventeenAndThirtyFive) {
    const std::pair<int, const char*> steps[] = {{16, "FULL"}, {17, "HALF"}, {34, "HALF"}, {35, "BACK"}};
    for (const auto& [cards, key] : steps) EXPECT_STREQ(PileKey(cards), key) << cards;
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
    const std::pair<int, const char*> waits[] = {{2500, "2.5"}, {32767, "32.767"}, {-500, "-0.5"}, {0, "0"}};
    for (const auto& [ms, text] : waits) EXPECT_EQ(SecondsText(ms), text) << ms;
}
