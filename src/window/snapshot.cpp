// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/snapshot.h"

#include <algorithm>
#include <limits>

#include "window/form.h"
#include "window/runtime.h"

namespace ch {

namespace {

constexpr uint64_t kNeverSent = std::numeric_limits<uint64_t>::max();

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

void CopyHeader(const Form& form, FormSnap& f) {
    f.name = form.name();
    f.caption = form.caption();
    f.left = form.left();
    f.top = form.top();
    f.width = form.width();
    f.height = form.height();
    f.windowState = form.windowState();
    f.mousePointer = form.mousePointer();
    f.mouseIcon = form.mouseIcon();
    f.backColor = form.backColor();
    f.visible = form.visible();
    f.enabled = form.enabled();
    f.modal = form.modal();
    if (const Control* focus = form.focusControl()) f.focus = focus->displayName();
    f.focusSerial = form.focusSerial();
}

bool SameHeader(const FormSnap& a, const FormSnap& b) {
    return a.caption == b.caption && a.left == b.left && a.top == b.top && a.width == b.width &&
           a.height == b.height && a.windowState == b.windowState && a.mousePointer == b.mousePointer &&
           a.mouseIcon == b.mouseIcon && a.backColor == b.backColor && a.visible == b.visible &&
           a.enabled == b.enabled && a.modal == b.modal && a.focus == b.focus && a.focusSerial == b.focusSerial;
}

}  // namespace

struct SnapshotTaker::Sent {
    const Form* form = nullptr;
    uint64_t serial = 0;
    uint64_t instance = 0;
    bool sentOnce = false;
    FormSnap header;                 // as last sent, without controls
    std::vector<uint64_t> revisions;  // per entry of the form's controls, as last sent
};

SnapshotTaker::SnapshotTaker() = default;
SnapshotTaker::~SnapshotTaker() = default;

std::shared_ptr<const Snapshot> SnapshotTaker::take(const Runtime& runtime) {
    auto snap = std::make_shared<Snapshot>();
    std::vector<std::unique_ptr<Sent>> live;
    for (const Form* form : runtime.loadedForms()) {
        auto known = std::find_if(sent_.begin(), sent_.end(), [form](const auto& s) { return s && s->form == form && s->serial == form->serial(); });
        std::unique_ptr<Sent> sent;
        if (known != sent_.end()) {
            sent = std::move(*known);
        } else {
            sent = std::make_unique<Sent>();
            sent->form = form;
            sent->serial = form->serial();
            sent->instance = nextInstance_++;
        }
        const bool fresh = !sent->sentOnce;
        sent->sentOnce = true;
        FormSnap f;
        f.instance = sent->instance;
        CopyHeader(*form, f);
        const auto& controls = form->controls();
        if (sent->revisions.size() < controls.size()) sent->revisions.resize(controls.size(), kNeverSent);
        int order = 0;
        for (size_t i = 0; i < controls.size(); ++i) {
            const Control& control = *controls[i];
            if (control.kind() == ControlKind::Timer) continue;
            if (control.revision() != sent->revisions[i]) {
                f.controls.push_back(Copy(control, order));
                sent->revisions[i] = control.revision();
            }
            ++order;
        }
        if (!fresh && f.controls.empty() && SameHeader(f, sent->header)) {
            FormSnap same;
            same.name = f.name;
            same.instance = f.instance;
            same.changed = false;
            snap->forms.push_back(std::move(same));
        } else {
            sent->header = f;
            sent->header.controls.clear();
            snap->forms.push_back(std::move(f));
        }
        live.push_back(std::move(sent));
    }
    sent_ = std::move(live);
    return snap;
}

}  // namespace ch
