// SPDX-License-Identifier: GPL-3.0-or-later
// The check of one number box of a custom scoring dialog, as the dialogs
// that keep their limits per box make it on OK. Each box is checked in turn,
// and a failure in one does not stop the next:
//
//   bool failed = false;
//   const ScoringCheck pairs = CheckScoringBox(*this, kPairs, failed);
//   game.PairsBonus = static_cast<int32_t>(pairs.value);
//   ...
//   if (!failed) unload;
//
// The setting takes the value at once, also when the check fails, so that a
// failed OK followed by Cancel leaves it in force.
#pragma once

namespace ch {

class Form;

struct ScoringBoxRule {
    const char* box;          // "txtPairsBonus"
    long long lowest;         // 0
    long long highest;        // 32767
    const char* lowMessage;   // shown when the number is below `lowest`
    const char* highMessage;  // shown when it is above `highest`
};

struct ScoringCheck {
    enum class Outcome { Passed, TooLow, TooHigh } outcome = Outcome::Passed;
    long long value = 0;  // what the setting takes
};

// V is the number at the start of the box's text (0 when there is none).
// Below the lowest: the value is the lowest, the low message shows (the
// information icon, the title AppTitle), the box reads the lowest, takes the
// focus and `failed` is set. Above the highest: the same with the highest.
// Otherwise the value is V rounded, a half to the even neighbour.
ScoringCheck CheckScoringBox(Form& dialog, const ScoringBoxRule& rule, bool& failed);

}  // namespace ch
