// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/labels.h"

#include <algorithm>

#include "window/form.h"
#include "window/runtime.h"

namespace ch {

namespace {
constexpr int kMargin = 30;

int TextWidth(const Control& label) {
    return label.form().runtime().platform().textWidth(label.caption(), label.fontSize(), label.fontBold()) + kMargin;
}
}  // namespace

void FitLabelToText(Control& label) { label.setWidth(TextWidth(label)); }

void CentreLabelIn(Form& window, const char* label, const char* box, bool keepInside) {
    Control& text = window.c(label);
    const Control& frame = window.c(box);
    const int width = keepInside ? std::min(frame.width(), TextWidth(text)) : TextWidth(text);
    text.setWidth(width);
    text.setLeft(frame.left() + (frame.width() - width) / 2);
}

std::array<ControlSpec, 5> ValueBox(const ValueBoxNames& n, int left, int top, int width, const char* caption) {
    using K = ControlKind;
    const int box = top + 270;
    return {{
        {K::Label, n.caption, -1, left, top, width, 255, caption},
        {K::Shape, n.rectangle, -1, left, box, width, 375},
        {K::Label, n.value, -1, left + 45, box + 60, width - 90, 255, "0"},
        {K::Line, n.side, -1, left + width + 15, box + 15, 0, 375},
        {K::Line, n.bottom, -1, left + 15, box + 390, width, 0},
    }};
}

void AppendControls(std::vector<ControlSpec>& layout, std::span<const ControlSpec> part) {
    layout.insert(layout.end(), part.begin(), part.end());
}

}  // namespace ch
