// SPDX-License-Identifier: GPL-3.0-or-later
// The User Options dialog of Fivestack.
#include "games/fivestack/frmFivestackCustomScoring.h"

#include "games/fivestack/frmFivestack.h"
#include "suite/common.h"
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
const char* const kBoxes[] = {"txtBonus", "txtTimeBonusMax", "txtTimeBonusMin", "txtWaitPeriod",
                              "txtNumberOfCardsToPass"};
}  // namespace

frmFivestackCustomScoring::frmFivestackCustomScoring(Runtime& runtime) : Form(runtime, "frmFivestackCustomScoring") {
    setSize(6360, 4860);
    add(kLayout);
    BindScoringDialog(
        *this, [this] { Form_Load(); }, [this] { cmdOK_Click(); }, [this] { cmdDefault_Click(); }, true);
    for (const char* name : kBoxes) SelectAllOnFocus(*this, name);
}

frmFivestack& frmFivestackCustomScoring::game() const { return runtime().form<frmFivestack>("frmFivestack"); }

Control& frmFivestackCustomScoring::box(OptionField field) const {
    switch (field) {
        case OptionField::Passes: return c("txtNumberOfCardsToPass");
        case OptionField::Wait: return c("txtWaitPeriod");
        case OptionField::Bonus: return c("txtBonus");
        case OptionField::Maximum: return c("txtTimeBonusMax");
        case OptionField::Minimum: break;
    }
    return c("txtTimeBonusMin");
}

// Centred over the game window, the boxes filled from its values.
void frmFivestackCustomScoring::Form_Load() {
    frmFivestack& g = game();
    move(g.left() + (g.width() - width()) / 2, g.top() + (g.height() - height()) / 2);
    setCaption(AppTitle + " User Options");
    c("lblInfo").setCaption(
        "Note: Changing any of the Scoring Options or the number of cards a user may pass will cause your high "
        "scores to be marked with an * indicating custom scoring was in use.");
    c("txtBonus").setText(NumText(g.BonusScore));
    c("txtTimeBonusMax").setText(NumText(g.TimeBonusMax));
    c("txtTimeBonusMin").setText(NumText(g.TimeBonusMin));
    c("txtWaitPeriod").setText(NumberText(g.WaitPeriod / 1000.0));
    c("txtNumberOfCardsToPass").setText(NumText(g.CardsToPass));
    c("chkCountScore").setValue(CountDownScore ? 1 : 0);
}

void frmFivestackCustomScoring::cmdDefault_Click() {
    c("txtBonus").setText(NumText(kDefaultBonusScore));
    c("txtTimeBonusMax").setText(NumText(kDefaultTimeBonusMax));
    c("txtTimeBonusMin").setText(NumText(kDefaultTimeBonusMin));
    c("txtWaitPeriod").setText(NumberText(kDefaultWaitPeriod / 1000.0));
    c("txtNumberOfCardsToPass").setText(NumText(kDefaultCardsToPass));
    c("chkCountScore").setValue(1);
}

// Each failed field shows its message and takes the text of its test; what
// passed, and what was clamped, is the game's at once, whatever the rest.
void frmFivestackCustomScoring::cmdOK_Click() {
    frmFivestack& g = game();
    bool close = false;
    try {
        OptionTexts texts{c("txtNumberOfCardsToPass").text(), c("txtWaitPeriod").text(), c("txtBonus").text(),
                          c("txtTimeBonusMax").text(), c("txtTimeBonusMin").text()};
        OptionValues values{g.PassesLeft, g.CardsToPass, g.WaitPeriod, g.BonusScore, g.TimeBonusMax, g.TimeBonusMin};
        close = CheckOptions(texts, values, [this](OptionField field, const std::string& message, const std::string& text) {
            MsgBox(message, MsgButtons::OK, MsgIcon::Information, AppTitle);
            Control& failed = box(field);
            failed.setText(text);
            setFocus(failed);
        });
        g.PassesLeft = values.passesLeft;
        g.CardsToPass = values.cardsToPass;
        g.WaitPeriod = values.waitPeriod;
        g.BonusScore = values.bonusScore;
        g.TimeBonusMax = values.timeBonusMax;
        g.TimeBonusMin = values.timeBonusMin;
        g.TimeBonusDecay = TimeBonusDecay(g.TimeBonusMax, g.TimeBonusMin, TimeLimit);
        CountDownScore = c("chkCountScore").value() == 1;
        g.CheckForCustom();
        g.ShowBonusGoal();
    } catch (const RuntimeError& e) {
        MsgBox(e.description(), MsgButtons::OK, MsgIcon::Exclamation, AppTitle);
        close = false;
    }
    if (close) runtime().unload(*this);
}

}  // namespace ch
