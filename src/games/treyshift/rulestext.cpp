// SPDX-License-Identifier: GPL-3.0-or-later
// The rules of Treyshift as the rules window shows them, composed from the
// values in force: those of the open window, or the defaults.
#include "games/treyshift/frmTreyshift.h"

#include "suite/common.h"
#include "suite/frmRules.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

std::string TreyshiftRules() {
    const auto* game = static_cast<const frmTreyshift*>(Runtime::current().loaded("frmTreyshift"));
    const treyshift::ScoringValues v = game ? game->Scoring : treyshift::kDefaults;
    const std::string trips = NumText(v.TripValue);
    const std::string runs = NumText(v.RunValue);
    const std::string flush = NumText(v.FlushValue);
    const std::string deck = NumText(v.DeckValue);
    const std::string penalty = NumText(v.PenaltyValue);
    const std::string bonus = FormatScore(v.BonusScore);
    // Its requirements line has a single blank before "Recommended", unlike the shared one.
    return RulesText(31, {
        "Requirements: To run " + AppTitle + " you need Windows 95 or above " + "and a mouse. " +
            "Recommended: Soundcard.",
        ObjectParagraph("two", NumText(TimeLimit), bonus),
        "The " + AppTitle + " game board is separated into three sections: the storage area, the playing field, " +
            "and the deck. The playing field consists of four columns, each of which may hold up to three cards. " +
            "You earn points by creating '3 card runs' (a Run) and '3 of a kinds' (a Trip) in each column. To "
            "accomplish this you may move " +
            "cards from the deck to the playing field or place them into the temporary storage area at the top of "
            "the board. The temporary storage " +
            "area may hold up to three cards at one time and is used to store cards that are not needed at the "
            "time. You may also move the top card of a column in the playing field from one column to another.",
        std::string("Each time a column is populated with a Trip or Run ") +
            "the column will be cleared automatically. For each Trip you create, you will be awarded " + trips +
            " points while each " + " Run awards " + runs +
            " points. If the Run you create also happens to be a flush, you are awarded an additional " + flush +
            " points. " + "All these points are awarded during game play, not at the end of the round.",
        "If you manage to clear the deck you are awarded a bonus of " + deck + " points " +
            "at the end of the round. If you clear the deck, but still have cards remaining in the storage area or "
            "the playing field, -" +
            penalty + " will be " + "deducted from your score for each remaining card.",
        std::string("If during game play you feel that you have no more moves remaining, click on the 'Take Score' "
                    "button to ") +
            "end the round. You will be awarded " + NumText(TimeBonus) +
            " points for each unused second remaining in the round.",
        "This game moves very quickly. While it is important to clear the deck, don't overlook the value of the "
        "straight flush. It can really pay off! ",
        "Good luck and have fun!",
    });
}

}  // namespace ch
