// SPDX-License-Identifier: GPL-3.0-or-later
// The rules text of Blackrush, composed from the live values of its window
// each time the rules window opens.
#include "games/blackrush/frmBlackrush.h"
#include "suite/common.h"
#include "suite/frmRules.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

namespace {
std::string BlackrushRules() {
    const Form* window = Runtime::current().loaded("frmBlackrush");
    const auto* game = static_cast<const frmBlackrush*>(window);
    const blackrush::ScoringValues values = game ? game->Scoring : blackrush::ScoringValues{};
    const std::string twentyOne = FormatScore(values.TwentyOneBonusValue);
    return RulesText(33, {
        RequirementsParagraph(),
        ObjectParagraph("three", FormatScore(TimeLimit), FormatScore(values.BonusScore)),
        std::string("You earn points by creating cards combinations that total 21. ") +
            "Each card is worth it's face value (face cards are 10 points each, Aces " +
            "are worth 1 or 11 points). If any column exceeds 21 points " +
            "(ie: busted), your score is reduced by 100 points. ",
        std::string("At the end of each round, the total number of 21 combinations that you created ") +
            "is multiplied by the 21 Bonus Value. The 21 Bonus Value increases by " + twentyOne +
            " each time a 21 combination is created. The 21 Bonus Value is reset to " + twentyOne +
            " if the '21 Counter' (a timer) expires. The '21 Counter' is reset each time a 21 combination is "
            "created." +
            " The '21 Counter' is set for approxiametly 10 seconds. Once you create " +
            "your first 21 combination, you must create another one before the '21 Counter' expires or " +
            "your 21 Bonus Value is reset to " + twentyOne + ".",
        std::string("You also earn points by creating columns of 5 cards ") +
            "that do not exceed 21 (called a 'five card gimme'). Each time " +
            "a column of this type is created you are awarded " + FormatScore(values.FiveCardGimmeBonus) +
            " points. Each time " + "you create a 21 card combination or a 'five card gimme' " +
            "the column is automatically cleared. If you are able to use all the cards " +
            "in the deck you are awarded an additional " + FormatScore(values.DeckCompletionBonus) + " points. " +
            "At the end of each round you are also awarded " + FormatScore(values.CardsUsedBonusValue) +
            " points for each " + "card you used during the round.",
        std::string(" you may modify all of the scoring values such as ") +
            "the points required to achieve a bonus round, points awarded for completing the deck, " +
            "the 21 Bonus Value and the 'five card gimme' bonus.",
        "Good luck and have fun!",
    });
}
}  // namespace

void RegisterBlackrushRules() { RegisterRules("Blackrush!", BlackrushRules); }

}  // namespace ch
