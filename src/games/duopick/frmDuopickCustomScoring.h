// SPDX-License-Identifier: GPL-3.0-or-later
// The User Options dialog of Duopick: the five scoring values and the
// count-down switch. It writes the game's values box by box on OK, also
// when a box fails its check; the settings file keeps them when the game
// window closes.
#pragma once

#include "window/form.h"

namespace ch {

class frmDuopick;

class frmDuopickCustomScoring : public Form {
public:
    explicit frmDuopickCustomScoring(Runtime& runtime);

private:
    frmDuopick& game() const;
    void Form_Load();
    void cmdDefault_Click();
    void cmdOK_Click();
};

}  // namespace ch
