// SPDX-License-Identifier: GPL-3.0-or-later
// The steps every game window takes alike: menus, the pause button, Clear High Scores.
#include "suite/windowsteps.h"

#include "suite/gamewindow.h"
#include "suite/common.h"
#include "suite/highscores.h"
#include "suite/sound.h"
#include "window/form.h"

namespace ch {

std::vector<ControlSpec> MenusWithoutTakeScore(std::span<const TimeEntry> times, const char* customCaption) {
    using K = ControlKind;
    std::vector<ControlSpec> m = {
        {K::Menu, "mnuFile", -1, 0, 0, 0, 0, "&File"},
        {K::Menu, "mnuPlay", -1, 0, 0, 0, 0, "&Play", "mnuFile"},
        {K::Menu, "mnuPause", -1, 0, 0, 0, 0, "Pau&se", "mnuFile"},
        {K::Menu, "mnuExit", -1, 0, 0, 0, 0, "E&xit", "mnuFile"},
    };
    for (const ControlSpec& s : OptionsMenuHead()) m.push_back(s);
    m.push_back({K::Menu, "mnuCustom", -1, 0, 0, 0, 0, customCaption, "mnuOptions"});
    for (const ControlSpec& s : OptionsMenuTail()) m.push_back(s);
    for (const TimeEntry& e : times) m.push_back({K::Menu, e.menu, -1, 0, 0, 0, 0, e.caption, "mnuTime"});
    for (const ControlSpec& s : HelpMenu()) m.push_back(s);
    return m;
}

void PauseOrResume(Form& window, const std::function<void(bool)>& showCards) {
    if (window.c("cmdPause").caption() == kPauseCaption) {
        SetPausedControls(window);
        showCards(false);
        if (PlayMusic) StopMusic();
    } else {
        SetResumedControls(window);
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
