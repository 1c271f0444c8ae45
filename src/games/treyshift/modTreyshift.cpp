// SPDX-License-Identifier: GPL-3.0-or-later
// Treyshift's rules as plain functions: column scoring, the deck stack, the
// end of a round and the checks of the custom scoring dialog.
#include "games/treyshift/modTreyshift.h"

#include <cmath>

#include "window/basic.h"

namespace ch::treyshift {

bool IsCustomScoring(const ScoringValues& v) {
    return !(v.DeckValue == kDefaults.DeckValue && v.TimeBonus == kDefaults.TimeBonus &&
             v.TripValue == kDefaults.TripValue && v.RunValue == kDefaults.RunValue &&
             v.FlushValue == kDefaults.FlushValue && v.BonusScore == kDefaults.BonusScore &&
             v.PenaltyValue == kDefaults.PenaltyValue);
}

bool IsTrip(int top, int middle, int bottom) { return middle == top && bottom == top; }

bool IsRun(int a, int b, int d) {
    const bool ascending = b == a + 1 && d == a + 2;
    const bool descending = b == a - 1 && d == a - 2;
    const bool aceKingQueen = a == 1 && b == 13 && d == 12;
    const bool queenKingAce = a == 12 && b == 13 && d == 1;
    return ascending || descending || aceKingQueen || queenKingAce;
}

namespace {
std::string SuitLetter(const std::string& code) { return code.empty() ? code : code.substr(code.size() - 1); }
}  // namespace

bool IsFlush(const std::string& top, const std::string& middle, const std::string& bottom) {
    return SuitLetter(top) == SuitLetter(middle) && SuitLetter(middle) == SuitLetter(bottom);
}

ColumnKind ScoreColumn(const std::string& top, const std::string& middle, const std::string& bottom) {
    const int a = static_cast<int>(Val(top));
    const int b = static_cast<int>(Val(middle));
    const int d = static_cast<int>(Val(bottom));
    if (IsTrip(a, b, d)) return ColumnKind::Trip;
    if (!IsRun(a, b, d)) return ColumnKind::None;
    return IsFlush(top, middle, bottom) ? ColumnKind::FlushRun : ColumnKind::Run;
}

ColumnAward AwardFor(ColumnKind kind, const ScoringValues& values) {
    switch (kind) {
        case ColumnKind::Trip: return {values.TripValue, "\\TwentyOne.wav"};
        case ColumnKind::Run: return {values.RunValue, "\\TwentyOne.wav"};
        case ColumnKind::FlushRun:
            return {static_cast<long long>(values.FlushValue) + values.RunValue, "\\HighScore.wav"};
        case ColumnKind::None: break;
    }
    return {0, ""};
}

const char* StackKey(int deckPosition) {
    if (deckPosition < 20) return "FULL";
    if (deckPosition <= 35) return "HALF";
    if (deckPosition <= 51) return "BACK";
    return "EMPTY";
}

std::string CardsRemainingText(int deckPosition) { return "Cards remaining: " + NumText(55 - deckPosition); }

std::string PenaltyText(int32_t penalty) {
    std::string text(1, '-');
    text += NumText(penalty);
    return text;
}

bool GameEndsAfter(int round, long long score, long long bonusScore) {
    return round >= 2 && !(round == 2 && score >= bonusScore);
}

std::string PrepareText(int nextRound) {
    return nextRound == 3 ? "Prepare For Bonus Round" : "Prepare For Round " + NumText(nextRound);
}

const std::array<ScoringFieldSpec, 7> kScoringFields = {{
    {ScoringField::Trip, "txtTripValue", "lblTripValue", "Three of a kind bonus:", 0, 20000,
     "Sorry, the minimum value for a Triple is 0.", "Sorry, the maximum value for a Triple is 20000"},
    {ScoringField::Run, "txtRunValue", "lblRunValue", "Run Bonus:", 0, 20000,
     "Sorry, the minimum value for a Run is 0.", "Sorry, the maximum value for a Run is 20000"},
    {ScoringField::Deck, "txtDeckValue", "lblDeckValue", "Deck Completion Bonus:", 0, 100000,
     "Sorry, the minimum value for for completing the Deck is 0.",
     "Sorry, the maximum value for completing the Deck is 100000"},
    {ScoringField::Flush, "txtFlushValue", "lblFlushValue", "Flush Bonus:", 0, 20000,
     "Sorry, the minimum value for the Flush Bonus is 0.", "Sorry, the maximum value for the Flush Bonus is 20000"},
    {ScoringField::BonusRound, "txtBonusRound", "lblBonusRound", "Score Required for Bonus Round:", 0, 1000000,
     "Sorry, the minimum value for obtaining the Bonus Round is 0.",
     "Sorry, the maximum value for obtaining the Bonus Round is 1000000"},
    {ScoringField::Penalty, "txtPenaltyValue", "lblPenaltyValue", "Penalty for left-over cards:", -20000, 0,
     "Sorry, the minimum penalty for left over cards is -20000", "Sorry, the maximum penalty for left over cards is 0."},
    {ScoringField::TimeBonus, "txtTimeBonus", "lblTimeBonus", "Time Bonus (points per second)", 0, 5000,
     "Sorry, you cannot set the Time Bonus value to less than 0 points.",
     "Sorry, you cannot set the Time Bonus value to greater than 5000 points"},
}};

FieldCheck CheckScoringField(const ScoringFieldSpec& spec, const std::string& text) {
    const double value = Val(text);
    if (value < static_cast<double>(spec.low))
        return {false, static_cast<int32_t>(spec.low), spec.belowMessage, NumText(spec.low)};
    if (value > static_cast<double>(spec.high))
        return {false, static_cast<int32_t>(spec.high), spec.aboveMessage, NumText(spec.high)};
    const double kept = spec.field == ScoringField::Penalty ? std::fabs(value) : value;
    return {true, CLng(kept), nullptr, text};
}

}  // namespace ch::treyshift
