// SPDX-License-Identifier: GPL-3.0-or-later
// Spirehold's rules: the tower table, the neighbour rule, what a removal
// turns over, the stack stages and whether the scoring is custom.
#include "games/spirehold/modSpirehold.h"

#include "suite/cards.h"
#include "window/basic.h"

namespace ch::spirehold {

namespace {
constexpr int kRowTop[5] = {0, 375, 1080, 1815, 2520};
constexpr TowerPlace Place(int row, int left, int a, int b) { return {row, left, kRowTop[row], {a, b}}; }
}  // namespace

// Rows 1 and 2 hold the three towers' upper parts; row 3 (nine cards) and
// row 4 (ten cards) are shared. Cards 11 and 12 have no common parent, nor
// have 14 and 15: that gap separates the towers above row 3.
const std::array<TowerPlace, kTowerCards> kTowerPlaces = {{
    Place(1, 1065, 3, 4),   Place(1, 4215, 5, 6),   Place(1, 7350, 7, 8),
    Place(2, 525, 9, 10),   Place(2, 1575, 10, 11), Place(2, 3675, 12, 13),
    Place(2, 4725, 13, 14), Place(2, 6825, 15, 16), Place(2, 7875, 16, 17),
    Place(3, 0, 18, 19),    Place(3, 1050, 19, 20), Place(3, 2100, 20, 21),
    Place(3, 3150, 21, 22), Place(3, 4200, 22, 23), Place(3, 5250, 23, 24),
    Place(3, 6300, 24, 25), Place(3, 7350, 25, 26), Place(3, 8400, 26, 27),
    Place(4, -525, -1, -1), Place(4, 525, -1, -1),  Place(4, 1575, -1, -1),
    Place(4, 2625, -1, -1), Place(4, 3675, -1, -1), Place(4, 4725, -1, -1),
    Place(4, 5775, -1, -1), Place(4, 6825, -1, -1), Place(4, 7875, -1, -1),
    Place(4, 8925, -1, -1),
}};

int Rank(const std::string& code) { return CardValue(code); }

bool IsNeighbour(int rank, int upRank) {
    if (rank >= 2 && rank <= 12) return rank == upRank + 1 || rank == upRank - 1;
    if (rank == 1) return upRank == 13 || upRank == 2;
    if (rank == 13) return upRank == 12 || upRank == 1;
    return false;
}

int TowerOfTop(int index) { return index >= 0 && index <= 2 ? index + 1 : 0; }

std::vector<int> CardsTurnedBy(int removed, const std::array<bool, kTowerCards>& onTable) {
    std::vector<int> turned;
    for (int p = 0; p < kTowerCards; ++p) {
        const TowerPlace& place = kTowerPlaces[static_cast<size_t>(p)];
        for (int side = 0; side < 2; ++side) {
            if (place.coveredBy[side] != removed) continue;
            const int other = place.coveredBy[1 - side];
            if (!onTable[static_cast<size_t>(other)]) turned.push_back(p);
        }
    }
    return turned;
}

const char* StackStageKey(int stackIndex) {
    if (stackIndex >= 28 && stackIndex <= 34) return "FULL";
    if (stackIndex >= 35 && stackIndex <= 41) return "HALF";
    if (stackIndex >= 42 && stackIndex <= 51) return "BACK";
    if (stackIndex == 52) return "EMPTY";
    return "";
}

bool IsCustomScoring(const ScoringValues& v, int32_t timeBonus) {
    const ScoringValues d;
    return !(v.CardValue == d.CardValue && v.BonusScore == d.BonusScore && v.HighRunBonus == d.HighRunBonus &&
             v.TowerBonus == d.TowerBonus && timeBonus == kDefaultTimeBonus);
}

}  // namespace ch::spirehold
