// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "games/blackrush/modBlackrush.h"
#include "window/basic.h"

using namespace ch;
using namespace ch::blackrush;

TEST(BlackrushCards, PictureCardsCountTenAndAnAceElevenWhileItFits) {
    EXPECT_EQ(CardPoints(" 13S"), 10);
    EXPECT_EQ(CardPoints("11H"), 10);
    EXPECT_EQ(CardPoints(" 10D"), 10);
    EXPECT_EQ(CardPoints(" 1C"), 1);
    EXPECT_EQ(AceWorth(0), 11);
    EXPECT_EQ(AceWorth(10), 11);  // an ace on a ten makes 21 at once
    EXPECT_EQ(AceWorth(11), 1);
    EXPECT_EQ(AceWorth(20), 1);
}

TEST(BlackrushCards, ThePileThinsAsTheDeckIsPlayed) {
    EXPECT_STREQ(PileKey(1), "FULL");
    EXPECT_STREQ(PileKey(16), "FULL");
    EXPECT_STREQ(PileKey(17), "HALF");
    EXPECT_STREQ(PileKey(34), "HALF");
    EXPECT_STREQ(PileKey(35), "BACK");
    EXPECT_STREQ(PileKey(51), "BACK");
}

TEST(BlackrushCounter, FlashesFromTheMiddleAndStartsAgainWhenFull) {
    EXPECT_EQ(AdvanceCounter(0, 0, 100).value, 1);
    const CounterStep at49 = AdvanceCounter(48, 0, 100);
    EXPECT_EQ(at49.value, 49);
    EXPECT_FALSE(at49.startFlash);
    const CounterStep at50 = AdvanceCounter(49, 0, 100);
    EXPECT_EQ(at50.value, 50);
    EXPECT_TRUE(at50.startFlash);
    EXPECT_FALSE(AdvanceCounter(50, 0, 100).startFlash);
    const CounterStep full = AdvanceCounter(99, 0, 100);
    EXPECT_EQ(full.value, 100);
    EXPECT_FALSE(full.expired);
    const CounterStep expired = AdvanceCounter(100, 0, 100);
    EXPECT_TRUE(expired.expired);
    EXPECT_EQ(expired.value, 0);
    EXPECT_FALSE(expired.startFlash);
}

TEST(BlackrushScoring, RoundLineMultipliesTheTwentyOnesByTheBonus) {
    EXPECT_EQ(RoundScoreText(3, 3000), "3 X 3,000 = 9,000");
    EXPECT_EQ(RoundScoreText(12, 250000), "12 X 250,000 = 3,000,000");
    EXPECT_EQ(RoundScoreText(1, 0), "1 X 0 = 0");
}

TEST(BlackrushScoring, BonusRoundNeedsMoreThanTheBonusScoreAfterRoundThree) {
    EXPECT_FALSE(EarnsBonusRound(4, 250000, 250000));
    EXPECT_TRUE(EarnsBonusRound(4, 250001, 250000));
    EXPECT_FALSE(EarnsBonusRound(3, 900000, 250000));
    EXPECT_FALSE(EarnsBonusRound(5, 900000, 250000));
    EXPECT_TRUE(EarnsBonusRound(4, 1, 0));
}

TEST(BlackrushScoring, CustomScoringIgnoresTheTwentyOneBonusTheWaitAndTheCountDown) {
    ScoringValues v;
    EXPECT_FALSE(IsCustomScoring(v));
    v.TwentyOneBonusValue = 5000;
    v.WaitPeriod = 0;
    EXPECT_FALSE(IsCustomScoring(v));
    for (auto change : std::vector<void (*)(ScoringValues&)>{
             [](ScoringValues& s) { s.CardsToPass = 2; }, [](ScoringValues& s) { s.CardsUsedBonusValue = 99; },
             [](ScoringValues& s) { s.BonusScore = 1; }, [](ScoringValues& s) { s.DeckCompletionBonus = 0; },
             [](ScoringValues& s) { s.FiveCardGimmeBonus = 751; },
             [](ScoringValues& s) { s.CounterSpeed = kSlowestSpeed; }}) {
        ScoringValues changed;
        change(changed);
        EXPECT_TRUE(IsCustomScoring(changed));
    }
    EXPECT_TRUE(IsCounterSpeed(90) && IsCounterSpeed(180) && IsCounterSpeed(360));
    EXPECT_FALSE(IsCounterSpeed(270));
}

TEST(BlackrushOptions, TheWaitIsShownInSeconds) {
    EXPECT_EQ(SecondsText(2000), "2");
    EXPECT_EQ(SecondsText(2500), "2.5");
    EXPECT_EQ(SecondsText(32767), "32.767");
    EXPECT_EQ(SecondsText(0), "0");
}
