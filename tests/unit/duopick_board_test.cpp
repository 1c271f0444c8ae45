// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <stdexcept>

#include "games/duopick/modDuopickBoard.h"
#include "suite/cards.h"

using namespace ch::duopick;

namespace {
// The standard deck unshuffled: slot n holds rank (n - 1) % 13 + 1, so the
// bottom row (18..22) deals 6 to 10 of hearts, the up card the Jack, and the
// stack starts with the Queen.
std::vector<std::string> StandardDeck() {
    ch::CreateStandardDeck();
    return ch::Deck;
}

struct Dealt {
    std::vector<std::string> deck = StandardDeck();
    Board board;
    Dealt() { DealBoard(board, deck); }
    Step Click(int index) {
        Step step;
        ClickCard(board, index, step);
        return step;
    }
    Step Stack(int times) {
        Step step;
        for (int i = 0; i < times; ++i) step = ClickStack(board, deck);
        return step;
    }
    const Place& At(int i) const { return board.places[static_cast<size_t>(i)]; }
};
}  // namespace

TEST(DuopickBoard, PairsAndRunsTakeExposedCardsAndUncoverTheRowAbove) {
    Dealt d;
    EXPECT_EQ(d.Click(14).outcome, Outcome::Refused);  // under 18 and 19
    const Step pick = d.Click(18);
    EXPECT_EQ(pick.outcome, Outcome::Picked);
    EXPECT_STREQ(pick.sound, "\\Markq.wav");
    EXPECT_TRUE(d.At(18).outlined);
    EXPECT_FALSE(d.At(18).enabled);

    const Step run = d.Click(19);  // 6 then 7
    EXPECT_EQ(run.outcome, Outcome::Run);
    EXPECT_STREQ(run.sound, "\\TwentyOne.wav");
    EXPECT_FALSE(run.topRowCleared);
    for (int i : {18, 19}) {
        EXPECT_FALSE(d.At(i).onTable);
        EXPECT_FALSE(d.At(i).HasPicture());
        EXPECT_FALSE(d.At(i).outlined);
    }
    EXPECT_EQ(d.board.cardsSelected, 0);
    EXPECT_EQ(d.Click(14).outcome, Outcome::Picked);  // uncovered

    const Step none = d.Click(22);  // 2 then 10
    EXPECT_EQ(none.outcome, Outcome::NoMatch);
    EXPECT_STREQ(none.sound, "\\Chord.wav");
    EXPECT_TRUE(d.At(14).onTable && d.At(14).enabled && !d.At(14).outlined);
    EXPECT_TRUE(d.At(22).onTable);
}

TEST(DuopickBoard, AnOutlineLeftStandingCancelsTheSelectionAndKeepsTheFirstCard) {
    Dealt d;
    d.board.places[21].outlined = true;  // as an abandoned game leaves it
    d.Click(20);
    const Step cancel = d.Click(21);
    EXPECT_EQ(cancel.outcome, Outcome::Cancelled);
    EXPECT_STREQ(cancel.sound, "\\Tick.wav");
    EXPECT_FALSE(d.At(21).outlined);
    EXPECT_TRUE(d.At(20).outlined);
    EXPECT_FALSE(d.At(20).enabled);
    EXPECT_EQ(d.board.cardsSelected, 0);
}

TEST(DuopickBoard, TheUpCardEmptiesTheWastePileAndTheStackFillsTheFirstGap) {
    Dealt d;
    d.Click(kUpCard);
    EXPECT_EQ(d.Click(22).outcome, Outcome::Run);  // Jack and 10
    EXPECT_EQ(d.board.wastePos, 0);
    EXPECT_EQ(d.At(kUpCard).picture, "EMPTY");
    EXPECT_FALSE(d.At(kUpCard).enabled);
    EXPECT_EQ(d.Click(kUpCard).outcome, Outcome::Refused);

    // With the waste pile empty the gap waits; the next click puts the up card in it.
    const Step turn = d.Stack(1);
    EXPECT_STREQ(turn.sound, "\\Click.wav");
    EXPECT_FALSE(d.At(22).HasPicture());
    EXPECT_EQ(d.At(kUpCard).picture, " 12H");
    d.Stack(1);
    EXPECT_EQ(d.At(22).picture, " 12H");
    EXPECT_EQ(d.board.deckCards[22], " 12H");
    EXPECT_TRUE(d.At(22).onTable);
    EXPECT_EQ(d.board.wastePos, 1);
    EXPECT_EQ(d.At(kUpCard).picture, " 13H");
}

TEST(DuopickBoard, PastTheStackItsEmptyEntriesLeaveAGapOnTheTableThatResumingTakesOff) {
    Dealt d;
    EXPECT_FALSE(d.Stack(28).overrun);
    EXPECT_TRUE(d.Stack(1).overrun);
    EXPECT_EQ(d.At(kUpCard).picture, " 13D");  // the last card stays on show
    EXPECT_EQ(d.board.deckCards[kUpCard], "");
    d.Click(18);
    d.Click(19);
    d.Stack(1);
    EXPECT_TRUE(d.At(18).onTable);
    EXPECT_FALSE(d.At(18).HasPicture());

    d.board.cardsSelected = 1;
    d.board.firstCardIndex = 20;
    PauseBoard(d.board);
    EXPECT_FALSE(d.At(20).onTable || d.At(20).outlined || d.board.stackShown);
    ResumeBoard(d.board);
    EXPECT_FALSE(d.At(18).onTable);
    EXPECT_TRUE(d.At(20).onTable && d.At(20).outlined && d.At(kUpCard).onTable && d.board.stackShown);
}

TEST(DuopickBoard, TakingTheUpCardPastTheWastePilesEndStopsAfterTakingTheCards) {
    Dealt d;
    d.Stack(31);
    EXPECT_EQ(d.board.wastePos, 32);
    d.board.deckCards[18] = " 1S";  // an empty up card runs only into an Ace
    d.Click(kUpCard);
    Step step;
    EXPECT_THROW(ClickCard(d.board, 18, step), std::out_of_range);
    EXPECT_EQ(step.outcome, Outcome::Run);
    EXPECT_FALSE(d.At(18).onTable);
}
