// SPDX-License-Identifier: GPL-3.0-or-later
// The user options of Blackrush: its scoring values, the wait between rounds,
// the passes, the count-down and the speed of the 21 Counter. OK writes the
// values field by field, also when a field fails its check.
#pragma once

#include "window/form.h"

namespace ch {

class frmBlackrush;

class frmBlackrushCustomScoring : public Form {
public:
    explicit frmBlackrushCustomScoring(Runtime& runtime);

private:
    frmBlackrush& game() const;
    void Form_Load();
    void cmdDefault_Click();
    void cmdOK_Click();
};

}  // namespace ch
