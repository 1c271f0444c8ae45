// SPDX-License-Identifier: GPL-3.0-or-later
// The rules window's text of Fivestack, composed from the live settings of
// its window (or the defaults when it isn't open).
#include "games/fivestack/frmFivestack.h"
#include "suite/common.h"
#include "suite/frmRules.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace fivestack;

namespace {
std::string FivestackRules() {
    const auto* game = static_cast<const frmFivestack*>(Runtime::current().loaded("frmFivestack"));
    const ScoringValues values = game ? game->Scoring : ScoringValues{};
    const int32_t bonusScore = values.BonusScore;
    const int timeBonusMax = values.TimeBonusMax;
    const int timeBonusMin = values.TimeBonusMin;
    const float decay = game ? game->TimeBonusDecay : TimeBonusDecay(timeBonusMax, timeBonusMin, TimeLimit);
    const int cardsToPass = values.CardsToPass;
    return RulesText(33, {
        RequirementsParagraph(),
        ObjectParagraph("three", NumText(TimeLimit), FormatScore(bonusScore)),
        std::string("You earn points by creating 5 columns of cards to a maximum of 5 cards per ") +
            "column. Each card is worth it's face value (face cards are 10 points each, Aces " +
            "are worth 1 or 11 points). " + "If any column exceeds 21 points " +
            "(ie: busted), the round is automatically ended and no points are awarded. Once you " +
            "achieve a total of 97 points or greater (total of all 5 columns without busting) " +
            "you begin to earn points towards the current round.",
        std::string("The number of points you earn in a round is equal to your Card Total Value multiplied by ") +
            "the Time Bonus. Your Card Total Value is determined by the total of all five columns. " +
            "If the total of all five columns is less than 97, your Card Total Value is 0. A " +
            "column total of 97 is worth 50 points, 98 is worth 100 and so on up to a maximum of " +
            "105 which is worth 1000 points. There is a table located on the right side of the " + AppTitle +
            " window which describes the Card Total Value earned for a " + "given card column total.",
        std::string("The Time Bonus begins ") + "at " + NumText(timeBonusMax) + ". It decreases by " +
            NumText(static_cast<long long>(decay)) + " for " + "each second used " +
            "in the round. If time expires the Time Bonus is worth " + NumText(timeBonusMin) + ".",
        "You are allowed to pass " + NumText(cardsToPass) + " card(s) per round.",
        "Good luck and have fun!",
    });
}
}  // namespace

void RegisterFivestackRules() { RegisterRules("Fivestack!", FivestackRules); }

}  // namespace ch
