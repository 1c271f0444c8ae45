// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/frmAbout.h"

#include "suite/common.h"
#include "suite/gamewindow.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

namespace {
using K = ControlKind;

const ControlSpec kLayout[] = {
    {K::Label, "lblInfo", -1, 240, 240, 4800, 1215, ""},
    {K::Label, "lblStats", -1, 240, 1560, 4800, 615, ""},
    {K::Button, "cmdCoolDude", -1, 1920, 2400, 1440, 375, "&Cool Dude"},
};

const char* const kCredit =
    "These games are distributed and supported by Quillmark. Please direct "
    "questions, comments, bugs and suggestions to: support@quillmark.games";
}  // namespace

frmAbout::frmAbout(Runtime& runtime) : Form(runtime, "frmAbout") {
    setSize(5400, 3300);
    add(kLayout);
    c("cmdCoolDude").setDefault(true);
    c("cmdCoolDude").setCancel(true);
    c("lblInfo").setAlignment(Align::Center);
    c("lblStats").setAlignment(Align::Center);
    on(Ev::Load, [this](EventArgs&) { Form_Load(); });
    on("cmdCoolDude", Ev::Click, [this](EventArgs&) { cmdCoolDude_Click(); });
}

void frmAbout::Form_Load() {
    CentreOnScreen(*this);
    setCaption("About " + AppTitle);
    c("lblInfo").setCaption(kCredit);
    c("lblStats").setCaption("This session has lasted " + NumText(MinutesSince(GameStartTime)) + " minutes." +
                             "Thanks for playing!");
    for (const char* name : {"cmdCoolDude", "lblInfo", "lblStats"}) {
        Control& control = c(name);
        control.setLeft((width() - control.width()) / 2);
    }
}

void frmAbout::cmdCoolDude_Click() { runtime().unload(*this); }

}  // namespace ch
