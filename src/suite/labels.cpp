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

void AppendControls(std::vector<ControlSpec>& layout, std::span<const ControlSpec> part) {
    layout.insert(layout.end(), part.begin(), part.end());
}

}  // namespace ch
