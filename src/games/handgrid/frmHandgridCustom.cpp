// SPDX-License-Identifier: GPL-3.0-or-later
// Handgrid's user options dialog: twelve fields checked in order on OK, each
// stored at once, a value out of range replaced by its put-back value (stored,
// then the message over the text typed, then the box's text), the focus left
// on the last field that failed. The bonus goal shows
// as soon as its field passes; the rest of OK follows when the time bonus,
// the last field, passes.
#include "games/handgrid/frmHandgridCustom.h"

#include <vector>

#include "games/handgrid/frmHandgrid.h"
#include "games/handgrid/modHandgrid.h"
#include "suite/common.h"
#include "suite/scoringdialog.h"
#include "suite/userdialog.h"
#include "suite/gamewindow.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace handgrid;

namespace {
using K = ControlKind;

// A field out of range, at either end, puts back its own value.
constexpr ScoringField Field(const char* box, const char* label, const char* caption, double highest, double putBack,
                             const char* message) {
    return {.box = box, .label = label, .caption = caption, .lowest = 0, .highest = highest, .lowMessage = message,
            .lowShown = putBack, .lowStored = putBack, .highShown = putBack, .highStored = putBack};
}

// Fields 0 to 8 edit the hands OnePair to RoyalFlush; then the bonus score,
// the overwrites and the time bonus.
const ScoringField kFields[] = {
    Field("txtPairScore", "lblPairScore", "Pair Score Value:", 50000, 6000,
          "Sorry, the Pair Score Value: must be between 0 and 50,000 points."),
    Field("txt2PairScore", "lbl2PairScore", "2 Pair Score Value:", 50000, 7000,
          "Sorry, the 2 Pair Score Value: must be between 0 and 50,000 points."),
    Field("txt3ofakindScore", "lbl3ofakindScore", "3 of a Kind Score Value:", 50000, 8000,
          "Sorry, the 3 of a Kind Score Value: must be between 0 and 50,000 points."),
    Field("txtStraightScore", "lblStraightScore", "Straight Score Value:", 50000, 9000,
          "Sorry, the Straight Score Value: must be between 0 and 50,000 points."),
    Field("txtFlushScore", "lblFlushScore", "Flush Score Value:", 50000, 10000,
          "Sorry, the Flush Score Value: must be between 0 and 50,000 points."),
    Field("txtFullHouseScore", "lblFullHouseScore", "Full House Score Value:", 50000, 20000,
          "Sorry, the Full House Score Value: must be between 0 and 50,000 points."),
    Field("txt4ofakindScore", "lbl4ofakindScore", "4 of a Kind Score Value:", 50000, 30000,
          "Sorry, the 4 of a Kind Score Value: must be between 0 and 50,000 points."),
    Field("txtStFlushScore", "lblStFlushScore", "Straight Flush Score Value:", 50000, 40000,
          "Sorry, the Straight Flush Score Value: must be between 0 and 50,000 points."),
    Field("txtRoyalFlushScore", "lblRoyalFlushScore", "Royal Flush Score Value:", 100000, 50000,
          "Sorry, the Royal Flush Score Value: must be between 0 and 100,000 points."),
    Field("txtBonusScore", "lblBonusScore", "Score required for bonus round:", 1000000, 100000,
          "Sorry, the Score required for bonus round: must be between 0 and 1,000,000 points."),
    Field("txtOverWrites", "lblOverWrites", "Number of overwrites allowed", 26, 1,
          "Sorry, the Number of overwrites allowed must be between 0 and 26 points."),
    Field("txtTimeBonus", "lblTimeBonus", "Time Bonus (per second multipler)", 10, 1,
          "Sorry, the Time Bonus value must be between 0 and 10 points."),
};
const ScoringPolicy kPolicy{.order = {FailureStep::Store, FailureStep::Message, FailureStep::Show, FailureStep::Focus}};
constexpr size_t kHandFields = 9;
constexpr size_t kBonusScoreField = 9;
constexpr size_t kOverWritesField = 10;

constexpr int kRowHeight = 375;
constexpr int kFirstRow = 300;

std::vector<ControlSpec> Layout() {
    std::vector<ControlSpec> specs = {{K::Frame, "frmScoringOptions", -1, 120, 120, 6360, 5280, "AppTitle Scoring Options"}};
    int top = kFirstRow;
    for (const ScoringField& f : kFields) {
        specs.push_back({K::Label, f.label, -1, 240, top + 45, 4200, 255, f.caption, "frmScoringOptions"});
        specs.push_back({K::TextBox, f.box, -1, 4560, top, 1560, 315, "", "frmScoringOptions"});
        top += kRowHeight;
    }
    specs.push_back({K::CheckBox, "chkCountDown", -1, 240, top + 60, 4200, 255, "&Count Down when taking score",
                     "frmScoringOptions"});
    specs.push_back({K::Label, "lblInfo", -1, 120, 5520, 6360, 480,
                     "Note: Changing any of the Scoring Options will cause your high scores to be marked with an * "
                     "indicating custom scoring was in use."});
    specs.push_back({K::Button, "cmdOK", -1, 600, 6120, 1455, 400, "&OK"});
    specs.push_back({K::Button, "cmdDefault", -1, 2580, 6120, 1455, 400, "&Default"});
    specs.push_back({K::Button, "cmdCancel", -1, 4560, 6120, 1455, 400, "&Cancel"});
    return specs;
}

std::vector<std::string> Texts(const ScoringValues& v, int32_t timeBonus) {
    std::vector<std::string> texts;
    for (int hand = OnePair; hand < kHands; ++hand) texts.push_back(NumText(v.HandScores[static_cast<size_t>(hand)]));
    texts.push_back(NumText(v.BonusScore));
    texts.push_back(NumText(v.OverWritesAllowed));
    texts.push_back(NumText(timeBonus));
    return texts;
}
}  // namespace

frmHandgridCustom::frmHandgridCustom(Runtime& runtime) : Form(runtime, "frmHandgridCustom") {
    setSize(6720, 7020);
    add(Layout());
    BindScoringDialog(
        *this, [this] { Form_Load(); }, [this] { cmdOK_Click(); }, [this] { cmdDefault_Click(); }, true);
    for (const ScoringField& f : kFields) SelectAllOnFocus(*this, f.box);
}

frmHandgrid& frmHandgridCustom::game() const { return runtime().form<frmHandgrid>("frmHandgrid"); }

void frmHandgridCustom::Form_Load() {
    CentreOnScreen(*this);
    setCaption(AppTitle + " User Options");
    ShowScoringTexts(*this, kFields, Texts(game().Scoring, TimeBonus));
    c("chkCountDown").setValue(CountDownScore ? 1 : 0);
}

// Fills the boxes only; OK stores them.
void frmHandgridCustom::cmdDefault_Click() {
    ShowScoringTexts(*this, kFields, Texts(ScoringValues{}, kDefaultTimeBonus));
    c("chkCountDown").setValue(1);
}

void frmHandgridCustom::cmdOK_Click() {
    frmHandgrid& g = game();
    const auto store = [&g](size_t field, long long value, bool passed) {
        if (field < kHandFields) {
            g.Scoring.HandScores[field + OnePair] = static_cast<int32_t>(value);
        } else if (field == kBonusScoreField) {
            g.Scoring.BonusScore = static_cast<int32_t>(value);
            if (passed) g.ShowBonusGoal();
        } else if (field == kOverWritesField) {
            g.Scoring.OverWritesAllowed = CInt(static_cast<double>(value));
        } else {
            TimeBonus = static_cast<int32_t>(value);
        }
    };
    const auto finish = [this, &g] {
        CountDownScore = c("chkCountDown").value() == 1;
        g.CheckForCustom();
    };
    if (CheckScoringFields(*this, kFields, kPolicy, store, finish)) runtime().unload(*this);
}

}  // namespace ch
