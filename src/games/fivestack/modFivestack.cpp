// SPDX-License-Identifier: GPL-3.0-or-later
// The rules of Fivestack: columns, aces, the Card Total Value table, the
// Time Bonus and whether the scoring is custom.
#include "games/fivestack/modFivestack.h"

#include "window/basic.h"

namespace ch::fivestack {

int GetCardValue(const std::string& code) {
    const int value = static_cast<int>(Val(Trim(code)));
    return value > 10 ? 10 : value;
}

int16_t CalculateAces(Column& column) {
    if (column.total + 11 <= 21) {
        column.softAces += 1;
        return 11;
    }
    return 1;
}

LaidCard LayCard(Column& column, int cardValue) {
    LaidCard laid;
    laid.value = static_cast<int16_t>(cardValue);
    column.cards += 1;
    if (laid.value == 1) {
        laid.value = CalculateAces(column);
        laid.soft = laid.value == 11;
    }
    column.total = static_cast<int16_t>(column.total + laid.value);
    laid.closes = column.cards == kSlots;
    return laid;
}

bool SaveWithSoftAce(Column& column) {
    if (column.softAces == 0) return false;
    column.softAces -= 1;
    if (column.softAces == 0) column.total = static_cast<int16_t>(column.total - 10);
    return true;
}

const std::array<CardTotalRow, 10> kCardTotalRows = {{
    {"lbl105", "lblScore105", "105", 1000},
    {"lbl104", "lblScore104", "104", 500},
    {"lbl103", "lblscore103", "103", 400},
    {"lbl102", "lblscore102", "102", 300},
    {"lbl101", "lblscore101", "101", 250},
    {"lbl100", "lblscore100", "100", 200},
    {"lbl99", "lblscore99", "99", 150},
    {"lbl98", "lblscore98", "98", 100},
    {"lbl97", "lblscore97", "97", 50},
    {"lblNothing", "lblScore0", "< 97", 0},
}};

int CardTotalRowIndex(int cardTotal) {
    if (cardTotal > kPerfectTotal) return -1;
    if (cardTotal < kLowestScoringTotal) return static_cast<int>(kCardTotalRows.size()) - 1;
    return kPerfectTotal - cardTotal;
}

float TimeBonusDecay(int timeBonusMax, int timeBonusMin, int timeLimit) {
    return static_cast<float>(timeBonusMax - timeBonusMin) / static_cast<float>(timeLimit);
}

int32_t TimeBonusAt(int elapsed, int timeBonusMax, int timeBonusMin, float decay) {
    const float used = static_cast<float>(elapsed) * decay + static_cast<float>(timeBonusMin);
    const float bonus = static_cast<float>(timeBonusMax + timeBonusMin) - used;
    return CLng(static_cast<double>(bonus));
}

bool IsCustomScoring(const ScoringValues& v, int passesLeft) {
    const ScoringValues d;
    return v.TimeBonusMin != d.TimeBonusMin || v.TimeBonusMax != d.TimeBonusMax || v.BonusScore != d.BonusScore ||
           passesLeft != d.CardsToPass;
}

}  // namespace ch::fivestack
