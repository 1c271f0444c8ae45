// SPDX-License-Identifier: GPL-3.0-or-later
// Duopick's rules as data and arithmetic: the card places and the covering
// table, pairs and runs, the stack's stages, and the awards of a round.
#include "games/duopick/modDuopick.h"

namespace ch::duopick {

const std::array<CardPlace, kFieldCards + 1> kPlaces = {{
    {1620, 540}, {2775, 540}, {3915, 540}, {5070, 540}, {6225, 540},
    {2190, 990}, {3345, 990}, {4485, 990}, {5640, 990},
    {1605, 1395}, {2760, 1395}, {3900, 1395}, {5055, 1395}, {6210, 1395},
    {2160, 1935}, {3315, 1935}, {4455, 1935}, {5610, 1935},
    {1575, 2340}, {2730, 2340}, {3870, 2340}, {5025, 2340}, {6180, 2340},
    {3150, 4260},
}};

const std::array<std::array<int, 2>, kFieldCards> kCoveredBy = {{
    {5, 9}, {5, 6}, {6, 7}, {7, 8}, {8, 13},
    {9, 10}, {10, 11}, {11, 12}, {12, 13},
    {14, 18}, {14, 15}, {15, 16}, {16, 17}, {17, 22},
    {18, 19}, {19, 20}, {20, 21}, {21, 22},
    {-1, -1}, {-1, -1}, {-1, -1}, {-1, -1}, {-1, -1},
}};

bool IsExposed(int index, const std::array<bool, kFieldCards>& onTable) {
    if (index < 0 || index >= kFieldCards) return true;
    for (int cover : kCoveredBy[static_cast<size_t>(index)])
        if (cover >= 0 && onTable[static_cast<size_t>(cover)]) return false;
    return true;
}

Match MatchOf(int firstRank, int secondRank) {
    if (secondRank == firstRank) return Match::Pair;
    if (firstRank == 1) return secondRank == 2 || secondRank == 13 ? Match::Run : Match::None;
    if (firstRank == 13) return secondRank == 1 || secondRank == 12 ? Match::Run : Match::None;
    return secondRank == firstRank + 1 || secondRank == firstRank - 1 ? Match::Run : Match::None;
}

std::string StackStage(int stackIndex) {
    if (stackIndex <= 27) return "";
    if (stackIndex <= 34) return "FULL";
    if (stackIndex <= 41) return "HALF";
    if (stackIndex <= 51) return "BACK";
    if (stackIndex == 52) return "EMPTY";
    return "";
}

int FirstGap(const std::array<bool, kFieldCards>& hasPicture) {
    for (int i = 0; i < kFieldCards; ++i)
        if (!hasPicture[static_cast<size_t>(i)]) return i;
    return -1;
}

bool IsCustom(const ScoringValues& s, int32_t timeBonus) {
    const ScoringValues d;
    return !(s.PairsBonus == d.PairsBonus && s.RunsBonus == d.RunsBonus && timeBonus == kDefaultTimeBonus &&
             s.BonusScore == d.BonusScore && s.CompletionBonus == d.CompletionBonus);
}

std::vector<Award> RoundAwards(const ScoringValues& scoring, int32_t timeBonus, bool roundCompleted,
                               int secondsLeft, int32_t runs, int32_t pairs) {
    std::vector<Award> awards;
    if (roundCompleted) awards.push_back({Award::Kind::Named, "Completion Bonus", 1, scoring.CompletionBonus});
    if (secondsLeft > 0) awards.push_back({Award::Kind::Time, "Speed Bonus", secondsLeft, timeBonus});
    if (runs != 0) awards.push_back({Award::Kind::Named, "Runs Bonus", runs, scoring.RunsBonus});
    if (pairs != 0) awards.push_back({Award::Kind::Named, "Pairs Bonus", pairs, scoring.PairsBonus});
    return awards;
}

AfterRound NextStep(int roundAfter, int32_t score, int32_t bonusScore) {
    if (roundAfter == 2) return AfterRound::RoundTwo;
    if (roundAfter == 3 && score >= bonusScore) return AfterRound::BonusRound;
    return AfterRound::GameOver;
}

}  // namespace ch::duopick
