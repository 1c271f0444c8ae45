// SPDX-License-Identifier: GPL-3.0-or-later
// The Sumfall window itself: its layout tables and menus, the wiring of its
// events, loading, closing, resizing, the settings file and the menu
// handlers. The board (deal, clicks, combinations, piles) is in
// frmSumfallBoard.cpp, the rounds (Play, pause, the clock, take score,
// bonus round, end of game, replay and saved games) in frmSumfallRounds.cpp.
#include "games/sumfall/frmSumfall.h"

#include <algorithm>
#include <functional>
#include <memory>

#include "games/sumfall/frmSave.h"
#include "games/sumfall/frmSumfallCustomScoring.h"
#include "suite/cards.h"
#include "suite/common.h"
#include "suite/dial.h"
#include "suite/frmRules.h"
#include "suite/highscores.h"
#include "suite/labels.h"
#include "suite/windowsteps.h"
#include "suite/sound.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace sumfall;

namespace {
using K = ControlKind;
constexpr int kCardWidth = frmSumfall::kCardWidth;
constexpr int kCardHeight = frmSumfall::kCardHeight;
constexpr auto& kGoalMenus = frmSumfall::kGoalMenus;

const char* const kGoalCaptions[6] = {"1&0", "1&1 (Default)", "1&2", "1&3", "1&4", "1&5"};

// Sumfall's own places for the standing controls: the field takes the middle
// of the window, so the boxes stand in a row above it and the buttons at the
// right edge.
const ControlPlace kStandingPlaces[] = {
    {"cmdPlay", 8220, 60, 1095, 300},
    {"cmdTakeScore", 8220, 375, 1095, 300},
    {"cmdPause", 8220, 690, 1095, 300},
    {"cmdExit", 8220, 1005, 1095, 300},
    {"lblTime", 120, 60, 1005, 255},
    {"TimerRectangle", 120, 330, 1005, 1005},
    {"Surface", 165, 375, 915, 915},
    {"TimerBevelSide", 1140, 345, 0, 1005},
    {"TimerBevelBottom", 135, 1350, 1005, 0},
    {"lblScore", 1440, 60, 2100, 255},
    {"ScoreRectangle", 1440, 330, 2100, 450},
    {"lblCurrentScore", 1485, 390, 2010, 330},
    {"ScoreBevelSide", 3555, 345, 0, 450},
    {"ScoreBevelBottom", 1455, 795, 2100, 0},
    {"lblHighScore", 1440, 960, 3000, 255},
    {"lblRound", 3720, 60, 900, 255},
    {"RoundRectangle", 3720, 330, 900, 450},
    {"lblCurrentRound", 3765, 390, 810, 330},
    {"RoundBevelSide", 4635, 345, 0, 450},
    {"RoundBevelBottom", 3735, 795, 900, 0},
    {"lblMessage", 1552, 3305, 6600, 615},
};

const ControlSpec kBoard[] = {
    {K::Label, "lblElevens", -1, 4800, 60, 1200, 255, "Elevens:"},
    {K::Shape, "ElevensRectangle", -1, 4800, 330, 1200, 450},
    {K::Label, "lblCurrentElevens", -1, 4845, 390, 1110, 330, "0"},
    {K::Line, "ElevensBevelSide", -1, 6015, 345, 0, 450},
    {K::Line, "ElevensBevelBottom", -1, 4815, 795, 1200, 0},
    {K::Image, "PlayCardPicture", -1, 2880, 4500, kCardWidth, kCardHeight},
    {K::Image, "UpCardPicture", -1, 5760, 4500, kCardWidth, kCardHeight},
    {K::Shape, "UpCardSelectionRectangle", -1, 5760, 4500, kCardWidth, kCardHeight},
    {K::Label, "lblTotal", -1, 4170, 4560, 1365, 255, "Card Total"},
    {K::Shape, "CardTotalRectangle", -1, 4395, 4860, 915, 450},
    {K::Label, "lblCurrentTotal", -1, 4440, 4920, 825, 330, "0"},
    {K::Line, "CardTotalBevelSide", -1, 5325, 4875, 0, 450},
    {K::Line, "CardTotalBevelBottom", -1, 4410, 5325, 915, 0},
    {K::Label, "lblCardCount", -1, 4170, 5460, 1365, 255, "Cards:"},
};

std::vector<ControlSpec> Menus() {
    std::vector<ControlSpec> m = {
        {K::Menu, "mnuFile", -1, 0, 0, 0, 0, "&Game"},
        {K::Menu, "mnuPlay", -1, 0, 0, 0, 0, "&Play", "mnuFile"},
        {K::Menu, "mnuTakeScore", -1, 0, 0, 0, 0, "&Take Score", "mnuFile"},
        {K::Menu, "mnuPause", -1, 0, 0, 0, 0, "Pau&se", "mnuFile"},
        {K::Menu, "mnuSave", -1, 0, 0, 0, 0, "Sa&ve Last Game...", "mnuFile"},
        {K::Menu, "mnuOpen", -1, 0, 0, 0, 0, "&Open Game...", "mnuFile"},
        {K::Menu, "mnuExit", -1, 0, 0, 0, 0, "E&xit", "mnuFile"},
        {K::Menu, "mnuOptions", -1, 0, 0, 0, 0, "&Options"},
        {K::Menu, "mnuViewHiScore", -1, 0, 0, 0, 0, "&View High Scores...", "mnuOptions"},
        {K::Menu, "mnuClear", -1, 0, 0, 0, 0, "&Cear High Scores...", "mnuOptions"},
        {K::Menu, "mnuMusic", -1, 0, 0, 0, 0, "Play &Music (plays during game)", "mnuOptions"},
        {K::Menu, "mnuSounds", -1, 0, 0, 0, 0, "&Play Sounds", "mnuOptions"},
        {K::Menu, "mnuDrawTimer", -1, 0, 0, 0, 0, "Count &Down when taking score", "mnuOptions"},
        {K::Menu, "mnuScoring", -1, 0, 0, 0, 0, "C&ustomize Scoring...", "mnuOptions"},
        {K::Menu, "mnuTime", -1, 0, 0, 0, 0, "&Time Limit", "mnuOptions"},
    };
    for (const TimeEntry& e : kTimeEntries) m.push_back({K::Menu, e.menu, -1, 0, 0, 0, 0, e.caption, "mnuTime"});
    m.push_back({K::Menu, "mnuGoal", -1, 0, 0, 0, 0, "Card &Goal", "mnuOptions"});
    for (int i = 0; i < 6; ++i) m.push_back({K::Menu, kGoalMenus[i], -1, 0, 0, 0, 0, kGoalCaptions[i], "mnuGoal"});
    m.push_back({K::Menu, "mnuColor", -1, 0, 0, 0, 0, "Selection &Color", "mnuOptions"});
    for (const SelectionColour& s : kSelectionColours) m.push_back({K::Menu, s.menu, -1, 0, 0, 0, 0, s.caption, "mnuColor"});
    m.push_back({K::Menu, "mnuDeck", -1, 0, 0, 0, 0, "Dec&k", "mnuOptions"});
    for (const BackDesign& d : kBackDesigns) m.push_back({K::Menu, d.menu, -1, 0, 0, 0, 0, d.caption, "mnuDeck"});
    return m;
}

std::vector<ControlSpec> Layout() {
    std::vector<ControlSpec> specs;
    const auto add = [&specs](std::span<const ControlSpec> part) { AppendControls(specs, part); };
    add(StandingControls());
    add(TakeScoreButton());
    add(ExitButton());
    // Each selection rectangle lies on its card; a lower row covers both.
    for (int i = 0; i < kFieldPlaces; ++i) {
        specs.push_back({K::Image, "FieldCardPicture", i, 0, 0, kCardWidth, kCardHeight});
        specs.push_back({K::Shape, "FieldSelectionRectangle", i, 0, 0, kCardWidth, kCardHeight});
    }
    add(kBoard);
    add(Menus());
    add(HelpMenu());
    return specs;
}

// The command line names a saved game for the first opening of the window only.
bool g_commandLineTaken = false;
}  // namespace

void RegisterSumfall(Runtime& runtime) {
    runtime.registerForm<frmSumfall>("frmSumfall");
    runtime.registerForm<frmSumfallCustomScoring>("frmSumfallCustomScoring");
    runtime.registerForm<frmSave>("frmSave");
    runtime.registerForm<frmOpen>("frmOpen");
    RegisterRules("Sumfall!", SumfallRules);
}

frmSumfall::frmSumfall(Runtime& runtime) : GameForm(runtime, kGame, kDesignWidth, kDesignHeight) {
    add(Layout());
    PlaceControls(*this, kStandingPlaces);
    PrepareStandingControls(*this);
    SetTimer(*this, "Timer1", 1000, false);
    SetTimer(*this, "Timer2", 200, false);
    SetTimer(*this, "Timer3", 60000, true);
    SetTimer(*this, "Timer4", 250, true);
    for (int i = 0; i < kFieldPlaces; ++i) {
        Control& card = c("FieldCardPicture", i);
        card.setVisible(false);
        card.setMousePointer(Pointer::Custom);
        card.setBorderStyle(1);
        card.setToolTipText(NumText(kField[static_cast<size_t>(i)].points) + " points");
        c("FieldSelectionRectangle", i).setVisible(false);
        c("FieldSelectionRectangle", i).setBorderStyle(1);
    }
    for (const char* name : {"PlayCardPicture", "UpCardPicture"}) {
        c(name).setMousePointer(Pointer::Custom);
        c(name).setVisible(false);
    }
    c("UpCardPicture").setToolTipText("100 points");
    c("UpCardSelectionRectangle").setVisible(false);
    c("UpCardSelectionRectangle").setBorderStyle(1);
    c("lblCardCount").setVisible(false);
    for (const char* name : {"lblCurrentElevens", "lblCurrentTotal"}) {
        c(name).setAlignment(Align::Center);
        c(name).setForeColor(Colour::Blue);
    }
    CardTotalVisible(false);
    // The messages stand over the field.
    c("lblMessage").zOrderFront();
    SelectionColor(kDefaultSelectionColour);
    // The field and the piles under it stand relative to a point that a
    // resize keeps in proportion to the window; the piles and the card total
    // follow the bottom row.
    for (int i = 0; i < kFieldPlaces; ++i) {
        const FieldPlace& place = kField[static_cast<size_t>(i)];
        for (const char* name : {"FieldCardPicture", "FieldSelectionRectangle"})
            BoardMoves.add(c(name, i), place.dx, place.dy, kCardWidth, kCardHeight);
    }
    constexpr int kPileTop = 2500 + 600;
    BoardMoves.add(c("PlayCardPicture"), -1440, kPileTop, kCardWidth, kCardHeight);
    BoardMoves.add(c("UpCardPicture"), 1440, kPileTop, kCardWidth, kCardHeight);
    BoardMoves.add(c("UpCardSelectionRectangle"), 1440, kPileTop, kCardWidth, kCardHeight);
    BoardMoves.add(c("lblTotal"), -150, kPileTop + 60, 1365, 255);
    BoardMoves.add(c("CardTotalRectangle"), 75, kPileTop + 360, 915, 450);
    BoardMoves.add(c("CardTotalBevelSide"), 1005, kPileTop + 375, 0, 450);
    BoardMoves.add(c("CardTotalBevelBottom"), 90, kPileTop + 825, 915, 0);
    PlaceBoard();

    BindWindowEvents(
        *this, [this] { Form_Load(); }, [this] { Form_Resize(); }, [this](EventArgs& e) { Form_QueryUnload(e); });
    on(Ev::Activate, [this](EventArgs&) { Form_Activate(); });
    BindPlayAndPause(*this, [this](bool fromMenu) { cmdPlay_Click(fromMenu); }, [this] { cmdPause_Click(); });
    on("cmdTakeScore", Ev::Click, [this](EventArgs&) { cmdTakeScore_Click(false); });
    on("mnuTakeScore", Ev::Click, [this](EventArgs&) { cmdTakeScore_Click(true); });
    // A combination or a flip that takes the score past its 32-bit range
    // ends the game with the platform's message.
    const auto guarded = [this](std::function<void(EventArgs&)> click) {
        return [this, click](EventArgs& e) {
            try {
                click(e);
            } catch (const RuntimeError& error) {
                EndOnError(error);
            }
        };
    };
    on("FieldCardPicture", Ev::Click, guarded([this](EventArgs& e) { FieldCardPicture_Click(e.index); }));
    on("FieldCardPicture", Ev::MouseMove, [this](EventArgs& e) { FieldCardPicture_MouseMove(e.index); });
    on("UpCardPicture", Ev::Click, guarded([this](EventArgs&) { UpCardPicture_Click(); }));
    on("UpCardPicture", Ev::MouseMove, [this](EventArgs&) { UpCardPicture_MouseMove(); });
    on("PlayCardPicture", Ev::Click, guarded([this](EventArgs&) { PlayCardPicture_Click(); }));
    on("PlayCardPicture", Ev::MouseMove, [this](EventArgs&) { PlayCardPicture_MouseMove(); });
    on("Timer1", Ev::Timer, [this](EventArgs&) { Timer1_Timer(); });
    BindShared({.face = {ImageCatalogue::kSplashEmblem}});
    on("lblCurrentScore", Ev::Change, [this](EventArgs&) { lblCurrentScore_Change(); });
    on("lblMessage", Ev::Change, [this](EventArgs&) { lblMessage_Change(); });
    on("lblCurrentRound", Ev::Change, [this](EventArgs&) { CentreLabelIn(*this, "lblCurrentRound", "RoundRectangle"); });
    on("lblCurrentElevens", Ev::Change, [this](EventArgs&) { CentreLabelIn(*this, "lblCurrentElevens", "ElevensRectangle"); });
    on("lblCurrentTotal", Ev::Change, [this](EventArgs&) { CentreLabelIn(*this, "lblCurrentTotal", "CardTotalRectangle"); });
    BindTimeAndDeckMenus(kTimeEntries, kDeckMenus, [this](const char* menu) { mnuTime_Click(menu); },
                         [this](int design) { mnuDeck_Click(design); });
    for (int goal = 10; goal <= 15; ++goal)
        on(kGoalMenus[goal - 10], Ev::Click, [this, goal](EventArgs&) { mnuGoal_Click(goal); });
    for (int i = 0; i < 6; ++i)
        on(kSelectionColours[static_cast<size_t>(i)].menu, Ev::Click, [this, i](EventArgs&) { mnuColor_Click(i); });
    on("mnuDrawTimer", Ev::Click, [this](EventArgs&) { mnuDrawTimer_Click(); });
    on("mnuScoring", Ev::Click, [this](EventArgs&) { this->runtime().show("frmSumfallCustomScoring", true); });
    on("mnuViewHiScore", Ev::Click, [this](EventArgs&) {
        RunPausedIfRunning(*this, [this] { this->runtime().show("frmHighScores", true); });
    });
    on("mnuClear", Ev::Click, [this](EventArgs&) { mnuClear_Click(); });
    on("mnuSave", Ev::Click, [this](EventArgs&) { this->runtime().show("frmSave", true); });
    on("mnuOpen", Ev::Click, [this](EventArgs&) { this->runtime().show("frmOpen", true); });

    ExposeVariables({
        {"BonusRoundScore", Expose(Scoring.BonusRoundScore)},
        {"CompletionBonus", Expose(Scoring.CompletionBonus)},
        {"CombinationBonus", Expose(Scoring.CombinationBonus)},
        {"Round1Deck", Expose(Round1Deck)},
        {"Round2Deck", Expose(Round2Deck)},
        {"Round3Deck", Expose(Round3Deck)},
        {"UpCards", Expose(Board.up)},
        {"UpCardIndex", Expose(Board.upIndex)},
        {"StockCards", Expose(Board.stock)},
        {"StockIndex", Expose(Board.stockIndex)},
        {"CurrentTotal", Expose(Board.total)},
        {"CombinationCount", Expose(CombinationCount)},
        {"CurrentRound", Expose(CurrentRound)},
        {"SelectionColorIndex", Expose(SelectionColorIndex)},
        {"ReplayPending", Expose(ReplayPending)},
        {"CountDownScore", Expose(CountDownScore)},
        {"CardGoal", Expose(CardGoal)},
    });
    expose("FieldCards", [this](int index, Value& out) {
        if (index < 0 || index >= kFieldPlaces) return false;
        out = Board.field[static_cast<size_t>(index)];
        return true;
    });
}

// ---- Loading and closing ---------------------------------------------------------

SettingsLayout frmSumfall::SettingsSections() {
    SettingsLayout layout = {
        {"[Color]",
         [this](const std::string& v) {
             for (int i = 0; i < 6; ++i)
                 if (v == NumText(i)) mnuColor_Click(i);
         },
         [this] { return NumText(SelectionColorIndex); }},
        PlayMusicSection(*this),
        TimeSection(*this, kTimeEntries),
        {"[DrawTimer]",
         [this](const std::string& v) {
             CountDownScore = ParseBoolText(v);
             c("mnuDrawTimer").setChecked(CountDownScore);
         },
         [this] { return std::string(BoolText(CountDownScore)); }},
        PlaySoundsSection(*this),
        {"[CardGoal]",
         [this](const std::string& v) {
             for (const char* menu : kGoalMenus) c(menu).setChecked(false);
             const int goal = static_cast<int>(Val(v));
             if (goal >= 10 && goal <= 15) {
                 c(kGoalMenus[goal - 10]).setChecked(true);
                 c("lblElevens").setCaption(CardGoalWord(goal));
             }
             CardGoal = CInt(Val(v));
         },
         [] { return NumText(CardGoal); }},
    };
    for (SettingsSection& section : WindowSizeSections(*this, kDesignWidth, kDesignHeight)) layout.push_back(section);
    layout.push_back(DeckSection(*this, kDeckMenus));
    return layout;
}

void frmSumfall::Form_Load() {
    BeginLoad();
    CountDownScore = true;
    CardGoal = kDefaultCardGoal;
    Scoring = {};
    TimeBonus = kDefaultTimeBonus;
    CustomScoringInUse = false;
    c("mnu11").setChecked(true);
    c("mnuDrawTimer").setChecked(true);
    c(kSelectionColours[kDefaultSelectionColour].menu).setChecked(true);
    c("lblElevens").setCaption(CardGoalWord(CardGoal));
    ShowWelcome(*this);
    ReadSettings();
    CompleteLoad();
}

// A saved game named on the command line is opened the first time the window
// comes up in a run.
void frmSumfall::Form_Activate() {
    if (CommandLine.empty() || g_commandLineTaken) return;
    g_commandLineTaken = true;
    LoadSavedGame(CommandLine);
}

void frmSumfall::Form_QueryUnload(EventArgs& args) {
    const bool pauseFirst = GameInProgress && c("cmdPause").caption() == kPauseCaption &&
                            c("lblMessage").caption() != kGameOver;
    if (pauseFirst) cmdPause_Click();
    ConfirmClose(args, pauseFirst, [this] { cmdPause_Click(); });
}

// The cards keep their size: a resize only places the board around the
// middle of the window, the buttons at its right edge.
void frmSumfall::Form_Resize() {
    if (ResizeToPlace()) PlaceBoard();
}

void frmSumfall::PlaceBoard() {
    const int clientWidth = width() - 120;
    const int clientHeight = height() - 660;
    Control& splash = c("frmSplash");
    splash.setLeft((clientWidth - splash.width()) / 2);
    splash.setTop(1440);
    KeepAtRightEdge(*this, {"cmdPlay", "cmdTakeScore", "cmdPause", "cmdExit"});
    PlaceStatusBar(*this);

    const int x = CLng(width() / 2.208333333333);
    const int y = CLng(height() / 5.142857142857);
    BoardMoves.shift(x, y);
    // The card count stands above the status bar.
    const int pileTop = y + 2500 + 600;
    c("lblCardCount").move(x - 150, std::min(pileTop + 960, clientHeight - 330 - 255 - 50), 1365, 255);
    CentreLabelIn(*this, "lblCurrentTotal", "CardTotalRectangle");
    lblMessage_Change();
}

void frmSumfall::ShowScore() { c("lblCurrentScore").setCaption(FormatScore(CurrentScore)); }

void frmSumfall::lblCurrentScore_Change() {
    CentreLabelIn(*this, "lblCurrentScore", "ScoreRectangle");
    c("lblCurrentScore").setForeColor(CurrentScore < 0 ? Colour::Red : Colour::Blue);
}

// "Times Up!" and "Game Paused" stand at the piles, the rest over the field;
// always centred on the card total.
void frmSumfall::lblMessage_Change() {
    Control& message = c("lblMessage");
    const std::string& text = message.caption();
    if (text == kTimesUp || text == kGamePaused)
        message.setTop(c("PlayCardPicture").top());
    else
        message.setTop(c("FieldSelectionRectangle", 0).top() + 1905);
    const Control& total = c("lblTotal");
    message.setLeft(total.left() + total.width() / 2 - message.width() / 2);
}


// ---- Menus ----------------------------------------------------------------------------

void frmSumfall::mnuTime_Click(const char* menu) {
    ChooseTimeLimit(*this, kTimeEntries, menu);
    ShowHighScore(kTable, *this, kDefaultScore);
}

void frmSumfall::mnuGoal_Click(int goal) {
    for (const char* menu : kGoalMenus) c(menu).setChecked(false);
    c(kGoalMenus[goal - 10]).setChecked(true);
    c("lblElevens").setCaption(CardGoalWord(goal));
    CardGoal = static_cast<int16_t>(goal);
    ShowHighScore(kTable, *this, kDefaultScore);
    c("StatusBar1").setPanel(2, "Click on exposed cards to total " + NumText(CardGoal) + "!   ");
}

void frmSumfall::mnuColor_Click(int index) {
    SelectionColor(index);
    ClearColorCheck();
    c(kSelectionColours[static_cast<size_t>(index)].menu).setChecked(true);
}

void frmSumfall::mnuDeck_Click(int design) {
    ChooseBackDesign(*this, kDeckMenus[design - 1]);
    // The pictures take the new back: the play pile at once, the field and the up card while paused.
    Board.pileKey = PlayPileKey(Board.stockIndex + 1);
    c("PlayCardPicture").setPicture(ImageList2().indexOf(Board.pileKey));
    if (c("lblMessage").caption() == kGamePaused) ShowBoard();
    DeckDesign = static_cast<int16_t>(design);
}

void frmSumfall::mnuDrawTimer_Click() {
    CountDownScore = !CountDownScore;
    c("mnuDrawTimer").setChecked(CountDownScore);
}

void frmSumfall::mnuClear_Click() {
    ClearTable();
}

}  // namespace ch
