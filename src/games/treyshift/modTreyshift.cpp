// SPDX-License-Identifier: GPL-3.0-or-later
// Treyshift's rules as plain functions: column scoring, the deck stack, the
// end of a round and whether the scoring is custom.
#include "games/treyshift/modTreyshift.h"

#include "window/basic.h"

namespace ch::treyshift {

bool IsCustomScoring(const ScoringValues& v, int32_t timeBonus) {
    return !(v.DeckValue == kDefaults.DeckValue && timeBonus == kDefaultTimeBonus &&
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
        case ColumnKind::Trip: return {values.TripValue, 0, "\\TwentyOne.wav"};
        case ColumnKind::Run: return {values.RunValue, 0, "\\TwentyOne.wav"};
        case ColumnKind::FlushRun: return {values.RunValue, values.FlushValue, "\\HighScore.wav"};
        case ColumnKind::None: break;
    }
    return {0, 0, ""};
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

}  // namespace ch::treyshift
