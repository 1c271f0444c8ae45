// SPDX-License-Identifier: GPL-3.0-or-later
// The shared steps of a game window's layout: its own places for the
// standing controls, and the first step of its Resize.
#include <gtest/gtest.h>

#include "suite/gamewindow.h"
#include "window/headless.h"
#include "window/runtime.h"

using namespace ch;

namespace {
struct Window : ::testing::Test {
    HeadlessPlatform platform;
    Runtime runtime{platform};
    Form window{runtime, "frmLayout"};
};
}  // namespace

TEST_F(Window, ASmallerNormalWindowGoesBackToItsDesignSize) {
    window.setSize(8000, 7155);
    EXPECT_FALSE(ResizeToPlace(window, 9060, 7155));
    EXPECT_EQ(window.width(), 9060);
    EXPECT_EQ(window.height(), 7155);
    // Once at its size or larger the board is placed.
    EXPECT_TRUE(ResizeToPlace(window, 9060, 7155));
    window.setSize(12000, 9000);
    EXPECT_TRUE(ResizeToPlace(window, 9060, 7155));
    EXPECT_EQ(window.width(), 12000);
}

TEST_F(Window, AMinimisedWindowPlacesNothingAndAMaximisedOneKeepsItsSize) {
    window.setSize(3000, 2000);
    window.setWindowState(1);
    EXPECT_FALSE(ResizeToPlace(window, 9060, 7155));
    EXPECT_EQ(window.width(), 3000);
    window.setWindowState(2);
    EXPECT_TRUE(ResizeToPlace(window, 9060, 7155));
    EXPECT_EQ(window.width(), 3000);
}

TEST_F(Window, PlacesMoveEachNamedControl) {
    window.add({ControlKind::Button, "cmdPlay", -1, 8220, 120, 1095, 375, "&Play"});
    window.add({ControlKind::Label, "lblTime", -1, 8220, 1920, 1095, 255, "Time:"});
    const ControlPlace places[] = {{"cmdPlay", 7740, 60, 1000, 300}, {"lblTime", 10, 20, 30, 40}};
    PlaceControls(window, places);
    const Control& play = window.c("cmdPlay");
    EXPECT_EQ(play.left(), 7740);
    EXPECT_EQ(play.top(), 60);
    EXPECT_EQ(play.width(), 1000);
    EXPECT_EQ(play.height(), 300);
    EXPECT_EQ(window.c("lblTime").top(), 20);
}
