// SPDX-License-Identifier: GPL-3.0-or-later
// Shared pieces of a game window that the games call in their own order:
// the pause of a window whose messages stand in another label, a label
// centred in its box, the design size kept, the time limit entries.
#include <gtest/gtest.h>

#include <memory>

#include "suite/common.h"
#include "suite/gamewindow.h"
#include "window/headless.h"
#include "window/runtime.h"

using namespace ch;

namespace {

const TimeEntry kEntries[] = {{"mnu15", 15, "&15 seconds"}, {"mnu30", 30, "&30 seconds (default)"}};

// A window with the standing controls but no lblMessage: its messages stand
// in ScoringLabel.
class PiecesForm : public Form {
public:
    explicit PiecesForm(Runtime& rt) : Form(rt, "frmPieces") {
        setSize(9540, 7305);
        for (const ControlSpec& s : StandingControls())
            if (std::string(s.name) != "lblMessage" && std::string(s.name) != "lblCurrentScore") add(s);
        add(QuitButton());
        add({ControlKind::Label, "ScoringLabel", -1, 0, 0, 3000, 400, ""});
        add({ControlKind::Menu, "mnuTime", -1, 0, 0, 0, 0, "&Time Limit"});
        for (const ControlSpec& s : TimeMenuEntries(kEntries)) add(s);
        PrepareStandingControls(*this);
    }
};

class GameWindowPieces : public ::testing::Test {
protected:
    GameWindowPieces() : runtime(platform) {
        runtime.registerForm("frmPieces", [](Runtime& rt) { return std::make_unique<PiecesForm>(rt); });
        form = &runtime.load("frmPieces");
    }
    HeadlessPlatform platform;
    Runtime runtime;
    Form* form = nullptr;
};

}  // namespace

TEST_F(GameWindowPieces, PauseAndResumeUseTheLabelTheGameNames) {
    GameInProgress = true;
    SetPausedControls(*form, "ScoringLabel");
    EXPECT_EQ(form->c("ScoringLabel").caption(), "Game Paused");
    EXPECT_TRUE(form->c("ScoringLabel").visible());
    EXPECT_EQ(form->c("cmdPause").caption(), "&Resume");
    EXPECT_FALSE(form->c("cmdQuit").enabled());
    EXPECT_FALSE(form->c("cmdPlay").enabled());
    SetResumedControls(*form, "ScoringLabel");
    EXPECT_EQ(form->c("ScoringLabel").caption(), "");
    EXPECT_FALSE(form->c("ScoringLabel").visible());
    EXPECT_TRUE(form->c("cmdQuit").enabled());
    EXPECT_TRUE(form->c("Timer1").enabled());
    GameInProgress = false;
}

TEST_F(GameWindowPieces, TimeEntriesStandUnderTheTimeMenuAndTickOneAtATime) {
    EXPECT_EQ(form->c("mnu30").container(), "mnuTime");
    EXPECT_EQ(form->c("mnu30").caption(), "&30 seconds (default)");
    ChooseTimeLimit(*form, kEntries, "mnu15");
    EXPECT_EQ(TimeLimit, 15);
    EXPECT_TRUE(form->c("mnu15").checked());
    ChooseTimeLimit(*form, kEntries, "mnu30");
    EXPECT_FALSE(form->c("mnu15").checked());
    EXPECT_TRUE(form->c("mnu30").checked());
}
