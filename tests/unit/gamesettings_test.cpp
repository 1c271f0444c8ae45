// The settings sections and loading steps every game window shares.
#include <gtest/gtest.h>

#include "suite/cards.h"
#include "suite/common.h"
#include "suite/gamesettings.h"
#include "window/headless.h"
#include "window/runtime.h"

using namespace ch;

namespace {
const TimeEntry kEntries[] = {{"mnu30", 30, "&30"}, {"mnu60", 60, "&60"}};

class SettingsWindow : public ::testing::Test {
protected:
    void SetUp() override {
        ResetShared();
        for (const char* name : {"mnu30", "mnu60", "mnuSounds", "mnuMusic", "mnuPalm", "mnuMagic", "mnuNight", "mnuHot"})
            window.add({ControlKind::Menu, name, -1, 0, 0, 0, 0});
        for (const char* name : {"Timer1", "Timer4"}) window.add({ControlKind::Timer, name, -1, 0, 0, 0, 0});
        window.on("mnu30", Ev::Click, [this](EventArgs&) { ChooseTimeLimit(window, kEntries, "mnu30"); });
        window.on("mnu60", Ev::Click, [this](EventArgs&) { ChooseTimeLimit(window, kEntries, "mnu60"); });
        window.on("mnuNight", Ev::Click, [](EventArgs&) { DeckDesign = 3; });
    }
    void TearDown() override { ResetShared(); }
    SettingsLayout Layout() {
        return {TimeSection(window, kEntries), PlaySoundsSection(window), PlayMusicSection(window),
                DeckSection(window, kDeckMenus), CountDownSection("[Count Down Score]")};
    }
    HeadlessPlatform platform;
    Runtime runtime{platform};
    Form window{runtime, "frmSettings"};
};
}  // namespace

TEST_F(SettingsWindow, DefaultsComeFirstAndTheFileWritesThem) {
    SetCommonDefaults(window, 60, 3);
    EXPECT_EQ(window.mousePointer(), 11);
    EXPECT_TRUE(window.c("Timer4").enabled());
    EXPECT_FALSE(window.c("Timer1").enabled());
    EXPECT_EQ(TimeLimit, 60);
    EXPECT_EQ(DeckDesign, 3);
    EXPECT_TRUE(PlaySounds && CountDownScore && !PlayMusic);
    EXPECT_EQ(SettingsText(Layout()),
              "[Time]\r\n60\r\n\r\n[Play Sounds]\r\nTrue\r\n\r\n[Play Music]\r\nFalse\r\n\r\n[Deck]\r\n3\r\n\r\n"
              "[Count Down Score]\r\nTrue\r\n\r\n");
}

TEST_F(SettingsWindow, ValuesGoThroughTheMenusAndUnknownOnesChangeNothing) {
    SetCommonDefaults(window, 60);
    ApplySettingsText("[Time]\r\n30\r\n[Play Sounds]\r\nFalse\r\n[Deck]\r\n3\r\n[Count Down Score]\r\nno\r\n", Layout());
    EXPECT_EQ(TimeLimit, 30);
    EXPECT_TRUE(window.c("mnu30").checked());
    EXPECT_FALSE(PlaySounds);
    EXPECT_FALSE(window.c("mnuSounds").checked());
    EXPECT_EQ(DeckDesign, 3);
    EXPECT_FALSE(CountDownScore);
    ApplySettingsText("[Time]\r\n45\r\n[Deck]\r\n7\r\n", Layout());
    EXPECT_EQ(TimeLimit, 30);
    EXPECT_EQ(DeckDesign, 3);
}

TEST_F(SettingsWindow, ASmallWindowGoesBackToItsDesignSize) {
    window.setSize(9000, 8000);
    EXPECT_TRUE(HoldDesignSize(window, 9540, 7305));
    EXPECT_EQ(window.width(), 9540);
    EXPECT_EQ(window.height(), 7305);
    EXPECT_FALSE(HoldDesignSize(window, 9540, 7305));
    window.setWindowState(1);
    EXPECT_TRUE(HoldDesignSize(window, 9540, 7305));
}
