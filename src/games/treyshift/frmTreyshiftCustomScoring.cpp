// SPDX-License-Identifier: GPL-3.0-or-later
// Treyshift's custom scoring dialog. OK checks every field in turn: a value
// inside its range is stored at once, one outside is replaced by the limit it
// passed, stored and shown in its box before its message comes up; the rest
// of OK follows when the time bonus, the last field, passes. The penalty is entered as a negative number
// and kept positive, except for the limit put back below its range.
#include "games/treyshift/frmTreyshiftCustomScoring.h"

#include <cmath>
#include <vector>

#include "games/treyshift/frmTreyshift.h"
#include "games/treyshift/modTreyshift.h"
#include "suite/common.h"
#include "suite/scoringdialog.h"
#include "suite/userdialog.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace treyshift;

namespace {
using K = ControlKind;

// In the order the OK button checks them.
const ScoringField kFields[] = {
    {.box = "txtTripValue", .label = "lblTripValue", .caption = "Three of a kind bonus:", .lowest = 0,
     .highest = 20000, .lowMessage = "Sorry, the minimum value for a Triple is 0.",
     .highMessage = "Sorry, the maximum value for a Triple is 20000"},
    {.box = "txtRunValue", .label = "lblRunValue", .caption = "Run Bonus:", .lowest = 0, .highest = 20000,
     .lowMessage = "Sorry, the minimum value for a Run is 0.",
     .highMessage = "Sorry, the maximum value for a Run is 20000"},
    {.box = "txtDeckValue", .label = "lblDeckValue", .caption = "Deck Completion Bonus:", .lowest = 0,
     .highest = 100000, .lowMessage = "Sorry, the minimum value for for completing the Deck is 0.",
     .highMessage = "Sorry, the maximum value for completing the Deck is 100000"},
    {.box = "txtFlushValue", .label = "lblFlushValue", .caption = "Flush Bonus:", .lowest = 0, .highest = 20000,
     .lowMessage = "Sorry, the minimum value for the Flush Bonus is 0.",
     .highMessage = "Sorry, the maximum value for the Flush Bonus is 20000"},
    {.box = "txtBonusRound", .label = "lblBonusRound", .caption = "Score Required for Bonus Round:", .lowest = 0,
     .highest = 1000000, .lowMessage = "Sorry, the minimum value for obtaining the Bonus Round is 0.",
     .highMessage = "Sorry, the maximum value for obtaining the Bonus Round is 1000000"},
    {.box = "txtPenaltyValue", .label = "lblPenaltyValue", .caption = "Penalty for left-over cards:",
     .lowest = -20000, .highest = 0, .lowMessage = "Sorry, the minimum penalty for left over cards is -20000",
     .highMessage = "Sorry, the maximum penalty for left over cards is 0.",
     .value = [](double number) -> long long { return CLng(std::fabs(number)); }},
    {.box = "txtTimeBonus", .label = "lblTimeBonus", .caption = "Time Bonus (points per second)", .lowest = 0,
     .highest = 5000, .lowMessage = "Sorry, you cannot set the Time Bonus value to less than 0 points.",
     .highMessage = "Sorry, you cannot set the Time Bonus value to greater than 5000 points"},
};

const ScoringPolicy kPolicy{.order = {FailureStep::Store, FailureStep::Show, FailureStep::Message, FailureStep::Focus}};

std::vector<ControlSpec> Layout() {
    std::vector<ControlSpec> specs = {{K::Frame, "frmScoringOptions", -1, 120, 120, 6240, 4200, ""}};
    int top = 400;
    for (const ScoringField& f : kFields) {
        specs.push_back({K::Label, f.label, -1, 240, top + 30, 3960, 255, f.caption, "frmScoringOptions"});
        specs.push_back({K::TextBox, f.box, -1, 4320, top, 1440, 315, "", "frmScoringOptions"});
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

// The boxes' texts for a set of values; the penalty shows with its minus sign.
std::vector<std::string> Texts(const ScoringValues& v, int32_t timeBonus) {
    return {NumText(v.TripValue),  NumText(v.RunValue),       NumText(v.DeckValue), NumText(v.FlushValue),
            NumText(v.BonusScore), PenaltyText(v.PenaltyValue), NumText(timeBonus)};
}
}  // namespace

frmTreyshiftCustom::frmTreyshiftCustom(Runtime& runtime) : Form(runtime, "frmTreyshiftCustom") {
    setSize(6600, 6180);
    add(Layout());
    c("txtPenaltyValue").setForeColor(Colour::Red);
    BindScoringDialog(
        *this, [this] { Form_Load(); }, [this] { cmdOK_Click(); }, [this] { cmdDefault_Click(); }, true);
    for (const ScoringField& f : kFields) SelectAllOnFocus(*this, f.box);
}

frmTreyshift& frmTreyshiftCustom::game() const { return runtime().form<frmTreyshift>("frmTreyshift"); }

void frmTreyshiftCustom::Form_Load() {
    PrepareUserOptionsDialog(*this);
    ShowScoringTexts(*this, kFields, Texts(game().Scoring, TimeBonus));
    c("chkCountDown").setValue(CountDownScore ? 1 : 0);
}

void frmTreyshiftCustom::cmdDefault_Click() {
    ShowScoringTexts(*this, kFields, Texts(kDefaults, kDefaultTimeBonus));
    c("chkCountDown").setValue(1);
}

void frmTreyshiftCustom::cmdOK_Click() {
    frmTreyshift& g = game();
    ScoringValues& v = g.Scoring;
    int32_t* const values[] = {&v.TripValue,  &v.RunValue,     &v.DeckValue, &v.FlushValue,
                               &v.BonusScore, &v.PenaltyValue, &TimeBonus};
    const auto store = [&values](size_t field, long long value, bool) { *values[field] = static_cast<int32_t>(value); };
    const auto finish = [this, &g] {
        CountDownScore = c("chkCountDown").value() == 1;
        g.CheckForCustom();
        g.c("StatusBar1").setPanel(1, "Make " + FormatScore(g.Scoring.BonusScore) + " for bonus round.  ");
    };
    if (CheckScoringFields(*this, kFields, kPolicy, store, finish)) runtime().unload(*this);
}

}  // namespace ch
