// SPDX-License-Identifier: GPL-3.0-or-later
// The browser platform. The suite runs in a Web Worker that really blocks: a
// sleep, or a wait for input, is Atomics.wait on memory shared with the page,
// so the logic keeps its single thread and blocking steps while the page
// goes on answering. Snapshots, message boxes and sound requests go to the
// page as messages; the page's input comes back through the shared queue
// (src/web/bridge.js holds the JavaScript half).
#pragma once

#include <cstdint>
#include <deque>
#include <utility>
#include <string>

#include "window/snapshot.h"
#include "web/snapjson.h"
#include "window/platform.h"

namespace ch {

// One line of the shared input queue, fields split by 0x1F:
//   KIND FORM CONTROL INDEX TEXT KEY VALUE WIDTH HEIGHT
// KIND is click, dblclick, move, key, text, focus, check, choose, close,
// resize, state, select or answer (VALUE 0 OK, 1 Cancel, 2 Yes, 3 No).
// False for a line that names no known kind or has too few fields.
bool ParseInputLine(const std::string& line, InputEvent& event);

class WebPlatform : public Platform {
public:
    explicit WebPlatform(bool testHooks) : testHooks_(testHooks) {}

    int64_t now() override;
    void sleep(int ms) override;
    int64_t wallClock() override;
    WaitResult wait(InputEvent& event, int64_t deadline, bool pollOnly) override;
    void openMessageBox(const MessageBox& box) override;
    void present(Runtime& runtime) override;
    void playWave(const std::string& name) override;
    void startMusic() override;
    void stopMusic() override;
    int textWidth(const std::string& text, double fontSize, bool bold) override;
    int screenWidth() override;
    int screenHeight() override;
    WebResult openWebPage(const std::string& url) override;

private:
    // Moves what the page queued into `pending_`; the test page's own lines
    // (a stacked deck) are done here.
    void drain();

    bool testHooks_;
    // Each queued event with its line's number; the page numbers the lines it
    // sends the same way, and every snapshot says up to which line the logic
    // has taken input, so the page can tell a snapshot older than what the
    // player has just typed.
    std::deque<std::pair<InputEvent, uint64_t>> pending_;
    uint64_t linesRead_ = 0;
    uint64_t linesTaken_ = 0;
    uint64_t presented_ = ~uint64_t{0};
    int loadedForms_ = 1;
    SnapshotTaker taker_;
    SnapshotJson json_;
};

}  // namespace ch
