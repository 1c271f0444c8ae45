// SPDX-License-Identifier: GPL-3.0-or-later
// Handgrid's user options: the nine hand values, the score for the bonus
// round, the overwrites, the time bonus and the count-down switch. OK stores
// each field as it checks it, also when another field fails.
#pragma once

#include "window/form.h"

namespace ch {

class frmHandgrid;

class frmHandgridCustom : public Form {
public:
    explicit frmHandgridCustom(Runtime& runtime);

private:
    frmHandgrid& game() const;
    void Form_Load();
    void cmdDefault_Click();
    void cmdOK_Click();
};

}  // namespace ch
