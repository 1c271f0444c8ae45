// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/snapshot.h"

#include "window/form.h"
#include "window/runtime.h"

namespace ch {

namespace {
ControlSnap Copy(const Control& c, int order) {
    ControlSnap s;
    s.kind = c.kind();
    s.name = c.name();
    s.index = c.index();
    s.container = c.container();
    s.order = order;
    s.revision = c.revision();
    s.text = c.text();
    s.visible = c.visible();
    s.enabled = c.enabled();
    s.foreColor = c.foreColor();
    s.backColor = c.backColor();
    s.borderColor = c.borderColor();
    s.borderStyle = c.borderStyle();
    s.fillColor = c.fillColor();
    s.backStyle = c.backStyle();
    s.selStart = c.selStart();
    s.selLength = c.selLength();
    s.selectionSerial = c.selectionSerial();
    s.picture = c.picture();
    s.left = c.left();
    s.top = c.top();
    s.width = c.width();
    s.height = c.height();
    s.toolTip = c.toolTipText();
    s.checked = c.checked();
    s.value = c.value();
    s.minValue = c.minValue();
    s.maxValue = c.maxValue();
    s.fontName = c.fontName();
    s.fontSize = c.fontSize();
    s.fontBold = c.fontBold();
    s.alignment = c.alignment();
    s.mousePointer = c.mousePointer();
    s.mouseIcon = c.mouseIcon();
    s.z = c.zOrder();
    s.isDefault = c.isDefault();
    s.isCancel = c.isCancel();
    for (int i = 1; i <= 3; ++i) s.panels[static_cast<size_t>(i - 1)] = c.panel(i);
    s.drawing = c.drawing();
    s.items = c.items();
    return s;
}
}  // namespace

std::shared_ptr<const Snapshot> SnapshotTaker::take(const Runtime& runtime) {
    auto snap = std::make_shared<Snapshot>();
    std::map<const void*, uint64_t> live;
    for (const Form* form : runtime.loadedForms()) {
        FormSnap f;
        auto it = instances_.find(form);
        f.instance = it != instances_.end() ? it->second : nextInstance_++;
        live[form] = f.instance;
        f.name = form->name();
        f.caption = form->caption();
        f.left = form->left();
        f.top = form->top();
        f.width = form->width();
        f.height = form->height();
        f.windowState = form->windowState();
        f.mousePointer = form->mousePointer();
        f.mouseIcon = form->mouseIcon();
        f.backColor = form->backColor();
        f.visible = form->visible();
        f.enabled = form->enabled();
        f.modal = form->modal();
        if (const Control* focus = form->focusControl()) f.focus = focus->displayName();
        f.focusSerial = form->focusSerial();
        int order = 0;
        for (const auto& control : form->controls()) {
            if (control->kind() == ControlKind::Timer) continue;
            f.controls.push_back(Copy(*control, order++));
        }
        snap->forms.push_back(std::move(f));
    }
    instances_ = std::move(live);
    return snap;
}

}  // namespace ch
