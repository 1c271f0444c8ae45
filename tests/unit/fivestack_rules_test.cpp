// SPDX-License-Identifier: GPL-3.0-or-later
// Fivestack's rules: card values, aces and their rescue of a column, the
// Card Total Value table, the falling Time Bonus and the User Options check.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "games/fivestack/modFivestack.h"

using namespace ch::fivestack;

namespace {
// Lays the cards in turn; returns the totals after each.
std::vector<int> Lay(Column& column, std::initializer_list<int> values) {
    std::vector<int> totals;
    for (int v : values) {
        LayCard(column, v);
        totals.push_back(column.total);
    }
    return totals;
}

}  // namespace

TEST(FivestackCards, PictureCardsCountTenAndAcesOne) {
    EXPECT_EQ(GetCardValue("1S"), 1);
    EXPECT_EQ(GetCardValue(" 9D"), 9);
    EXPECT_EQ(GetCardValue("10H"), 10);
    EXPECT_EQ(GetCardValue("11C"), 10);
    EXPECT_EQ(GetCardValue("13D"), 10);
}

TEST(FivestackColumns, AnAceIsElevenOnlyWhileTheColumnStaysAtTwentyOneOrLess) {
    Column c;
    // A, A, 9: the second ace can't be 11 beside a soft one.
    EXPECT_EQ(Lay(c, {1, 1, 9}), (std::vector<int>{11, 12, 21}));
    EXPECT_EQ(c.softAces, 1);
    Column ten{10, 1, 0};
    EXPECT_EQ(CalculateAces(ten), 11);  // exactly 21
    Column eleven{11, 1, 0};
    EXPECT_EQ(CalculateAces(eleven), 1);
    EXPECT_EQ(eleven.softAces, 0);
    // 9 and 7 take an ace as 1.
    Column hard;
    EXPECT_EQ(Lay(hard, {9, 7, 1}), (std::vector<int>{9, 16, 17}));
    EXPECT_EQ(hard.softAces, 0);
}

TEST(FivestackColumns, TheFifthCardClosesTheColumnWhateverItsTotal) {
    Column c;
    for (int v : {2, 2, 2, 2}) EXPECT_FALSE(LayCard(c, v).closes);
    const LaidCard fifth = LayCard(c, 3);
    EXPECT_TRUE(fifth.closes);
    EXPECT_EQ(c.total, 11);
    EXPECT_EQ(c.cards, 5);
}

TEST(FivestackColumns, ASoftAceSavesAColumnOverTwentyOneOnce) {
    Column c;
    Lay(c, {1, 8, 6});  // 11 + 8 + 6 = 25
    ASSERT_EQ(c.total, 25);
    EXPECT_TRUE(SaveWithSoftAce(c));
    EXPECT_EQ(c.total, 15);
    EXPECT_EQ(c.softAces, 0);
    LayCard(c, 10);  // 25 again, hard now
    EXPECT_FALSE(SaveWithSoftAce(c));
    EXPECT_EQ(c.total, 25);
    // A hard 21 and a 2 is lost at once.
    Column hard;
    Lay(hard, {10, 9, 2, 2});
    EXPECT_EQ(hard.total, 23);
    EXPECT_FALSE(SaveWithSoftAce(hard));
}

TEST(FivestackTable, EveryTotalFindsItsRow) {
    EXPECT_EQ(kCardTotalRows[static_cast<size_t>(CardTotalRowIndex(105))].value, 1000);
    EXPECT_EQ(kCardTotalRows[static_cast<size_t>(CardTotalRowIndex(104))].value, 500);
    EXPECT_EQ(kCardTotalRows[static_cast<size_t>(CardTotalRowIndex(98))].value, 100);
    EXPECT_EQ(kCardTotalRows[static_cast<size_t>(CardTotalRowIndex(97))].value, 50);
    EXPECT_EQ(std::string(kCardTotalRows[static_cast<size_t>(CardTotalRowIndex(96))].rowLabel), "lblNothing");
    EXPECT_EQ(CardTotalRowIndex(0), CardTotalRowIndex(96));
    EXPECT_EQ(CardTotalRowIndex(106), -1);
    EXPECT_EQ(CardTotalRowIndex(kBustTotal), -1);
    EXPECT_FALSE(IsScoringTotal(96));
    EXPECT_TRUE(IsScoringTotal(97));
    EXPECT_TRUE(IsScoringTotal(105));
    EXPECT_FALSE(IsScoringTotal(106));
    // Every value is even, so a count-down in steps of two bonuses adds up.
    for (const CardTotalRow& row : kCardTotalRows) EXPECT_EQ(row.value % 2, 0);
}

TEST(FivestackTimeBonus, FallsFromTheMaximumToTheMinimumTenEveryThreeSeconds) {
    const float decay = TimeBonusDecay(300, 100, 60);
    EXPECT_EQ(TimeBonusAt(0, 300, 100, decay), 300);
    EXPECT_EQ(TimeBonusAt(1, 300, 100, decay), 297);
    EXPECT_EQ(TimeBonusAt(2, 300, 100, decay), 293);
    EXPECT_EQ(TimeBonusAt(3, 300, 100, decay), 290);
    EXPECT_EQ(TimeBonusAt(30, 300, 100, decay), 200);
    EXPECT_EQ(TimeBonusAt(60, 300, 100, decay), 100);
    // 15 seconds from 300 to 100 lose 13.33 a second; a half goes to the even neighbour.
    const float fast = TimeBonusDecay(300, 100, 15);
    EXPECT_EQ(TimeBonusAt(1, 300, 100, fast), 287);  // 286.666..
    const float halves = TimeBonusDecay(101, 100, 2);  // 0.5 a second
    EXPECT_EQ(TimeBonusAt(1, 101, 100, halves), 100);  // 100.5 goes to 100
}

TEST(FivestackScoring, OnlyTheTimeBonusRangeTheBonusScoreAndThePassesMarkAScore) {
    const ScoringValues d;
    EXPECT_FALSE(IsCustomScoring(d, 1));
    EXPECT_TRUE(IsCustomScoring(d, 0));
    for (const auto& change : std::vector<void (*)(ScoringValues&)>{
             [](ScoringValues& v) { v.TimeBonusMin = 99; }, [](ScoringValues& v) { v.TimeBonusMax = 301; },
             [](ScoringValues& v) { v.BonusScore = 199999; }}) {
        ScoringValues v;
        change(v);
        EXPECT_TRUE(IsCustomScoring(v, 1));
    }
    ScoringValues v;
    v.WaitPeriod = 0;
    v.CardsToPass = 5;  // the passes left count, not the setting
    EXPECT_FALSE(IsCustomScoring(v, 1));
}
