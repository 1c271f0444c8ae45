// SPDX-License-Identifier: GPL-3.0-or-later
// The driver's output is a contract: these tests run the real binary.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <tuple>
#include <sys/wait.h>

#include "tools/script/script.h"

using namespace ch;

namespace {
struct ScriptRun {
    std::string out;
    int status = -1;
};

// Runs `script` from a folder of its own, with `opening` as openings/start.script beside it.
ScriptRun RunScript(const std::string& script, const std::string& opening = "") {
    char folder[] = "/tmp/cardhaven-driver-test-XXXXXX";
    EXPECT_NE(mkdtemp(folder), nullptr);
    const std::filesystem::path dir(folder);
    std::filesystem::create_directory(dir / "openings");
    std::ofstream(dir / "openings" / "start.script") << opening;
    std::ofstream(dir / "test.script") << script;
    ScriptRun run;
    const std::string command = std::string(CARDHAVEN_SCRIPT_BIN) + " " + (dir / "test.script").string() + " 2>&1";
    FILE* pipe = popen(command.c_str(), "r");
    char buf[512];
    while (pipe && fgets(buf, sizeof buf, pipe)) run.out += buf;
    const int status = pipe ? pclose(pipe) : -1;
    run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    std::filesystem::remove_all(dir);
    return run;
}
}  // namespace

TEST(Parsing, QuotesKnowFourEscapesAndReferencesSplitIntoNamesAndIndices) {
    std::vector<std::string> t;
    ASSERT_TRUE(ScriptRunner::Tokenize(R"(expect  x.Caption "Time: 89" "a\"b\\c\rd\ne" "\Chord.wav" "")", t));
    EXPECT_EQ(t, (std::vector<std::string>{"expect", "x.Caption", "Time: 89", "a\"b\\c\rd\ne", "\\Chord.wav", ""}));
    EXPECT_FALSE(ScriptRunner::Tokenize(R"(print "open)", t));

    std::vector<ScriptRunner::Segment> s;
    ASSERT_TRUE(ScriptRunner::ParseReference("frmSumfall.FieldCardPicture(7).Picture", s));
    ASSERT_EQ(s.size(), 3u);
    EXPECT_EQ(s[1].name, "FieldCardPicture");
    EXPECT_EQ(s[1].index, 7);
    EXPECT_FALSE(s[2].index.has_value());
    for (const char* bad : {"frm..x", "Deck(x)", "a.b(1"}) EXPECT_FALSE(ScriptRunner::ParseReference(bad, s)) << bad;
}

TEST(Driver, PrintsValuesFormsAndFailuresInTheirFormat) {
    ScriptRun run = RunScript(
        "# a comment\n"
        "\n"
        "forms\n"
        "print frmSelect.Caption\n"
        "print frmSelect.Timer1.Interval\n"
        "print frmSelect.imgSplashImage(0).Picture\n"
        "print ImageList2.Key(67)\n"
        "print DeckDesign\n"
        "print TakingScore\n"
        "expect frmSelect.cmdClose.Caption \"&Close\"\n"
        "expect frmSelect.cmdClose.Caption Close\n"
        "advance 500\n"
        "print frmSelect.imgSplashImage(0).Picture\n");
    EXPECT_EQ(run.out,
              "frmSelect True\n"
              "Quillmark's Card Haven\n"
              "250\n"
              "1S\n"
              "Empty\n"
              "1\n"
              "False\n"
              "FAIL 11: frmSelect.cmdClose.Caption = &Close (expected Close)\n"
              "BACK\n");
    EXPECT_EQ(run.status, 1);
}

// A range or a list of controls reads each in turn, "-" for an empty value;
// a failure inside an opening names the opening's file and line.
TEST(Driver, GroupsReadInOrderAndAnOpeningsFailureNamesItsFile) {
    ScriptRun run = RunScript(
        "include openings/start.script\n"
        "expect frmSelect.imgSplashImage(0..2).Picture \"1S 13H 12C\"\n"
        "expect frmSelect.{Timer1,cmdClose}.Caption \"- &Close\"\n"
        "expect frmSelect.{cmdClose,Timer1}.Caption \"- &Close\"\n",
        "print frmSelect.imgSplashImage(1..2).Visible\n"
        "expect frmSelect.cmdClose.Caption Close\n");
    EXPECT_EQ(run.out,
              "True True\n"
              "FAIL openings/start.script:2: frmSelect.cmdClose.Caption = &Close (expected Close)\n"
              "FAIL 4: frmSelect.{cmdClose,Timer1}.Caption = &Close - (expected - &Close)\n");
    EXPECT_EQ(run.status, 1);
}

// An unknown name or a value out of bounds stops the run with status 2; quit or closing the selector
// ends it at once with status 0. Message boxes and sounds are read once; an answer by place
// presses the first or second button of any box.
TEST(Driver, RunsEndWithTheirOutputAndStatus) {
    const std::tuple<const char*, const char*, int> cases[] = {
        {"print frmSelect.cmdNothing.Caption\nprint frmSelect.Caption\n",
         "ERROR 1: unknown control or variable cmdNothing of frmSelect\n", 2},
        {"frobnicate\n", "ERROR 1: unknown command frobnicate\n", 2},
        {"print frmSelect.cmdClose.Colour\n", "ERROR 1: unknown property Colour\n", 2},
        {"print frmSelect.imgSplashImage(2..1).Picture\n",
         "ERROR 1: a range is (FIRST..LAST): frmSelect.imgSplashImage(2..1).Picture\n", 2},
        {"random 99\nadvance 4500\n", "FAIL 2: random 99 is outside 14..65\n", 1},
        {"print CurrentScore\nquit\nprint nothing\n", "0\n", 0},
        {"click frmSelect.cmdClose\nprint nothing\n", "", 0},
        {"click frmSelect.cmdLaunchBrowser\nmsgboxes\nsounds\nexpect sounds\nexpect msgbox \"anything\"\n",
         "\nFAIL 5: msgbox = <none> (expected anything)\n", 1},
        {"click frmSelect.cmdSumfall\nclick frmSumfall.cmdPlay\nanswer second\nclose frmSumfall\n"
         "print frmSumfall.Loaded\nanswer first\nclose frmSumfall\nprint frmSumfall.Loaded\n",
         "True\nFalse\n", 0},
    };
    for (const auto& [script, out, status] : cases) {
        ScriptRun run = RunScript(script);
        EXPECT_EQ(run.out, out) << script;
        EXPECT_EQ(run.status, status) << script;
    }
}
