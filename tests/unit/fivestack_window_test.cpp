// SPDX-License-Identifier: GPL-3.0-or-later
// Clicks a player makes while Fivestack sleeps through the flash of a lost
// round arrive afterwards and change nothing.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <functional>
#include <string>

#include "games/games.h"
#include "suite/cards.h"
#include "suite/suite.h"
#include "window/headless.h"
#include "window/runtime.h"

using namespace ch;

namespace {

// Input made during a blocking sleep waits in a queue and is served at the
// next look for events, as a real window system delivers it.
class QueuingPlatform : public HeadlessPlatform {
public:
    std::deque<InputEvent> queued;
    std::function<void()> onSleep;

    void sleep(int ms) override {
        HeadlessPlatform::sleep(ms);
        if (onSleep) onSleep();
    }
    WaitResult wait(InputEvent& event, int64_t deadline, bool pollOnly) override {
        if (!queued.empty()) {
            event = queued.front();
            queued.pop_front();
            return WaitResult::Input;
        }
        return HeadlessPlatform::wait(event, deadline, pollOnly);
    }
};

InputEvent Click(const std::string& form, const std::string& control, int index = -1) {
    InputEvent e;
    e.kind = InputKind::Click;
    e.form = form;
    e.control = control;
    e.index = index;
    return e;
}

std::vector<std::string> FullOrder(std::vector<std::string> prefix) {
    for (const char* suit : {"S", "H", "C", "D"})
        for (int rank = 1; rank <= 13; ++rank) {
            const std::string card = std::to_string(rank) + suit;
            if (std::find(prefix.begin(), prefix.end(), card) == prefix.end()) prefix.push_back(card);
        }
    return prefix;
}

class FivestackFlash : public ::testing::Test {
protected:
    FivestackFlash() : runtime(platform) {
        char pattern[] = "/tmp/cardhaven-fivestack-XXXXXX";
        home = mkdtemp(pattern);
        randomness::Reset();
        RegisterGameForms(runtime);
        SuiteOptions options;
        options.appPath = home;
        StartSuite(runtime, options);
        runtime.dispatch(Click("frmSelect", "cmdFivestack"));
        game = runtime.loaded("frmFivestack");
    }
    ~FivestackFlash() override {
        std::error_code ec;
        std::filesystem::remove_all(home, ec);
    }
    void hit(int column) { runtime.dispatch(Click("frmFivestack", "cmdHit", column)); }

    QueuingPlatform platform;
    Runtime runtime;
    std::string home;
    Form* game = nullptr;
};

}  // namespace

TEST_F(FivestackFlash, HitsDuringTheBustedFlashAreLost) {
    ASSERT_NE(game, nullptr);
    // A hard 21 on the first column, then a 2.
    randomness::StackNextShuffle(FullOrder({"13S", "10S", "9H", "2C", "2D"}));
    runtime.dispatch(Click("frmFivestack", "cmdPlay"));
    hit(0);
    hit(0);
    ASSERT_EQ(game->c("ColumnTotal", 0).caption(), "19");
    hit(0);
    ASSERT_EQ(game->c("ColumnTotal", 0).caption(), "21");

    int sleeps = 0;
    platform.onSleep = [&] {
        // During the flash: clicks on another column and on Give Up.
        if (++sleeps == 3) {
            platform.queued.push_back(Click("frmFivestack", "cmdHit", 1));
            platform.queued.push_back(Click("frmFivestack", "cmdGiveUp"));
        }
    };
    randomness::StackNextShuffle(FullOrder({"13H", "5S", "6S"}));
    hit(0);
    platform.onSleep = nullptr;

    EXPECT_TRUE(platform.queued.empty());
    EXPECT_EQ(game->c("ScoringLabel").caption(), "Prepare for Round 2");
    Value round;
    ASSERT_TRUE(game->readVariable("CurrentRound", -1, round));
    EXPECT_EQ(ValueText(round), "2");
    // The new round's board is untouched: no card on the second column.
    EXPECT_EQ(game->c("ColumnTotal", 1).caption(), "0");
    EXPECT_FALSE(game->c("Column2", 1).visible());
    EXPECT_EQ(game->c("NextCardPicture").picture(), ImageList2().indexOf("5S"));
    EXPECT_EQ(game->c("cmdGiveUp").caption(), "&Give Up");
}
