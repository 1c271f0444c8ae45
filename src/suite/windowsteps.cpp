#include "suite/windowsteps.h"

#include "suite/gamewindow.h"
#include "suite/highscores.h"
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

void ClearHighScores(Form& window, const std::string& tableName, const std::string& defaultScore) {
    if (!AskYesNo(kClearScoresQuestion)) return;
    CreateHighScoreFile(tableName, window, defaultScore);
    ShowHighScore(tableName, window, defaultScore);
}

}  // namespace ch
