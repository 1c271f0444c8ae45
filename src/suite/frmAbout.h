// SPDX-License-Identifier: GPL-3.0-or-later
// The About window: who makes and supports the games, and how long this game
// window has been open. Opened modally through ShowModalPaused(*this, "frmAbout").
#pragma once

#include "window/form.h"

namespace ch {

class frmAbout : public Form {
public:
    explicit frmAbout(Runtime& runtime);

private:
    void Form_Load();
    void cmdCoolDude_Click();
};

}  // namespace ch
