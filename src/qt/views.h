// SPDX-License-Identifier: GPL-3.0-or-later
// The views of the controls: one Qt widget per control of a form, each
// showing the control's properties from a snapshot and sending the player's
// input back through the window it lies on. Labels, images, shapes, lines,
// frames, the picture surface and the status bar are painted by our own
// code; buttons, text boxes, check and option buttons, progress bars and
// lists are the desktop's native widgets. The form window that holds them
// is in renderer.cpp.
#pragma once

#include <QColor>
#include <QRect>
#include <QString>
#include <cstdint>
#include <string>

#include "window/snapshot.h"
#include "window/platform.h"

class QWidget;

namespace ch {

// Twips to logical pixels at 15 to one; Qt's pixel ratio does the rest.
inline int Px(int twips) { return static_cast<int>(twips >= 0 ? (twips + 7) / 15 : -((-twips + 7) / 15)); }

inline QColor Rgb(int bgr) { return QColor(bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF); }
inline QString Q(const std::string& s) { return QString::fromStdString(s); }

// The window a view lies on: where its input goes.
class ViewHost {
public:
    virtual ~ViewHost() = default;
    virtual void send(InputEvent event) const = 0;
};

class View {
public:
    View(ViewHost& owner, const ControlSnap& s) : owner_(&owner), snap_(s) { snap_.revision = ~uint64_t{0}; }
    virtual ~View() = default;
    View(const View&) = delete;
    View& operator=(const View&) = delete;

    virtual QWidget* widget() = 0;
    // Shows the control's kind-specific properties.
    virtual void show(const ControlSnap& s) = 0;

    const ControlSnap& snap() const { return snap_; }
    void setSnap(const ControlSnap& s) { snap_ = s; }
    void send(InputKind kind, int value = 0, const std::string& text = {}, int key = 0) const;
    // The cursor last set on the widget, as the form window keys it (-1: none yet).
    int64_t appliedCursor() const { return appliedCursor_; }
    void setAppliedCursor(int64_t key) { appliedCursor_ = key; }

protected:
    ViewHost* owner_;
    ControlSnap snap_;
    int64_t appliedCursor_ = -1;
};

// The view of a control; null for the kinds that show nothing (timers, menus).
View* CreateView(ViewHost& owner, const ControlSnap& s, QWidget* parent);
// The box a line control takes, in pixels.
QRect LineViewBox(const ControlSnap& s);

}  // namespace ch
