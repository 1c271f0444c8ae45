// SPDX-License-Identifier: GPL-3.0-or-later
// The desktop platform. The logic runs on its own thread and sees this class
// through ch::Platform; the Qt thread owns every widget and sound object. The
// two meet only here: input events go one way through a queue, snapshots of
// the model and sound requests the other way as queued calls.
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>

#include "window/snapshot.h"
#include "window/platform.h"

class QObject;

namespace ch {

class Renderer;
class SoundSystem;

class QtPlatform : public Platform {
public:
    // Created on the Qt thread, after the QApplication.
    QtPlatform(Renderer& renderer, SoundSystem& sound);
    ~QtPlatform() override;

    // Qt thread: a user's input for the logic.
    void post(const InputEvent& event);
    // Qt thread: the program is closing; the logic stops at its next wait.
    void requestStop();
    // Number of loaded forms at the last present (the program ends at none).
    int loadedForms() const { return loadedForms_.load(); }
    // Called on the logic thread after each snapshot is handed over.
    void setPresentHook(std::function<void()> hook) { presentHook_ = std::move(hook); }

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
    int screenWidth() override { return screenWidth_; }
    int screenHeight() override { return screenHeight_; }
    WebResult openWebPage(const std::string& url) override;

private:
    // Runs `fn` on the Qt thread, without waiting.
    void toQt(std::function<void()> fn);

    Renderer& renderer_;
    SoundSystem& sound_;
    std::chrono::steady_clock::time_point start_;
    std::mutex mutex_;
    std::condition_variable cv_;
    std::deque<InputEvent> queue_;
    bool stop_ = false;
    uint64_t presented_ = ~uint64_t{0};
    SnapshotTaker taker_;
    std::atomic<int> loadedForms_{1};
    int screenWidth_ = 1024 * 15;
    int screenHeight_ = 768 * 15;
    std::mutex metricsMutex_;
    std::map<std::string, int> widths_;
    std::function<void()> presentHook_;
};

}  // namespace ch
