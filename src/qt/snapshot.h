// SPDX-License-Identifier: GPL-3.0-or-later
// A copy of what the windows show, taken on the logic thread where the model
// would repaint and handed to the Qt thread, which never reads the model.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "window/control.h"

namespace ch {

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
    std::string caption;
    int left = 0, top = 0, width = 0, height = 0;
    int windowState = 0;
    int mousePointer = 0, mouseIcon = 0;
    int backColor = 0xC0C0C0;
    bool visible = false, enabled = true, modal = false;
    std::string focus;  // key of the control the logic gave the focus
    uint64_t focusSerial = 0;
    std::vector<ControlSnap> controls;
};

struct Snapshot {
    std::vector<FormSnap> forms;  // loaded forms, in load order
};

// Takes the state of every loaded form. `instances` keeps the number given to
// each live form between calls; forms no longer loaded are dropped from it.
class SnapshotTaker {
public:
    std::shared_ptr<const Snapshot> take(const Runtime& runtime);

private:
    std::map<const void*, uint64_t> instances_;
    uint64_t nextInstance_ = 1;
};

}  // namespace ch
