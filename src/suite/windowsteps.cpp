// SPDX-License-Identifier: GPL-3.0-or-later
// The steps every game window takes alike: menus, the pause button, Clear High Scores.
#include "suite/windowsteps.h"

#include "suite/gamewindow.h"
#include "suite/common.h"
#include "suite/highscores.h"
#include "suite/labels.h"
#include "suite/sound.h"
#include "window/form.h"

namespace ch {

std::vector<ControlSpec> GameMenus(std::span<const TimeEntry> times, const char* customCaption, bool takeScore) {
    using K = ControlKind;
    std::vector<ControlSpec> m;
    for (const ControlSpec& s : FileMenu())
        if (takeScore || std::string(s.name) != "mnuTakeScore") m.push_back(s);
    AppendControls(m, OptionsMenuHead());
    m.push_back({K::Menu, "mnuCustom", -1, 0, 0, 0, 0, customCaption, "mnuOptions"});
    AppendControls(m, OptionsMenuTail());
    AppendControls(m, TimeMenuEntries(times));
    AppendControls(m, HelpMenu());
    return m;
}

void PauseOrResume(Form& window, const std::function<void(bool)>& showCards, const char* messageLabel) {
    if (window.c("cmdPause").caption() == kPauseCaption) {
        SetPausedControls(window, messageLabel);
        showCards(false);
        if (PlayMusic) StopMusic();
    } else {
        SetResumedControls(window, messageLabel);
        showCards(true);
        if (PlayMusic && GameInProgress) StartMusic();
    }
}

void ClearHighScores(Form& window, const std::string& tableName, const std::string& defaultScore) {
    if (!AskYesNo(kClearScoresQuestion)) return;
    CreateHighScoreFile(tableName, window, defaultScore);
    ShowHighScore(tableName, window, defaultScore);
}

}  // namespace ch
