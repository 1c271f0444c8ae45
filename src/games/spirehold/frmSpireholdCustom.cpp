// SPDX-License-Identifier: GPL-3.0-or-later
// Spirehold's custom scoring dialog: its table, the layout drawn from it,
// loading the values, Default, Cancel and OK. OK checks and writes every field
// in turn, also when another fails; the rest of OK follows when the time
// bonus, the last field, passes. A field out of range sets its setting, shows
// its message over the text typed, then its put-back text and the focus.
#include "games/spirehold/frmSpireholdCustom.h"

#include <iterator>
#include <string>
#include <vector>

#include "games/spirehold/frmSpirehold.h"
#include "games/spirehold/modSpirehold.h"
#include "suite/common.h"
#include "suite/scoringdialog.h"
#include "suite/userdialog.h"
#include "suite/gamewindow.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace spirehold;

namespace {
using K = ControlKind;

// A bonus score too high shows the limit but sets 0.
const ScoringField kFields[] = {
    {.box = "txtCardValue", .label = "lblCardValue",
     .caption = "When creating runs, each additional card increments card value by:", .lowest = 0, .highest = 1000,
     .lowMessage = "Sorry, you cannot increment the card value by less than 0 points.",
     .highMessage = "Sorry, you cannot increment the card value by greater than 1000 points"},
    {.box = "txtBonusScore", .label = "lblBonusScore", .caption = "Score required for bonus round:", .lowest = 0,
     .highest = 900000, .lowMessage = "Sorry, a minimum of 0 points is required to make the bonus round.",
     .highMessage = "Sorry, a maximum of 900000 points is required to make the bonus round.", .highStored = 0},
    {.box = "txtRunBonus", .label = "lblRunBonus", .caption = "High Run bonus (per card):", .lowest = 0,
     .highest = 32767, .lowMessage = "Sorry, a minimum of 0 points is required when achieving the high run bonus.",
     .highMessage = "Sorry, a maximum of 32767 points is required when achieving the high run bonus."},
    {.box = "txtCompletedTower", .label = "lblCompletedTower", .caption = "Bonus for completing each tower",
     .lowest = 0, .highest = 32767,
     .lowMessage = "Sorry, a minimum of 0 points is required when achieving when completing each tower.",
     .highMessage = "Sorry, a maximum of 32767 points is required when completing each tower."},
    {.box = "txtTimeBonus", .label = "lblTimeBonus", .caption = "Time Bonus (points per second)", .lowest = 0,
     .highest = 32767, .lowMessage = "Sorry, you cannot set the Time Bonus value to less than 0 points.",
     .highMessage = "Sorry, you cannot set the Time Bonus value to greater than 32767 points"},
};
constexpr int kFieldCount = static_cast<int>(std::size(kFields));
const ScoringPolicy kPolicy{.order = {FailureStep::Store, FailureStep::Message, FailureStep::Show, FailureStep::Focus}};

constexpr int kRowTop = 360;
constexpr int kRowStep = 480;

std::vector<ControlSpec> Layout() {
    std::vector<ControlSpec> specs = {{K::Frame, "frmScoringOptions", -1, 120, 120, 7800, 3240, ""}};
    for (int i = 0; i < kFieldCount; ++i) {
        const ScoringField& f = kFields[i];
        const int top = kRowTop + i * kRowStep;
        specs.push_back({K::Label, f.label, -1, 240, top + 45, 6180, 255, f.caption, "frmScoringOptions"});
        specs.push_back({K::TextBox, f.box, -1, 6480, top, 1200, 315, "", "frmScoringOptions"});
    }
    const int checkTop = kRowTop + kFieldCount * kRowStep;
    specs.push_back(
        {K::CheckBox, "chkCountDown", -1, 240, checkTop, 4200, 315, "&Count Down when taking score", "frmScoringOptions"});
    specs.push_back({K::Label, "lblInfo", -1, 120, 3480, 7800, 480, ""});
    specs.push_back({K::Button, "cmdOK", -1, 1200, 4080, 1335, 400, "&OK"});
    specs.push_back({K::Button, "cmdDefault", -1, 3360, 4080, 1335, 400, "&Default"});
    specs.push_back({K::Button, "cmdCancel", -1, 5520, 4080, 1335, 400, "&Cancel"});
    return specs;
}

std::vector<std::string> Texts(const ScoringValues& v, int32_t timeBonus) {
    return {NumText(v.CardValue), NumText(v.BonusScore), NumText(v.HighRunBonus), NumText(v.TowerBonus),
            NumText(timeBonus)};
}
}  // namespace

frmSpireholdCustom::frmSpireholdCustom(Runtime& runtime) : Form(runtime, "frmSpireholdCustom") {
    setSize(8160, 5010);
    add(Layout());
    BindScoringDialog(
        *this, [this] { Form_Load(); }, [this] { cmdOK_Click(); }, [this] { cmdDefault_Click(); }, false);
    for (const ScoringField& f : kFields) SelectAllOnFocus(*this, f.box);
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
    ShowScoringTexts(*this, kFields, Texts(game().Scoring, TimeBonus));
    c("chkCountDown").setValue(CountDownScore ? 1 : 0);
}

void frmSpireholdCustom::cmdDefault_Click() {
    ShowScoringTexts(*this, kFields, Texts(ScoringValues{}, kDefaultTimeBonus));
    c("chkCountDown").setValue(1);
}

void frmSpireholdCustom::cmdOK_Click() {
    frmSpirehold& g = game();
    const auto store = [&g](size_t field, long long value, bool) {
        const auto v = static_cast<int32_t>(value);
        switch (field) {
            case 0: g.Scoring.CardValue = static_cast<int16_t>(v); break;
            case 1: g.Scoring.BonusScore = v; break;
            case 2: g.Scoring.HighRunBonus = v; break;
            case 3: g.Scoring.TowerBonus = v; break;
            default: TimeBonus = v; break;
        }
    };
    const auto finish = [this, &g] {
        CountDownScore = c("chkCountDown").value() == 1;
        g.CheckForCustom();
        g.c("StatusBar1").setPanel(1, "Make " + FormatScore(g.Scoring.BonusScore) + " for bonus round.  ");
    };
    if (CheckScoringFields(*this, kFields, kPolicy, store, finish)) runtime().unload(*this);
}

}  // namespace ch
