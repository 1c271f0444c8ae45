// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "games/treyshift/modTreyshift.h"

using namespace ch::treyshift;

namespace {
// A column read from the top, as the deck writes codes (with the leading blank).
ColumnKind Column(const char* top, const char* middle, const char* bottom) { return ScoreColumn(top, middle, bottom); }
}  // namespace

TEST(TreyshiftColumn, ThreeOfARankInAnySuitsIsATrip) {
    EXPECT_EQ(Column(" 3S", " 3H", " 3D"), ColumnKind::Trip);
    EXPECT_EQ(Column(" 13C", " 13S", " 13H"), ColumnKind::Trip);
    EXPECT_EQ(Column("1S", "1H", "1C"), ColumnKind::Trip);
    EXPECT_EQ(Column(" 3S", " 3H", " 4D"), ColumnKind::None);
}

TEST(TreyshiftColumn, RunsReadFromTheTopUpOrDown) {
    EXPECT_EQ(Column(" 4S", " 5H", " 6D"), ColumnKind::Run);
    EXPECT_EQ(Column(" 6S", " 5H", " 4D"), ColumnKind::Run);
    EXPECT_EQ(Column(" 1S", " 2H", " 3D"), ColumnKind::Run);
    EXPECT_EQ(Column(" 3S", " 2H", " 1D"), ColumnKind::Run);
    EXPECT_EQ(Column(" 11S", " 12H", " 13D"), ColumnKind::Run);
    // In sequence but out of order: no Run.
    EXPECT_EQ(Column(" 5S", " 7H", " 6D"), ColumnKind::None);
    EXPECT_EQ(Column(" 6S", " 4H", " 5D"), ColumnKind::None);
}

TEST(TreyshiftColumn, TheAceIsHighOnlyBesideKingAndQueen) {
    EXPECT_EQ(Column(" 12S", " 13H", " 1D"), ColumnKind::Run);
    EXPECT_EQ(Column(" 1S", " 13H", " 12D"), ColumnKind::Run);
    // 13, 12, 1 starts with a king, which no form allows.
    EXPECT_EQ(Column(" 13S", " 12H", " 1D"), ColumnKind::None);
    EXPECT_EQ(Column(" 13S", " 1H", " 2D"), ColumnKind::None);
    EXPECT_EQ(Column(" 2S", " 1H", " 13D"), ColumnKind::None);
    EXPECT_EQ(Column(" 1S", " 12H", " 13D"), ColumnKind::None);
}

TEST(TreyshiftColumn, AFlushIsARunOfOneSuitLetter) {
    EXPECT_EQ(Column(" 11H", " 12H", " 13H"), ColumnKind::FlushRun);
    EXPECT_EQ(Column(" 12C", " 13C", " 1C"), ColumnKind::FlushRun);
    // Three of one suit out of sequence stay in place.
    EXPECT_EQ(Column(" 2H", " 9H", " 5H"), ColumnKind::None);
    // Only the last letter counts, not the blank before a code.
    EXPECT_TRUE(IsFlush(" 9D", "10D", " 8D"));
    EXPECT_FALSE(IsFlush(" 9D", "10S", " 8D"));
}

TEST(TreyshiftColumn, AnEmptyCodeCountsAsNothingAndTakesNoSuit) {
    // The empty card taken past the end of the deck has value 0.
    EXPECT_EQ(Column(" 2S", " 1S", ""), ColumnKind::Run);
    EXPECT_FALSE(IsFlush(" 2S", " 1S", ""));
}

TEST(TreyshiftColumn, EachKindPaysItsValueWithItsSound) {
    ScoringValues v;
    v.TripValue = 7000;
    v.RunValue = 400;
    v.FlushValue = 2500;
    const ColumnAward trip = AwardFor(ColumnKind::Trip, v);
    EXPECT_EQ(trip.points, 7000);
    EXPECT_STREQ(trip.sound, "\\TwentyOne.wav");
    const ColumnAward run = AwardFor(ColumnKind::Run, v);
    EXPECT_EQ(run.points, 400);
    EXPECT_STREQ(run.sound, "\\TwentyOne.wav");
    EXPECT_EQ(trip.flushPoints + run.flushPoints, 0);
    const ColumnAward flush = AwardFor(ColumnKind::FlushRun, v);
    EXPECT_EQ(flush.flushPoints, 2500);
    EXPECT_EQ(flush.points, 400);
    EXPECT_STREQ(flush.sound, "\\HighScore.wav");
    EXPECT_EQ(AwardFor(ColumnKind::None, v).points, 0);
}

TEST(TreyshiftDeck, StackThinsAsCardsAreTaken) {
    EXPECT_STREQ(StackKey(3), "FULL");
    EXPECT_STREQ(StackKey(19), "FULL");
    EXPECT_STREQ(StackKey(20), "HALF");
    EXPECT_STREQ(StackKey(35), "HALF");
    EXPECT_STREQ(StackKey(36), "BACK");
    EXPECT_STREQ(StackKey(51), "BACK");
    EXPECT_STREQ(StackKey(52), "EMPTY");
    EXPECT_EQ(CardsRemainingText(3), "Cards remaining: 52");
    EXPECT_EQ(CardsRemainingText(55), "Cards remaining: 0");
    EXPECT_EQ(CardsRemainingText(56), "Cards remaining: -1");
}

TEST(TreyshiftRound, TheBonusRoundTakesTheBonusScoreAfterRoundTwo) {
    EXPECT_FALSE(GameEndsAfter(1, 0, 100000));
    EXPECT_TRUE(GameEndsAfter(2, 99999, 100000));
    EXPECT_FALSE(GameEndsAfter(2, 100000, 100000));
    EXPECT_TRUE(GameEndsAfter(3, 0, 100000));
    EXPECT_TRUE(GameEndsAfter(3, 500000, 100000));
    EXPECT_EQ(PrepareText(2), "Prepare For Round 2");
    EXPECT_EQ(PrepareText(3), "Prepare For Bonus Round");
}

TEST(TreyshiftScoring, EveryValueCountsForCustomScoring) {
    EXPECT_FALSE(IsCustomScoring(kDefaults, kDefaultTimeBonus));
    EXPECT_TRUE(IsCustomScoring(kDefaults, 0));
    ScoringValues v;
    v.PenaltyValue = 0;
    EXPECT_TRUE(IsCustomScoring(v, kDefaultTimeBonus));
    v = ScoringValues{};
    v.DeckValue = 15001;
    EXPECT_TRUE(IsCustomScoring(v, kDefaultTimeBonus));
}

TEST(TreyshiftScoring, ThePenaltyShowsWithItsMinusSign) {
    EXPECT_EQ(PenaltyText(250), "-250");
    EXPECT_EQ(PenaltyText(0), "-0");
    EXPECT_EQ(PenaltyText(-20000), "--20000");
}
