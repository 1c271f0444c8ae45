// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "games/duopick/modDuopick.h"

using namespace ch::duopick;

namespace {
std::array<bool, kFieldCards> FullTable() {
    std::array<bool, kFieldCards> t{};
    t.fill(true);
    return t;
}
int ExposedCount(const std::array<bool, kFieldCards>& t) {
    int n = 0;
    for (int i = 0; i < kFieldCards; ++i) n += t[static_cast<size_t>(i)] && IsExposed(i, t) ? 1 : 0;
    return n;
}
}  // namespace

TEST(DuopickField, EachCardLiesUnderTheTwoCardsFourAndFiveHigherInTheNextRow) {
    for (int i : {1, 2, 3, 5, 6, 7, 8, 10, 11, 12, 14, 15, 16, 17})
        EXPECT_EQ(kCoveredBy[static_cast<size_t>(i)], (std::array<int, 2>{i + 4, i + 5})) << i;
    for (int i = 18; i < kFieldCards; ++i) EXPECT_EQ(kCoveredBy[static_cast<size_t>(i)], (std::array<int, 2>{-1, -1}));
}

TEST(DuopickField, EndCardsOfRowsOneAndThreeAreCoveredFromTwoRowsDown) {
    EXPECT_EQ(kCoveredBy[0], (std::array<int, 2>{5, 9}));
    EXPECT_EQ(kCoveredBy[4], (std::array<int, 2>{8, 13}));
    EXPECT_EQ(kCoveredBy[9], (std::array<int, 2>{14, 18}));
    EXPECT_EQ(kCoveredBy[13], (std::array<int, 2>{17, 22}));
    // Card 0 needs both 5 and 9 gone.
    auto t = FullTable();
    t[5] = false;
    EXPECT_FALSE(IsExposed(0, t));
    t[5] = true;
    t[9] = false;
    EXPECT_FALSE(IsExposed(0, t));
    t[5] = false;
    EXPECT_TRUE(IsExposed(0, t));
    // Card 9 lies under 14 and 18 but not 19; card 13 under 17 and 22, not 21.
    t = FullTable();
    t[14] = t[18] = false;
    EXPECT_TRUE(IsExposed(9, t));
    t = FullTable();
    t[17] = t[22] = false;
    EXPECT_TRUE(IsExposed(13, t));
    t[21] = false;
    t[22] = true;
    EXPECT_FALSE(IsExposed(13, t));
}

TEST(DuopickField, OnlyTheBottomRowAndTheUpCardAreOpenAtTheDeal) {
    const auto t = FullTable();
    EXPECT_EQ(ExposedCount(t), 5);
    for (int i = 18; i < kFieldCards; ++i) EXPECT_TRUE(IsExposed(i, t));
    EXPECT_TRUE(IsExposed(kUpCard, t));
    // A card back in row 2 covers the row 1 cards above it again.
    auto cleared = FullTable();
    for (int i = 5; i < kFieldCards; ++i) cleared[static_cast<size_t>(i)] = false;
    EXPECT_TRUE(IsExposed(2, cleared));
    cleared[7] = true;
    EXPECT_FALSE(IsExposed(2, cleared));
    EXPECT_FALSE(IsExposed(3, cleared));
    EXPECT_TRUE(IsExposed(1, cleared));
}

TEST(DuopickField, RowsAndPlacesOfTheCards) {
    EXPECT_EQ(kPlaces[0].left, 1620);
    EXPECT_EQ(kPlaces[0].top, 540);
    EXPECT_EQ(kPlaces[13].left, 6210);
    EXPECT_EQ(kPlaces[22].left, 6180);
    EXPECT_EQ(kPlaces[22].top, 2340);
    EXPECT_EQ(kPlaces[kUpCard].left, 3150);
    EXPECT_EQ(kPlaces[kUpCard].top, 4260);
    // Within a row the cards stand left to right without touching.
    for (int i = 1; i < kFieldCards; ++i) {
        const CardPlace& a = kPlaces[static_cast<size_t>(i - 1)];
        const CardPlace& b = kPlaces[static_cast<size_t>(i)];
        if (a.row == b.row) EXPECT_GT(b.left, a.left + kCardWidth) << i;
        else EXPECT_EQ(b.row, a.row + 1) << i;
    }
}

TEST(DuopickMatches, PairsAndRunsWithKingAndAceNeighboursBothWays) {
    EXPECT_EQ(MatchOf(7, 7), Match::Pair);
    EXPECT_EQ(MatchOf(7, 8), Match::Run);
    EXPECT_EQ(MatchOf(7, 6), Match::Run);
    EXPECT_EQ(MatchOf(7, 9), Match::None);
    EXPECT_EQ(MatchOf(13, 1), Match::Run);
    EXPECT_EQ(MatchOf(1, 13), Match::Run);
    EXPECT_EQ(MatchOf(13, 12), Match::Run);
    EXPECT_EQ(MatchOf(1, 2), Match::Run);
    EXPECT_EQ(MatchOf(13, 2), Match::None);
    EXPECT_EQ(MatchOf(1, 12), Match::None);
    EXPECT_EQ(MatchOf(1, 1), Match::Pair);
    EXPECT_EQ(MatchOf(13, 13), Match::Pair);
}

TEST(DuopickMatches, AnEmptyUpCardRunsOnlyIntoAnAce) {
    EXPECT_EQ(MatchOf(0, 1), Match::Run);
    EXPECT_EQ(MatchOf(0, 13), Match::None);
    EXPECT_EQ(MatchOf(0, 2), Match::None);
    EXPECT_EQ(MatchOf(1, 0), Match::None);
    EXPECT_EQ(MatchOf(2, 0), Match::None);
}

TEST(DuopickStack, StagesOfTheStackPicture) {
    for (int i = 25; i <= 27; ++i) EXPECT_EQ(StackStage(i), "");
    EXPECT_EQ(StackStage(28), "FULL");
    EXPECT_EQ(StackStage(34), "FULL");
    EXPECT_EQ(StackStage(35), "HALF");
    EXPECT_EQ(StackStage(41), "HALF");
    EXPECT_EQ(StackStage(42), "BACK");
    EXPECT_EQ(StackStage(51), "BACK");
    EXPECT_EQ(StackStage(52), "EMPTY");
    EXPECT_FALSE(StackOverrun(52));
    EXPECT_TRUE(StackOverrun(53));
}

TEST(DuopickStack, TheFirstGapIsTheLowestIndex) {
    std::array<bool, kFieldCards> pictures{};
    pictures.fill(true);
    EXPECT_EQ(FirstGap(pictures), -1);
    pictures[7] = false;
    pictures[2] = false;
    EXPECT_EQ(FirstGap(pictures), 2);
    pictures.fill(true);
    pictures[22] = false;
    EXPECT_EQ(FirstGap(pictures), 22);
}

TEST(DuopickScoring, AwardsComeInTheirOrderWithThePairsLast) {
    const auto awards = RoundAwards(ScoringValues{}, kDefaultTimeBonus, true, 12, 4, 7);
    ASSERT_EQ(awards.size(), 4u);
    EXPECT_EQ(awards[0].title, "Completion Bonus");
    EXPECT_EQ(awards[1].kind, Award::Kind::Time);
    EXPECT_EQ(awards[2].title, "Runs Bonus");
    EXPECT_EQ(awards[3].title, "Pairs Bonus");
    long long total = 0;
    for (const Award& a : awards) total += a.count * a.value;
    EXPECT_EQ(total, 34200);
}

TEST(DuopickScoring, NothingMadeAndNoTimeLeftPaysNothing) {
    EXPECT_TRUE(RoundAwards(ScoringValues{}, kDefaultTimeBonus, false, 0, 0, 0).empty());
    const auto only = RoundAwards(ScoringValues{}, kDefaultTimeBonus, false, 1, 0, 2);
    ASSERT_EQ(only.size(), 2u);
    EXPECT_EQ(only[0].kind, Award::Kind::Time);
    EXPECT_EQ(only[1].count * only[1].value, 6000);
}

TEST(DuopickScoring, TheBonusRoundNeedsAtLeastTheBonusScoreAfterRoundTwo) {
    EXPECT_EQ(NextStep(2, 0, 80000), AfterRound::RoundTwo);
    EXPECT_EQ(NextStep(3, 80000, 80000), AfterRound::BonusRound);
    EXPECT_EQ(NextStep(3, 79999, 80000), AfterRound::GameOver);
    EXPECT_EQ(NextStep(4, 500000, 80000), AfterRound::GameOver);
}

TEST(DuopickScoring, CustomUnlessEveryValueHasItsDefault) {
    ScoringValues s;
    EXPECT_FALSE(IsCustom(s, kDefaultTimeBonus));
    EXPECT_TRUE(IsCustom(s, 0));
    s.CompletionBonus = 10001;
    EXPECT_TRUE(IsCustom(s, kDefaultTimeBonus));
}
