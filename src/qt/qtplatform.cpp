// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/qtplatform.h"

#include <QDateTime>
#include <QDesktopServices>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QMetaObject>
#include <QScreen>
#include <QUrl>
#include <cmath>
#include <thread>

#include "qt/browser.h"
#include "qt/fonts.h"
#include "qt/renderer.h"
#include "qt/sound.h"
#include "window/runtime.h"

namespace ch {

QtPlatform::QtPlatform(Renderer& renderer, SoundSystem& sound)
    : renderer_(renderer), sound_(sound), start_(std::chrono::steady_clock::now()) {
    if (QScreen* screen = QGuiApplication::primaryScreen()) {
        screenWidth_ = screen->geometry().width() * 15;
        screenHeight_ = screen->geometry().height() * 15;
    }
}

QtPlatform::~QtPlatform() = default;

void QtPlatform::toQt(std::function<void()> fn) {
    QMetaObject::invokeMethod(&renderer_, std::move(fn), Qt::QueuedConnection);
}

void QtPlatform::post(const InputEvent& event) {
    {
        std::lock_guard<std::mutex> lock(mutex_);
        // Mouse moves over one control while the logic is busy count once.
        if (event.kind == InputKind::MouseMove && !queue_.empty()) {
            const InputEvent& last = queue_.back();
            if (last.kind == InputKind::MouseMove && last.form == event.form && last.control == event.control &&
                last.index == event.index)
                return;
        }
        queue_.push_back(event);
    }
    cv_.notify_one();
}

void QtPlatform::requestStop() {
    {
        std::lock_guard<std::mutex> lock(mutex_);
        stop_ = true;
    }
    cv_.notify_one();
}

int64_t QtPlatform::now() {
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start_).count();
}

void QtPlatform::sleep(int ms) {
    // Blocks the logic only: the windows keep answering the desktop, and what
    // the user does meanwhile waits in the queue.
    std::unique_lock<std::mutex> lock(mutex_);
    cv_.wait_for(lock, std::chrono::milliseconds(ms), [this] { return stop_; });
    if (stop_) throw StopRun{};
}

int64_t QtPlatform::wallClock() {
    const QDateTime local = QDateTime::currentDateTime();
    const QDate d = local.date();
    const QTime t = local.time();
    DateTime dt;
    dt.year = d.year();
    dt.month = d.month();
    dt.day = d.day();
    dt.hour = t.hour();
    dt.minute = t.minute();
    dt.second = t.second();
    dt.millisecond = t.msec();
    return ToMillis(dt);
}

WaitResult QtPlatform::wait(InputEvent& event, int64_t deadline, bool pollOnly) {
    // The program ends when its last form has gone: no window, nothing left to serve.
    if (loadedForms_.load() == 0) throw StopRun{};
    std::unique_lock<std::mutex> lock(mutex_);
    auto ready = [this] { return stop_ || !queue_.empty(); };
    if (!pollOnly && !ready()) {
        const int64_t left = deadline - now();
        if (left > 0) {
            const auto until = start_ + std::chrono::milliseconds(std::min<int64_t>(deadline, INT64_MAX / 2));
            cv_.wait_until(lock, until, ready);
        }
    }
    if (stop_) throw StopRun{};
    if (queue_.empty()) return WaitResult::Timeout;
    event = std::move(queue_.front());
    queue_.pop_front();
    return WaitResult::Input;
}

void QtPlatform::openMessageBox(const MessageBox& box) {
    toQt([this, box] { renderer_.openMessageBox(box); });
}

void QtPlatform::present(Runtime& runtime) {
    loadedForms_.store(static_cast<int>(runtime.loadedCount()));
    if (runtime.revision() == presented_) return;
    presented_ = runtime.revision();
    std::shared_ptr<const Snapshot> snapshot = taker_.take(runtime);
    toQt([this, snapshot] { renderer_.apply(snapshot); });
    if (presentHook_) presentHook_();
}

void QtPlatform::playWave(const std::string& name) {
    const QString file = QString::fromStdString(name);
    toQt([this, file] { sound_.playWave(file); });
}

void QtPlatform::startMusic() {
    toQt([this] { sound_.startMusic(); });
}

void QtPlatform::stopMusic() {
    toQt([this] { sound_.stopMusic(); });
}

int QtPlatform::textWidth(const std::string& text, double fontSize, bool bold) {
    const std::string key = std::to_string(fontSize) + (bold ? "b" : "n") + text;
    std::lock_guard<std::mutex> lock(metricsMutex_);
    auto it = widths_.find(key);
    if (it != widths_.end()) return it->second;
    const QFontMetricsF metrics(ControlFont("MS Sans Serif", fontSize, bold));
    const int twips = static_cast<int>(std::lround(metrics.horizontalAdvance(QString::fromStdString(text)) * 15));
    if (widths_.size() > 4096) widths_.clear();
    widths_[key] = twips;
    return twips;
}

// The browser is looked for first; a browser found that does not take the
// page is a failure of its own.
Platform::WebResult QtPlatform::openWebPage(const std::string& url) {
    WebResult result = WebResult::NoBrowser;
    QMetaObject::invokeMethod(
        &renderer_,
        [&result, url] {
            if (DefaultBrowser(url).empty()) return;
            result = QDesktopServices::openUrl(QUrl(QString::fromStdString(url))) ? WebResult::Opened : WebResult::Failed;
        },
        Qt::BlockingQueuedConnection);
    return result;
}

}  // namespace ch
