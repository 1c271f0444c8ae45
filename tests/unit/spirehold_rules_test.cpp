// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "games/spirehold/modSpirehold.h"
#include "window/basic.h"

using namespace ch;
using namespace ch::spirehold;

namespace {
std::array<bool, kTowerCards> AllOnTable() {
    std::array<bool, kTowerCards> t{};
    t.fill(true);
    return t;
}
std::array<bool, kTowerCards> Without(std::initializer_list<int> gone) {
    auto t = AllOnTable();
    for (int i : gone) t[static_cast<size_t>(i)] = false;
    return t;
}
}  // namespace

TEST(SpireholdNeighbours, KingAndAceFollowEachOtherBothWays) {
    // Up card King: Ace and Queen, not Two.
    EXPECT_TRUE(IsNeighbour(1, 13));
    EXPECT_TRUE(IsNeighbour(12, 13));
    EXPECT_FALSE(IsNeighbour(2, 13));
    // Up card Ace: King and Two, not Queen.
    EXPECT_TRUE(IsNeighbour(13, 1));
    EXPECT_TRUE(IsNeighbour(2, 1));
    EXPECT_FALSE(IsNeighbour(12, 1));
    // Two then Ace, Queen then King.
    EXPECT_TRUE(IsNeighbour(1, 2));
    EXPECT_TRUE(IsNeighbour(13, 12));
    // A King or an Ace after anything else is refused.
    EXPECT_FALSE(IsNeighbour(13, 11));
    EXPECT_FALSE(IsNeighbour(1, 3));
}

TEST(SpireholdNeighbours, SameRankAndNoUpCardAreNeverLegal) {
    for (int rank = 1; rank <= 13; ++rank) {
        EXPECT_FALSE(IsNeighbour(rank, rank)) << rank;
        EXPECT_FALSE(IsNeighbour(rank, kNoRank)) << rank;
        EXPECT_FALSE(IsNeighbour(rank, 0)) << rank;  // after the stack ran out
    }
    EXPECT_TRUE(IsNeighbour(7, 6));
    EXPECT_TRUE(IsNeighbour(7, 8));
    EXPECT_FALSE(IsNeighbour(7, 9));
}

TEST(SpireholdTowers, EachCardTurnsWhenItsSecondCoverGoes) {
    // Card 10 goes after 9: card 3 (under 9 and 10) turns, card 4 (under 10
    // and 11) stays down.
    EXPECT_EQ(CardsTurnedBy(10, Without({9, 10})), std::vector<int>{3});
    // Card 11 goes while 10 is there: nothing turns.
    EXPECT_TRUE(CardsTurnedBy(11, Without({11})).empty());
    // With 3 and 4 gone the top card 0 turns.
    EXPECT_EQ(CardsTurnedBy(4, Without({3, 4})), std::vector<int>{0});
    // A bottom card may uncover two, in ascending order.
    EXPECT_EQ(CardsTurnedBy(19, Without({18, 19, 20})), (std::vector<int>{9, 10}));
    // The first card of row 4 covers one card only.
    EXPECT_EQ(CardsTurnedBy(18, Without({18})), std::vector<int>{});
    EXPECT_EQ(CardsTurnedBy(18, Without({18, 19})), std::vector<int>{9});
}

TEST(SpireholdTowers, TheGapsBetweenTheTowersHaveNoCommonParent) {
    // No card lies under both 11 and 12, nor under both 14 and 15: clearing
    // the pair turns nothing.
    auto gone = Without({11, 12});
    EXPECT_TRUE(CardsTurnedBy(12, gone).empty());
    EXPECT_TRUE(CardsTurnedBy(11, gone).empty());
    gone = Without({14, 15});
    EXPECT_TRUE(CardsTurnedBy(15, gone).empty());
    // Every covered card has two covers, one directly to the right of the
    // other; row 4 covers nothing and lies under nothing.
    for (int i = 0; i < kTowerCards; ++i) {
        const TowerPlace& p = kTowerPlaces[static_cast<size_t>(i)];
        if (p.row == 4) {
            EXPECT_EQ(p.coveredBy[0], -1);
            continue;
        }
        const TowerPlace& a = kTowerPlaces[static_cast<size_t>(p.coveredBy[0])];
        const TowerPlace& b = kTowerPlaces[static_cast<size_t>(p.coveredBy[1])];
        EXPECT_EQ(a.row, p.row + 1) << i;
        EXPECT_EQ(b.row, p.row + 1) << i;
        EXPECT_LT(a.left, p.left + kCardWidth / 2) << i;
        EXPECT_GT(b.left + kCardWidth, p.left + kCardWidth / 2) << i;
    }
}

TEST(SpireholdTowers, OnlyTheTopCardsCompleteATower) {
    EXPECT_EQ(TowerOfTop(0), 1);
    EXPECT_EQ(TowerOfTop(1), 2);
    EXPECT_EQ(TowerOfTop(2), 3);
    EXPECT_EQ(TowerOfTop(3), 0);
    EXPECT_EQ(TowerOfTop(27), 0);
}

TEST(SpireholdStack, StagesFollowTheIndexOfTheNextCard) {
    EXPECT_STREQ(StackStageKey(28), "FULL");
    EXPECT_STREQ(StackStageKey(34), "FULL");
    EXPECT_STREQ(StackStageKey(35), "HALF");
    EXPECT_STREQ(StackStageKey(41), "HALF");
    EXPECT_STREQ(StackStageKey(42), "BACK");
    EXPECT_STREQ(StackStageKey(51), "BACK");
    EXPECT_STREQ(StackStageKey(52), "EMPTY");
    EXPECT_STREQ(StackStageKey(53), "");
}

TEST(SpireholdScoring, CustomScoringIsAnyValueOffItsDefault) {
    ScoringValues v;
    EXPECT_FALSE(IsCustomScoring(v, kDefaultTimeBonus));
    EXPECT_TRUE(IsCustomScoring(v, 99));
    v.TowerBonus = 5001;
    EXPECT_TRUE(IsCustomScoring(v, kDefaultTimeBonus));
}
