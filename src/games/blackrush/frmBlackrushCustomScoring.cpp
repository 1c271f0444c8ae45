// SPDX-License-Identifier: GPL-3.0-or-later
// The user options dialog of Blackrush.
#include "games/blackrush/frmBlackrushCustomScoring.h"

#include "games/blackrush/frmBlackrush.h"
#include "games/blackrush/modBlackrush.h"
#include "suite/common.h"
#include "suite/userdialog.h"
#include "suite/gamewindow.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace blackrush;

namespace {
using K = ControlKind;
const ControlSpec kLayout[] = {
    {K::Frame, "frmCustomScoring", -1, 120, 120, 6240, 4560, "Apptitle Scoring options"},
    {K::Label, "Label1", -1, 120, 345, 4320, 255, "Score required for Bonus:", "frmCustomScoring"},
    {K::TextBox, "txtBonus", -1, 4560, 300, 1440, 315, "", "frmCustomScoring"},
    {K::Label, "Label2", -1, 120, 765, 4320, 255, "Twenty One Bonus Value:", "frmCustomScoring"},
    {K::TextBox, "txt21BonusValue", -1, 4560, 720, 1440, 315, "", "frmCustomScoring"},
    {K::Label, "Label3", -1, 120, 1185, 4320, 255, "Cards Used Bonus Value:", "frmCustomScoring"},
    {K::TextBox, "txtCardsUsedBonus", -1, 4560, 1140, 1440, 315, "", "frmCustomScoring"},
    {K::Label, "Label4", -1, 120, 1605, 4320, 255, "Deck Completion Bonus:", "frmCustomScoring"},
    {K::TextBox, "txtDeckCompletionBonus", -1, 4560, 1560, 1440, 315, "", "frmCustomScoring"},
    {K::Label, "Label5", -1, 120, 2025, 4320, 255, "Five Card Gimme Bonus:", "frmCustomScoring"},
    {K::TextBox, "txtFiveCardGimmeBonus", -1, 4560, 1980, 1440, 315, "", "frmCustomScoring"},
    {K::Label, "Label6", -1, 120, 2445, 4320, 255, "Number of cards user may pass (0 - 10):", "frmCustomScoring"},
    {K::TextBox, "txtNumberOfCardsToPass", -1, 4560, 2400, 1440, 315, "", "frmCustomScoring"},
    {K::Label, "Label7", -1, 120, 2865, 4320, 255, "Seconds to wait between Rounds (0 - 10):", "frmCustomScoring"},
    {K::TextBox, "txtWaitPeriod", -1, 4560, 2820, 1440, 315, "", "frmCustomScoring"},
    {K::CheckBox, "chkCountScore", -1, 120, 3270, 4320, 255, "Count down &when taking score", "frmCustomScoring"},
    {K::Label, "lblSpeed", -1, 120, 3690, 1560, 255, "21 Counter Speed:", "frmCustomScoring"},
    {K::OptionButton, "optDefault", -1, 1680, 3660, 1200, 285, "&Normal", "frmCustomScoring"},
    {K::OptionButton, "optSlow", -1, 2880, 3660, 1080, 285, "&Slow", "frmCustomScoring"},
    {K::OptionButton, "optSlowest", -1, 1680, 4020, 4440, 285, "&Any slower and it would be going backwards",
     "frmCustomScoring"},
    {K::Label, "lblInfo", -1, 120, 4800, 6240, 495, ""},
    {K::Button, "cmdOK", -1, 600, 5460, 1335, 400, "&OK"},
    {K::Button, "cmdDefault", -1, 2580, 5460, 1335, 400, "&Default"},
    {K::Button, "cmdCancel", -1, 4560, 5460, 1335, 400, "&Cancel"},
};

// The text boxes in the order the rules module checks them.
const char* const kBoxes[kOptionBoxes] = {"txtNumberOfCardsToPass", "txtWaitPeriod",          "txtCardsUsedBonus",
                                          "txt21BonusValue",        "txtDeckCompletionBonus", "txtFiveCardGimmeBonus",
                                          "txtBonus"};

struct Speed {
    const char* option;
    int16_t interval;
};
const Speed kSpeeds[] = {{"optDefault", kNormalSpeed}, {"optSlow", kSlowSpeed}, {"optSlowest", kSlowestSpeed}};
}  // namespace

frmBlackrushCustomScoring::frmBlackrushCustomScoring(Runtime& runtime) : Form(runtime, "frmBlackrushCustomScoring") {
    setSize(6600, 6420);
    add(kLayout);
    BindScoringDialog(
        *this, [this] { Form_Load(); }, [this] { cmdOK_Click(); }, [this] { cmdDefault_Click(); }, true);
    for (const char* box : kBoxes) SelectAllOnFocus(*this, box);
}

frmBlackrush& frmBlackrushCustomScoring::game() const { return runtime().form<frmBlackrush>("frmBlackrush"); }

// Centred over the game window, filled from its values.
void frmBlackrushCustomScoring::Form_Load() {
    const frmBlackrush& g = game();
    move(g.left() + (g.width() - width()) / 2, g.top() + (g.height() - height()) / 2);
    setCaption(AppTitle + " User Options");
    c("lblInfo").setCaption(
        "Note: Changing any of the Scoring Options will cause your high scores to be marked with an * indicating "
        "custom scoring was in use.");
    const OptionTexts texts = OptionTextsFor(g.Scoring);
    for (int box = 0; box < kOptionBoxes; ++box) c(kBoxes[box]).setText(texts[static_cast<size_t>(box)]);
    c("chkCountScore").setValue(CountDownScore ? 1 : 0);
    for (const Speed& speed : kSpeeds)
        if (g.Scoring.CounterSpeed == speed.interval) c(speed.option).setValue(1);
}

void frmBlackrushCustomScoring::cmdDefault_Click() {
    const OptionTexts texts = OptionTextsFor(ScoringValues{});
    for (int box = 0; box < kOptionBoxes; ++box) c(kBoxes[box]).setText(texts[static_cast<size_t>(box)]);
    c("chkCountScore").setValue(1);
    c("optDefault").setValue(1);
}

void frmBlackrushCustomScoring::cmdOK_Click() {
    frmBlackrush& g = game();
    for (const Speed& speed : kSpeeds)
        if (c(speed.option).value() != 0) {
            g.c("Timer3").setInterval(speed.interval);
            g.Scoring.CounterSpeed = speed.interval;
        }
    OptionTexts texts;
    for (int box = 0; box < kOptionBoxes; ++box) texts[static_cast<size_t>(box)] = c(kBoxes[box]).text();
    bool passed = false;
    try {
        passed = CheckUserOptions(texts, g.Scoring, g.PassesLeft, [this, &texts](const std::string& message, OptionBox box) {
            MsgBox(message, MsgButtons::OK, MsgIcon::Information, AppTitle);
            Control& field = c(kBoxes[box]);
            field.setText(texts[static_cast<size_t>(box)]);
            setFocus(field);
        });
    } catch (const RuntimeError& error) {
        // A box the checks corrected before the error keeps its new text.
        for (int box = 0; box < kOptionBoxes; ++box) c(kBoxes[box]).setText(texts[static_cast<size_t>(box)]);
        MsgBox(error.description(), MsgButtons::OK, MsgIcon::Exclamation, AppTitle);
        return;
    }
    CountDownScore = c("chkCountScore").value() != 0;
    g.CheckForCustom();
    g.ShowBonusGoal("  ");
    if (passed) runtime().unload(*this);
}

}  // namespace ch
