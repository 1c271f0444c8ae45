// The steps every game window's loading, settings file and resizing share:
// the defaults that loading sets first, the settings sections every game
// writes the same way, and holding a window at its smallest size.
//
//   Form_Load:   SetCommonDefaults(*this, 120);  ... the game's own defaults ...
//   settings:    {TimeSection(*this, kTimeEntries), PlaySoundsSection(*this), ...}
//   Form_Resize: if (HoldDesignSize(*this, 9540, 7305)) return;  PlaceBoard();
//   constructor: WireCommonMenus(*this); WireDialTimers(*this);
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "suite/gamewindow.h"
#include "suite/settings.h"

namespace ch {

class Form;

// Hourglass, Timer4 on, Timer1 off; TimeLimit, PlaySounds true, PlayMusic
// false, DeckDesign, CountDownScore true.
void SetCommonDefaults(Form& window, int16_t timeLimit, int16_t deckDesign = 1);

// "[Time]": the entry of that many seconds is clicked; TimeLimit written.
SettingsSection TimeSection(Form& window, std::span<const TimeEntry> entries, const char* name = "[Time]");
// "[Play Sounds]", "[Play Music]": through the menu's own handlers.
SettingsSection PlaySoundsSection(Form& window);
SettingsSection PlayMusicSection(Form& window);
// "[Deck]": the design entry 1 to 4 is clicked; DeckDesign written.
SettingsSection DeckSection(Form& window, const char* const (&menus)[4]);
// The shared CountDownScore under the game's own section name.
SettingsSection CountDownSection(const char* name);

// True when there is nothing to place: the window is minimised, or it was
// smaller than its design size and was set back to it (a further resize
// event follows).
bool HoldDesignSize(Form& window, int designWidth, int designHeight);

// The menu entries that work alike in every window: the Hall of Fame
// (`viewMenu`), rules and about around a pause; sounds and music toggled.
void WireCommonMenus(Form& window, const char* viewMenu = "mnuView");
// Timer2 redraws the dial at DialSeconds; Timer3 shows the time of day.
void WireDialTimers(Form& window);

// The opening of a "User Options" dialog (Handgrid's and Treyshift's):
// centred, titled AppTitle + " User Options", its frame frmScoringOptions
// and its note lblInfo captioned as they have always read.
void PrepareUserOptionsDialog(Form& dialog);

// Adds a part of a layout to the whole.
void AppendControls(std::vector<ControlSpec>& layout, std::span<const ControlSpec> part);

}  // namespace ch
