// SPDX-License-Identifier: GPL-3.0-or-later
// Duopick's rules text, composed from the live settings each time the rules
// window opens.
#include "games/duopick/frmDuopick.h"
#include "suite/common.h"
#include "suite/frmRules.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

std::string DuopickRulesText() {
    const frmDuopick* game = static_cast<const frmDuopick*>(Runtime::current().loaded("frmDuopick"));
    const duopick::ScoringValues values = game ? game->Scoring : duopick::ScoringValues{};
    const int32_t bonusScore = values.BonusScore;
    const int32_t pairs = values.PairsBonus;
    const int32_t runs = values.RunsBonus;
    const int32_t completion = values.CompletionBonus;
    return RulesText(33, {
        RequirementsParagraph(),
        ObjectParagraph("two", FormatScore(TimeLimit), FormatScore(bonusScore)),
        "You earn points in a number ways:",
        std::string("1. Clicking on pairs of exposed cards to create pairs and runs. For example, 2-2, 5-6, and "
                    "10-9. A run may span from a King ") +
            "to an Ace and vice versa. For example King-Ace and Ace-King are both valid runs. You are awarded " +
            FormatScore(pairs) + " points for each pair you create and " + FormatScore(runs) +
            " points for each run you create. " + "These points are awarded at the end of each round. Obviously "
            "it is to your advantage " + "to collect pairs rather than runs.",
        std::string("2. Clearing the upper cards. If you manage to clear all of the cards from the upper playing "
                    "field ") +
            "you are awarded and additional " + FormatScore(completion) + " points at the end of the round.",
        std::string("3. Time Bonus. If you have no playable cards remaining, clicking the 'Take Score' button will "
                    "end the current round") +
            " and award you " + FormatScore(TimeBonus) + " points for each second remaining on the clock. ",
        "Good luck and have fun!",
    });
}

}  // namespace ch
