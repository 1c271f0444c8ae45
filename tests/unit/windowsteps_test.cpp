// SPDX-License-Identifier: GPL-3.0-or-later
// The menus of a game window, with and without Take Score, in their order.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "suite/windowsteps.h"

using namespace ch;

TEST(GameMenus, FileOptionsWithTheDialogAndTimesThenHelp) {
    const TimeEntry times[] = {{"mnu30", 30, "&30 seconds"}, {"mnu45", 45, "&45 seconds (default)"}};
    const auto order = [&times](bool takeScore) {
        std::vector<std::string> names;
        for (const ControlSpec& s : GameMenus(times, "&User Options...", takeScore))
            names.push_back(std::string(s.name) + "<" + s.container);
        return names;
    };
    std::vector<std::string> expected = {
        "mnuFile<", "mnuPlay<mnuFile", "mnuPause<mnuFile", "mnuExit<mnuFile", "mnuOptions<", "mnuView<mnuOptions",
        "mnuClear<mnuOptions", "mnuMusic<mnuOptions", "mnuSounds<mnuOptions", "mnuCustom<mnuOptions",
        "mnuTime<mnuOptions", "mnuDeck<mnuOptions", "mnuPalm<mnuDeck", "mnuMagic<mnuDeck", "mnuNight<mnuDeck",
        "mnuHot<mnuDeck", "mnu30<mnuTime", "mnu45<mnuTime", "mnuHelp<", "mnuRules<mnuHelp", "mnuAbout<mnuHelp"};
    EXPECT_EQ(order(false), expected);
    expected.insert(expected.begin() + 2, "mnuTakeScore<mnuFile");
    EXPECT_EQ(order(true), expected);
}
