// SPDX-License-Identifier: GPL-3.0-or-later
// Card codes, the deck, random draws and the shuffle, and the image keys as the back design changes.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <utility>

#include "suite/cards.h"
#include "suite/common.h"
#include "window/basic.h"

using namespace ch;

TEST(Cards, BlankAndPlainCodesAreTheSameCardAndTheDeckRunsBySuit) {
    EXPECT_EQ(CardValue(" 10D"), 10);
    EXPECT_EQ(CardValue("2D"), 2);
    EXPECT_EQ(ImageList2().indexOf(CardKey(" 10D")), 53 + 9);
    ASSERT_TRUE(CreateStandardDeck());
    ASSERT_EQ(DeckUpperBound(), 52);
    const std::vector<std::string> some = {Deck[0], Deck[1], Deck[13], Deck[14], Deck[27], Deck[52]};
    EXPECT_EQ(some, (std::vector<std::string>{"", " 1S", " 13S", " 1H", " 1C", " 13D"}));
}

TEST(Cards, RandomIntegersStayWithinTheirBoundsAndQueuedOnesComeFirst) {
    randomness::Reset();
    EXPECT_EQ(RandomInteger(1, 1), 1);
    std::map<int, int> seen;
    for (int i = 0; i < 5000; ++i) ++seen[RandomInteger(14, 65)];
    EXPECT_EQ(seen.begin()->first, 14);
    EXPECT_EQ(seen.rbegin()->first, 65);
    EXPECT_EQ(seen.size(), 52u);
    std::vector<std::string> reports;
    randomness::SetFailureReporter([&](const std::string& r) { reports.push_back(r); });
    randomness::Queue({3, 9});
    EXPECT_EQ(RandomInteger(1, 5), 3);
    EXPECT_EQ(RandomInteger(1, 5), 9);  // out of bounds: served and reported
    EXPECT_EQ(reports.size(), 1u);
    randomness::SetFailureReporter(nullptr);
}

// A stack that is not an order of the deck is reported and the deck keeps its cards.
TEST(Cards, TheShuffleSwapsWithTheWholeDeckAtEveryStepAndRefusesAStackOfOtherCards) {
    randomness::Reset();
    Deck = {"", "1S", "2S", "3S"};
    randomness::Queue({3, 3, 1});
    ASSERT_TRUE(ShuffleDeck());
    // i=1 swaps with 3: 3S 2S 1S; i=2 with 3: 3S 1S 2S; i=3 with 1: 2S 1S 3S.
    EXPECT_EQ(Deck, (std::vector<std::string>{"", "2S", "1S", "3S"}));
    int reports = 0;
    randomness::SetFailureReporter([&](const std::string&) { ++reports; });
    randomness::StackNextShuffle({"1S", "1S", "3S"});
    EXPECT_TRUE(ShuffleDeck());
    EXPECT_EQ(reports, 1);
    std::sort(Deck.begin(), Deck.end());
    EXPECT_EQ(Deck, (std::vector<std::string>{"", "1S", "2S", "3S"}));
    randomness::SetFailureReporter(nullptr);
}

TEST(Cards, TheCatalogueKeepsEachBackKeyOnOneImageWhateverTheDesign) {
    ImageCatalogue cat;
    EXPECT_EQ(cat.indexOf("Empty"), 67);
    EXPECT_EQ(cat.indexOf("empty"), 0);
    // {index, width, height} at the edges of each block: backs, empty place, faces, pointer, the rest.
    const int sizes[][3] = {{1, 76, 98},  {2, 71, 96},  {12, 76, 98},  {13, 71, 96}, {14, 69, 94},
                            {65, 69, 94}, {66, 32, 32}, {67, 76, 100}, {68, 71, 96}};
    for (const auto& s : sizes)
        EXPECT_EQ(std::make_pair(cat.pixelWidth(s[0]), cat.pixelHeight(s[0])), std::make_pair(s[1], s[2])) << s[0];
    std::mt19937 gen(11);
    for (int step = 0; step < 50; ++step) {
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
