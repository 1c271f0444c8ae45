// SPDX-License-Identifier: GPL-3.0-or-later
// Labels placed by the width of their text.
#include <gtest/gtest.h>

#include "suite/labels.h"
#include "window/form.h"
#include "window/headless.h"
#include "window/runtime.h"

using namespace ch;

namespace {
class LabelWindow : public ::testing::Test {
protected:
    void SetUp() override {
        window.add({ControlKind::Shape, "Box", -1, 1000, 500, 1000, 300});
        window.add({ControlKind::Label, "lblValue", -1, 0, 0, 100, 255, "12"});
    }
    HeadlessPlatform platform;
    Runtime runtime{platform};
    Form window{runtime, "frmLabels"};
};
}  // namespace

TEST_F(LabelWindow, AShortCaptionStandsInTheMiddleOfItsBox) {
    Control& label = window.c("lblValue");
    const int text = platform.textWidth("12", label.fontSize(), false);
    CentreLabelIn(window, "lblValue", "Box");
    EXPECT_EQ(label.width(), text + 30);
    EXPECT_LT(label.width(), 1000);
    EXPECT_EQ(label.left(), 1000 + (1000 - label.width()) / 2);
}

TEST_F(LabelWindow, ALongCaptionIsHeldToTheBoxOrRunsOverBothSides) {
    Control& label = window.c("lblValue");
    label.setCaption("A caption far wider than its box");
    CentreLabelIn(window, "lblValue", "Box");
    EXPECT_EQ(label.width(), 1000);
    EXPECT_EQ(label.left(), 1000);
    CentreLabelIn(window, "lblValue", "Box", false);
    EXPECT_GT(label.width(), 1000);
    EXPECT_LT(label.left(), 1000);
    EXPECT_EQ(label.left(), 1000 + (1000 - label.width()) / 2);
}

TEST_F(LabelWindow, AFittedLabelFollowsItsFont) {
    Control& label = window.c("lblValue");
    FitLabelToText(label);
    const int small = label.width();
    label.setFontSize(24);
    FitLabelToText(label);
    EXPECT_GT(label.width(), small * 2);
}

