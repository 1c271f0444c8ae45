// SPDX-License-Identifier: GPL-3.0-or-later
// Edits Sumfall's four scoring values for as long as its window stays open.
#pragma once

#include "window/form.h"

namespace ch {

class frmSumfall;

class frmSumfallCustomScoring : public Form {
public:
    explicit frmSumfallCustomScoring(Runtime& runtime);

private:
    frmSumfall& game() const;
    void Form_Load();
    void cmdDefault_Click();
    void cmdOK_Click();
};

}  // namespace ch
