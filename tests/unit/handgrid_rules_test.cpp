// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "games/handgrid/modHandgrid.h"

using namespace ch::handgrid;

namespace {
void ExpectNames(std::initializer_list<std::pair<Line, const char*>> cases) {
    for (const auto& [line, name] : cases)
        EXPECT_STREQ(HandName(EvaluateHand(line)), name) << line[0] << line[1] << line[2] << line[3] << line[4];
}
}  // namespace

// The grids the scenarios fill name the other hands.
TEST(HandgridHands, FullLinesNameEveryHandInAnyOrder) {
    ExpectNames({{{"2S", "9D", "2H", "13S", "2C"}, "3 of a kind"},
                 {{"9D", "2S", "2H", "9S", "2C"}, "Full House"},
                 {{"5C", "6C", "7C", "8C", "9C"}, "St. Flush"},
                 {{"13D", "1D", "12D", "10D", "11D"}, "Royal Flush"},
                 {{"6S", "7H", "8C", "9D", "10S"}, "Straight"}});
}

TEST(HandgridHands, TheAceIsHighOrLowWithNoWrapAround) {
    ExpectNames({{{"1S", "10H", "11C", "12D", "13S"}, "Straight"},
                 {{"2C", "3D", "4S", "5H", "1S"}, "Straight"},
                 {{"5S", "1S", "4S", "2S", "3S"}, "St. Flush"},
                 {{"13S", "1H", "2C", "3D", "4S"}, "Nothing"},
                 {{"12S", "13H", "1C", "2D", "3S"}, "Nothing"},
                 {{"9S", "10H", "11C", "12D", "1S"}, "Nothing"}});
    // Every run from ace-low to ace-high.
    for (int low = 1; low <= 10; ++low) {
        Line run;
        for (int i = 0; i < 5; ++i)
            run[static_cast<size_t>(i)] = std::to_string((low + i - 1) % 13 + 1) + (i ? "S" : "H");
        EXPECT_STREQ(HandName(EvaluateHand(run)), "Straight") << low;
    }
}

TEST(HandgridHands, PartialLinesNameWhatStandsInThem) {
    ExpectNames({{{"0", "0", "0", "0", "0"}, "Nothing"},
                 {{"7S", "0", "7H", "0", "0"}, "1 Pair"},
                 {{"7S", "7C", "7H", "0", "2D"}, "3 of a kind"},
                 {{"7S", "7C", "7H", "7D", "0"}, "4 of a kind"},
                 // Four of a suit or four in a row are nothing yet.
                 {{"2H", "5H", "9H", "11H", "0"}, "Nothing"},
                 {{"5S", "6H", "7C", "8D", "0"}, "Nothing"},
                 // "10" is the rank ten, not a one and a zero.
                 {{"10S", "1H", "0", "0", "0"}, "Nothing"},
                 {{"10S", "10H", "0", "0", "0"}, "1 Pair"}});
}

TEST(HandgridGrid, TransposeTurnsColumnsIntoRowsAndBack) {
    Grid grid;
    for (int i = 0; i < kCells; ++i) grid[static_cast<size_t>(i)] = std::to_string(i);
    TransposeCards(grid);
    for (int r = 0; r < 5; ++r)
        for (int c = 0; c < 5; ++c) EXPECT_EQ(grid[static_cast<size_t>(r * 5 + c)], std::to_string(c * 5 + r));
    EXPECT_EQ(LineOf(Grid{{"", "", "", "", "", " 10S", "", "", "", "1H"}}, 1), (Line{"10S", "0", "0", "0", "1H"}));
}

TEST(HandgridDeck, StackThinsAsCardsAreDrawn) {
    const std::pair<int, const char*> steps[] = {{26, "FULL"}, {25, "HALF"}, {13, "HALF"}, {12, "BACK"},
                                                 {1, "BACK"},  {0, "EMPTY"}, {-3, "EMPTY"}};
    for (const auto& [left, key] : steps) EXPECT_STREQ(StackPictureKey(left), key) << left;
}

TEST(HandgridScoring, AnyScoringValueOffItsDefaultIsCustom) {
    EXPECT_FALSE(IsCustomScoring(ScoringValues{}, kDefaultTimeBonus));
    ScoringValues bonus, overwrites, royal;
    bonus.BonusScore = 99999;
    overwrites.OverWritesAllowed = 2;
    royal.HandScores[RoyalFlush] = 501;
    for (const ScoringValues& v : {bonus, overwrites, royal}) EXPECT_TRUE(IsCustomScoring(v, kDefaultTimeBonus));
    EXPECT_TRUE(IsCustomScoring(ScoringValues{}, 2));
}
