// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/gameform.h"

#include "suite/common.h"
#include "suite/highscores.h"
#include "suite/sound.h"
#include "suite/windowsteps.h"

namespace ch {

GameForm::GameForm(Runtime& runtime, const GameInfo& game, int designWidth, int designHeight)
    : Form(runtime, game.form), game_(game), designWidth_(designWidth), designHeight_(designHeight) {
    setSize(designWidth, designHeight);
}

void GameForm::BindShared(const SharedHandlerPoints& points) { BindSharedHandlers(*this, Splash, points); }

void GameForm::BindTimeAndDeckMenus(std::span<const TimeEntry> times, const char* const (&deckMenus)[4],
                                    const std::function<void(const char*)>& onTime,
                                    const std::function<void(int)>& onDeck) {
    for (const TimeEntry& entry : times)
        on(entry.menu, Ev::Click, [onTime, menu = entry.menu](EventArgs&) { onTime(menu); });
    for (int design = 1; design <= 4; ++design)
        on(deckMenus[design - 1], Ev::Click, [onDeck, design](EventArgs&) { onDeck(design); });
}

void GameForm::ExposeVariables(std::initializer_list<std::pair<const char*, VariableGetter>> variables) {
    for (const auto& [name, getter] : variables) expose(name, getter);
}

void GameForm::BeginLoad(int16_t deckDesign) { BeginFormLoad(*this, game_, deckDesign); }

void GameForm::CompleteLoad() { CompleteFormLoad(*this, game_.tableName, game_.defaultScore); }

bool GameForm::ShowTableTop() { return ShowHighScore(game_.tableName, *this, game_.defaultScore); }

void GameForm::ClearTable() { ClearHighScores(*this, game_.tableName, game_.defaultScore); }

void GameForm::Wave(const char* name) const {
    if (PlaySounds && *name) PlayWaveFile(name);
}

void GameForm::AnnounceRound(const char* caption, const char* wave) {
    Control& message = c("lblMessage");
    message.setForeColor(Colour::Red);
    message.setVisible(true);
    message.setCaption(caption);
    Wave(wave);
    BlinkLabel(message, 11, 250);
    message.setVisible(false);
}

bool GameForm::ResizeToPlace() { return ch::ResizeToPlace(*this, designWidth_, designHeight_); }

void GameForm::ReadSettings() { ReadSettingsINI(game_.settingsFile, SettingsSections()); }

void GameForm::ConfirmClose(EventArgs& args) {
    ConfirmCloseGameWindow(*this, args, game_.settingsFile, SettingsSections());
}

void GameForm::ConfirmClose(EventArgs& args, bool pausedFirst, const std::function<void()>& pauseHandler) {
    ConfirmCloseGameWindow(*this, args, pausedFirst, pauseHandler, game_.settingsFile, SettingsSections());
}

}  // namespace ch
