// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/headless.h"

#include <algorithm>
#include <cmath>

namespace ch {

HeadlessPlatform::HeadlessPlatform() {
    DateTime start;
    start.year = 2026;
    start.month = 1;
    start.day = 1;
    start.hour = 9;
    wallOffset_ = ToMillis(start);
}

std::vector<std::string> HeadlessPlatform::takeSounds() {
    std::vector<std::string> out;
    out.swap(sounds_);
    return out;
}

std::vector<MessageBox> HeadlessPlatform::takeMessageBoxes() {
    std::vector<MessageBox> out;
    out.swap(boxes_);
    return out;
}

WaitResult HeadlessPlatform::wait(InputEvent& event, int64_t deadline, bool pollOnly) {
    // An open message box takes its answer; timers fire meanwhile.
    if (pending_) {
        if (pollOnly && pending_->at > now_) return WaitResult::Timeout;
        if (deadline <= pending_->at) {
            now_ = std::max(now_, deadline);
            return WaitResult::Timeout;
        }
        now_ = std::max(now_, pending_->at);
        event = InputEvent{};
        event.kind = InputKind::MessageBoxAnswer;
        event.answer = pending_->answer;
        pending_.reset();
        return WaitResult::Input;
    }
    const auto queued = [this, &event] {
        if (inputs_.empty()) return false;
        event = inputs_.front();
        inputs_.pop_front();
        return true;
    };
    if (queued()) return WaitResult::Input;
    if (pollOnly || deadline <= now_) return WaitResult::Timeout;
    for (;;) {
        if (queued()) return WaitResult::Input;
        if (advanceUntil_) {
            if (now_ < *advanceUntil_ && deadline <= *advanceUntil_) {
                now_ = deadline;
                return WaitResult::Timeout;
            }
            now_ = std::max(now_, *advanceUntil_);
            advanceUntil_.reset();
        }
        if (!source_) throw StopRun{};
        Step step = source_();
        switch (step.kind) {
            case Step::Kind::Input: event = step.event; return WaitResult::Input;
            case Step::Kind::Advance: advanceUntil_ = now_ + step.ms; break;
            case Step::Kind::Quit: throw StopRun{};
        }
    }
}

void HeadlessPlatform::openMessageBox(const MessageBox& box) {
    boxes_.push_back(box);
    PendingAnswer answer{MsgAnswer::OK, now_};
    std::function<void()> onOpen;
    if (!answers_.empty()) {
        const QueuedAnswer& queued = answers_.front();
        onOpen = queued.onOpen;
        answer.answer = queued.answer;
        if (queued.place != Place::Named) {
            const bool first = queued.place == Place::First;
            switch (box.buttons) {
                case MsgButtons::OK: answer.answer = MsgAnswer::OK; break;
                case MsgButtons::OKCancel: answer.answer = first ? MsgAnswer::OK : MsgAnswer::Cancel; break;
                case MsgButtons::YesNo: answer.answer = first ? MsgAnswer::Yes : MsgAnswer::No; break;
            }
        }
        answer.at = now_ + answers_.front().afterMs;
        answers_.pop_front();
    } else if (box.buttons != MsgButtons::OK) {
        answer.answer = box.buttons == MsgButtons::YesNo ? MsgAnswer::No : MsgAnswer::Cancel;
        if (report_) report_("message box \"" + box.text + "\" found no answer");
    }
    pending_ = answer;
    if (onOpen) onOpen();
}

int HeadlessPlatform::textWidth(const std::string& text, double fontSize, bool) {
    double width = 0;
    for (char c : text) width += c == ' ' ? fontSize * 5.5 : fontSize * 11;
    return static_cast<int>(std::lround(width));
}

Platform::WebResult HeadlessPlatform::openWebPage(const std::string& url) {
    webPages_.push_back(url);
    return webResult_;
}

}  // namespace ch
