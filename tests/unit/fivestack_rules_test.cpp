// SPDX-License-Identifier: GPL-3.0-or-later
// Fivestack's rules where a scenario can't reach every case: the rounding of
// the falling Time Bonus, the Card Total rows at their edges, and what marks
// a score as custom.
#include <gtest/gtest.h>

#include "games/fivestack/modFivestack.h"

using namespace ch::fivestack;

TEST(FivestackTimeBonus, FallsFromTheMaximumToTheMinimumRoundedHalfToEven) {
    const float decay = TimeBonusDecay(300, 100, 60);
    EXPECT_EQ(TimeBonusAt(0, 300, 100, decay), 300);
    EXPECT_EQ(TimeBonusAt(2, 300, 100, decay), 293);
    EXPECT_EQ(TimeBonusAt(30, 300, 100, decay), 200);
    EXPECT_EQ(TimeBonusAt(60, 300, 100, decay), 100);
    EXPECT_EQ(TimeBonusAt(1, 300, 100, TimeBonusDecay(300, 100, 15)), 287);  // 286.666..
    EXPECT_EQ(TimeBonusAt(1, 101, 100, TimeBonusDecay(101, 100, 2)), 100);   // 100.5
}

TEST(FivestackTable, TotalsFindTheirRowsAndABustNone) {
    EXPECT_EQ(CardTotalRowIndex(105), 0);
    EXPECT_EQ(CardTotalRowIndex(97), 8);
    EXPECT_EQ(CardTotalRowIndex(96), 9);
    EXPECT_EQ(CardTotalRowIndex(0), 9);
    EXPECT_EQ(CardTotalRowIndex(106), -1);
    EXPECT_EQ(CardTotalRowIndex(kBustTotal), -1);
    EXPECT_FALSE(IsScoringTotal(106));
    // Every value is even, so a count-down in steps of two bonuses adds up.
    for (const CardTotalRow& row : kCardTotalRows) EXPECT_EQ(row.value % 2, 0);
}

TEST(FivestackScoring, OnlyTheTimeBonusRangeTheBonusScoreAndThePassesLeftMarkAScore) {
    ScoringValues v;
    EXPECT_FALSE(IsCustomScoring(v, 1));
    EXPECT_TRUE(IsCustomScoring(v, 2));
    v.WaitPeriod = 0;
    v.CardsToPass = 5;  // the passes left count, not the setting
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
