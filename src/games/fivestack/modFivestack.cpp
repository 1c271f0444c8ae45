// SPDX-License-Identifier: GPL-3.0-or-later
// The rules of Fivestack: columns, aces, the Card Total Value table, the
// Time Bonus and the User Options check.
#include "games/fivestack/modFivestack.h"

#include <cmath>
#include <cstdio>

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
    {105, "lbl105", "lblScore105", "105", 1000},
    {104, "lbl104", "lblScore104", "104", 500},
    {103, "lbl103", "lblscore103", "103", 400},
    {102, "lbl102", "lblscore102", "102", 300},
    {101, "lbl101", "lblscore101", "101", 250},
    {100, "lbl100", "lblscore100", "100", 200},
    {99, "lbl99", "lblscore99", "99", 150},
    {98, "lbl98", "lblscore98", "98", 100},
    {97, "lbl97", "lblscore97", "97", 50},
    {0, "lblNothing", "lblScore0", "< 97", 0},
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

bool IsCustomScoring(int timeBonusMin, int timeBonusMax, int32_t bonusScore, int passesLeft) {
    return timeBonusMin != kDefaultTimeBonusMin || timeBonusMax != kDefaultTimeBonusMax ||
           bonusScore != kDefaultBonusScore || passesLeft != kDefaultCardsToPass;
}

std::string& OptionTexts::of(OptionField field) {
    switch (field) {
        case OptionField::Passes: return passes;
        case OptionField::Wait: return wait;
        case OptionField::Bonus: return bonus;
        case OptionField::Maximum: return maximum;
        case OptionField::Minimum: break;
    }
    return minimum;
}

std::string NumberText(double value) {
    if (value == std::floor(value) && std::fabs(value) < 1e15) return NumText(static_cast<long long>(value));
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.15g", value);
    return buffer;
}

bool CheckOptions(OptionTexts& texts, OptionValues& values, const OptionFailure& failed) {
    bool ok = true;
    const auto fail = [&](OptionField field, const char* message, const std::string& text) {
        failed(field, message, text);
        texts.of(field) = text;
        ok = false;
    };

    const double passes = Val(texts.passes);
    if (passes < 0) {
        fail(OptionField::Passes, "Sorry, you cannot pass fewer than 0 cards.", "0");
        values.passesLeft = 0;
    } else if (passes > 10) {
        fail(OptionField::Passes, "Sorry, you cannot pass more than 10 cards.", "10");
        values.passesLeft = 10;
    } else {
        values.passesLeft = CInt(passes);
        values.cardsToPass = values.passesLeft;
    }

    const double wait = Val(texts.wait);
    if (wait < 0) {
        fail(OptionField::Wait, "Sorry, a minimum of 0 seconds is required for the waiting period between rounds.", "0");
        values.waitPeriod = 0;
    } else if (wait > 30) {
        fail(OptionField::Wait, "Sorry, a maximum of 30 seconds is allowed for the waiting period between rounds.",
             "30");
        values.waitPeriod = 30000;
    } else {
        values.waitPeriod = CInt(wait * 1000);
    }

    const double bonus = Val(texts.bonus);
    if (bonus < 0) {
        fail(OptionField::Bonus, "Sorry, a minimum of 0 is required for the bonus round score.", "0");
        values.bonusScore = 0;
    } else if (bonus > 2147483647.0) {
        fail(OptionField::Bonus, "Sorry, the maximum value for achieving a bonus round is 2147483647.", "2147483647");
        values.bonusScore = 2147483647;
    } else {
        values.bonusScore = CLng(bonus);
    }

    const double maximum = Val(texts.maximum);
    if (maximum <= Val(texts.minimum)) {
        fail(OptionField::Maximum,
             "Sorry, the maximum time bonus value must be greater than the minimum time bonus value.",
             NumberText(Val(texts.minimum) + 1));
    } else if (maximum <= 0) {
        fail(OptionField::Maximum, "Sorry, the maximum time bonus value must be greater than 0.", "0");
    } else if (maximum > 10000) {
        fail(OptionField::Maximum, "Sorry, the maximum time bonus value must not exceed 10000.", "10000");
    } else {
        values.timeBonusMax = CInt(maximum);
    }

    const double minimum = Val(texts.minimum);
    if (Val(texts.maximum) <= minimum) {
        fail(OptionField::Minimum,
             "Sorry, the minimum time bonus value must be less than the maximum time bonus value.",
             NumberText(Val(texts.maximum) - 1));
    } else if (minimum <= 0) {
        fail(OptionField::Minimum, "Sorry, the minimum time bonus value must be greater than 0.", "0");
    } else if (minimum > 10000) {
        fail(OptionField::Minimum, "Sorry, the minimum time bonus value must not exceed 10000.", "10000");
    } else {
        values.timeBonusMin = CInt(minimum);
    }
    return ok;
}

}  // namespace ch::fivestack
