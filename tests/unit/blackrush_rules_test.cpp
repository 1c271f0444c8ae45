// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "games/blackrush/modBlackrush.h"
#include "window/basic.h"

using namespace ch;
using namespace ch::blackrush;

namespace {
struct Refusal {
    std::string message;
    OptionBox focus;
};

// Runs the dialog's checks over texts given for some boxes (the rest at
// their defaults) and records what the player is told.
struct OptionsRun {
    OptionTexts texts = OptionTextsFor(ScoringValues{});
    ScoringValues values;
    int16_t passesLeft = -1;
    std::vector<Refusal> refusals;

    bool check() {
        return CheckUserOptions(texts, values, passesLeft, [this](const std::string& message, OptionBox focus) {
            refusals.push_back({message, focus});
        });
    }
};
}  // namespace

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

TEST(BlackrushOptions, DefaultsPassAndAreStored) {
    OptionsRun run;
    run.values = ScoringValues{.CardsToPass = 9, .TwentyOneBonusValue = 1, .CardsUsedBonusValue = 1,
                               .FiveCardGimmeBonus = 1, .DeckCompletionBonus = 1, .BonusScore = 1,
                               .CounterSpeed = kSlowSpeed, .WaitPeriod = 1};
    EXPECT_TRUE(run.check());
    EXPECT_TRUE(run.refusals.empty());
    EXPECT_EQ(run.values.CardsToPass, 3);
    EXPECT_EQ(run.passesLeft, 3);
    EXPECT_EQ(run.values.WaitPeriod, 2000);
    EXPECT_EQ(run.values.BonusScore, 250000);
    EXPECT_EQ(run.values.FiveCardGimmeBonus, 750);
    EXPECT_EQ(run.values.CounterSpeed, kSlowSpeed);  // the speed is the option buttons' business
}

TEST(BlackrushOptions, EveryFailedFieldIsToldInOrderAndStoresItsClamp) {
    OptionsRun run;
    run.texts[kPassBox] = "11";
    run.texts[kCardsUsedBox] = "6000";
    run.texts[kDeckBox] = "-5";
    run.texts[kGimmeBox] = "50001";
    run.texts[kBonusBox] = "3000000000";
    EXPECT_FALSE(run.check());
    ASSERT_EQ(run.refusals.size(), 5u);
    EXPECT_EQ(run.refusals[0].message, "Sorry, you cannot pass more than 10 cards.");
    EXPECT_EQ(run.refusals[0].focus, kPassBox);
    EXPECT_EQ(run.refusals[1].message, "Sorry, the maximum value for the Cards Used bonus score is 5000.");
    EXPECT_EQ(run.refusals[2].message, "Sorry, a minimum of 0 is required for the Deck Completion Bonus.");
    EXPECT_EQ(run.refusals[3].message, "Sorry, the maximum value for the Five Cards Gimme Bonus is 50000.");
    EXPECT_EQ(run.refusals[4].message, "Sorry, the maximum value for achieving a bonus round is 2147483647.");
    // A refused pass count reaches the passes left, not the setting.
    EXPECT_EQ(run.passesLeft, 10);
    EXPECT_EQ(run.values.CardsToPass, 3);
    EXPECT_EQ(run.texts[kPassBox], "10");
    EXPECT_EQ(run.values.CardsUsedBonusValue, 5000);
    EXPECT_EQ(run.values.DeckCompletionBonus, 0);
    EXPECT_EQ(run.values.FiveCardGimmeBonus, 50000);
    EXPECT_EQ(run.values.BonusScore, 2147483647);
    EXPECT_EQ(run.texts[kBonusBox], "2147483647");
}

TEST(BlackrushOptions, ANegativeTwentyOneBonusCorrectsTheBonusRoundBox) {
    OptionsRun run;
    run.texts[kTwentyOneBox] = "-1";
    run.texts[kBonusBox] = "99999";
    EXPECT_FALSE(run.check());
    ASSERT_EQ(run.refusals.size(), 1u);
    EXPECT_EQ(run.refusals[0].message, "Sorry, a minimum of 0 is required for the Twenty One bonus score.");
    EXPECT_EQ(run.refusals[0].focus, kBonusBox);
    EXPECT_EQ(run.texts[kBonusBox], "0");
    EXPECT_EQ(run.texts[kTwentyOneBox], "-1");
    EXPECT_EQ(run.values.TwentyOneBonusValue, 0);
    // The "0" then passes the bonus round test in the same click.
    EXPECT_EQ(run.values.BonusScore, 0);
}

TEST(BlackrushOptions, AWaitOfThirtyThreeSecondsOrMoreOverflowsBeforeTheLaterFields) {
    for (const char* wait : {"33", "45", "61", "1000"}) {
        OptionsRun run;
        run.texts[kPassBox] = "7";
        run.texts[kWaitBox] = wait;
        run.texts[kCardsUsedBox] = "200";
        try {
            run.check();
            ADD_FAILURE() << "no overflow for a wait of " << wait;
        } catch (const RuntimeError& e) {
            EXPECT_EQ(e.number(), kErrOverflow);
        }
        EXPECT_TRUE(run.refusals.empty()) << wait;
        EXPECT_EQ(run.values.CardsToPass, 7);
        EXPECT_EQ(run.values.CardsUsedBonusValue, 100);
    }
    OptionsRun longest;
    longest.texts[kWaitBox] = "32.767";
    EXPECT_TRUE(longest.check());
    EXPECT_EQ(longest.values.WaitPeriod, 32767);
}

TEST(BlackrushOptions, TextThatIsNoNumberCountsAsZero) {
    OptionsRun run;
    run.texts[kPassBox] = "abc";
    run.texts[kWaitBox] = "";
    run.texts[kGimmeBox] = "12x";
    EXPECT_TRUE(run.check());
    EXPECT_EQ(run.values.CardsToPass, 0);
    EXPECT_EQ(run.values.WaitPeriod, 0);
    EXPECT_EQ(run.values.FiveCardGimmeBonus, 12);
    OptionsRun negative;
    negative.texts[kWaitBox] = "-2";
    negative.values.WaitPeriod = 5000;
    EXPECT_FALSE(negative.check());
    EXPECT_EQ(negative.values.WaitPeriod, 0);
    EXPECT_EQ(negative.texts[kWaitBox], "0");
}

TEST(BlackrushOptions, TheWaitIsShownInSeconds) {
    EXPECT_EQ(SecondsText(2000), "2");
    EXPECT_EQ(SecondsText(2500), "2.5");
    EXPECT_EQ(SecondsText(32767), "32.767");
    EXPECT_EQ(SecondsText(0), "0");
    EXPECT_EQ(OptionTextsFor(ScoringValues{})[kWaitBox], "2");
}
