// SPDX-License-Identifier: GPL-3.0-or-later
// Name entry for a new place in a high score table, shown modally by
// UpdateHighScoreTable. OK stores the name in PlayerName ("Unknown User" when
// left empty) and closes; a name with a comma is refused, since the comma
// separates name and score in the table.
#pragma once

#include "window/form.h"

namespace ch {

class frmHiScoreName : public Form {
public:
    explicit frmHiScoreName(Runtime& runtime);

private:
    void Form_Load();
    void cmdOK_Click();
};

}  // namespace ch
