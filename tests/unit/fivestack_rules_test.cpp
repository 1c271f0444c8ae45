// SPDX-License-Identifier: GPL-3.0-or-later
// What marks a Fivestack score as custom: the Time Bonus range, the bonus score and the passes left,
// each on its own; not the wait or the setting of cards to pass.
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
    for (auto change : {+[](ScoringValues& s) { s.TimeBonusMin = 99; }, +[](ScoringValues& s) { s.TimeBonusMax = 301; },
                        +[](ScoringValues& s) { s.BonusScore = 199999; }}) {
        ScoringValues changed;
        change(changed);
        EXPECT_TRUE(IsCustomScoring(changed, 1));
    }
}
