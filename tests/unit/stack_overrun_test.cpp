// SPDX-License-Identifier: GPL-3.0-or-later
// A stack turned tens of thousands of times past its end: the indexes of the
// next card and of the waste pile stop at the top of their 16-bit range, and
// every further turn is the same refused turn.
#include <gtest/gtest.h>

#include <cstdint>

#include "games/duopick/modDuopickBoard.h"
#include "games/spirehold/modSpireholdBoard.h"
#include "suite/cards.h"

using namespace ch;

TEST(StackOverrun, SpireholdKeepsRefusingTheTurn) {
    CreateStandardDeck();
    spirehold::Board board;
    spirehold::DealBoard(board, Deck, 2);
    board.stackIndex = INT16_MAX - 1;
    for (int i = 0; i < 3; ++i) spirehold::ClickStack(board, Deck);
    EXPECT_EQ(board.stackIndex, INT16_MAX);
    EXPECT_STREQ(spirehold::StackStageKey(board.stackIndex), "");
}

TEST(StackOverrun, DuopickKeepsRefusingTheTurn) {
    CreateStandardDeck();
    duopick::Board board;
    duopick::DealBoard(board, Deck);
    board.stackIndex = INT16_MAX - 1;
    board.wastePos = INT16_MAX - 1;
    for (int i = 0; i < 3; ++i) EXPECT_TRUE(duopick::ClickStack(board, Deck).overrun);
    EXPECT_EQ(board.stackIndex, INT16_MAX);
    EXPECT_EQ(board.wastePos, INT16_MAX);
}
