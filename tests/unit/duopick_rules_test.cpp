// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <stdexcept>

#include "games/duopick/modDuopickBoard.h"
#include "suite/cards.h"

using namespace ch::duopick;

// Each card lies under the two cards four and five places on, in the next row; the end cards of
// rows 1 and 3 have one there and lie under the card two rows straight down too. Row 5 lies open.
TEST(DuopickField, EachCardIsCoveredByExactlyTheCardsOverIt) {
    const std::map<int, std::array<int, 2>> ends = {{0, {5, 9}}, {4, {8, 13}}, {9, {14, 18}}, {13, {17, 22}}};
    for (int card = 0; card < kFieldCards; ++card) {
        std::array<bool, kFieldCards> table{};
        table.fill(true);
        if (card >= 18) {
            EXPECT_TRUE(IsExposed(card, table)) << card;
            continue;
        }
        const auto end = ends.find(card);
        const std::array<int, 2> over = end != ends.end() ? end->second : std::array<int, 2>{card + 4, card + 5};
        EXPECT_FALSE(IsExposed(card, table)) << card;
        for (int cover : over) table[static_cast<size_t>(cover)] = false;
        EXPECT_TRUE(IsExposed(card, table)) << card;
        for (int cover : over) {
            table[static_cast<size_t>(cover)] = true;
            EXPECT_FALSE(IsExposed(card, table)) << card << " under " << cover;
            table[static_cast<size_t>(cover)] = false;
        }
    }
    EXPECT_TRUE(IsExposed(kUpCard, {}));
}

TEST(DuopickMatches, PairsAndRunsWithKingAndAceNeighboursBothWays) {
    const struct {
        int first, second;
        Match match;
    } cases[] = {{7, 7, Match::Pair},  {7, 8, Match::Run},   {7, 6, Match::Run},   {7, 9, Match::None},
                 {13, 1, Match::Run},  {1, 13, Match::Run},  {13, 12, Match::Run}, {1, 2, Match::Run},
                 {13, 2, Match::None}, {1, 12, Match::None}, {1, 1, Match::Pair},  {13, 13, Match::Pair},
                 {0, 1, Match::Run},   {0, 13, Match::None}, {2, 0, Match::None},  {12, 11, Match::Run}};
    for (const auto& c : cases) EXPECT_EQ(MatchOf(c.first, c.second), c.match) << c.first << " " << c.second;
}

TEST(DuopickStack, StagesOfTheStackPicture) {
    const std::map<int, std::string> stages = {{27, ""},     {28, "FULL"}, {34, "FULL"}, {35, "HALF"}, {41, "HALF"},
                                               {42, "BACK"}, {51, "BACK"}, {52, "EMPTY"}, {53, ""}};
    for (const auto& [index, stage] : stages) EXPECT_EQ(StackStage(index), stage) << index;
    EXPECT_FALSE(StackOverrun(52));
    EXPECT_TRUE(StackOverrun(53));
    // Turned tens of thousands of times past its end, the stack's and the waste
    // pile's indexes stop at the top of their 16-bit range; every turn overruns.
    ch::CreateStandardDeck();
    Board board;
    DealBoard(board, ch::Deck);
    board.stackIndex = INT16_MAX - 1;
    board.wastePos = INT16_MAX - 1;
    for (int i = 0; i < 3; ++i) EXPECT_TRUE(ClickStack(board, ch::Deck).overrun);
    EXPECT_EQ(board.stackIndex, INT16_MAX);
    EXPECT_EQ(board.wastePos, INT16_MAX);
}

TEST(DuopickScoring, AwardsComeInTheirOrderWithThePairsLast) {
    const auto awards = RoundAwards(ScoringValues{}, kDefaultTimeBonus, true, 12, 4, 7);
    ASSERT_EQ(awards.size(), 4u);
    EXPECT_EQ(awards[0].title, "Completion Bonus");
    EXPECT_EQ(awards[1].kind, Award::Kind::Time);
    EXPECT_EQ(awards[2].title, "Runs Bonus");
    EXPECT_EQ(awards[3].title, "Pairs Bonus");
    long long total = 0;
    for (const Award& a : awards) total += a.count * a.value;
    EXPECT_EQ(total, 34200);
    EXPECT_TRUE(RoundAwards(ScoringValues{}, kDefaultTimeBonus, false, 0, 0, 0).empty());
    EXPECT_EQ(NextStep(2, 0, 80000), AfterRound::RoundTwo);
    EXPECT_EQ(NextStep(3, 80000, 80000), AfterRound::BonusRound);
    EXPECT_EQ(NextStep(3, 79999, 80000), AfterRound::GameOver);
    EXPECT_EQ(NextStep(4, 500000, 80000), AfterRound::GameOver);
}

// The waste pile holds 30 cards: an up card taken past its end stops the move once both cards are off.
TEST(DuopickBoard, TakingTheUpCardPastTheWastePilesEndStopsAfterTakingTheCards) {
    ch::CreateStandardDeck();
    Board board;
    DealBoard(board, ch::Deck);
    for (int i = 0; i < 31; ++i) ClickStack(board, ch::Deck);
    EXPECT_EQ(board.wastePos, 32);
    board.deckCards[18] = " 1S";  // an empty up card runs only into an Ace
    Step step;
    ClickCard(board, kUpCard, step);
    EXPECT_THROW(ClickCard(board, 18, step), std::out_of_range);
    EXPECT_EQ(step.outcome, Outcome::Run);
    EXPECT_FALSE(board.places[18].onTable);
}
