// SPDX-License-Identifier: GPL-3.0-or-later
// The User Options dialog of Fivestack. OK checks the boxes in a fixed order
// (passes, wait, bonus, maximum, minimum); in each box the tests run in order
// until one fails. A box that fails shows its message over the text typed,
// then takes its put-back text and the focus, and only then is its clamped
// value stored. What passed, and what was clamped, is the game's at once,
// whatever the rest; a failed Time Bonus limit is not taken. The rest of OK
// follows every time.
#include "games/fivestack/frmFivestackCustomScoring.h"

#include "games/fivestack/frmFivestack.h"
#include "suite/common.h"
#include "suite/scoringdialog.h"
#include "suite/userdialog.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace fivestack;

namespace {
using K = ControlKind;
const ControlSpec kLayout[] = {
    {K::Frame, "frmCustomScoring", -1, 120, 120, 6000, 2940, "Apptitle Scoring options"},
    {K::Label, "lblBonus", -1, 240, 405, 3840, 255, "Score required for Bonus:", "frmCustomScoring"},
    {K::TextBox, "txtBonus", -1, 4320, 360, 1440, 315, "", "frmCustomScoring"},
    {K::Label, "lblTimeBonusMax", -1, 240, 825, 3840, 255, "Maximum Time Bonus value:", "frmCustomScoring"},
    {K::TextBox, "txtTimeBonusMax", -1, 4320, 780, 1440, 315, "", "frmCustomScoring"},
    {K::Label, "lblTimeBonusMin", -1, 240, 1245, 3840, 255, "Minimum Time Bonus value:", "frmCustomScoring"},
    {K::TextBox, "txtTimeBonusMin", -1, 4320, 1200, 1440, 315, "", "frmCustomScoring"},
    {K::Label, "lblWaitPeriod", -1, 240, 1665, 3840, 255, "Seconds to wait between Rounds (0 - 10):",
     "frmCustomScoring"},
    {K::TextBox, "txtWaitPeriod", -1, 4320, 1620, 1440, 315, "", "frmCustomScoring"},
    {K::Label, "lblNumberOfCardsToPass", -1, 240, 2085, 3840, 255, "Number of cards user may pass (0 - 10):",
     "frmCustomScoring"},
    {K::TextBox, "txtNumberOfCardsToPass", -1, 4320, 2040, 1440, 315, "", "frmCustomScoring"},
    {K::CheckBox, "chkCountScore", -1, 240, 2490, 3840, 285, "Count down &when taking score", "frmCustomScoring"},
    {K::Label, "lblInfo", -1, 120, 3180, 6000, 660, ""},
    {K::Button, "cmdOK", -1, 600, 3960, 1335, 400, "&OK"},
    {K::Button, "cmdDefault", -1, 2460, 3960, 1335, 400, "&Default"},
    {K::Button, "cmdCancel", -1, 4320, 3960, 1335, 400, "&Cancel"},
};

// A maximum not above the minimum shows the minimum plus one, a minimum not
// below the maximum the maximum less one; the minimum reads the maximum's box
// as the maximum's check left it.
const ScoringField kFields[] = {
    PassesField(),
    WaitField(30, "Sorry, a maximum of 30 seconds is allowed for the waiting period between rounds."),
    {.box = "txtBonus", .lowest = 0, .highest = 2147483647.0,
     .lowMessage = "Sorry, a minimum of 0 is required for the bonus round score.",
     .highMessage = "Sorry, the maximum value for achieving a bonus round is 2147483647."},
    {.box = "txtTimeBonusMax", .lowest = 0, .highest = 10000,
     .lowMessage = "Sorry, the maximum time bonus value must be greater than 0.",
     .highMessage = "Sorry, the maximum time bonus value must not exceed 10000.", .lowestFails = true,
     .above = "txtTimeBonusMin",
     .aboveMessage = "Sorry, the maximum time bonus value must be greater than the minimum time bonus value.",
     .keepsValueOnFailure = true},
    {.box = "txtTimeBonusMin", .lowest = 0, .highest = 10000,
     .lowMessage = "Sorry, the minimum time bonus value must be greater than 0.",
     .highMessage = "Sorry, the minimum time bonus value must not exceed 10000.", .lowestFails = true,
     .below = "txtTimeBonusMax",
     .belowMessage = "Sorry, the minimum time bonus value must be less than the maximum time bonus value.",
     .keepsValueOnFailure = true},
};
const ScoringPolicy kPolicy{.order = {FailureStep::Message, FailureStep::Show, FailureStep::Focus, FailureStep::Store},
                            .finish = ScoringPolicy::Finish::Always};

std::vector<std::string> Texts(const ScoringValues& v) {
    return {NumText(v.CardsToPass), ScoringNumberText(v.WaitPeriod / 1000.0), NumText(v.BonusScore),
            NumText(v.TimeBonusMax), NumText(v.TimeBonusMin)};
}
}  // namespace

frmFivestackCustomScoring::frmFivestackCustomScoring(Runtime& runtime) : Form(runtime, "frmFivestackCustomScoring") {
    setSize(6360, 4860);
    add(kLayout);
    BindScoringDialog(
        *this, [this] { Form_Load(); }, [this] { cmdOK_Click(); }, [this] { cmdDefault_Click(); }, true);
    for (const ScoringField& f : kFields) SelectAllOnFocus(*this, f.box);
}

frmFivestack& frmFivestackCustomScoring::game() const { return runtime().form<frmFivestack>("frmFivestack"); }

// Centred over the game window, the boxes filled from its values.
void frmFivestackCustomScoring::Form_Load() {
    frmFivestack& g = game();
    move(g.left() + (g.width() - width()) / 2, g.top() + (g.height() - height()) / 2);
    setCaption(AppTitle + " User Options");
    c("lblInfo").setCaption(
        "Note: Changing any of the Scoring Options or the number of cards a user may pass will cause your high "
        "scores to be marked with an * indicating custom scoring was in use.");
    ShowScoringTexts(*this, kFields, Texts(g.Scoring));
    c("chkCountScore").setValue(CountDownScore ? 1 : 0);
}

void frmFivestackCustomScoring::cmdDefault_Click() {
    ShowScoringTexts(*this, kFields, Texts(ScoringValues{}));
    c("chkCountScore").setValue(1);
}

void frmFivestackCustomScoring::cmdOK_Click() {
    frmFivestack& g = game();
    const auto store = [&g](size_t field, long long value, bool passed) {
        switch (field) {
            case 0:
                g.PassesLeft = CInt(static_cast<double>(value));
                if (passed) g.Scoring.CardsToPass = g.PassesLeft;
                break;
            case 1: g.Scoring.WaitPeriod = CInt(static_cast<double>(value)); break;
            case 2: g.Scoring.BonusScore = CLng(static_cast<double>(value)); break;
            case 3: g.Scoring.TimeBonusMax = CInt(static_cast<double>(value)); break;
            default: g.Scoring.TimeBonusMin = CInt(static_cast<double>(value)); break;
        }
    };
    const auto finish = [this, &g] {
        g.TimeBonusDecay = TimeBonusDecay(g.Scoring.TimeBonusMax, g.Scoring.TimeBonusMin, TimeLimit);
        CountDownScore = c("chkCountScore").value() == 1;
        g.CheckForCustom();
        g.ShowBonusGoal();
    };
    if (CheckScoringFields(*this, kFields, kPolicy, store, finish)) runtime().unload(*this);
}

}  // namespace ch
