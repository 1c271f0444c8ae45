// SPDX-License-Identifier: GPL-3.0-or-later
// High score tables: file names, the reader, a short table's place for a new score (damaged: damaged_files_test).
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <set>

#include "suite/common.h"
#include "suite/files.h"
#include "games/games.h"
#include "suite/gameinfo.h"
#include "suite/highscores.h"
#include "window/headless.h"
#include "window/runtime.h"

using namespace ch;

namespace {

class HighScoreFiles : public ::testing::Test {
protected:
    void SetUp() override {
        ResetShared();
        std::string pattern = (std::filesystem::temp_directory_path() / "cardhaven-hs-XXXXXX").string();
        ASSERT_NE(mkdtemp(pattern.data()), nullptr);
        AppPath = pattern;
        TimeLimit = 60;
        AppTitle = "Spirehold!";
        RegisterGameForms(runtime);
    }
    void TearDown() override {
        std::filesystem::remove_all(AppPath);
        ResetShared();
    }

    HeadlessPlatform platform;
    Runtime runtime{platform};
};

struct Window : Form {
    Window(Runtime& rt, const std::string& name) : Form(rt, name) {
        add({ControlKind::Label, "lblHighScore", -1, 0, 0, 100, 100});
    }
};

}  // namespace

// Every game is found by its title and window, and no two share a table file: Sumfall and Fivestack
// share a table name, kept apart by Sumfall's card goal.
TEST_F(HighScoreFiles, EveryGameIsKnownByTitleAndWindowAndKeepsItsOwnTables) {
    std::set<std::string> files;
    std::set<int> slots;
    for (const GameInfo* game : Games()) {
        EXPECT_EQ(GameByTitle(game->title), game);
        EXPECT_EQ(GameByForm(game->form), game);
        EXPECT_TRUE(runtime.isKnownForm(game->form)) << game->form;
        EXPECT_TRUE(slots.insert(game->buttonSlot).second) << game->button;
        AppTitle = game->title;
        CardGoal = 11;
        for (const TimeEntry& limit : game->timeEntries) {
            TimeLimit = static_cast<int16_t>(limit.seconds);
            EXPECT_TRUE(files.insert(HighScoreFileName(game->tableName)).second) << game->title << " " << limit.seconds;
        }
    }
    EXPECT_EQ(GameByTitle("Nothing!"), nullptr);
    AppTitle = "Sumfall!";
    TimeLimit = 90;
    EXPECT_EQ(HighScoreFileName("HiScores"), AppPath + "/HiScores90_11.Txt");
    AppTitle = "Fivestack!";
    EXPECT_EQ(HighScoreFileName("HiScores"), AppPath + "/HiScores90.Txt");
}

TEST(HighScoreText, ReaderSplitsAtTheFirstCommaSkipsBlankLinesAndTakesOnly32BitScores) {
    std::string read;
    const std::string text = "Ann*, 71200\r\n\r\n  Bob ,  500  \nno comma\r\nx, y, 3\r\n,\r\n\r\n";
    for (const ScoreEntry& e : ParseHighScoreText(text))
        read += "[" + e.name + "|" + e.score + "]";
    EXPECT_EQ(read, "[Ann*|71200][Bob|500][no comma|][x|y, 3][|]");
    EXPECT_TRUE(ParseHighScoreText("").empty());
    EXPECT_TRUE(ParseHighScoreText("\r\n\r\n").empty());
    // A last line without its line end still counts.
    EXPECT_EQ(ParseHighScoreText("Cy, 7").size(), 1u);
    // A score beyond 32 bits is a damaged table: its label stays empty.
    long long value = 0;
    EXPECT_TRUE(ScoreValue("-2147483648", value));
    EXPECT_FALSE(ScoreValue("2147483648", value));
}

TEST_F(HighScoreFiles, AShortTableTakesNoScoreBelowAllItsEntries) {
    Window window(runtime, "frmDuopick");
    WriteFileAtomic(AppFile("\\DuopickHighScores60.Txt"), "Ann, 900\r\nBob, 800\r\n\r\n");
    CurrentScore = 100;
    ASSERT_TRUE(UpdateHighScoreTable("DuopickHighScores", window));
    std::string text;
    ASSERT_TRUE(ReadWholeFile(AppFile("\\DuopickHighScores60.Txt"), text));
    EXPECT_EQ(text, "Ann, 900\r\nBob, 800\r\n\r\n");
}

