// SPDX-License-Identifier: GPL-3.0-or-later
// Saves the decks of the last finished game of Sumfall, so that it can be
// replayed card for card later or by another player.
#pragma once

#include "games/sumfall/savedgame_browser.h"
#include "window/form.h"

namespace ch {

class frmSave : public Form {
public:
    explicit frmSave(Runtime& runtime);

private:
    void Form_Load();
    void cmdOK_Click();
    void cmdCancel_Click();

    sumfall::SavedGameBrowser browser_;
};

// Open: the same lists; OK loads the game and starts its replay.
class frmOpen : public Form {
public:
    explicit frmOpen(Runtime& runtime);

private:
    void Form_Load();
    void cmdOK_Click();
    void cmdCancel_Click();

    sumfall::SavedGameBrowser browser_;
};

}  // namespace ch
