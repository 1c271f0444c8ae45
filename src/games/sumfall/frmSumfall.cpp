#include "games/sumfall/frmSumfall.h"

#include <algorithm>
#include <memory>

#include "games/sumfall/frmSave.h"
#include "games/sumfall/frmSumfallCustomScoring.h"
#include "suite/cards.h"
#include "suite/common.h"
#include "suite/dial.h"
#include "suite/files.h"
#include "suite/frmRules.h"
#include "suite/highscores.h"
#include "suite/sound.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace sumfall;

namespace {
using K = ControlKind;

const char* const kTable = "HiScores";
const char* const kDefaultScore = "50000";
const char* const kSettingsFile = "\\Sumfall.Ini";
constexpr int kDesignWidth = 9540;
constexpr int kDesignHeight = 7200;
constexpr int kCardWidth = 1065;
constexpr int kCardHeight = 1455;
const char* const kTakeScoreCaption = "&Take Score";
const char* const kReplayCaption = "&Replay";
const char* const kReplayTip = "Replays the last game";

const TimeEntry kTimeEntries[] = {
    {"mnu30", 30, "&30 seconds"},   {"mnu60", 60, "&60 seconds"},    {"mnu90", 90, "&90 seconds (default)"},
    {"mnu120", 120, "1&20 seconds"}, {"mnu150", 150, "1&50 seconds"}, {"mnu180", 180, "1&80 seconds"},
};
const char* const kGoalMenus[6] = {"mnu10", "mnu11", "mnu12", "mnu13", "mnu14", "mnu15"};
const char* const kGoalCaptions[6] = {"1&0", "1&1 (Default)", "1&2", "1&3", "1&4", "1&5"};

// Sumfall's own places for the standing controls: the field takes the middle
// of the window, so the boxes stand in a row above it and the buttons at the
// right edge.
struct Place {
    const char* name;
    int left, top, width, height;
};
const Place kStandingPlaces[] = {
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
    auto add = [&specs](std::span<const ControlSpec> part) { specs.insert(specs.end(), part.begin(), part.end()); };
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

// The picture of a card code; a code with no picture (an empty slot of a
// damaged saved game) is an error, as the catalogue's lookup always was.
int PictureOf(const std::string& code) {
    const int index = ImageList2().indexOf(CardKey(code));
    if (index == 0) throw RuntimeError(35601, "Element not found");
    return index;
}

// The command line names a saved game for the first opening of the window only.
bool g_commandLineTaken = false;

std::string Tail(const std::string& s) { return s.empty() ? s : s.substr(1); }

std::string SumfallRules() {
    Form* window = Runtime::current().loaded("frmSumfall");
    const frmSumfall* game = static_cast<const frmSumfall*>(window);
    const int32_t bonusRound = game ? game->BonusRoundScore : kDefaultBonusRoundScore;
    const int32_t combination = game ? game->CombinationBonus : kDefaultCombinationBonus;
    const int32_t completion = game ? game->CompletionBonus : kDefaultCompletionBonus;
    const std::string takeScore = window ? Tail(window->c("cmdTakeScore").caption()) : "Take Score";
    return RulesText(30, {
        "Requirements: To run " + AppTitle + " you need Windows 95 or above " + "and a mouse. " +
            " Recommended: Soundcard.",
        "As with most games, the object of " + AppTitle + " is to attain the highest number of points " +
            "possible. The game consists of two rounds, each lasting " + NumText(TimeLimit) + " seconds. If " +
            "you earn more than " + NumText(bonusRound) + " points in these rounds you are awarded an " +
            "additional bonus round. You earn points in several ways:",
        "1. Elevens: Selecting " + std::string("exposed cards that total eleven (the card goal). You are awarded ") +
            NumText(combination) + " points for each " +
            "combination of 11's you select. These points are awarded at the end of each round. When selecting " +
            "cards (to reach the card goal), each card is worth it's face value, aces are worth 1. The deck "
            "consists of 52 " +
            "cards; 16 Aces, 4 of each card 2 thru 10 and no face cards.",
        std::string(" you have the ability to change the card goal from 11 ") +
            "to any number between 10 and 15. When your card goal is set to 12, 4 Jacks (each with a value of 11) "
            "are added " +
            "to the deck. When your card goal is 13, 4 Jacks and 4 Queens are added (Queens have a value of 12). "
            "When your card " +
            "goal is 14 or 15, 4 Jacks, 4 Queens and 4 Kings are added to the deck. Kings have a value of 13 each. " +
            "All face cards are in addition to the standard deck described above.",
        "2. " + std::string("Completion Bonus: If you clear all of the exposed cards (upper deck) you are awarded an "
                            "additional ") +
            NumText(completion) + " points. Exposed cards are those in " +
            "the upper playing area. You do not need to use all cards in the deck to earn the completion bonus.",
        "3. Time Bonus: You are awarded " + NumText(TimeBonus) + " points for each second " +
            "remaining in the round after selecting the '" + takeScore + "' command button.",
        std::string("4. Creating Eleven Combinations: When you are selecting cards to create an '11' combination, "
                    "the location ") +
            "of the cards determines points awarded when 11 is reached. The 'Field cards' (upper deck) are "
            "displayed in 6 tiers. " +
            "Selected cards in tier one (the bottom one) are worth 200 points, cards in tier two are worth 300 and "
            "so " +
            "on to tier six which are worth 700 points. Cards selected from the deck are worth 100 points.",
        std::string("Note: Each time you select a new card from the deck your ") + "score is decreased by 100 points.",
        std::string("Strategy: On the average, you earn a larger number ") +
            "of points by creating eleven combinations as opposed to clearing the upper deck. If possible, clear "
            "the lower " +
            "tiers and then sumfall. Try to clear the upper deck in the last " + NumText(TimeLimit / 4) +
            " seconds of play. ",
        "Good luck and have fun!",
    });
}
}  // namespace

void RegisterSumfall(Runtime& runtime) {
    runtime.registerForm("frmSumfall", [](Runtime& rt) { return std::make_unique<frmSumfall>(rt); });
    runtime.registerForm("frmSumfallCustomScoring",
                         [](Runtime& rt) { return std::make_unique<frmSumfallCustomScoring>(rt); });
    runtime.registerForm("frmSave", [](Runtime& rt) { return std::make_unique<frmSave>(rt); });
    runtime.registerForm("frmOpen", [](Runtime& rt) { return std::make_unique<frmOpen>(rt); });
    RegisterRules("Sumfall!", SumfallRules);
}

frmSumfall::frmSumfall(Runtime& runtime) : Form(runtime, "frmSumfall") {
    setSize(kDesignWidth, kDesignHeight);
    add(Layout());
    for (const Place& p : kStandingPlaces) c(p.name).move(p.left, p.top, p.width, p.height);
    PrepareStandingControls(*this);
    SetTimer(*this, "Timer1", 1000, false);
    SetTimer(*this, "Timer2", 200, false);
    SetTimer(*this, "Timer3", 60000, true);
    SetTimer(*this, "Timer4", 250, true);
    for (int i = 0; i < kFieldPlaces; ++i) {
        Control& card = c("FieldCardPicture", i);
        card.setVisible(false);
        card.setMousePointer(99);
        card.setBorderStyle(1);
        card.setToolTipText(NumText(kField[static_cast<size_t>(i)].points) + " points");
        c("FieldSelectionRectangle", i).setVisible(false);
        c("FieldSelectionRectangle", i).setBorderStyle(1);
    }
    for (const char* name : {"PlayCardPicture", "UpCardPicture"}) {
        c(name).setMousePointer(99);
        c(name).setVisible(false);
    }
    c("UpCardPicture").setToolTipText("100 points");
    c("UpCardSelectionRectangle").setVisible(false);
    c("UpCardSelectionRectangle").setBorderStyle(1);
    c("lblCardCount").setVisible(false);
    for (const char* name : {"lblCurrentElevens", "lblCurrentTotal"}) {
        c(name).setAlignment(2);
        c(name).setForeColor(0xFF0000);
    }
    CardTotalVisible(false);
    // The messages stand over the field.
    c("lblMessage").zOrderFront();
    SelectionColor(kDefaultSelectionColour);
    PlaceBoard();

    on(Ev::Load, [this](EventArgs&) { Form_Load(); });
    on(Ev::Activate, [this](EventArgs&) { Form_Activate(); });
    on(Ev::Resize, [this](EventArgs&) { Form_Resize(); });
    on(Ev::QueryUnload, [this](EventArgs& e) { Form_QueryUnload(e); });
    on("cmdPlay", Ev::Click, [this](EventArgs&) { cmdPlay_Click(false); });
    on("mnuPlay", Ev::Click, [this](EventArgs&) { cmdPlay_Click(true); });
    on("cmdPause", Ev::Click, [this](EventArgs&) { cmdPause_Click(); });
    on("mnuPause", Ev::Click, [this](EventArgs&) { cmdPause_Click(); });
    on("cmdTakeScore", Ev::Click, [this](EventArgs&) { cmdTakeScore_Click(false); });
    on("mnuTakeScore", Ev::Click, [this](EventArgs&) { cmdTakeScore_Click(true); });
    on("cmdExit", Ev::Click, [this](EventArgs&) { this->runtime().unload(*this); });
    on("mnuExit", Ev::Click, [this](EventArgs&) { this->runtime().unload(*this); });
    on("FieldCardPicture", Ev::Click, [this](EventArgs& e) { FieldCardPicture_Click(e.index); });
    on("FieldCardPicture", Ev::MouseMove, [this](EventArgs& e) { FieldCardPicture_MouseMove(e.index); });
    on("UpCardPicture", Ev::Click, [this](EventArgs&) { UpCardPicture_Click(); });
    on("UpCardPicture", Ev::MouseMove, [this](EventArgs&) { UpCardPicture_MouseMove(); });
    on("PlayCardPicture", Ev::Click, [this](EventArgs&) { PlayCardPicture_Click(); });
    on("PlayCardPicture", Ev::MouseMove, [this](EventArgs&) { PlayCardPicture_MouseMove(); });
    on("Timer1", Ev::Timer, [this](EventArgs&) { Timer1_Timer(); });
    on("Timer2", Ev::Timer, [this](EventArgs&) { DrawTimeDial(DialAngle(DialSeconds), *this); });
    on("Timer3", Ev::Timer, [this](EventArgs&) { ShowTimeOfDay(*this); });
    on("Timer4", Ev::Timer, [this](EventArgs&) { Splash.step(*this, SplashFace::Sumfall); });
    on("lblCurrentScore", Ev::Change, [this](EventArgs&) { lblCurrentScore_Change(); });
    on("lblMessage", Ev::Change, [this](EventArgs&) { lblMessage_Change(); });
    on("lblCurrentRound", Ev::Change, [this](EventArgs&) { CentreIn("lblCurrentRound", "RoundRectangle"); });
    on("lblCurrentElevens", Ev::Change, [this](EventArgs&) { CentreIn("lblCurrentElevens", "ElevensRectangle"); });
    on("lblCurrentTotal", Ev::Change, [this](EventArgs&) { CentreIn("lblCurrentTotal", "CardTotalRectangle"); });
    for (const TimeEntry& entry : kTimeEntries)
        on(entry.menu, Ev::Click, [this, menu = entry.menu](EventArgs&) { mnuTime_Click(menu); });
    for (int goal = 10; goal <= 15; ++goal)
        on(kGoalMenus[goal - 10], Ev::Click, [this, goal](EventArgs&) { mnuGoal_Click(goal); });
    for (int i = 0; i < 6; ++i)
        on(kSelectionColours[static_cast<size_t>(i)].menu, Ev::Click, [this, i](EventArgs&) { mnuColor_Click(i); });
    for (int design = 1; design <= 4; ++design)
        on(kDeckMenus[design - 1], Ev::Click, [this, design](EventArgs&) { mnuDeck_Click(design); });
    on("mnuSounds", Ev::Click, [this](EventArgs&) { SetPlaySounds(*this, !PlaySounds); });
    on("mnuMusic", Ev::Click, [this](EventArgs&) {
        SetPlayMusic(*this, !PlayMusic, GameInProgress && c("cmdPause").caption() == kPauseCaption);
    });
    on("mnuDrawTimer", Ev::Click, [this](EventArgs&) { mnuDrawTimer_Click(); });
    on("mnuScoring", Ev::Click, [this](EventArgs&) { this->runtime().show("frmSumfallCustomScoring", true); });
    on("mnuViewHiScore", Ev::Click, [this](EventArgs&) { ShowModalPaused(*this, "frmHighScores"); });
    on("mnuClear", Ev::Click, [this](EventArgs&) { mnuClear_Click(); });
    on("mnuSave", Ev::Click, [this](EventArgs&) { this->runtime().show("frmSave", true); });
    on("mnuOpen", Ev::Click, [this](EventArgs&) { this->runtime().show("frmOpen", true); });
    on("mnuRules", Ev::Click, [this](EventArgs&) { ShowModalPaused(*this, "frmRules"); });
    on("mnuAbout", Ev::Click, [this](EventArgs&) { ShowModalPaused(*this, "frmAbout"); });

    expose("BonusRoundScore", Expose(BonusRoundScore));
    expose("CompletionBonus", Expose(CompletionBonus));
    expose("CombinationBonus", Expose(CombinationBonus));
    expose("Round1Deck", Expose(Round1Deck));
    expose("Round2Deck", Expose(Round2Deck));
    expose("Round3Deck", Expose(Round3Deck));
    expose("UpCards", Expose(UpCards));
    expose("UpCardIndex", Expose(UpCardIndex));
    expose("StockCards", Expose(StockCards));
    expose("StockIndex", Expose(StockIndex));
    expose("CurrentTotal", Expose(CurrentTotal));
    expose("CombinationCount", Expose(CombinationCount));
    expose("CurrentRound", Expose(CurrentRound));
    expose("SelectionColorIndex", Expose(SelectionColorIndex));
    expose("ReplayPending", Expose(ReplayPending));
    expose("CountDownScore", Expose(CountDownScore));
    expose("CardGoal", Expose(CardGoal));
    expose("FieldCards", [this](int index, Value& out) {
        if (index < 0 || index >= kFieldPlaces) return false;
        out = FieldCards[static_cast<size_t>(index)];
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
        {"[Play Music]", [this](const std::string& v) { SetPlayMusic(*this, ParseBoolText(v), false); },
         [] { return std::string(BoolText(PlayMusic)); }},
        {"[Time]", [this](const std::string& v) { ApplyTimeSetting(*this, v, kTimeEntries); },
         [] { return NumText(TimeLimit); }},
        {"[DrawTimer]",
         [this](const std::string& v) {
             CountDownScore = ParseBoolText(v);
             c("mnuDrawTimer").setChecked(CountDownScore);
         },
         [this] { return std::string(BoolText(CountDownScore)); }},
        {"[Play Sounds]", [this](const std::string& v) { SetPlaySounds(*this, ParseBoolText(v)); },
         [] { return std::string(BoolText(PlaySounds)); }},
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
    layout.push_back({"[Deck]", [this](const std::string& v) { ApplyDeckSetting(*this, v, kDeckMenus); },
                      [] { return NumText(DeckDesign); }});
    return layout;
}

void frmSumfall::Form_Load() {
    setMousePointer(11);
    c("Timer4").setEnabled(true);
    c("Timer1").setEnabled(false);
    TimeLimit = 90;
    PlaySounds = true;
    PlayMusic = false;
    DeckDesign = 1;
    CountDownScore = true;
    CardGoal = kDefaultCardGoal;
    BonusRoundScore = kDefaultBonusRoundScore;
    CompletionBonus = kDefaultCompletionBonus;
    CombinationBonus = kDefaultCombinationBonus;
    TimeBonus = kDefaultTimeBonus;
    CustomScoringInUse = false;
    c("mnu90").setChecked(true);
    c("mnu11").setChecked(true);
    c("mnuSounds").setChecked(true);
    c("mnuDrawTimer").setChecked(true);
    c(kSelectionColours[kDefaultSelectionColour].menu).setChecked(true);
    c("lblElevens").setCaption(CardGoalWord(CardGoal));
    ShowWelcome(*this);
    ReadSettingsINI(kSettingsFile, SettingsSections());
    GameStartTime = runtime().platform().wallClock();
    ShowSplashCaptions(*this);
    CentreOnScreen(*this);
    InitTimeDial(*this);
    ShowHighScore(kTable, *this, kDefaultScore);
    c("mnuSave").setEnabled(false);
    setMousePointer(0);
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
    if (!AskYesNo(CloseQuestion())) {
        args.cancel = true;
        if (pauseFirst) cmdPause_Click();
        return;
    }
    LeaveGameWindow(*this, kSettingsFile, SettingsSections());
}

// The cards keep their size: a resize only places the board around the
// middle of the window, the buttons at its right edge.
void frmSumfall::Form_Resize() {
    if (windowState() == 1) return;
    if ((width() < kDesignWidth || height() < kDesignHeight) && windowState() == 0) {
        setSize(kDesignWidth, kDesignHeight);
        return;
    }
    PlaceBoard();
}

void frmSumfall::PlaceBoard() {
    const int clientWidth = width() - 120;
    const int clientHeight = height() - 660;
    Control& splash = c("frmSplash");
    splash.setLeft((clientWidth - splash.width()) / 2);
    splash.setTop(1440);
    for (const char* button : {"cmdPlay", "cmdTakeScore", "cmdPause", "cmdExit"}) c(button).setLeft(width() - 1320);
    Control& bar = c("StatusBar1");
    bar.move(0, clientHeight - 330, clientWidth, 330);

    const int x = CLng(width() / 2.208333333333);
    const int y = CLng(height() / 5.142857142857);
    for (int i = 0; i < kFieldPlaces; ++i) {
        const FieldPlace& place = kField[static_cast<size_t>(i)];
        c("FieldCardPicture", i).move(x + place.dx, y + place.dy, kCardWidth, kCardHeight);
        c("FieldSelectionRectangle", i).move(x + place.dx, y + place.dy, kCardWidth, kCardHeight);
    }
    // The piles and the card total follow the bottom row, the card count
    // stands above the status bar.
    const int pileTop = y + 2500 + 600;
    c("PlayCardPicture").move(x - 1440, pileTop, kCardWidth, kCardHeight);
    c("UpCardPicture").move(x + 1440, pileTop, kCardWidth, kCardHeight);
    c("UpCardSelectionRectangle").move(x + 1440, pileTop, kCardWidth, kCardHeight);
    c("lblTotal").move(x - 150, pileTop + 60, 1365, 255);
    c("CardTotalRectangle").move(x + 75, pileTop + 360, 915, 450);
    c("CardTotalBevelSide").move(x + 1005, pileTop + 375, 0, 450);
    c("CardTotalBevelBottom").move(x + 90, pileTop + 825, 915, 0);
    c("lblCardCount").move(x - 150, std::min(pileTop + 960, clientHeight - 330 - 255 - 50), 1365, 255);
    CentreIn("lblCurrentTotal", "CardTotalRectangle");
    lblMessage_Change();
}

// ---- Play, pause, end --------------------------------------------------------------

void frmSumfall::cmdPlay_Click(bool fromMenu) {
    if (c(fromMenu ? "mnuPlay" : "cmdPlay").caption() == kPlayCaption) {
        SetPlayCaptions(*this, true);
        if (fromMenu) {
            c("frmSplash").setVisible(false);
        } else {
            ShowSplash(*this, false);
            c("mnuSave").setEnabled(false);
        }
        Play();
        if (!fromMenu && PlayMusic && loaded()) StartMusic();
        return;
    }
    if (fromMenu && !GameInProgress) {
        Control& message = c("lblMessage");
        message.setCaption("Select your options and play again!");
        message.setVisible(true);
        runtime().refresh();
        Sleep(2000);
        return;
    }
    c("cmdPlay").setToolTipText(kStartsTip);
    if (!GameInProgress) return;
    cmdPause_Click();
    const bool yes = AskYesNo(fromMenu ? kRestartQuestion : kQuitNowQuestion);
    cmdPause_Click();
    if (!yes) return;
    SetPlayCaptions(*this, false);
    EndGame();
}

void frmSumfall::Play() {
    setMousePointer(11);
    bool ok = true;
    if (ReplayPending) {
        for (size_t i = 1; i < Deck.size() && i < Round1Deck.size(); ++i) Deck[i] = Round1Deck[i];
    } else {
        ok = CreateSumfallDeck() && ShuffleDeck();
        if (ok) {
            for (auto* round : {&Round1Deck, &Round2Deck, &Round3Deck}) round->assign(Deck.size(), std::string());
        }
    }
    ok = ok && Deal(true);
    if (ok) {
        GameInProgress = true;
        TakingScore = false;
        c("lblHighScore").setVisible(true);
        for (const char* name : {"cmdTakeScore", "mnuTakeScore"}) {
            c(name).setEnabled(true);
            c(name).setCaption(kTakeScoreCaption);
        }
        c("cmdTakeScore").setToolTipText("Ends current round and awards time bonus");
        c("cmdPause").setEnabled(true);
        for (const char* name : {"mnuPause", "mnuViewHiScore", "mnuDeck"}) c(name).setEnabled(true);
        for (const char* name : {"mnuOpen", "mnuTime", "mnuGoal", "mnuScoring"}) c(name).setEnabled(false);
    } else {
        MsgBox("Unknown Error! Unable to play " + AppTitle, MsgButtons::OKCancel, MsgIcon::Critical, AppTitle);
        runtime().unload(*this);
        if (!loaded()) return;
    }
    setMousePointer(0);
}

void frmSumfall::cmdPause_Click() {
    if (c("cmdPause").caption() == kPauseCaption)
        PauseGame();
    else
        ResumeGame();
}

// A paused game cannot be studied: the selection goes and the cards are
// turned down.
void frmSumfall::PauseGame() {
    SetPausedControls(*this);
    SelRectangle(false);
    CurrentTotal = 0;
    c("lblCurrentTotal").setCaption(NumText(CurrentTotal));
    RefreshFieldCards();
    if (UpCardIndex > 0) {
        c("UpCardPicture").setPicture(ImageList2().indexOf("BACK"));
        c("UpCardPicture").setBorderStyle(0);
    }
    if (PlayMusic) StopMusic();
}

void frmSumfall::ResumeGame() {
    SetResumedControls(*this);
    ShowFieldFaces();
    if (PlayMusic && GameInProgress) StartMusic();
}

void frmSumfall::cmdTakeScore_Click(bool fromMenu) {
    if (c("cmdTakeScore").caption() == kReplayCaption) {
        ReplayPending = true;
        cmdPlay_Click(false);
        return;
    }
    if (TakingScore) return;
    TakeScore();
    if (!fromMenu && loaded() && PlayMusic && GameInProgress) StartMusic();
}

void frmSumfall::Timer1_Timer() {
    AdvanceRoundClock(*this);
    ShowTimeWarnings(*this);
    if (ElapsedSeconds != TimeLimit) return;
    c("Timer1").setEnabled(false);
    DisableCommandButtons(true);
    ShowTimesUp(*this);
    BlinkLabel(c("lblMessage"), 10, 250);
    cmdTakeScore_Click(false);
    if (loaded() && c("lblMessage").caption() != kGameOver) c("lblMessage").setVisible(false);
}

// The end of a round: completion, combinations and speed bonus in this order,
// then the next round, the bonus round or the end of the game.
void frmSumfall::TakeScore() {
    Control& message = c("lblMessage");
    Control& score = c("lblCurrentScore");
    TakingScore = true;
    c("Timer1").setEnabled(false);
    setMousePointer(11);
    if (PlayMusic) StopMusic();

    DisableCommandButtons(true);
    SelRectangle(false);
    const bool completed = CheckForCompletion();
    FieldCardDisplay(false);
    CardTotalVisible(false);
    ShowLowerCards(false);

    if (completed) {
        Wave("\\Wingame.wav");
        message.setCaption("Completion Bonus! " + NumText(CompletionBonus));
        message.setVisible(true);
        runtime().refresh();
        score.setForeColor(0xFFFF00);
        Sleep(1000);
        if (CountDownScore) {
            const int32_t step = CompletionBonus / 10;
            for (int i = 0; i < 10; ++i) {
                message.setForeColor(message.foreColor() == 255 ? 0 : 255);
                AddToScore(step);
                ShowScore();
                runtime().refresh();
                Wave("\\Snap.wav");
                Sleep(75);
            }
        } else {
            AddToScore(CompletionBonus);
            ShowScore();
            runtime().refresh();
            Sleep(1000);
        }
    }

    Control& combinations = c("lblCurrentElevens");
    if (CombinationCount != 0) {
        const std::string& word = c("lblElevens").caption();
        message.setCaption(NumText(CombinationCount) + " " + word.substr(0, word.empty() ? 0 : word.size() - 1) +
                           "! Bonus = " + NumText(static_cast<long long>(CombinationBonus) * CombinationCount));
        message.setVisible(true);
        runtime().refresh();
        score.setForeColor(0xFFFF00);
        combinations.setForeColor(0xFFFF00);
        if (CountDownScore) {
            while (CombinationCount > 0) {
                AddToScore(CombinationBonus);
                ShowScore();
                runtime().refresh();
                CombinationCount -= 1;
                combinations.setCaption(NumText(CombinationCount));
                Wave("\\Snap.wav");
                Sleep(75);
            }
        } else {
            AddToScore(static_cast<long long>(CombinationBonus) * CombinationCount);
            ShowScore();
            CombinationCount = 0;
            combinations.setCaption(NumText(CombinationCount));
            Sleep(1000);
        }
    }
    combinations.setForeColor(0xFF0000);

    const int left = TimeLimit - ElapsedSeconds;
    if (left >= 1) {
        message.setCaption("Speed Bonus! " + NumText(static_cast<long long>(left) * TimeBonus));
        message.setVisible(true);
        runtime().refresh();
        score.setForeColor(0xFFFF00);
        Sleep(1000);
        if (!CountDownScore) {
            ElapsedSeconds = TimeLimit;
            AddToScore(static_cast<long long>(left) * TimeBonus);
            DrawTimeDial(0, *this);
            score.setForeColor(255);
            ShowScore();
            runtime().refresh();
            Sleep(1000);
            score.setForeColor(0);
        } else {
            for (int second = ElapsedSeconds + 1; second <= TimeLimit; ++second) {
                DrawTimeDial(DialAngle(ElapsedSeconds), *this);
                DialSeconds = static_cast<int16_t>(second);
                ElapsedSeconds += 1;
                AddToScore(TimeBonus);
                ShowScore();
                runtime().refresh();
                Wave("\\Snap.wav");
                Sleep(75);
            }
        }
    }

    DoEvents();
    TakingScore = false;
    if (!loaded()) return;

    if (CurrentRound == 1) {
        message.setCaption("Prepare for Round Two!");
        message.setVisible(true);
        BlinkLabel(message, 11, 250);
        message.setVisible(false);
        CurrentRound = 2;
        c("lblCurrentRound").setCaption(NumText(CurrentRound));
        if (ReplayPending && Round2Deck.size() > 1 && !Round2Deck[1].empty())
            Deck = Round2Deck;
        else
            ShuffleDeck();
        Deal();
        message.setVisible(false);
        DisableCommandButtons(false);
        FieldCardDisplay(true);
    } else if (CurrentRound == 2 && CurrentScore >= BonusRoundScore) {
        Wave("\\HighScore.wav");
        message.setCaption("Bonus Round!");
        message.setVisible(true);
        BlinkLabel(message, 11, 250);
        message.setVisible(false);
        CurrentRound = 3;
        if (ReplayPending && Round3Deck.size() > 1 && !Round3Deck[1].empty())
            Deck = Round3Deck;
        else
            ShuffleDeck();
        Deal();
        DisableCommandButtons(false);
        c("lblCurrentRound").setCaption("Bonus");
        if (PlayMusic) StartMusic();
        FieldCardDisplay(true);
        ReplayPending = false;
    } else {
        for (int i = 0; i < kFieldPlaces; ++i) {
            c("FieldCardPicture", i).setVisible(false);
            c("FieldSelectionRectangle", i).setVisible(false);
        }
        CurrentRound = 1;
        GameInProgress = false;
        PreviousScore = CurrentScore;
        ShowLowerCards(false);
        c("mnuSave").setEnabled(true);
        c("mnuOpen").setEnabled(true);
        c("StatusBar1").setPanel(2, "Game over");
        c("lblCurrentTotal").setCaption("0");

        if (!UpdateHighScoreTable(kTable, *this) || !loaded() || !ShowHighScore(kTable, *this, kDefaultScore))
            MsgBox("An error occured when attmpting to access the High Score Table. Please close and restart the "
                   "game.",
                   MsgButtons::OK, MsgIcon::Critical, AppTitle);
        if (!loaded()) return;

        // The caption's Change places the label again, over the field.
        message.setTop(height() / 2);
        message.setCaption(kGameOver);
        message.setForeColor(255);
        setMousePointer(11);
        message.setVisible(true);
        runtime().refresh();
        Sleep(2000);
        message.setVisible(false);
        setMousePointer(0);

        ShowSplash(*this, true);
        c("cmdExit").setEnabled(true);
        c("cmdPlay").setEnabled(true);
        SetPlayCaptions(*this, false);
        for (const char* name : {"cmdTakeScore", "mnuTakeScore"}) {
            c(name).setCaption(kReplayCaption);
            c(name).setEnabled(true);
        }
        c("cmdTakeScore").setToolTipText(kReplayTip);
        for (const char* name : {"mnuExit", "mnuPlay", "mnuTime", "mnuGoal", "mnuScoring"}) c(name).setEnabled(true);
        c("cmdPause").setEnabled(false);
        c("mnuPause").setEnabled(false);
        ElapsedSeconds = TimeLimit;
        DrawTimeDial(0, *this);
        ReplayPending = false;
    }

    ElapsedSeconds = 0;
    score.setForeColor(0xFF0000);
    message.setForeColor(255);
    SelRectangle(false);
    CardTotalVisible(true);
    setMousePointer(0);
}

// After a confirmed End Game: no score goes to the table.
void frmSumfall::EndGame() {
    GameInProgress = false;
    ReplayPending = false;
    FieldCardDisplay(false);
    ShowLowerCards(false);
    c("Timer1").setEnabled(false);
    c("Timer2").setEnabled(false);
    ElapsedSeconds = 0;
    c("lblTime").setCaption("Time:");
    c("Surface").cls();
    for (const char* name : {"CardTotalRectangle", "CardTotalBevelSide", "CardTotalBevelBottom"})
        c(name).setVisible(false);
    SelRectangle(false);
    PreviousScore = CurrentScore;
    CurrentScore = 0;
    ShowScore();
    c("lblCurrentTotal").setVisible(false);
    c("lblTotal").setVisible(false);
    CurrentRound = 1;
    c("lblCurrentRound").setCaption(NumText(CurrentRound));
    CombinationCount = 0;
    c("lblCurrentElevens").setCaption(NumText(CombinationCount));
    c("cmdPause").setEnabled(false);
    for (const char* name : {"cmdTakeScore", "mnuTakeScore"}) {
        c(name).setCaption(kReplayCaption);
        c(name).setEnabled(true);
    }
    c("cmdTakeScore").setToolTipText(kReplayTip);
    for (const char* name : {"mnuTime", "mnuGoal", "mnuScoring", "mnuSave", "mnuOpen", "mnuPlay"})
        c(name).setEnabled(true);
    c("mnuPause").setEnabled(false);
    ShowSplash(*this, true);
    if (PlayMusic) StopMusic();
}

// ---- The deck and the deal ----------------------------------------------------------

bool frmSumfall::CreateSumfallDeck() {
    try {
        Deck = DeckForCardGoal(CardGoal);
        for (auto* round : {&Round1Deck, &Round2Deck, &Round3Deck}) round->assign(Deck.size(), std::string());
        StockCards.assign(static_cast<size_t>(StockUpperBound(CardGoal)) + 1, std::string());
        return true;
    } catch (const std::exception&) {
        MsgBox("Unable to create the deck.", MsgButtons::OK, MsgIcon::None, AppTitle);
        return false;
    }
}

bool frmSumfall::Deal(bool newGame) {
    try {
        const int lastCard = DeckUpperBound();
        StockCards.assign(static_cast<size_t>(std::max(lastCard - 22, 0)) + 1, std::string());
        const int stockUpperBound = static_cast<int>(StockCards.size()) - 1;
        UpCardIndex = 1;
        StockIndex = static_cast<int16_t>(stockUpperBound - 1);

        c("UpCardSelectionRectangle").setVisible(false);
        c("UpCardPicture").setBorderStyle(1);
        c("PlayCardPicture").setVisible(false);
        c("lblMessage").setCaption("");
        c("lblMessage").setVisible(false);
        for (int i = 1; i < kFieldPlaces; ++i) {
            c("FieldCardPicture", i).setVisible(false);
            c("FieldSelectionRectangle", i).setVisible(false);
        }

        Control& bar = c("StatusBar1");
        bar.setPanel(1, "Make " + FormatScore(BonusRoundScore) + " for Bonus Round!   ");
        bar.setPanel(2, "Click on exposed cards to total " + NumText(CardGoal) + "!   ");

        CardTotalVisible(true);
        c("lblCardCount").setCaption("Cards: " + NumText(stockUpperBound));
        c("lblCardCount").setVisible(true);

        for (int i = 0; i < kFieldPlaces; ++i) {
            const std::string& code = Deck.at(static_cast<size_t>(i + 1));
            Control& card = c("FieldCardPicture", i);
            card.setPicture(PictureOf(code));
            card.setBorderStyle(1);
            FieldCards[static_cast<size_t>(i)] = code;
            card.setVisible(true);
        }

        UpCards.assign(kUpPileSize + 1, std::string());
        c("UpCardPicture").setPicture(PictureOf(Deck.at(23)));
        UpCards[1] = Deck[23];
        c("UpCardPicture").setVisible(true);

        // From 23, not 24: the first up card is also the bottom card of the
        // play pile and can turn up again at its very end.
        for (int i = 23, j = 0; i <= lastCard && j <= stockUpperBound; ++i, ++j)
            StockCards[static_cast<size_t>(j)] = Deck[static_cast<size_t>(i)];

        c("PlayCardPicture").setPicture(ImageList2().indexOf("FULL"));
        c("PlayCardPicture").setVisible(true);
        CurrentTotal = 0;
        c("lblCurrentTotal").setCaption("0");
        c("lblCurrentTotal").setVisible(true);
        c("lblTime").setCaption("Time: " + NumText(TimeLimit));
        c("lblTime").setVisible(true);
        c("Timer1").setEnabled(true);
        ElapsedSeconds = 0;

        if (newGame) {
            PreviousScore = CurrentScore;
            CurrentScore = 0;
            ShowScore();
            CurrentRound = 1;
        }

        CentreIn("lblCurrentScore", "ScoreRectangle");
        for (const char* name : {"lblCurrentScore", "ScoreRectangle", "ScoreBevelSide", "ScoreBevelBottom", "lblScore"})
            c(name).setVisible(true);
        c("lblCurrentRound").setCaption(NumText(CurrentRound));
        CentreIn("lblCurrentRound", "RoundRectangle");
        for (const char* name : {"lblCurrentRound", "RoundRectangle", "RoundBevelSide", "RoundBevelBottom", "lblRound"})
            c(name).setVisible(true);

        CombinationCount = 0;
        c("lblCurrentElevens").setCaption(NumText(CombinationCount));
        CentreIn("lblCurrentElevens", "ElevensRectangle");
        for (const char* name :
             {"lblCurrentElevens", "ElevensRectangle", "ElevensBevelSide", "ElevensBevelBottom", "lblElevens"})
            c(name).setVisible(true);

        std::vector<std::string>* stored = CurrentRound == 1 ? &Round1Deck : CurrentRound == 2 ? &Round2Deck : &Round3Deck;
        *stored = Deck;

        InitTimeDial(*this);
        ShowTimerRect();
        return true;
    } catch (const std::exception&) {
        MsgBox("Unable to deal the cards.", MsgButtons::OK, MsgIcon::None, AppTitle);
        return false;
    }
}

// ---- Clicks on the cards -------------------------------------------------------------

void frmSumfall::FieldCardPicture_Click(int index) {
    const std::string& message = c("lblMessage").caption();
    if (message == kGamePaused || message == kGameOver || !CheckLegalFieldCardMove(index)) {
        Wave("\\Chord.wav");
        return;
    }
    const int value = CardValue(FieldCards[static_cast<size_t>(index)]);
    Control& selection = c("FieldSelectionRectangle", index);
    if (!selection.visible()) {
        if (value + CurrentTotal > CardGoal) {
            Wave("\\Chord.wav");
            return;
        }
        selection.setVisible(true);
        CurrentTotal = static_cast<int16_t>(CurrentTotal + value);
        c("lblCurrentTotal").setCaption(NumText(CurrentTotal));
        Wave("\\Markq.wav");
        CheckTotal();
    } else {
        CurrentTotal = static_cast<int16_t>(CurrentTotal - value);
        c("lblCurrentTotal").setCaption(NumText(CurrentTotal));
        Wave("\\Tick.wav");
        selection.setVisible(false);
    }
}

void frmSumfall::UpCardPicture_Click() {
    const std::string& message = c("lblMessage").caption();
    if (message == kGamePaused || message == kGameOver || UpCardIndex == 0) {
        Wave("\\Chord.wav");
        return;
    }
    const int value = CardValue(UpCards[static_cast<size_t>(UpCardIndex)]);
    Control& selection = c("UpCardSelectionRectangle");
    if (!selection.visible()) {
        if (value + CurrentTotal > CardGoal) {
            Wave("\\Chord.wav");
            return;
        }
        Wave("\\Markq.wav");
        CurrentTotal = static_cast<int16_t>(CurrentTotal + value);
        c("lblCurrentTotal").setCaption(NumText(CurrentTotal));
        selection.setVisible(true);
        CheckTotal();
    } else {
        Wave("\\Tick.wav");
        CurrentTotal = static_cast<int16_t>(CurrentTotal - value);
        c("lblCurrentTotal").setCaption(NumText(CurrentTotal));
        selection.setVisible(false);
    }
}

void frmSumfall::CheckTotal() {
    UpCardUsed = false;
    if (CurrentTotal != CardGoal) return;
    Wave("\\TwentyOne.wav");
    for (int i = 0; i < kFieldPlaces; ++i) {
        Control& selection = c("FieldSelectionRectangle", i);
        if (!selection.visible()) continue;
        AddToScore(kField[static_cast<size_t>(i)].points);
        selection.setVisible(false);
        c("FieldCardPicture", i).setVisible(false);
    }
    Control& upSelection = c("UpCardSelectionRectangle");
    if (upSelection.visible()) {
        UpCardUsed = true;
        AddToScore(kUpCardPoints);
        upSelection.setVisible(false);
        UpCardIndex -= 1;
        Control& up = c("UpCardPicture");
        if (UpCardIndex > 0) {
            up.setPicture(PictureOf(UpCards[static_cast<size_t>(UpCardIndex)]));
        } else {
            up.setBorderStyle(0);
            up.setPicture(ImageList2().indexOf("EMPTY"));
        }
    }
    CombinationCount += 1;
    c("lblCurrentElevens").setCaption(NumText(CombinationCount));
    c("lblCurrentTotal").setCaption("0");
    CurrentTotal = 0;
    ShowScore();
    if (CheckForCompletion()) cmdTakeScore_Click(false);
    if (!loaded()) return;
    if (UpCardUsed && c("UpCardPicture").picture() == ImageList2().indexOf("EMPTY")) PlayCardPicture_Click();
    UpCardUsed = false;
}

void frmSumfall::PlayCardPicture_Click() {
    const std::string& message = c("lblMessage").caption();
    if (message == kGamePaused || message == kGameOver || StockIndex < 0) {
        if (!UpCardUsed) Wave("\\Chord.wav");
        return;
    }
    setMousePointer(11);
    if (UpCardIndex > 0) MoveUpCardToFieldArea();
    if (!UpCardUsed) Wave("\\Markq.wav");
    Control& up = c("UpCardPicture");
    const std::string turned = StockCards[static_cast<size_t>(StockIndex)];
    up.setBorderStyle(1);
    up.setPicture(PictureOf(turned));
    UpCardIndex += 1;
    // The pile grows as far as the player turns cards without using them.
    if (static_cast<size_t>(UpCardIndex) >= UpCards.size()) UpCards.resize(static_cast<size_t>(UpCardIndex) + 1);
    UpCards[static_cast<size_t>(UpCardIndex)] = turned;
    StockIndex -= 1;

    for (int i = 0; i < kFieldPlaces; ++i) c("FieldSelectionRectangle", i).setVisible(false);
    up.setVisible(true);
    c("UpCardSelectionRectangle").setVisible(false);
    CurrentTotal = 0;
    c("lblCurrentTotal").setCaption(NumText(CurrentTotal));
    c("lblCardCount").setCaption("Cards: " + NumText(StockIndex + 1));
    RefreshPlayCard();
    if (!UpCardUsed) {
        AddToScore(-kFlipCost);
        ShowScore();
    }
    setMousePointer(0);
}

// An up card passed over falls back into the highest free field place.
bool frmSumfall::MoveUpCardToFieldArea() {
    for (int i = 0; i < kFieldPlaces; ++i) {
        Control& card = c("FieldCardPicture", i);
        if (card.visible()) continue;
        card.setPicture(c("UpCardPicture").picture());
        card.setBorderStyle(1);
        card.setVisible(true);
        FieldCards[static_cast<size_t>(i)] = UpCards[static_cast<size_t>(UpCardIndex)];
        UpCardIndex -= 1;
        AddToScore(-kFallBackCost);
        ShowScore();
        return true;
    }
    return false;
}

void frmSumfall::FieldCardPicture_MouseMove(int index) {
    const bool playable = c("lblMessage").caption() != kGameOver && CheckLegalFieldCardMove(index);
    c("FieldCardPicture", index).setMouseIcon(playable ? ImageCatalogue::kPointer : 0);
}

void frmSumfall::UpCardPicture_MouseMove() {
    Control& up = c("UpCardPicture");
    const bool empty = up.picture() == ImageList2().indexOf("EMPTY");
    up.setMouseIcon(empty || c("lblMessage").caption() == kGameOver ? 0 : ImageCatalogue::kPointer);
}

void frmSumfall::PlayCardPicture_MouseMove() {
    Control& pile = c("PlayCardPicture");
    const bool empty = pile.picture() == ImageList2().indexOf("EMPTY");
    pile.setMouseIcon(empty || c("lblMessage").caption() == kGameOver ? 0 : ImageCatalogue::kPointer);
}

bool frmSumfall::CheckLegalFieldCardMove(int index) const {
    std::array<bool, kFieldPlaces> holdsCard{};
    for (int i = 0; i < kFieldPlaces; ++i) holdsCard[static_cast<size_t>(i)] = c("FieldCardPicture", i).visible();
    return IsExposed(index, holdsCard);
}

bool frmSumfall::CheckForCompletion() const {
    for (int i = 0; i < kFieldPlaces; ++i)
        if (c("FieldCardPicture", i).visible()) return false;
    return true;
}

// ---- What the window shows ----------------------------------------------------------

void frmSumfall::FieldCardDisplay(bool visible) {
    for (int i = 0; i < kFieldPlaces; ++i) c("FieldCardPicture", i).setVisible(visible);
}

// Place 0 is left out: a selection there survives this call.
void frmSumfall::SelRectangle(bool visible) {
    for (int i = 1; i < kFieldPlaces; ++i) c("FieldSelectionRectangle", i).setVisible(visible);
    c("UpCardSelectionRectangle").setVisible(visible);
}

void frmSumfall::CardTotalVisible(bool flag) {
    for (const char* name : {"CardTotalRectangle", "CardTotalBevelSide", "CardTotalBevelBottom", "lblCurrentTotal", "lblTotal"})
        c(name).setVisible(flag);
}

void frmSumfall::ShowLowerCards(bool flag) {
    for (const char* name : {"PlayCardPicture", "UpCardPicture", "lblCardCount"}) c(name).setVisible(flag);
}

void frmSumfall::DisableCommandButtons(bool flag) {
    for (const char* name : {"cmdPause", "cmdPlay", "cmdExit", "cmdTakeScore", "mnuPause", "mnuPlay", "mnuExit", "mnuTakeScore"})
        c(name).setEnabled(!flag);
}

void frmSumfall::RefreshPlayCard() {
    c("PlayCardPicture").setPicture(ImageList2().indexOf(PlayPileKey(StockIndex + 1)));
}

void frmSumfall::RefreshFieldCards() {
    const int back = ImageList2().indexOf("BACK");
    for (int i = 0; i < kFieldPlaces; ++i) {
        Control& card = c("FieldCardPicture", i);
        if (!card.visible()) continue;
        card.setPicture(back);
        card.setBorderStyle(0);
    }
}

// The faces again after a pause.
void frmSumfall::ShowFieldFaces() {
    for (int i = 0; i < kFieldPlaces; ++i) {
        Control& card = c("FieldCardPicture", i);
        if (!card.visible()) continue;
        card.setPicture(ImageList2().indexOf(CardKey(FieldCards[static_cast<size_t>(i)])));
        card.setBorderStyle(1);
    }
    Control& up = c("UpCardPicture");
    if (UpCardIndex > 0) {
        up.setPicture(ImageList2().indexOf(CardKey(UpCards[static_cast<size_t>(UpCardIndex)])));
        up.setBorderStyle(1);
    }
}

void frmSumfall::ShowTimerRect() {
    for (const char* name : {"TimerRectangle", "TimerBevelSide", "TimerBevelBottom"}) c(name).setVisible(true);
}

void frmSumfall::SelectionColor(int index) {
    const int color = kSelectionColours[static_cast<size_t>(index)].color;
    for (int i = 0; i < kFieldPlaces; ++i) c("FieldSelectionRectangle", i).setBorderColor(color);
    c("UpCardSelectionRectangle").setBorderColor(color);
    SelectionColorIndex = static_cast<int16_t>(index);
}

void frmSumfall::ClearColorCheck() {
    for (const SelectionColour& s : kSelectionColours) c(s.menu).setChecked(false);
}

void frmSumfall::ShowScore() { c("lblCurrentScore").setCaption(FormatScore(CurrentScore)); }

// A label fits its text and stands in the middle of its box.
void frmSumfall::CentreIn(const char* label, const char* rectangle) {
    Control& text = c(label);
    const Control& box = c(rectangle);
    const int width = std::min(box.width(), runtime().platform().textWidth(text.caption(), text.fontSize(), text.fontBold()) + 30);
    text.setWidth(width);
    text.setLeft(box.left() + (box.width() - width) / 2);
}

void frmSumfall::lblCurrentScore_Change() {
    CentreIn("lblCurrentScore", "ScoreRectangle");
    c("lblCurrentScore").setForeColor(CurrentScore < 0 ? 255 : 0xFF0000);
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

void frmSumfall::Flash() {
    for (int i = 0; i < 10; ++i) {
        DialLastColor = 192;
        DrawTimeDial(DialAngle(DialSeconds), *this);
        DoEvents();
        runtime().refresh();
        DrawTimeDial(DialAngle(DialSeconds), *this);
        DrawTimeDial(DialAngle(DialSeconds), *this);
        DoEvents();
        runtime().refresh();
    }
}

void frmSumfall::Wave(const char* name) const {
    if (PlaySounds) PlayWaveFile(name);
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
    RefreshPlayCard();
    if (c("lblMessage").caption() == kGamePaused) RefreshFieldCards();
    DeckDesign = static_cast<int16_t>(design);
}

void frmSumfall::mnuDrawTimer_Click() {
    CountDownScore = !CountDownScore;
    c("mnuDrawTimer").setChecked(CountDownScore);
}

void frmSumfall::mnuClear_Click() {
    if (!AskYesNo(kClearScoresQuestion)) return;
    CreateHighScoreFile(kTable, *this, kDefaultScore);
    ShowHighScore(kTable, *this, kDefaultScore);
}

// ---- Saved games ----------------------------------------------------------------------

bool frmSumfall::LoadSavedGame(const std::string& path) {
    StockCards.assign(31, std::string());
    std::string text;
    SavedGame game;
    if (!ReadWholeFile(path, text) || !ParseSavedGame(text, game)) {
        MsgBox("Unable to open the requested file. It may be damaged or you may have entered an invalid file name.",
               MsgButtons::OK, MsgIcon::Critical, AppTitle);
        return false;
    }
    if (game.cardGoal >= 10 && game.cardGoal <= 15) mnuGoal_Click(game.cardGoal);
    Deck.assign(static_cast<size_t>(DeckSize(game.cardGoal)) + 1, std::string());
    Round1Deck = game.round1;
    Round2Deck = game.round2;
    Round3Deck = game.round3;

    std::string message = SavedGameMessage(game);
    const bool otherLimit = game.timeLimitRead && game.timeLimit != TimeLimit;
    if (otherLimit) {
        message += "This game was saved with the time limit set to " + NumText(game.timeLimit) +
                   ". Your time limit is currently set to " + NumText(TimeLimit) +
                   ". Do you want to change your time limit to " + NumText(game.timeLimit) + "?";
        if (MsgBox(message, MsgButtons::YesNo, MsgIcon::Question, "Saved Game Information") == MsgAnswer::Yes) {
            TimeLimit = static_cast<int16_t>(game.timeLimit);
            ApplyTimeSetting(*this, NumText(game.timeLimit), kTimeEntries);
        }
    } else {
        MsgBox(message, MsgButtons::OK, MsgIcon::Information, "Saved Game Information");
    }
    ReplayPending = true;
    c("Timer4").setEnabled(false);
    c("frmSplash").setVisible(false);
    c("cmdTakeScore").setCaption(kReplayCaption);
    cmdTakeScore_Click(false);
    return true;
}

}  // namespace ch
