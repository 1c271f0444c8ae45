// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "games/sumfall/modSumfallBoard.h"

using namespace ch::sumfall;

namespace {
// A 52-card deck whose slot n holds a card worth (n - 1) % 10 + 1: slot 1 an
// ace, slot 23 a three; slot 0 unused.
std::vector<std::string> TestDeck(int cards = 52) {
    std::vector<std::string> deck(static_cast<size_t>(cards) + 1);
    for (int n = 1; n <= cards; ++n) deck[static_cast<size_t>(n)] = std::to_string((n - 1) % 10 + 1) + "S";
    return deck;
}

struct Dealt {
    Board board;
    Dealt() { DealBoard(board, TestDeck()); }
};
}  // namespace

TEST(SumfallBoard, TheDealSharesTheFirstUpCardWithTheBottomOfThePlayPile) {
    Dealt d;
    EXPECT_EQ(d.board.field[0], "1S");
    EXPECT_EQ(d.board.field[21], "2S");
    EXPECT_EQ(d.board.up[1], "3S");
    EXPECT_EQ(d.board.stock[0], "3S");
    EXPECT_EQ(d.board.stockIndex, 29);  // 31 slots, the last one empty
    EXPECT_TRUE(d.board.stock[30].empty());
    EXPECT_EQ(d.board.pileKey, "FULL");
}

TEST(SumfallBoard, ClicksToggleTheTotalAndRefuseToPassTheGoal) {
    Dealt d;
    // Place 21 (a two) and the up card (a three) total five.
    EXPECT_EQ(ClickField(d.board, 21, 11).outcome, Outcome::Selected);
    Step step = ClickUp(d.board, 11);
    EXPECT_EQ(step.outcome, Outcome::Selected);
    EXPECT_STREQ(step.sound, "\\Markq.wav");
    EXPECT_EQ(d.board.total, 5);
    // Place 19 is a ten: past 11.
    step = ClickField(d.board, 19, 11);
    EXPECT_EQ(step.outcome, Outcome::Refused);
    EXPECT_STREQ(step.sound, "\\Chord.wav");
    EXPECT_FALSE(d.board.selected[19]);
    step = ClickField(d.board, 21, 11);
    EXPECT_EQ(step.outcome, Outcome::Dropped);
    EXPECT_STREQ(step.sound, "\\Tick.wav");
    EXPECT_EQ(d.board.total, 3);
}

TEST(SumfallBoard, APlaceZeroSelectionSurvivesClearingAndTheNextDeal) {
    Dealt d;
    ClickField(d.board, 0, 11);
    ClickField(d.board, 5, 11);
    ClickUp(d.board, 11);
    ClearSelections(d.board);
    EXPECT_TRUE(d.board.selected[0]);
    EXPECT_FALSE(d.board.selected[5]);
    EXPECT_FALSE(d.board.upSelected);
    DealBoard(d.board, TestDeck());
    EXPECT_TRUE(d.board.selected[0]);
    EXPECT_EQ(d.board.total, 0);
}

TEST(SumfallBoard, TakenCardsLeaveTheFieldAndTheUpPileEmpties) {
    Dealt d;
    ClickField(d.board, 20, 11);
    ClickField(d.board, 21, 11);
    ClickUp(d.board, 11);
    EXPECT_EQ(SelectedPlaces(d.board), (std::vector<int>{20, 21}));
    for (const int place : SelectedPlaces(d.board)) TakeFromField(d.board, place);
    TakeUpCard(d.board);
    EXPECT_FALSE(d.board.holds[20]);
    EXPECT_FALSE(d.board.selected[21]);
    EXPECT_TRUE(d.board.upEmpty);
    EXPECT_EQ(ClickUp(d.board, 11).outcome, Outcome::Refused);
    EXPECT_FALSE(FieldCleared(d.board));
    ShowField(d.board, false);
    EXPECT_TRUE(FieldCleared(d.board));
}

TEST(SumfallBoard, APassedUpCardFallsBackIntoTheFirstFreePlace) {
    Dealt d;
    TakeFromField(d.board, 21);
    TakeFromField(d.board, 4);
    ClickField(d.board, 20, 11);
    EXPECT_EQ(FallBack(d.board), 4);
    EXPECT_EQ(d.board.field[4], "3S");
    EXPECT_EQ(d.board.upIndex, 0);
    TurnUpCard(d.board);
    EXPECT_EQ(d.board.up[1], "2S");  // stock slot 29 is deck slot 52
    EXPECT_EQ(d.board.stockIndex, 28);
    EXPECT_FALSE(d.board.selected[20]);
    EXPECT_EQ(d.board.total, 0);
    // With every place full the up pile grows instead.
    EXPECT_EQ(FallBack(d.board), 21);
    TurnUpCard(d.board);
    EXPECT_EQ(FallBack(d.board), -1);
    TurnUpCard(d.board);
    EXPECT_EQ(d.board.upIndex, 2);
}

TEST(SumfallBoard, TurningThePlayPileToTheEndGrowsTheUpPile) {
    Board board;
    DealBoard(board, TestDeck(64));
    TurnUpCard(board);
    EXPECT_EQ(board.pileKey, "FULL");
    while (board.stockIndex >= 0) TurnUpCard(board);
    EXPECT_EQ(board.pileKey, "EMPTY");
    EXPECT_EQ(board.upIndex, 43);
    EXPECT_EQ(board.up[43], "3S");  // the first up card again
}
