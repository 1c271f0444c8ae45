// SPDX-License-Identifier: GPL-3.0-or-later
// The driver's output is a contract: these tests run the real binary.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

#include "tools/script/script.h"

using namespace ch;

namespace {
struct ScriptRun {
    std::string out;
    int status = -1;
};

ScriptRun RunScript(const std::string& script) {
    char path[] = "/tmp/cardhaven-driver-test-XXXXXX";
    int fd = mkstemp(path);
    EXPECT_GE(fd, 0);
    ::close(fd);
    std::ofstream(path) << script;
    ScriptRun run;
    std::string command = std::string(CARDHAVEN_SCRIPT_BIN) + " " + path + " 2>&1";
    FILE* pipe = popen(command.c_str(), "r");
    char buf[512];
    while (pipe && fgets(buf, sizeof buf, pipe)) run.out += buf;
    int status = pipe ? pclose(pipe) : -1;
    run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    std::remove(path);
    return run;
}
}  // namespace

TEST(Tokens, QuotesHoldBlanksAndKnowFourEscapes) {
    std::vector<std::string> t;
    ASSERT_TRUE(ScriptRunner::Tokenize(R"(expect  x.Caption "Time: 89" "a\"b\\c\rd\ne" "\Chord.wav")", t));
    ASSERT_EQ(t.size(), 5u);
    EXPECT_EQ(t[2], "Time: 89");
    EXPECT_EQ(t[3], "a\"b\\c\rd\ne");
    EXPECT_EQ(t[4], "\\Chord.wav");
    EXPECT_TRUE(ScriptRunner::Tokenize(R"(expect x "")", t));
    EXPECT_EQ(t.back(), "");
    EXPECT_FALSE(ScriptRunner::Tokenize(R"(print "open)", t));
}

TEST(References, SplitIntoNamesAndIndices) {
    std::vector<ScriptRunner::Segment> s;
    ASSERT_TRUE(ScriptRunner::ParseReference("frmSumfall.FieldCardPicture(7).Picture", s));
    ASSERT_EQ(s.size(), 3u);
    EXPECT_EQ(s[1].name, "FieldCardPicture");
    EXPECT_EQ(s[1].index, 7);
    EXPECT_FALSE(s[2].index.has_value());
    ASSERT_TRUE(ScriptRunner::ParseReference("Deck(1)", s));
    EXPECT_EQ(s[0].index, 1);
    EXPECT_FALSE(ScriptRunner::ParseReference("frm..x", s));
    EXPECT_FALSE(ScriptRunner::ParseReference("Deck(x)", s));
    EXPECT_FALSE(ScriptRunner::ParseReference("a.b(1", s));
}

TEST(Driver, PrintsValuesFormsAndFailuresInTheirFormat) {
    ScriptRun run = RunScript(
        "# a comment\n"
        "\n"
        "forms\n"
        "print frmSelect.Caption\n"
        "print frmSelect.Visible\n"
        "print frmSelect.Timer1.Interval\n"
        "print frmSelect.imgSplashImage(0).Picture\n"
        "print ImageList2.Key(67)\n"
        "print DeckDesign\n"
        "print TakingScore\n"
        "expect frmSelect.cmdClose.Caption \"&Close\"\n"
        "expect frmSelect.cmdClose.Caption Close\n");
    EXPECT_EQ(run.out,
              "frmSelect True\n"
              "Quillmark's Card Haven\n"
              "True\n"
              "250\n"
              "1S\n"
              "Empty\n"
              "1\n"
              "False\n"
              "FAIL 12: frmSelect.cmdClose.Caption = &Close (expected Close)\n");
    EXPECT_EQ(run.status, 1);
}

TEST(Driver, PicturesPrintTheirKeyNowOrTheirNumber) {
    ScriptRun run = RunScript(
        "advance 500\n"
        "print frmSelect.imgSplashImage(0).Picture\n"
        "print frmSelect.imgSplashImage(0).BorderStyle\n");
    EXPECT_EQ(run.out, "BACK\n0\n");
    EXPECT_EQ(run.status, 0);
}

TEST(Driver, MessageBoxesAndSoundsAreReadOnce) {
    ScriptRun run = RunScript(
        "click frmSelect.cmdLaunchBrowser\n"
        "msgboxes\n"
        "sounds\n"
        "expect sounds\n"
        "expect msgbox \"anything\"\n");
    EXPECT_EQ(run.out, "\nFAIL 5: msgbox = <none> (expected anything)\n");
    EXPECT_EQ(run.status, 1);
}

TEST(Driver, UnknownNamesAreErrorsThatStopTheRun) {
    ScriptRun run = RunScript("print frmSelect.cmdNothing.Caption\nprint frmSelect.Caption\n");
    EXPECT_EQ(run.out, "ERROR 1: unknown control or variable cmdNothing of frmSelect\n");
    EXPECT_EQ(run.status, 2);
    run = RunScript("frobnicate\n");
    EXPECT_EQ(run.out, "ERROR 1: unknown command frobnicate\n");
    EXPECT_EQ(run.status, 2);
    run = RunScript("print frmSelect.cmdClose.Colour\n");
    EXPECT_EQ(run.out, "ERROR 1: unknown property Colour\n");
}

TEST(Driver, QuitStopsAtOnce) {
    ScriptRun run = RunScript("print CurrentScore\nquit\nprint nothing\n");
    EXPECT_EQ(run.out, "0\n");
    EXPECT_EQ(run.status, 0);
}

TEST(Driver, ClosingTheSelectorEndsTheRun) {
    ScriptRun run = RunScript("click frmSelect.cmdClose\nprint nothing\n");
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.status, 0);
}

TEST(Driver, RandomValuesOutOfBoundsFail) {
    ScriptRun run = RunScript("random 99\nadvance 4500\n");
    EXPECT_EQ(run.out, "FAIL 2: random 99 is outside 14..65\n");
    EXPECT_EQ(run.status, 1);
}

TEST(Driver, AnswersByPlacePressTheFirstOrSecondButtonOfAnyBox) {
    ScriptRun run = RunScript(
        "click frmSelect.cmdSumfall\n"
        "click frmSumfall.cmdPlay\n"
        "answer second\n"
        "close frmSumfall\n"
        "print frmSumfall.Loaded\n"
        "answer first\n"
        "close frmSumfall\n"
        "print frmSumfall.Loaded\n");
    EXPECT_EQ(run.out, "True\nFalse\n");
    EXPECT_EQ(run.status, 0) << run.out;
}
