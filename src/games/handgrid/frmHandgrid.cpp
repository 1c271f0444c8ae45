// SPDX-License-Identifier: GPL-3.0-or-later
// The Handgrid window itself: its layout and menus, the wiring of its events,
// loading, closing and resizing, the settings file and the menu handlers.
#include "games/handgrid/frmHandgrid.h"

#include <memory>

#include "games/handgrid/frmHandgridCustom.h"
#include "suite/cards.h"
#include "suite/common.h"
#include "suite/dial.h"
#include "suite/frmRules.h"
#include "suite/highscores.h"
#include "suite/labels.h"
#include "suite/sound.h"
#include "suite/windowsteps.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace handgrid;

namespace {
using K = ControlKind;

constexpr int kDesignWidth = 9570;
constexpr int kDesignHeight = 7200;
constexpr int kCardWidth = 1035;
constexpr int kCardHeight = 1455;
const int kColumnLefts[5] = {210, 1320, 2415, 3525, 4635};
const int kRowTops[5] = {204, 1260, 2310, 3345, 4410};
const int kRowLabelTops[5] = {645, 1770, 2850, 3990, 4965};

// A saved limit of 120 is written but not taken back at the next start.
const std::span<const TimeEntry> kReadableTimes = std::span<const TimeEntry>(kTimeEntries).first(6);

// The standing controls at Handgrid's places: the grid takes the left of the
// window, the clock, score and counters stand in a column beside the buttons
// at the right edge, above the deck stack and the hole.
const ControlPlace kStandingPlaces[] = {
    {"cmdPlay", 8250, 120, 1095, 375},
    {"cmdPause", 8250, 555, 1095, 375},
    {"cmdQuit", 8250, 990, 1095, 375},
    {"lblTime", 7110, 120, 1005, 255},
    {"TimerRectangle", 7110, 390, 1005, 1005},
    {"Surface", 7155, 435, 915, 915},
    {"TimerBevelSide", 8130, 405, 0, 1005},
    {"TimerBevelBottom", 7125, 1410, 1005, 0},
    {"lblRound", 7110, 1500, 1005, 255},
    {"lblScore", 7110, 1860, 2235, 255},
    {"ScoreRectangle", 7110, 2130, 2235, 450},
    {"lblCurrentScore", 7155, 2190, 2145, 330},
    {"ScoreBevelSide", 9360, 2145, 0, 450},
    {"ScoreBevelBottom", 7125, 2595, 2235, 0},
    {"lblHighScore", 7110, 3090, 2235, 255},
    {"lblCurrentRound", 7110, 1500, 1005, 255},
    {"RoundRectangle", 7110, 1500, 1005, 255},
    {"RoundBevelSide", 7110, 1500, 0, 255},
    {"RoundBevelBottom", 7110, 1500, 1005, 0},
    {"lblMessage", 690, 1800, 4500, 615},
    {"lblScoring", 690, 3060, 4500, 615},
    {"frmSplash", 765, 600, 5520, 4440},
    {"StatusBar1", 0, 6180, 9450, 330},
};

const ControlSpec kBoard[] = {
    {K::Label, "lblTimeBonus", -1, 300, 300, 375, 300, "", "Surface"},
    {K::Label, "lblOverwrites", -1, 7110, 2730, 2235, 255, ""},
    {K::Label, "lblCards", -1, 7110, 4080, 2235, 255, "Cards remaining: 52"},
    {K::Label, "lblPointsEarned", -1, 7110, 5895, 2235, 255, "Points Earned: 0"},
    {K::Image, "CardStackPicture", -1, 7110, 4395, kCardWidth, kCardHeight},
    {K::Image, "HoleCard", -1, 8310, 4395, kCardWidth, kCardHeight},
    {K::Shape, "ScoringLabelOutline", -1, 540, 1560, 4800, 2400},
    {K::Label, "ScoringLabel", -1, 690, 2520, 4500, 495, ""},
};

std::vector<ControlSpec> Layout() {
    std::vector<ControlSpec> specs;
    const auto add = [&specs](std::span<const ControlSpec> part) { AppendControls(specs, part); };
    add(StandingControls());
    add(QuitButton());
    add(ScoringLabel());
    // Row by row, so that a lower row lies on the foot of the row above.
    for (int i = 0; i < kCells; ++i)
        specs.push_back({K::Image, "PlayCards", i, kColumnLefts[i % 5], kRowTops[i / 5], kCardWidth, kCardHeight});
    for (int n = 1; n <= 5; ++n) {
        specs.push_back({K::Label, "lblRow", n, 5895, kRowLabelTops[n - 1], 1155, 255, "Nothing"});
        specs.push_back({K::Label, "lblCol", n, kColumnLefts[n - 1], 5895, kCardWidth, 255, "Nothing"});
    }
    add(kBoard);
    add(GameMenus(kTimeEntries, "&User Options...", false));
    return specs;
}

}  // namespace

void RegisterHandgrid(Runtime& runtime) {
    runtime.registerForm<frmHandgrid>("frmHandgrid");
    runtime.registerForm<frmHandgridCustom>("frmHandgridCustom");
    RegisterRules("Handgrid!", HandgridRules);
}

frmHandgrid::frmHandgrid(Runtime& runtime) : GameForm(runtime, kGame, kDesignWidth, kDesignHeight) {
    add(Layout());
    PlaceControls(*this, kStandingPlaces);
    // The grid, its row labels, the boxes and the deck move with the board;
    // the buttons keep to the right edge, the status bar to the bottom.
    for (int i = 0; i < kCells; ++i) BoardMoves.add(c("PlayCards", i));
    for (int n = 1; n <= 5; ++n) BoardMoves.add(c("lblRow", n));
    for (const ControlPlace& p : kStandingPlaces) {
        const std::string name = p.name;
        if (name.rfind("cmd", 0) != 0 && name != "StatusBar1") BoardMoves.add(c(name));
    }
    for (const ControlSpec& s : kBoard)
        if (!*s.container && std::string(s.name) != "ScoringLabel") BoardMoves.add(c(s.name));
    PrepareStandingControls(*this);
    SetTimer(*this, "Timer1", 1000, false);
    SetTimer(*this, "Timer2", 200, true);
    SetTimer(*this, "Timer3", 60000, true);
    SetTimer(*this, "Timer4", 200, false);
    c("cmdQuit").setToolTipText("Closes Handgrid");
    c("lblRound").setCaption("Round: 1");
    for (const char* name : {"lblCurrentRound", "RoundRectangle", "RoundBevelSide", "RoundBevelBottom"})
        c(name).setVisible(false);
    Control& scoring = c("ScoringLabel");
    scoring.setFont("MS Sans Serif", 18, true);
    scoring.setAlignment(Align::Center);
    scoring.setForeColor(Colour::Red);
    scoring.setBackStyle(0);
    scoring.setVisible(false);
    c("ScoringLabelOutline").setVisible(false);
    c("ScoringLabelOutline").setBorderStyle(1);
    c("lblTimeBonus").setFont("MS Sans Serif", 12, true);
    c("lblTimeBonus").setForeColor(Colour::White);
    c("lblTimeBonus").setBackStyle(0);
    c("lblCurrentScore").setFont("MS Sans Serif", 12, true);
    for (int i = 0; i < kCells; ++i) c("PlayCards", i).setVisible(false);
    for (const char* name : {"CardStackPicture", "HoleCard"}) c(name).setVisible(false);
    // The messages and the scoring figures stand over the grid.
    for (const char* name : {"ScoringLabelOutline", "ScoringLabel", "lblMessage", "lblScoring"}) c(name).zOrderFront();
    ShowControls(false, true);
    ShowTimerFrame(false);
    CenterScoringLabel();

    BindShared({.quitWaitsForScore = true});
    BindWindowEvents(
        *this, [this] { Form_Load(); }, [this] { Form_Resize(); }, [this](EventArgs& e) { Form_QueryUnload(e); });
    BindPlayAndPause(*this, [this](bool) { Play(); }, [this] { cmdPause_Click(); });
    on("PlayCards", Ev::Click, [this](EventArgs& e) { PlayCards_Click(e.index); });
    on("CardStackPicture", Ev::Click, [this](EventArgs&) { CardStackPicture_Click(); });
    on("Timer1", Ev::Timer, [this](EventArgs&) { Timer1_Timer(); });
    on("lblRow", Ev::Change, [this](EventArgs& e) { lblHand_Change("lblRow", e.index); });
    on("lblCol", Ev::Change, [this](EventArgs& e) { lblCol_Change(e.index); });
    on("lblOverwrites", Ev::Change, [this](EventArgs&) { lblOverwrites_Change(); });
    on("lblCurrentScore", Ev::Change, [this](EventArgs&) { lblCurrentScore_Change(); });
    on("lblRound", Ev::Change, [this](EventArgs&) { lblRound_Change(); });
    on("lblTimeBonus", Ev::Change, [this](EventArgs&) { CenterTimeBonus(); });
    BindTimeAndDeckMenus(kTimeEntries, kDeckMenus, [this](const char* menu) { mnuTime_Click(menu); },
                         [this](int design) { mnuDeck_Click(design); });
    on("mnuCustom", Ev::Click, [this](EventArgs&) { this->runtime().show("frmHandgridCustom", true); });
    on("mnuClear", Ev::Click, [this](EventArgs&) { ClearTable(); });

    expose("PlayedCards", [this](int index, Value& out) {
        if (index < 0 || index >= kCells) return false;
        out = PlayedCards[static_cast<size_t>(index)];
        return true;
    });
    expose("HandScores", [this](int index, Value& out) {
        if (index < 0 || index >= kHands) return false;
        out = static_cast<long long>(Scoring.HandScores[static_cast<size_t>(index)]);
        return true;
    });
    ExposeVariables({
        {"RoundDeck", Expose(RoundDeck)},
        {"HoleCards", Expose(HoleCards)},
        {"DeckPosition", Expose(DeckPosition)},
        {"HoleCount", Expose(HoleCount)},
        {"CardsRemaining", Expose(CardsRemaining)},
        {"OverWritesAllowed", Expose(Scoring.OverWritesAllowed)},
        {"OverWritesUsed", Expose(OverWritesUsed)},
        {"RoundPoints", Expose(RoundPoints)},
        {"HandSoundPlayed", Expose(HandSoundPlayed)},
        {"CurrentRound", Expose(CurrentRound)},
        {"BonusScore", Expose(Scoring.BonusScore)},
    });
}

// ---- Loading and closing ---------------------------------------------------------

SettingsLayout frmHandgrid::SettingsSections() {
    const auto number32 = [](int32_t& target) {
        return SettingsSection{"", [&target](const std::string& v) { target = CLng(Val(v)); },
                               [&target] { return NumText(target); }};
    };
    const auto named = [](const char* name, SettingsSection section) {
        section.name = name;
        return section;
    };
    const auto hand = [&](const char* name, Hand h) {
        return named(name, number32(Scoring.HandScores[static_cast<size_t>(h)]));
    };
    SettingsLayout layout = {
        TimeSection(*this, kReadableTimes),
        PlaySoundsSection(*this),
        PlayMusicSection(*this),
        {"[Count Down Score]", [](const std::string& v) { CountDownScore = ParseBoolText(v); },
         [] { return std::string(BoolText(CountDownScore)); }},
        DeckSection(*this, kDeckMenus),
        named("[Time Bonus]", number32(TimeBonus)),
        named("[Bonus Score]", number32(Scoring.BonusScore)),
        hand("[Pair Score]", OnePair),
        hand("[Two Pair Score]", TwoPair),
        hand("[Trips Score]", Trips),
        hand("[Flush Score]", Flush),
        hand("[Full House Score]", FullHouse),
        hand("[Straight Score]", Straight),
        hand("[Four Score]", Four),
        hand("[Straight Flush Score]", StraightFlush),
        hand("[Royal Flush Score]", RoyalFlush),
        {"[Over Writes]", [this](const std::string& v) { Scoring.OverWritesAllowed = CInt(Val(v)); },
         [this] { return NumText(Scoring.OverWritesAllowed); }},
    };
    for (SettingsSection& section : WindowSizeSections(*this, kDesignWidth, kDesignHeight)) layout.push_back(section);
    return layout;
}

void frmHandgrid::Form_Load() {
    BeginLoad();
    Scoring = {};
    TimeBonus = kDefaultTimeBonus;
    HandSoundPlayed = false;
    ShowWelcome(*this);
    ReadSettings();
    CheckForCustom();
    ShowOverWrites();
    c("lblTimeBonus").setCaption(NumText(TimeLimit));
    lblRound_Change();
    CompleteLoad();
}

// The clock runs on while the question stands.
void frmHandgrid::Form_QueryUnload(EventArgs& args) {
    ConfirmClose(args);
}

void frmHandgrid::CheckForCustom() {
    CustomScoringInUse = IsCustomScoring(Scoring, TimeBonus);
}

void frmHandgrid::ShowBonusGoal() {
    c("StatusBar1").setPanel(1, "Make " + FormatScore(Scoring.BonusScore) + " for bonus round.  ");
}

// The cards keep their size: a larger window moves the whole board to its
// middle, the buttons to its right edge and the status bar to its foot.
void frmHandgrid::Form_Resize() {
    if (ResizeToPlace()) PlaceBoard();
}

void frmHandgrid::PlaceBoard() {
    const Offset at = CentredOffset(*this, kDesignWidth, kDesignHeight);
    BoardMoves.shift(at.dx, at.dy);
    // The column labels stand under the grid, centred on its lowest cards.
    for (int n = 1; n <= 5; ++n) {
        c("lblCol", n).setTop(5895 + at.dy);
        lblCol_Change(n);
    }
    KeepAtRightEdge(*this, {"cmdPlay", "cmdPause", "cmdQuit"});
    PlaceStatusBar(*this, 690);
    lblOverwrites_Change();
    lblCurrentScore_Change();
    lblRound_Change();
    CenterScoringLabel();
}

// ---- Menus ----------------------------------------------------------------------------

void frmHandgrid::mnuTime_Click(const char* menu) {
    ChooseTimeLimit(*this, kTimeEntries, menu);
    ShowHighScore(kTable, *this, kDefaultScore);
}

void frmHandgrid::mnuDeck_Click(int design) {
    ChooseBackDesign(*this, kDeckMenus[design - 1]);
    ShowStackPicture(StackKey);
    DeckDesign = static_cast<int16_t>(design);
}


}  // namespace ch
