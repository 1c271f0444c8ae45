// SPDX-License-Identifier: GPL-3.0-or-later
// The message loop: timer order, sleeps, modal loops, Change events, and what a
// disabled or hidden control receives.
#include <gtest/gtest.h>

#include <deque>
#include <memory>

#include "window/headless.h"
#include "window/runtime.h"
#include "window/snapshot.h"

using namespace ch;

namespace {

using Step = HeadlessPlatform::Step;

Step Advance(int64_t ms) {
    Step s;
    s.kind = Step::Kind::Advance;
    s.ms = ms;
    return s;
}

Step Click(const std::string& form, const std::string& control) {
    Step s;
    s.kind = Step::Kind::Input;
    s.event.kind = InputKind::Click;
    s.event.form = form;
    s.event.control = control;
    return s;
}

// A form with two timers and a few controls, logging what happens to it.
class TestForm : public Form {
public:
    TestForm(Runtime& rt, std::vector<std::string>& log) : Form(rt, "frmTest"), log_(log) {
        add({ControlKind::Timer, "TimerA", -1, 0, 0, 0, 0});
        add({ControlKind::Timer, "TimerB", -1, 0, 0, 0, 0});
        add({ControlKind::Label, "lblMessage", -1, 0, 0, 100, 100});
        add({ControlKind::TextBox, "txtName", -1, 0, 0, 100, 100});
        add({ControlKind::Button, "cmdGo", -1, 0, 0, 100, 100, "&Go", "fraBox"});
        add({ControlKind::Frame, "fraBox", -1, 0, 0, 100, 100});
        add({ControlKind::Menu, "mnuFile", -1, 0, 0, 0, 0, "&File"});
        add({ControlKind::Menu, "mnuPlay", -1, 0, 0, 0, 0, "&Play", "mnuFile"});
        on("TimerA", Ev::Timer, [this](EventArgs&) { log_.push_back("A@" + std::to_string(runtime().now())); if (onA) onA(); });
        on("TimerB", Ev::Timer, [this](EventArgs&) {
            log_.push_back("B@" + std::to_string(runtime().now()));
            if (onB) onB();
        });
        on("lblMessage", Ev::Change, [this](EventArgs&) { log_.push_back("change:" + c("lblMessage").caption()); });
        on("cmdGo", Ev::Click, [this](EventArgs&) { log_.push_back("go"); if (onGo) onGo(); });
        on("mnuPlay", Ev::Click, [this](EventArgs&) { log_.push_back("play"); });
    }
    std::function<void()> onA;
    std::function<void()> onB;
    std::function<void()> onGo;

private:
    std::vector<std::string>& log_;
};

class LoopTest : public ::testing::Test {
protected:
    LoopTest() : runtime(platform) {
        runtime.registerForm("frmTest", [this](Runtime& rt) { return std::make_unique<TestForm>(rt, log); });
        platform.setSource([this] {
            if (steps.empty()) return Step{};
            Step s = steps.front();
            steps.pop_front();
            return s;
        });
    }

    TestForm& show() {
        auto& form = runtime.form<TestForm>("frmTest");
        runtime.show(form);
        return form;
    }

    void run() {
        try {
            runtime.run();
        } catch (const StopRun&) {
        }
    }

    HeadlessPlatform platform;
    Runtime runtime;
    std::deque<Step> steps;
    std::vector<std::string> log;
};

}  // namespace

TEST_F(LoopTest, EarlierDueTimerFiresFirstAndEachRepeatsFromItsLastTick) {
    TestForm& f = show();
    f.c("TimerA").setInterval(300);
    f.c("TimerB").setInterval(200);
    f.c("TimerA").setEnabled(true);
    f.c("TimerB").setEnabled(true);
    steps = {Advance(600)};
    run();
    EXPECT_EQ(log, (std::vector<std::string>{"B@200", "A@300", "B@400", "A@600", "B@600"}));
}

TEST_F(LoopTest, ATickDueDuringASleepFiresOnceAfterwards) {
    TestForm& f = show();
    f.c("TimerB").setInterval(100);
    f.c("TimerB").setEnabled(true);
    f.c("TimerA").setInterval(50);
    f.c("TimerA").setEnabled(true);
    f.onA = [&] {
        f.c("TimerA").setEnabled(false);
        Sleep(1000);  // TimerB falls due ten times meanwhile
    };
    steps = {Advance(1150)};
    run();
    EXPECT_EQ(log, (std::vector<std::string>{"A@50", "B@1050", "B@1150"}));
}

TEST_F(LoopTest, EnablingARunningTimerChangesNothingButANewIntervalRestartsIt) {
    TestForm& f = show();
    Control& t = f.c("TimerA");
    t.setInterval(1000);
    t.setEnabled(true);
    steps = {Advance(600)};
    f.onA = nullptr;
    run();
    t.setEnabled(true);  // already on: still due at 1000
    steps = {Advance(500)};
    run();
    EXPECT_EQ(log, (std::vector<std::string>{"A@1000"}));
    log.clear();
    t.setInterval(1000);  // at 1100: next tick at 2100
    steps = {Advance(1000)};
    run();
    EXPECT_EQ(log, (std::vector<std::string>{"A@2100"}));
}

TEST_F(LoopTest, TimersKeepFiringWhileAMessageBoxIsOpen) {
    TestForm& f = show();
    f.c("TimerB").setInterval(200);
    f.c("TimerB").setEnabled(true);
    MsgAnswer answer = MsgAnswer::OK;
    f.onGo = [&] { answer = MsgBox("Sure?", MsgButtons::YesNo, MsgIcon::Question, "Test"); };
    platform.queueAnswer(MsgAnswer::Yes, 500);
    steps = {Click("frmTest", "cmdGo")};
    run();
    EXPECT_EQ(answer, MsgAnswer::Yes);
    EXPECT_EQ(log, (std::vector<std::string>{"go", "B@200", "B@400"}));
    ASSERT_EQ(platform.takeMessageBoxes().size(), 1u);
}

TEST_F(LoopTest, AModalFormATimerOpensOverAMessageBoxTakesInput) {
    // A round that ends while "Giving up so soon?" stands asks for a name:
    // that window must take its OK, or the box below never returns.
    struct Dialog : Form {
        explicit Dialog(Runtime& rt, std::vector<std::string>& log) : Form(rt, "frmDialog") {
            add({ControlKind::Button, "cmdOK", -1, 0, 0, 100, 100, "OK"});
            on("cmdOK", Ev::Click, [this, &log](EventArgs&) { log.push_back("ok"); runtime().unload(*this); });
        }
    };
    runtime.registerForm("frmDialog", [this](Runtime& rt) { return std::make_unique<Dialog>(rt, log); });
    TestForm& f = show();
    f.c("TimerB").setInterval(200);
    f.c("TimerB").setEnabled(true);
    f.onGo = [&] { MsgBox("Giving up so soon?", MsgButtons::YesNo, MsgIcon::Question, "Test"); log.push_back("answered"); };
    f.onB = [&] {
        f.c("TimerB").setEnabled(false);
        runtime.show("frmDialog", true);
    };
    platform.queueAnswer(MsgAnswer::Yes, 500);
    steps = {Click("frmTest", "cmdGo"), Click("frmDialog", "cmdOK")};
    run();
    EXPECT_EQ(log, (std::vector<std::string>{"go", "B@200", "ok", "answered"}));
}

TEST_F(LoopTest, AModalFormTakesAllInputUntilItCloses) {
    runtime.registerForm("frmDialog", [](Runtime& rt) {
        auto form = std::make_unique<Form>(rt, "frmDialog");
        form->add({ControlKind::Button, "cmdOK", -1, 0, 0, 10, 10, "OK"});
        Form* self = form.get();
        form->on("cmdOK", Ev::Click, [self](EventArgs&) { self->runtime().unload(*self); });
        return form;
    });
    TestForm& f = show();
    f.c("TimerB").setInterval(100);
    f.c("TimerB").setEnabled(true);
    bool returned = false;
    f.onGo = [&] {
        runtime.show("frmDialog", true);
        returned = true;
    };
    steps = {Click("frmTest", "cmdGo"), Click("frmTest", "cmdGo"), Advance(250), Click("frmDialog", "cmdOK")};
    run();
    EXPECT_TRUE(returned);
    // The second click on the blocked form was dropped; the timer kept running.
    EXPECT_EQ(log, (std::vector<std::string>{"go", "B@100", "B@200"}));
    EXPECT_EQ(runtime.loaded("frmDialog"), nullptr);
}

TEST_F(LoopTest, ChangeRunsOnlyOnARealChangeAndInsideTheSetter) {
    TestForm& f = show();
    Control& label = f.c("lblMessage");
    label.setCaption("Game Paused");
    log.push_back("after");
    label.setCaption("Game Paused");
    label.setCaption("");
    EXPECT_EQ(log, (std::vector<std::string>{"change:Game Paused", "after", "change:"}));
}

// A control's event keeps the one handler bound to it: a second binding is a
// fault unless it says that it replaces the first.
TEST_F(LoopTest, ASecondHandlerIsRefusedUnlessItSaysItReplacesTheFirst) {
    TestForm& f = show();
    EXPECT_THROW(f.on("cmdGo", Ev::Click, [](EventArgs&) {}), std::logic_error);
    EXPECT_THROW(f.replace("cmdGo", Ev::DblClick, [](EventArgs&) {}), std::logic_error);
    f.raise(&f.c("cmdGo"), Ev::Click);
    f.replace("cmdGo", Ev::Click, [this](EventArgs&) { log.push_back("go again"); });
    f.raise(&f.c("cmdGo"), Ev::Click);
    EXPECT_EQ(log, (std::vector<std::string>{"go", "go again"}));
}

TEST_F(LoopTest, HiddenOrDisabledControlsFramesMenusAndFormsGetNoClick) {
    TestForm& f = show();
    auto clickGo = [&] {
        steps = {Click("frmTest", "cmdGo"), Click("frmTest", "mnuPlay")};
        run();
    };
    f.c("cmdGo").setEnabled(false);
    f.c("mnuFile").setVisible(false);
    clickGo();
    f.c("cmdGo").setEnabled(true);
    f.c("fraBox").setEnabled(false);  // the frame holding it
    f.c("mnuFile").setVisible(true);
    f.c("mnuFile").setEnabled(false);
    clickGo();
    EXPECT_TRUE(log.empty());
    f.c("fraBox").setEnabled(true);
    f.c("mnuFile").setEnabled(true);
    clickGo();
    EXPECT_EQ(log, (std::vector<std::string>{"go", "play"}));
    log.clear();
    runtime.hide(f);
    clickGo();
    EXPECT_TRUE(log.empty());
}

TEST_F(LoopTest, AOneLineTextBoxKeepsTheFirstLineOfWhatIsTyped) {
    TestForm& f = show();
    auto type = [&](const std::string& text) {
        Step step;
        step.kind = Step::Kind::Input;
        step.event.kind = InputKind::SetText;
        step.event.form = "frmTest";
        step.event.control = "txtName";
        step.event.text = text;
        steps = {step};
        run();
        return f.c("txtName").text();
    };
    EXPECT_EQ(type("Ann\r\nBo"), "Ann");
    EXPECT_EQ(type("Ann\nBo"), "Ann");
    EXPECT_EQ(type("Ann\r"), "Ann");
    f.c("txtName").setMultiLine(true);
    EXPECT_EQ(type("Ann\r\nBo"), "Ann\r\nBo");
}

TEST_F(LoopTest, AFormUnloadedByItsOwnHandlerIsFreshWhenShownAgain) {
    TestForm& first = show();
    first.c("lblMessage").setCaption("old");
    first.onGo = [&] { runtime.unload(first); };
    steps = {Click("frmTest", "cmdGo")};
    run();
    EXPECT_EQ(runtime.loaded("frmTest"), nullptr);
    TestForm& second = show();
    EXPECT_EQ(second.c("lblMessage").caption(), "");
}

TEST_F(LoopTest, QueryUnloadMayCancelAClose) {
    TestForm& f = show();
    bool allow = false;
    f.on(Ev::QueryUnload, [&](EventArgs& e) { e.cancel = !allow; });
    Step close;
    close.kind = Step::Kind::Input;
    close.event.kind = InputKind::Close;
    close.event.form = "frmTest";
    steps = {close};
    run();
    EXPECT_NE(runtime.loaded("frmTest"), nullptr);
    allow = true;
    steps = {close};
    run();
    EXPECT_EQ(runtime.loaded("frmTest"), nullptr);
}

TEST_F(LoopTest, DoEventsFiresWhatIsDueOnceAndReturns) {
    TestForm& f = show();
    f.c("TimerB").setInterval(100);
    f.c("TimerB").setEnabled(true);
    Sleep(350);
    DoEvents();
    DoEvents();
    EXPECT_EQ(log, (std::vector<std::string>{"B@350"}));
}

TEST(DateTimes, MillisecondsRoundTrip) {
    DateTime t{2026, 1, 1, 9, 0, 0, 0};
    DateTime back = FromMillis(ToMillis(t));
    EXPECT_EQ(back.year, 2026);
    EXPECT_EQ(back.month, 1);
    EXPECT_EQ(back.day, 1);
    EXPECT_EQ(back.hour, 9);
    DateTime leap = FromMillis(ToMillis({2028, 2, 29, 23, 59, 59, 999}) + 1);
    EXPECT_EQ(leap.month, 3);
    EXPECT_EQ(leap.day, 1);
    EXPECT_EQ(leap.hour, 0);
}

// A renderer keeps what it was sent: each snapshot brings the header of a form
// in which anything changed and only the controls whose revision moved, and
// a form loaded anew comes whole under a new instance number. The timers of a
// form loaded anew are its own.
TEST_F(LoopTest, SnapshotsCarryWhatChangedAndAReloadedFormWhole) {
    SnapshotTaker taker;
    TestForm& first = show();
    auto whole = taker.take(runtime);
    ASSERT_EQ(whole->forms.size(), 1u);
    const FormSnap& f1 = whole->forms[0];
    EXPECT_TRUE(f1.changed);
    std::vector<std::string> keys;
    for (const ControlSnap& c : f1.controls) keys.push_back(c.key());
    EXPECT_EQ(keys, (std::vector<std::string>{"lblMessage", "txtName", "cmdGo", "fraBox", "mnuFile", "mnuPlay"}));

    first.c("TimerA").setInterval(100);
    first.c("TimerA").setEnabled(true);
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
    steps = {Click("frmTest", "cmdGo")};
    run();
    TestForm& second = show();
    second.c("TimerB").setInterval(100);
    second.c("TimerB").setEnabled(true);
    auto again = taker.take(runtime);
    EXPECT_NE(again->forms[0].instance, f1.instance);
    EXPECT_EQ(again->forms[0].controls.size(), 6u);
    log.clear();
    steps = {Advance(250)};
    run();
    EXPECT_EQ(log, (std::vector<std::string>{"B@100", "B@200"}));
}
