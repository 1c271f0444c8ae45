#include "suite/windowsteps.h"

#include "suite/gamewindow.h"
#include "suite/common.h"
#include "suite/highscores.h"
#include "suite/sound.h"
#include "window/form.h"

namespace ch {

bool ResizeToPlace(Form& window, int designWidth, int designHeight) {
    if (window.windowState() == 1) return false;
    if ((window.width() < designWidth || window.height() < designHeight) && window.windowState() == 0) {
        window.setSize(designWidth, designHeight);
        return false;
    }
    return true;
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
