// Small steps that every game window takes the same way, kept here once:
// the size check at the start of Form_Resize and the Clear High Scores entry.
#pragma once

#include <string>

namespace ch {

class Form;

// The first steps of Form_Resize: nothing to place while minimised; a normal
// window smaller than its design size is set back to it (the resize that
// follows places the board). True when the board is to be placed now.
bool ResizeToPlace(Form& window, int designWidth, int designHeight);

// mnuClear: after a Yes to "This will clear all High Scores. Are You Sure?"
// the table of the current limit gets its ten default lines and the high
// score label shows its leader.
void ClearHighScores(Form& window, const std::string& tableName, const std::string& defaultScore);

}  // namespace ch
