// SPDX-License-Identifier: GPL-3.0-or-later
// Placing labels by the width of their text: a label that takes the width of
// its caption, and a label centred in a box of the board. Text widths come
// from the platform, so that what the logic centres is centred on screen.
#pragma once

#include <span>
#include <vector>

#include "window/control.h"

namespace ch {

class Control;
class Form;

// The label's width becomes that of its caption in its font, plus a margin.
void FitLabelToText(Control& label);

// The label takes the width of its caption (no wider than the box when
// `keepInside`) and stands in the middle of the box across.
void CentreLabelIn(Form& window, const char* label, const char* box, bool keepInside = true);

// Adds a part of a layout to the whole.
void AppendControls(std::vector<ControlSpec>& layout, std::span<const ControlSpec> part);

}  // namespace ch
