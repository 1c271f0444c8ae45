// SPDX-License-Identifier: GPL-3.0-or-later
// What the windows show, copied on the logic thread where the model would
// repaint and handed to a renderer (the desktop's Qt thread, the browser
// page), which never reads the model. A snapshot carries only what changed
// since the one before it: a form the renderer already has comes with its
// name and instance alone when nothing of it changed, and otherwise with
// those of its controls whose revision moved. A renderer applies every
// snapshot, in order, and keeps what it was given.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "window/control.h"

namespace ch {

class Form;
class Runtime;

struct ControlSnap {
    ControlKind kind = ControlKind::Label;
    std::string name;
    int index = -1;
    std::string container;
    int order = 0;  // position in the form's list of controls
    uint64_t revision = 0;

    std::string text;
    bool visible = true;
    bool enabled = true;
    int foreColor = 0, backColor = 0, borderColor = 0, borderStyle = 0, fillColor = 0, backStyle = 1;
    int picture = 0;
    int left = 0, top = 0, width = 0, height = 0;
    std::string toolTip;
    bool checked = false;
    int value = 0, minValue = 0, maxValue = 100;
    std::string fontName;
    double fontSize = 8.25;
    bool fontBold = false;
    int alignment = 0;
    int mousePointer = 0, mouseIcon = 0;
    int z = 0;
    bool isDefault = false, isCancel = false;
    std::array<std::string, 3> panels;
    std::vector<DrawItem> drawing;
    std::vector<std::string> items;
    int selStart = 0, selLength = 0;
    uint64_t selectionSerial = 0;

    std::string key() const { return index < 0 ? name : name + "(" + std::to_string(index) + ")"; }
};

struct FormSnap {
    std::string name;
    uint64_t instance = 0;  // a new number each time the form is loaded anew
    // False when nothing of the form changed: the fields below are not set.
    bool changed = true;
    std::string caption;
    int left = 0, top = 0, width = 0, height = 0;
    int windowState = 0;
    int mousePointer = 0, mouseIcon = 0;
    int backColor = 0xC0C0C0;
    bool visible = false, enabled = true, modal = false;
    std::string focus;  // key of the control the logic gave the focus
    uint64_t focusSerial = 0;
    // The controls changed since the last snapshot, in the form's order;
    // every control the first time the form's instance is sent. Timers are
    // never sent: nothing shows them.
    std::vector<ControlSnap> controls;
};

struct Snapshot {
    std::vector<FormSnap> forms;  // every loaded form, in load order
};

// Takes the snapshots of one renderer. It remembers each live form's
// instance number, its last header and the revision of each control sent;
// forms no longer loaded are forgotten.
class SnapshotTaker {
public:
    SnapshotTaker();
    ~SnapshotTaker();
    SnapshotTaker(const SnapshotTaker&) = delete;
    SnapshotTaker& operator=(const SnapshotTaker&) = delete;

    std::shared_ptr<const Snapshot> take(const Runtime& runtime);

private:
    struct Sent;
    std::vector<std::unique_ptr<Sent>> sent_;  // in load order
    uint64_t nextInstance_ = 1;
};

}  // namespace ch
