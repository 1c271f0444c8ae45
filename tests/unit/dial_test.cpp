// SPDX-License-Identifier: GPL-3.0-or-later
// The dial at its edges and the step arithmetic of AwardBonus.
#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>
#include <utility>

#include "suite/common.h"
#include "suite/dial.h"
#include "window/basic.h"
#include "window/headless.h"
#include "window/runtime.h"

using namespace ch;

namespace {
class DialWindow : public ::testing::Test {
protected:
    void SetUp() override {
        ResetShared();
        window.add({ControlKind::PictureBox, "Surface", -1, 0, 0, 1005, 1005});
        window.add({ControlKind::Timer, "Timer2", -1, 0, 0, 0, 0});
        window.add({ControlKind::Label, "lblMessage", -1, 0, 0, 100, 100});
        window.add({ControlKind::Label, "lblScoring", -1, 0, 0, 100, 100});
        window.add({ControlKind::Label, "lblCurrentScore", -1, 0, 0, 100, 100});
        InitTimeDial(window);
    }
    void TearDown() override { ResetShared(); }

    int snaps() {
        int n = 0;
        for (const std::string& s : platform.takeSounds()) n += s == "\\Snap.wav";
        return n;
    }

    HeadlessPlatform platform;
    Runtime runtime{platform};
    Form window{runtime, "frmDial"};
};
}  // namespace

TEST_F(DialWindow, NoPieOutsideOneTo360AndTheAngleRoundsHalfToEven) {
    using Dial = std::tuple<int, int, int, int>;
    EXPECT_EQ(Dial(DialCenterX, DialCenterY, DialRadius, DialLastColor), Dial(502, 502, 472, 0xFFFFFF));
    for (int angle : {0, 361, -5}) {
        DrawTimeDial(angle, window);
        EXPECT_EQ(window.c("Surface").drawingText(), "line;line;circle") << angle;
    }
    DrawTimeDial(1, window);
    EXPECT_EQ(window.c("Surface").drawingText(), "pie -90 -89 65280;line;line;circle");
    // A quarter is whole at its last degree; the next degree starts the next one.
    for (const auto& [angle, pies] : {std::pair{90, 1}, {91, 2}, {180, 2}, {181, 3}, {270, 3}, {271, 4}, {359, 4}}) {
        DrawTimeDial(angle, window);
        const std::string text = window.c("Surface").drawingText();
        EXPECT_EQ(std::count(text.begin(), text.end(), 'p'), pies) << angle;
    }
    // {limit, seconds, angle}: 4.5 degrees a second rounds 13.5 to 14; 360 / -1 * 92 would overflow.
    for (const auto& [limit, seconds, angle] : {std::tuple{80, 1, 4}, {80, 3, 14}, {0, 5, 0}, {-1, 92, 0}}) {
        TimeLimit = static_cast<int16_t>(limit);
        EXPECT_EQ(DialAngle(seconds), angle) << limit << " " << seconds;
    }
}

TEST_F(DialWindow, AwardBonusCountsInTwentiethsAndKeepsTheOvershoot) {
    AwardBonus(window, "Tower Bonus!", 2, 750);
    EXPECT_EQ(CurrentScore, 1500);
    EXPECT_EQ(snaps(), 20);
    EXPECT_EQ(window.c("lblMessage").caption(), "Tower Bonus!!");
    EXPECT_FALSE(window.c("lblScoring").visible());
    // 1510 / 20 = 75.5 rounds to 76: twenty steps pay 1520; 15 / 20 rounds to 1: fifteen steps;
    // a step of 0 would never end, so 9 is added at once.
    const struct {
        int count, value, score, steps;
    } cases[] = {{1, 1510, 1520, 20}, {3, 5, 15, 15}, {1, 9, 9, 0}};
    for (const auto& c : cases) {
        CurrentScore = 0;
        AwardBonus(window, "Pairs Bonus", c.count, c.value);
        EXPECT_EQ(CurrentScore, c.score) << c.value;
        EXPECT_EQ(snaps(), c.steps) << c.value;
    }
}

// The overflow past it, through the window, is in the Spirehold scenarios.
TEST_F(DialWindow, ASixteenBitCountTakesTotalsUpToItsRangeAndScoresOverflowPast32Bits) {
    AwardBonus(window, "Highest Run Bonus", 32, 1000, {.sixteenBitCount = true});
    EXPECT_EQ(CurrentScore, 32000);
    EXPECT_EQ(snaps(), 20);
    EXPECT_THROW(AwardBonus(window, "Highest Run Bonus", 1, 32768, {.sixteenBitCount = true}), RuntimeError);
    CurrentScore = 2147483000;
    EXPECT_THROW(AddToScore(1000), RuntimeError);
    EXPECT_EQ(CurrentScore, 2147483000);
}

TEST_F(DialWindow, CountTimeBonusWithNothingLeftEndsAfterItsDisplay) {
    TimeLimit = 30;
    ElapsedSeconds = 30;
    CurrentScore = 700;
    const int64_t start = platform.now();
    CountTimeBonus(window, 100);
    EXPECT_EQ(CurrentScore, 700);
    EXPECT_EQ(snaps(), 0);
    EXPECT_EQ(platform.now() - start, 2000);
    EXPECT_EQ(window.c("lblMessage").caption(), "Speed Bonus!");
}
