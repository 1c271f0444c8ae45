// SPDX-License-Identifier: GPL-3.0-or-later
// Shared steps of the game windows: a step run around a pause, and the guard
// of a resize.
#include <gtest/gtest.h>

#include <memory>

#include "suite/common.h"
#include "suite/gamewindow.h"
#include "window/headless.h"
#include "window/runtime.h"

using namespace ch;

namespace {

// A window whose pause button counts its clicks and flips its caption.
class Game : public Form {
public:
    explicit Game(Runtime& rt) : Form(rt, "frmGame") {
        add({ControlKind::Button, "cmdPause", -1, 0, 0, 100, 100, "Pau&se"});
        add({ControlKind::Label, "lblMessage", -1, 0, 0, 100, 100});
        on("cmdPause", Ev::Click, [this](EventArgs&) {
            ++clicks;
            const bool pausing = c("cmdPause").caption() == kPauseCaption;
            c("cmdPause").setCaption(pausing ? kResumeCaption : kPauseCaption);
            c("lblMessage").setCaption(pausing ? kGamePaused : "");
        });
    }
    int clicks = 0;
};

class SharedSteps : public ::testing::Test {
protected:
    void SetUp() override {
        ResetShared();
        AppTitle = "Duopick!";
    }
    void TearDown() override { ResetShared(); }
    HeadlessPlatform platform;
    Runtime runtime{platform};
};

}  // namespace

TEST_F(SharedSteps, AStepRunsPausedOnlyWhenTheGameRuns) {
    runtime.registerForm("frmGame", [](Runtime& rt) { return std::make_unique<Game>(rt); });
    Game& game = runtime.form<Game>("frmGame");
    std::string seen;
    RunPaused(game, [&] { seen = game.c("lblMessage").caption(); });
    EXPECT_EQ(seen, kGamePaused);
    EXPECT_EQ(game.clicks, 2);
    EXPECT_EQ(game.c("cmdPause").caption(), kPauseCaption);
    // Paused already: left paused.
    game.raise(&game.c("cmdPause"), Ev::Click);
    RunPaused(game, [] {});
    EXPECT_EQ(game.clicks, 3);
    EXPECT_EQ(game.c("cmdPause").caption(), kResumeCaption);
    // Over, or no game (the button disabled): nothing.
    game.raise(&game.c("cmdPause"), Ev::Click);
    game.c("lblMessage").setCaption(kGameOver);
    RunPaused(game, [] {});
    game.c("lblMessage").setCaption("");
    game.c("cmdPause").setEnabled(false);
    RunPaused(game, [] {});
    EXPECT_EQ(game.clicks, 4);
}

TEST_F(SharedSteps, TheFourTimersOfAGameWindow) {
    Form window(runtime, "frmTimers");
    for (const char* name : {"Timer1", "Timer2", "Timer3", "Timer4"}) window.add({ControlKind::Timer, name, -1, 0, 0, 0, 0});
    SetGameTimers(window, {.splashInterval = 250, .splashOn = true});
    EXPECT_EQ(window.c("Timer1").interval(), 1000);
    EXPECT_FALSE(window.c("Timer1").enabled());
    EXPECT_EQ(window.c("Timer2").interval(), 200);
    EXPECT_FALSE(window.c("Timer2").enabled());
    EXPECT_TRUE(window.c("Timer3").enabled());
    EXPECT_EQ(window.c("Timer3").interval(), 60000);
    EXPECT_EQ(window.c("Timer4").interval(), 250);
    EXPECT_TRUE(window.c("Timer4").enabled());
    SetGameTimers(window, {.dialBlinkOn = true});
    EXPECT_TRUE(window.c("Timer2").enabled());
    EXPECT_FALSE(window.c("Timer4").enabled());
}
