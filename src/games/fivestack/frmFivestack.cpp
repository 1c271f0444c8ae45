// SPDX-License-Identifier: GPL-3.0-or-later
// The Fivestack window: its layout, its menus, the constructor that binds the
// events, Form_Load, closing, resizing, the settings file and the menu
// handlers. The board and the rounds live in frmFivestackBoard.cpp and
// frmFivestackRounds.cpp.
#include "games/fivestack/frmFivestack.h"

#include <memory>
#include <vector>

#include "games/fivestack/frmFivestackCustomScoring.h"
#include "suite/cards.h"
#include "suite/common.h"
#include "suite/dial.h"
#include "suite/highscores.h"
#include "suite/labels.h"
#include "suite/windowsteps.h"
#include "suite/sound.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace fivestack;

namespace {
using K = ControlKind;



// Fivestack's own places for the standing controls: the Time Bonus box with
// the dial under it, the score and round stand in the top band beside the
// deck, the buttons at the right edge above the Card Total.
const ControlPlace kStandingPlaces[] = {
    {"cmdPlay", 8220, 120, 1095, 375},
    {"cmdPause", 8220, 555, 1095, 375},
    {"cmdQuit", 8220, 990, 1095, 375},
    {"lblTime", 4560, 60, 1200, 255},
    {"TimerRectangle", 4560, 330, 1200, 450},
    {"TimerBevelSide", 5775, 345, 0, 450},
    {"TimerBevelBottom", 4575, 795, 1200, 0},
    {"Surface", 4740, 885, 840, 840},
    {"lblScore", 6000, 60, 2055, 255},
    {"ScoreRectangle", 6000, 330, 2055, 450},
    {"ScoreBevelSide", 8070, 345, 0, 450},
    {"ScoreBevelBottom", 6015, 795, 2055, 0},
    {"lblRound", 6000, 900, 2055, 255},
    {"lblHighScore", 6000, 1170, 2160, 255},
    {"frmSplash", 1080, 1800, 5520, 4440},
};
// Standing controls this window does without: its messages stand in
// ScoringLabel, its score in lblTotalScore, its round in lblRound alone.
const char* const kUnused[] = {"lblMessage", "lblCurrentScore", "RoundRectangle", "lblCurrentRound",
                               "RoundBevelSide", "RoundBevelBottom"};

constexpr int kColumnLefts[kColumns] = {420, 1875, 3330, 4785, 6240};
constexpr int kSlotTops[kSlots] = {2550, 2940, 3345, 3750, 4140};
constexpr int kTotalLefts[kColumns] = {780, 2250, 3675, 5130, 6585};
constexpr int kSoftLefts[kColumns] = {930, 2385, 3810, 5265, 6720};
constexpr int kHitLefts[kColumns] = {405, 1860, 3315, 4770, 6225};

const ControlSpec kBoard[] = {
    {K::Image, "PlayCardPicture", -1, 420, 120, 1065, kCardHeight},
    {K::Image, "NextCardPicture", -1, 1875, 105, kCardWidth, kCardHeight},
    {K::Button, "cmdPass", -1, 3330, 150, 1065, 510, "&Pass"},
    {K::Label, "lblTimeBonus", -1, 4800, 390, 660, 300, ""},
    {K::Label, "lblTotalScore", -1, 6045, 390, 1965, 330, "0"},
    {K::Label, "lblCurrentRoundScore", -1, 7590, 1470, 1710, 255, "Card Total"},
    {K::Label, "lblCurrentTotal", -1, 8265, 1815, 750, 360, "0"},
    {K::Frame, "frmScore", -1, 7590, 2280, 1710, 3240, "Card Total Value"},
    {K::Button, "cmdGiveUp", -1, 7860, 5670, 1035, 555, "&Give Up"},
    {K::Shape, "ScoringLabelOutline", -1, 480, 2760, 6600, 1500},
    {K::Label, "ScoringLabelRoundTotal", -1, 1500, 3120, 2400, 435, ""},
    {K::Label, "ScoringLabel", -1, 3900, 3120, 2400, 435, ""},
    {K::Label, "ScoringLabelInfo", -1, 1500, 3600, 4500, 285, ""},
};

bool Unused(const char* name) {
    for (const char* unused : kUnused)
        if (std::string(name) == unused) return true;
    return false;
}

// Every control with its place at the design size.
const std::vector<ControlSpec>& Layout() {
    static const std::vector<ControlSpec> specs = [] {
        std::vector<ControlSpec> all;
        std::vector<ControlSpec> standing(StandingControls().begin(), StandingControls().end());
        AppendControls(standing, QuitButton());
        for (ControlSpec s : standing) {
            if (Unused(s.name)) continue;
            for (const ControlPlace& p : kStandingPlaces)
                if (std::string(s.name) == p.name) {
                    s.left = p.left;
                    s.top = p.top;
                    s.width = p.width;
                    s.height = p.height;
                }
            all.push_back(s);
        }
        for (int i = 0; i < kColumns; ++i) {
            for (int slot = 0; slot < kSlots; ++slot)
                all.push_back({K::Image, kColumnImages[i], slot, kColumnLefts[i], kSlotTops[slot], kCardWidth, kCardHeight});
            all.push_back({K::Label, "ColumnTotal", i, kTotalLefts[i], 1815, 495, 360, "0"});
            all.push_back({K::Label, "ColumnSoft", i, kSoftLefts[i], 2280, 495, 225, ""});
            all.push_back({K::Line, kColumnLines[i], -1, kColumnLefts[i], 2520, kCardWidth, 0});
            all.push_back({K::Button, "cmdHit", i, kHitLefts[i], 5670, kCardWidth, 570, "Hit"});
        }
        AppendControls(all, kBoard);
        for (size_t row = 0; row < kCardTotalRows.size(); ++row) {
            const CardTotalRow& r = kCardTotalRows[row];
            const int top = 300 + static_cast<int>(row) * 285;
            all.push_back({K::Label, r.rowLabel, -1, 240, top, 600, 255, r.caption, "frmScore"});
            all.push_back({K::Label, r.valueLabel, -1, 900, top, 600, 255, "", "frmScore"});
        }
        // The File menu has no Take Score, which the Give Up button stands for.
        AppendControls(all, GameMenus(kTimeEntries, "&User Options...", false));
        return all;
    }();
    return specs;
}

// Controls that keep to the right edge or the bottom rather than to the board.
bool KeepsItsOwnPlace(const ControlSpec& s) {
    if (s.kind == K::Menu || s.kind == K::Timer || s.kind == K::StatusBar || *s.container) return true;
    const std::string name = s.name;
    return name == "cmdPlay" || name == "cmdPause" || name == "cmdQuit";
}
}  // namespace

void RegisterFivestack(Runtime& runtime) {
    runtime.registerForm<frmFivestack>("frmFivestack");
    runtime.registerForm<frmFivestackCustomScoring>("frmFivestackCustomScoring");
    RegisterFivestackRules();
}

frmFivestack::frmFivestack(Runtime& runtime) : GameForm(runtime, kGame, kDesignWidth, kDesignHeight) {
    add(Layout());
    for (const ControlSpec& s : Layout())
        if (!KeepsItsOwnPlace(s)) BoardMoves.add(c(s.name, s.index));
    PrepareStandingControls(*this);
    SetGameTimers(*this);

    // The board stays hidden until the first Play.
    for (int i = 0; i < kColumns; ++i) {
        for (int slot = 0; slot < kSlots; ++slot) c(kColumnImages[i], slot).setVisible(false);
        for (Control* control : {&c("ColumnTotal", i), &c("ColumnSoft", i), &c(kColumnLines[i]), &c("cmdHit", i)})
            control->setVisible(false);
        c("ColumnTotal", i).setAlignment(Align::Center);
        c("ColumnTotal", i).setBackColor(Colour::White);
        c("ColumnTotal", i).setFont("Arial", 12, true);
        c("ColumnSoft", i).setAlignment(Align::Center);
        c("ColumnSoft", i).setForeColor(Colour::Red);
        c("ColumnSoft", i).setBackStyle(0);
    }
    for (const char* name : {"PlayCardPicture", "NextCardPicture", "cmdPass", "lblTimeBonus", "lblCurrentRoundScore",
                             "lblCurrentTotal", "frmScore", "cmdGiveUp", "ScoringLabelOutline", "ScoringLabel",
                             "ScoringLabelRoundTotal", "ScoringLabelInfo", "Surface", "lblTime", "TimerRectangle",
                             "TimerBevelSide", "TimerBevelBottom", "lblScore", "ScoreRectangle", "ScoreBevelSide",
                             "ScoreBevelBottom", "lblTotalScore", "lblRound"})
        c(name).setVisible(false);
    c("lblTime").setCaption("Time Bonus:");
    c("lblRound").setCaption("Round: 1");
    c("lblTimeBonus").setFont("Arial", 12, true);
    c("lblTimeBonus").setBackStyle(0);
    c("lblTotalScore").setFont("Arial", 12, true);
    c("lblTotalScore").setAlignment(Align::Center);
    c("lblTotalScore").setForeColor(Colour::Blue);
    c("lblCurrentRoundScore").setAlignment(Align::Center);
    c("lblCurrentTotal").setFont("Arial", 12, true);
    c("lblCurrentTotal").setAlignment(Align::Center);
    c("lblCurrentTotal").setBackColor(Colour::White);
    c("lblCurrentTotal").setForeColor(Colour::Red);
    for (const char* big : {"ScoringLabel", "ScoringLabelRoundTotal"}) {
        c(big).setFont("Arial", 18, true);
        c(big).setBackStyle(0);
    }
    c("ScoringLabelInfo").setFont("Arial", 10, true);
    c("ScoringLabelInfo").setBackStyle(0);
    c("ScoringLabelOutline").setBorderStyle(1);
    c("ScoringLabelOutline").setBorderColor(Colour::Blue);
    for (const CardTotalRow& row : kCardTotalRows) {
        c(row.valueLabel).setCaption(NumText(row.value));
        c(row.valueLabel).setAlignment(Align::Right);
    }
    c("PlayCardPicture").setBorderStyle(0);
    for (const char* name : {"ScoringLabelOutline", "ScoringLabelRoundTotal", "ScoringLabel", "ScoringLabelInfo"})
        c(name).zOrderFront();

    BindWindowEvents(
        *this, [this] { Form_Load(); }, [this] { Form_Resize(); }, [this](EventArgs& e) { Form_QueryUnload(e); });
    BindPlayAndPause(*this, [this](bool fromMenu) { cmdPlay_Click(fromMenu); }, [this] { cmdPause_Click(); });
    on("cmdHit", Ev::Click, [this](EventArgs& e) { cmdHit_Click(e.index); });
    on("cmdPass", Ev::Click, [this](EventArgs&) { cmdPass_Click(); });
    on("cmdGiveUp", Ev::Click, [this](EventArgs&) { cmdGiveUp_Click(); });
    on("Timer1", Ev::Timer, [this](EventArgs&) { Timer1_Timer(); });
    BindShared({.messageLabel = "ScoringLabel"});
    on("lblCurrentTotal", Ev::Change, [this](EventArgs&) { lblCurrentTotal_Change(); });
    on("lblTotalScore", Ev::Change, [this](EventArgs&) { lblTotalScore_Change(); });
    on("lblHighScore", Ev::Change, [this](EventArgs&) { CentreLabelIn(*this, "lblHighScore", "ScoreRectangle"); });
    on("lblTimeBonus", Ev::Change, [this](EventArgs&) { CenterTimeBonus(); });
    on("ColumnSoft", Ev::Change, [this](EventArgs& e) { ColumnSoft_Change(e.index); });
    on("ScoringLabelInfo", Ev::Change, [this](EventArgs&) { CenterScoringInfo(); });
    BindTimeAndDeckMenus(kTimeEntries, kReversedDeckMenus, [this](const char* menu) { mnuTime_Click(menu); },
                         [this](int design) { mnuDeck_Click(design); });
    on("mnuCustom", Ev::Click, [this](EventArgs&) { mnuCustom_Click(); });
    on("mnuClear", Ev::Click, [this](EventArgs&) { mnuClear_Click(); });

    ExposeVariables({
        {"BonusScore", Expose(Scoring.BonusScore)},
        {"TimeBonusMax", Expose(Scoring.TimeBonusMax)},
        {"TimeBonusMin", Expose(Scoring.TimeBonusMin)},
        {"TimeBonusDecay",
         [this](int index, Value& out) {
             if (index >= 0) return false;
             out = static_cast<double>(TimeBonusDecay);
             return true;
         }},
        {"WaitPeriod", Expose(Scoring.WaitPeriod)},
        {"CardsToPass", Expose(Scoring.CardsToPass)},
        {"PassesLeft", Expose(PassesLeft)},
        {"DeckPosition", Expose(DeckPosition)},
        {"CardTotal", Expose(CardTotal)},
        {"CardTotalValue", Expose(CardTotalValue)},
        {"CurrentRound", Expose(CurrentRound)},
        {"QuitRequested", Expose(QuitRequested)},
    });
    const auto column = [this](int16_t fivestack::Column::*field) {
        return [this, field](int index, Value& out) {
            if (index < 0 || index >= kColumns) return false;
            out = static_cast<long long>(Columns[static_cast<size_t>(index)].*field);
            return true;
        };
    };
    expose("ColumnCards", column(&fivestack::Column::cards));
    expose("SoftAces", column(&fivestack::Column::softAces));
}

// ---- Loading and closing ---------------------------------------------------------

SettingsLayout frmFivestack::SettingsSections() {
    SettingsLayout layout = {
        TimeSection(*this, kTimeEntries),
        PlaySoundsSection(*this),
        PlayMusicSection(*this),
        DeckSection(*this, kReversedDeckMenus),
        {"[TimeBonusMax]", [this](const std::string& v) { Scoring.TimeBonusMax = CInt(Val(v)); },
         [this] { return NumText(Scoring.TimeBonusMax); }},
        {"[TimeBonusMin]", [this](const std::string& v) { Scoring.TimeBonusMin = CInt(Val(v)); },
         [this] { return NumText(Scoring.TimeBonusMin); }},
        {"[BonusScore]", [this](const std::string& v) { Scoring.BonusScore = CLng(Val(v)); },
         [this] { return NumText(Scoring.BonusScore); }},
        {"[WaitPeriod]", [this](const std::string& v) { Scoring.WaitPeriod = CInt(Val(v)); },
         [this] { return NumText(Scoring.WaitPeriod); }},
        CountDownSection("[CountDownScore]"),
        {"[Cards To Pass]",
         [this](const std::string& v) {
             Scoring.CardsToPass = CInt(Val(v));
             PassesLeft = Scoring.CardsToPass;
         },
         [this] { return NumText(Scoring.CardsToPass); }},
    };
    for (SettingsSection& section : WindowSizeSections(*this, kDesignWidth, kDesignHeight)) layout.push_back(section);
    return layout;
}

void frmFivestack::Form_Load() {
    BeginLoad();
    GameInProgress = false;
    Scoring = {};
    PassesLeft = Scoring.CardsToPass;
    ShowWelcome(*this);
    c("StatusBar1").setPanel(1, "Welcome to " + AppTitle + "   ");
    raise(&c("mnu60"), Ev::Click);
    ReadSettings();
    TimeBonusDecay = fivestack::TimeBonusDecay(Scoring.TimeBonusMax, Scoring.TimeBonusMin, TimeLimit);
    CompleteLoad();
    CheckForCustom();
    if (PassesLeft == 0) c("cmdPass").setEnabled(false);
}

// A game in progress is paused before the question and goes on after a No.
// The test reads ScoringLabelInfo, which never holds "Game Paused": a game
// already paused is resumed behind the question.
void frmFivestack::Form_QueryUnload(EventArgs& args) {
    const std::string& info = c("ScoringLabelInfo").caption();
    const bool pauseFirst = GameInProgress && c("cmdPause").enabled() && info != kGamePaused && info != kGameOver;
    if (pauseFirst) cmdPause_Click();
    ConfirmClose(args, pauseFirst, [this] { cmdPause_Click(); });
}

// The cards keep their size: a resize only moves the board to the middle of
// the window, the command buttons to its right edge, the status bar to its
// bottom. A minimised window stops the clock and the music of a running
// round; restored, they go on unless the game is paused.
void frmFivestack::Form_Resize() {
    const bool running = GameInProgress && !TakingScore && c("cmdPause").caption() == kPauseCaption &&
                         c("cmdPause").enabled();
    if (windowState() == 1) {
        if (running && !Minimised) {
            Minimised = true;
            c("Timer1").setEnabled(false);
            if (PlayMusic) StopMusic();
        }
        return;
    }
    if (Minimised) {
        Minimised = false;
        if (running) {
            c("Timer1").setEnabled(true);
            if (PlayMusic) StartMusic();
        }
    }
    if (ResizeToPlace()) PlaceBoard();
}

void frmFivestack::PlaceBoard() {
    const Offset at = CentredOffset(*this, kDesignWidth, kDesignHeight);
    BoardMoves.shift(at.dx, at.dy);
    KeepAtRightEdge(*this, {"cmdPlay", "cmdPause", "cmdQuit"});
    PlaceStatusBar(*this);
    ResizeColumnHeaders();
    CenterCardTotal();
    lblTotalScore_Change();
    CentreLabelIn(*this, "lblHighScore", "ScoreRectangle");
    CenterTimeBonus();
    CenterScoringLabel();
    CenterScoringInfo();
}

// ---- Menus ----------------------------------------------------------------------------

void frmFivestack::mnuTime_Click(const char* menu) {
    ChooseTimeLimit(*this, kTimeEntries, menu);
    TimeBonusDecay = fivestack::TimeBonusDecay(Scoring.TimeBonusMax, Scoring.TimeBonusMin, TimeLimit);
    ShowHighScore(kTable, *this, kDefaultTopScore);
}

void frmFivestack::mnuDeck_Click(int design) {
    ChooseBackDesign(*this, kReversedDeckMenus[design - 1]);
    c("PlayCardPicture").setPicture(ImageList2().indexOf("BACK"));
    DeckDesign = static_cast<int16_t>(design);
}

void frmFivestack::mnuClear_Click() {
    ClearTable();
}

void frmFivestack::mnuCustom_Click() { runtime().show("frmFivestackCustomScoring", true); }

void frmFivestack::CheckForCustom() {
    CustomScoringInUse = IsCustomScoring(Scoring, PassesLeft);
}

void frmFivestack::ShowBonusGoal() {
    c("StatusBar1").setPanel(1, "Make " + FormatScore(Scoring.BonusScore) + " for bonus round.  ");
}

}  // namespace ch
