// SPDX-License-Identifier: GPL-3.0-or-later
// The custom scoring dialogs' number boxes, described by a table. A game's
// dialog lists its boxes (name, label, range, messages, what a box out of
// range puts back) and its policy; OK checks them here, in table order, and
// hands each value to the game to store.
//
//   const ScoringField kFields[] = {
//       {.box = "txtPairsBonus", .lowest = 0, .highest = 32767, .lowMessage = "...", .highMessage = "..."},
//       ...};
//   if (CheckScoringFields(*this, kFields, {}, store, finish)) unload;
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "window/runtime.h"

namespace ch {

class Form;

// What a box out of range does: store its put-back value, show the put-back
// text in the box, show its message, take the focus. The order of these
// steps is what a player sees behind the modal message: the box as typed or
// already corrected.
enum class FailureStep { Store, Show, Message, Focus };
using FailureOrder = std::array<FailureStep, 4>;

struct ScoringField {
    const char* box = "";
    const char* label = nullptr;    // the label beside the box, for dialogs laid out from their table
    const char* caption = nullptr;  // that label's caption
    double lowest = 0;
    double highest = 0;
    const char* lowMessage = "";
    const char* highMessage = nullptr;  // none: lowMessage at both ends
    // Below the range the box shows and the value takes `lowest`, above it
    // `highest`, unless one of these says otherwise.
    std::optional<double> lowShown = {}, lowStored = {}, highShown = {}, highStored = {};
    bool lowestFails = false;  // the lowest itself is out of range
    // The number must be above (below) the number in this box; when it is
    // not, that is reported first, the box shows the other number plus (minus)
    // one and the value is left as it was.
    const char* above = nullptr;
    const char* aboveMessage = nullptr;
    const char* below = nullptr;
    const char* belowMessage = nullptr;
    bool keepsValueOnFailure = false;  // a failed box leaves its value as it was
    // Below the range this box, not the field's own, shows the put-back
    // value and takes the focus.
    const char* lowBox = nullptr;
    // Above the range the steps run in this order, not the policy's.
    std::optional<FailureOrder> highOrder = {};
    // The value of a number inside the range; none: the number rounded, a
    // half to the even neighbour.
    long long (*value)(double number) = nullptr;
};

struct ScoringPolicy {
    // Stop at the first box out of range; otherwise every box is checked and
    // the focus ends on the last one that failed.
    bool stopAtFirstError = false;
    // Each box's value is stored as it is checked, also when another fails;
    // otherwise nothing is stored unless every box passes.
    bool storeOnFailedOk = true;
    // A box out of range shows its put-back value; otherwise it keeps the
    // text typed.
    bool correctsBox = true;
    // The order of a failed box's steps.
    FailureOrder order = {FailureStep::Store, FailureStep::Message, FailureStep::Show, FailureStep::Focus};
    MsgIcon icon = MsgIcon::Information;
    // When the rest of OK (`finish`) runs.
    enum class Finish { Always, WhenLastPasses, WhenAllPass } finish = Finish::WhenLastPasses;
};

// Boxes two dialogs share: the cards a player may pass in a round
// (txtNumberOfCardsToPass, 0 to 10), and the seconds to wait between rounds
// (txtWaitPeriod, 0 to `most`), whose value is in milliseconds.
ScoringField PassesField();
ScoringField WaitField(double most, const char* highMessage);

// Stores a box's value; `passed` is false for a put-back value.
using ScoringStore = std::function<void(size_t field, long long value, bool passed)>;

// A number as a scoring box shows it: a whole number without a decimal part
// ("2"), a fraction as it is ("1.5").
std::string ScoringNumberText(double number);

// Fills the boxes with `texts`, one a box in table order.
void ShowScoringTexts(Form& dialog, std::span<const ScoringField> fields, const std::vector<std::string>& texts);

// OK's check. The number of a box is the one at the start of its text (0
// when there is none). A box that fails shows its message (the title
// AppTitle), its put-back text, takes the focus, and stores its put-back
// value unless the policy or the field says otherwise, in the order the
// policy (or the field, above its range) gives. A run-time error (a value
// too large for its setting) is shown with the exclamation icon and ends the
// check: the steps after it, `finish` and the closing do not follow. True
// when every box passed: the dialog may close.
bool CheckScoringFields(Form& dialog, std::span<const ScoringField> fields, const ScoringPolicy& policy,
                        const ScoringStore& store, const std::function<void()>& finish);

}  // namespace ch
