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
    TimeLimit = 80;  // 4.5 degrees a second
    EXPECT_EQ(DialAngle(1), 4);
    EXPECT_EQ(DialAngle(3), 14);  // 13.5
    TimeLimit = 0;
    EXPECT_EQ(DialAngle(5), 0);
    TimeLimit = -1;  // 360 / -1 * 92 would overflow
    EXPECT_EQ(DialAngle(92), 0);
}

TEST_F(DialWindow, AwardBonusCountsInTwentiethsAndKeepsTheOvershoot) {
    AwardBonus(window, "Tower Bonus!", 2, 750);
    EXPECT_EQ(CurrentScore, 1500);
    EXPECT_EQ(snaps(), 20);
    EXPECT_EQ(window.c("lblMessage").caption(), "Tower Bonus!!");
    EXPECT_FALSE(window.c("lblScoring").visible());
    // 1510 / 20 = 75.5 rounds to 76: twenty steps pay 1520.
    CurrentScore = 0;
    AwardBonus(window, "Runs Bonus", 1, 1510);
    EXPECT_EQ(CurrentScore, 1520);
    EXPECT_EQ(snaps(), 20);
    // 15 / 20 rounds to 1: fifteen steps.
    CurrentScore = 0;
    AwardBonus(window, "Pairs Bonus", 3, 5);
    EXPECT_EQ(CurrentScore, 15);
    EXPECT_EQ(snaps(), 15);
    // A step of 0 would never end: the total is added at once.
    CurrentScore = 0;
    AwardBonus(window, "Pairs Bonus", 1, 9);
    EXPECT_EQ(CurrentScore, 9);
    EXPECT_EQ(snaps(), 0);
}

// The overflow past it, through the window, is in the Spirehold scenarios.
TEST_F(DialWindow, ASixteenBitCountTakesTotalsUpToItsRange) {
    AwardBonus(window, "Highest Run Bonus", 32, 1000, {.sixteenBitCount = true});
    EXPECT_EQ(CurrentScore, 32000);
    EXPECT_EQ(snaps(), 20);
    EXPECT_THROW(AwardBonus(window, "Highest Run Bonus", 1, 32768, {.sixteenBitCount = true}), RuntimeError);
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

TEST_F(DialWindow, ScoresBeyond32BitsOverflow) {
    CurrentScore = 2147483000;
    EXPECT_THROW(AddToScore(1000), RuntimeError);
    EXPECT_EQ(CurrentScore, 2147483000);
}
