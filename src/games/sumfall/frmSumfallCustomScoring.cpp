// SPDX-License-Identifier: GPL-3.0-or-later
// Sumfall's custom scoring dialog. OK stops at the first value outside 1 to
// 5,000,000, leaves its text as typed and stores nothing; only when all four
// pass are they stored.
#include "games/sumfall/frmSumfallCustomScoring.h"

#include "games/sumfall/frmSumfall.h"
#include "games/sumfall/modSumfall.h"
#include "suite/common.h"
#include "suite/scoringdialog.h"
#include "suite/userdialog.h"
#include "suite/gamewindow.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace sumfall;

namespace {
using K = ControlKind;
const ControlSpec kLayout[] = {
    {K::Frame, "Frame1", -1, 120, 120, 5760, 2460, ""},
    {K::Label, "lblBonus", -1, 240, 450, 3840, 255, "Score required for Bonus Round:", "Frame1"},
    {K::TextBox, "txtBonus", -1, 4200, 400, 1440, 315, "", "Frame1"},
    {K::Label, "lblCompletion", -1, 240, 930, 3840, 255, "Score awarded for upper completion:", "Frame1"},
    {K::TextBox, "txtCompletion", -1, 4200, 880, 1440, 315, "", "Frame1"},
    {K::Label, "lblElevenBonus", -1, 240, 1410, 3840, 255, "", "Frame1"},
    {K::TextBox, "txtElevensBonus", -1, 4200, 1360, 1440, 315, "", "Frame1"},
    {K::Label, "lblTimeBonus", -1, 240, 1890, 3840, 255, "Score awarded for Time Bonus (per second):", "Frame1"},
    {K::TextBox, "txtTimeBonus", -1, 4200, 1840, 1440, 315, "", "Frame1"},
    {K::Label, "lblCustom", -1, 120, 2700, 5760, 480, ""},
    {K::Button, "cmdOK", -1, 600, 3300, 1335, 400, "&OK"},
    {K::Button, "cmdDefault", -1, 2340, 3300, 1335, 400, "&Default"},
    {K::Button, "cmdCancel", -1, 4080, 3300, 1335, 400, "&Cancel"},
};
constexpr ScoringField Field(const char* box, const char* message) {
    return {.box = box, .lowest = 1, .highest = 5000000, .lowMessage = message};
}
const ScoringField kFields[] = {
    Field("txtBonus", "Sorry, the score required for a Bonus Round must fall between 1 and 5,000,000."),
    Field("txtCompletion",
          "Sorry, the score awarded for completing the upper playing area must fall between 1 and 5,000,000."),
    Field("txtElevensBonus", "Sorry, the score awarded for each eleven combination must fall between 1 and 5,000,000."),
    Field("txtTimeBonus",
          "Sorry, the score awarded for each second remaining in the game after selecting 'Take Score' must fall "
          "between 1 and 5,000,000."),
};
const ScoringPolicy kPolicy{.stopAtFirstError = true, .storeOnFailedOk = false, .correctsBox = false,
                            .icon = MsgIcon::Exclamation, .finish = ScoringPolicy::Finish::WhenAllPass};

std::vector<std::string> Texts(const ScoringValues& v, int32_t timeBonus) {
    return {NumText(v.BonusRoundScore), NumText(v.CompletionBonus), NumText(v.CombinationBonus), NumText(timeBonus)};
}
}  // namespace

frmSumfallCustomScoring::frmSumfallCustomScoring(Runtime& runtime) : Form(runtime, "frmSumfallCustomScoring") {
    setSize(6120, 4290);
    add(kLayout);
    BindScoringDialog(
        *this, [this] { Form_Load(); }, [this] { cmdOK_Click(); }, [this] { cmdDefault_Click(); }, false);
    for (const ScoringField& f : kFields) SelectAllOnFocus(*this, f.box);
}

frmSumfall& frmSumfallCustomScoring::game() const { return runtime().form<frmSumfall>("frmSumfall"); }

void frmSumfallCustomScoring::Form_Load() {
    CentreOnScreen(*this);
    setCaption(AppTitle + " User Options");
    c("Frame1").setCaption("Apptitle Scoring Options");
    c("lblCustom").setCaption(
        "Note: Any high score attained using customized scoring will be denoted by an asterisk in the High Score "
        "table.");
    c("lblElevenBonus").setCaption("Score awarded for " + CardGoalName(CardGoal) + " combination:");
    ShowScoringTexts(*this, kFields, Texts(game().Scoring, TimeBonus));
}

void frmSumfallCustomScoring::cmdDefault_Click() {
    ShowScoringTexts(*this, kFields, Texts(ScoringValues{}, kDefaultTimeBonus));
}

void frmSumfallCustomScoring::cmdOK_Click() {
    frmSumfall& g = game();
    int32_t* const values[] = {&g.Scoring.BonusRoundScore, &g.Scoring.CompletionBonus, &g.Scoring.CombinationBonus,
                               &TimeBonus};
    const auto store = [&values](size_t field, long long value, bool) { *values[field] = static_cast<int32_t>(value); };
    const auto finish = [&g] {
        g.c("StatusBar1").setPanel(1, "Make " + FormatScore(g.Scoring.BonusRoundScore) + " for Bonus Round!   ");
        CustomScoringInUse = !(g.Scoring == ScoringValues{} && TimeBonus == kDefaultTimeBonus);
    };
    if (CheckScoringFields(*this, kFields, kPolicy, store, finish)) runtime().unload(*this);
}

}  // namespace ch
