// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/frmHiScoreName.h"

#include "suite/gamewindow.h"
#include "suite/common.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

namespace {
using K = ControlKind;

const ControlSpec kLayout[] = {
    {K::Label, "lblInfo", -1, 240, 240, 4560, 855, ""},
    {K::TextBox, "lblPlayerName", -1, 240, 1215, 4560, 315, ""},
    {K::Button, "cmdOK", -1, 1890, 1740, 1260, 375, "&OK"},
};
}  // namespace

frmHiScoreName::frmHiScoreName(Runtime& runtime) : Form(runtime, "frmHiScoreName") {
    setSize(5160, 2700);
    add(kLayout);
    c("cmdOK").setDefault(true);
    on(Ev::Load, [this](EventArgs&) { Form_Load(); });
    on("cmdOK", Ev::Click, [this](EventArgs&) { cmdOK_Click(); });
}

void frmHiScoreName::Form_Load() {
    CentreOnScreen(*this);
    setCaption(AppTitle);
    c("lblInfo").setCaption("Great score! Please enter your name so we can induct you into the " + AppTitle +
                            " Hall of Fame:");
}

void frmHiScoreName::cmdOK_Click() {
    // The table's reader trims a name, so it is stored trimmed: what the Hall of
    // Fame shows is what was entered, and a name of blanks is no name.
    const std::string name = Trim(c("lblPlayerName").text());
    if (name.find(',') != std::string::npos) {
        MsgBox("Sorry, you may not use commas in your name.", MsgButtons::OK, MsgIcon::Critical, AppTitle);
        return;
    }
    PlayerName = name.empty() ? "Unknown User" : name;
    runtime().unload(*this);
}

}  // namespace ch
