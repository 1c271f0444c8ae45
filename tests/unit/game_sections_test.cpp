// SPDX-License-Identifier: GPL-3.0-or-later
// The settings sections every game shares, and the label centring of the
// score and round boxes.
#include <gtest/gtest.h>

#include "suite/common.h"
#include "suite/gamewindow.h"
#include "suite/settings.h"
#include "window/basic.h"
#include "window/headless.h"
#include "window/runtime.h"

using namespace ch;

namespace {
const TimeEntry kEntries[] = {{"mnu30", 30, "&30"}, {"mnu45", 45, "&45"}};

class GameSections : public ::testing::Test {
protected:
    void SetUp() override {
        ResetShared();
        for (const char* menu : {"mnu30", "mnu45", "mnuSounds", "mnuMusic", "mnuPalm", "mnuMagic", "mnuNight", "mnuHot"})
            window.add({ControlKind::Menu, menu, -1, 0, 0, 0, 0});
        for (const TimeEntry& e : kEntries)
            window.on(e.menu, Ev::Click, [this, menu = e.menu](EventArgs&) { ChooseTimeLimit(window, kEntries, menu); });
        for (int d = 1; d <= 4; ++d)
            window.on(kDeckMenus[d - 1], Ev::Click, [d](EventArgs&) { DeckDesign = static_cast<int16_t>(d); });
    }
    void TearDown() override { ResetShared(); }

    HeadlessPlatform platform;
    Runtime runtime{platform};
    Form window{runtime, "frmGame"};
};
}  // namespace

TEST_F(GameSections, CommonSectionsGoThroughTheirMenusAndWriteTheSharedValues) {
    const SettingsLayout layout = {PlayMusicSection(window), TimeSection(window, kEntries), PlaySoundsSection(window),
                                   CountDownSection(), DeckSection(window)};
    TimeLimit = 30;
    ApplySettingsText("[Play Music]\r\nTrue\r\n[Time]\r\n45\r\n[Play Sounds]\r\nFalse\r\n[Count Down Score]\r\nFalse\r\n"
                      "[Deck]\r\n3\r\n",
                      layout);
    EXPECT_TRUE(PlayMusic);
    EXPECT_TRUE(window.c("mnuMusic").checked());
    EXPECT_EQ(TimeLimit, 45);
    EXPECT_TRUE(window.c("mnu45").checked());
    EXPECT_FALSE(PlaySounds);
    EXPECT_FALSE(window.c("mnuSounds").checked());
    EXPECT_FALSE(CountDownScore);
    EXPECT_EQ(DeckDesign, 3);
    EXPECT_EQ(SettingsText(layout),
              "[Play Music]\r\nTrue\r\n\r\n[Time]\r\n45\r\n\r\n[Play Sounds]\r\nFalse\r\n\r\n[Count Down Score]\r\nFalse\r\n\r\n"
              "[Deck]\r\n3\r\n\r\n");
    // A time that names no entry and a design out of 1 to 4 change nothing.
    ApplySettingsText("[Time]\r\n75\r\n[Deck]\r\n5\r\n[Deck]\r\n2.0\r\n", layout);
    EXPECT_EQ(TimeLimit, 45);
    EXPECT_EQ(DeckDesign, 3);
}

TEST_F(GameSections, NumbersOutsideTheSettingsRangeChangeNothing) {
    int16_t small = 7;
    int32_t large = 9;
    const SettingsLayout layout = {NumberSection("[Small]", small), NumberSection("[Large]", large)};
    ApplySettingsText("[Small]\r\n40000\r\n[Large]\r\n99999999999\r\n", layout);
    EXPECT_EQ(small, 7);
    EXPECT_EQ(large, 9);
    ApplySettingsText("[Small]\r\n-32768\r\n[Large]\r\n2.5\r\n", layout);
    EXPECT_EQ(small, -32768);
    EXPECT_EQ(large, 2);
    // No number at all reads as 0.
    ApplySettingsText("[Large]\r\nabc\r\n", layout);
    EXPECT_EQ(large, 0);
    EXPECT_EQ(SettingsText(layout), "[Small]\r\n-32768\r\n\r\n[Large]\r\n0\r\n\r\n");
}

