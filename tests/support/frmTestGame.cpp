// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/frmTestGame.h"

#include <memory>
#include <vector>

#include "suite/cards.h"
#include "suite/common.h"
#include "suite/dial.h"
#include "suite/frmRules.h"
#include "suite/gameinfo.h"
#include "suite/highscores.h"
#include "suite/sound.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

namespace {
using K = ControlKind;

const char* const kTable = "TestHiScores";
const char* const kDefaultScore = "50000";
const char* const kSettingsFile = "\\Testgame.Ini";

const TimeEntry kTimeEntries[] = {
    {"mnu30", 30, "&30 seconds"},
    {"mnu60", 60, "&60 seconds (default)"},
    {"mnu90", 90, "&90 seconds"},
};

const ControlSpec kBoard[] = {
    {K::Image, "imgCard", -1, 3600, 2400, 1065, 1440},
    {K::Button, "cmdHit", -1, 3600, 4000, 1065, 375, "&Hit"},
};

std::vector<ControlSpec> Layout() {
    std::vector<ControlSpec> specs;
    auto add = [&specs](std::span<const ControlSpec> part) { specs.insert(specs.end(), part.begin(), part.end()); };
    add(StandingControls());
    add(TakeScoreButton());
    add(ExitButton());
    add(ScoringLabel());
    add(kBoard);
    add(FileMenu());
    add(OptionsMenuHead());
    add(OptionsMenuTail());
    for (const TimeEntry& entry : kTimeEntries) specs.push_back({K::Menu, entry.menu, -1, 0, 0, 0, 0, entry.caption, "mnuTime"});
    add(HelpMenu());
    return specs;
}
}  // namespace

namespace {
void RegisterTestGameForms(Runtime& runtime) {
    runtime.registerForm("frmTestGame", [](Runtime& rt) { return std::make_unique<frmTestGame>(rt); });
    RegisterRules(kTestGameTitle, [] {
        return RulesText(30, {"Each round lasts " + NumText(TimeLimit) + " seconds.",
                              "Good luck and have fun!"});
    });
}

// Opened by the launcher, not offered by the selector.
const GameInfo kTestGame = {
    .name = "testgame",
    .title = kTestGameTitle,
    .form = "frmTestGame",
    .button = nullptr,
    .buttonCaption = "",
    .buttonSlot = 0,
    .tableName = kTable,
    .defaultScore = kDefaultScore,
    .settingsFile = kSettingsFile,
    .timeEntries = kTimeEntries,
    .defaultTime = 60,
    .registerForms = RegisterTestGameForms,
};
}  // namespace

void RegisterTestGame(Runtime& runtime) { RegisterGame(runtime, kTestGame); }

frmTestGame::frmTestGame(Runtime& runtime) : Form(runtime, "frmTestGame") {
    setSize(9540, 7200);
    const std::vector<ControlSpec> layout = Layout();
    add(layout);
    PrepareStandingControls(*this);
    SetTimer(*this, "Timer1", 1000, false);
    SetTimer(*this, "Timer2", 200, false);
    SetTimer(*this, "Timer3", 60000, true);
    SetTimer(*this, "Timer4", 200, false);
    c("imgCard").setVisible(false);

    on(Ev::Load, [this](EventArgs&) { Form_Load(); });
    on(Ev::QueryUnload, [this](EventArgs& e) { Form_QueryUnload(e); });
    on("cmdPlay", Ev::Click, [this](EventArgs&) { cmdPlay_Click(false); });
    on("mnuPlay", Ev::Click, [this](EventArgs&) { cmdPlay_Click(true); });
    on("cmdPause", Ev::Click, [this](EventArgs&) { cmdPause_Click(); });
    on("mnuPause", Ev::Click, [this](EventArgs&) { cmdPause_Click(); });
    on("cmdTakeScore", Ev::Click, [this](EventArgs&) { cmdTakeScore_Click(); });
    on("mnuTakeScore", Ev::Click, [this](EventArgs&) { if (!TakingScore) TakeScore(); });
    on("cmdHit", Ev::Click, [this](EventArgs&) { cmdHit_Click(); });
    on("cmdExit", Ev::Click, [this](EventArgs&) { this->runtime().unload(*this); });
    on("mnuExit", Ev::Click, [this](EventArgs&) { this->runtime().unload(*this); });
    on("Timer1", Ev::Timer, [this](EventArgs&) { Timer1_Timer(); });
    on("Timer2", Ev::Timer, [this](EventArgs&) { DrawTimeDial(DialAngle(DialSeconds), *this); });
    on("Timer3", Ev::Timer, [this](EventArgs&) { ShowTimeOfDay(*this); });
    on("Timer4", Ev::Timer, [this](EventArgs&) { Splash.step(*this, SplashFace{}); });
    for (const TimeEntry& entry : kTimeEntries)
        on(entry.menu, Ev::Click, [this, menu = entry.menu](EventArgs&) { mnuTime_Click(menu); });
    for (int design = 1; design <= 4; ++design)
        on(kDeckMenus[design - 1], Ev::Click,
           [this, design](EventArgs&) { mnuDeck_Click(kDeckMenus[design - 1], design); });
    on("mnuSounds", Ev::Click, [this](EventArgs&) { SetPlaySounds(*this, !PlaySounds); });
    on("mnuMusic", Ev::Click, [this](EventArgs&) {
        SetPlayMusic(*this, !PlayMusic, GameInProgress && c("cmdPause").caption() == kPauseCaption);
    });
    on("mnuView", Ev::Click, [this](EventArgs&) { ShowModalPaused(*this, "frmHighScores"); });
    on("mnuClear", Ev::Click, [this](EventArgs&) { mnuClear_Click(); });
    on("mnuRules", Ev::Click, [this](EventArgs&) { ShowModalPaused(*this, "frmRules"); });
    on("mnuAbout", Ev::Click, [this](EventArgs&) { ShowModalPaused(*this, "frmAbout"); });

    expose("CurrentRound", Expose(CurrentRound));
    expose("HitCount", Expose(HitCount));
    expose("HitBonus", Expose(HitBonus));
    expose("SplashPosition", Expose(Splash.SplashPosition));
    expose("SplashForward", Expose(Splash.SplashForward));
    expose("SplashShowBack", Expose(Splash.SplashShowBack));
}

SettingsLayout frmTestGame::SettingsSections() {
    SettingsLayout layout = {
        {"[Play Music]", [this](const std::string& v) { SetPlayMusic(*this, ParseBoolText(v), false); },
         [] { return std::string(BoolText(PlayMusic)); }},
        {"[Time]", [this](const std::string& v) { ApplyTimeSetting(*this, v, kTimeEntries); },
         [] { return NumText(TimeLimit); }},
        {"[Play Sounds]", [this](const std::string& v) { SetPlaySounds(*this, ParseBoolText(v)); },
         [] { return std::string(BoolText(PlaySounds)); }},
        {"[Count Down Score]", [](const std::string& v) { CountDownScore = ParseBoolText(v); },
         [] { return std::string(BoolText(CountDownScore)); }},
        {"[Hit Bonus]", [this](const std::string& v) { HitBonus = CLng(Val(v)); }, [this] { return NumText(HitBonus); }},
        {"[Time Bonus]", [](const std::string& v) { TimeBonus = CLng(Val(v)); }, [] { return NumText(TimeBonus); }},
    };
    for (SettingsSection& section : WindowSizeSections(*this, 9540, 7200)) layout.push_back(section);
    layout.push_back({"[Deck]", [this](const std::string& v) { ApplyDeckSetting(*this, v, kDeckMenus); },
                      [] { return NumText(DeckDesign); }});
    return layout;
}

void frmTestGame::Form_Load() {
    setMousePointer(Pointer::Hourglass);
    c("Timer4").setEnabled(true);
    c("Timer1").setEnabled(false);
    TimeLimit = 60;
    PlaySounds = true;
    PlayMusic = false;
    DeckDesign = 1;
    CountDownScore = true;
    TimeBonus = 100;
    HitBonus = 500;
    c("mnu60").setChecked(true);
    c("mnuSounds").setChecked(true);
    ShowWelcome(*this);
    ReadSettingsINI(kSettingsFile, SettingsSections());
    CustomScoringInUse = HitBonus != 500 || TimeBonus != 100;
    GameStartTime = runtime().platform().wallClock();
    ShowSplashCaptions(*this);
    CentreOnScreen(*this);
    InitTimeDial(*this);
    ShowHighScore(kTable, *this, kDefaultScore);
    setMousePointer(Pointer::Default);
}

void frmTestGame::Form_QueryUnload(EventArgs& args) {
    if (!AskYesNo(CloseQuestion())) {
        args.cancel = true;
        return;
    }
    LeaveGameWindow(*this, kSettingsFile, SettingsSections());
}

void frmTestGame::cmdPlay_Click(bool fromMenu) {
    if (c("cmdPlay").caption() == kPlayCaption) {
        SetPlayCaptions(*this, true);
        ShowSplash(*this, false);
        Play();
        if (PlayMusic) StartMusic();
        return;
    }
    c("cmdPlay").setToolTipText(kStartsTip);
    if (!GameInProgress) return;
    cmdPause_Click();
    const bool yes = AskYesNo(fromMenu ? kRestartQuestion : kQuitQuestion);
    cmdPause_Click();
    if (!yes) return;
    SetPlayCaptions(*this, false);
    EndGame();
}

void frmTestGame::Play() {
    CurrentRound = 1;
    CurrentScore = 0;
    HitCount = 0;
    ElapsedSeconds = 0;
    DialSeconds = 0;
    GameInProgress = true;
    TakingScore = false;
    c("lblMessage").setVisible(false);
    c("lblMessage").setCaption("");
    c("lblCurrentScore").setCaption("0");
    c("lblCurrentRound").setCaption("1");
    c("lblTime").setCaption("Time: " + NumText(TimeLimit));
    InitTimeDial(*this);
    ShowCards(true);
    ShowControls(true, true);
    c("cmdPause").setEnabled(true);
    c("mnuPause").setEnabled(true);
    c("cmdTakeScore").setEnabled(true);
    c("mnuTakeScore").setEnabled(true);
    c("mnuTime").setEnabled(false);
    c("StatusBar1").setPanel(2, "Click on Hit to score!   ");
    c("Timer1").setEnabled(true);
}

void frmTestGame::cmdPause_Click() {
    if (c("cmdPause").caption() == kPauseCaption) {
        SetPausedControls(*this);
        ShowCards(false);
        if (PlayMusic) StopMusic();
    } else {
        SetResumedControls(*this);
        ShowCards(true);
        if (PlayMusic && GameInProgress) StartMusic();
    }
}

void frmTestGame::cmdHit_Click() {
    const std::string& message = c("lblMessage").caption();
    if (message == kGamePaused || message == kGameOver || !GameInProgress) {
        if (PlaySounds) PlayWaveFile("\\Chord.wav");
        return;
    }
    HitCount += 1;
    if (PlaySounds) PlayWaveFile("\\Markq.wav");
}

void frmTestGame::Timer1_Timer() {
    AdvanceRoundClock(*this);
    ShowTimeWarnings(*this);
    if (ElapsedSeconds != TimeLimit) return;
    c("Timer1").setEnabled(false);
    ShowCards(false);
    c("cmdTakeScore").setEnabled(false);
    c("cmdPause").setEnabled(false);
    ShowTimesUp(*this);
    BlinkLabel(c("lblMessage"), 10, 250);
    cmdTakeScore_Click();
    if (c("lblMessage").caption() != kGameOver) c("lblMessage").setVisible(false);
}

void frmTestGame::cmdTakeScore_Click() {
    if (TakingScore) return;
    TakeScore();
    if (PlayMusic && GameInProgress) StartMusic();
}

// One round: the hits, then the seconds left, then the end of the game.
void frmTestGame::TakeScore() {
    TakingScore = true;
    c("Timer1").setEnabled(false);
    setMousePointer(Pointer::Hourglass);
    if (PlayMusic) StopMusic();
    for (const char* name : {"cmdTakeScore", "cmdPause", "cmdPlay", "cmdExit"}) c(name).setEnabled(false);
    ShowCards(false);
    if (HitCount > 0) AwardBonus(*this, "Hit Bonus", HitCount, HitBonus);
    CountTimeBonus(*this, TimeBonus);
    HitCount = 0;
    TakingScore = false;

    FinishGame(*this, kTable, kDefaultScore,
               {[this](bool v) { ShowCards(v); }, [this](bool v, bool s) { ShowControls(v, s); }, true});
    if (!loaded()) return;
    Control& message = c("lblMessage");
    message.setForeColor(Colour::Red);
    message.setCaption(kGameOver);
    message.setVisible(true);
    runtime().refresh();
    Sleep(2000);
    message.setVisible(false);
    ShowSplash(*this, true);
    c("cmdPlay").setEnabled(true);
    c("cmdExit").setEnabled(true);
    c("cmdPlay").setToolTipText(kStartsTip);
    ElapsedSeconds = 0;
    setMousePointer(Pointer::Default);
}

void frmTestGame::EndGame() {
    GameInProgress = false;
    c("Timer1").setEnabled(false);
    c("Timer2").setEnabled(false);
    ShowCards(false);
    ShowControls(false, true);
    c("cmdPause").setEnabled(false);
    c("mnuPause").setEnabled(false);
    c("cmdTakeScore").setEnabled(false);
    c("mnuTakeScore").setEnabled(false);
    c("mnuTime").setEnabled(true);
    c("Surface").cls();
    ShowSplash(*this, true);
    if (PlayMusic) StopMusic();
}

void frmTestGame::ShowCards(bool visible) {
    c("imgCard").setPicture(ImageList2().indexOf("BACK"));
    c("imgCard").setVisible(visible);
}

void frmTestGame::ShowControls(bool visible, bool scoreVisible) {
    for (const char* name : {"lblTime", "TimerRectangle", "TimerBevelSide", "TimerBevelBottom", "lblRound",
                             "lblCurrentRound", "RoundRectangle", "RoundBevelSide", "RoundBevelBottom"})
        c(name).setVisible(visible);
    for (const char* name : {"lblScore", "ScoreRectangle", "ScoreBevelSide", "ScoreBevelBottom", "lblCurrentScore"})
        c(name).setVisible(scoreVisible);
}

void frmTestGame::mnuTime_Click(const char* menu) {
    ChooseTimeLimit(*this, kTimeEntries, menu);
    ShowHighScore(kTable, *this, kDefaultScore);
}

void frmTestGame::mnuDeck_Click(const char* menu, int design) {
    ChooseBackDesign(*this, menu);
    c("imgCard").setPicture(ImageList2().indexOf("BACK"));
    DeckDesign = static_cast<int16_t>(design);
}

void frmTestGame::mnuClear_Click() {
    if (!AskYesNo(kClearScoresQuestion)) return;
    CreateHighScoreFile(kTable, *this, kDefaultScore);
    ShowHighScore(kTable, *this, kDefaultScore);
}

}  // namespace ch
