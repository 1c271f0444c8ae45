// SPDX-License-Identifier: GPL-3.0-or-later
// The text of Handgrid's rules window, composed at each opening from the
// live settings of the game window (or the defaults when it is closed).
#include "games/handgrid/frmHandgrid.h"

#include "suite/common.h"
#include "suite/frmRules.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

using namespace handgrid;

std::string HandgridRules() {
    const frmHandgrid* game = static_cast<const frmHandgrid*>(Runtime::current().loaded("frmHandgrid"));
    const ScoringValues values = game ? game->Scoring : ScoringValues{};
    const HandValues& v = values.HandScores;
    const int32_t bonus = values.BonusScore;
    const int overWrites = values.OverWritesAllowed;
    const auto points = [&v](Hand hand) { return NumText(v[static_cast<size_t>(hand)]); };
    const std::string table = "   One Pair = " + points(OnePair) + "\r\n" + "   Two Pair = " + points(TwoPair) + "\r\n" +
                              "   Three of a kind = " + points(Trips) + "\r\n" + "   Straight = " + points(Straight) +
                              "\r\n" + "   Flush = " + points(Flush) + "\r\n" + "   Full House = " +
                              points(FullHouse) + "\r\n" + "   Four of a kind = " + points(Four) + "\r\n" +
                              "   Straight Flush = " + points(StraightFlush) + "\r\n" + "   Royal Flush = " +
                              points(RoyalFlush) + "\r\n";
    return RulesText(31, {
        RequirementsParagraph(),
        ObjectParagraph("three", NumText(TimeLimit), FormatScore(bonus)),
        std::string("To earn points in this game you must create 10 poker hands by placing cards ") +
            "from the deck into the provided columns and rows. Once completed, each row " +
            "and each column form a complete 5 card poker hand.",
        std::string("Once a card has ") + "been played it may not be moved, however, you are allowed to overwrite " +
            NumText(overWrites) +
            " cards per round. You may not pass cards from the deck, each card off of the deck must be played " +
            "before another card is exposed.",
        std::string("The hands are awarded ") + "points based on the following table:",
        table + "At the end of each round, the total value of all 10 hands is multiplied " +
            "by the number of seconds remaing in the round. It is therefore essential to complete " +
            "each round as quickly as possible! If time expires before all hands have been completed " +
            "you forfeit the round (0 points).",
        std::string("While each round is played, ") +
            "the current number of points earned is displayed at the bottom right of the " +
            "game board. Remember...because your score is so dependent on the amount of time " +
            "remaining, you must be quick!",
        "Good luck and have fun!",
    });
}
}  // namespace ch
