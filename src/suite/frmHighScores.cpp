// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/frmHighScores.h"

#include <vector>

#include "suite/gamewindow.h"
#include "suite/common.h"
#include "suite/files.h"
#include "suite/gameinfo.h"
#include "suite/highscores.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

namespace {
using K = ControlKind;

constexpr int kRowTop = 360;
constexpr int kRowHeight = 300;

std::vector<ControlSpec> Layout() {
    std::vector<ControlSpec> specs;
    for (int i = 0; i < 20; ++i) {
        const int row = i / 2;
        const bool name = i % 2 == 0;
        specs.push_back({K::Label, "ScoreList", i, name ? 360 : 3360, kRowTop + row * kRowHeight, name ? 2880 : 1680,
                         255, ""});
    }
    specs.push_back({K::Label, "lblHiScoreInfo", -1, 360, 3480, 4680, 495, ""});
    specs.push_back({K::Button, "cmdDone", -1, 720, 4080, 1560, 375, "&Done"});
    specs.push_back({K::Button, "cmdClear", -1, 3120, 4080, 1560, 375, "&Clear Scores"});
    return specs;
}
}  // namespace

frmHighScores::frmHighScores(Runtime& runtime) : Form(runtime, "frmHighScores") {
    setSize(5520, 5040);
    const std::vector<ControlSpec> layout = Layout();
    add(layout);
    for (int i = 1; i < 20; i += 2) c("ScoreList", i).setAlignment(Align::Right);
    c("lblHiScoreInfo").setAlignment(Align::Center);
    c("cmdDone").setDefault(true);
    c("cmdDone").setCancel(true);
    on(Ev::Load, [this](EventArgs&) { Form_Load(); });
    on("cmdDone", Ev::Click, [this](EventArgs&) { cmdDone_Click(); });
    on("cmdClear", Ev::Click, [this](EventArgs&) { cmdClear_Click(); });
}

void frmHighScores::Form_Load() {
    CentreOnScreen(*this);
    setCaption(AppTitle + " Hall of Fame (" + NumText(TimeLimit) + " secs)");
    ReadTableOfTitle();
    Control& info = c("lblHiScoreInfo");
    const GameInfo* game = GameByTitle(AppTitle);
    if (game && !game->cardGoals.empty())
        info.setCaption("High Scores for Card Goal of " + NumText(CardGoal) + "\r\n* denotes customized scoring was used");
    else
        info.setCaption("* denotes customized scoring was used");
    info.setLeft((width() - info.width()) / 2);
}

// The card goal, where the game keeps one, is part of the file name
// (HighScoreFileName).
void frmHighScores::ReadTableOfTitle() {
    if (const GameInfo* game = GameByTitle(AppTitle)) ReadHighScoreTable(game->tableName);
}

void frmHighScores::ReadHighScoreTable(const std::string& tableName) {
    std::string text;
    if (!ReadWholeFile(HighScoreFileName(tableName), text)) return;
    const std::vector<ScoreEntry> entries = ParseHighScoreText(text, 10);
    for (size_t i = 0; i < entries.size() && i < 10; ++i) {
        const int k = static_cast<int>(i) * 2;
        c("ScoreList", k).setCaption(entries[i].name);
        long long score = 0;
        c("ScoreList", k + 1).setCaption(ScoreValue(entries[i].score, score) ? FormatScore(score) : entries[i].score);
    }
}

void frmHighScores::cmdDone_Click() { runtime().unload(*this); }

// Clears the table of the current time limit (and card goal) only.
void frmHighScores::cmdClear_Click() {
    if (MsgBox("This will clear all High Scores. Are You Sure?", MsgButtons::YesNo, MsgIcon::Question, AppTitle) !=
        MsgAnswer::Yes)
        return;
    const GameInfo* game = GameByTitle(AppTitle);
    if (!game) return;
    CreateHighScoreFile(game->tableName, *this, game->defaultScore);
    ReadTableOfTitle();
    if (Form* window = runtime().loaded(game->form)) ShowHighScore(game->tableName, *window, game->defaultScore);
}

}  // namespace ch
