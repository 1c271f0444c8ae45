// SPDX-License-Identifier: GPL-3.0-or-later
// frmTestLauncher: cmdOpen opens the test game as a selector button would; cmdWrite writes txtContent
// to txtFile in AppPath ("\X.Ini"), cmdRead reads it back ("<missing>" when there is none).
#include <memory>

#include "suite/common.h"
#include "suite/files.h"
#include "tests/support/testforms.h"
#include "window/runtime.h"

namespace ch {

namespace {
using K = ControlKind;

const ControlSpec kLayout[] = {
    {K::Button, "cmdOpen", -1, 120, 120, 1500, 375, "Open"},
    {K::TextBox, "txtFile", -1, 120, 600, 3000, 315, ""},
    {K::TextBox, "txtContent", -1, 120, 1000, 3000, 2000, ""},
    {K::Button, "cmdWrite", -1, 120, 3100, 900, 375, "Write"},
    {K::Button, "cmdRead", -1, 1100, 3100, 900, 375, "Read"},
};

class frmTestLauncher : public Form {
public:
    explicit frmTestLauncher(Runtime& runtime) : Form(runtime, "frmTestLauncher") {
        add(kLayout);
        c("txtContent").setMultiLine(true);
        // As a game button of the selector does.
        on("cmdOpen", Ev::Click, [this](EventArgs&) {
            Form& selector = this->runtime().load("frmSelect");
            selector.setMousePointer(Pointer::Hourglass);
            AppTitle = kTestGameTitle;
            this->runtime().show("frmTestGame");
            selector.setMousePointer(Pointer::Default);
            this->runtime().hide(selector);
        });
        on("cmdWrite", Ev::Click,
           [this](EventArgs&) { WriteFileAtomic(AppFile(c("txtFile").text()), c("txtContent").text()); });
        on("cmdRead", Ev::Click, [this](EventArgs&) {
            std::string text;
            c("txtContent").setText(ReadWholeFile(AppFile(c("txtFile").text()), text) ? text : "<missing>");
        });
    }
};
}  // namespace

void RegisterTestForms(Runtime& runtime) {
    runtime.registerForm("frmTestLauncher", [](Runtime& rt) { return std::make_unique<frmTestLauncher>(rt); });
    RegisterTestGame(runtime);
}

void ShowTestLauncher(Runtime& runtime) { runtime.show("frmTestLauncher"); }

}  // namespace ch
