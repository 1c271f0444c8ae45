// SPDX-License-Identifier: GPL-3.0-or-later
// The Hall of Fame: the ten places of the table of the running game
// (found by AppTitle) at the current time limit, and card goal where the
// game keeps a table per goal.
// Shown modally by the View High Scores entry and after a new place.
#pragma once

#include <string>

#include "window/form.h"

namespace ch {

class frmHighScores : public Form {
public:
    explicit frmHighScores(Runtime& runtime);

    // Fills ScoreList(0..19): names at even places, scores at odd ones.
    void ReadHighScoreTable(const std::string& tableName);

private:
    void Form_Load();
    void cmdDone_Click();
    void cmdClear_Click();
    void ReadTableOfTitle();
};

}  // namespace ch
