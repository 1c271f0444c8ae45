// SPDX-License-Identifier: GPL-3.0-or-later
// The Spirehold window itself: its layout and menus, the constructor that
// binds the events, loading, closing, resizing, the settings file and the
// menu entries.
#include "games/spirehold/frmSpirehold.h"

#include <memory>
#include <vector>

#include "games/spirehold/frmSpireholdCustom.h"
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

using namespace spirehold;

std::string SpireholdRules();  // rulestext.cpp

namespace {
using K = ControlKind;



// The towers fill the top of the window; below them, from left to right, the
// score and round boxes, the stack and the up card, the run labels, the time
// dial and the command buttons at the right edge.
const ControlSpec kPlaces[] = {
    {K::Label, "lblScore", -1, 60, 4215, 1800, 255},
    {K::Shape, "ScoreRectangle", -1, 60, 4485, 1800, 375},
    {K::Label, "lblCurrentScore", -1, 105, 4545, 1710, 255},
    {K::Line, "ScoreBevelSide", -1, 1875, 4500, 0, 375},
    {K::Line, "ScoreBevelBottom", -1, 75, 4875, 1800, 0},
    {K::Label, "lblRound", -1, 60, 5010, 1800, 255},
    {K::Shape, "RoundRectangle", -1, 60, 5280, 1800, 375},
    {K::Label, "lblCurrentRound", -1, 105, 5340, 1710, 255},
    {K::Line, "RoundBevelSide", -1, 1875, 5295, 0, 375},
    {K::Line, "RoundBevelBottom", -1, 75, 5670, 1800, 0},
    {K::Label, "lblHighScore", -1, 4440, 5160, 2580, 255},
    {K::Label, "lblTime", -1, 7080, 4215, 1095, 255},
    {K::Shape, "TimerRectangle", -1, 7080, 4485, 1095, 1095},
    {K::PictureBox, "Surface", -1, 7125, 4530, 1005, 1005},
    {K::Line, "TimerBevelSide", -1, 8190, 4500, 0, 1095},
    {K::Line, "TimerBevelBottom", -1, 7095, 5595, 1095, 0},
    {K::Label, "lblMessage", -1, 1425, 1800, 6600, 615},
    {K::Label, "lblScoring", -1, 1425, 2520, 6600, 615},
    {K::Frame, "frmSplash", -1, 1965, 120, 5520, 4020},
};
const ControlSpec kButtonPlaces[] = {
    {K::Button, "cmdPlay", -1, 8250, 4215, 1095, 375},
    {K::Button, "cmdTakeScore", -1, 8250, 4650, 1095, 375},
    {K::Button, "cmdPause", -1, 8250, 5085, 1095, 375},
    {K::Button, "cmdExit", -1, 8250, 5520, 1095, 375},
};

const ControlSpec kBoard[] = {
    {K::Image, "CardStackPicture", -1, kStackLeft, kPilesTop, 1035, kCardHeight},
    {K::Image, "UpCardPicture", -1, kUpCardLeft, kPilesTop, 1035, kCardHeight},
    {K::Label, "lblCardCount", -1, 2100, 5760, 1500, 255, "Cards remaining:"},
    {K::Label, "lblCards", -1, 3600, 5760, 735, 255},
    {K::Label, "lblCurrentRun", -1, 4440, 4260, 2580, 255, "Current Run:"},
    {K::Label, "lblHighRun", -1, 4440, 4560, 2580, 255, "Highest Run:"},
    {K::Label, "lblNextCard", -1, 4440, 4860, 2580, 255, "Next card worth:"},
    {K::Label, "lblTower1", -1, 865, 60, 1465, 255, "Tower 1 completed!"},
    {K::Label, "lblTower2", -1, 4015, 60, 1465, 255, "Tower 2 completed!"},
    {K::Label, "lblTower3", -1, 7150, 60, 1465, 255, "Tower 3 completed!"},
};

std::vector<ControlSpec> Menus() {
    std::vector<ControlSpec> m = {
        {K::Menu, "mnuGame", -1, 0, 0, 0, 0, "&Game"},
        {K::Menu, "mnuPlay", -1, 0, 0, 0, 0, "&Play", "mnuGame"},
        {K::Menu, "mnuTakeScore", -1, 0, 0, 0, 0, "&Take Score", "mnuGame"},
        {K::Menu, "mnuPause", -1, 0, 0, 0, 0, "Pau&se", "mnuGame"},
        {K::Menu, "mnuExit", -1, 0, 0, 0, 0, "E&xit", "mnuGame"},
    };
    for (const ControlSpec& spec : OptionsMenuHead()) m.push_back(spec);
    m.push_back({K::Menu, "mnuCustom", -1, 0, 0, 0, 0, "&User Options...", "mnuOptions"});
    m.push_back({K::Menu, "mnuClearHighRun", -1, 0, 0, 0, 0, "Clear &High Run", "mnuOptions"});
    for (const ControlSpec& spec : OptionsMenuTail()) m.push_back(spec);
    for (const TimeEntry& e : kTimeEntries) m.push_back({K::Menu, e.menu, -1, 0, 0, 0, 0, e.caption, "mnuTime"});
    for (const ControlSpec& spec : HelpMenu()) m.push_back(spec);
    return m;
}

std::vector<ControlSpec> Layout() {
    std::vector<ControlSpec> specs;
    const auto add = [&specs](std::span<const ControlSpec> part) { AppendControls(specs, part); };
    add(StandingControls());
    add(TakeScoreButton());
    add(ExitButton());
    add(ScoringLabel());
    for (int i = 0; i < kTowerCards; ++i) {
        const TowerPlace& place = kTowerPlaces[static_cast<size_t>(i)];
        specs.push_back({K::Image, "UpCardImage", i, place.left, place.top, kCardWidth, kCardHeight});
    }
    add(kBoard);
    add(Menus());
    return specs;
}

// The client area's height at the window's design size.
constexpr int kDesignClientHeight = kDesignHeight - 660;

}  // namespace

void RegisterSpirehold(Runtime& runtime) {
    runtime.registerForm<frmSpirehold>("frmSpirehold");
    runtime.registerForm<frmSpireholdCustom>("frmSpireholdCustom");
    RegisterRules("Spirehold!", SpireholdRules);
}

frmSpirehold::frmSpirehold(Runtime& runtime) : GameForm(runtime, kGame, kDesignWidth, kDesignHeight) {
    add(Layout());
    PlaceControls(*this, kPlaces);
    PlaceControls(*this, kButtonPlaces);
    // Everything but the buttons, the status bar and the big labels moves
    // with the board; the buttons keep to the right edge.
    for (int i = 0; i < kTowerCards; ++i) BoardMoves.add(c("UpCardImage", i));
    for (const ControlSpec& spec : kBoard) BoardMoves.add(c(spec.name));
    for (const ControlSpec& spec : kPlaces) {
        const std::string name = spec.name;
        if (name != "lblMessage" && name != "lblScoring") BoardMoves.add(c(spec.name));
    }
    for (const ControlSpec& button : kButtonPlaces) Buttons.add(c(button.name));
    PrepareStandingControls(*this);
    SetGameTimers(*this);
    c("cmdExit").setToolTipText("Exits the game");
    c("cmdTakeScore").setToolTipText("End current round and take score");
    c("lblCards").setToolTipText("Displays your Current Score");
    for (int i = 0; i < kTowerCards; ++i) {
        Control& card = c("UpCardImage", i);
        card.setVisible(false);
        card.setBorderStyle(1);
    }
    for (const char* name : {"CardStackPicture", "UpCardPicture"}) c(name).setVisible(false);
    HideTowerLabels();
    // The messages stand over the towers.
    c("lblMessage").zOrderFront();
    c("lblScoring").zOrderFront();

    BindWindowEvents(
        *this, [this] { Form_Load(); }, [this] { Form_Resize(); }, [this](EventArgs& e) { Form_QueryUnload(e); });
    BindPlayAndPause(*this, [this](bool fromMenu) { cmdPlay_Click(fromMenu); }, [this] { cmdPause_Click(); });
    on("cmdTakeScore", Ev::Click, [this](EventArgs&) { cmdTakeScore_Click(); });
    on("mnuTakeScore", Ev::Click, [this](EventArgs&) { cmdTakeScore_Click(); });
    on("UpCardImage", Ev::Click, [this](EventArgs& e) { UpCardImage_Click(e.index); });
    on("CardStackPicture", Ev::Click, [this](EventArgs&) { CardStackPicture_Click(); });
    on("UpCardPicture", Ev::Click, [this](EventArgs&) { UpCardPicture_Click(); });
    on("lblCurrentRun", Ev::Change, [this](EventArgs&) { lblCurrentRun_Change(); });
    on("lblCurrentScore", Ev::Change, [this](EventArgs&) { CentreLabelIn(*this, "lblCurrentScore", "ScoreRectangle"); });
    on("lblCurrentRound", Ev::Change, [this](EventArgs&) { CentreLabelIn(*this, "lblCurrentRound", "RoundRectangle"); });
    on("Timer1", Ev::Timer, [this](EventArgs&) { Timer1_Timer(); });
    BindShared();
    BindTimeAndDeckMenus(kTimeEntries, kDeckMenus, [this](const char* menu) { mnuTime_Click(menu); },
                         [this](int design) { mnuDeck_Click(design); });
    on("mnuCustom", Ev::Click, [this](EventArgs&) { this->runtime().show("frmSpireholdCustom", true); });
    on("mnuClearHighRun", Ev::Click, [this](EventArgs&) { mnuClearHighRun_Click(); });
    on("mnuClear", Ev::Click, [this](EventArgs&) { mnuClear_Click(); });

    ExposeVariables({
        {"CardValue", Expose(Scoring.CardValue)},
        {"BonusScore", Expose(Scoring.BonusScore)},
        {"HighRunBonus", Expose(Scoring.HighRunBonus)},
        {"TowerBonus", Expose(Scoring.TowerBonus)},
        {"StackIndex", Expose(Board.stackIndex)},
        {"UpCardCode", Expose(Board.upCardCode)},
        {"UpCardValue", Expose(Board.upCardValue)},
        {"CurrentRun", Expose(CurrentRun)},
        {"HighestRun", Expose(HighestRun)},
        {"RunValue", Expose(RunValue)},
        {"CardsRemaining", Expose(CardsRemaining)},
        {"TowersCompleted", Expose(TowersCompleted)},
        {"NewHighRun", Expose(NewHighRun)},
        {"CurrentRound", Expose(CurrentRound)},
        {"DeckCards", Expose(Board.deckCards)},
    });
}

// ---- Loading and closing ---------------------------------------------------------

SettingsLayout frmSpirehold::SettingsSections() {
    SettingsLayout layout = {
        PlayMusicSection(*this),
        TimeSection(*this, kTimeEntries),
        PlaySoundsSection(*this),
        NumberSection("[Hi Run]", HighestRun),
        NumberSection("[Card Bonus]", Scoring.CardValue),
        NumberSection("[Bonus Score]", Scoring.BonusScore),
        NumberSection("[Tower Bonus]", Scoring.TowerBonus),
        NumberSection("[High Run Bonus]", Scoring.HighRunBonus),
        CountDownSection(),
        NumberSection("[Time Bonus]", TimeBonus),
    };
    for (SettingsSection& section : WindowSizeSections(*this, kDesignWidth, kDesignHeight)) layout.push_back(section);
    layout.push_back(DeckSection(*this));
    return layout;
}

void frmSpirehold::Form_Load() {
    BeginLoad();
    Scoring = {};
    TimeBonus = kDefaultTimeBonus;
    ShowWelcome(*this);
    ReadSettings();
    CheckForCustom();
    CompleteLoad();
}

void frmSpirehold::Form_QueryUnload(EventArgs& args) {
    ConfirmClose(args);
}

void frmSpirehold::CheckForCustom() {
    CustomScoringInUse = IsCustomScoring(Scoring, TimeBonus);
}

// ---- Resize ------------------------------------------------------------------------

// The cards keep their size: card 1 stays centred in the window and the rest
// of the board keeps its shape around it; the buttons keep to the right edge
// and the status bar to the bottom.
void frmSpirehold::Form_Resize() {
    if (ResizeToPlace()) PlaceBoard();
}

void frmSpirehold::PlaceBoard() {
    const int clientWidth = width() - 120;
    const int clientHeight = height() - 660;
    const int dx = (clientWidth - kCardWidth) / 2 - kTowerPlaces[1].left;
    const int dy = (clientHeight - kDesignClientHeight) / 2;
    BoardMoves.shift(dx, dy);
    Buttons.shift(width() - kDesignWidth, dy);
    PlaceStatusBar(*this);
    // The count-ups centre lblScoring on the window's width; lblMessage
    // stands centred above it.
    for (const char* big : {"lblMessage", "lblScoring"}) {
        Control& label = c(big);
        label.setLeft((width() - label.width()) / 2);
    }
    c("lblMessage").setTop(1800 + dy);
    c("lblScoring").setTop(2520 + dy);
}

// ---- Menus ----------------------------------------------------------------------------

void frmSpirehold::mnuTime_Click(const char* menu) {
    ChooseTimeLimit(*this, kTimeEntries, menu);
    ShowHighScore(kTable, *this, kDefaultScore);
}

void frmSpirehold::mnuDeck_Click(int design) {
    ChooseBackDesign(*this, kDeckMenus[design - 1]);
    RefreshPlayCard();
    RefreshFieldCards();
    DeckDesign = static_cast<int16_t>(design);
}

void frmSpirehold::mnuClear_Click() {
    ClearTable();
}

// A running game is paused while the question stands and resumed after it.
void frmSpirehold::mnuClearHighRun_Click() {
    const bool pauseFirst = GameRunning();
    if (pauseFirst) cmdPause_Click();
    if (MsgBox("This will clear the current high run value. Are you sure?", MsgButtons::YesNo, MsgIcon::Question,
               AppTitle) == MsgAnswer::Yes) {
        HighestRun = 0;
        c("lblHighRun").setCaption("Highest Run: " + NumText(HighestRun));
    }
    if (pauseFirst) cmdPause_Click();
}

// Running: cmdPause enabled and lblMessage neither "Game Paused" nor "Game Over".
bool frmSpirehold::GameRunning() const {
    const std::string& message = c("lblMessage").caption();
    return c("cmdPause").enabled() && message != kGamePaused && message != kGameOver;
}

}  // namespace ch
