// SPDX-License-Identifier: GPL-3.0-or-later
// The start-up window: the animated ring of eight cards, a button for each
// registered game, the web site button and Close. It stays loaded for the whole run,
// hidden while a game window is open.
#pragma once

#include "window/form.h"

namespace ch {

class frmSelect : public Form {
public:
    explicit frmSelect(Runtime& runtime);

private:
    void Form_Load();
    void GameButton_Click(const char* title, const char* formName);
    void cmdLaunchBrowser_Click();
    void cmdClose_Click();
    void Timer1_Timer();

    int16_t SplashPosition = 0;
    bool SplashForward = false;
    bool SplashShowBack = false;
    int16_t SplashBackIndex = 0;
};

}  // namespace ch
