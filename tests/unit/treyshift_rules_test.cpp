// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "games/treyshift/modTreyshift.h"

using namespace ch::treyshift;

// A column read from the top, with the codes as the deck writes them.
TEST(TreyshiftColumn, TripsRunsAndFlushesReadFromTheTop) {
    struct Case { const char *top, *middle, *bottom; ColumnKind kind; };
    const Case cases[] = {
        {" 3S", " 3H", " 3D", ColumnKind::Trip}, {"1S", "1H", "1C", ColumnKind::Trip},
        {" 4S", " 5H", " 6D", ColumnKind::Run}, {" 6S", " 5H", " 4D", ColumnKind::Run},
        {" 1S", " 2H", " 3D", ColumnKind::Run}, {" 3S", " 2H", " 1D", ColumnKind::Run},
        // In sequence but out of order: no Run.
        {" 5S", " 7H", " 6D", ColumnKind::None},
        // The ace is high only beside king and queen, and a king never leads.
        {" 12S", " 13H", " 1D", ColumnKind::Run}, {" 1S", " 13H", " 12D", ColumnKind::Run},
        {" 13S", " 12H", " 1D", ColumnKind::None}, {" 2S", " 1H", " 13D", ColumnKind::None},
        {" 1S", " 12H", " 13D", ColumnKind::None}, {" 12S", " 1H", " 13D", ColumnKind::None},
        // A Run of one suit letter is a flush; a flush out of sequence is nothing.
        {" 11H", " 12H", " 13H", ColumnKind::FlushRun}, {" 12C", " 13C", " 1C", ColumnKind::FlushRun},
        {" 8D", "9D", " 10D", ColumnKind::FlushRun}, {" 8D", "9S", " 10D", ColumnKind::Run},
        {" 2H", " 9H", " 5H", ColumnKind::None},
        // The empty card taken past the end of the deck counts 0 and has no suit.
        {" 2S", " 1S", "", ColumnKind::Run},
    };
    for (const Case& c : cases)
        EXPECT_EQ(ScoreColumn(c.top, c.middle, c.bottom), c.kind) << c.top << c.middle << c.bottom;
}

TEST(TreyshiftDeck, StackThinsAsCardsAreTaken) {
    const std::pair<int, const char*> steps[] = {{19, "FULL"}, {20, "HALF"}, {35, "HALF"},
                                                 {36, "BACK"}, {51, "BACK"}, {52, "EMPTY"}};
    for (const auto& [position, key] : steps) EXPECT_STREQ(StackKey(position), key) << position;
}
