// SPDX-License-Identifier: GPL-3.0-or-later
// The user options dialog of Blackrush. OK checks the boxes in turn, tells
// every failure, stores each box as it goes (the clamped value of a failed
// one too) and closes only when all passed. A wait that doesn't fit in
// milliseconds ends the checks with the overflow message.
#include "games/blackrush/frmBlackrushCustomScoring.h"

#include "games/blackrush/frmBlackrush.h"
#include "games/blackrush/modBlackrush.h"
#include "suite/common.h"
#include "suite/scoringdialog.h"
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

ScoringField WaitAbove60() {
    ScoringField wait =
        WaitField(60, "Sorry, a maximum of 60 seconds is allowed for the waiting period between rounds.");
    wait.highShown = 0;
    wait.highOrder = {FailureStep::Show, FailureStep::Store, FailureStep::Message, FailureStep::Focus};
    return wait;
}

// In the order OK checks them. A box that fails stores its value, shows its
// message over the text typed, then takes its put-back text and the focus.
// A minute in milliseconds does not fit the wait: above 60 seconds the box
// reads "0" before the minute is stored, and the store overflows, so the
// overflow message comes instead of the wait's own. A 21 bonus below 0 corrects the bonus round box, not
// its own, and that "0" then passes the bonus round's check.
const ScoringField kFields[] = {
    PassesField(),
    WaitAbove60(),
    {.box = "txtCardsUsedBonus", .lowest = 0, .highest = 5000,
     .lowMessage = "Sorry, a minimum of 0 is required for the Cards Used bonus score.",
     .highMessage = "Sorry, the maximum value for the Cards Used bonus score is 5000."},
    {.box = "txt21BonusValue", .lowest = 0, .highest = 5000,
     .lowMessage = "Sorry, a minimum of 0 is required for the Twenty One bonus score.",
     .highMessage = "Sorry, the maximum value for the Twenty One bonus score is 5000.", .lowBox = "txtBonus"},
    {.box = "txtDeckCompletionBonus", .lowest = 0, .highest = 1000000,
     .lowMessage = "Sorry, a minimum of 0 is required for the Deck Completion Bonus.",
     .highMessage = "Sorry, the maximum value for the Deck Completion Bonus is 1000000."},
    {.box = "txtFiveCardGimmeBonus", .lowest = 0, .highest = 50000,
     .lowMessage = "Sorry, a minimum of 0 is required for the Five Cards Gimme Bonus.",
     .highMessage = "Sorry, the maximum value for the Five Cards Gimme Bonus is 50000."},
    {.box = "txtBonus", .lowest = 0, .highest = 2147483647.0,
     .lowMessage = "Sorry, a minimum of 0 is required for the bonus round score.",
     .highMessage = "Sorry, the maximum value for achieving a bonus round is 2147483647."},
};
const ScoringPolicy kPolicy{.order = {FailureStep::Store, FailureStep::Message, FailureStep::Show, FailureStep::Focus},
                            .finish = ScoringPolicy::Finish::Always};

std::vector<std::string> Texts(const ScoringValues& v) {
    return {NumText(v.CardsToPass),         SecondsText(v.WaitPeriod),      NumText(v.CardsUsedBonusValue),
            NumText(v.TwentyOneBonusValue), NumText(v.DeckCompletionBonus), NumText(v.FiveCardGimmeBonus),
            NumText(v.BonusScore)};
}

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
    for (const ScoringField& f : kFields) SelectAllOnFocus(*this, f.box);
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
    ShowScoringTexts(*this, kFields, Texts(g.Scoring));
    c("chkCountScore").setValue(CountDownScore ? 1 : 0);
    for (const Speed& speed : kSpeeds)
        if (g.Scoring.CounterSpeed == speed.interval) c(speed.option).setValue(1);
}

void frmBlackrushCustomScoring::cmdDefault_Click() {
    ShowScoringTexts(*this, kFields, Texts(ScoringValues{}));
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
    const auto store = [&g](size_t field, long long value, bool passed) {
        ScoringValues& v = g.Scoring;
        const auto number = static_cast<double>(value);
        switch (field) {
            case 0:
                g.PassesLeft = CInt(number);
                if (passed) v.CardsToPass = g.PassesLeft;
                break;
            case 1: v.WaitPeriod = CInt(number); break;
            case 2: v.CardsUsedBonusValue = CLng(number); break;
            case 3: v.TwentyOneBonusValue = CLng(number); break;
            case 4: v.DeckCompletionBonus = CLng(number); break;
            case 5: v.FiveCardGimmeBonus = CLng(number); break;
            default: v.BonusScore = CLng(number); break;
        }
    };
    const auto finish = [this, &g] {
        CountDownScore = c("chkCountScore").value() != 0;
        g.CheckForCustom();
        g.ShowBonusGoal("  ");
    };
    if (CheckScoringFields(*this, kFields, kPolicy, store, finish)) runtime().unload(*this);
}

}  // namespace ch
