// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/userdialog.h"

#include "suite/common.h"
#include "suite/gamewindow.h"
#include "window/form.h"
#include "window/runtime.h"

namespace ch {

void PrepareUserOptionsDialog(Form& dialog) {
    CentreOnScreen(dialog);
    dialog.setCaption(AppTitle + " User Options");
    dialog.c("frmScoringOptions").setCaption("AppTitle Scoring Options");
    dialog.c("lblInfo").setCaption(
        "Note: Changing any of the Scoring Options will cause your high scores to be marked with an * indicating "
        "custom scoring was in use.");
}

void BindScoringDialog(Form& dialog, std::function<void()> load, std::function<void()> ok,
                       std::function<void()> defaults, bool okIsDefault) {
    if (okIsDefault) dialog.c("cmdOK").setDefault(true);
    dialog.c("cmdCancel").setCancel(true);
    dialog.on(Ev::Load, [load = std::move(load)](EventArgs&) { load(); });
    dialog.on("cmdDefault", Ev::Click, [defaults = std::move(defaults)](EventArgs&) { defaults(); });
    dialog.on("cmdCancel", Ev::Click, [&dialog](EventArgs&) { dialog.runtime().unload(dialog); });
    dialog.on("cmdOK", Ev::Click, [ok = std::move(ok)](EventArgs&) { ok(); });
}

void SelectAllOnFocus(Form& dialog, const char* box) {
    dialog.on(box, Ev::GotFocus, [&dialog, box](EventArgs&) { dialog.c(box).selectAll(); });
}

}  // namespace ch
