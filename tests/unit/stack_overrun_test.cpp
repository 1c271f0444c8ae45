// SPDX-License-Identifier: GPL-3.0-or-later
// The stack turned far past its end, tens of thousands of times in one
// round, through the real driver: the index of the next card stops at the
// top of its 16-bit range, and every further click is the same refused turn.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace {
namespace fs = std::filesystem;

// Plays `game`, turns its stack `turns` times with the sounds off and once
// more with them on, then checks `expectations`; returns what the driver printed.
std::string TurnStack(const std::string& game, int turns, const std::string& expectations) {
    std::string pattern = (fs::temp_directory_path() / "stack-overrun-XXXXXX").string();
    const fs::path home = mkdtemp(pattern.data());
    std::string script = "click frmSelect.cmd" + game + "\nclick frm" + game + ".cmdPlay\nclick frm" + game +
                         ".mnuSounds\n";
    for (int i = 0; i < turns; ++i) script += "click frm" + game + ".CardStackPicture\n";
    script += "click frm" + game + ".mnuSounds\nclick frm" + game + ".CardStackPicture\n" + expectations;
    std::ofstream(home / "run.script") << script;
    const std::string command = std::string(CARDHAVEN_SCRIPT_BIN) + " --home " + home.string() + " " +
                                (home / "run.script").string() + " 2>&1";
    std::string out;
    FILE* pipe = popen(command.c_str(), "r");
    char buf[512];
    while (pipe && fgets(buf, sizeof buf, pipe)) out += buf;
    if (pipe) pclose(pipe);
    fs::remove_all(home);
    return out;
}
}  // namespace

TEST(StackOverrun, SpireholdAndDuopickKeepRefusingTheTurn) {
    for (const std::string game : {"Spirehold", "Duopick"}) {
        const std::string form = "frm" + game;
        EXPECT_EQ(TurnStack(game, 32800,
                            "expect sounds \"\\Click.wav\" \"\\Chord.wav\"\n"
                            "expect " + form + ".{StackIndex,CardStackPicture.Picture,lblCards} \"32767 EMPTY 0\"\n"),
                  "")
            << game;
    }
}
