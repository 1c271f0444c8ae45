// SPDX-License-Identifier: GPL-3.0-or-later
// Spirehold's rules where the window can't show them whole: the neighbour rule at its edges, the towers'
// shape, what counts as custom scoring, and a stack turned tens of thousands of times past its end.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>

#include "games/spirehold/modSpirehold.h"
#include "games/spirehold/modSpireholdBoard.h"
#include "suite/cards.h"
#include "window/basic.h"

using namespace ch;
using namespace ch::spirehold;

TEST(SpireholdRules, KingAndAceFollowEachOtherBothWaysAndNothingFollowsItself) {
    // {card, up card, legal}
    const int cases[][3] = {{1, 13, 1}, {12, 13, 1}, {2, 13, 0}, {13, 1, 1}, {2, 1, 1}, {12, 1, 0}, {1, 2, 1},
                            {13, 12, 1}, {13, 11, 0}, {1, 3, 0}, {7, 6, 1}, {7, 8, 1}, {7, 9, 0}};
    for (const auto& c : cases) EXPECT_EQ(IsNeighbour(c[0], c[1]), c[2] == 1) << c[0] << " on " << c[1];
    for (int rank = 1; rank <= 13; ++rank) {
        EXPECT_FALSE(IsNeighbour(rank, rank)) << rank;
        EXPECT_FALSE(IsNeighbour(rank, kNoRank)) << rank;
        EXPECT_FALSE(IsNeighbour(rank, 0)) << rank;  // after the stack ran out
        EXPECT_FALSE(IsNeighbour(0, rank)) << rank;  // no card
    }
}

TEST(SpireholdRules, EveryCoveredCardLiesUnderTwoNeighboursOfTheRowBelow) {
    constexpr int kRowTops[] = {0, 375, 1080, 1815, 2520};
    for (int i = 0; i < kTowerCards; ++i) {
        const TowerPlace& p = kTowerPlaces[static_cast<size_t>(i)];
        EXPECT_EQ(p.top, kRowTops[p.row]) << i;
        if (p.row == 4) {
            EXPECT_EQ(p.coveredBy[0] + p.coveredBy[1], -2) << i;
            continue;
        }
        const TowerPlace& a = kTowerPlaces[static_cast<size_t>(p.coveredBy[0])];
        const TowerPlace& b = kTowerPlaces[static_cast<size_t>(p.coveredBy[1])];
        EXPECT_EQ(a.row, p.row + 1) << i;
        EXPECT_EQ(b.row, p.row + 1) << i;
        EXPECT_EQ(b.left - a.left, 1050) << i;
        // Centred on the pair, the top row a pixel to the right.
        EXPECT_LE(std::abs(a.left + b.left - 2 * p.left), 30) << i;
    }
    // The gaps between the towers: no card lies under both 14 and 15.
    std::array<bool, kTowerCards> onTable{};
    onTable.fill(true);
    onTable[14] = onTable[15] = false;
    EXPECT_TRUE(CardsTurnedBy(15, onTable).empty());
}

TEST(SpireholdRules, CustomScoringIsAnyValueOffItsDefault) {
    ScoringValues v;
    EXPECT_FALSE(IsCustomScoring(v, kDefaultTimeBonus));
    EXPECT_TRUE(IsCustomScoring(v, kDefaultTimeBonus + 1));
    v.TowerBonus = 5001;
    EXPECT_TRUE(IsCustomScoring(v, kDefaultTimeBonus));
}

// The next card's index stops at the top of its 16-bit range; every further turn is the same refused turn.
TEST(SpireholdRules, AStackTurnedPastItsRangeKeepsRefusingTheTurn) {
    CreateStandardDeck();
    spirehold::Board board;
    spirehold::DealBoard(board, Deck, 2);
    board.stackIndex = INT16_MAX - 1;
    for (int i = 0; i < 3; ++i) spirehold::ClickStack(board, Deck);
    EXPECT_EQ(board.stackIndex, INT16_MAX);
    EXPECT_STREQ(spirehold::StackStageKey(board.stackIndex), "");
}
