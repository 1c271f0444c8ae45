// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

#include "suite/cards.h"
#include "suite/common.h"
#include "window/basic.h"
#include "window/headless.h"
#include "window/runtime.h"

using namespace ch;

namespace {
std::vector<std::string> Sorted(std::vector<std::string> v) {
    for (std::string& s : v) s = Trim(s);
    std::sort(v.begin(), v.end());
    return v;
}

// A Sumfall-sized deck of 64 with repeated codes.
void Make64CardDeck() {
    ASSERT_TRUE(CreateStandardDeck());
    for (int i = 1; i <= 12; ++i) Deck.push_back(std::to_string(i) + "H");
}
}  // namespace

TEST(CardCodes, BlankAndPlainCodesAreTheSameCard) {
    EXPECT_EQ(CardValue(" 10D"), 10);
    EXPECT_EQ(CardValue("10D"), 10);
    EXPECT_EQ(CardValue("2D"), 2);
    EXPECT_EQ(CardKey(" 10D"), CardKey("10D"));
    EXPECT_EQ(ImageList2().indexOf(CardKey(" 10D")), 53 + 9);
}

TEST(StandardDeck, HoldsBlankCodesBySuitBlocks) {
    ASSERT_TRUE(CreateStandardDeck());
    ASSERT_EQ(DeckUpperBound(), 52);
    EXPECT_EQ(Deck[0], "");
    EXPECT_EQ(Deck[1], " 1S");
    EXPECT_EQ(Deck[13], " 13S");
    EXPECT_EQ(Deck[14], " 1H");
    EXPECT_EQ(Deck[27], " 1C");
    EXPECT_EQ(Deck[52], " 13D");
}

TEST(RandomIntegers, StayWithinTheirBounds) {
    randomness::Reset();
    EXPECT_EQ(RandomInteger(1, 1), 1);
    std::map<int, int> seen;
    for (int i = 0; i < 5000; ++i) ++seen[RandomInteger(14, 65)];
    EXPECT_EQ(seen.begin()->first, 14);
    EXPECT_EQ(seen.rbegin()->first, 65);
    EXPECT_EQ(seen.size(), 52u);
}

TEST(RandomIntegers, QueuedValuesComeFirstAndOutOfBoundsIsReported) {
    randomness::Reset();
    std::vector<std::string> reports;
    randomness::SetFailureReporter([&](const std::string& r) { reports.push_back(r); });
    randomness::Queue({3, 9});
    EXPECT_EQ(RandomInteger(1, 5), 3);
    EXPECT_EQ(RandomInteger(1, 5), 9);
    EXPECT_EQ(reports.size(), 1u);
    randomness::SetFailureReporter(nullptr);
}

TEST(Shuffle, A64CardDeckTakes64DrawsAndKeepsItsCards) {
    randomness::Reset();
    Make64CardDeck();
    const std::vector<std::string> before = Deck;
    const long draws = randomness::DrawCount();
    ASSERT_TRUE(ShuffleDeck());
    EXPECT_EQ(randomness::DrawCount() - draws, 64);
    EXPECT_EQ(Sorted(Deck), Sorted(before));
    EXPECT_NE(Deck, before);
    EXPECT_EQ(Deck[0], "");
}

TEST(Shuffle, IsTheSwapWithTheWholeDeckAtEveryStep) {
    randomness::Reset();
    Deck = {"", "1S", "2S", "3S"};
    randomness::Queue({3, 3, 1});
    ASSERT_TRUE(ShuffleDeck());
    // i=1 swaps with 3: 3S 2S 1S; i=2 with 3: 3S 1S 2S; i=3 with 1: 2S 1S 3S.
    EXPECT_EQ(Deck, (std::vector<std::string>{"", "2S", "1S", "3S"}));
}

TEST(Shuffle, AStackedOrderComesOutOfTheRealShuffle) {
    randomness::Reset();
    Make64CardDeck();
    std::vector<std::string> order(Deck.begin() + 1, Deck.end());
    std::mt19937 gen(7);
    std::shuffle(order.begin(), order.end(), gen);
    randomness::StackNextShuffle(order);
    randomness::Queue({20});  // a splash tick meanwhile takes the queued draw, not the stack
    EXPECT_EQ(RandomInteger(14, 65), 20);
    ASSERT_TRUE(ShuffleDeck());
    for (size_t i = 0; i < order.size(); ++i) EXPECT_EQ(Trim(Deck[i + 1]), Trim(order[i])) << "at " << i + 1;
    // The stack served one shuffle only.
    ASSERT_TRUE(ShuffleDeck());
    EXPECT_NE(std::vector<std::string>(Deck.begin() + 1, Deck.end()), order);
}

TEST(Shuffle, AStackThatIsNotAnOrderOfTheDeckIsReported) {
    randomness::Reset();
    std::vector<std::string> reports;
    randomness::SetFailureReporter([&](const std::string& r) { reports.push_back(r); });
    Deck = {"", " 1S", " 2S", " 3S"};
    randomness::StackNextShuffle({"1S", "1S", "3S"});
    EXPECT_TRUE(ShuffleDeck());
    EXPECT_EQ(reports.size(), 1u);
    EXPECT_EQ(Sorted(Deck), Sorted({"", "1S", "2S", "3S"}));
    randomness::SetFailureReporter(nullptr);
}

TEST(Catalogue, HoldsEveryKeyAtItsIndex) {
    ImageCatalogue cat;
    EXPECT_EQ(cat.key(1), "FULL");
    EXPECT_EQ(cat.key(13), "EMPTY");
    EXPECT_EQ(cat.key(14), "1S");
    EXPECT_EQ(cat.key(26), "13S");
    EXPECT_EQ(cat.key(27), "1H");
    EXPECT_EQ(cat.key(40), "1C");
    EXPECT_EQ(cat.key(65), "13D");
    EXPECT_EQ(cat.key(66), "POINTER");
    EXPECT_EQ(cat.key(67), "Empty");
    EXPECT_EQ(cat.key(68), "SFUP");
    EXPECT_EQ(cat.indexOf("EMPTY"), 13);
    EXPECT_EQ(cat.indexOf("Empty"), 67);
    EXPECT_EQ(cat.indexOf("empty"), 0);
    EXPECT_EQ(cat.pixelWidth(20), 69);
    EXPECT_EQ(cat.pixelHeight(67), 100);
}

TEST(Catalogue, AnySequenceOfDesignChangesLeavesEachBackKeyOnOneImage) {
    ImageCatalogue cat;
    std::mt19937 gen(11);
    for (int step = 0; step < 200; ++step) {
        const BackDesign& design = kBackDesigns[gen() % 4];
        cat.moveBackKeys(design.firstIndex);
        EXPECT_EQ(cat.indexOf("FULL"), design.firstIndex);
        EXPECT_EQ(cat.indexOf("BACK"), design.firstIndex + 1);
        EXPECT_EQ(cat.indexOf("HALF"), design.firstIndex + 2);
        int keyed = 0;
        for (int i = 1; i <= 12; ++i) keyed += cat.key(i).empty() ? 0 : 1;
        EXPECT_EQ(keyed, 3);
        EXPECT_EQ(cat.key(13), "EMPTY");
    }
}

TEST(Catalogue, ClearDeckCheckUnticksTheFourDesignEntries) {
    HeadlessPlatform platform;
    Runtime runtime(platform);
    Form window(runtime, "frmGame");
    for (const BackDesign& d : kBackDesigns) window.add({ControlKind::Menu, d.menu, -1, 0, 0, 0, 0, d.caption, "mnuDeck"});
    window.c("mnuHot").setChecked(true);
    window.c("mnuPalm").setChecked(true);
    ClearDeckCheck(window);
    for (const BackDesign& d : kBackDesigns) EXPECT_FALSE(window.c(d.menu).checked()) << d.menu;
}
