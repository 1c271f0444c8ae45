// SPDX-License-Identifier: GPL-3.0-or-later
// The Handgrid window run in the headless loop with a recorder of every
// repaint: what the player sees while a round change holds the thread, and a
// settings file whose overwrites outnumber the deck.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "games/games.h"
#include "suite/cards.h"
#include "suite/suite.h"
#include "tools/script/script.h"
#include "window/headless.h"
#include "window/runtime.h"

using namespace ch;
namespace fs = std::filesystem;

namespace {

// At each repaint: the scoring label, lblMessage and lblScoring as shown
// ("" when hidden), joined by "|"; repeats left out.
class RepaintRecorder : public HeadlessPlatform {
public:
    std::vector<std::string> seen;
    void present(Runtime& runtime) override {
        HeadlessPlatform::present(runtime);
        Form* game = runtime.loaded("frmHandgrid");
        if (!game) return;
        std::string line;
        for (const char* name : {"ScoringLabel", "lblMessage", "lblScoring"}) {
            const Control& label = game->c(name);
            line += std::string(line.empty() ? "" : "|") + (label.visible() ? label.caption() : "");
        }
        if (seen.empty() || seen.back() != line) seen.push_back(line);
    }
};

struct GameRun {
    std::string out;
    int failures = 0;
    std::vector<std::string> seen;
    std::string settings;  // Handgrid.Ini as the run left it
};

GameRun RunHandgrid(const std::string& script, const std::string& settings = "") {
    std::string pattern = (fs::temp_directory_path() / "handgrid-test-XXXXXX").string();
    EXPECT_NE(mkdtemp(pattern.data()), nullptr);
    if (!settings.empty()) std::ofstream(fs::path(pattern) / "Handgrid.Ini", std::ios::binary) << settings;
    GameRun run;
    {
        RepaintRecorder platform;
        Runtime runtime(platform);
        std::istringstream in("click frmSelect.cmdHandgrid\n" + script);
        std::ostringstream out;
        ScriptRunner runner(runtime, platform, in, out);
        platform.setSource([&runner] { return runner.next(); });
        platform.setFailureReporter([&runner](const std::string& text) { runner.fail(text); });
        randomness::SetFailureReporter([&runner](const std::string& text) { runner.fail(text); });
        try {
            RegisterGameForms(runtime);
            StartSuite(runtime, {pattern, "", ""});
            runtime.run();
        } catch (const StopRun&) {
        } catch (const ScriptError&) {
            run.failures = -1;
        }
        randomness::SetFailureReporter(nullptr);
        if (run.failures == 0) run.failures = runner.failures();
        run.out = out.str();
        run.seen = platform.seen;
    }
    std::ifstream file(fs::path(pattern) / "Handgrid.Ini", std::ios::binary);
    run.settings.assign(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    fs::remove_all(pattern);
    return run;
}

// The whole deck: these cards first, the rest in the order of a new deck.
std::string Stack(const std::vector<std::string>& head) {
    std::string line = "stack";
    for (const std::string& card : head) line += " " + card;
    for (const char suit : {'S', 'H', 'C', 'D'})
        for (int rank = 1; rank <= 13; ++rank) {
            const std::string card = std::to_string(rank) + suit;
            if (std::find(head.begin(), head.end(), card) == head.end()) line += " " + card;
        }
    return line + "\n";
}

std::string Clicks(int from, int to, int cell = -1) {
    std::string text;
    for (int i = from; i <= to; ++i) text += "click frmHandgrid.PlayCards(" + std::to_string(cell < 0 ? i : cell) + ")\n";
    return text;
}

// Ten lines of five different ranks, neither straight nor flush.
const std::vector<std::string> kNothingGrid = {"5D", "12D", "2C", "6C", "8H", "9D", "1D", "6H", "5S",
                                               "13D", "13S", "5C", "7H", "1C", "12S", "3H", "11C", "8C",
                                               "7S", "10H", "11D", "13H", "3D", "10C", "2S"};

bool Saw(const GameRun& run, const std::string& line) {
    return std::find(run.seen.begin(), run.seen.end(), line) != run.seen.end();
}

}  // namespace

TEST(HandgridWindow, AGridOfNothingStillShowsItsSumAndCountsItsSeconds) {
    const GameRun run = RunHandgrid(Stack(kNothingGrid) + "click frmHandgrid.cmdPlay\nadvance 33000\n" + Clicks(0, 24) +
                                "expect CurrentScore 0\nexpect frmHandgrid.CurrentRound 2\n");
    EXPECT_EQ(run.failures, 0) << run.out;
    // The figure stands over the amount of the count, then the next round is
    // announced; the scoring label ends red after its ten blinks.
    EXPECT_TRUE(Saw(run, "0 X 42 =|Speed Bonus!|0")) << ::testing::PrintToString(run.seen);
    EXPECT_TRUE(Saw(run, "Prepare for round  2!||"));
    const auto sum = std::find(run.seen.begin(), run.seen.end(), "0 X 42 =|Speed Bonus!|0");
    const auto announced = std::find(run.seen.begin(), run.seen.end(), "Prepare for round  2!||");
    EXPECT_LT(sum, announced);
}

TEST(HandgridWindow, TimeRunningOutShowsTimesUpAndNoSum) {
    const GameRun run = RunHandgrid(Stack(kNothingGrid) + "click frmHandgrid.cmdPlay\n" + Clicks(0, 3) + "advance 75000\n");
    EXPECT_EQ(run.failures, 0) << run.out;
    EXPECT_TRUE(Saw(run, "Times Up!||"));
    for (const std::string& line : run.seen) EXPECT_EQ(line.find(" X "), std::string::npos) << line;
}

TEST(HandgridWindow, OverwritesBeyondTheDeckRunItOutWithoutACrash) {
    // 24 cells filled, then overwrites on cell 0: the 51st placement takes the
    // last card, the 52nd finds no card to turn up.
    std::string script = Stack(kNothingGrid) + "expect frmHandgrid.OverWritesAllowed 40\nclick frmHandgrid.cmdPlay\n" +
                         Clicks(0, 23) + Clicks(1, 27, 0) +
                         "expect frmHandgrid.CardsRemaining 0\n"
                         "expect frmHandgrid.lblCards \"Cards remaining: 0\"\n"
                         "expect frmHandgrid.HoleCount 1\n"
                         "sounds\n"
                         "click frmHandgrid.PlayCards(0)\n"
                         "expect sounds \"\\Chord.wav\"\n"
                         "expect frmHandgrid.HoleCount 0\n"
                         "expect frmHandgrid.HoleCard EMPTY\n"
                         "expect frmHandgrid.CardStackPicture EMPTY\n"
                         "expect frmHandgrid.lblCards \"Cards remaining: 0\"\n"
                         // The empty cell refuses every card now.
                         "click frmHandgrid.PlayCards(24)\n"
                         "expect sounds \"\\Chord.wav\"\n"
                         "expect frmHandgrid.PlayedCards(24) \"\"\n"
                         // An overwrite takes the empty hole and empties the cell.
                         "click frmHandgrid.PlayCards(1)\n"
                         "expect frmHandgrid.PlayedCards(1) \"\"\n"
                         "expect frmHandgrid.HoleCount -1\n"
                         "click frmHandgrid.PlayCards(2)\n"
                         "expect frmHandgrid.PlayedCards(2) \"\"\n"
                         "expect frmHandgrid.HoleCount -2\n"
                         "click frmHandgrid.PlayCards(2)\n"
                         "expect sounds \"\\Chord.wav\" \"\\Chord.wav\" \"\\Chord.wav\"\n"
                         "expect frmHandgrid.OverWritesUsed 30\n"
                         // The clock still ends the round, and the next deals anew.
                         "advance 75000\n"
                         "expect frmHandgrid.CurrentRound 2\n"
                         "expect frmHandgrid.HoleCount 1\n"
                         "expect frmHandgrid.CardsRemaining 51\n";
    const GameRun run = RunHandgrid(script, "[Over Writes]\r\n40\r\n\r\n");
    EXPECT_EQ(run.failures, 0) << run.out;
}

TEST(HandgridWindow, ADamagedSettingsFileChangesNothingItCannotRead) {
    const GameRun run = RunHandgrid(
        "expect frmHandgrid.OverWritesAllowed 3\nexpect frmHandgrid.BonusScore 100000\nexpect TimeLimit 75\n"
        "expect frmHandgrid.HandScores(1) 50\n",
        "[Over Writes]\r\n99999\r\n[Bonus Score]\r\n99999999999\r\n[Time]\r\n7\r\n[Pair Score]\r\n");
    EXPECT_EQ(run.failures, 0) << run.out;
}

TEST(HandgridWindow, TheSettingsFileHoldsEveryValueInItsOrder) {
    const GameRun run = RunHandgrid(
        "click frmHandgrid.mnu45\nclick frmHandgrid.mnuNight\nclick frmHandgrid.mnuCustom\n"
        "type frmHandgridCustom.txtStraightScore 91\ntype frmHandgridCustom.txtOverWrites 5\n"
        "click frmHandgridCustom.cmdOK\nanswer Yes\nclose frmHandgrid\n");
    EXPECT_EQ(run.failures, 0) << run.out;
    EXPECT_EQ(run.settings,
              "[Time]\r\n45\r\n\r\n[Play Sounds]\r\nTrue\r\n\r\n[Play Music]\r\nFalse\r\n\r\n"
              "[Count Down Score]\r\nTrue\r\n\r\n[Deck]\r\n3\r\n\r\n[Time Bonus]\r\n1\r\n\r\n"
              "[Bonus Score]\r\n100000\r\n\r\n[Pair Score]\r\n50\r\n\r\n[Two Pair Score]\r\n70\r\n\r\n"
              "[Trips Score]\r\n80\r\n\r\n[Flush Score]\r\n100\r\n\r\n[Full House Score]\r\n200\r\n\r\n"
              "[Straight Score]\r\n91\r\n\r\n[Four Score]\r\n300\r\n\r\n[Straight Flush Score]\r\n400\r\n\r\n"
              "[Royal Flush Score]\r\n500\r\n\r\n[Over Writes]\r\n5\r\n\r\n[State]\r\n0\r\n\r\n"
              "[Width]\r\n9570\r\n\r\n[Height]\r\n7200\r\n\r\n");
}
