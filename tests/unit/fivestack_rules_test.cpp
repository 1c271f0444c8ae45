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

struct Report {
    OptionField field;
    std::string message;
    std::string text;
};

std::vector<Report> Check(OptionTexts& texts, OptionValues& values, bool& ok) {
    std::vector<Report> reports;
    ok = CheckOptions(texts, values, [&](OptionField f, const std::string& m, const std::string& t) {
        reports.push_back({f, m, t});
    });
    return reports;
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

TEST(FivestackScoring, OnlyTheFourScoringValuesMarkAScore) {
    EXPECT_FALSE(IsCustomScoring(100, 300, 200000, 1));
    EXPECT_TRUE(IsCustomScoring(99, 300, 200000, 1));
    EXPECT_TRUE(IsCustomScoring(100, 301, 200000, 1));
    EXPECT_TRUE(IsCustomScoring(100, 300, 199999, 1));
    EXPECT_TRUE(IsCustomScoring(100, 300, 200000, 0));
}

TEST(FivestackOptions, GoodFieldsAreAllStoredRounded) {
    OptionTexts texts{"3", "1.5", "150000.4", "500", "20"};
    OptionValues values;
    bool ok = false;
    EXPECT_TRUE(Check(texts, values, ok).empty());
    EXPECT_TRUE(ok);
    EXPECT_EQ(values.passesLeft, 3);
    EXPECT_EQ(values.cardsToPass, 3);
    EXPECT_EQ(values.waitPeriod, 1500);
    EXPECT_EQ(values.bonusScore, 150000);
    EXPECT_EQ(values.timeBonusMax, 500);
    EXPECT_EQ(values.timeBonusMin, 20);
}

TEST(FivestackOptions, ClampedFieldsAreStoredAndTheOthersGoOn) {
    OptionTexts texts{"-1", "31", "-5", "300", "100"};
    OptionValues values;
    values.cardsToPass = 4;
    bool ok = true;
    const auto reports = Check(texts, values, ok);
    EXPECT_FALSE(ok);
    ASSERT_EQ(reports.size(), 3u);
    EXPECT_EQ(reports[0].message, "Sorry, you cannot pass fewer than 0 cards.");
    EXPECT_EQ(reports[1].message,
              "Sorry, a maximum of 30 seconds is allowed for the waiting period between rounds.");
    EXPECT_EQ(reports[1].text, "30");
    EXPECT_EQ(reports[2].message, "Sorry, a minimum of 0 is required for the bonus round score.");
    EXPECT_EQ(values.passesLeft, 0);
    EXPECT_EQ(values.cardsToPass, 4);  // a clamped pass count reaches only PassesLeft
    EXPECT_EQ(values.waitPeriod, 30000);
    EXPECT_EQ(values.bonusScore, 0);
    EXPECT_EQ(texts.passes, "0");
    EXPECT_EQ(texts.wait, "30");

    OptionTexts high{"11", "-2", "3000000000", "300", "100"};
    const auto more = Check(high, values, ok);
    ASSERT_EQ(more.size(), 3u);
    EXPECT_EQ(more[0].message, "Sorry, you cannot pass more than 10 cards.");
    EXPECT_EQ(more[1].text, "0");
    EXPECT_EQ(more[2].message, "Sorry, the maximum value for achieving a bonus round is 2147483647.");
    EXPECT_EQ(values.passesLeft, 10);
    EXPECT_EQ(values.waitPeriod, 0);
    EXPECT_EQ(values.bonusScore, 2147483647);
}

TEST(FivestackOptions, TheMinimumReadsTheMaximumAsTheFirstTestLeftIt) {
    OptionTexts texts{"1", "2", "200000", "100", "100"};
    OptionValues values;
    values.timeBonusMax = 250;
    bool ok = true;
    const auto reports = Check(texts, values, ok);
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].field, OptionField::Maximum);
    EXPECT_EQ(reports[0].message,
              "Sorry, the maximum time bonus value must be greater than the minimum time bonus value.");
    EXPECT_EQ(reports[0].text, "101");
    EXPECT_EQ(texts.maximum, "101");
    EXPECT_EQ(values.timeBonusMax, 250);  // the failed maximum isn't taken
    EXPECT_EQ(values.timeBonusMin, 100);
}

TEST(FivestackOptions, EachFieldStopsAtItsFirstFailedTest) {
    bool ok = true;
    OptionValues values;
    // No number counts as 0: the maximum is not above an empty minimum, and
    // the minimum then fails its own test of 0.
    OptionTexts empty{"1", "2", "200000", "300", ""};
    auto reports = Check(empty, values, ok);
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].message, "Sorry, the minimum time bonus value must be greater than 0.");
    EXPECT_EQ(reports[0].text, "0");

    OptionTexts big{"1", "2", "200000", "20000", "15000"};
    reports = Check(big, values, ok);
    ASSERT_EQ(reports.size(), 2u);
    EXPECT_EQ(reports[0].message, "Sorry, the maximum time bonus value must not exceed 10000.");
    EXPECT_EQ(reports[1].message,
              "Sorry, the minimum time bonus value must be less than the maximum time bonus value.");
    EXPECT_EQ(reports[1].text, "9999");

    OptionTexts negative{"1", "2", "200000", "-5", "-10"};
    reports = Check(negative, values, ok);
    ASSERT_EQ(reports.size(), 2u);
    EXPECT_EQ(reports[0].message, "Sorry, the maximum time bonus value must be greater than 0.");
    EXPECT_EQ(reports[0].text, "0");
    // The maximum's box now reads 0, above -10: the minimum fails its own test.
    EXPECT_EQ(reports[1].message, "Sorry, the minimum time bonus value must be greater than 0.");
}
