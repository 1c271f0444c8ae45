// The opening of a "User Options" dialog, as Handgrid's and Treyshift's
// custom scoring dialogs read: centred, titled AppTitle + " User Options",
// their frame frmScoringOptions and their note lblInfo captioned as they have
// always read.
#pragma once

namespace ch {

class Form;

void PrepareUserOptionsDialog(Form& dialog);

}  // namespace ch
