// SPDX-License-Identifier: GPL-3.0-or-later
// The check of one box of a custom scoring dialog on OK.
#include "suite/scoringbox.h"

#include "suite/common.h"
#include "window/basic.h"
#include "window/form.h"
#include "window/runtime.h"

namespace ch {

ScoringCheck CheckScoringBox(Form& dialog, const ScoringBoxRule& rule, bool& failed) {
    Control& box = dialog.c(rule.box);
    const double v = Val(box.text());
    ScoringCheck check;
    if (v < static_cast<double>(rule.lowest) || v > static_cast<double>(rule.highest)) {
        const bool low = v < static_cast<double>(rule.lowest);
        check.outcome = low ? ScoringCheck::Outcome::TooLow : ScoringCheck::Outcome::TooHigh;
        check.value = low ? rule.lowest : rule.highest;
        MsgBox(low ? rule.lowMessage : rule.highMessage, MsgButtons::OK, MsgIcon::Information, AppTitle);
        box.setText(NumText(check.value));
        dialog.setFocus(box);
        failed = true;
        return check;
    }
    check.value = CLng(v);
    return check;
}

}  // namespace ch
