// SPDX-License-Identifier: GPL-3.0-or-later
// What the message loop needs from outside: the clock, the source of input
// events, message boxes, sounds, music, text metrics and the screen. The Qt
// platform gives real ones; the headless platform a virtual clock and a script.
#pragma once

#include <cstdint>
#include <string>

namespace ch {

class Runtime;

enum class MsgButtons { OK, OKCancel, YesNo };
enum class MsgIcon { None, Critical, Question, Exclamation, Information };
enum class MsgAnswer { OK, Cancel, Yes, No };

struct MessageBox {
    std::string text;
    std::string title;
    MsgIcon icon = MsgIcon::None;
    MsgButtons buttons = MsgButtons::OK;
};

// The kinds of input a user makes. Timer ticks are not input: the loop makes them.
enum class InputKind {
    Click,
    DblClick,
    MouseMove,
    Key,          // key: 13 Return, 27 Escape, 9 Tab, or a character
    SetText,      // the user replaced the text of a text box
    Focus,
    Check,        // value: 0 or 1
    Choose,       // an option button chosen
    Close,        // the user closes a window
    Resize,       // width, height in twips
    WindowState,  // value 0 normal, 1 minimised, 2 maximised
    ListSelect,   // value: the list index chosen
    MessageBoxAnswer,
};

struct InputEvent {
    InputKind kind = InputKind::Click;
    std::string form;
    std::string control;  // empty for the form itself
    int index = -1;       // index in a control array, -1 for a single control
    std::string text;
    int key = 0;
    int value = 0;  // DblClick: 1 when its first click was already sent as a Click
    int width = 0;
    int height = 0;
    MsgAnswer answer = MsgAnswer::OK;
};

// Local date and time, to the millisecond, with no time zone.
struct DateTime {
    int year = 2026, month = 1, day = 1, hour = 0, minute = 0, second = 0, millisecond = 0;
};
// Milliseconds since 1970-01-01 00:00 local time and back.
int64_t ToMillis(const DateTime& t);
DateTime FromMillis(int64_t ms);

enum class WaitResult { Input, Timeout };

// Thrown out of the platform's wait when the run must stop at once (the end of
// a script, the application closing). Game code never catches it.
struct StopRun {};

class Platform {
public:
    virtual ~Platform() = default;

    // Monotonic clock of the logic thread, in milliseconds.
    virtual int64_t now() = 0;
    // Blocks the logic thread: nothing is served meanwhile.
    virtual void sleep(int ms) = 0;
    // Local wall clock, in milliseconds since 1970 (see ToMillis).
    virtual int64_t wallClock() = 0;

    // Waits for the next input event until the clock reaches `deadline`
    // (a value <= now() only polls). Returns Timeout when the deadline is
    // reached with no input. May throw StopRun.
    virtual WaitResult wait(InputEvent& event, int64_t deadline, bool pollOnly) = 0;

    // A message box opens; its answer arrives later as a MessageBoxAnswer event.
    virtual void openMessageBox(const MessageBox& box) = 0;

    // Called where the window would repaint: the end of an event, Refresh, before
    // a Sleep, DoEvents. The renderer takes the model's state from here.
    virtual void present(Runtime& runtime) = 0;

    // A wave file, named as the game names it ("\Chord.wav"); a new one cuts the old.
    virtual void playWave(const std::string& name) = 0;
    virtual void startMusic() = 0;
    virtual void stopMusic() = 0;

    // Width in twips of a text in the given font.
    virtual int textWidth(const std::string& text, double fontSize, bool bold) = 0;
    virtual int screenWidth() = 0;   // twips
    virtual int screenHeight() = 0;  // twips

    enum class WebResult { Opened, NoBrowser, Failed };
    virtual WebResult openWebPage(const std::string& url) = 0;
};

}  // namespace ch
