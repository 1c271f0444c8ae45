// SPDX-License-Identifier: GPL-3.0-or-later
// The custom scoring dialogs' shared steps. The opening of a "User Options" dialog, as the dialogs that use
// it read: centred, titled AppTitle + " User Options",
// their frame frmScoringOptions and their note lblInfo captioned as they have
// always read.
#pragma once

#include <functional>

namespace ch {

class Form;

// The buttons every custom scoring dialog has: Load runs `load`, cmdOK `ok`,
// cmdDefault `defaults`, cmdCancel (also the Escape key) closes the dialog
// with nothing changed; cmdOK is the Return key's button where `okIsDefault`.
void BindScoringDialog(Form& dialog, std::function<void()> load, std::function<void()> ok,
                       std::function<void()> defaults, bool okIsDefault);
// A scoring box selects its whole text when it takes the focus.
void SelectAllOnFocus(Form& dialog, const char* box);

void PrepareUserOptionsDialog(Form& dialog);

}  // namespace ch
