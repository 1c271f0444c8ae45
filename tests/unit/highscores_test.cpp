// SPDX-License-Identifier: GPL-3.0-or-later
// High score tables: file names, the reader on short, empty and damaged
// files, and the high score label that a game window shows from them.
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

    std::string Read(const std::string& name) {
        std::string text;
        return ReadWholeFile(AppFile(name), text) ? text : "<missing>";
    }

    HeadlessPlatform platform;
    Runtime runtime{platform};
};

class Window : public Form {
public:
    Window(Runtime& rt, const std::string& name) : Form(rt, name) {
        add({ControlKind::Label, "lblHighScore", -1, 0, 0, 100, 100});
    }
};

}  // namespace

TEST_F(HighScoreFiles, NamesCarryTheLimitAndSumfallsGoal) {
    EXPECT_EQ(HighScoreFileName("SpireholdHiScores"), AppPath + "/SpireholdHiScores60.Txt");
    AppTitle = "Sumfall!";
    TimeLimit = 90;
    CardGoal = 11;
    EXPECT_EQ(HighScoreFileName("HiScores"), AppPath + "/HiScores90_11.Txt");
    // Fivestack shares the table name and is kept apart by the goal part.
    AppTitle = "Fivestack!";
    EXPECT_EQ(HighScoreFileName("HiScores"), AppPath + "/HiScores90.Txt");
}

// Every game is found by its title and its window, and two games never share
// a table file: Sumfall and Fivestack share a table name, kept apart by
// Sumfall's card goal.
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
}

TEST(HighScoreText, ReaderSplitsAtTheFirstCommaAndSkipsBlankLines) {
    auto e = ParseHighScoreText("Ann*, 71200\r\n\r\n  Bob ,  500  \nno comma\r\nx, y, 3\r\n,\r\n\r\n");
    ASSERT_EQ(e.size(), 5u);
    EXPECT_EQ(e[0].name, "Ann*");
    EXPECT_EQ(e[0].score, "71200");
    EXPECT_EQ(e[1].name, "Bob");
    EXPECT_EQ(e[1].score, "500");
    EXPECT_EQ(e[2].name, "no comma");
    EXPECT_EQ(e[2].score, "");
    EXPECT_EQ(e[3].name, "x");
    EXPECT_EQ(e[3].score, "y, 3");
    EXPECT_EQ(e[4].name, "");
    EXPECT_TRUE(ParseHighScoreText("").empty());
    EXPECT_TRUE(ParseHighScoreText("\r\n\r\n").empty());
    // A last line without its line end still counts.
    EXPECT_EQ(ParseHighScoreText("Cy, 7").size(), 1u);
}

TEST(HighScoreText, ANewTableIsTenDefaultLines) {
    const std::string text = DefaultHighScoreText("30000");
    auto e = ParseHighScoreText(text);
    ASSERT_EQ(e.size(), 10u);
    for (const ScoreEntry& entry : e) {
        EXPECT_EQ(entry.name, "Quillmark");
        EXPECT_EQ(entry.score, "30000");
    }
    EXPECT_EQ(text.substr(0, 18), "Quillmark, 30000\r\n");
}

TEST_F(HighScoreFiles, ShowHighScoreCreatesAMissingTable) {
    Window window(runtime, "frmDuopick");
    ASSERT_TRUE(ShowHighScore("DuopickHighScores", window, "30000"));
    EXPECT_EQ(window.c("lblHighScore").caption(), "High Score: 30,000");
    EXPECT_EQ(Read("\\DuopickHighScores60.Txt"), DefaultHighScoreText("30000") + "\r\n");
}

TEST_F(HighScoreFiles, SpireholdSaysCurrentHighScore) {
    Window window(runtime, "frmSpirehold");
    WriteFileAtomic(AppFile("\\SpireholdHiScores60.Txt"), "Zed, 1234567\r\n");
    ASSERT_TRUE(ShowHighScore("SpireholdHiScores", window, "30000"));
    EXPECT_EQ(window.c("lblHighScore").caption(), "Current High Score: 1,234,567");
}

TEST_F(HighScoreFiles, ShortEmptyAndDamagedTablesShowWithoutLoss) {
    Window window(runtime, "frmDuopick");
    const std::string damaged = "garbage without comma\r\nBob, lots\r\n";
    for (const std::string& text : {std::string(""), std::string("\r\n"), damaged}) {
        WriteFileAtomic(AppFile("\\DuopickHighScores60.Txt"), text);
        ASSERT_TRUE(ShowHighScore("DuopickHighScores", window, "30000"));
        EXPECT_EQ(window.c("lblHighScore").caption(), "High Score: 0");
        // Looking at a table never rewrites it.
        EXPECT_EQ(Read("\\DuopickHighScores60.Txt"), text);
    }
}

TEST_F(HighScoreFiles, AScoreBeyondAnyScoreIsADamagedTable) {
    Window window(runtime, "frmDuopick");
    const std::string damaged = "Bob, 99999999999999999999999\r\n";
    WriteFileAtomic(AppFile("\\DuopickHighScores60.Txt"), damaged);
    EXPECT_FALSE(ShowHighScore("DuopickHighScores", window, "30000"));
    EXPECT_EQ(Read("\\DuopickHighScores60.Txt"), damaged);
    long long value = 0;
    EXPECT_TRUE(ScoreValue("-2147483648", value));
    EXPECT_EQ(value, -2147483648LL);
    EXPECT_FALSE(ScoreValue("2147483648", value));
}

TEST_F(HighScoreFiles, UpdateWithoutAPlaceKeepsTenLinesAndDropsAnEleventh) {
    Window window(runtime, "frmDuopick");
    std::string eleven;
    for (int i = 11; i >= 1; --i) eleven += "P" + std::to_string(i) + ", " + std::to_string(i * 100) + "\r\n";
    WriteFileAtomic(AppFile("\\DuopickHighScores60.Txt"), eleven + "\r\n");
    CurrentScore = 0;
    ASSERT_TRUE(UpdateHighScoreTable("DuopickHighScores", window));
    auto e = ParseHighScoreText(Read("\\DuopickHighScores60.Txt"));
    ASSERT_EQ(e.size(), 10u);
    EXPECT_EQ(e.back().name, "P2");
}

TEST_F(HighScoreFiles, AShortTableTakesNoScoreBelowAllItsEntries) {
    Window window(runtime, "frmDuopick");
    WriteFileAtomic(AppFile("\\DuopickHighScores60.Txt"), "Ann, 900\r\nBob, 800\r\n\r\n");
    CurrentScore = 100;
    ASSERT_TRUE(UpdateHighScoreTable("DuopickHighScores", window));
    EXPECT_EQ(Read("\\DuopickHighScores60.Txt"), "Ann, 900\r\nBob, 800\r\n\r\n");
}

TEST_F(HighScoreFiles, UpdateOfAMissingTableFailsAndMakesNothing) {
    Window window(runtime, "frmDuopick");
    EXPECT_FALSE(UpdateHighScoreTable("DuopickHighScores", window));
    EXPECT_EQ(Read("\\DuopickHighScores60.Txt"), "<missing>");
}
