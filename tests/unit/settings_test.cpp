// SPDX-License-Identifier: GPL-3.0-or-later
// Settings files: the writer's form and order, and the reader on short,
// empty and damaged files.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "suite/common.h"
#include "suite/files.h"
#include "suite/settings.h"
#include "window/basic.h"
#include "window/runtime.h"
#include "window/headless.h"

using namespace ch;

namespace {

// Two sections kept as plain values, with a log of what the reader applied.
struct Sample {
    std::string time = "60";
    std::string sounds = "True";
    std::vector<std::string> applied;

    SettingsLayout layout() {
        return {
            {"[Time]", [this](const std::string& v) { time = v; applied.push_back("time " + v); }, [this] { return time; }},
            {"[Play Sounds]", [this](const std::string& v) { sounds = v; applied.push_back("sounds " + v); },
             [this] { return sounds; }},
            {"[Written Only]", nullptr, [] { return std::string("7"); }},
        };
    }
};

}  // namespace

TEST(SettingsText, SectionValueAndEmptyLineInWritingOrder) {
    Sample s;
    EXPECT_EQ(SettingsText(s.layout()), "[Time]\r\n60\r\n\r\n[Play Sounds]\r\nTrue\r\n\r\n[Written Only]\r\n7\r\n\r\n");
    // A section may be written twice, as one game does.
    SettingsLayout twice = s.layout();
    twice.push_back(twice[0]);
    EXPECT_EQ(SettingsText(twice).substr(SettingsText(s.layout()).size()), "[Time]\r\n60\r\n\r\n");
}

TEST(SettingsText, ReaderAppliesKnownSectionsInFileOrder) {
    Sample s;
    ApplySettingsText("[Play Sounds]\r\nFalse\r\n\r\n[Time]\r\n90\r\n\r\n[Time]\r\n30\r\n", s.layout());
    EXPECT_EQ(s.applied, (std::vector<std::string>{"sounds False", "time 90", "time 30"}));
}

TEST(SettingsText, ReaderSkipsUnknownAndDamagedLines) {
    Sample s;
    // Unknown sections, a section with blanks around it, a section written in
    // other case, one that is only ever written: all skipped.
    ApplySettingsText("[Bogus]\r\n1\r\n [Time]\r\n2\r\n[time]\r\n3\r\n[Written Only]\r\n4\r\n\x01\xff\r\n", s.layout());
    EXPECT_TRUE(s.applied.empty());
    EXPECT_EQ(s.time, "60");
}

TEST(SettingsText, AValueOutOfItsRangeChangesNothingAndTheRestStillApplies) {
    int16_t goal = 11;
    std::string sounds = "True";
    SettingsLayout layout = {
        {"[CardGoal]", [&goal](const std::string& v) { goal = CInt(Val(v)); }, nullptr},
        {"[Play Sounds]", [&sounds](const std::string& v) { sounds = v; }, nullptr},
    };
    ApplySettingsText("[CardGoal]\r\n99999\r\n[Play Sounds]\r\nFalse\r\n", layout);
    EXPECT_EQ(goal, 11);
    EXPECT_EQ(sounds, "False");
}

TEST(SettingsText, ShortAndEmptyFilesApplyWhatTheyHold) {
    Sample s;
    ApplySettingsText("", s.layout());
    ApplySettingsText("\r\n\r\n", s.layout());
    // A section on the last line has no value.
    ApplySettingsText("[Time]", s.layout());
    ApplySettingsText("[Time]\r\n", s.layout());
    EXPECT_TRUE(s.applied.empty());
    // A value cut off without its line end is still a value; an empty one too.
    ApplySettingsText("[Time]\r\n4", s.layout());
    ApplySettingsText("[Play Sounds]\r\n\r\n", s.layout());
    EXPECT_EQ(s.applied, (std::vector<std::string>{"time 4", "sounds "}));
    // The line after a section is its value even when it looks like a section.
    s.applied.clear();
    ApplySettingsText("[Time]\r\n[Play Sounds]\r\nFalse\r\n", s.layout());
    EXPECT_EQ(s.applied, (std::vector<std::string>{"time [Play Sounds]"}));
}

namespace {
class SettingsFiles : public ::testing::Test {
protected:
    void SetUp() override {
        std::string pattern = (std::filesystem::temp_directory_path() / "cardhaven-ini-XXXXXX").string();
        ASSERT_NE(mkdtemp(pattern.data()), nullptr);
        AppPath = pattern;
    }
    void TearDown() override { std::filesystem::remove_all(AppPath); }
};
}  // namespace

TEST_F(SettingsFiles, AMissingFileIsWrittenWithTheCurrentValuesAndRead) {
    Sample s;
    s.time = "45";
    ReadSettingsINI("\\Sample.Ini", s.layout());
    std::string text;
    ASSERT_TRUE(ReadWholeFile(AppFile("\\Sample.Ini"), text));
    EXPECT_EQ(text, "[Time]\r\n45\r\n\r\n[Play Sounds]\r\nTrue\r\n\r\n[Written Only]\r\n7\r\n\r\n");
    EXPECT_EQ(s.applied, (std::vector<std::string>{"time 45", "sounds True"}));
}

TEST_F(SettingsFiles, AnExistingFileIsOnlyRead) {
    Sample s;
    WriteFileAtomic(AppFile("\\Sample.Ini"), "[Time]\r\n30\r\n");
    ReadSettingsINI("\\Sample.Ini", s.layout());
    EXPECT_EQ(s.time, "30");
    std::string text;
    ASSERT_TRUE(ReadWholeFile(AppFile("\\Sample.Ini"), text));
    EXPECT_EQ(text, "[Time]\r\n30\r\n");
}

TEST_F(SettingsFiles, AFolderThatCantBeWrittenAppliesNothingAndSaysNothing) {
    Sample s;
    AppPath += "/no/such/folder";
    ReadSettingsINI("\\Sample.Ini", s.layout());
    EXPECT_TRUE(s.applied.empty());
    EXPECT_FALSE(WriteSettingsINI("\\Sample.Ini", s.layout()));
    AppPath = AppPath.substr(0, AppPath.size() - std::string("/no/such/folder").size());
}
