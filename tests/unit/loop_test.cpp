// SPDX-License-Identifier: GPL-3.0-or-later
// The message loop: timer order, sleeps, modal loops, Change events, double
// clicks, what a disabled or hidden control receives, and what a renderer is sent.
#include <gtest/gtest.h>

#include <deque>
#include <memory>

#include "window/headless.h"
#include "window/runtime.h"
#include "window/snapshot.h"

using namespace ch;

namespace {

using Step = HeadlessPlatform::Step;
using Log = std::vector<std::string>;

Step Advance(int64_t ms) { return {Step::Kind::Advance, {}, ms}; }

Step Input(InputKind kind, const std::string& form, const std::string& control = "", const std::string& text = "",
           int value = 0) {
    return {Step::Kind::Input, {.kind = kind, .form = form, .control = control, .text = text, .value = value}, 0};
}

Step Click(const std::string& form, const std::string& control) { return Input(InputKind::Click, form, control); }

// A form with two timers and a few controls, logging what happens to it.
class TestForm : public Form {
public:
    TestForm(Runtime& rt, Log& log) : Form(rt, "frmTest") {
        add({ControlKind::Timer, "TimerA", -1, 0, 0, 0, 0});
        add({ControlKind::Timer, "TimerB", -1, 0, 0, 0, 0});
        add({ControlKind::Label, "lblMessage", -1, 0, 0, 100, 100});
        add({ControlKind::TextBox, "txtName", -1, 0, 0, 100, 100});
        add({ControlKind::Button, "cmdGo", -1, 0, 0, 100, 100, "&Go", "fraBox"});
        add({ControlKind::Frame, "fraBox", -1, 0, 0, 100, 100});
        add({ControlKind::Image, "imgCard", -1, 0, 0, 100, 100});
        add({ControlKind::Menu, "mnuFile", -1, 0, 0, 0, 0, "&File"});
        add({ControlKind::Menu, "mnuPlay", -1, 0, 0, 0, 0, "&Play", "mnuFile"});
        // Each handler logs its name, a name ending in @ with the time.
        const auto logged = [this, &log](std::string what, std::function<void()>* then = nullptr) {
            return [this, &log, what, then](EventArgs&) {
                log.push_back(what.back() == '@' ? what + std::to_string(runtime().now()) : what);
                if (then && *then) (*then)();
            };
        };
        on("TimerA", Ev::Timer, logged("A@", &onA));
        on("TimerB", Ev::Timer, logged("B@", &onB));
        on("lblMessage", Ev::Change,
           [this, &log](EventArgs&) { log.push_back("change:" + c("lblMessage").caption()); });
        on("cmdGo", Ev::Click, logged("go", &onGo));
        on("imgCard", Ev::Click, logged("click"));
        on("imgCard", Ev::DblClick, logged("double"));
        on("mnuPlay", Ev::Click, logged("play"));
    }
    std::function<void()> onA, onB, onGo;
};

class LoopTest : public ::testing::Test {
protected:
    LoopTest() : runtime(platform) {
        runtime.registerForm("frmTest", [this](Runtime& rt) { return std::make_unique<TestForm>(rt, log); });
        runtime.registerForm("frmDialog", [this](Runtime& rt) {
            auto dialog = std::make_unique<Form>(rt, "frmDialog");
            dialog->add({ControlKind::Button, "cmdOK", -1, 0, 0, 10, 10, "OK"});
            Form* self = dialog.get();
            dialog->on("cmdOK", Ev::Click, [this, self](EventArgs&) {
                log.push_back("ok");
                self->runtime().unload(*self);
            });
            return dialog;
        });
        platform.setSource([this] {
            if (steps.empty()) return Step{};
            Step s = steps.front();
            steps.pop_front();
            return s;
        });
        runtime.show(form());
    }

    TestForm& form() { return runtime.form<TestForm>("frmTest"); }

    void run(std::deque<Step> next) {
        steps = std::move(next);
        try {
            runtime.run();
        } catch (const StopRun&) {
        }
    }

    void startTimer(const char* name, int interval) {
        form().c(name).setInterval(interval);
        form().c(name).setEnabled(true);
    }

    HeadlessPlatform platform;
    Runtime runtime;
    std::deque<Step> steps;
    Log log;
};

}  // namespace

// The earliest due fires first; each repeats from its own last tick; enabling
// a running timer changes nothing, while a new interval starts it anew.
TEST_F(LoopTest, TimersFireEarliestFirstAndRepeatFromTheirLastTick) {
    startTimer("TimerA", 300);
    startTimer("TimerB", 200);
    run({Advance(600)});
    EXPECT_EQ(log, (Log{"B@200", "A@300", "B@400", "A@600", "B@600"}));
    log.clear();
    form().c("TimerB").setEnabled(false);
    run({Advance(200)});
    form().c("TimerA").setEnabled(true);  // still due at 900
    run({Advance(200)});
    form().c("TimerA").setInterval(300);  // at 1000: next tick at 1300
    run({Advance(400)});
    EXPECT_EQ(log, (Log{"A@900", "A@1300"}));
}

// A tick that fell due during a sleep, or before DoEvents, fires once.
TEST_F(LoopTest, ATickDueDuringASleepFiresOnceAfterwards) {
    startTimer("TimerB", 100);
    startTimer("TimerA", 50);
    form().onA = [this] {
        form().c("TimerA").setEnabled(false);
        Sleep(1000);  // TimerB falls due ten times meanwhile
    };
    run({Advance(1150)});
    EXPECT_EQ(log, (Log{"A@50", "B@1050", "B@1150"}));
    log.clear();
    Sleep(350);
    DoEvents();
    DoEvents();
    EXPECT_EQ(log, (Log{"B@1500"}));
}

// Timers keep firing while a message box stands. A round ending under "Giving up so soon?"
// asks for a name: that window must take its OK, or the box below never returns.
TEST_F(LoopTest, AModalFormATimerOpensOverAMessageBoxTakesInput) {
    startTimer("TimerB", 200);
    MsgAnswer answer = MsgAnswer::OK;
    form().onGo = [&] {
        answer = MsgBox("Giving up so soon?", MsgButtons::YesNo, MsgIcon::Question, "Test");
        log.push_back("answered");
    };
    form().onB = [&] {
        form().c("TimerB").setEnabled(false);
        runtime.show("frmDialog", true);
    };
    platform.queueAnswer(MsgAnswer::Yes, 500);
    run({Click("frmTest", "cmdGo"), Click("frmDialog", "cmdOK")});
    EXPECT_EQ(log, (Log{"go", "B@200", "ok", "answered"}));
    EXPECT_EQ(answer, MsgAnswer::Yes);
    EXPECT_EQ(platform.takeMessageBoxes().size(), 1u);
}

TEST_F(LoopTest, AModalFormTakesAllInputUntilItCloses) {
    startTimer("TimerB", 100);
    form().onGo = [&] {
        runtime.show("frmDialog", true);
        log.push_back("returned");
    };
    run({Click("frmTest", "cmdGo"), Click("frmTest", "cmdGo"), Advance(250), Click("frmDialog", "cmdOK")});
    // The second click on the blocked form was dropped; the timer kept running.
    EXPECT_EQ(log, (Log{"go", "B@100", "B@200", "ok", "returned"}));
    EXPECT_EQ(runtime.loaded("frmDialog"), nullptr);
}

TEST_F(LoopTest, ChangeRunsOnlyOnARealChangeAndInsideTheSetter) {
    Control& label = form().c("lblMessage");
    label.setCaption("Game Paused");
    log.push_back("after");
    label.setCaption("Game Paused");
    label.setCaption("");
    EXPECT_EQ(log, (Log{"change:Game Paused", "after", "change:"}));
}

TEST_F(LoopTest, ASecondHandlerIsRefusedUnlessItSaysItReplacesTheFirst) {
    TestForm& f = form();
    EXPECT_THROW(f.on("cmdGo", Ev::Click, [](EventArgs&) {}), std::logic_error);
    EXPECT_THROW(f.replace("cmdGo", Ev::DblClick, [](EventArgs&) {}), std::logic_error);
    f.raise(&f.c("cmdGo"), Ev::Click);
    f.replace("cmdGo", Ev::Click, [this](EventArgs&) { log.push_back("go again"); });
    f.raise(&f.c("cmdGo"), Ev::Click);
    EXPECT_EQ(log, (Log{"go", "go again"}));
}

// A double click, whole or the second half of one already sent, gives Click then DblClick; a button: two Clicks.
TEST_F(LoopTest, ADoubleClickIsAClickThenADoubleClickAndTwoClicksOnAButton) {
    for (const char* control : {"imgCard", "cmdGo"}) {
        run({Input(InputKind::DblClick, "frmTest", control)});
        run({Click("frmTest", control), Input(InputKind::DblClick, "frmTest", control, "", 1)});
    }
    EXPECT_EQ(log, (Log{"click", "double", "click", "double", "go", "go", "go", "go"}));
}

TEST_F(LoopTest, HiddenOrDisabledControlsFramesMenusAndFormsGetNoClick) {
    TestForm& f = form();
    const auto clickBoth = [&] { run({Click("frmTest", "cmdGo"), Click("frmTest", "mnuPlay")}); };
    f.c("cmdGo").setEnabled(false);
    f.c("mnuFile").setVisible(false);
    clickBoth();
    f.c("cmdGo").setEnabled(true);
    f.c("fraBox").setEnabled(false);  // the frame holding it
    f.c("mnuFile").setVisible(true);
    f.c("mnuFile").setEnabled(false);
    clickBoth();
    EXPECT_TRUE(log.empty());
    f.c("fraBox").setEnabled(true);
    f.c("mnuFile").setEnabled(true);
    clickBoth();
    EXPECT_EQ(log, (Log{"go", "play"}));
    runtime.hide(f);
    clickBoth();
    EXPECT_EQ(log.size(), 2u);
}

TEST_F(LoopTest, AOneLineTextBoxKeepsTheFirstLineOfWhatIsTyped) {
    const auto type = [&](const std::string& text) {
        run({Input(InputKind::SetText, "frmTest", "txtName", text)});
        return form().c("txtName").text();
    };
    EXPECT_EQ(type("Ann\r\nBo"), "Ann");
    EXPECT_EQ(type("Ann\nBo"), "Ann");
    EXPECT_EQ(type("Ann\r"), "Ann");
    form().c("txtName").setMultiLine(true);
    EXPECT_EQ(type("Ann\r\nBo"), "Ann\r\nBo");
}

TEST(DateTimes, MillisecondsRoundTripOverALeapDay) {
    const DateTime back = FromMillis(ToMillis({2026, 1, 1, 9, 0, 0, 0}));
    EXPECT_EQ((std::vector<int>{back.year, back.month, back.day, back.hour}), (std::vector<int>{2026, 1, 1, 9}));
    const DateTime leap = FromMillis(ToMillis({2028, 2, 29, 23, 59, 59, 999}) + 1);
    EXPECT_EQ((std::vector<int>{leap.month, leap.day, leap.hour}), (std::vector<int>{3, 1, 0}));
}

// A renderer keeps what it was sent: a snapshot brings the header of each changed form and only
// the controls whose revision moved; a form unloaded by its own handler and loaded anew comes
// fresh and whole under a new instance number, with timers of its own.
TEST_F(LoopTest, SnapshotsCarryWhatChangedAndAReloadedFormWhole) {
    SnapshotTaker taker;
    auto whole = taker.take(runtime);
    ASSERT_EQ(whole->forms.size(), 1u);
    const FormSnap& f1 = whole->forms[0];
    EXPECT_TRUE(f1.changed);
    Log keys;
    for (const ControlSnap& c : f1.controls) keys.push_back(c.key());
    EXPECT_EQ(keys, (Log{"lblMessage", "txtName", "cmdGo", "fraBox", "imgCard", "mnuFile", "mnuPlay"}));

    TestForm& first = form();
    startTimer("TimerA", 100);
    auto same = taker.take(runtime);
    EXPECT_FALSE(same->forms[0].changed);
    EXPECT_EQ(same->forms[0].instance, f1.instance);
    first.c("txtName").setText("Bo");
    auto one = taker.take(runtime);
    ASSERT_TRUE(one->forms[0].changed);
    ASSERT_EQ(one->forms[0].controls.size(), 1u);
    EXPECT_EQ(one->forms[0].controls[0].key(), "txtName");
    EXPECT_EQ(one->forms[0].controls[0].order, 1);
    first.setCaption("Renamed");
    EXPECT_TRUE(taker.take(runtime)->forms[0].changed);

    first.onGo = [&] { runtime.unload(first); };
    run({Click("frmTest", "cmdGo")});
    EXPECT_EQ(runtime.loaded("frmTest"), nullptr);
    runtime.show(form());
    EXPECT_EQ(form().c("txtName").text(), "");
    startTimer("TimerB", 100);
    auto again = taker.take(runtime);
    EXPECT_NE(again->forms[0].instance, f1.instance);
    EXPECT_EQ(again->forms[0].controls.size(), 7u);
    log.clear();
    run({Advance(250)});
    EXPECT_EQ(log, (Log{"B@100", "B@200"}));
}
