#include "suite/userdialog.h"

#include "suite/common.h"
#include "suite/gamewindow.h"
#include "window/form.h"

namespace ch {

void PrepareUserOptionsDialog(Form& dialog) {
    CentreOnScreen(dialog);
    dialog.setCaption(AppTitle + " User Options");
    dialog.c("frmScoringOptions").setCaption("AppTitle Scoring Options");
    dialog.c("lblInfo").setCaption(
        "Note: Changing any of the Scoring Options will cause your high scores to be marked with an * indicating "
        "custom scoring was in use.");
}

}  // namespace ch
