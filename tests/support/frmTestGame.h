// SPDX-License-Identifier: GPL-3.0-or-later
// A one-round game window for the tests of the shared pieces, composed from
// them as every game window is: cmdHit scores a hit, Take Score pays the hits
// (AwardBonus) and the seconds left (CountTimeBonus), then the game ends
// through FinishGame. Its settings file is "\Testgame.Ini", its table
// "TestHiScores" at 30, 60 or 90 seconds.
#pragma once

#include <cstdint>

#include "suite/gamewindow.h"
#include "suite/settings.h"
#include "window/form.h"

namespace ch {

inline constexpr const char* kTestGameTitle = "Testgame!";

void RegisterTestGame(Runtime& runtime);

class frmTestGame : public Form {
public:
    explicit frmTestGame(Runtime& runtime);

private:
    void Form_Load();
    void Form_QueryUnload(EventArgs& args);
    void cmdPlay_Click(bool fromMenu);
    void cmdPause_Click();
    void cmdTakeScore_Click();
    void cmdHit_Click();
    void Timer1_Timer();
    void mnuTime_Click(const char* menu);
    void mnuDeck_Click(const char* menu, int design);
    void mnuClear_Click();

    void Play();
    void TakeScore();
    void EndGame();
    void ShowCards(bool visible);
    void ShowControls(bool visible, bool scoreVisible);
    SettingsLayout SettingsSections();

    int16_t CurrentRound = 0;
    int32_t HitCount = 0;
    int32_t HitBonus = 500;
    SplashAnimation Splash;
};

}  // namespace ch
