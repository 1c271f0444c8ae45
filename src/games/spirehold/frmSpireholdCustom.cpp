// SPDX-License-Identifier: GPL-3.0-or-later
// Spirehold's custom scoring dialog: the layout, loading the values, Default,
// Cancel and OK with its check of each field in turn.
#include "games/spirehold/frmSpireholdCustom.h"

#include <string>

#include "games/spirehold/frmSpirehold.h"
#include "games/spirehold/modSpirehold.h"
#include "suite/common.h"
#include "suite/userdialog.h"
#include "suite/gamewindow.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace spirehold;

namespace {
using K = ControlKind;

constexpr int kRowTop = 360;
constexpr int kRowStep = 480;

std::vector<ControlSpec> Layout() {
    std::vector<ControlSpec> specs = {{K::Frame, "frmScoringOptions", -1, 120, 120, 7800, 3240, ""}};
    for (size_t i = 0; i < kScoringFields.size(); ++i) {
        const ScoringField& f = kScoringFields[i];
        const int top = kRowTop + static_cast<int>(i) * kRowStep;
        specs.push_back({K::Label, f.label, -1, 240, top + 45, 6180, 255, f.caption, "frmScoringOptions"});
        specs.push_back({K::TextBox, f.textBox, -1, 6480, top, 1200, 315, "", "frmScoringOptions"});
    }
    const int checkTop = kRowTop + static_cast<int>(kScoringFields.size()) * kRowStep;
    specs.push_back(
        {K::CheckBox, "chkCountDown", -1, 240, checkTop, 4200, 315, "&Count Down when taking score", "frmScoringOptions"});
    specs.push_back({K::Label, "lblInfo", -1, 120, 3480, 7800, 480, ""});
    specs.push_back({K::Button, "cmdOK", -1, 1200, 4080, 1335, 400, "&OK"});
    specs.push_back({K::Button, "cmdDefault", -1, 3360, 4080, 1335, 400, "&Default"});
    specs.push_back({K::Button, "cmdCancel", -1, 5520, 4080, 1335, 400, "&Cancel"});
    return specs;
}

constexpr std::array<int32_t, 5> kDefaults = {kDefaultCardValue, kDefaultBonusScore, kDefaultHighRunBonus,
                                              kDefaultTowerBonus, kDefaultTimeBonus};
}  // namespace

frmSpireholdCustom::frmSpireholdCustom(Runtime& runtime) : Form(runtime, "frmSpireholdCustom") {
    setSize(8160, 5010);
    add(Layout());
    BindScoringDialog(
        *this, [this] { Form_Load(); }, [this] { cmdOK_Click(); }, [this] { cmdDefault_Click(); }, false);
    for (const ScoringField& f : kScoringFields) SelectAllOnFocus(*this, f.textBox);
}

frmSpirehold& frmSpireholdCustom::game() const { return runtime().form<frmSpirehold>("frmSpirehold"); }

void frmSpireholdCustom::Form_Load() {
    CentreOnScreen(*this);
    setCaption(AppTitle + " User Options");
    // The frame's caption is fixed; the title is not put in.
    c("frmScoringOptions").setCaption("AppTitle Scoring Options");
    c("lblInfo").setCaption(
        "Note: Changing any of the Scoring Options will cause your high scores to be marked with an * indicating "
        "custom scoring was in use.");
    const frmSpirehold& g = game();
    const std::array<int32_t, 5> values = {g.CardValue, g.BonusScore, g.HighRunBonus, g.TowerBonus, TimeBonus};
    for (size_t i = 0; i < kScoringFields.size(); ++i) c(kScoringFields[i].textBox).setText(NumText(values[i]));
    c("chkCountDown").setValue(CountDownScore ? 1 : 0);
}

void frmSpireholdCustom::cmdDefault_Click() {
    for (size_t i = 0; i < kScoringFields.size(); ++i) c(kScoringFields[i].textBox).setText(NumText(kDefaults[i]));
    c("chkCountDown").setValue(1);
}

void frmSpireholdCustom::SetValue(size_t index, int32_t value) {
    frmSpirehold& g = game();
    switch (index) {
        case 0: g.CardValue = static_cast<int16_t>(value); break;
        case 1: g.BonusScore = value; break;
        case 2: g.HighRunBonus = value; break;
        case 3: g.TowerBonus = value; break;
        default: TimeBonus = value; break;
    }
}

// Every field is checked and written, in order; a failure marks the OK as
// failed but does not stop the next field.
void frmSpireholdCustom::cmdOK_Click() {
    bool failed = false;
    for (size_t i = 0; i < kScoringFields.size(); ++i) {
        const ScoringField& field = kScoringFields[i];
        Control& box = c(field.textBox);
        try {
            const FieldResult result = CheckScoringField(field, box.text(), i == 0);
            SetValue(i, result.value);
            if (result.check != FieldCheck::Passed) {
                const char* text = result.check == FieldCheck::TooLow ? field.lowMessage : field.highMessage;
                MsgBox(text, MsgButtons::OK, MsgIcon::Information, AppTitle);
                box.setText(result.text);
                setFocus(box);
                failed = true;
            } else if (i + 1 == kScoringFields.size()) {
                frmSpirehold& g = game();
                CountDownScore = c("chkCountDown").value() == 1;
                g.CheckForCustom();
                g.c("StatusBar1").setPanel(1, "Make " + FormatScore(g.BonusScore) + " for bonus round.  ");
            }
        } catch (const RuntimeError& error) {
            MsgBox(error.description(), MsgButtons::OK, MsgIcon::Exclamation, AppTitle);
        }
    }
    if (!failed) runtime().unload(*this);
}

}  // namespace ch
