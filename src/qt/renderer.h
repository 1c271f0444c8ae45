// SPDX-License-Identifier: GPL-3.0-or-later
// The Qt side of the windows: one top-level widget per loaded form, one child
// widget per control, rebuilt from each snapshot the logic hands over. Input
// goes back to the logic as InputEvents through `sink`; the renderer never
// changes what it shows on its own, except where a native widget does so
// before the logic answers (a typed text).
#pragma once

#include <QObject>
#include <QPointer>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include "window/snapshot.h"
#include "qt/views.h"
#include "window/platform.h"

class QWidget;

namespace ch {

class FormWindow;

// The frame around a form's client area, in pixels, as the form's outer size
// counts it: borders, title bar and, where there is one, the menu bar.
struct FrameMetrics {
    static constexpr int kBorder = 4;
    static constexpr int kTitle = 19;
    static constexpr int kMenu = 19;
};

class Renderer : public QObject {
public:
    using Sink = std::function<void(const InputEvent&)>;

    explicit Renderer(Sink sink, QObject* parent = nullptr);
    ~Renderer() override;

    // Qt thread: shows a snapshot.
    void apply(const std::shared_ptr<const Snapshot>& snapshot);
    // Qt thread: opens a message box; its answer goes to the sink.
    void openMessageBox(const MessageBox& box);

    // The windows shown now, by form name (for screenshots).
    std::map<std::string, QWidget*> visibleWindows() const;
    bool anyShown() const { return shownOnce_; }
    // Called once the first window has been painted.
    void setFirstPaintHook(std::function<void()> hook) { firstPaint_ = std::move(hook); }
    void firstPainted();

    void send(const InputEvent& event) const { sink_(event); }

private:
    Sink sink_;
    std::map<std::string, std::unique_ptr<FormWindow>> windows_;
    bool shownOnce_ = false;
    std::function<void()> firstPaint_;
};

}  // namespace ch
