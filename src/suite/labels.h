// SPDX-License-Identifier: GPL-3.0-or-later
// Placing labels by the width of their text: a label that takes the width of
// its caption, and a label centred in a box of the board. Text widths come
// from the platform, so that what the logic centres is centred on screen.
#pragma once

#include <array>
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

// A boxed value as every game window shows its counters: the caption above,
// the rectangle, the value inside it, and the bevel lines at its right and
// bottom edges.
struct ValueBoxNames {
    const char* caption;    // "lblTrips"
    const char* rectangle;  // "TripsRectangle"
    const char* value;      // "lblScoreTrips"
    const char* side;       // "TripsBevelSide"
    const char* bottom;     // "TripsBevelBottom"
};
// The five controls of a box `width` wide whose caption stands at `top`.
std::array<ControlSpec, 5> ValueBox(const ValueBoxNames& names, int left, int top, int width, const char* caption);

// Adds a part of a layout to the whole.
void AppendControls(std::vector<ControlSpec>& layout, std::span<const ControlSpec> part);

}  // namespace ch
