#include "suite/gamesettings.h"

#include "suite/common.h"
#include "suite/dial.h"
#include "window/basic.h"
#include "window/form.h"

namespace ch {

void SetCommonDefaults(Form& window, int16_t timeLimit, int16_t deckDesign) {
    window.setMousePointer(11);
    window.c("Timer4").setEnabled(true);
    window.c("Timer1").setEnabled(false);
    TimeLimit = timeLimit;
    PlaySounds = true;
    PlayMusic = false;
    DeckDesign = deckDesign;
    CountDownScore = true;
}

SettingsSection TimeSection(Form& window, std::span<const TimeEntry> entries, const char* name) {
    Form* w = &window;
    return {name, [w, entries](const std::string& v) { ApplyTimeSetting(*w, v, entries); },
            [] { return NumText(TimeLimit); }};
}

SettingsSection PlaySoundsSection(Form& window) {
    Form* w = &window;
    return {"[Play Sounds]", [w](const std::string& v) { SetPlaySounds(*w, ParseBoolText(v)); },
            [] { return std::string(BoolText(PlaySounds)); }};
}

SettingsSection PlayMusicSection(Form& window) {
    Form* w = &window;
    return {"[Play Music]", [w](const std::string& v) { SetPlayMusic(*w, ParseBoolText(v), false); },
            [] { return std::string(BoolText(PlayMusic)); }};
}

SettingsSection DeckSection(Form& window, const char* const (&menus)[4]) {
    Form* w = &window;
    const auto* list = &menus;
    return {"[Deck]", [w, list](const std::string& v) { ApplyDeckSetting(*w, v, *list); },
            [] { return NumText(DeckDesign); }};
}

SettingsSection CountDownSection(const char* name) {
    return {name, [](const std::string& v) { CountDownScore = ParseBoolText(v); },
            [] { return std::string(BoolText(CountDownScore)); }};
}

bool HoldDesignSize(Form& window, int designWidth, int designHeight) {
    if (window.windowState() == 1) return true;
    if ((window.width() < designWidth || window.height() < designHeight) && window.windowState() == 0) {
        window.setSize(designWidth, designHeight);
        return true;
    }
    return false;
}

void WireCommonMenus(Form& window, const char* viewMenu) {
    Form* w = &window;
    window.on(viewMenu, Ev::Click, [w](EventArgs&) { ShowModalPaused(*w, "frmHighScores"); });
    window.on("mnuRules", Ev::Click, [w](EventArgs&) { ShowModalPaused(*w, "frmRules"); });
    window.on("mnuAbout", Ev::Click, [w](EventArgs&) { ShowModalPaused(*w, "frmAbout"); });
    window.on("mnuSounds", Ev::Click, [w](EventArgs&) { SetPlaySounds(*w, !PlaySounds); });
    window.on("mnuMusic", Ev::Click, [w](EventArgs&) {
        SetPlayMusic(*w, !PlayMusic, GameInProgress && w->c("cmdPause").caption() == kPauseCaption);
    });
}

void WireDialTimers(Form& window) {
    Form* w = &window;
    window.on("Timer2", Ev::Timer, [w](EventArgs&) { DrawTimeDial(DialAngle(DialSeconds), *w); });
    window.on("Timer3", Ev::Timer, [w](EventArgs&) { ShowTimeOfDay(*w); });
}

void PrepareUserOptionsDialog(Form& dialog) {
    CentreOnScreen(dialog);
    dialog.setCaption(AppTitle + " User Options");
    dialog.c("frmScoringOptions").setCaption("AppTitle Scoring Options");
    dialog.c("lblInfo").setCaption(
        "Note: Changing any of the Scoring Options will cause your high scores to be marked with an * indicating "
        "custom scoring was in use.");
}

void AppendControls(std::vector<ControlSpec>& layout, std::span<const ControlSpec> part) {
    layout.insert(layout.end(), part.begin(), part.end());
}

}  // namespace ch
