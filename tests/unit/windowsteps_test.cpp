// The size check that opens every game window's Form_Resize.
#include <gtest/gtest.h>

#include "suite/windowsteps.h"
#include "window/headless.h"
#include "window/runtime.h"

using namespace ch;

TEST(ResizeToPlace, ANormalWindowBelowItsDesignSizeSpringsBack) {
    HeadlessPlatform platform;
    Runtime runtime(platform);
    Form window(runtime, "frmSized");
    window.setSize(9000, 7500);
    EXPECT_FALSE(ResizeToPlace(window, 9570, 7200));
    EXPECT_EQ(window.width(), 9570);
    EXPECT_EQ(window.height(), 7200);
    EXPECT_TRUE(ResizeToPlace(window, 9570, 7200));
    window.setSize(12000, 9000);
    EXPECT_TRUE(ResizeToPlace(window, 9570, 7200));
    EXPECT_EQ(window.width(), 12000);
    // Minimised: nothing to place, nothing changed.
    window.setWindowState(1);
    window.setSize(100, 100);
    EXPECT_FALSE(ResizeToPlace(window, 9570, 7200));
    EXPECT_EQ(window.width(), 100);
    // Maximised: placed at whatever size the screen gives.
    window.setWindowState(2);
    EXPECT_TRUE(ResizeToPlace(window, 9570, 7200));
    EXPECT_EQ(window.width(), 100);
}
