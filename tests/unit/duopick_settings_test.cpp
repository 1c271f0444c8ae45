// SPDX-License-Identifier: GPL-3.0-or-later
// Duopick's settings file through the real driver: what a closing window
// writes, what the next window reads back, and a damaged file.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace {
namespace fs = std::filesystem;

struct Home {
    fs::path dir;
    Home() {
        std::string pattern = (fs::temp_directory_path() / "duopick-settings-XXXXXX").string();
        dir = mkdtemp(pattern.data());
    }
    ~Home() { fs::remove_all(dir); }
    fs::path ini() const { return dir / "Duopick.Ini"; }
};

// Runs a script in the home folder; returns what the driver printed.
std::string RunIn(const Home& home, const std::string& script) {
    const fs::path path = home.dir / "run.script";
    std::ofstream(path) << script;
    const std::string command =
        std::string(CARDHAVEN_SCRIPT_BIN) + " --home " + home.dir.string() + " " + path.string() + " 2>&1";
    std::string out;
    FILE* pipe = popen(command.c_str(), "r");
    char buf[512];
    while (pipe && fgets(buf, sizeof buf, pipe)) out += buf;
    if (pipe) pclose(pipe);
    return out;
}

std::string Read(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
}
}  // namespace

TEST(DuopickSettings, WrittenOnCloseInItsOrderAndReadBackByTheNextWindow) {
    Home home;
    EXPECT_EQ(RunIn(home,
                  "click frmSelect.cmdDuopick\n"
                  "click frmDuopick.mnu60\n"
                  "click frmDuopick.mnuNight\n"
                  "click frmDuopick.mnuSounds\n"
                  "click frmDuopick.mnuCustom\n"
                  "type frmDuopickCustomScoring.txtPairsBonus 2000\n"
                  "check frmDuopickCustomScoring.chkCountDown 0\n"
                  "click frmDuopickCustomScoring.cmdOK\n"
                  "windowstate frmDuopick 2\n"
                  "answer Yes\n"
                  "close frmDuopick\n"
                  "expect frmSelect.Visible True\n"),
              "");
    // A maximised window writes its design size; music is written twice.
    EXPECT_EQ(Read(home.ini()),
              "[Play Music]\r\nFalse\r\n\r\n[Time]\r\n60\r\n\r\n[Play Sounds]\r\nFalse\r\n\r\n"
              "[Play Music]\r\nFalse\r\n\r\n[Count Down Score]\r\nFalse\r\n\r\n[Pairs Bonus]\r\n2000\r\n\r\n"
              "[Runs Bonus]\r\n500\r\n\r\n[Time Bonus]\r\n100\r\n\r\n[Bonus Score]\r\n80000\r\n\r\n"
              "[Completion Bonus]\r\n10000\r\n\r\n[State]\r\n2\r\n\r\n[Width]\r\n9570\r\n\r\n"
              "[Height]\r\n7200\r\n\r\n[Deck]\r\n3\r\n\r\n");
    EXPECT_EQ(RunIn(home,
                  "click frmSelect.cmdDuopick\n"
                  "expect TimeLimit 60\n"
                  "expect frmDuopick.mnu60.Checked True\n"
                  "expect frmDuopick.mnu45.Checked False\n"
                  "expect frmDuopick.mnuNight.Checked True\n"
                  "expect frmDuopick.mnuSounds.Checked False\n"
                  "expect PlaySounds False\n"
                  "expect CountDownScore False\n"
                  "expect frmDuopick.PairsBonus 2000\n"
                  "expect frmDuopick.lblPairs.Caption \"Pairs x 2,000\"\n"
                  "expect CustomScoringInUse True\n"
                  "expect frmDuopick.WindowState 2\n"
                  "expect frmDuopick.lblHighScore.Caption \"High Score: 30,000\"\n"),
              "");
    EXPECT_TRUE(fs::exists(home.dir / "DuopickHighScores60.Txt"));
}

TEST(DuopickSettings, AFirstWindowWritesTheDefaults) {
    Home home;
    EXPECT_EQ(RunIn(home, "click frmSelect.cmdDuopick\nexpect TimeLimit 45\nexpect CustomScoringInUse False\n"), "");
    const std::string text = Read(home.ini());
    EXPECT_EQ(text.rfind("[Play Music]\r\nFalse\r\n\r\n[Time]\r\n45\r\n\r\n", 0), 0u);
    EXPECT_NE(text.find("[Pairs Bonus]\r\n3000\r\n"), std::string::npos);
}

TEST(DuopickSettings, ADamagedFileChangesOnlyWhatItCanAndNeverStopsTheWindow) {
    Home home;
    std::ofstream(home.ini(), std::ios::binary)
        << "[Time]\r\n75x\r\n\r\n[Pairs Bonus]\r\n99999999999\r\n\r\ngarbage\r\n[Runs Bonus]\r\nabc\r\n"
           "[Deck]\r\n9\r\n[Completion Bonus]\r\n-5\r\n[Bonus Score]";
    EXPECT_EQ(RunIn(home,
                  "click frmSelect.cmdDuopick\n"
                  "expect frmDuopick.Visible True\n"
                  "expect TimeLimit 45\n"
                  "expect frmDuopick.mnu45.Checked True\n"
                  "expect frmDuopick.PairsBonus 3000\n"
                  "expect frmDuopick.RunsBonus 0\n"
                  "expect frmDuopick.CompletionBonus -5\n"
                  "expect frmDuopick.BonusScore 80000\n"
                  "expect frmDuopick.lblRuns.Caption \"Runs x 0\"\n"
                  "expect CustomScoringInUse True\n"),
              "");
}
