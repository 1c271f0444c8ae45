// Placing labels by the width of their text: a label that takes the width of
// its caption, and a label centred in a box of the board. Text widths come
// from the platform, so that what the logic centres is centred on screen.
#pragma once

namespace ch {

class Control;
class Form;

// The label's width becomes that of its caption in its font, plus a margin.
void FitLabelToText(Control& label);

// The label takes the width of its caption (no wider than the box when
// `keepInside`) and stands in the middle of the box across.
void CentreLabelIn(Form& window, const char* label, const char* box, bool keepInside = true);

}  // namespace ch
