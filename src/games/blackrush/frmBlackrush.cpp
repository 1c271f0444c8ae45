// SPDX-License-Identifier: GPL-3.0-or-later
// The Blackrush window itself: its layout and menus, the wiring of its
// events, loading and closing, the settings file, the resize plan and the
// menu handlers. The board is in frmBlackrushBoard.cpp, the rounds in
// frmBlackrushRounds.cpp.
#include "games/blackrush/frmBlackrush.h"

#include <algorithm>
#include <memory>

#include "games/blackrush/frmBlackrushCustomScoring.h"
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

using namespace blackrush;

namespace {
using K = ControlKind;

// The design size, the cards and the columns.
constexpr int kDesignWidth = 9060;
constexpr int kDesignHeight = 7155;
constexpr int kColumnLeft = 270;
constexpr int kCardWidth = 1035;
constexpr int kCardHeight = 1455;
constexpr int kColumnStep = 1428;
constexpr int kSlotTops[kSlots] = {2355, 2730, 3150, 3555, 3945};
constexpr int kHitLefts[kColumns] = {300, 1728, 3156, 4584};
const char* const kPauseCaptionHere = "P&ause";


// The standing controls this window doesn't have: its score is lblTotalScore,
// its messages stand in ScoringLabelInfo, its round in lblRound alone.
bool NotHere(const ControlSpec& control) {
    static const char* const kLeftOut[] = {"lblCurrentScore", "lblMessage",    "lblCurrentRound",
                                           "RoundRectangle",  "RoundBevelSide", "RoundBevelBottom"};
    return std::any_of(std::begin(kLeftOut), std::end(kLeftOut),
                       [&control](const char* name) { return std::string(name) == control.name; });
}

// Blackrush's places for the standing controls: the dial over the fourth
// column, the score, round and high score right of the columns, the buttons
// at the right edge.
const ControlPlace kStandingPlaces[] = {
    {"cmdPlay", 7740, 120, 1095, 375},   {"cmdTakeScore", 7740, 555, 1095, 375},
    {"cmdPause", 7740, 990, 1095, 375},  {"cmdExit", 7740, 1425, 1095, 375},
    {"lblTime", 4554, 60, 1035, 255},
    {"TimerRectangle", 4524, 330, 1095, 1095},
    {"Surface", 4569, 375, 1005, 1005},
    {"TimerBevelSide", 5634, 345, 0, 1095},
    {"TimerBevelBottom", 4539, 1440, 1095, 0},
    {"lblScore", 5700, 60, 1920, 255},
    {"ScoreRectangle", 5700, 330, 1920, 450},
    {"ScoreBevelSide", 7635, 345, 0, 450},
    {"ScoreBevelBottom", 5715, 795, 1920, 0},
    {"lblRound", 5700, 900, 1920, 255},
    {"lblHighScore", 5700, 1200, 1920, 255},
    {"frmSplash", 169, 480, 5520, 4440},
    {"StatusBar1", 0, 6165, 8940, 330},
};

const ControlSpec kBoard[] = {
    {K::Label, "lblTotalScore", -1, 5745, 390, 1830, 330, "0"},
    {K::Image, "PlayCardPicture", -1, 345, 60, kCardWidth, kCardHeight},
    {K::Image, "NextCardPicture", -1, 1815, 60, kCardWidth, kCardHeight},
    {K::Label, "lblBust", -1, 3420, 1155, 1080, 450, "Bust"},
    {K::Button, "cmdPass", -1, 6012, 5520, 1035, 570, "&Pass"},
    {K::Line, "Column1Line", -1, 1501, 1620, 0, 3780},
    {K::Line, "Column2Line", -1, 2929, 1620, 0, 3780},
    {K::Line, "Column3Line", -1, 4357, 1620, 0, 3780},
    {K::Frame, "frameScoreInfo", -1, 5700, 1920, 3135, 3480, "Twenty One Scoring Status"},
    {K::Label, "lblTwentyOnes", -1, 120, 360, 1320, 255, "21's earned:", "frameScoreInfo"},
    {K::Label, "lbl21s", -1, 1560, 360, 1440, 255, "0", "frameScoreInfo"},
    {K::Label, "lbl21Bonus", -1, 120, 720, 1320, 255, "Bonus:", "frameScoreInfo"},
    {K::Label, "lblBonus", -1, 1560, 720, 1440, 255, "0", "frameScoreInfo"},
    {K::Label, "lblCardsUsed", -1, 120, 1080, 1320, 255, "Cards used:", "frameScoreInfo"},
    {K::Label, "lblCardsUsedCount", -1, 1560, 1080, 1440, 255, "0", "frameScoreInfo"},
    {K::Label, "lblTwentyoneTime", -1, 120, 1560, 2880, 255, "21 Counter:", "frameScoreInfo"},
    {K::ProgressBar, "ProgressBar1", -1, 120, 1860, 2880, 300, "", "frameScoreInfo"},
    {K::Label, "lblRoundScore", -1, 60, 2520, 3015, 255, "", "frameScoreInfo"},
    {K::Label, "lblRoundScoreCount", -1, 60, 2880, 3015, 375, "", "frameScoreInfo"},
    {K::Shape, "ScoringLabelOutline", -1, 300, 3030, 5260, 675},
    {K::Label, "ScoringLabelInfo", -1, 330, 3060, 5200, 615, ""},
    {K::Label, "lblFiveCards", -1, 0, 3600, 1620, 330, "Five Card Gimme"},
    {K::Timer, "Timer5", -1, 0, 0, 0, 0},
    {K::Timer, "Timer6", -1, 0, 0, 0, 0},
};

std::vector<ControlSpec> Menus() {
    std::vector<ControlSpec> m = {
        {K::Menu, "mnuFile", -1, 0, 0, 0, 0, "&File"},
        {K::Menu, "mnuPlay", -1, 0, 0, 0, 0, "&Play", "mnuFile"},
        {K::Menu, "mnuTakeScore", -1, 0, 0, 0, 0, "&Take Score", "mnuFile"},
        {K::Menu, "mnuPause", -1, 0, 0, 0, 0, "P&ause", "mnuFile"},
        {K::Menu, "mnuExit", -1, 0, 0, 0, 0, "E&xit", "mnuFile"},
    };
    AppendControls(m, OptionsMenuHead());
    m.push_back({K::Menu, "mnuUserOptions", -1, 0, 0, 0, 0, "&User Options...", "mnuOptions"});
    m.push_back({K::Menu, "mnuTimeLimit", -1, 0, 0, 0, 0, "&Time Limit", "mnuOptions"});
    for (const TimeEntry& e : kTimeEntries) m.push_back({K::Menu, e.menu, -1, 0, 0, 0, 0, e.caption, "mnuTimeLimit"});
    m.push_back({K::Menu, "mnuDeck", -1, 0, 0, 0, 0, "Dec&k", "mnuOptions"});
    for (const BackDesign& d : kBackDesigns) m.push_back({K::Menu, d.menu, -1, 0, 0, 0, 0, d.caption, "mnuDeck"});
    AppendControls(m, HelpMenu());
    return m;
}

std::vector<ControlSpec> Layout() {
    std::vector<ControlSpec> layout;
    for (const ControlSpec& control : StandingControls())
        if (!NotHere(control)) layout.push_back(control);
    const auto add = [&layout](std::span<const ControlSpec> part) { AppendControls(layout, part); };
    add(TakeScoreButton());
    add(ExitButton());
    static const char* const kColumnNames[kColumns] = {"Column1", "Column2", "Column3", "Column4"};
    for (int i = 0; i < kColumns; ++i) {
        const int left = kColumnLeft + kColumnStep * i;
        for (int slot = 0; slot < kSlots; ++slot)
            layout.push_back({K::Image, kColumnNames[i], slot, left, kSlotTops[slot], kCardWidth, kCardHeight});
        layout.push_back({K::Label, "ColumnTotal", i, left + 270, 1620, 495, 300, "0"});
        layout.push_back({K::Label, "ColumnSoft", i, left + 270, 1980, 495, 255, ""});
        layout.push_back({K::Button, "cmdHit", i, kHitLefts[i], 5520, kCardWidth, 570, "Hit"});
    }
    add(kBoard);
    add(Menus());
    return layout;
}
}  // namespace

void RegisterBlackrush(Runtime& runtime) {
    runtime.registerForm<frmBlackrush>("frmBlackrush");
    runtime.registerForm<frmBlackrushCustomScoring>("frmBlackrushCustomScoring");
    RegisterBlackrushRules();
}

frmBlackrush::frmBlackrush(Runtime& runtime) : GameForm(runtime, kGame, kDesignWidth, kDesignHeight) {
    add(Layout());
    PlaceControls(*this, kStandingPlaces);
    PrepareStandingControls(*this);
    SetTimer(*this, "Timer1", 1000, false);
    SetTimer(*this, "Timer2", 200, false);
    SetTimer(*this, "Timer3", kNormalSpeed, false);
    SetTimer(*this, "Timer4", 200, false);
    SetTimer(*this, "Timer5", 250, false);
    SetTimer(*this, "Timer6", 60000, true);
    c("cmdPause").setCaption(kPauseCaptionHere);
    c("cmdPause").setToolTipText("Pauses the game in progress");
    c("cmdTakeScore").setToolTipText("Totals score for current round");

    Control& total = c("lblTotalScore");
    total.setFont("Arial", 12, true);
    total.setAlignment(Align::Center);
    total.setForeColor(Colour::Blue);
    c("lblRound").setCaption("Round: 1");
    for (int i = 0; i < kColumns; ++i) {
        Control& columnTotal = c("ColumnTotal", i);
        columnTotal.setAlignment(Align::Center);
        columnTotal.setFontBold(true);
        columnTotal.setBackColor(Colour::White);
        c("ColumnSoft", i).setAlignment(Align::Center);
        c("ColumnSoft", i).setForeColor(Colour::Red);
        c("ColumnSoft", i).setVisible(false);
        for (int slot = 0; slot < kSlots; ++slot) ColumnImage(i, slot).setVisible(false);
    }
    for (const char* big : {"lblBust", "ScoringLabelInfo"}) {
        Control& label = c(big);
        label.setFont("Arial", 24, true);
        label.setAlignment(Align::Center);
        label.setForeColor(Colour::Red);
        label.setBackStyle(0);
        label.setVisible(false);
        label.zOrderFront();
    }
    Control& gimme = c("lblFiveCards");
    gimme.setFont("Arial", 10, true);
    gimme.setAlignment(Align::Center);
    gimme.setForeColor(Colour::Red);
    gimme.setBackStyle(0);
    gimme.setVisible(false);
    gimme.zOrderFront();
    // The message stands in front of the board on the window's grey, its
    // outline around it.
    Control& outline = c("ScoringLabelOutline");
    outline.setBorderStyle(1);
    outline.setVisible(false);
    outline.zOrderFront();
    Control& info = c("ScoringLabelInfo");
    info.setFontSize(18);
    info.setBackStyle(1);
    info.setBackColor(Colour::Grey);
    info.zOrderFront();
    // The frame's labels stand in blue; the count of a round turns them red.
    for (const char* name : {"lblTwentyOnes", "lbl21s", "lbl21Bonus", "lblBonus", "lblCardsUsed", "lblCardsUsedCount",
                             "lblTwentyoneTime", "lblRoundScore"})
        c(name).setForeColor(Colour::Blue);
    for (const char* name : {"lblRoundScore", "lblRoundScoreCount"}) {
        c(name).setAlignment(Align::Center);
        c(name).setVisible(false);
    }
    c("lblRoundScoreCount").setFont("Arial", 12, true);
    c("lblRoundScoreCount").setForeColor(Colour::Blue);
    c("ProgressBar1").setRange(0, 100);
    c("NextCardPicture").setBorderStyle(1);
    ShowGameBoard(false);
    c("lblHighScore").setVisible(true);
    for (const auto& control : controls()) {
        const std::string& name = control->name();
        const bool fixed = control->container() != "" || control->kind() == K::Timer || control->kind() == K::Menu ||
                           name == "StatusBar1" || name == "cmdPlay" || name == "cmdTakeScore" ||
                           name == "cmdPause" || name == "cmdExit";
        if (!fixed) BoardMoves.add(*control);
    }

    BindWindowEvents(
        *this, [this] { Form_Load(); }, [this] { Form_Resize(); }, [this](EventArgs& e) { Form_QueryUnload(e); });
    BindPlayAndPause(*this, [this](bool) { cmdPlay_Click(); }, [this] { PauseGame(); });
    on("cmdTakeScore", Ev::Click, [this](EventArgs&) { cmdTakeScore_Click(); });
    on("mnuTakeScore", Ev::Click, [this](EventArgs&) { mnuTakeScore_Click(); });
    on("cmdHit", Ev::Click, [this](EventArgs& e) { cmdHit_Click(e.index); });
    on("cmdPass", Ev::Click, [this](EventArgs&) { cmdPass_Click(); });
    on("Timer1", Ev::Timer, [this](EventArgs&) { Timer1_Timer(); });
    // Timer3 is the 21 Counter here; the time of day is Timer6's.
    BindShared({.messageLabel = "ScoringLabelInfo", .timeOfDayTimer = "Timer6"});
    on("Timer3", Ev::Timer, [this](EventArgs&) { Timer3_Timer(); });
    on("Timer5", Ev::Timer, [this](EventArgs&) { Timer5_Timer(); });
    on("lblTime", Ev::Change, [this](EventArgs&) { lblTime_Change(); });
    on("lblRoundScore", Ev::Change, [this](EventArgs&) { CentreIn(c("lblRoundScore"), c("frameScoreInfo")); });
    BindTimeAndDeckMenus(kTimeEntries, kReversedDeckMenus, [this](const char* menu) { mnuTime_Click(menu); },
                         [this](int design) { mnuDeck_Click(design); });
    on("mnuUserOptions", Ev::Click,
       [this](EventArgs&) { this->runtime().show("frmBlackrushCustomScoring", true); });
    on("mnuClear", Ev::Click, [this](EventArgs&) { mnuClear_Click(); });

    ExposeVariables({
        {"DeckPosition", Expose(DeckPosition)},
        {"PassesLeft", Expose(PassesLeft)},
        {"CurrentRound", Expose(CurrentRound)},
        {"TwentyOnes", Expose(TwentyOnes)},
        {"QuitRequested", Expose(QuitRequested)},
        {"CardsToPass", Expose(Scoring.CardsToPass)},
        {"TwentyOneBonusValue", Expose(Scoring.TwentyOneBonusValue)},
        {"CardsUsedBonusValue", Expose(Scoring.CardsUsedBonusValue)},
        {"FiveCardGimmeBonus", Expose(Scoring.FiveCardGimmeBonus)},
        {"DeckCompletionBonus", Expose(Scoring.DeckCompletionBonus)},
        {"BonusScore", Expose(Scoring.BonusScore)},
        {"CounterSpeed", Expose(Scoring.CounterSpeed)},
        {"WaitPeriod", Expose(Scoring.WaitPeriod)},
    });
    expose("ColumnCards", [this](int index, Value& out) {
        if (index < 0 || index >= kColumns) return false;
        out = static_cast<long long>(ColumnCards[static_cast<size_t>(index)]);
        return true;
    });
    expose("SoftAces", [this](int index, Value& out) {
        if (index < 0 || index >= kColumns) return false;
        out = static_cast<long long>(SoftAces[static_cast<size_t>(index)]);
        return true;
    });
}

// ---- Loading and closing ---------------------------------------------------------

SettingsLayout frmBlackrush::SettingsSections() {
    const auto number16 = [](int16_t& target) {
        return [&target](const std::string& v) { target = CInt(Val(v)); };
    };
    const auto number32 = [](int32_t& target) {
        return [&target](const std::string& v) { target = CLng(Val(v)); };
    };
    SettingsLayout layout = {
        PlaySoundsSection(*this),
        {"[Timer Speed]",
         [this](const std::string& v) {
             for (int16_t speed : {kNormalSpeed, kSlowSpeed, kSlowestSpeed})
                 if (v == NumText(speed)) {
                     Scoring.CounterSpeed = speed;
                     c("Timer3").setInterval(speed);
                 }
         },
         [this] { return NumText(Scoring.CounterSpeed); }},
        PlayMusicSection(*this),
        DeckSection(*this, kReversedDeckMenus),
        {"[Cards To Pass]", number16(Scoring.CardsToPass), [this] { return NumText(Scoring.CardsToPass); }},
        {"[TwentyOne Bonus Value]", number32(Scoring.TwentyOneBonusValue),
         [this] { return NumText(Scoring.TwentyOneBonusValue); }},
        {"[Cards Used Bonus Value]", number32(Scoring.CardsUsedBonusValue),
         [this] { return NumText(Scoring.CardsUsedBonusValue); }},
        {"[5 Cards Bonus Value]", number32(Scoring.FiveCardGimmeBonus),
         [this] { return NumText(Scoring.FiveCardGimmeBonus); }},
        {"[Deck Completion Bonus]", number32(Scoring.DeckCompletionBonus),
         [this] { return NumText(Scoring.DeckCompletionBonus); }},
        {"[Wait Period]", number16(Scoring.WaitPeriod), [this] { return NumText(Scoring.WaitPeriod); }},
        TimeSection(*this, kTimeEntries, "[Time Limit]"),
        {"[Bonus Round Score]", number32(Scoring.BonusScore), [this] { return NumText(Scoring.BonusScore); }},
        CountDownSection(),
    };
    for (SettingsSection& section : WindowSizeSections(*this, kDesignWidth, kDesignHeight)) layout.push_back(section);
    return layout;
}

void frmBlackrush::Form_Load() {
    // Design 3 by its number alone: the backs in force stay until "[Deck]"
    // or the menu chooses a design.
    BeginLoad(3);
    Scoring = ScoringValues{};
    c("Timer3").setInterval(Scoring.CounterSpeed);
    DeckPosition = 0;
    GameInProgress = false;
    ShowWelcome(*this);
    c("StatusBar1").setPanel(1, "Welcome to " + AppTitle + "!");
    ReadSettings();
    CompleteLoad();
    CheckForCustom();
}

void frmBlackrush::Form_QueryUnload(EventArgs& args) {
    ConfirmClose(args);
}

// The cards keep their size: a resize centres the board in the window and
// keeps the buttons at the right edge and the status bar at the bottom.
void frmBlackrush::Form_Resize() {
    if (ResizeToPlace()) PlaceBoard();
}

void frmBlackrush::PlaceBoard() {
    const Offset at = CentredOffset(*this, kDesignWidth, kDesignHeight);
    BoardMoves.shift(at.dx, at.dy);
    KeepAtRightEdge(*this, {"cmdPlay", "cmdTakeScore", "cmdPause", "cmdExit"});
    PlaceStatusBar(*this);
    lblTime_Change();
}

// lblTime stands centred over the fourth column's first card.
void frmBlackrush::lblTime_Change() {
    Control& time = c("lblTime");
    const Control& card = ColumnImage(3, 0);
    const int width = runtime().platform().textWidth(time.caption(), time.fontSize(), time.fontBold()) + 30;
    time.setWidth(std::min(width, 1500));
    time.setLeft(card.left() + card.width() / 2 - time.width() / 2);
}

// ---- Menus ----------------------------------------------------------------------------

void frmBlackrush::mnuTime_Click(const char* menu) {
    ChooseTimeLimit(*this, kTimeEntries, menu);
    ShowHighScore(kTableName, *this, kTableTopScore);
}

void frmBlackrush::mnuDeck_Click(int design) {
    ChooseBackDesign(*this, kReversedDeckMenus[design - 1]);
    DeckDesign = static_cast<int16_t>(design);
    if (DeckPosition > 0 && DeckPosition < 52) ShowPile();
}

void frmBlackrush::mnuClear_Click() {
    ClearTable();
}

// The menu entry does what the button does, and nothing while the button
// is hidden or disabled.
void frmBlackrush::mnuTakeScore_Click() {
    const Control& button = c("cmdTakeScore");
    if (button.visible() && button.enabled()) cmdTakeScore_Click();
}

void frmBlackrush::CheckForCustom() { CustomScoringInUse = IsCustomScoring(Scoring); }

void frmBlackrush::ShowBonusGoal(const std::string& tail) {
    c("StatusBar1").setPanel(1, "Make " + FormatScore(Scoring.BonusScore) + " for bonus round." + tail);
}

}  // namespace ch
