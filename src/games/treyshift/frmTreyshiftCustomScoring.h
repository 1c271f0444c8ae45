// SPDX-License-Identifier: GPL-3.0-or-later
// Treyshift's custom scoring dialog: the seven scoring values and the
// count-down switch, written straight into the game's values field by field.
#pragma once

#include "window/form.h"

namespace ch {

class frmTreyshift;

class frmTreyshiftCustom : public Form {
public:
    explicit frmTreyshiftCustom(Runtime& runtime);

private:
    frmTreyshift& game() const;
    void Form_Load();
    void cmdDefault_Click();
    void cmdOK_Click();
};

}  // namespace ch
