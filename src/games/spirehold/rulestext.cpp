// SPDX-License-Identifier: GPL-3.0-or-later
// The rules text of Spirehold, composed from the live settings of its window
// each time the rules window opens.
#include "games/spirehold/frmSpirehold.h"
#include "suite/common.h"
#include "suite/frmRules.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

// Every value in this text has the format "###,###,###,##0".
std::string SpireholdRules() {
    const auto* game = static_cast<const frmSpirehold*>(Runtime::current().loaded("frmSpirehold"));
    const spirehold::ScoringValues values = game ? game->Scoring : spirehold::ScoringValues{};
    const long long bonusScore = values.BonusScore;
    const long long cardValue = values.CardValue;
    const long long highRunBonus = values.HighRunBonus;
    const long long towerBonus = values.TowerBonus;
    return RulesText(
        33,
        {
            RequirementsParagraph(),
            ObjectParagraph("two", FormatScore(TimeLimit), FormatScore(bonusScore)),
            "You earn points in a number ways:",
            std::string("1. Clicking on exposed cards to create runs. For example, Ace-2-3 or 9-8-7-6-5. A run may "
                        "span from a King ") +
                "to an Ace and vice versa. For example Queen-King-Ace-2 and 3-2-Ace-King are both valid runs. The "
                "longer the " +
                "run the more points you earn. Each time a new card is added to a run, the selected card's value "
                "increases by " +
                FormatScore(cardValue) + " points.",
            "2. Creating the longest run. " + AppTitle + " keeps a record of the longest run attained. " +
                "When you exceed the longest run you receive an additional " + FormatScore(highRunBonus) +
                " points for each card in the run.",
            std::string("3. Clearing Towers. The upper card area is layed out in a manner that represents three "
                        "'Towers'. You can earn an additional ") +
                "bonus by clearing these Towers. This bonus is equal to the number of Towers cleared multiplied by " +
                FormatScore(towerBonus) + " points.",
            std::string("4. Time Bonus. If you have no playable cards remaining, clicking the 'Take Score' button "
                        "will end the current round") +
                " and award you " + FormatScore(TimeBonus) + " points for each second remaining on the clock. " +
                "You do not get the Time Bonus if you have not cleared at least one tower.",
            "Good luck and have fun!",
        });
}

}  // namespace ch
