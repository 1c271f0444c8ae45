// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/gamewindow.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

#include "suite/cards.h"
#include "suite/common.h"
#include "suite/dial.h"
#include "suite/highscores.h"
#include "suite/sound.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

namespace {
using K = ControlKind;

const ControlSpec kStanding[] = {
    {K::Button, "cmdPlay", -1, 8220, 120, 1095, 375, "&Play"},
    {K::Button, "cmdPause", -1, 8220, 990, 1095, 375, "Pau&se"},
    {K::Label, "lblTime", -1, 8220, 1920, 1095, 255, "Time:"},
    {K::Shape, "TimerRectangle", -1, 8220, 2190, 1095, 1095},
    {K::PictureBox, "Surface", -1, 8265, 2235, 1005, 1005},
    {K::Line, "TimerBevelSide", -1, 9330, 2205, 0, 1095},
    {K::Line, "TimerBevelBottom", -1, 8235, 3300, 1095, 0},
    {K::Label, "lblScore", -1, 8220, 3450, 1095, 255, "Score:"},
    {K::Shape, "ScoreRectangle", -1, 8220, 3720, 1095, 375},
    {K::Label, "lblCurrentScore", -1, 8265, 3780, 1005, 255, "0"},
    {K::Line, "ScoreBevelSide", -1, 9330, 3735, 0, 375},
    {K::Line, "ScoreBevelBottom", -1, 8235, 4110, 1095, 0},
    {K::Label, "lblRound", -1, 8220, 4260, 1095, 255, "Round:"},
    {K::Shape, "RoundRectangle", -1, 8220, 4530, 1095, 375},
    {K::Label, "lblCurrentRound", -1, 8265, 4590, 1005, 255, "1"},
    {K::Line, "RoundBevelSide", -1, 9330, 4545, 0, 375},
    {K::Line, "RoundBevelBottom", -1, 8235, 4920, 1095, 0},
    {K::Label, "lblHighScore", -1, 120, 5880, 4500, 255, ""},
    {K::Label, "lblMessage", -1, 1320, 2520, 5520, 615, ""},
    {K::Frame, "frmSplash", -1, 1320, 480, 5520, 4440, ""},
    {K::Label, "lblCompanyProduct", -1, 240, 240, 5040, 375, "", "frmSplash"},
    {K::Label, "lblProductName", -1, 240, 660, 5040, 615, "", "frmSplash"},
    {K::Image, "imgSplashImage", 0, 600, 1440, 1065, 1440, "", "frmSplash"},
    {K::Image, "imgSplashImage", 1, 1680, 1440, 1065, 1440, "", "frmSplash"},
    {K::Image, "imgSplashImage", 2, 2760, 1440, 1065, 1440, "", "frmSplash"},
    {K::Image, "imgSplashImage", 3, 3840, 1440, 1065, 1440, "", "frmSplash"},
    {K::Label, "lblPlatform", -1, 240, 3600, 2520, 255, "", "frmSplash"},
    {K::Label, "lblVersion", -1, 2760, 3600, 2520, 255, "", "frmSplash"},
    {K::StatusBar, "StatusBar1", -1, 0, 6210, 9420, 330},
    {K::Timer, "Timer1", -1, 0, 0, 0, 0},
    {K::Timer, "Timer2", -1, 0, 0, 0, 0},
    {K::Timer, "Timer3", -1, 0, 0, 0, 0},
    {K::Timer, "Timer4", -1, 0, 0, 0, 0},
};
const ControlSpec kTakeScore[] = {{K::Button, "cmdTakeScore", -1, 8220, 555, 1095, 375, "&Take Score"}};
const ControlSpec kExit[] = {{K::Button, "cmdExit", -1, 8220, 1425, 1095, 375, "E&xit"}};
const ControlSpec kQuit[] = {{K::Button, "cmdQuit", -1, 8220, 1425, 1095, 375, "&Quit"}};
const ControlSpec kScoring[] = {{K::Label, "lblScoring", -1, 1320, 3240, 5520, 615, ""}};
const ControlSpec kFileMenu[] = {
    {K::Menu, "mnuFile", -1, 0, 0, 0, 0, "&File"},
    {K::Menu, "mnuPlay", -1, 0, 0, 0, 0, "&Play", "mnuFile"},
    {K::Menu, "mnuTakeScore", -1, 0, 0, 0, 0, "&Take Score", "mnuFile"},
    {K::Menu, "mnuPause", -1, 0, 0, 0, 0, "Pau&se", "mnuFile"},
    {K::Menu, "mnuExit", -1, 0, 0, 0, 0, "E&xit", "mnuFile"},
};
const ControlSpec kOptionsHead[] = {
    {K::Menu, "mnuOptions", -1, 0, 0, 0, 0, "&Options"},
    {K::Menu, "mnuView", -1, 0, 0, 0, 0, "&View High Scores...", "mnuOptions"},
    {K::Menu, "mnuClear", -1, 0, 0, 0, 0, "&Clear High Scores...", "mnuOptions"},
    {K::Menu, "mnuMusic", -1, 0, 0, 0, 0, "Play &Music (plays during game)", "mnuOptions"},
    {K::Menu, "mnuSounds", -1, 0, 0, 0, 0, "&Play Sounds", "mnuOptions"},
};
const ControlSpec kOptionsTail[] = {
    {K::Menu, "mnuTime", -1, 0, 0, 0, 0, "&Time Limit", "mnuOptions"},
    {K::Menu, "mnuDeck", -1, 0, 0, 0, 0, "Dec&k", "mnuOptions"},
    {K::Menu, "mnuPalm", -1, 0, 0, 0, 0, "&Palm Tree", "mnuDeck"},
    {K::Menu, "mnuMagic", -1, 0, 0, 0, 0, "&Magic Hands", "mnuDeck"},
    {K::Menu, "mnuNight", -1, 0, 0, 0, 0, "&Night Castle", "mnuDeck"},
    {K::Menu, "mnuHot", -1, 0, 0, 0, 0, "&Hot Cards", "mnuDeck"},
};
const ControlSpec kHelp[] = {
    {K::Menu, "mnuHelp", -1, 0, 0, 0, 0, "&Help"},
    {K::Menu, "mnuRules", -1, 0, 0, 0, 0, "&Rules...", "mnuHelp"},
    {K::Menu, "mnuAbout", -1, 0, 0, 0, 0, "&About...", "mnuHelp"},
};

void Enable(Form& window, const char* name, bool on) {
    if (Control* c = window.find(name)) c->setEnabled(on);
}

void Caption(Form& window, const char* name, const std::string& text) {
    if (Control* c = window.find(name)) c->setCaption(text);
}

void SetPanel(Form& window, int panel, const std::string& text) {
    if (Control* bar = window.find("StatusBar1")) bar->setPanel(panel, text);
}

// The controls a pause disables and a resume enables.
const char* const kPlayControls[] = {"cmdExit", "cmdQuit", "cmdTakeScore", "cmdPlay", "mnuExit", "mnuPlay", "mnuTakeScore"};

int64_t WallClock() { return Runtime::current().platform().wallClock(); }

// A whole number of twips from a settings value; 0 when there is none.
int PositiveNumber(const std::string& value) {
    const double v = Val(value);
    if (!(v >= 1 && v <= 1e6)) return 0;
    return static_cast<int>(v);
}

}  // namespace

std::span<const ControlSpec> StandingControls() { return kStanding; }
std::span<const ControlSpec> TakeScoreButton() { return kTakeScore; }
std::span<const ControlSpec> ExitButton() { return kExit; }
std::span<const ControlSpec> QuitButton() { return kQuit; }
std::span<const ControlSpec> ScoringLabel() { return kScoring; }
std::span<const ControlSpec> FileMenu() { return kFileMenu; }
std::span<const ControlSpec> OptionsMenuHead() { return kOptionsHead; }
std::span<const ControlSpec> OptionsMenuTail() { return kOptionsTail; }
std::span<const ControlSpec> HelpMenu() { return kHelp; }

void PlaceControls(Form& window, std::span<const ControlPlace> places) {
    for (const ControlPlace& p : places) window.c(p.name).move(p.left, p.top, p.width, p.height);
}

void PlaceControls(Form& window, std::span<const ControlSpec> places) {
    for (const ControlSpec& p : places) window.c(p.name).move(p.left, p.top, p.width, p.height);
}

void PrepareStandingControls(Form& window) {
    for (const char* big : {"lblMessage", "lblScoring"}) {
        if (Control* label = window.find(big)) {
            label->setFont("Arial", 24, true);
            label->setAlignment(Align::Center);
            label->setForeColor(Colour::Red);
            label->setBackStyle(0);
            label->setVisible(false);
        }
    }
    window.c("lblProductName").setFont("Arial", 24, true);
    window.c("lblCompanyProduct").setFont("Arial", 12, true);
    for (const char* centred : {"lblCompanyProduct", "lblProductName", "lblCurrentScore", "lblCurrentRound"})
        if (Control* label = window.find(centred)) label->setAlignment(Align::Center);
    if (Control* score = window.find("lblCurrentScore")) score->setForeColor(Colour::Blue);
    window.c("Surface").setBackColor(Colour::Black);
    Control& pause = window.c("cmdPause");
    pause.setEnabled(false);
    pause.setToolTipText("Pauses the current game");
    Enable(window, "mnuPause", false);
    window.c("cmdPlay").setToolTipText(kStartsTip);
    if (Control* take = window.find("cmdTakeScore")) take->setEnabled(false);
    Enable(window, "mnuTakeScore", false);
}

void SetTimer(Form& window, const std::string& name, int interval, bool enabled) {
    Control& timer = window.c(name);
    timer.setInterval(interval);
    timer.setEnabled(enabled);
}

void BeginFormLoad(Form& window, const GameInfo& game, int16_t deckDesign) {
    window.setMousePointer(Pointer::Hourglass);
    window.c("Timer4").setEnabled(true);
    window.c("Timer1").setEnabled(false);
    TimeLimit = static_cast<int16_t>(game.defaultTime);
    PlaySounds = true;
    PlayMusic = false;
    DeckDesign = deckDesign;
    CountDownScore = true;
    for (const TimeEntry& entry : game.timeEntries)
        if (entry.seconds == game.defaultTime) window.c(entry.menu).setChecked(true);
    if (Control* sounds = window.find("mnuSounds")) sounds->setChecked(true);
}

void SetGameTimers(Form& window, const GameTimers& timers) {
    SetTimer(window, "Timer1", 1000, false);
    SetTimer(window, "Timer2", 200, timers.dialBlinkOn);
    SetTimer(window, "Timer3", 60000, true);
    SetTimer(window, "Timer4", timers.splashInterval, timers.splashOn);
}

void CentreOnScreen(Form& window) {
    Platform& platform = window.runtime().platform();
    window.move((platform.screenWidth() - window.width()) / 2, (platform.screenHeight() - window.height()) / 2);
}

void ShowWelcome(Form& window) {
    window.setCaption(AppTitle);
    SetPanel(window, 1, "Welcome to " + AppTitle + "  ");
    ShowTimeOfDay(window);
}

void ShowSplashCaptions(Form& window) {
    window.c("lblCompanyProduct").setCaption("Quillmark Presents");
    window.c("lblVersion").setCaption("Version 4.0");
    window.c("lblProductName").setCaption(AppTitle);
    window.c("lblPlatform").setCaption("Windows 95/98/NT");
    window.c("frmSplash").setVisible(true);
}

std::string TimeOfDayText(int64_t wallClockMs) {
    const DateTime t = FromMillis(wallClockMs);
    const int hour = t.hour % 12 == 0 ? 12 : t.hour % 12;
    const std::string minutes = (t.minute < 10 ? "0" : "") + NumText(t.minute);
    return NumText(hour) + ":" + minutes + (t.hour < 12 ? " AM" : " PM");
}

void ShowTimeOfDay(Form& window) { SetPanel(window, 3, TimeOfDayText(WallClock())); }

int MinutesSince(int64_t wallClockMs) { return static_cast<int>((WallClock() - wallClockMs) / 60000); }

void SplashAnimation::step(Form& window, SplashFace face) {
    Control& image = window.c("imgSplashImage", SplashPosition);
    image.zOrderBack();
    if (SplashForward) {
        const bool fixed = face.fixedPicture >= 0;
        if (SplashShowBack) {
            image.setPicture(ImageList2().indexOf("BACK"));
            if (!fixed) image.setBorderStyle(0);
        } else if (fixed) {
            image.setPicture(face.fixedPicture);
        } else {
            image.setPicture(RandomInteger(ImageCatalogue::kFirstFace, ImageCatalogue::kLastFace));
            image.setBorderStyle(1);
        }
        SplashPosition += 1;
        if (SplashPosition == 4) {
            SplashForward = false;
            SplashPosition = 3;
        }
    } else {
        SplashPosition -= 1;
        if (SplashPosition == -1) {
            SplashForward = true;
            SplashPosition = 0;
            SplashShowBack = !SplashShowBack;
        }
    }
}

void BindStandingTimers(Form& window, SplashAnimation& splash, SplashFace face, const char* timeOfDayTimer) {
    Form* w = &window;
    window.on("Timer2", Ev::Timer, [w](EventArgs&) { DrawTimeDial(DialAngle(DialSeconds), *w); });
    window.on(timeOfDayTimer, Ev::Timer, [w](EventArgs&) { ShowTimeOfDay(*w); });
    window.on("Timer4", Ev::Timer, [w, &splash, face](EventArgs&) { splash.step(*w, face); });
}

void ShowSplash(Form& window, bool visible) {
    window.c("frmSplash").setVisible(visible);
    window.c("Timer4").setEnabled(visible);
}

void AdvanceRoundClock(Form& window) {
    ElapsedSeconds += 1;
    DrawTimeDial(DialAngle(ElapsedSeconds), window);
    DialSeconds = ElapsedSeconds;
    window.c("lblTime").setCaption("Time: " + NumText(TimeLimit - ElapsedSeconds));
}

void ShowTimeWarnings(Form& window) {
    const int left = TimeLimit - ElapsedSeconds;
    const int quarter = CInt(TimeLimit / 4.0);
    const int half = CInt(TimeLimit / 2.0);
    if (left >= quarter && left <= half)
        SetPanel(window, 2, "Times running out!");
    else if (left < quarter)
        SetPanel(window, 2, "Better Hurry!");
}

void ShowTimesUp(Form& window) {
    Control& message = window.c("lblMessage");
    message.setCaption(kTimesUp);
    message.setVisible(true);
    SetPanel(window, 2, "Time has expired!");
}

void BlinkLabel(Control& label, int times, int ms) {
    for (int i = 0; i < times; ++i) {
        label.setForeColor(label.foreColor() == Colour::Red ? Colour::Black : Colour::Red);
        Runtime::current().refresh();
        Sleep(ms);
    }
}

void SetPlayCaptions(Form& window, bool playing, const char* endCaption) {
    const std::string caption = playing ? endCaption : kPlayCaption;
    window.c("cmdPlay").setToolTipText(playing ? kEndsTip : kStartsTip);
    window.c("cmdPlay").setCaption(caption);
    Caption(window, "mnuPlay", caption);
}

void SetPausedControls(Form& window, const char* messageLabel) {
    Control& pause = window.c("cmdPause");
    pause.setToolTipText("Resumes the current game");
    Control& message = window.c(messageLabel);
    message.setCaption(kGamePaused);
    if (GameInProgress) message.setVisible(true);
    window.c("Timer1").setEnabled(false);
    pause.setCaption(kResumeCaption);
    Caption(window, "mnuPause", kResumeCaption);
    for (const char* name : kPlayControls) Enable(window, name, false);
}

void SetResumedControls(Form& window, const char* messageLabel) {
    Control& pause = window.c("cmdPause");
    pause.setToolTipText("Pauses the current game");
    Control& message = window.c(messageLabel);
    message.setVisible(false);
    message.setCaption("");
    window.c("Timer1").setEnabled(true);
    pause.setCaption(kPauseCaption);
    Caption(window, "mnuPause", kPauseCaption);
    for (const char* name : kPlayControls) Enable(window, name, true);
}

bool AskYesNo(const std::string& question) {
    return MsgBox(question, MsgButtons::YesNo, MsgIcon::Question, AppTitle) == MsgAnswer::Yes;
}

std::string CloseQuestion() {
    if (GameInProgress) return "You have a game in progress. Are you sure you want to quit now?";
    if (MinutesSince(GameStartTime) < 5) return "Giving up so soon?";
    return "Are you sure you want to quit now? Were just getting started!";
}

void LeaveGameWindow(Form& window, const std::string& settingsFile, const SettingsLayout& settings) {
    window.setMousePointer(Pointer::Hourglass);
    WriteSettingsINI(settingsFile, settings);
    window.c("Timer1").setEnabled(false);
    GameInProgress = false;
    if (PlayMusic) StopMusic();
    window.runtime().show("frmSelect");
}

void ConfirmCloseGameWindow(Form& window, EventArgs& args, bool pausedFirst, const std::function<void()>& pauseHandler,
                            const std::string& settingsFile, const SettingsLayout& settings) {
    if (!AskYesNo(CloseQuestion())) {
        args.cancel = true;
        if (pausedFirst && window.loaded()) pauseHandler();
        return;
    }
    LeaveGameWindow(window, settingsFile, settings);
}

void ConfirmCloseGameWindow(Form& window, EventArgs& args, const std::string& settingsFile,
                            const SettingsLayout& settings) {
    ConfirmCloseGameWindow(window, args, false, {}, settingsFile, settings);
}

void ShowModalPaused(Form& window, const std::string& formName, const char* messageLabel) {
    RunPaused(window, [&window, &formName] { window.runtime().show(formName, true); }, messageLabel);
}

void RunPaused(Form& window, const std::function<void()>& step, const char* messageLabel) {
    Control& pause = window.c("cmdPause");
    Control* message = window.find(messageLabel);
    const auto reads = [message](const char* text) { return message && message->caption() == text; };
    const bool pausedBefore = reads(kGamePaused);
    if (pause.enabled() && !reads(kGamePaused) && !reads(kGameOver)) window.raise(&pause, Ev::Click);
    step();
    if (!window.loaded()) return;
    if (pause.enabled() && !reads(kGameOver) && !pausedBefore) window.raise(&pause, Ev::Click);
}

bool GameRunningUnpaused(const Form& window) {
    const Control& pause = window.c("cmdPause");
    return GameInProgress && pause.enabled() && pause.caption() != kResumeCaption;
}

void RunPausedIfRunning(Form& window, const std::function<void()>& step) {
    Control& pause = window.c("cmdPause");
    const bool pauseFirst = GameRunningUnpaused(window);
    if (pauseFirst) window.raise(&pause, Ev::Click);
    step();
    if (!window.loaded()) return;
    if (pauseFirst && GameInProgress && pause.caption() == kResumeCaption) window.raise(&pause, Ev::Click);
}

std::vector<ControlSpec> TimeMenuEntries(std::span<const TimeEntry> entries) {
    std::vector<ControlSpec> specs;
    for (const TimeEntry& e : entries) specs.push_back({K::Menu, e.menu, -1, 0, 0, 0, 0, e.caption, "mnuTime"});
    return specs;
}

void ClearTimeCheck(Form& window, std::span<const TimeEntry> entries) {
    for (const TimeEntry& entry : entries)
        if (Control* menu = window.find(entry.menu)) menu->setChecked(false);
}

void ChooseTimeLimit(Form& window, std::span<const TimeEntry> entries, const std::string& menu) {
    for (const TimeEntry& entry : entries) {
        if (menu != entry.menu) continue;
        TimeLimit = static_cast<int16_t>(entry.seconds);
        ClearTimeCheck(window, entries);
        window.c(entry.menu).setChecked(true);
        return;
    }
    throw std::logic_error("no time limit entry " + menu);
}

void ApplyTimeSetting(Form& window, const std::string& value, std::span<const TimeEntry> entries) {
    for (const TimeEntry& entry : entries)
        if (value == NumText(entry.seconds)) {
            window.raise(&window.c(entry.menu), Ev::Click);
            return;
        }
}

void ChooseBackDesign(Form& window, const std::string& menu) {
    ClearDeckCheck(window);
    window.c(menu).setChecked(true);
    for (const BackDesign& design : kBackDesigns)
        if (menu == design.menu) ImageList2().moveBackKeys(design.firstIndex);
}

void ApplyDeckSetting(Form& window, const std::string& value, const char* const (&menus)[4]) {
    for (int design = 1; design <= 4; ++design)
        if (value == NumText(design)) {
            window.raise(&window.c(menus[design - 1]), Ev::Click);
            return;
        }
}

void SetPlaySounds(Form& window, bool on) {
    PlaySounds = on;
    if (Control* menu = window.find("mnuSounds")) menu->setChecked(on);
}

void SetPlayMusic(Form& window, bool on, bool gameRunning) {
    PlayMusic = on;
    if (Control* menu = window.find("mnuMusic")) menu->setChecked(on);
    if (!gameRunning) return;
    if (on)
        StartMusic();
    else
        StopMusic();
}

void CompleteFormLoad(Form& window, const std::string& tableName, const std::string& defaultScore) {
    GameStartTime = WallClock();
    ShowSplashCaptions(window);
    CentreOnScreen(window);
    InitTimeDial(window);
    ShowHighScore(tableName, window, defaultScore);
    window.setMousePointer(Pointer::Default);
}

void BindSharedHandlers(Form& window, SplashAnimation& splash, const SharedHandlerPoints& points) {
    BindStandingTimers(window, splash, points.face, points.timeOfDayTimer);
    Form* w = &window;
    const char* messageLabel = points.messageLabel;
    for (const char* exit : {"cmdExit", "mnuExit"})
        if (window.has(exit)) window.on(exit, Ev::Click, [w](EventArgs&) { w->runtime().unload(*w); });
    // A window whose Take Score holds the thread through sleeps lets its Quit
    // button wait until the score is taken.
    if (window.has("cmdQuit"))
        window.on("cmdQuit", Ev::Click, [w, wait = points.quitWaitsForScore](EventArgs&) {
            if (!wait || !TakingScore) w->runtime().unload(*w);
        });
    window.on("mnuSounds", Ev::Click, [w](EventArgs&) { SetPlaySounds(*w, !PlaySounds); });
    // A paused game is a running one: the music follows the switch at once.
    window.on("mnuMusic", Ev::Click, [w](EventArgs&) { SetPlayMusic(*w, !PlayMusic, GameInProgress); });
    if (window.has("mnuView"))
        window.on("mnuView", Ev::Click, [w](EventArgs&) {
            RunPausedIfRunning(*w, [w] { w->runtime().show("frmHighScores", true); });
        });
    const std::pair<const char*, const char*> modal[] = {{"mnuRules", "frmRules"}, {"mnuAbout", "frmAbout"}};
    for (const auto& [menu, form] : modal)
        if (window.has(menu))
            window.on(menu, Ev::Click, [w, f = form, messageLabel](EventArgs&) { ShowModalPaused(*w, f, messageLabel); });
}

void BindWindowEvents(Form& window, std::function<void()> load, std::function<void()> resize,
                      std::function<void(EventArgs&)> queryUnload) {
    window.on(Ev::Load, [load = std::move(load)](EventArgs&) { load(); });
    window.on(Ev::Resize, [resize = std::move(resize)](EventArgs&) { resize(); });
    window.on(Ev::QueryUnload, [queryUnload = std::move(queryUnload)](EventArgs& e) { queryUnload(e); });
}

void BindPlayAndPause(Form& window, std::function<void(bool fromMenu)> play, std::function<void()> pause) {
    window.on("cmdPlay", Ev::Click, [play](EventArgs&) { play(false); });
    window.on("mnuPlay", Ev::Click, [play](EventArgs&) { play(true); });
    window.on("cmdPause", Ev::Click, [pause](EventArgs&) { pause(); });
    window.on("mnuPause", Ev::Click, [pause](EventArgs&) { pause(); });
}

bool ResizeToPlace(Form& window, int smallestWidth, int smallestHeight) {
    if (window.windowState() == 1) return false;
    if ((window.width() < smallestWidth || window.height() < smallestHeight) && window.windowState() == 0) {
        window.setSize(smallestWidth, smallestHeight);
        return false;
    }
    return true;
}

SettingsSection PlayMusicSection(Form& window) {
    Form* w = &window;
    return {"[Play Music]", [w](const std::string& v) { SetPlayMusic(*w, ParseBoolText(v), false); },
            [] { return std::string(BoolText(PlayMusic)); }};
}

SettingsSection PlaySoundsSection(Form& window) {
    Form* w = &window;
    return {"[Play Sounds]", [w](const std::string& v) { SetPlaySounds(*w, ParseBoolText(v)); },
            [] { return std::string(BoolText(PlaySounds)); }};
}


void AddClosingSections(SettingsLayout& layout, Form& window, int designWidth, int designHeight,
                        const char* const (&menus)[4]) {
    for (SettingsSection& section : WindowSizeSections(window, designWidth, designHeight)) layout.push_back(section);
    layout.push_back(DeckSection(window, menus));
}

void ApplyWindowState(Form& window, const std::string& value) {
    if (value == "0" || value == "1" || value == "2") window.setWindowState(static_cast<int>(Val(value)));
}

void ApplyWindowWidth(Form& window, const std::string& value) {
    const int width = PositiveNumber(value);
    if (width > 0 && window.windowState() != 2) window.setSize(width, window.height());
}

void ApplyWindowHeight(Form& window, const std::string& value) {
    const int height = PositiveNumber(value);
    if (height > 0 && window.windowState() != 2) window.setSize(window.width(), height);
}

std::string WindowStateText(const Form& window) { return NumText(window.windowState()); }

std::string WindowWidthText(const Form& window, int designWidth) {
    return NumText(window.windowState() == 2 ? designWidth : window.width());
}

std::string WindowHeightText(const Form& window, int designHeight) {
    return NumText(window.windowState() == 2 ? designHeight : window.height());
}

SettingsLayout WindowSizeSections(Form& window, int designWidth, int designHeight) {
    Form* w = &window;
    return {
        {"[State]", [w](const std::string& v) { ApplyWindowState(*w, v); }, [w] { return WindowStateText(*w); }},
        {"[Width]", [w](const std::string& v) { ApplyWindowWidth(*w, v); },
         [w, designWidth] { return WindowWidthText(*w, designWidth); }},
        {"[Height]", [w](const std::string& v) { ApplyWindowHeight(*w, v); },
         [w, designHeight] { return WindowHeightText(*w, designHeight); }},
    };
}

SettingsSection TimeSection(Form& window, std::span<const TimeEntry> entries, const char* name) {
    Form* w = &window;
    return {name, [w, entries](const std::string& v) { ApplyTimeSetting(*w, v, entries); },
            [] { return NumText(TimeLimit); }};
}

SettingsSection DeckSection(Form& window, const char* const (&menus)[4]) {
    Form* w = &window;
    const char* const(*list)[4] = &menus;
    return {"[Deck]", [w, list](const std::string& v) { ApplyDeckSetting(*w, v, *list); },
            [] { return NumText(DeckDesign); }};
}

SettingsSection CountDownSection(const char* name) {
    return {name, [](const std::string& v) { CountDownScore = ParseBoolText(v); },
            [] { return std::string(BoolText(CountDownScore)); }};
}

namespace {
template <typename T>
SettingsSection NumberSectionOf(const char* name, T& setting) {
    T* target = &setting;
    return {name,
            [target](const std::string& v) {
                const double n = Val(v);
                if (n >= static_cast<double>(std::numeric_limits<T>::min()) &&
                    n <= static_cast<double>(std::numeric_limits<T>::max()))
                    *target = static_cast<T>(CLng(n));
            },
            [target] { return NumText(*target); }};
}
}  // namespace

SettingsSection NumberSection(const char* name, int16_t& setting) { return NumberSectionOf(name, setting); }
SettingsSection NumberSection(const char* name, int32_t& setting) { return NumberSectionOf(name, setting); }

void ShowRunTimeError(const RuntimeError& error) {
    MsgBox("Run-time error '" + NumText(error.number()) + "':\r\n\r\n" + error.description(), MsgButtons::OK,
           MsgIcon::Critical, AppTitle);
}

bool StopOnRunTimeError(Form& window, const RuntimeError& error) {
    window.c("Timer1").setEnabled(false);
    ShowRunTimeError(error);
    if (!window.loaded()) return false;
    if (Control* scoring = window.find("lblScoring")) scoring->setVisible(false);
    if (Control* score = window.find("lblCurrentScore")) score->setForeColor(Colour::Blue);
    return true;
}

void FinishGame(Form& window, const std::string& tableName, const std::string& defaultScore,
                const FinishGameSteps& steps) {
    try {
        window.c("Timer1").setEnabled(false);
        GameInProgress = false;
        window.c("cmdPlay").setCaption(kPlayCaption);
        Caption(window, "mnuPlay", kPlayCaption);
        Enable(window, "mnuCustom", true);
        Enable(window, "mnuTime", true);
        Enable(window, "mnuClearHighRun", true);

        window.c("cmdPause").setEnabled(false);
        Enable(window, "cmdTakeScore", false);
        Enable(window, "mnuPause", false);
        if (steps.disableTakeScoreMenu) Enable(window, "mnuTakeScore", false);

        if (!UpdateHighScoreTable(tableName, window)) throw RuntimeError(53, "File not found");
        if (!window.loaded()) return;
        if (!ShowHighScore(tableName, window, defaultScore)) throw RuntimeError(75, "Path/File access error");
        if (steps.showCards) steps.showCards(false);
        if (steps.showControls) steps.showControls(false, true);
        SetPanel(window, 2, "Game Over");
    } catch (const std::exception&) {
        MsgBox("An error occured when attmpting to access the High Score Table. Please close and restart the game.",
               MsgButtons::OK, MsgIcon::Critical, AppTitle);
    }
}

}  // namespace ch
