// SPDX-License-Identifier: GPL-3.0-or-later
// The menus of a game window without Take Score, in their order.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "suite/windowsteps.h"

using namespace ch;

TEST(MenusWithoutTakeScore, FileOptionsWithTheDialogAndTimesThenHelp) {
    const TimeEntry times[] = {{"mnu30", 30, "&30 seconds"}, {"mnu45", 45, "&45 seconds (default)"}};
    std::vector<std::string> order;
    for (const ControlSpec& s : MenusWithoutTakeScore(times, "&User Options..."))
        order.push_back(std::string(s.name) + "<" + s.container);
    const std::vector<std::string> expected = {
        "mnuFile<", "mnuPlay<mnuFile", "mnuPause<mnuFile", "mnuExit<mnuFile", "mnuOptions<", "mnuView<mnuOptions",
        "mnuClear<mnuOptions", "mnuMusic<mnuOptions", "mnuSounds<mnuOptions", "mnuCustom<mnuOptions",
        "mnuTime<mnuOptions", "mnuDeck<mnuOptions", "mnuPalm<mnuDeck", "mnuMagic<mnuDeck", "mnuNight<mnuDeck",
        "mnuHot<mnuDeck", "mnu30<mnuTime", "mnu45<mnuTime", "mnuHelp<", "mnuRules<mnuHelp", "mnuAbout<mnuHelp"};
    EXPECT_EQ(order, expected);
}
