// SPDX-License-Identifier: GPL-3.0-or-later
// A double click: the whole gesture as a script gives it, or the second half
// of one whose first click a real mouse already sent as a Click. Either way
// the control sees Click then DblClick, and a button, which has no double
// click of its own, two Clicks.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "window/headless.h"
#include "window/runtime.h"

using namespace ch;

namespace {

std::vector<std::string> Gesture(ControlKind kind, std::vector<InputEvent> events) {
    HeadlessPlatform platform;
    Runtime runtime(platform);
    std::vector<std::string> log;
    runtime.registerForm("frmDouble", [&log, kind](Runtime& rt) {
        auto form = std::make_unique<Form>(rt, "frmDouble");
        form->add({kind, "Target", -1, 0, 0, 1000, 1000, "x"});
        form->on("Target", Ev::Click, [&log](EventArgs&) { log.push_back("Click"); });
        form->on("Target", Ev::DblClick, [&log](EventArgs&) { log.push_back("DblClick"); });
        return form;
    });
    runtime.show("frmDouble");
    for (InputEvent& e : events) {
        e.form = "frmDouble";
        e.control = "Target";
        runtime.dispatch(e);
    }
    return log;
}

InputEvent Event(InputKind kind, int value = 0) {
    InputEvent e;
    e.kind = kind;
    e.value = value;
    return e;
}

}  // namespace

TEST(DoubleClick, TheWholeGestureAndItsSecondHalfAfterAClickGiveTheSame) {
    const std::vector<std::string> image = {"Click", "DblClick"};
    EXPECT_EQ(Gesture(ControlKind::Image, {Event(InputKind::DblClick)}), image);
    EXPECT_EQ(Gesture(ControlKind::Image, {Event(InputKind::Click), Event(InputKind::DblClick, 1)}), image);

    const std::vector<std::string> button = {"Click", "Click"};
    EXPECT_EQ(Gesture(ControlKind::Button, {Event(InputKind::DblClick)}), button);
    EXPECT_EQ(Gesture(ControlKind::Button, {Event(InputKind::Click), Event(InputKind::DblClick, 1)}), button);
}
