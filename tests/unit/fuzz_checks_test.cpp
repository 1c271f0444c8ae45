// SPDX-License-Identifier: GPL-3.0-or-later
// The fuzzer's checks catch what they are for: a table that lost an entry, a file that won't read back.
#include <gtest/gtest.h>

#include "tools/fuzz/checks.h"

using namespace ch;

namespace {
std::vector<ScoreEntry> Table(std::initializer_list<int> scores) {
    std::vector<ScoreEntry> entries;
    char name = 'A';
    for (int score : scores) entries.push_back({std::string(1, name++), std::to_string(score)});
    return entries;
}
}  // namespace

TEST(FuzzChecks, ATableChangesOnlyByANewScoreOrClear) {
    const auto before = Table({90, 80, 70, 60, 50, 40, 30, 20, 10, 5});
    // A new score pushing the rest down (the tenth stays as an eleventh).
    auto after = before;
    after.insert(after.begin() + 2, {"New", "75"});
    EXPECT_EQ(TableChangeFault(before, after, 75), "");
    // The eleventh line falls off at the next write.
    EXPECT_EQ(TableChangeFault(after, std::vector<ScoreEntry>(after.begin(), after.begin() + 10), 0), "");
    // Cleared.
    EXPECT_EQ(TableChangeFault(before, std::vector<ScoreEntry>(10, ScoreEntry{"Quillmark", "50000"}), 0), "");
    // Lost: an entry gone with no new one, two gone, one replaced in place.
    auto lost = before;
    lost.erase(lost.begin() + 3);
    EXPECT_NE(TableChangeFault(before, lost, 0), "");
    auto replaced = before;
    replaced[4] = {"New", "55"};
    EXPECT_NE(TableChangeFault(before, replaced, 55), "");
    // A new entry that is not the score just made.
    EXPECT_NE(TableChangeFault(before, after, 74), "");
}

TEST(FuzzChecks, FilesMustReadBackAsWritten) {
    const std::string table = "Quillmark, 50000\r\nAnn, 40000\r\nBo*, 40000\r\nC, 1\r\nD, 0\r\n"
                              "E, 0\r\nF, 0\r\nG, 0\r\nH, 0\r\nI, 0\r\n\r\n";
    EXPECT_EQ(TableFault(table), "");
    EXPECT_NE(TableFault("Ann, 1\n"), "");                                      // LF only, too short
    EXPECT_NE(TableFault("A, B, 40000\r\n" + table.substr(18)), "");            // a comma in a name
    EXPECT_NE(TableFault("Quillmark, 1\r\nAnn, 40000\r\n" + table.substr(30)), "");  // out of order
    EXPECT_NE(TableFault("Quillmark, 3000000000\r\n" + table.substr(18)), "");  // beyond 32 bits

    EXPECT_EQ(SettingsFault("[Time]\r\n90\r\n\r\n[Play Music]\r\nFalse\r\n\r\n[Play Music]\r\nFalse\r\n\r\n"), "");
    EXPECT_NE(SettingsFault("[Play Music]\r\nFalse\r\n\r\n[Play Music]\r\nTrue\r\n\r\n"), "");
    EXPECT_NE(SettingsFault("[Time]\r\n90\r\n"), "");

    EXPECT_EQ(KindOfHomeFile("HiScores90_11.Txt"), HomeFileKind::Table);
    EXPECT_EQ(KindOfHomeFile("Sumfall.Ini.tmp4242"), HomeFileKind::Temporary);
}
