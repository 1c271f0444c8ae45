// SPDX-License-Identifier: GPL-3.0-or-later
// OK's check of a custom scoring dialog from its table: box and message order, what a box out of range
// shows and stores, where the focus ends. Policies and a store's run-time error: each game's dialog.
#include <gtest/gtest.h>

#include <tuple>
#include <vector>

#include "suite/common.h"
#include "suite/scoringdialog.h"
#include "window/basic.h"
#include "window/headless.h"
#include "window/runtime.h"

using namespace ch;

namespace {

class Dialog : public Form {
public:
    explicit Dialog(Runtime& rt) : Form(rt, "frmDialog") {
        for (const char* box : {"txtA", "txtB", "txtC"}) add({ControlKind::TextBox, box, -1, 0, 0, 100, 100});
    }
    void type(const std::string& a, const std::string& b, const std::string& c) {
        this->c("txtA").setText(a);
        this->c("txtB").setText(b);
        this->c("txtC").setText(c);
    }
};

using Stored = std::tuple<size_t, long long, bool>;

class ScoringDialog : public ::testing::Test {
protected:
    void SetUp() override {
        ResetShared();
        AppTitle = "Duopick!";
    }
    void TearDown() override { ResetShared(); }
    bool ok(std::span<const ScoringField> fields, const ScoringPolicy& policy = {}) {
        return CheckScoringFields(
            dialog, fields, policy, [this](size_t f, long long v, bool passed) { stored.emplace_back(f, v, passed); },
            [this] { ++finished; });
    }
    std::vector<std::string> messages() {
        std::vector<std::string> texts;
        for (const auto& box : platform.takeMessageBoxes()) texts.push_back(box.text);
        return texts;
    }
    HeadlessPlatform platform;
    Runtime runtime{platform};
    Dialog dialog{runtime};
    std::vector<Stored> stored;
    int finished = 0;
};

const ScoringField kFields[] = {
    {.box = "txtA", .lowest = 0, .highest = 100, .lowMessage = "A low", .highMessage = "A high"},
    {.box = "txtB", .lowest = 0, .highest = 100, .lowMessage = "B low", .highMessage = "B high", .highStored = 0},
    {.box = "txtC", .lowest = 0, .highest = 10, .lowMessage = "C out", .lowShown = 1, .lowStored = 1,
     .lowBox = "txtA"},
};

}  // namespace

TEST_F(ScoringDialog, EveryBoxIsCheckedAndStoredInTurnAndTheFocusEndsOnTheLastThatFailed) {
    dialog.type("2.5abc", "101", "-1");
    EXPECT_FALSE(ok(kFields));
    EXPECT_EQ(stored, (std::vector<Stored>{{0, 2, true}, {1, 0, false}, {2, 1, false}}));
    EXPECT_EQ(messages(), (std::vector<std::string>{"B high", "C out"}));
    // B shows the limit it passed; C's put-back goes to the box it names.
    EXPECT_EQ(dialog.c("txtB").text(), "100");
    EXPECT_EQ(dialog.c("txtA").text(), "1");
    EXPECT_EQ(dialog.c("txtC").text(), "-1");
    EXPECT_EQ(dialog.focusControl(), &dialog.c("txtA"));
    EXPECT_EQ(finished, 0);  // the last box failed

    stored.clear();
    dialog.c("txtC").setText("3.5");
    EXPECT_TRUE(ok(kFields));
    EXPECT_EQ(stored, (std::vector<Stored>{{0, 1, true}, {1, 100, true}, {2, 4, true}}));
    EXPECT_EQ(finished, 1);
}
