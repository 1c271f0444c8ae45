// SPDX-License-Identifier: GPL-3.0-or-later
// A one-round game window built from the shared pieces as every game window is: cmdHit scores
// a hit, Take Score pays the hits (AwardBonus) and seconds left (CountTimeBonus), then FinishGame.
// Settings "\Testgame.Ini", table "TestHiScores" at 30, 60 or 90 seconds.
#include <memory>
#include <vector>

#include "suite/cards.h"
#include "suite/common.h"
#include "suite/dial.h"
#include "suite/frmRules.h"
#include "suite/gameform.h"
#include "suite/highscores.h"
#include "suite/labels.h"
#include "suite/roundsteps.h"
#include "suite/sound.h"
#include "suite/windowsteps.h"
#include "tests/support/testforms.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

namespace {
using K = ControlKind;

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
    for (std::span<const ControlSpec> part : {StandingControls(), TakeScoreButton(), ExitButton(), ScoringLabel(),
                                              std::span<const ControlSpec>(kBoard), FileMenu(), OptionsMenuHead(),
                                              OptionsMenuTail()})
        AppendControls(specs, part);
    AppendControls(specs, TimeMenuEntries(kTimeEntries));
    AppendControls(specs, HelpMenu());
    return specs;
}

void RegisterTestGameForms(Runtime& runtime);

// Opened by the launcher, not offered by the selector.
const GameInfo kTestGame = {
    .name = "testgame",
    .title = kTestGameTitle,
    .form = "frmTestGame",
    .button = nullptr,
    .buttonCaption = "",
    .buttonSlot = 0,
    .tableName = "TestHiScores",
    .defaultScore = "50000",
    .settingsFile = "\\Testgame.Ini",
    .timeEntries = kTimeEntries,
    .defaultTime = 60,
    .registerForms = RegisterTestGameForms,
};

class frmTestGame : public GameForm {
public:
    explicit frmTestGame(Runtime& runtime) : GameForm(runtime, kTestGame, 9540, 7200) {
        add(Layout());
        PrepareStandingControls(*this);
        SetGameTimers(*this);
        c("imgCard").setVisible(false);

        on(Ev::Load, [this](EventArgs&) { Form_Load(); });
        on(Ev::QueryUnload, [this](EventArgs& e) { ConfirmClose(e); });
        BindPlayAndPause(*this, [this](bool fromMenu) { cmdPlay_Click(fromMenu); }, [this] { cmdPause_Click(); });
        on("cmdTakeScore", Ev::Click, [this](EventArgs&) { cmdTakeScore_Click(); });
        on("mnuTakeScore", Ev::Click, [this](EventArgs&) {
            if (!TakingScore) TakeScore();
        });
        on("cmdHit", Ev::Click, [this](EventArgs&) { cmdHit_Click(); });
        on("Timer1", Ev::Timer, [this](EventArgs&) { Timer1_Timer(); });
        BindShared();
        // A paused game keeps the music off; the Hall of Fame opens as Rules and About do.
        replace("mnuMusic", Ev::Click, [this](EventArgs&) {
            SetPlayMusic(*this, !PlayMusic, GameInProgress && c("cmdPause").caption() == kPauseCaption);
        });
        replace("mnuView", Ev::Click, [this](EventArgs&) { ShowModalPaused(*this, "frmHighScores"); });
        BindTimeAndDeckMenus(kTimeEntries, kDeckMenus, [this](const char* menu) { mnuTime_Click(menu); },
                             [this](int design) { mnuDeck_Click(design); });
        on("mnuClear", Ev::Click, [this](EventArgs&) { ClearTable(); });

        ExposeVariables({
            {"CurrentRound", Expose(CurrentRound)},
            {"HitBonus", Expose(HitBonus)},
            {"SplashPosition", Expose(Splash.SplashPosition)},
            {"SplashForward", Expose(Splash.SplashForward)},
            {"SplashShowBack", Expose(Splash.SplashShowBack)},
        });
    }

private:
    SettingsLayout SettingsSections() override {
        SettingsLayout layout = {
            PlayMusicSection(*this),
            TimeSection(*this, kTimeEntries),
            PlaySoundsSection(*this),
            CountDownSection(),
            {"[Hit Bonus]", [this](const std::string& v) { HitBonus = CLng(Val(v)); },
             [this] { return NumText(HitBonus); }},
            {"[Time Bonus]", [](const std::string& v) { TimeBonus = CLng(Val(v)); }, [] { return NumText(TimeBonus); }},
        };
        AddClosingSections(layout, *this, 9540, 7200, kDeckMenus);
        return layout;
    }

    void Form_Load() {
        BeginLoad();
        TimeBonus = 100;
        HitBonus = 500;
        ShowWelcome(*this);
        ReadSettings();
        CustomScoringInUse = HitBonus != 500 || TimeBonus != 100;
        CompleteLoad();
    }

    void cmdPlay_Click(bool fromMenu) {
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

    void Play() {
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
        for (const char* name : {"cmdPause", "mnuPause", "cmdTakeScore", "mnuTakeScore"}) c(name).setEnabled(true);
        c("mnuTime").setEnabled(false);
        c("StatusBar1").setPanel(2, "Click on Hit to score!   ");
        c("Timer1").setEnabled(true);
    }

    void cmdPause_Click() {
        PauseOrResume(*this, [this](bool show) { ShowCards(show); });
    }

    void cmdHit_Click() {
        const std::string& message = c("lblMessage").caption();
        if (message == kGamePaused || message == kGameOver || !GameInProgress) {
            Wave("\\Chord.wav");
            return;
        }
        HitCount += 1;
        Wave("\\Markq.wav");
    }

    void Timer1_Timer() {
        if (!RoundClockRunsOut(*this)) return;
        ShowCards(false);
        c("cmdTakeScore").setEnabled(false);
        c("cmdPause").setEnabled(false);
        TimesUpThenScore(*this, [this] { cmdTakeScore_Click(); });
    }

    void cmdTakeScore_Click() {
        if (TakingScore) return;
        TakeScore();
        if (PlayMusic && GameInProgress) StartMusic();
    }

    // One round: the hits, then the seconds left, then the end of the game.
    void TakeScore() {
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

        FinishGame(*this, kTestGame.tableName, kTestGame.defaultScore,
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

    void EndGame() {
        GameInProgress = false;
        c("Timer1").setEnabled(false);
        c("Timer2").setEnabled(false);
        ShowCards(false);
        ShowControls(false, true);
        for (const char* name : {"cmdPause", "mnuPause", "cmdTakeScore", "mnuTakeScore"}) c(name).setEnabled(false);
        c("mnuTime").setEnabled(true);
        c("Surface").cls();
        ShowSplash(*this, true);
        if (PlayMusic) StopMusic();
    }

    void ShowCards(bool visible) {
        c("imgCard").setPicture(ImageList2().indexOf("BACK"));
        c("imgCard").setVisible(visible);
    }

    void ShowControls(bool visible, bool scoreVisible) {
        for (const char* name : {"lblTime", "TimerRectangle", "TimerBevelSide", "TimerBevelBottom", "lblRound",
                                 "lblCurrentRound", "RoundRectangle", "RoundBevelSide", "RoundBevelBottom"})
            c(name).setVisible(visible);
        for (const char* name : {"lblScore", "ScoreRectangle", "ScoreBevelSide", "ScoreBevelBottom", "lblCurrentScore"})
            c(name).setVisible(scoreVisible);
    }

    void mnuTime_Click(const char* menu) {
        ChooseTimeLimit(*this, kTimeEntries, menu);
        ShowTableTop();
    }

    void mnuDeck_Click(int design) {
        ChooseBackDesign(*this, kDeckMenus[design - 1]);
        c("imgCard").setPicture(ImageList2().indexOf("BACK"));
        DeckDesign = static_cast<int16_t>(design);
    }

    int16_t CurrentRound = 0;
    int32_t HitCount = 0;
    int32_t HitBonus = 500;
};

void RegisterTestGameForms(Runtime& runtime) {
    runtime.registerForm("frmTestGame", [](Runtime& rt) { return std::make_unique<frmTestGame>(rt); });
    RegisterRules(kTestGameTitle, [] {
        return RulesText(30, {"Each round lasts " + NumText(TimeLimit) + " seconds.", "Good luck and have fun!"});
    });
}
}  // namespace

void RegisterTestGame(Runtime& runtime) { RegisterGame(runtime, kTestGame); }

}  // namespace ch
