// SPDX-License-Identifier: GPL-3.0-or-later
// The User Options dialog of Duopick: its layout, the limits and messages of
// its five boxes, and OK, Cancel and Default.
#include "games/duopick/frmDuopickCustomScoring.h"

#include "games/duopick/frmDuopick.h"
#include "games/duopick/modDuopick.h"
#include "suite/common.h"
#include "suite/userdialog.h"
#include "suite/gamewindow.h"
#include "suite/scoringbox.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace duopick;

namespace {
using K = ControlKind;
const ControlSpec kLayout[] = {
    {K::Frame, "frmScoringOptions", -1, 120, 120, 6360, 3120, ""},
    {K::Label, "lblPairsBonus", -1, 240, 420, 4320, 255, "Pairs Bonus Value:", "frmScoringOptions"},
    {K::TextBox, "txtPairsBonus", -1, 4680, 360, 1440, 315, "", "frmScoringOptions"},
    {K::Label, "lblRunsBonus", -1, 240, 900, 4320, 255, "Runs Bonus Value", "frmScoringOptions"},
    {K::TextBox, "txtRunsBonus", -1, 4680, 840, 1440, 315, "", "frmScoringOptions"},
    {K::Label, "lblBonusRound", -1, 240, 1380, 4320, 255, "Score required for Bonus Round:", "frmScoringOptions"},
    {K::TextBox, "txtBonusRound", -1, 4680, 1320, 1440, 315, "", "frmScoringOptions"},
    {K::Label, "lblCompletionBonus", -1, 240, 1860, 4320, 255, "Bonus for completing upper cards: ",
     "frmScoringOptions"},
    {K::TextBox, "txtCompletionBonus", -1, 4680, 1800, 1440, 315, "", "frmScoringOptions"},
    {K::Label, "lblTimeBonus", -1, 240, 2340, 4320, 255, "Time Bonus (points per second)", "frmScoringOptions"},
    {K::TextBox, "txtTimeBonus", -1, 4680, 2280, 1440, 315, "", "frmScoringOptions"},
    {K::CheckBox, "chkCountDown", -1, 240, 2760, 4320, 255, "&Count Down when taking score", "frmScoringOptions"},
    {K::Label, "lblInfo", -1, 120, 3360, 6360, 480,
     "Note: Changing any of the Scoring Options will cause your high scores to be marked with an * indicating "
     "custom scoring was in use."},
    {K::Button, "cmdOK", -1, 600, 3960, 1335, 400, "&OK"},
    {K::Button, "cmdCancel", -1, 2580, 3960, 1335, 400, "&Cancel"},
    {K::Button, "cmdDefault", -1, 4560, 3960, 1335, 400, "&Default"},
};

// The boxes in the order OK checks them.
const ScoringBoxRule kRules[] = {
    {"txtPairsBonus", 0, 32767, "Sorry, you cannot set the pairs bonus value to less than 0 points.",
     "Sorry, you cannot set the pairs bonus value to more than 32767 points"},
    {"txtRunsBonus", 0, 32767, "Sorry, you cannot set the runs bonus value to less than 0 points.",
     "Sorry, you cannot set the runs bonus value to more than 32767 points"},
    {"txtBonusRound", 0, 200000,
     "Sorry, you cannot set the value required for a bonus round to less than 0 points.",
     "Sorry, you cannot set the value required for a bonus round to more than 200000 points."},
    {"txtCompletionBonus", 0, 32767,
     "Sorry, you cannot set the value of the completion bonus to less than 0 points.",
     "Sorry, you cannot set the value of the completion bonus to more than 32767 points."},
    {"txtTimeBonus", 0, 32767, "Sorry, you cannot set the Time Bonus value to less than 0 points.",
     "Sorry, you cannot set the Time Bonus value to greater than 32767 points"},
};
}  // namespace

frmDuopickCustomScoring::frmDuopickCustomScoring(Runtime& runtime) : Form(runtime, "frmDuopickCustomScoring") {
    setSize(6720, 4920);
    add(kLayout);
    BindScoringDialog(
        *this, [this] { Form_Load(); }, [this] { cmdOK_Click(); }, [this] { cmdDefault_Click(); }, false);
    for (const ScoringBoxRule& rule : kRules) SelectAllOnFocus(*this, rule.box);
}

frmDuopick& frmDuopickCustomScoring::game() const { return runtime().form<frmDuopick>("frmDuopick"); }

void frmDuopickCustomScoring::Form_Load() {
    CentreOnScreen(*this);
    setCaption(AppTitle + " User Options");
    c("frmScoringOptions").setCaption("AppTitle Scoring Options");
    const frmDuopick& g = game();
    c("txtPairsBonus").setText(NumText(g.PairsBonus));
    c("txtRunsBonus").setText(NumText(g.RunsBonus));
    c("txtBonusRound").setText(NumText(g.BonusScore));
    c("txtCompletionBonus").setText(NumText(g.CompletionBonus));
    c("txtTimeBonus").setText(NumText(TimeBonus));
    c("chkCountDown").setValue(CountDownScore ? 1 : 0);
}

void frmDuopickCustomScoring::cmdDefault_Click() {
    c("txtPairsBonus").setText(NumText(kDefaultPairsBonus));
    c("txtRunsBonus").setText(NumText(kDefaultRunsBonus));
    c("txtBonusRound").setText(NumText(kDefaultBonusScore));
    c("txtCompletionBonus").setText(NumText(kDefaultCompletionBonus));
    c("txtTimeBonus").setText(NumText(kDefaultTimeBonus));
    c("chkCountDown").setValue(1);
}

// Every box is checked and its value set, whatever the boxes before it did;
// the rest follows only when the time bonus, the last box, passes.
void frmDuopickCustomScoring::cmdOK_Click() {
    frmDuopick& g = game();
    bool failed = false;
    try {
        g.PairsBonus = static_cast<int32_t>(CheckScoringBox(*this, kRules[0], failed).value);
        g.RunsBonus = static_cast<int32_t>(CheckScoringBox(*this, kRules[1], failed).value);
        g.BonusScore = static_cast<int32_t>(CheckScoringBox(*this, kRules[2], failed).value);
        g.CompletionBonus = static_cast<int32_t>(CheckScoringBox(*this, kRules[3], failed).value);
        const ScoringCheck time = CheckScoringBox(*this, kRules[4], failed);
        TimeBonus = static_cast<int32_t>(time.value);
        if (time.outcome == ScoringCheck::Outcome::Passed) {
            CountDownScore = c("chkCountDown").value() == 1;
            g.CheckForCustom();
            g.ShowBonusLabels();
            g.c("StatusBar1").setPanel(1, "Make " + FormatScore(g.BonusScore) + " for bonus round.  ");
        }
    } catch (const std::exception& error) {
        MsgBox(error.what(), MsgButtons::OK, MsgIcon::Exclamation, AppTitle);
    }
    if (!failed) runtime().unload(*this);
}

}  // namespace ch
