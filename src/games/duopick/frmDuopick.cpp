// SPDX-License-Identifier: GPL-3.0-or-later
// The Duopick window itself: its layout and menus, the wiring of its events,
// loading, closing and resizing, its settings file and its menu entries.
#include "games/duopick/frmDuopick.h"

#include <memory>

#include "games/duopick/frmDuopickCustomScoring.h"
#include "suite/cards.h"
#include "suite/common.h"
#include "suite/dial.h"
#include "suite/frmRules.h"
#include "suite/highscores.h"
#include "suite/labels.h"
#include "suite/windowsteps.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace duopick;

namespace {
using K = ControlKind;

// Clear High Scores writes and shows a table of its own name, which the game
// never plays into: the played table survives the command.
const char* const kClearedTable = "DuopickHiScores";
const char* const kMenuScore = "30000";
constexpr int kDesignWidth = 9570;
constexpr int kDesignHeight = 7200;
// Where the standing controls were laid out: the right column keeps its
// distance from the window's right edge.
constexpr int kStandingWidth = 9540;
constexpr int kRightColumn = 8220;


// The board below the field: the stack, the count of its cards, and the
// pairs and runs made with what each pays.
const ControlSpec kBoard[] = {
    {K::Image, "CardStackPicture", -1, 1950, 4245, kCardWidth, kCardHeight},
    {K::Label, "lblCardCount", -1, 240, 4560, 1560, 255, "Cards remaining:"},
    {K::Label, "lblCards", -1, 240, 4860, 1560, 330, "28"},
    {K::Label, "lblPairs", -1, 4440, 4560, 1800, 255, "Pairs x "},
    {K::Label, "lblScorePairs", -1, 6300, 4500, 900, 330, "0"},
    {K::Label, "lblRuns", -1, 4440, 4980, 1800, 255, "Runs x "},
    {K::Label, "lblScoreRuns", -1, 6300, 4920, 900, 330, "0"},
};
// The big labels stand over the middle of the field.
const ControlSpec kMessages[] = {
    {K::Label, "lblMessage", -1, 817, 2520, 7200, 615},
    {K::Label, "lblScoring", -1, 817, 3240, 7200, 615},
};

std::vector<ControlSpec> Layout() {
    std::vector<ControlSpec> specs;
    const auto add = [&specs](std::span<const ControlSpec> part) { AppendControls(specs, part); };
    add(StandingControls());
    add(TakeScoreButton());
    add(ExitButton());
    add(ScoringLabel());
    // Row by row from the top: each lower row lies over the one above, and
    // each selection rectangle over its card.
    for (int i = 0; i <= kUpCard; ++i) {
        const CardPlace& place = kPlaces[static_cast<size_t>(i)];
        specs.push_back({K::Image, "PlayCard", i, place.left, place.top, kCardWidth, kCardHeight});
        specs.push_back({K::Shape, "FieldSelectionRectangle", i, place.left, place.top, kCardWidth, kCardHeight});
    }
    add(kBoard);
    add(GameMenus(kTimeEntries, "&User Options...", true));
    return specs;
}
}  // namespace

void RegisterDuopick(Runtime& runtime) {
    runtime.registerForm<frmDuopick>("frmDuopick");
    runtime.registerForm<frmDuopickCustomScoring>("frmDuopickCustomScoring");
    RegisterRules("Duopick!", DuopickRulesText);
}

frmDuopick::frmDuopick(Runtime& runtime) : GameForm(runtime, kGame, kDesignWidth, kDesignHeight) {
    add(Layout());
    for (auto part : {StandingControls(), TakeScoreButton(), ExitButton()})
        for (const ControlSpec& item : part)
            if (item.left >= kRightColumn && *item.container == '\0' && item.kind != K::Timer)
                RightColumn.add(c(item.name));
    PlaceControls(*this, kMessages);
    for (int i = 0; i <= kUpCard; ++i)
        for (const char* name : {"PlayCard", "FieldSelectionRectangle"}) BoardMoves.addWithSize(c(name, i));
    for (auto part : {std::span<const ControlSpec>(kBoard), std::span<const ControlSpec>(kMessages)})
        for (const ControlSpec& item : part) BoardMoves.addWithSize(c(item.name));
    PrepareStandingControls(*this);
    SetGameTimers(*this);
    for (int i = 0; i <= kUpCard; ++i) {
        c("PlayCard", i).setVisible(false);
        c("PlayCard", i).setBorderStyle(1);
        Control& selection = c("FieldSelectionRectangle", i);
        selection.setVisible(false);
        selection.setBorderColor(Colour::Red);
        selection.setBorderStyle(1);
        selection.setBackStyle(0);
    }
    c("CardStackPicture").setVisible(false);
    for (const char* count : {"lblCards", "lblScorePairs", "lblScoreRuns"}) {
        c(count).setFont("Arial", 12, true);
        c(count).setForeColor(Colour::Blue);
    }
    c("lblCards").setAlignment(Align::Center);
    for (const char* name : {"lblCardCount", "lblCards", "lblPairs", "lblScorePairs", "lblRuns", "lblScoreRuns"})
        c(name).setVisible(false);
    c("cmdExit").setToolTipText("Exits the game");
    c("cmdTakeScore").setToolTipText("End current round and take score");
    c("lblMessage").zOrderFront();
    c("lblScoring").zOrderFront();
    PlaceBoard();

    BindWindowEvents(
        *this, [this] { Form_Load(); }, [this] { Form_Resize(); }, [this](EventArgs& e) { Form_QueryUnload(e); });
    BindPlayAndPause(*this, [this](bool) { cmdPlay_Click(); }, [this] { cmdPause_Click(); });
    on("cmdTakeScore", Ev::Click, [this](EventArgs&) { cmdTakeScore_Click(); });
    on("mnuTakeScore", Ev::Click, [this](EventArgs&) { cmdTakeScore_Click(); });
    on("PlayCard", Ev::Click, [this](EventArgs& e) { PlayCard_Click(e.index); });
    on("CardStackPicture", Ev::Click, [this](EventArgs&) { CardStackPicture_Click(); });
    on("Timer1", Ev::Timer, [this](EventArgs&) { Timer1_Timer(); });
    BindShared();
    on("lblCurrentScore", Ev::Change, [this](EventArgs&) { CentreLabelIn(*this, "lblCurrentScore", "ScoreRectangle"); });
    on("lblCurrentRound", Ev::Change, [this](EventArgs&) { CentreLabelIn(*this, "lblCurrentRound", "RoundRectangle"); });
    BindTimeAndDeckMenus(kTimeEntries, kDeckMenus, [this](const char* menu) { mnuTime_Click(menu); },
                         [this](int design) { mnuDeck_Click(design); });
    on("mnuCustom", Ev::Click, [this](EventArgs&) { this->runtime().show("frmDuopickCustomScoring", true); });
    on("mnuClear", Ev::Click, [this](EventArgs&) { mnuClear_Click(); });

    ExposeVariables({
        {"PairsBonus", Expose(Scoring.PairsBonus)},
        {"RunsBonus", Expose(Scoring.RunsBonus)},
        {"BonusScore", Expose(Scoring.BonusScore)},
        {"CompletionBonus", Expose(Scoring.CompletionBonus)},
        {"DeckCards", Expose(Board.deckCards)},
        {"UpCards", Expose(Board.upCards)},
        {"WastePos", Expose(Board.wastePos)},
        {"StackIndex", Expose(Board.stackIndex)},
        {"CardsRemaining", Expose(CardsRemaining)},
        {"CardsSelected", Expose(Board.cardsSelected)},
        {"FirstCardValue", Expose(Board.firstCardValue)},
        {"FirstCardIndex", Expose(Board.firstCardIndex)},
        {"PairsCount", Expose(PairsCount)},
        {"RunsCount", Expose(RunsCount)},
        {"RoundCompleted", Expose(RoundCompleted)},
        {"CurrentRound", Expose(CurrentRound)},
    });
}

// ---- Loading and closing ----------------------------------------------------------

SettingsLayout frmDuopick::SettingsSections() {
    // A scoring value; a number out of its range changes nothing.
    const auto number = [](const char* name, int32_t& setting) {
        return SettingsSection{name, [&setting](const std::string& v) { setting = CLng(Val(v)); },
                               [&setting] { return NumText(setting); }};
    };
    SettingsLayout layout = {
        PlayMusicSection(*this),
        TimeSection(*this, kTimeEntries),
        PlaySoundsSection(*this),
        PlayMusicSection(*this),
        {"[Count Down Score]", [](const std::string& v) { CountDownScore = ParseBoolText(v); },
         [] { return std::string(BoolText(CountDownScore)); }},
        number("[Pairs Bonus]", Scoring.PairsBonus),
        number("[Runs Bonus]", Scoring.RunsBonus),
        number("[Time Bonus]", TimeBonus),
        number("[Bonus Score]", Scoring.BonusScore),
        number("[Completion Bonus]", Scoring.CompletionBonus),
    };
    AddClosingSections(layout, *this, kDesignWidth, kDesignHeight, kDeckMenus);
    return layout;
}

void frmDuopick::Form_Load() {
    BeginLoad();
    Scoring = {};
    TimeBonus = kDefaultTimeBonus;
    ShowWelcome(*this);
    ReadSettings();
    CheckForCustom();
    ShowBonusLabels();
    CompleteLoad();
}

// The clock runs on while the question stands.
void frmDuopick::Form_QueryUnload(EventArgs& args) { ConfirmClose(args); }

void frmDuopick::CheckForCustom() {
    CustomScoringInUse = IsCustom(Scoring, TimeBonus);
}

void frmDuopick::ShowBonusLabels() {
    c("lblPairs").setCaption("Pairs x " + FormatScore(Scoring.PairsBonus));
    c("lblRuns").setCaption("Runs x " + FormatScore(Scoring.RunsBonus));
}

// ---- Resizing -------------------------------------------------------------------------

// The cards keep their size: a resize only places the board in the middle
// of the window, the command column at its right edge and the status bar
// at its bottom.
void frmDuopick::Form_Resize() {
    if (ResizeToPlace()) PlaceBoard();
}

void frmDuopick::PlaceBoard() {
    const int clientHeight = height() - 660;
    const Offset at = CentredOffset(*this, kDesignWidth, kDesignHeight);
    Control& splash = c("frmSplash");
    splash.setLeft((width() - 120 - splash.width()) / 2);
    splash.setTop(480 + at.dy);
    RightColumn.shiftAcross(width() - kStandingWidth);
    PlaceStatusBar(*this);
    c("lblHighScore").setTop(clientHeight - 330 - 255 - 50);
    BoardMoves.shift(at.dx, at.dy);
}

// ---- Menus ----------------------------------------------------------------------------

void frmDuopick::mnuTime_Click(const char* menu) {
    ChooseTimeLimit(*this, kTimeEntries, menu);
    ShowHighScore(kTable, *this, kMenuScore);
}

void frmDuopick::mnuDeck_Click(int design) {
    ChooseBackDesign(*this, kDeckMenus[design - 1]);
    ShowStackStage();
    DeckDesign = static_cast<int16_t>(design);
}

// A running game that is not paused is paused while the question stands.
void frmDuopick::mnuClear_Click() {
    RunPausedIfRunning(*this, [this] {
        if (!AskYesNo(kClearScoresQuestion)) return;
        CreateHighScoreFile(kClearedTable, *this, kMenuScore);
        ShowHighScore(kClearedTable, *this, kMenuScore);
    });
}

}  // namespace ch
