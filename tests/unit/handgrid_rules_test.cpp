// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "games/handgrid/modHandgrid.h"

using namespace ch::handgrid;

namespace {
std::string Name(const Line& line) { return HandName(EvaluateHand(line)); }
}  // namespace

TEST(HandgridHands, FullLinesNameEveryHand) {
    EXPECT_EQ(Name({"2S", "5H", "9C", "11D", "13S"}), "Nothing");
    EXPECT_EQ(Name({"2S", "2H", "9C", "11D", "13S"}), "1 Pair");
    EXPECT_EQ(Name({"2S", "2H", "9C", "9D", "13S"}), "2 Pair");
    EXPECT_EQ(Name({"2S", "2H", "2C", "9D", "13S"}), "3 of a kind");
    EXPECT_EQ(Name({"5S", "6H", "7C", "8D", "9S"}), "Straight");
    EXPECT_EQ(Name({"2H", "5H", "9H", "11H", "13H"}), "Flush");
    EXPECT_EQ(Name({"2S", "2H", "2C", "9D", "9S"}), "Full House");
    EXPECT_EQ(Name({"9S", "9H", "9C", "9D", "13S"}), "4 of a kind");
    EXPECT_EQ(Name({"5C", "6C", "7C", "8C", "9C"}), "St. Flush");
    EXPECT_EQ(Name({"10D", "11D", "12D", "13D", "1D"}), "Royal Flush");
}

TEST(HandgridHands, AceHighAndAceLowAndNothingBetween) {
    // Ace high: mixed suits a straight, one suit the royal flush.
    EXPECT_EQ(Name({"1S", "10H", "11C", "12D", "13S"}), "Straight");
    EXPECT_EQ(Name({"1S", "10S", "11S", "12S", "13S"}), "Royal Flush");
    // Ace low of one suit is a straight flush, never royal.
    EXPECT_EQ(Name({"1H", "2H", "3H", "4H", "5H"}), "St. Flush");
    EXPECT_EQ(Name({"1H", "2S", "3H", "4H", "5H"}), "Straight");
    // No wrap-around past the king.
    EXPECT_EQ(HandString({"13S", "1H", "2C", "3D", "4S"}), "123413");
    EXPECT_EQ(Name({"13S", "1H", "2C", "3D", "4S"}), "Nothing");
    EXPECT_EQ(Name({"12S", "13H", "1C", "2D", "3S"}), "Nothing");
    // Every run from ace-low to ace-high, and the run one short of each.
    for (int low = 1; low <= 10; ++low) {
        Line run;
        for (int i = 0; i < 5; ++i) run[static_cast<size_t>(i)] = std::to_string((low + i - 1) % 13 + 1) + (i ? "S" : "H");
        EXPECT_EQ(Name(run), "Straight") << low;
    }
    EXPECT_EQ(Name({"9S", "10H", "11C", "12D", "1S"}), "Nothing");
}

TEST(HandgridHands, TheOrderOnTheTableDoesNotMatter) {
    EXPECT_EQ(Name({"2C", "3D", "4S", "5H", "1S"}), "Straight");
    EXPECT_EQ(Name({"5S", "1S", "4S", "2S", "3S"}), "St. Flush");
    EXPECT_EQ(Name({"13D", "1D", "12D", "10D", "11D"}), "Royal Flush");
    EXPECT_EQ(HandString({"12S", "1H", "10C", "13D", "11S"}), "110111213");
    EXPECT_EQ(HandString({"9S", "10H", "0", "13D", "0"}), "00910" "13");
}

TEST(HandgridHands, PartialLinesNameWhatStandsInThem) {
    EXPECT_EQ(Name({"0", "0", "0", "0", "0"}), "Nothing");
    EXPECT_EQ(Name({"7S", "0", "7H", "0", "0"}), "1 Pair");
    EXPECT_EQ(Name({"7S", "0", "7H", "3C", "3D"}), "2 Pair");
    EXPECT_EQ(Name({"7S", "7C", "7H", "0", "0"}), "3 of a kind");
    EXPECT_EQ(Name({"7S", "7C", "7H", "0", "2D"}), "3 of a kind");
    EXPECT_EQ(Name({"7S", "7C", "7H", "7D", "0"}), "4 of a kind");
    EXPECT_EQ(Name({"7S", "7C", "7H", "2D", "2S"}), "Full House");
    // Four of a suit or four in a row are nothing yet.
    EXPECT_EQ(Name({"2H", "5H", "9H", "11H", "0"}), "Nothing");
    EXPECT_EQ(Name({"5S", "6H", "7C", "8D", "0"}), "Nothing");
}

TEST(HandgridHands, ATenIsOneRankTally) {
    // "10" is the rank ten, not a one and a zero: a ten beside an ace is no pair.
    EXPECT_EQ(Name({"10S", "1H", "0", "0", "0"}), "Nothing");
    EXPECT_EQ(Name({"10S", "10H", "0", "0", "0"}), "1 Pair");
    EXPECT_EQ(Name({"10S", "10H", "10C", "10D", "0"}), "4 of a kind");
    EXPECT_EQ(Name({"6S", "7H", "8C", "9D", "10S"}), "Straight");
}

TEST(HandgridGrid, LinesReadTrimmedWithEmptyCellsAsZero) {
    Grid grid;
    grid[5] = " 10S";
    grid[9] = "1H";
    const Line row1 = LineOf(grid, 1);
    EXPECT_EQ(row1, (Line{"10S", "0", "0", "0", "1H"}));
    EXPECT_EQ(LineOf(grid, 0), (Line{"0", "0", "0", "0", "0"}));
}

TEST(HandgridGrid, TransposeTurnsColumnsIntoRowsAndBack) {
    Grid grid;
    for (int i = 0; i < kCells; ++i) grid[static_cast<size_t>(i)] = std::to_string(i);
    TransposeCards(grid);
    for (int r = 0; r < 5; ++r)
        for (int c = 0; c < 5; ++c) EXPECT_EQ(grid[static_cast<size_t>(r * 5 + c)], std::to_string(c * 5 + r));
    TransposeCards(grid);
    for (int i = 0; i < kCells; ++i) EXPECT_EQ(grid[static_cast<size_t>(i)], std::to_string(i));
}

TEST(HandgridTables, Colours) {
    EXPECT_EQ(HandColour("Nothing"), static_cast<int>(0x80000012u));
    EXPECT_EQ(HandColour("1 Pair"), 0xFF0000);
    EXPECT_EQ(OverWritesColour(OverWritesText(0)), 255);
    EXPECT_EQ(OverWritesColour(OverWritesText(10)), 0xFF0000);
    EXPECT_EQ(OverWritesColour(OverWritesText(3)), 0xFF0000);
    EXPECT_EQ(StackPictureKey(26), std::string("FULL"));
    EXPECT_EQ(StackPictureKey(25), std::string("HALF"));
    EXPECT_EQ(StackPictureKey(13), std::string("HALF"));
    EXPECT_EQ(StackPictureKey(12), std::string("BACK"));
    EXPECT_EQ(StackPictureKey(1), std::string("BACK"));
    EXPECT_EQ(StackPictureKey(0), std::string("EMPTY"));
    EXPECT_EQ(StackPictureKey(-3), std::string("EMPTY"));
}

TEST(HandgridTables, CustomScoringIsAnyValueOffItsDefault) {
    EXPECT_FALSE(IsCustomScoring(ScoringValues{}, 1));
    EXPECT_TRUE(IsCustomScoring(ScoringValues{}, 2));
    ScoringValues changed;
    changed.HandScores[RoyalFlush] = 501;
    EXPECT_TRUE(IsCustomScoring(changed, 1));
    changed = {};
    changed.BonusScore = 0;
    EXPECT_TRUE(IsCustomScoring(changed, 1));
    changed = {};
    changed.OverWritesAllowed = 26;
    EXPECT_TRUE(IsCustomScoring(changed, 1));
}
