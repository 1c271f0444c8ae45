// The steps every game window takes alike: the pause button, Clear High Scores.
#include "suite/windowsteps.h"

#include "suite/gamewindow.h"
#include "suite/common.h"
#include "suite/highscores.h"
#include "suite/sound.h"
#include "window/form.h"

namespace ch {

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
