// SPDX-License-Identifier: GPL-3.0-or-later
// The User Options dialog of Duopick: its layout, the limits and messages of
// its five boxes, and OK, Cancel and Default.
#include "games/duopick/frmDuopickCustomScoring.h"

#include "games/duopick/frmDuopick.h"
#include "games/duopick/modDuopick.h"
#include "suite/common.h"
#include "suite/userdialog.h"
#include "suite/gamewindow.h"
#include "suite/scoringdialog.h"
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

// The boxes in the order OK checks them. Each is checked and stored, whatever
// the boxes before it did; the rest of OK follows when the time bonus, the
// last box, passes. A box out of range takes its limit as its value at once,
// shows its message over the text typed, then the limit and the focus.
const ScoringField kFields[] = {
    {.box = "txtPairsBonus", .lowest = 0, .highest = 32767,
     .lowMessage = "Sorry, you cannot set the pairs bonus value to less than 0 points.",
     .highMessage = "Sorry, you cannot set the pairs bonus value to more than 32767 points"},
    {.box = "txtRunsBonus", .lowest = 0, .highest = 32767,
     .lowMessage = "Sorry, you cannot set the runs bonus value to less than 0 points.",
     .highMessage = "Sorry, you cannot set the runs bonus value to more than 32767 points"},
    {.box = "txtBonusRound", .lowest = 0, .highest = 200000,
     .lowMessage = "Sorry, you cannot set the value required for a bonus round to less than 0 points.",
     .highMessage = "Sorry, you cannot set the value required for a bonus round to more than 200000 points."},
    {.box = "txtCompletionBonus", .lowest = 0, .highest = 32767,
     .lowMessage = "Sorry, you cannot set the value of the completion bonus to less than 0 points.",
     .highMessage = "Sorry, you cannot set the value of the completion bonus to more than 32767 points."},
    {.box = "txtTimeBonus", .lowest = 0, .highest = 32767,
     .lowMessage = "Sorry, you cannot set the Time Bonus value to less than 0 points.",
     .highMessage = "Sorry, you cannot set the Time Bonus value to greater than 32767 points"},
};

const ScoringPolicy kPolicy{.order = {FailureStep::Store, FailureStep::Message, FailureStep::Show, FailureStep::Focus}};

std::vector<std::string> Texts(const ScoringValues& v, int32_t timeBonus) {
    return {NumText(v.PairsBonus), NumText(v.RunsBonus), NumText(v.BonusScore), NumText(v.CompletionBonus),
            NumText(timeBonus)};
}
}  // namespace

frmDuopickCustomScoring::frmDuopickCustomScoring(Runtime& runtime) : Form(runtime, "frmDuopickCustomScoring") {
    setSize(6720, 4920);
    add(kLayout);
    BindScoringDialog(
        *this, [this] { Form_Load(); }, [this] { cmdOK_Click(); }, [this] { cmdDefault_Click(); }, false);
    for (const ScoringField& f : kFields) SelectAllOnFocus(*this, f.box);
}

frmDuopick& frmDuopickCustomScoring::game() const { return runtime().form<frmDuopick>("frmDuopick"); }

void frmDuopickCustomScoring::Form_Load() {
    CentreOnScreen(*this);
    setCaption(AppTitle + " User Options");
    c("frmScoringOptions").setCaption("AppTitle Scoring Options");
    ShowScoringTexts(*this, kFields, Texts(game().Scoring, TimeBonus));
    c("chkCountDown").setValue(CountDownScore ? 1 : 0);
}

void frmDuopickCustomScoring::cmdDefault_Click() {
    ShowScoringTexts(*this, kFields, Texts(ScoringValues{}, kDefaultTimeBonus));
    c("chkCountDown").setValue(1);
}

void frmDuopickCustomScoring::cmdOK_Click() {
    frmDuopick& g = game();
    int32_t* const values[] = {&g.Scoring.PairsBonus, &g.Scoring.RunsBonus, &g.Scoring.BonusScore,
                               &g.Scoring.CompletionBonus, &TimeBonus};
    const auto store = [&values](size_t field, long long value, bool) { *values[field] = static_cast<int32_t>(value); };
    const auto finish = [this, &g] {
        CountDownScore = c("chkCountDown").value() == 1;
        g.CheckForCustom();
        g.ShowBonusLabels();
        g.c("StatusBar1").setPanel(1, "Make " + FormatScore(g.Scoring.BonusScore) + " for bonus round.  ");
    };
    if (CheckScoringFields(*this, kFields, kPolicy, store, finish)) runtime().unload(*this);
}

}  // namespace ch
