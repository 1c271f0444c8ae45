// SPDX-License-Identifier: GPL-3.0-or-later
// Treyshift's custom scoring dialog. OK checks every field in turn: a value
// inside its range is stored at once, one outside is replaced by the limit it
// passed, stored as well, and reported. The penalty is entered as a negative
// number and kept positive, except for the limit put back below its range.
#include "games/treyshift/frmTreyshiftCustomScoring.h"

#include <vector>

#include "games/treyshift/frmTreyshift.h"
#include "games/treyshift/modTreyshift.h"
#include "suite/common.h"
#include "suite/userdialog.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace treyshift;

namespace {
using K = ControlKind;

std::vector<ControlSpec> Layout() {
    std::vector<ControlSpec> specs = {{K::Frame, "frmScoringOptions", -1, 120, 120, 6240, 4200, ""}};
    int top = 400;
    for (const ScoringFieldSpec& f : kScoringFields) {
        specs.push_back({K::Label, f.label, -1, 240, top + 30, 3960, 255, f.caption, "frmScoringOptions"});
        specs.push_back({K::TextBox, f.textBox, -1, 4320, top, 1440, 315, "", "frmScoringOptions"});
        top += 480;
    }
    specs.push_back({K::CheckBox, "chkCountDown", -1, 240, top + 30, 4080, 255, "&Count Down when taking score",
                     "frmScoringOptions"});
    specs.push_back({K::Label, "lblInfo", -1, 120, 4440, 6240, 480, ""});
    specs.push_back({K::Button, "cmdOK", -1, 600, 5040, 1335, 400, "&OK"});
    specs.push_back({K::Button, "cmdDefault", -1, 2520, 5040, 1335, 400, "&Default"});
    specs.push_back({K::Button, "cmdCancel", -1, 4440, 5040, 1335, 400, "&Cancel"});
    return specs;
}

int32_t& ValueOf(frmTreyshift& g, ScoringField field) {
    switch (field) {
        case ScoringField::Trip: return g.TripValue;
        case ScoringField::Run: return g.RunValue;
        case ScoringField::Deck: return g.DeckValue;
        case ScoringField::Flush: return g.FlushValue;
        case ScoringField::BonusRound: return g.BonusScore;
        case ScoringField::Penalty: return g.PenaltyValue;
        case ScoringField::TimeBonus: break;
    }
    return TimeBonus;
}

int32_t DefaultOf(ScoringField field) {
    switch (field) {
        case ScoringField::Trip: return kDefaults.TripValue;
        case ScoringField::Run: return kDefaults.RunValue;
        case ScoringField::Deck: return kDefaults.DeckValue;
        case ScoringField::Flush: return kDefaults.FlushValue;
        case ScoringField::BonusRound: return kDefaults.BonusScore;
        case ScoringField::Penalty: return -kDefaults.PenaltyValue;
        case ScoringField::TimeBonus: break;
    }
    return kDefaults.TimeBonus;
}
}  // namespace

frmTreyshiftCustom::frmTreyshiftCustom(Runtime& runtime) : Form(runtime, "frmTreyshiftCustom") {
    setSize(6600, 6180);
    add(Layout());
    c("txtPenaltyValue").setForeColor(Colour::Red);
    BindScoringDialog(
        *this, [this] { Form_Load(); }, [this] { cmdOK_Click(); }, [this] { cmdDefault_Click(); }, true);
    for (const ScoringFieldSpec& f : kScoringFields) SelectAllOnFocus(*this, f.textBox);
}

frmTreyshift& frmTreyshiftCustom::game() const { return runtime().form<frmTreyshift>("frmTreyshift"); }

void frmTreyshiftCustom::Form_Load() {
    PrepareUserOptionsDialog(*this);
    frmTreyshift& g = game();
    for (const ScoringFieldSpec& f : kScoringFields) c(f.textBox).setText(NumText(ValueOf(g, f.field)));
    c("txtPenaltyValue").setText(PenaltyText(g.PenaltyValue));
    c("chkCountDown").setValue(CountDownScore ? 1 : 0);
}

void frmTreyshiftCustom::cmdDefault_Click() {
    for (const ScoringFieldSpec& f : kScoringFields) c(f.textBox).setText(NumText(DefaultOf(f.field)));
    c("chkCountDown").setValue(1);
}

void frmTreyshiftCustom::cmdOK_Click() {
    frmTreyshift& g = game();
    bool allValid = true;
    bool timeBonusValid = false;
    for (const ScoringFieldSpec& f : kScoringFields) {
        Control& box = c(f.textBox);
        const FieldCheck check = CheckScoringField(f, box.text());
        ValueOf(g, f.field) = check.stored;
        if (f.field == ScoringField::TimeBonus) timeBonusValid = check.valid;
        if (check.valid) continue;
        box.setText(check.shown);
        MsgBox(check.message, MsgButtons::OK, MsgIcon::Information, AppTitle);
        setFocus(box);
        allValid = false;
    }
    if (timeBonusValid) {
        CountDownScore = c("chkCountDown").value() == 1;
        g.CheckForCustom();
        g.c("StatusBar1").setPanel(1, "Make " + FormatScore(g.BonusScore) + " for bonus round.  ");
    }
    if (allValid) runtime().unload(*this);
}

}  // namespace ch
