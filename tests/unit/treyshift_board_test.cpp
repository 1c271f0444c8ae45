// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "games/treyshift/modTreyshiftBoard.h"

using namespace ch::treyshift;

namespace {
// Deck slot n holds " nS" for n up to 13, then hearts: slot 0 is unused.
std::vector<std::string> TestDeck() {
    std::vector<std::string> deck(53);
    for (int n = 1; n <= 52; ++n)
        deck[static_cast<size_t>(n)] = " " + std::to_string((n - 1) % 13 + 1) + "SHDC"[(n - 1) / 13];
    return deck;
}

struct Dealt {
    std::vector<std::string> deck = TestDeck();
    Board board;
    Dealt() {
        ShowCardsOnBoard(board, true);
        DealBoard(board, deck);
    }
    // Two clicks: the card in play to a field slot.
    Step FromFan(int slot) {
        ClickFan(board, 2);
        return ClickField(board, slot, deck);
    }
    const Slot& Field(int i) const { return board.field[static_cast<size_t>(i)]; }
};
}  // namespace

TEST(TreyshiftBoard, TheFanTurnsOnAndEmptiesPastTheDeck) {
    Dealt d;
    EXPECT_EQ(ClickFan(d.board, 1).outcome, Outcome::Refused);
    EXPECT_EQ(d.board.fan[2].card, " 3S");
    const Step step = d.FromFan(0);
    EXPECT_EQ(step.outcome, Outcome::Moved);
    EXPECT_STREQ(step.sound, "\\Click.wav");
    EXPECT_EQ(d.Field(0).card, " 3S");
    EXPECT_TRUE(d.Field(0).framed);
    EXPECT_TRUE(d.Field(4).visible);
    EXPECT_EQ(d.board.fan[2].card, " 2S");
    EXPECT_EQ(d.board.fan[0].card, " 4S");
    EXPECT_EQ(d.board.deckPosition, 4);
    EXPECT_FALSE(d.board.fanOutlined);
}

TEST(TreyshiftBoard, AColumnTakesItsLowestCardOnly) {
    Dealt d;
    d.FromFan(0);
    d.FromFan(4);
    // A click on the top card acts on the lowest visible slot: the landing
    // slot goes and the middle card is picked.
    const Step pick = ClickField(d.board, 0, d.deck);
    EXPECT_EQ(pick.outcome, Outcome::Picked);
    EXPECT_EQ(pick.slot, 4);
    EXPECT_TRUE(d.Field(4).outlined);
    EXPECT_FALSE(d.Field(8).visible);
    EXPECT_EQ(ClickField(d.board, 0, d.deck).outcome, Outcome::Cancelled);
    EXPECT_FALSE(d.Field(8).visible);

    // The landing slot stays hidden after the cancel: the next card goes
    // under the middle card and is shown.
    const Step under = d.FromFan(0);
    EXPECT_EQ(under.slot, 8);
    EXPECT_TRUE(d.Field(8).HasCard());
    EXPECT_TRUE(d.Field(8).visible);
    EXPECT_TRUE(BottomFilled(d.board, 0));

    // A full column refuses and the selection stays.
    ClickFan(d.board, 2);
    EXPECT_EQ(ClickField(d.board, 8, d.deck).outcome, Outcome::Full);
    EXPECT_TRUE(d.board.selected);

    EXPECT_EQ(ClickFan(d.board, 2).outcome, Outcome::Cancelled);
    // A top card moved away leaves "EMPTY" and hides the slot under it.
    d.FromFan(1);
    ClickField(d.board, 1, d.deck);
    ClickStorage(d.board, 0, d.deck);
    EXPECT_TRUE(d.Field(1).ShowsEmpty());
    EXPECT_FALSE(d.Field(1).framed);
    EXPECT_FALSE(d.Field(5).visible);

    ClearColumn(d.board, 0);
    EXPECT_TRUE(d.Field(0).ShowsEmpty());
    for (int i : {4, 8}) EXPECT_FALSE(d.Field(i).HasPicture() || d.Field(i).visible);
}
