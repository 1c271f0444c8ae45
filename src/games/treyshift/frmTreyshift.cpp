// SPDX-License-Identifier: GPL-3.0-or-later
// The Treyshift window itself: its layout and menus, the constructor that
// wires the events, loading, closing, resizing, the settings file and the
// menu handlers. The board is in frmTreyshiftBoard.cpp, the rounds in
// frmTreyshiftRounds.cpp.
#include "games/treyshift/frmTreyshift.h"

#include <array>
#include <memory>
#include <vector>

#include "games/treyshift/frmTreyshiftCustomScoring.h"
#include "suite/cards.h"
#include "suite/common.h"
#include "suite/dial.h"
#include "suite/frmRules.h"
#include "suite/highscores.h"
#include "suite/windowsteps.h"
#include "suite/labels.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace treyshift;

namespace {
using K = ControlKind;


// The window's design size; every card keeps its size at any window size.
constexpr int kDesignWidth = 9540;
constexpr int kDesignHeight = 7305;
constexpr int kCardWidth = 1035;
constexpr int kCardHeight = 1455;
const int kColumnLeft[4] = {2040, 3480, 4920, 6360};
const int kRowTop[3] = {2160, 2520, 2880};
const int kTempLeft[3] = {2880, 4200, 5520};
const int kUpLeft[3] = {3720, 4080, 4440};

// A counter boxed as the window's others are: the caption above, the
// rectangle, the value inside it, and the bevel lines at its right and bottom
// edges. The names are the caption's, the rectangle's, the value's and the
// two lines'; the caption stands at `top`.
std::array<ControlSpec, 5> ValueBox(const std::array<const char*, 5>& n, int left, int top, int width,
                                    const char* caption) {
    const int box = top + 270;
    return {{
        {K::Label, n[0], -1, left, top, width, 255, caption},
        {K::Shape, n[1], -1, left, box, width, 375},
        {K::Label, n[2], -1, left + 45, box + 60, width - 90, 255, "0"},
        {K::Line, n[3], -1, left + width + 15, box + 15, 0, 375},
        {K::Line, n[4], -1, left + 15, box + 390, width, 0},
    }};
}

// The trips and runs boxes stand in the right column under the score box.
const std::array<ControlSpec, 5> kTripsBox =
    ValueBox({"lblTrips", "TripsRectangle", "lblScoreTrips", "TripsBevelSide", "TripsBevelBottom"}, 8220, 4620, 1095,
             "Trips:");
const std::array<ControlSpec, 5> kRunsBox =
    ValueBox({"lblRuns", "RunRectangle", "lblScoreRuns", "RunBevelSide", "RunBevelBottom"}, 8220, 5400, 1095, "Runs:");

const ControlSpec kBoardLabels[] = {
    {K::Shape, "FieldRect", -1, 1800, 2040, 5895, 2415},
    {K::Label, "lblFieldCards", -1, 3847, 1770, 1800, 255, "   Playing Field   "},
    {K::Label, "lblTemp", -1, 1140, 840, 1620, 255, "Temporary Storage"},
    // The stack pictures are wider and taller than a card.
    {K::Image, "CardStackPicture", -1, 2160, 4680, 1140, 1470},
    {K::Label, "lblCardCount", -1, 5640, 4800, 2400, 255, "Cards remaining: "},
    // The outline of the round announcements spans the board: they are wide.
    {K::Shape, "ScoringLabelOutline", -1, 960, 2400, 7080, 1695},
    {K::Label, "lblFlush", -1, 0, 0, 1000, 255, "Flush!"},
};

// The controls a resize moves with the right edge, and those it keeps
// centred with the board at their design size.
const char* const kRightColumn[] = {
    "cmdPlay", "cmdTakeScore", "cmdPause", "cmdQuit", "lblTime", "TimerRectangle", "Surface", "TimerBevelSide",
    "TimerBevelBottom", "lblScore", "ScoreRectangle", "lblCurrentScore", "ScoreBevelSide", "ScoreBevelBottom",
    "lblRound", "lblTrips", "TripsRectangle", "lblScoreTrips", "TripsBevelSide", "TripsBevelBottom", "lblRuns",
    "RunRectangle", "lblScoreRuns", "RunBevelSide", "RunBevelBottom",
};
const char* const kBoardArrays[] = {"PlayCard", "PlayCardSelection", "TempCard", "TempCardSelection", "UpCard"};
const char* const kBoardSingles[] = {"FieldRect", "lblFieldCards", "lblTemp", "CardStackPicture", "UpCardSelection",
                                     "lblCardCount", "ScoringLabelOutline"};
// The high score stands under the card count, clear of the deck.
constexpr int kHighScoreLeft = 5640;
constexpr int kHighScoreTop = 5880;

std::vector<ControlSpec> Layout() {
    std::vector<ControlSpec> specs;
    for (std::span<const ControlSpec> part :
         {StandingControls(), TakeScoreButton(), QuitButton(), ScoringLabel(), std::span<const ControlSpec>(kTripsBox),
          std::span<const ControlSpec>(kRunsBox), std::span<const ControlSpec>(kBoardLabels)})
        AppendControls(specs, part);
    for (int i = 0; i < 3; ++i) {
        specs.push_back({K::Image, "TempCard", i, kTempLeft[i], 240, kCardWidth, kCardHeight});
        specs.push_back({K::Shape, "TempCardSelection", i, kTempLeft[i], 240, kCardWidth, kCardHeight});
    }
    // Lower rows in front, so that the landing slot under a column's last
    // card takes the click on the part of that card it overlaps.
    for (int i = 0; i < kFieldSlots; ++i) {
        specs.push_back({K::Image, "PlayCard", i, kColumnLeft[i % 4], kRowTop[i / 4], kCardWidth, kCardHeight});
        specs.push_back({K::Shape, "PlayCardSelection", i, kColumnLeft[i % 4], kRowTop[i / 4], kCardWidth, kCardHeight});
    }
    for (int i = 0; i < 3; ++i) specs.push_back({K::Image, "UpCard", i, kUpLeft[i], 4680, kCardWidth, kCardHeight});
    specs.push_back({K::Shape, "UpCardSelection", -1, 4455, 4680, kCardWidth, kCardHeight});
    AppendControls(specs, GameMenus(kTimeEntries, "&User Options...", true));
    return specs;
}

}  // namespace

frmTreyshift::frmTreyshift(Runtime& runtime) : GameForm(runtime, kGame, kDesignWidth, kDesignHeight) {
    add(Layout());
    for (const char* name : kRightColumn) RightColumn.add(c(name));
    for (const char* name : kBoardArrays)
        for (int i = 0; Control* control = find(name, i); ++i) BoardMoves.addWithSize(*control);
    for (const char* name : kBoardSingles) BoardMoves.addWithSize(c(name));
    PrepareStandingControls(*this);
    c("lblHighScore").move(kHighScoreLeft, kHighScoreTop, 2400, 255);
    // The round stands as a caption of its own; the round box is not used.
    for (const char* name : {"RoundRectangle", "lblCurrentRound", "RoundBevelSide", "RoundBevelBottom"})
        c(name).setVisible(false);
    GameTimers timers;
    timers.dialBlinkOn = true;
    SetGameTimers(*this, timers);
    c("cmdTakeScore").setToolTipText("Ends the round and awards points");
    for (int i = 0; i < kFieldSlots; ++i) {
        c("PlayCardSelection", i).setBorderColor(Colour::Red);
        c("PlayCardSelection", i).setBorderStyle(1);
    }
    for (int i = 0; i < 3; ++i) {
        c("TempCardSelection", i).setBorderColor(Colour::Blue);
        c("TempCardSelection", i).setBorderStyle(1);
    }
    c("UpCardSelection").setBorderColor(Colour::Red);
    c("UpCardSelection").setBorderStyle(1);
    for (const char* name : {"lblScoreTrips", "lblScoreRuns", "lblFieldCards"}) c(name).setAlignment(Align::Center);
    for (const char* name : {"lblScoreTrips", "lblScoreRuns"}) c(name).setForeColor(Colour::Blue);
    Control& flush = c("lblFlush");
    flush.setForeColor(Colour::Red);
    flush.setFont("MS Sans Serif", 8, true);
    flush.setAlignment(Align::Center);
    flush.setVisible(false);
    c("ScoringLabelOutline").setVisible(false);
    c("ScoringLabelOutline").setBorderStyle(1);
    // The messages and the flush word stand in front of the cards.
    for (const char* name : {"lblFlush", "lblScoring", "lblMessage"}) c(name).zOrderFront();
    ShowCards(false);
    ShowControls(false, true);
    c("lblHighScore").setVisible(true);
    PlaceBoard();

    on("PlayCard", Ev::Click, [this](EventArgs& e) { PlayCard_Click(e.index); });
    on("TempCard", Ev::Click, [this](EventArgs& e) { TempCard_Click(e.index); });
    on("UpCard", Ev::Click, [this](EventArgs& e) { UpCard_Click(e.index); });
    on("CardStackPicture", Ev::Click, [this](EventArgs&) { CardStackPicture_Click(); });
    BindWindowEvents(
        *this, [this] { Form_Load(); }, [this] { Form_Resize(); }, [this](EventArgs& e) { Form_QueryUnload(e); });
    BindPlayAndPause(*this, [this](bool fromMenu) { cmdPlay_Click(fromMenu); }, [this] { cmdPause_Click(); });
    // Take Score, pause and quit are refused while a round is being scored.
    on("cmdTakeScore", Ev::Click, [this](EventArgs&) {
        if (!TakingScore) cmdTakeScore_Click();
    });
    on("mnuTakeScore", Ev::Click, [this](EventArgs&) {
        if (!TakingScore) cmdTakeScore_Click();
    });
    on("Timer1", Ev::Timer, [this](EventArgs&) { Timer1_Timer(); });
    BindShared({.quitWaitsForScore = true});
    on("lblCurrentScore", Ev::Change, [this](EventArgs&) { CentreIn("lblCurrentScore", "ScoreRectangle"); });
    on("lblScoreTrips", Ev::Change, [this](EventArgs&) { CentreIn("lblScoreTrips", "TripsRectangle"); });
    on("lblScoreRuns", Ev::Change, [this](EventArgs&) { CentreIn("lblScoreRuns", "RunRectangle"); });
    on("lblTrips", Ev::Change, [this](EventArgs&) { CentreIn("lblTrips", "TripsRectangle"); });
    on("lblRuns", Ev::Change, [this](EventArgs&) { CentreIn("lblRuns", "RunRectangle"); });
    // The big labels take the width of their text, so that they can be centred.
    for (const char* name : {"lblMessage", "lblScoring", "lblFlush"})
        on(name, Ev::Change, [this, name](EventArgs&) { FitLabel(name); });
    BindTimeAndDeckMenus(kTimeEntries, kDeckMenus, [this](const char* menu) { mnuTime_Click(menu); },
                         [this](int design) { mnuDeck_Click(design); });
    on("mnuCustom", Ev::Click, [this](EventArgs&) { this->runtime().show("frmTreyshiftCustom", true); });
    on("mnuClear", Ev::Click, [this](EventArgs&) { mnuClear_Click(); });

    ExposeVariables({
        {"TripValue", Expose(Scoring.TripValue)},
        {"RunValue", Expose(Scoring.RunValue)},
        {"FlushValue", Expose(Scoring.FlushValue)},
        {"DeckValue", Expose(Scoring.DeckValue)},
        {"PenaltyValue", Expose(Scoring.PenaltyValue)},
        {"BonusScore", Expose(Scoring.BonusScore)},
        {"DeckPosition", Expose(Board.deckPosition)},
        {"Selected", Expose(Board.selected)},
        {"SourceZone", Expose(Board.sourceZone)},
        {"SourceIndex", Expose(Board.sourceIndex)},
        {"TripCount", Expose(TripCount)},
        {"RunCount", Expose(RunCount)},
        {"CurrentRound", Expose(CurrentRound)},
    });
    const auto array = [](const auto& slots) {
        return [&slots](int index, Value& out) {
            if (index < 0 || index >= static_cast<int>(slots.size())) return false;
            out = slots[static_cast<size_t>(index)].card;
            return true;
        };
    };
    expose("FieldCards", array(Board.field));
    expose("TempCards", array(Board.storage));
    expose("UpCards", array(Board.fan));
}

// ---- Loading and closing ---------------------------------------------------------

SettingsLayout frmTreyshift::SettingsSections() {
    SettingsLayout layout = {
        TimeSection(*this, kTimeEntries),
        PlaySoundsSection(*this),
        PlayMusicSection(*this),
        CountDownSection("[Count Down Score]"),
        DeckSection(*this, kDeckMenus),
        {"[Time Bonus]", [](const std::string& v) { TimeBonus = CLng(Val(v)); }, [] { return NumText(TimeBonus); }},
        {"[Bonus Score]", [this](const std::string& v) { Scoring.BonusScore = CLng(Val(v)); },
         [this] { return NumText(Scoring.BonusScore); }},
        // Written, but what is read back goes to another game's value: the
        // trip value always starts at its default.
        {"[Trips Score]", nullptr, [this] { return NumText(Scoring.TripValue); }},
        {"[Runs Score]", [this](const std::string& v) { Scoring.RunValue = CLng(Val(v)); },
         [this] { return NumText(Scoring.RunValue); }},
        {"[Flush Score]", [this](const std::string& v) { Scoring.FlushValue = CLng(Val(v)); },
         [this] { return NumText(Scoring.FlushValue); }},
    };
    for (SettingsSection& section : WindowSizeSections(*this, kDesignWidth, kDesignHeight)) layout.push_back(section);
    return layout;
}

void frmTreyshift::Form_Load() {
    BeginLoad();
    Scoring = kDefaults;
    TimeBonus = kDefaultTimeBonus;
    ShowWelcome(*this);
    ReadSettings();
    CheckForCustom();
    CompleteLoad();
}

// The clock runs on while the question stands.
void frmTreyshift::Form_QueryUnload(EventArgs& args) {
    ConfirmClose(args, false, nullptr);
}

// The cards keep their size: a resize keeps the board in the middle of the
// window, the buttons and boxes at its right edge, the status bar at the bottom.
void frmTreyshift::Form_Resize() {
    if (ResizeToPlace()) PlaceBoard();
}

void frmTreyshift::PlaceBoard() {
    const Offset at = CentredOffset(*this, kDesignWidth, kDesignHeight);
    RightColumn.shiftAcross(width() - kDesignWidth);
    BoardMoves.shift(at.dx, at.dy);
    c("lblHighScore").move(kHighScoreLeft + at.dx, kHighScoreTop + at.dy, 2400, 255);
    Control& splash = c("frmSplash");
    splash.setLeft((width() - 120 - splash.width()) / 2);
    splash.setTop(480 + at.dy);
    PlaceStatusBar(*this);
    CentreIn("lblCurrentScore", "ScoreRectangle");
    CentreIn("lblScoreTrips", "TripsRectangle");
    CentreIn("lblScoreRuns", "RunRectangle");
    CentreIn("lblTrips", "TripsRectangle");
    CentreIn("lblRuns", "RunRectangle");
}

// ---- Menus ----------------------------------------------------------------------------

void frmTreyshift::mnuTime_Click(const char* menu) {
    ChooseTimeLimit(*this, kTimeEntries, menu);
    ShowHighScore(kTable, *this, kRoundsDefault);
}

void frmTreyshift::mnuDeck_Click(int design) {
    ChooseBackDesign(*this, kDeckMenus[design - 1]);
    c("CardStackPicture").setPicture(ImageList2().indexOf(StackKey(Board.deckPosition)));
    DeckDesign = static_cast<int16_t>(design);
}

void frmTreyshift::mnuClear_Click() {
    ClearTable();
}

void frmTreyshift::CheckForCustom() {
    CustomScoringInUse = IsCustomScoring(Scoring, TimeBonus);
}

// ---- Registration ----------------------------------------------------------------

void RegisterTreyshift(Runtime& runtime) {
    runtime.registerForm<frmTreyshift>("frmTreyshift");
    runtime.registerForm<frmTreyshiftCustom>("frmTreyshiftCustom");
    RegisterRules("Treyshift!", TreyshiftRules);
}

}  // namespace ch
