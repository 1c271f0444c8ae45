// SPDX-License-Identifier: GPL-3.0-or-later
// OK's check of a custom scoring dialog's number boxes, from the game's table.
#include "suite/scoringdialog.h"

#include <cmath>
#include <cstdio>

#include "suite/common.h"
#include "window/basic.h"
#include "window/form.h"

namespace ch {

namespace {

// A box that failed: its message, the box that shows `shown` and takes the
// focus, the value stored (none: the value is left as it was), and the order
// of its steps when the field gives one.
struct Failure {
    const char* message;
    const char* box;
    double shown;
    std::optional<double> stored;
    std::optional<FailureOrder> order = {};
};

std::optional<Failure> Check(const Form& dialog, const ScoringField& f, double number) {
    if (f.above && number <= Val(dialog.c(f.above).text()))
        return Failure{f.aboveMessage, f.box, Val(dialog.c(f.above).text()) + 1, std::nullopt};
    if (f.below && number >= Val(dialog.c(f.below).text()))
        return Failure{f.belowMessage, f.box, Val(dialog.c(f.below).text()) - 1, std::nullopt};
    std::optional<Failure> failure;
    if (number < f.lowest || (f.lowestFails && number <= f.lowest))
        failure = Failure{f.lowMessage, f.lowBox ? f.lowBox : f.box, f.lowShown.value_or(f.lowest),
                          f.lowStored.value_or(f.lowest)};
    else if (number > f.highest)
        failure = Failure{f.highMessage ? f.highMessage : f.lowMessage, f.box, f.highShown.value_or(f.highest),
                          f.highStored.value_or(f.highest), f.highOrder};
    if (failure && f.keepsValueOnFailure) failure->stored.reset();
    return failure;
}

}  // namespace

std::string ScoringNumberText(double number) {
    if (number == std::floor(number) && std::fabs(number) < 1e15) return NumText(static_cast<long long>(number));
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.15g", number);
    return buffer;
}

ScoringField PassesField() {
    return {.box = "txtNumberOfCardsToPass", .lowest = 0, .highest = 10,
            .lowMessage = "Sorry, you cannot pass fewer than 0 cards.",
            .highMessage = "Sorry, you cannot pass more than 10 cards."};
}

ScoringField WaitField(double most, const char* highMessage) {
    return {.box = "txtWaitPeriod", .lowest = 0, .highest = most,
            .lowMessage = "Sorry, a minimum of 0 seconds is required for the waiting period between rounds.",
            .highMessage = highMessage, .highStored = most * 1000,
            .value = [](double seconds) -> long long { return CLng(seconds * 1000); }};
}

void ShowScoringTexts(Form& dialog, std::span<const ScoringField> fields, const std::vector<std::string>& texts) {
    for (size_t i = 0; i < fields.size() && i < texts.size(); ++i) dialog.c(fields[i].box).setText(texts[i]);
}

bool CheckScoringFields(Form& dialog, std::span<const ScoringField> fields, const ScoringPolicy& policy,
                        const ScoringStore& store, const std::function<void()>& finish) {
    std::vector<long long> values(fields.size());
    bool allPassed = true;
    bool lastPassed = false;
    try {
        for (size_t i = 0; i < fields.size(); ++i) {
            const ScoringField& f = fields[i];
            const double number = Val(dialog.c(f.box).text());
            const std::optional<Failure> failure = Check(dialog, f, number);
            lastPassed = !failure && i + 1 == fields.size();
            if (!failure) {
                values[i] = f.value ? f.value(number) : CLng(number);
                if (policy.storeOnFailedOk) store(i, values[i], true);
                continue;
            }
            allPassed = false;
            Control& box = dialog.c(failure->box);
            for (const FailureStep step : failure->order.value_or(policy.order)) {
                switch (step) {
                    case FailureStep::Store:
                        if (policy.storeOnFailedOk && failure->stored)
                            store(i, static_cast<long long>(*failure->stored), false);
                        break;
                    case FailureStep::Show:
                        if (policy.correctsBox) box.setText(ScoringNumberText(failure->shown));
                        break;
                    case FailureStep::Message: MsgBox(failure->message, MsgButtons::OK, policy.icon, AppTitle); break;
                    case FailureStep::Focus: dialog.setFocus(box); break;
                }
            }
            if (policy.stopAtFirstError) break;
        }
        if (allPassed && !policy.storeOnFailedOk)
            for (size_t i = 0; i < fields.size(); ++i) store(i, values[i], true);
        using Finish = ScoringPolicy::Finish;
        if (policy.finish == Finish::Always || (policy.finish == Finish::WhenLastPasses && lastPassed) ||
            (policy.finish == Finish::WhenAllPass && allPassed))
            finish();
    } catch (const RuntimeError& error) {
        MsgBox(error.description(), MsgButtons::OK, MsgIcon::Exclamation, AppTitle);
        return false;
    }
    return allPassed;
}

}  // namespace ch
