// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <map>

#include "games/sumfall/modSumfall.h"
#include "games/sumfall/modSumfallBoard.h"
#include "window/basic.h"

using namespace ch;
using namespace ch::sumfall;

TEST(SumfallDeck, SixteenAcesAndTensGrowByJacksQueensAndKingsWithTheGoal) {
    const std::map<int, size_t> sizes = {{10, 52}, {11, 52}, {12, 56}, {13, 60}, {14, 64}, {15, 64}};
    for (const auto& [goal, size] : sizes) {
        const auto deck = DeckForCardGoal(goal);
        ASSERT_EQ(deck.size(), size + 1) << goal;
        EXPECT_EQ(StockUpperBound(goal), static_cast<int>(size) - 22) << goal;
        std::map<std::string, int> counts;
        for (size_t i = 1; i < deck.size(); ++i) ++counts[Trim(deck[i])];
        EXPECT_EQ(counts["1S"] + counts["1H"] + counts["1C"] + counts["1D"], 16) << goal;
        EXPECT_EQ(counts["10D"], 1) << goal;
        EXPECT_EQ(counts["13D"], size == 64 ? 1 : 0) << goal;
        EXPECT_EQ(counts["12C"], size >= 60 ? 1 : 0) << goal;
    }
    EXPECT_EQ(DeckForCardGoal(11)[17], " 2S");
    EXPECT_EQ(DeckForCardGoal(12).back(), "11D");
}

// A place is open when none of the places that lie over it still holds a card.
TEST(SumfallField, EachPlaceIsCoveredByExactlyThePlacesOverIt) {
    const std::vector<std::vector<int>> over = {{3, 4},   {5, 6},   {8, 9},   {7, 12}, {7, 13}, {10, 11},
                                                {11, 12}, {},       {13, 14}, {14, 15}, {16},   {16, 17},
                                                {17},     {18},     {18, 19}, {19},    {20},    {20},
                                                {21},     {21},     {},       {}};
    for (int place = 0; place < kFieldPlaces; ++place) {
        std::array<bool, kFieldPlaces> field{};
        field.fill(true);
        EXPECT_EQ(IsExposed(place, field), over[static_cast<size_t>(place)].empty()) << place;
        for (int cover : over[static_cast<size_t>(place)]) field[static_cast<size_t>(cover)] = false;
        EXPECT_TRUE(IsExposed(place, field)) << place;
        for (int cover : over[static_cast<size_t>(place)]) {
            field[static_cast<size_t>(cover)] = true;
            EXPECT_FALSE(IsExposed(place, field)) << place << " under " << cover;
            field[static_cast<size_t>(cover)] = false;
        }
    }
}

// The window writes and opens saved games whole; these are the field rules.
TEST(SavedGames, CodesAreStoredTrimmedARoundNeverDealtHasNoBlockAndACommaEndsTheName) {
    SavedGame game;
    game.userName = "Smith, John";
    game.round1 = DeckForCardGoal(12);
    game.round3 = game.round2 = std::vector<std::string>(57);
    game.round3[1] = "11D";
    const std::string text = SavedGameText(game);
    EXPECT_NE(text.find("[Round 1 Deck]\r\n1S\r\n"), std::string::npos);
    EXPECT_NE(text.find("\r\n2S\r\n"), std::string::npos);
    EXPECT_EQ(text.find("[Round 2 Deck]"), std::string::npos);
    EXPECT_NE(text.find("[Round 3 Deck]\r\n11D\r\n\r\n"), std::string::npos);
    SavedGame back;
    ASSERT_TRUE(ParseSavedGame(text, back));
    EXPECT_EQ(back.userName, "Smith");
    EXPECT_EQ(back.round2[1], "");
    EXPECT_EQ(back.round3[1], "11D");
    // A field in double quotes may hold a comma; what follows the quotes is skipped.
    ASSERT_TRUE(ParseSavedGame("[Card Goal]\r\n11\r\n[UserName]\r\n  \"Smith, John\" x\r\n[Score]\r\n7\r\n", back));
    EXPECT_EQ(back.userName, "Smith, John");
    EXPECT_EQ(back.score, 7);
}

TEST(SavedGames, DamagedFilesAreRefused) {
    SavedGame back;
    // No goal, a goal cut off, not a number or out of range, a short deck, a score past 32 bits.
    for (const char* text : {"", "[Time Limit]\r\n90\r\n", "[Card Goal]\r\n", "[Card Goal]\r\nten\r\n",
                             "[Card Goal]\r\n11\r\n[Round 1 Deck]\r\n1S\r\n2S\r\n", "[Card Goal]\r\n99999\r\n",
                             "[Card Goal]\r\n11\r\n[Score]\r\n9999999999\r\n"})
        EXPECT_FALSE(ParseSavedGame(text, back)) << text;
    EXPECT_TRUE(ParseSavedGame("[Card Goal]\r\n11\r\n[Custom]\r\nno\r\n", back));
    EXPECT_FALSE(back.timeLimitRead);
    EXPECT_TRUE(back.custom);  // anything but "False"
}

TEST(SavedGames, VerdictsByScore) {
    const std::map<int, std::string> verdicts = {
        {-500, "amassed a pitiful"},       {19999, "amassed a pitiful"},       {20000, "accumulated a sorry"},
        {40000, "accumulated a sorry"},    {40001, "earned a pretty weak"},    {60000, "earned a pretty weak"},
        {60001, "earned a mediocre"},      {80000, "earned a mediocre"},       {80001, "earned a respectable"},
        {100000, "earned a respectable"},  {100001, "earned a decent"},        {120000, "earned a decent"},
        {120001, "earned a darned good"},  {140000, "earned a darned good"},   {140001, "earned an incredible"},
        {160000, "earned an incredible"},  {160001, "earned an unbelievable"},
    };
    for (const auto& [score, verdict] : verdicts) EXPECT_EQ(SavedGameVerdict(score), verdict) << score;
}

// The up pile has room for 31 cards; turning 42 unused grows it, and the last turned is the first up card.
TEST(SumfallBoard, TheUpPileGrowsPastItsRoomAndAnEmptyPileRefusesAClick) {
    Board board;
    DealBoard(board, DeckForCardGoal(15));
    while (board.stockIndex >= 0) TurnUpCard(board);
    EXPECT_EQ(board.upIndex, 43);
    EXPECT_EQ(board.up[43], board.up[1]);
    EXPECT_EQ(board.pileKey, "EMPTY");
    while (board.upIndex > 0) TakeUpCard(board);
    EXPECT_TRUE(board.upEmpty);
    EXPECT_EQ(ClickUp(board, 15).outcome, Outcome::Refused);
}
