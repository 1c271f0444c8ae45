// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "games/sumfall/modSumfall.h"
#include "window/basic.h"

using namespace ch;
using namespace ch::sumfall;

namespace {
std::map<std::string, int> Count(const std::vector<std::string>& deck) {
    std::map<std::string, int> counts;
    for (size_t i = 1; i < deck.size(); ++i) ++counts[Trim(deck[i])];
    return counts;
}
std::array<bool, kFieldPlaces> FullField() {
    std::array<bool, kFieldPlaces> f{};
    f.fill(true);
    return f;
}
}  // namespace

TEST(SumfallDeck, HasSixteenAcesAndNoFaceCardsUpToGoalEleven) {
    for (int goal : {10, 11}) {
        const auto deck = DeckForCardGoal(goal);
        ASSERT_EQ(deck.size(), 53u);
        EXPECT_EQ(deck[0], "");
        EXPECT_EQ(deck[1], "1S");
        EXPECT_EQ(deck[16], "1D");
        EXPECT_EQ(deck[17], " 2S");
        EXPECT_EQ(deck[25], " 10S");
        EXPECT_EQ(deck[52], " 10D");
        auto counts = Count(deck);
        EXPECT_EQ(counts["1S"], 4);
        EXPECT_EQ(counts["10H"], 1);
        EXPECT_EQ(counts.count("11S"), 0u);
    }
    EXPECT_EQ(StockUpperBound(11), 30);
}

TEST(SumfallDeck, GrowsByJacksQueensAndKingsWithTheGoal) {
    auto d12 = DeckForCardGoal(12);
    ASSERT_EQ(d12.size(), 57u);
    EXPECT_EQ(std::vector<std::string>(d12.begin() + 53, d12.end()),
              (std::vector<std::string>{"11S", "11H", "11C", "11D"}));
    EXPECT_EQ(DeckForCardGoal(13).size(), 61u);
    EXPECT_EQ(DeckForCardGoal(13).back(), "12D");
    EXPECT_EQ(DeckForCardGoal(14), DeckForCardGoal(15));
    EXPECT_EQ(DeckForCardGoal(15).back(), "13D");
    EXPECT_EQ(StockUpperBound(15), 42);
    EXPECT_EQ(StockUpperBound(13), 38);
}

TEST(SumfallField, PlaceSevenIsOpenFromTheStartAndPlaceZeroIsNot) {
    auto field = FullField();
    EXPECT_TRUE(IsExposed(7, field));
    EXPECT_FALSE(IsExposed(0, field));
    EXPECT_TRUE(IsExposed(20, field));
    EXPECT_TRUE(IsExposed(21, field));
    EXPECT_FALSE(IsExposed(16, field));
    field[3] = false;
    EXPECT_FALSE(IsExposed(0, field));
    field[4] = false;
    EXPECT_TRUE(IsExposed(0, field));
    int open = 0;
    for (int i = 0; i < kFieldPlaces; ++i) open += IsExposed(i, FullField()) ? 1 : 0;
    EXPECT_EQ(open, 3);  // 7, 20 and 21
}

TEST(SumfallField, TiersPayFromTwoHundredAtTheBottomToSevenHundredAtTheTop) {
    EXPECT_EQ(kField[0].points, 700);
    EXPECT_EQ(kField[4].points, 600);
    EXPECT_EQ(kField[7].points, 500);
    EXPECT_EQ(kField[15].points, 400);
    EXPECT_EQ(kField[19].points, 300);
    EXPECT_EQ(kField[21].points, 200);
    for (const FieldPlace& p : kField) EXPECT_EQ(p.points, 100 + 100 * p.tier);
    EXPECT_EQ(kField[10].dx, -3960);
    EXPECT_EQ(kField[21].dy, 2500);
}

TEST(SumfallWords, NameTheGoal) {
    EXPECT_EQ(CardGoalWord(10), "Tens:");
    EXPECT_EQ(CardGoalWord(11), "Elevens:");
    EXPECT_EQ(CardGoalWord(15), "Fifteens:");
    EXPECT_EQ(CardGoalWord(9), "");
    EXPECT_EQ(CardGoalName(13), "thirteen");
    EXPECT_STREQ(PlayPileKey(0), "EMPTY");
    EXPECT_STREQ(PlayPileKey(10), "BACK");
    EXPECT_STREQ(PlayPileKey(11), "HALF");
    EXPECT_STREQ(PlayPileKey(21), "FULL");
}

TEST(SavedGames, RoundTripWithTheBlocksOfTheRoundsPlayed) {
    SavedGame game;
    game.cardGoal = 12;
    game.timeLimit = 60;
    game.score = 81234;
    game.custom = true;
    game.userName = "Ann";
    game.round1 = DeckForCardGoal(12);
    game.round2 = DeckForCardGoal(12);
    std::reverse(game.round2.begin() + 1, game.round2.end());
    game.round3.assign(57, std::string());
    const std::string text = SavedGameText(game);
    EXPECT_EQ(text.substr(0, 40), "[Card Goal]\r\n12\r\n[Time Limit]\r\n60\r\n[Scor");
    EXPECT_NE(text.find("\r\n2S\r\n"), std::string::npos);  // codes stored trimmed
    EXPECT_EQ(text.find("[Round 3 Deck]"), std::string::npos);
    SavedGame back;
    ASSERT_TRUE(ParseSavedGame(text, back));
    EXPECT_EQ(back.cardGoal, 12);
    EXPECT_EQ(back.timeLimit, 60);
    EXPECT_EQ(back.score, 81234);
    EXPECT_TRUE(back.custom);
    EXPECT_EQ(back.userName, "Ann");
    ASSERT_EQ(back.round1.size(), 57u);
    EXPECT_EQ(back.round1[17], "2S");
    EXPECT_EQ(back.round2[1], "11D");
    EXPECT_EQ(back.round3[1], "");  // never dealt: shuffled anew on replay
}

TEST(SavedGames, AnEmptyNameIsSavedAsAnAnonymousUserAndACommaEndsTheName) {
    SavedGame game;
    game.round1 = DeckForCardGoal(11);
    EXPECT_NE(SavedGameText(game).find("[UserName]\r\nan anonymous user\r\n"), std::string::npos);
    game.userName = "Smith, John";
    SavedGame back;
    ASSERT_TRUE(ParseSavedGame(SavedGameText(game), back));
    EXPECT_EQ(back.userName, "Smith");
    EXPECT_EQ(back.round1[1], "1S");
}

TEST(SavedGames, DamagedFilesAreRefused) {
    SavedGame back;
    EXPECT_FALSE(ParseSavedGame("", back));
    EXPECT_FALSE(ParseSavedGame("[Time Limit]\r\n90\r\n", back));
    EXPECT_FALSE(ParseSavedGame("[Card Goal]\r\n", back));
    EXPECT_FALSE(ParseSavedGame("[Card Goal]\r\nten\r\n", back));
    EXPECT_FALSE(ParseSavedGame("[Card Goal]\r\n11\r\n[Round 1 Deck]\r\n1S\r\n2S\r\n", back));  // short deck
    EXPECT_FALSE(ParseSavedGame("[Card Goal]\r\n99999\r\n", back));  // out of range
    EXPECT_FALSE(ParseSavedGame("[Card Goal]\r\n11\r\n[Score]\r\n9999999999\r\n", back));
    EXPECT_TRUE(ParseSavedGame("[Card Goal]\r\n11\r\n", back));
    EXPECT_FALSE(back.timeLimitRead);
}

TEST(SavedGames, VerdictsByScore) {
    EXPECT_EQ(SavedGameVerdict(19999), "amassed a pitiful");
    EXPECT_EQ(SavedGameVerdict(-500), "amassed a pitiful");
    EXPECT_EQ(SavedGameVerdict(20000), "accumulated a sorry");
    EXPECT_EQ(SavedGameVerdict(20001), "accumulated a sorry");
    EXPECT_EQ(SavedGameVerdict(40000), "accumulated a sorry");
    EXPECT_EQ(SavedGameVerdict(40001), "earned a pretty weak");
    EXPECT_EQ(SavedGameVerdict(80001), "earned a respectable");
    EXPECT_EQ(SavedGameVerdict(150000), "earned an incredible");
    EXPECT_EQ(SavedGameVerdict(160001), "earned an unbelievable");
    SavedGame g;
    g.userName = "Bo";
    g.score = 20000;
    EXPECT_EQ(SavedGameMessage(g),
              "This game was saved by Bo. He or she accumulated a sorry score of 20,000 in this game. "
              "Customized scoring was not in effect when this game was played. ");
}
