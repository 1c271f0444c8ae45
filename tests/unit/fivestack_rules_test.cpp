// SPDX-License-Identifier: GPL-3.0-or-later
// What marks a Fivestack score as custom: each of the Time Bonus range, the
// bonus score and the passes left on its own, and not the wait or the
// setting of cards to pass.
#include <gtest/gtest.h>

#include "games/fivestack/modFivestack.h"

using namespace ch::fivestack;

TEST(FivestackScoring, OnlyTheTimeBonusRangeTheBonusScoreAndThePassesLeftMarkAScore) {
    ScoringValues v;
    EXPECT_FALSE(IsCustomScoring(v, 1));
    EXPECT_TRUE(IsCustomScoring(v, 2));
    v.WaitPeriod = 0;
    v.CardsToPass = 5;
    EXPECT_FALSE(IsCustomScoring(v, 1));
    v.TimeBonusMin = 99;
    EXPECT_TRUE(IsCustomScoring(v, 1));
    v = ScoringValues{};
    v.TimeBonusMax = 301;
    EXPECT_TRUE(IsCustomScoring(v, 1));
    v = ScoringValues{};
    v.BonusScore = 199999;
    EXPECT_TRUE(IsCustomScoring(v, 1));
}
