// SPDX-License-Identifier: GPL-3.0-or-later
// Handgrid's user options dialog: twelve fields checked in order on OK, each
// stored at once, a value out of range replaced by its put-back value with a
// message, the focus left on the last field that failed.
#include "games/handgrid/frmHandgridCustom.h"

#include <vector>

#include "games/handgrid/frmHandgrid.h"
#include "games/handgrid/modHandgrid.h"
#include "suite/common.h"
#include "suite/userdialog.h"
#include "suite/gamewindow.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace handgrid;

namespace {
using K = ControlKind;

constexpr int kRowHeight = 375;
constexpr int kFirstRow = 300;

std::vector<ControlSpec> Layout() {
    std::vector<ControlSpec> specs = {{K::Frame, "frmScoringOptions", -1, 120, 120, 6360, 5280, "AppTitle Scoring Options"}};
    for (int i = 0; i < kScoringFields; ++i) {
        const ScoringField& f = kScoringFieldTable[static_cast<size_t>(i)];
        const int top = kFirstRow + i * kRowHeight;
        specs.push_back({K::Label, f.label, -1, 240, top + 45, 4200, 255, f.caption, "frmScoringOptions"});
        specs.push_back({K::TextBox, f.textBox, -1, 4560, top, 1560, 315, "", "frmScoringOptions"});
    }
    specs.push_back({K::CheckBox, "chkCountDown", -1, 240, kFirstRow + kScoringFields * kRowHeight + 60, 4200, 255,
                     "&Count Down when taking score", "frmScoringOptions"});
    specs.push_back({K::Label, "lblInfo", -1, 120, 5520, 6360, 480,
                     "Note: Changing any of the Scoring Options will cause your high scores to be marked with an * "
                     "indicating custom scoring was in use."});
    specs.push_back({K::Button, "cmdOK", -1, 600, 6120, 1455, 400, "&OK"});
    specs.push_back({K::Button, "cmdDefault", -1, 2580, 6120, 1455, 400, "&Default"});
    specs.push_back({K::Button, "cmdCancel", -1, 4560, 6120, 1455, 400, "&Cancel"});
    return specs;
}

std::string DefaultText(int field) {
    if (field < kBonusScoreField) return NumText(kDefaultHandValues[static_cast<size_t>(field + OnePair)]);
    if (field == kBonusScoreField) return NumText(kDefaultBonusScore);
    if (field == kOverWritesField) return NumText(kDefaultOverWrites);
    return NumText(kDefaultTimeBonus);
}
}  // namespace

frmHandgridCustom::frmHandgridCustom(Runtime& runtime) : Form(runtime, "frmHandgridCustom") {
    setSize(6720, 7020);
    add(Layout());
    BindScoringDialog(
        *this, [this] { Form_Load(); }, [this] { cmdOK_Click(); }, [this] { cmdDefault_Click(); }, true);
    for (const ScoringField& f : kScoringFieldTable) SelectAllOnFocus(*this, f.textBox);
}

frmHandgrid& frmHandgridCustom::game() const { return runtime().form<frmHandgrid>("frmHandgrid"); }

long long frmHandgridCustom::Stored(int field) const {
    const frmHandgrid& g = game();
    if (field < kBonusScoreField) return g.HandScores[static_cast<size_t>(field + OnePair)];
    if (field == kBonusScoreField) return g.BonusScore;
    if (field == kOverWritesField) return g.OverWritesAllowed;
    return TimeBonus;
}

void frmHandgridCustom::Store(int field, double value) {
    frmHandgrid& g = game();
    if (field < kBonusScoreField)
        g.HandScores[static_cast<size_t>(field + OnePair)] = CLng(value);
    else if (field == kBonusScoreField)
        g.BonusScore = CLng(value);
    else if (field == kOverWritesField)
        g.OverWritesAllowed = CInt(value);
    else
        TimeBonus = CLng(value);
}

void frmHandgridCustom::Form_Load() {
    CentreOnScreen(*this);
    setCaption(AppTitle + " User Options");
    for (int i = 0; i < kScoringFields; ++i)
        c(kScoringFieldTable[static_cast<size_t>(i)].textBox).setText(NumText(Stored(i)));
    c("chkCountDown").setValue(CountDownScore ? 1 : 0);
}

// Fills the boxes only; OK stores them.
void frmHandgridCustom::cmdDefault_Click() {
    for (int i = 0; i < kScoringFields; ++i) c(kScoringFieldTable[static_cast<size_t>(i)].textBox).setText(DefaultText(i));
    c("chkCountDown").setValue(1);
}

void frmHandgridCustom::cmdOK_Click() {
    bool allValid = true;
    frmHandgrid& g = game();
    for (int i = 0; i < kScoringFields; ++i) {
        const ScoringField& f = kScoringFieldTable[static_cast<size_t>(i)];
        Control& box = c(f.textBox);
        const double value = Val(box.text());
        if (InRange(i, value)) {
            Store(i, value);
            if (i == kBonusScoreField) g.ShowBonusGoal();
            if (i == kTimeBonusField) {
                CountDownScore = c("chkCountDown").value() == 1;
                g.CheckForCustom();
            }
            continue;
        }
        Store(i, f.putBack);
        MsgBox(OutOfRangeMessage(i), MsgButtons::OK, MsgIcon::Information, AppTitle);
        box.setText(NumText(f.putBack));
        setFocus(box);
        allValid = false;
    }
    if (allValid) runtime().unload(*this);
}

}  // namespace ch
