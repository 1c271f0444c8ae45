// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "games/spirehold/modSpireholdBoard.h"
#include "suite/cards.h"

using namespace ch::spirehold;

namespace {
constexpr int kBack = 2;
constexpr int kOtherBack = 5;

// The standard deck unshuffled: slot n holds rank (n - 1) % 13 + 1, so the
// bottom row (18..27) deals 6 to King, Ace and 2, and the up card is a King.
struct Dealt {
    std::vector<std::string> deck;
    Board board;
    Dealt() {
        ch::CreateStandardDeck();
        deck = ch::Deck;
        DealBoard(board, deck, kBack);
    }
    const Place& At(int i) const { return board.towers[static_cast<size_t>(i)]; }
};
}  // namespace

TEST(SpireholdBoard, ANeighbourBecomesTheUpCardAndTwoGoneTurnTheCardTheyCovered) {
    Dealt d;
    EXPECT_TRUE(d.At(0).FaceDown(kBack));
    EXPECT_FALSE(d.At(0).enabled);
    EXPECT_TRUE(d.At(18).onTable && d.At(18).enabled);
    EXPECT_EQ(d.board.upCardValue, 13);

    EXPECT_FALSE(TakeCard(d.board, 25, kBack));  // King on King
    EXPECT_TRUE(TakeCard(d.board, 24, kBack));    // Queen
    EXPECT_EQ(d.board.upCard.card, " 12H");
    EXPECT_FALSE(d.At(24).onTable || d.At(24).HasPicture());
    TurnCardsBy(d.board, 24);
    EXPECT_TRUE(d.At(14).FaceDown(kBack));  // 23 still lies on it

    EXPECT_TRUE(TakeCard(d.board, 23, kBack));  // Jack
    TurnCardsBy(d.board, 23);
    EXPECT_EQ(d.At(14).card, " 2H");
    EXPECT_TRUE(d.At(14).enabled);

    ShowCardsOnBoard(d.board, false, false);
    ResumeBoard(d.board);
    EXPECT_FALSE(d.At(23).onTable);
    EXPECT_TRUE(d.At(14).onTable && d.At(14).enabled && d.board.upCard.onTable && d.board.stackShown);
}

TEST(SpireholdBoard, ANewBackReachesOnlyTheFaceDownCardsOnShow) {
    Dealt d;
    ShowCardsOnBoard(d.board, false, false);
    d.board.towers[1].onTable = true;
    RedrawBacks(d.board, kOtherBack);
    EXPECT_TRUE(d.At(1).FaceDown(kOtherBack));
    EXPECT_TRUE(d.At(0).FaceDown(kBack));  // off the table while paused: the old back stays
    EXPECT_EQ(d.At(18).card, " 6H");
}

TEST(SpireholdBoard, PastTheStackTheUpCardStaysAndMatchesNothing) {
    Dealt d;
    ClickStack(d.board, d.deck);
    EXPECT_EQ(d.board.stackIndex, 29);
    EXPECT_EQ(d.board.upCard.card, d.deck[29]);
    EXPECT_EQ(d.board.upCardValue, Rank(d.deck[29]));
    for (int i = 0; i < 23; ++i) ClickStack(d.board, d.deck);
    EXPECT_EQ(d.board.upCard.card, d.deck[52]);
    ClickStack(d.board, d.deck);
    ClickStack(d.board, d.deck);
    EXPECT_EQ(d.board.stackIndex, 54);
    EXPECT_EQ(d.board.upCard.card, d.deck[52]);
    EXPECT_EQ(d.board.upCardValue, 0);
    EXPECT_FALSE(TakeCard(d.board, 18, kBack));
}
