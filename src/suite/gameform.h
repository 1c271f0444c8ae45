// SPDX-License-Identifier: GPL-3.0-or-later
// The base of every game window: what each one has, written once. A game
// window derives from GameForm, names its GameInfo and design size, and
// calls these steps from its own handlers; the points where games differ
// are the arguments (SharedHandlerPoints, the deck design at load).
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <span>
#include <utility>

#include "suite/gameinfo.h"
#include "suite/gamewindow.h"
#include "suite/settings.h"
#include "window/form.h"

namespace ch {

class GameForm : public Form {
public:
    GameForm(Runtime& runtime, const GameInfo& game, int designWidth, int designHeight);

    const GameInfo& game() const { return game_; }
    // The window's size as laid out, its smallest in the normal state.
    int designWidth() const { return designWidth_; }
    int designHeight() const { return designHeight_; }

protected:
    // The handlers every game window binds alike (BindSharedHandlers), with
    // this window's splash ring.
    void BindShared(const SharedHandlerPoints& points = {});
    // The Time Limit entries call `onTime` with the entry's menu name; the back
    // design entries, listed by DeckDesign number, call `onDeck` with it.
    void BindTimeAndDeckMenus(std::span<const TimeEntry> times, const char* const (&deckMenus)[4],
                              const std::function<void(const char*)>& onTime, const std::function<void(int)>& onDeck);
    // The window's variables that the driver may read, by name.
    void ExposeVariables(std::initializer_list<std::pair<const char*, VariableGetter>> variables);
    // Form_Load's opening (BeginFormLoad) at the game's default time limit.
    void BeginLoad(int16_t deckDesign = 1);
    // Form_Load's close (CompleteFormLoad) with the game's table.
    void CompleteLoad();
    // lblHighScore from the game's table at the current time limit.
    bool ShowTableTop();
    // mnuClear: the question, then the game's table anew (ClearHighScores).
    void ClearTable();
    // A wave file, when PlaySounds is on; a sound with no name plays nothing.
    void Wave(const char* name) const;
    // A round change told in lblMessage: the caption in red, `wave` played
    // (when one is named), eleven blinks a quarter second apart, then hidden.
    void AnnounceRound(const char* caption, const char* wave = "");
    // Form_Resize's guard at the design size (ResizeToPlace).
    bool ResizeToPlace();
    // The sections of the game's settings file, in the file's order.
    virtual SettingsLayout SettingsSections() = 0;
    // Form_Load: the game's settings file read through SettingsSections.
    void ReadSettings();
    // Form_QueryUnload: the close question, then the settings file written
    // (ConfirmCloseGameWindow); a game that `pausedFirst` goes on after a No
    // through `pauseHandler`.
    void ConfirmClose(EventArgs& args);
    void ConfirmClose(EventArgs& args, bool pausedFirst, const std::function<void()>& pauseHandler);

    SplashAnimation Splash;

private:
    const GameInfo& game_;
    int designWidth_;
    int designHeight_;
};

}  // namespace ch
