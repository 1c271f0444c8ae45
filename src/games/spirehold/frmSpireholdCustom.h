// SPDX-License-Identifier: GPL-3.0-or-later
// Spirehold's custom scoring dialog: the five scoring values and the count
// down switch. OK writes each value into the game window as it checks it,
// also when a later one fails.
#pragma once

#include "window/form.h"

namespace ch {

class frmSpirehold;

class frmSpireholdCustom : public Form {
public:
    explicit frmSpireholdCustom(Runtime& runtime);

private:
    frmSpirehold& game() const;
    void Form_Load();
    void cmdDefault_Click();
    void cmdOK_Click();
};

}  // namespace ch
