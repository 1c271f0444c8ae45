// SPDX-License-Identifier: GPL-3.0-or-later
// Settings files: the reader on short, damaged and odd files, numbers at their range's edges, writes kept in.
#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>

#include "suite/common.h"
#include "suite/files.h"
#include "suite/gamewindow.h"
#include "suite/settings.h"

using namespace ch;

namespace {
// Two sections kept as plain values, with a log of what the reader applied.
struct Sample {
    std::string time = "60";
    std::vector<std::string> applied;

    SettingsLayout layout() {
        return {
            {"[Time]",
             [this](const std::string& v) {
                 time = v;
                 applied.push_back("time " + v);
             },
             [this] { return time; }},
            {"[Play Sounds]", [this](const std::string& v) { applied.push_back("sounds " + v); }, nullptr},
            {"[Written Only]", nullptr, [] { return std::string("7"); }},
        };
    }
};
}  // namespace

TEST(Settings, TheReaderTakesTheLineAfterAKnownSectionAsItsValueWhateverItHolds) {
    Sample s;
    // Unknown sections, one with blanks around it or in other case, one that
    // is only ever written, and a section on the last line: all skipped.
    ApplySettingsText("[Bogus]\r\n1\r\n [Time]\r\n2\r\n[time]\r\n3\r\n[Written Only]\r\n4\r\n\x01\xff\r\n[Time]",
                      s.layout());
    EXPECT_TRUE(s.applied.empty());
    // A value cut off without its line end, an empty value, a value that looks
    // like a section; the same section twice applies twice, in the file's order.
    ApplySettingsText("[Play Sounds]\r\n\r\n[Time]\r\n[Play Sounds]\r\nFalse\r\n[Time]\r\n4", s.layout());
    EXPECT_EQ(s.applied, (std::vector<std::string>{"sounds ", "time [Play Sounds]", "time 4"}));
    EXPECT_EQ(SettingsText(s.layout()), "[Time]\r\n4\r\n\r\n[Written Only]\r\n7\r\n\r\n");
}

TEST(Settings, NumbersOutsideTheSettingsRangeChangeNothingAndTheRestRounds) {
    int16_t small = 7;
    int32_t large = 9;
    const SettingsLayout layout = {NumberSection("[Small]", small), NumberSection("[Large]", large)};
    ApplySettingsText("[Small]\r\n40000\r\n[Large]\r\n99999999999\r\n", layout);
    EXPECT_EQ(small, 7);
    EXPECT_EQ(large, 9);
    ApplySettingsText("[Small]\r\n-32768\r\n[Large]\r\n2.5\r\n", layout);
    EXPECT_EQ(small, -32768);
    EXPECT_EQ(large, 2);
    ApplySettingsText("[Large]\r\nabc\r\n", layout);
    EXPECT_EQ(large, 0);
}

// The browser edition keeps only its home folder: nothing written beside it, above it, or in a folder named like it.
TEST(Settings, NoFileIsWrittenOutsideTheTopFolderNorLeftHalfWrittenInIt) {
    const std::filesystem::path base = std::filesystem::temp_directory_path() / "cardhaven-top-test";
    std::filesystem::create_directories(base / "home" / "sub");
    std::filesystem::create_directories(base / "homely");
    SetTopFolder((base / "home").string() + "/");
    EXPECT_TRUE(WriteFileAtomic((base / "home" / "a.Ini").string(), "a"));
    EXPECT_TRUE(WriteFileAtomic((base / "home" / "sub" / "b.Ini").string(), "b"));
    EXPECT_FALSE(WriteFileAtomic((base / "homely" / "c.Ini").string(), "c"));
    EXPECT_FALSE(WriteFileAtomic((base / "d.Ini").string(), "d"));
    EXPECT_EQ(ParentFolder((base / "home").string()), (base / "home").string());
    // A writer that died before its rename left a temporary: the next write
    // of that file removes it; a live writer's (this one's parent) stays.
    const std::string stale = (base / "home" / "a.Ini.tmp999999999").string();
    const std::string live = (base / "home" / "a.Ini.tmp").string() + std::to_string(getppid());
    ASSERT_TRUE(WriteFileAtomic(stale, "old"));
    ASSERT_TRUE(WriteFileAtomic(live, "new"));
    EXPECT_TRUE(WriteFileAtomic((base / "home" / "a.Ini").string(), "a2"));
    EXPECT_FALSE(std::filesystem::exists(stale));
    EXPECT_TRUE(std::filesystem::exists(live));
    SetTopFolder("");
    std::filesystem::remove_all(base);
}
