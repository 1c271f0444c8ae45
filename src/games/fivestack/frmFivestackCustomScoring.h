// SPDX-License-Identifier: GPL-3.0-or-later
// Fivestack's User Options: the bonus round score, the Time Bonus range, the
// wait between rounds, the cards a player may pass and the count-down. The
// values go to the game window field by field, also on an OK that fails;
// they reach the settings file when the window closes.
#pragma once

#include "window/form.h"

namespace ch {

class frmFivestack;

class frmFivestackCustomScoring : public Form {
public:
    explicit frmFivestackCustomScoring(Runtime& runtime);

private:
    frmFivestack& game() const;
    void Form_Load();
    void cmdDefault_Click();
    void cmdOK_Click();
};

}  // namespace ch
