// SPDX-License-Identifier: GPL-3.0-or-later
// The pieces every game window is built from. A game window is one class of
// its own; it adds these controls to its layout and calls these routines from
// its handlers, in its own order, so that its Play, pause, time-up and close
// read step by step in its own file. Every routine reaches the controls by
// their names, which are the same in every game window; a control a game
// lacks (cmdTakeScore, or cmdExit where the game has cmdQuit) is skipped.
//
// A typical game window:
// constructor:   add(layout); PlaceControls; PrepareStandingControls(*this); SetGameTimers(*this);
//                BindWindowEvents(...); BindPlayAndPause(...); BindShared(points)   (gameform.h)
// Form_Load:     BeginLoad(); ... (its scoring defaults)
//                ShowWelcome(*this); ReadSettingsINI("\\X.Ini", SettingsSections());   (settings.h)
//                CompleteLoad();
// Form_Resize:   if (ResizeToPlace()) PlaceBoard();
// Timer1_Timer:  AdvanceRoundClock(*this); ShowTimeWarnings(*this);
//                if (ElapsedSeconds == TimeLimit) { Timer1 off; hide cards; disable buttons;
//                    ShowTimesUp(*this); BlinkLabel(c("lblMessage"), 10, 250); take score;
//                    if lblMessage isn't "Game Over", hide it }
// cmdPause:      if caption is kPauseCaption: SetPausedControls; hide cards; StopMusic if PlayMusic
//                else SetResumedControls; show cards; StartMusic if PlayMusic and GameInProgress
// Form_QueryUnload: ConfirmCloseGameWindow(*this, args, settingsFile, SettingsSections());
// end of the game: FinishGame(*this, table, default, {...}).
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "suite/gameinfo.h"
#include "suite/labels.h"
#include "suite/settings.h"
#include "window/control.h"

namespace ch {

class Form;
struct EventArgs;
class RuntimeError;

// Captions the game logic tests, exactly as they stand.
inline constexpr const char* kPlayCaption = "&Play";
inline constexpr const char* kEndGameCaption = "&End Game";
inline constexpr const char* kPauseCaption = "Pau&se";
inline constexpr const char* kResumeCaption = "&Resume";
inline constexpr const char* kGamePaused = "Game Paused";
inline constexpr const char* kGameOver = "Game Over";
inline constexpr const char* kTimesUp = "Times Up!";
inline constexpr const char* kStartsTip = "Starts a new game";
inline constexpr const char* kEndsTip = "Ends the game in progress";

// Questions of the Play button and of closing the window.
inline constexpr const char* kQuitQuestion = "You have a game in progress, are you sure you want to quit?";
inline constexpr const char* kQuitNowQuestion = "You have a game in progress, are you sure you want to quit now?";
inline constexpr const char* kRestartQuestion = "You have a game in progress, are you sure you want to restart now?";
inline constexpr const char* kClearScoresQuestion = "This will clear all High Scores. Are You Sure?";

// ---- Layout ---------------------------------------------------------------
// The controls every game window has, at their design places on a window of
// 9540 by 7200 twips: cmdPlay, cmdPause, the time, score and round boxes with
// their rectangles and bevel lines, the dial `Surface`, lblHighScore,
// lblMessage, the splash panel frmSplash (lblCompanyProduct, lblProductName,
// lblPlatform, lblVersion, imgSplashImage(0..3)), StatusBar1 and Timer1 to
// Timer4. Captions are set by the routines below and by the game.
std::span<const ControlSpec> StandingControls();
// The buttons and labels not every game has, at their usual places.
std::span<const ControlSpec> TakeScoreButton();  // cmdTakeScore "&Take Score"
std::span<const ControlSpec> ExitButton();       // cmdExit "E&xit"
std::span<const ControlSpec> QuitButton();       // cmdQuit "&Quit", same place
std::span<const ControlSpec> ScoringLabel();     // lblScoring, the amounts of a count-up
// The common menus, in their order. A game adds between OptionsMenuHead and
// OptionsMenuTail its scoring dialog entry, and after OptionsMenuTail its time
// limit entries (container "mnuTime"). A game whose menu captions differ
// writes its own arrays.
std::span<const ControlSpec> FileMenu();          // mnuFile "&File": mnuPlay, mnuTakeScore, mnuPause, mnuExit
std::span<const ControlSpec> OptionsMenuHead();   // mnuOptions: mnuView, mnuClear, mnuMusic, mnuSounds
std::span<const ControlSpec> OptionsMenuTail();   // mnuTime, mnuDeck with mnuPalm, mnuMagic, mnuNight, mnuHot
std::span<const ControlSpec> HelpMenu();          // mnuHelp: mnuRules, mnuAbout

// A game's own place for a standing control, and the move of each named
// control to its place.
struct ControlPlace {
    const char* name;
    int left, top, width, height;
};
void PlaceControls(Form& window, std::span<const ControlPlace> places);
// The same from layout entries: each named control takes the entry's place.
void PlaceControls(Form& window, std::span<const ControlSpec> places);

// The state of the standing controls at load: fonts of the big labels,
// lblMessage and lblScoring hidden, cmdPause disabled, the play captions and
// tool tips, the fixed captions of the boxes ("Time:", "Score:", "Round:").
// A window that shows its score or round in labels of its own leaves
// lblCurrentScore and lblCurrentRound out.
void PrepareStandingControls(Form& window);
// A timer's interval and whether it runs.
void SetTimer(Form& window, const std::string& name, int interval, bool enabled);
// The four timers of a game window: Timer1 the round clock (1000 ms, off),
// Timer2 the dial blink (200 ms), Timer3 the time of day (60000 ms, on),
// Timer4 the splash animation.
struct GameTimers {
    bool dialBlinkOn = false;
    int splashInterval = 200;
    bool splashOn = false;
};
void SetGameTimers(Form& window, const GameTimers& timers = {});

// ---- Form_Load ------------------------------------------------------------
// The first steps of Form_Load: the hourglass, Timer4 on, Timer1 off, and the
// shared defaults: the game's default time limit with its entry ticked,
// sounds on (ticked), music off, `deckDesign`, count-down on. The game then
// sets its own scoring values.
void BeginFormLoad(Form& window, const GameInfo& game, int16_t deckDesign = 1);
// left = (screen width - width) / 2, top likewise, integer division.
void CentreOnScreen(Form& window);
// Window caption = AppTitle; panel 1 "Welcome to " + AppTitle + two blanks;
// panel 3 the time of day.
void ShowWelcome(Form& window);
// lblCompanyProduct "Quillmark Presents", lblVersion "Version 4.0",
// lblProductName AppTitle, lblPlatform "Windows 95/98/NT"; frmSplash shown.
void ShowSplashCaptions(Form& window);
// The wall clock as "h:mm AMPM" ("3:07 PM").
std::string TimeOfDayText(int64_t wallClockMs);
// Panel 3 of StatusBar1 = the time of day (Timer3 unless the window names another).
void ShowTimeOfDay(Form& window);
// Whole minutes from a wall clock reading to now.
int MinutesSince(int64_t wallClockMs);

// ---- Splash panel ----------------------------------------------------------
// The face the ring turns up: a random card face with BorderStyle 1 (the back
// with BorderStyle 0), or, for a window that names one, that picture every
// time with the borders left as they are.
struct SplashFace {
    int fixedPicture = -1;
};
// The ring of four cards on the splash panel, one step per Timer4 tick:
// forward passes turn the cards to backs or faces in turn, backward passes
// restack them.
struct SplashAnimation {
    int16_t SplashPosition = 0;
    bool SplashForward = false;
    bool SplashShowBack = false;
    void step(Form& window, SplashFace face);
};
// Binds the handlers of Timer2 (the dial's blink at DialSeconds), the time of
// day's timer and Timer4 (a step of `splash`, which the window owns).
void BindStandingTimers(Form& window, SplashAnimation& splash, SplashFace face,
                        const char* timeOfDayTimer = "Timer3");
// frmSplash and Timer4 on or off together.
void ShowSplash(Form& window, bool visible);

// ---- Round clock -----------------------------------------------------------
// ElapsedSeconds += 1; the dial at DialAngle(ElapsedSeconds); DialSeconds =
// ElapsedSeconds; lblTime = "Time: " + seconds left.
void AdvanceRoundClock(Form& window);
// Panel 2: "Times running out!" from half time (both ends in), "Better Hurry!"
// below a quarter; quarter and half rounded half to even. Above half the
// panel keeps its text.
void ShowTimeWarnings(Form& window);
// lblMessage = "Times Up!", shown; panel 2 = "Time has expired!".
void ShowTimesUp(Form& window);
// `times` blinks of a label between red and black: a label of any other
// colour turns red first. Each blink repaints and sleeps `ms` (blocking).
void BlinkLabel(Control& label, int times, int ms);

// ---- Play, pause, prompts ---------------------------------------------------
// cmdPlay and mnuPlay captions with cmdPlay's tool tip: playing gives
// `endCaption` and "Ends the game in progress", idle "&Play" and "Starts a new game".
void SetPlayCaptions(Form& window, bool playing, const char* endCaption = kEndGameCaption);
// The shared part of pausing: cmdPause's tool tip, lblMessage "Game Paused"
// (shown if GameInProgress), Timer1 off, "&Resume" on cmdPause and mnuPause,
// cmdExit/cmdQuit, cmdTakeScore, cmdPlay, mnuExit, mnuPlay, mnuTakeScore
// disabled. The game then hides its cards and stops the music.
// A game whose messages stand in another label names it in `messageLabel`.
void SetPausedControls(Form& window, const char* messageLabel = "lblMessage");
// The reverse: lblMessage hidden and emptied, Timer1 on, "Pau&se", the
// controls enabled. The game then shows its cards and restarts the music.
void SetResumedControls(Form& window, const char* messageLabel = "lblMessage");
// A Yes/No question with the question icon and the title AppTitle.
bool AskYesNo(const std::string& question);
// The question of closing the window: a game in progress, under five minutes
// since the window loaded, or later.
std::string CloseQuestion();
// A confirmed close: hourglass, the settings file written, Timer1 off,
// GameInProgress false, StopMusic if PlayMusic, the selector shown again.
void LeaveGameWindow(Form& window, const std::string& settingsFile, const SettingsLayout& settings);

// Form_QueryUnload of a game window: the close question (CloseQuestion); a
// game the window paused before it (`pausedFirst`, by `pauseHandler`) goes
// on after a No through the same handler, and the close is cancelled; a Yes
// leaves the window (LeaveGameWindow).
void ConfirmCloseGameWindow(Form& window, EventArgs& args, bool pausedFirst, const std::function<void()>& pauseHandler,
                            const std::string& settingsFile, const SettingsLayout& settings);
// The same for a window that lets its clock run while the question stands.
void ConfirmCloseGameWindow(Form& window, EventArgs& args, const std::string& settingsFile,
                            const SettingsLayout& settings);

// Around a modal window (rules, about, Hall of Fame): a running game that is
// neither paused nor over (by `messageLabel`'s caption) is paused by a click
// of cmdPause before and resumed by another after, unless it was paused
// already or is over by then.
void ShowModalPaused(Form& window, const std::string& formName, const char* messageLabel = "lblMessage");
// The same pause and resume around any step that holds the window, such as
// a question: a running game is paused by a click of cmdPause before `step`
// and resumed by another after it, unless it was paused already or is over.
void RunPaused(Form& window, const std::function<void()>& step, const char* messageLabel = "lblMessage");

// A game running and not paused, told by the game's state rather than by a
// caption: GameInProgress, and cmdPause enabled and not reading "&Resume".
bool GameRunningUnpaused(const Form& window);
// The pause and resume around a step whose rule speaks of "a running game"
// (View High Scores, a question asked during a game): a game running and not
// paused is paused by a click of cmdPause before `step` and resumed by
// another after it, if it is still in progress and paused then.
void RunPausedIfRunning(Form& window, const std::function<void()>& step);

// ---- Menus --------------------------------------------------------------------
// (TimeEntry, one entry of the Time menu, is in gameinfo.h.)
// The menu entries of the time limits, under mnuTime.
std::vector<ControlSpec> TimeMenuEntries(std::span<const TimeEntry> entries);
// Unticks every entry.
void ClearTimeCheck(Form& window, std::span<const TimeEntry> entries);
// TimeLimit = the entry's seconds, ticks only it. The game then shows the
// high score of that limit's table.
void ChooseTimeLimit(Form& window, std::span<const TimeEntry> entries, const std::string& menu);
// A settings value: the entry whose seconds read as that text is clicked;
// any other value changes nothing.
void ApplyTimeSetting(Form& window, const std::string& value, std::span<const TimeEntry> entries);

// The design entries by DeckDesign number 1 to 4.
inline constexpr const char* kDeckMenus[4] = {"mnuPalm", "mnuMagic", "mnuNight", "mnuHot"};
// The same entries numbered the other way round at the ends, for a game whose
// designs count from the other end.
inline constexpr const char* kReversedDeckMenus[4] = {"mnuHot", "mnuMagic", "mnuNight", "mnuPalm"};
// ClearDeckCheck, tick the entry, move "FULL", "BACK", "HALF" to its design.
// The game then refreshes its stock (and, when paused, its field) and sets
// DeckDesign.
void ChooseBackDesign(Form& window, const std::string& menu);
// A settings value "1" to "4" clicks that design's entry; anything else
// changes nothing.
void ApplyDeckSetting(Form& window, const std::string& value, const char* const (&menus)[4]);

// PlaySounds and the tick of mnuSounds.
void SetPlaySounds(Form& window, bool on);
// PlayMusic and the tick of mnuMusic; during a running game the music starts
// or stops at once.
void SetPlayMusic(Form& window, bool on, bool gameRunning);

// ---- Shared steps of a game window ------------------------------------------
// Form_Load's close: GameStartTime, the splash captions, the window centred,
// the dial prepared, the table's top score shown, the normal pointer.
void CompleteFormLoad(Form& window, const std::string& tableName, const std::string& defaultScore);
// Where a window's shared handlers differ from one game to another.
struct SharedHandlerPoints {
    SplashFace face = {};                     // what the splash ring turns up
    const char* messageLabel = "lblMessage";  // the label that tells a paused or finished game
    const char* timeOfDayTimer = "Timer3";    // the timer that shows the time of day
    bool quitWaitsForScore = false;           // cmdQuit does nothing while TakingScore
};
// The handlers every game window binds alike: Timer2 the dial's blink, the
// time of day, Timer4 the splash ring; cmdExit (or cmdQuit) and mnuExit close
// the window; mnuSounds and mnuMusic switch; mnuView (where the window has
// it) opens the Hall of Fame around a pause of a running game
// (RunPausedIfRunning); mnuRules and mnuAbout open their windows around a
// pause that reads the message label to tell a paused or finished game. The
// window binds none of these itself.
void BindSharedHandlers(Form& window, SplashAnimation& splash, const SharedHandlerPoints& points = {});
// The window's own events: Load, Resize and QueryUnload.
void BindWindowEvents(Form& window, std::function<void()> load, std::function<void()> resize,
                      std::function<void(EventArgs&)> queryUnload);
// cmdPlay and mnuPlay run `play` (told whether the menu was used), cmdPause
// and mnuPause run `pause`.
void BindPlayAndPause(Form& window, std::function<void(bool fromMenu)> play, std::function<void()> pause);
// Form_Resize's guard: false for a minimised window, and for one below its
// smallest size, which is set back to it (a further resize follows); true
// when the board is to be placed.
bool ResizeToPlace(Form& window, int smallestWidth, int smallestHeight);
// The sections most files close with: "[State]", "[Width]", "[Height]" and
// "[Deck]", appended to `layout`.
void AddClosingSections(SettingsLayout& layout, Form& window, int designWidth, int designHeight,
                        const char* const (&menus)[4]);

// ---- Window size in the settings file -------------------------------------
// "[State]": 0 normal, 1 minimised, 2 maximised; other values change nothing.
void ApplyWindowState(Form& window, const std::string& value);
// "[Width]" / "[Height]": applied unless the window is maximised; a value
// that is no positive number changes nothing.
void ApplyWindowWidth(Form& window, const std::string& value);
void ApplyWindowHeight(Form& window, const std::string& value);
std::string WindowStateText(const Form& window);
// The size to write: the window's own, or the design size when maximised.
std::string WindowWidthText(const Form& window, int designWidth);
std::string WindowHeightText(const Form& window, int designHeight);
// The three sections of the window's size in their order, "[State]" first so
// that a maximised window ignores the size read after it.
SettingsLayout WindowSizeSections(Form& window, int designWidth, int designHeight);

// ---- Sections of a settings file that every game has ----------------------------
// Each is read back through the handler its menu uses and written from the
// shared variable.
SettingsSection PlayMusicSection(Form& window);   // "[Play Music]", "True"/"False"
SettingsSection PlaySoundsSection(Form& window);  // "[Play Sounds]"
// "[Time]" (or the game's own name for it): a value that names an entry clicks it.
SettingsSection TimeSection(Form& window, std::span<const TimeEntry> entries, const char* name = "[Time]");
// "[Deck]": 1 to 4 clicks that design's entry.
SettingsSection DeckSection(Form& window, const char* const (&menus)[4] = kDeckMenus);
// CountDownScore under the game's name for it ("[Count Down Score]").
SettingsSection CountDownSection(const char* name = "[Count Down Score]");
// A scoring value: the number read, rounded half to even, when it lies in the
// range of the setting's type; any other value changes nothing.
SettingsSection NumberSection(const char* name, int16_t& setting);
SettingsSection NumberSection(const char* name, int32_t& setting);

// ---- Errors ----------------------------------------------------------------------
// (Labels centred in their boxes: CentreLabelIn in labels.h.)
// A run-time error no handler of the game takes ("Overflow" of a count-up
// past its 16-bit range): the platform's message "Run-time error 'n':", two
// line breaks and the description, with the critical icon and the title
// AppTitle. The game then ends its game in order; the program goes on.
void ShowRunTimeError(const RuntimeError& error);
// The same for a game that ends there: the round clock stops first (it stands
// while the message waits), then the message; lblScoring goes and
// lblCurrentScore is blue again. The game then runs its own end of game.
// False when the window was closed meanwhile.
bool StopOnRunTimeError(Form& window, const RuntimeError& error);

// ---- End of a game ------------------------------------------------------------
struct FinishGameSteps {
    std::function<void(bool)> showCards;               // the game's ShowCards
    std::function<void(bool, bool)> showControls;      // the game's ShowControls
    bool disableTakeScoreMenu = true;                  // false where Take Score has no menu entry
};
// The shared end of a game: Timer1 off, GameInProgress false, "&Play",
// mnuCustom, mnuTime (and mnuClearHighRun) enabled; cmdPause, cmdTakeScore,
// mnuPause, mnuTakeScore disabled; the score offered to the table; the
// table's leader shown; ShowCards(false), ShowControls(false, true); panel 2
// "Game Over". A table that can't be read or written stops the steps with a
// critical message.
void FinishGame(Form& window, const std::string& tableName, const std::string& defaultScore,
                const FinishGameSteps& steps);

}  // namespace ch
