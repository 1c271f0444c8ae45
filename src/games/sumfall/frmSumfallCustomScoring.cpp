// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/sumfall/frmSumfallCustomScoring.h"

#include <array>

#include "games/sumfall/frmSumfall.h"
#include "games/sumfall/modSumfall.h"
#include "suite/common.h"
#include "suite/userdialog.h"
#include "suite/gamewindow.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

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
const std::array<const char*, 4> kBoxes = {"txtBonus", "txtCompletion", "txtElevensBonus", "txtTimeBonus"};
}  // namespace

frmSumfallCustomScoring::frmSumfallCustomScoring(Runtime& runtime) : Form(runtime, "frmSumfallCustomScoring") {
    setSize(6120, 4290);
    add(kLayout);
    BindScoringDialog(
        *this, [this] { Form_Load(); }, [this] { cmdOK_Click(); }, [this] { cmdDefault_Click(); }, false);
    for (const char* box : kBoxes) SelectAllOnFocus(*this, box);
}

frmSumfall& frmSumfallCustomScoring::game() const { return runtime().form<frmSumfall>("frmSumfall"); }

void frmSumfallCustomScoring::Form_Load() {
    CentreOnScreen(*this);
    setCaption(AppTitle + " User Options");
    c("Frame1").setCaption("Apptitle Scoring Options");
    c("lblCustom").setCaption(
        "Note: Any high score attained using customized scoring will be denoted by an asterisk in the High Score "
        "table.");
    frmSumfall& g = game();
    c("lblElevenBonus").setCaption("Score awarded for " + sumfall::CardGoalName(CardGoal) + " combination:");
    c("txtBonus").setText(NumText(g.BonusRoundScore));
    c("txtCompletion").setText(NumText(g.CompletionBonus));
    c("txtElevensBonus").setText(NumText(g.CombinationBonus));
    c("txtTimeBonus").setText(NumText(TimeBonus));
}

void frmSumfallCustomScoring::cmdDefault_Click() {
    c("txtBonus").setText(NumText(sumfall::kDefaultBonusRoundScore));
    c("txtCompletion").setText(NumText(sumfall::kDefaultCompletionBonus));
    c("txtElevensBonus").setText(NumText(sumfall::kDefaultCombinationBonus));
    c("txtTimeBonus").setText(NumText(sumfall::kDefaultTimeBonus));
}

void frmSumfallCustomScoring::cmdOK_Click() {
    std::array<std::string, 4> texts;
    for (size_t i = 0; i < kBoxes.size(); ++i) texts[i] = c(kBoxes[i]).text();
    const int bad = sumfall::FirstInvalidScoringValue(texts);
    if (bad >= 0) {
        MsgBox(sumfall::kScoringValueMessages[static_cast<size_t>(bad)], MsgButtons::OK, MsgIcon::Exclamation, AppTitle);
        setFocus(c(kBoxes[static_cast<size_t>(bad)]));
        return;
    }
    frmSumfall& g = game();
    g.BonusRoundScore = CLng(Val(texts[0]));
    g.CompletionBonus = CLng(Val(texts[1]));
    g.CombinationBonus = CLng(Val(texts[2]));
    TimeBonus = CLng(Val(texts[3]));
    g.c("StatusBar1").setPanel(1, "Make " + FormatScore(g.BonusRoundScore) + " for Bonus Round!   ");
    CustomScoringInUse = !(g.BonusRoundScore == sumfall::kDefaultBonusRoundScore &&
                           g.CompletionBonus == sumfall::kDefaultCompletionBonus &&
                           g.CombinationBonus == sumfall::kDefaultCombinationBonus &&
                           TimeBonus == sumfall::kDefaultTimeBonus);
    runtime().unload(*this);
}

}  // namespace ch
