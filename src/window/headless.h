// SPDX-License-Identifier: GPL-3.0-or-later
// The platform without a window system: a virtual clock that a sleep advances
// at once, input and message box answers from a script, sounds, music and
// message boxes recorded for the script to read.
//
// Text metrics: at font size s a character is s * 11 twips wide, a blank half
// that. The screen is 1024 by 768 pixels (15360 by 11520 twips).
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "window/platform.h"

namespace ch {

class HeadlessPlatform : public Platform {
public:
    // Where input comes from when the loop waits and no time is passing.
    struct Step {
        enum class Kind { Input, Advance, Quit } kind = Kind::Quit;
        InputEvent event;
        int64_t ms = 0;
    };
    using Source = std::function<Step()>;

    // An answer named by its button, or by the button's place in the box: the
    // first (OK, Yes) or the second (Cancel, No; OK in an OK-only box).
    // `onOpen` runs when the box opens, while the windows behind it stand as
    // the box finds them.
    enum class Place { Named, First, Second };
    struct QueuedAnswer {
        MsgAnswer answer = MsgAnswer::OK;
        int afterMs = 0;
        Place place = Place::Named;
        std::function<void()> onOpen = {};
    };

    HeadlessPlatform();

    void setSource(Source source) { source_ = std::move(source); }
    // Called with a text when a message box other than OK-only finds no answer.
    void setFailureReporter(std::function<void(const std::string&)> report) { report_ = std::move(report); }

    void queueAnswer(MsgAnswer answer, int afterMs, std::function<void()> onOpen = {}) {
        answers_.push_back({answer, afterMs, Place::Named, std::move(onOpen)});
    }
    void queueAnswer(Place place, int afterMs, std::function<void()> onOpen = {}) {
        answers_.push_back({MsgAnswer::OK, afterMs, place, std::move(onOpen)});
    }
    size_t queuedAnswers() const { return answers_.size(); }
    // Input that reached the window system while the logic was busy: the next
    // wait serves it ahead of the timers that fell due meanwhile, as a real
    // message queue serves input before timer ticks.
    void queueInput(const InputEvent& event) { inputs_.push_back(event); }
    // Lets MS ms of idle time pass the next time the loop waits.
    void advance(int64_t ms) { advanceUntil_ = now_ + ms; }
    void setWallClock(const DateTime& t) { wallOffset_ = ToMillis(t) - now_; }
    void setWebResult(WebResult result) { webResult_ = result; }

    std::vector<std::string> takeSounds();
    std::vector<MessageBox> takeMessageBoxes();
    const std::vector<std::string>& webPagesOpened() const { return webPages_; }
    int presents() const { return presents_; }

    int64_t now() override { return now_; }
    void sleep(int ms) override { now_ += ms; }
    int64_t wallClock() override { return now_ + wallOffset_; }
    WaitResult wait(InputEvent& event, int64_t deadline, bool pollOnly) override;
    void openMessageBox(const MessageBox& box) override;
    void present(Runtime&) override { ++presents_; }
    void playWave(const std::string& name) override { sounds_.push_back(name); }
    void startMusic() override { sounds_.push_back("+music"); }
    void stopMusic() override { sounds_.push_back("-music"); }
    int textWidth(const std::string& text, double fontSize, bool bold) override;
    int screenWidth() override { return 1024 * 15; }
    int screenHeight() override { return 768 * 15; }
    WebResult openWebPage(const std::string& url) override;

private:
    struct PendingAnswer {
        MsgAnswer answer;
        int64_t at;
    };

    Source source_;
    std::function<void(const std::string&)> report_;
    int64_t now_ = 0;
    int64_t wallOffset_;
    std::optional<int64_t> advanceUntil_;
    std::deque<QueuedAnswer> answers_;
    std::deque<InputEvent> inputs_;
    std::optional<PendingAnswer> pending_;
    std::vector<std::string> sounds_;
    std::vector<MessageBox> boxes_;
    std::vector<std::string> webPages_;
    WebResult webResult_ = WebResult::Opened;
    int presents_ = 0;
};

}  // namespace ch
