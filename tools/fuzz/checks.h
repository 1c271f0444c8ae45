// SPDX-License-Identifier: GPL-3.0-or-later
// What must hold after every event of a fuzz run, whatever the input was:
// the files in the home folder read back whole, a high score table loses an
// entry only to a newer score pushing it down or to Clear, and the score on
// the game window is the score the game keeps.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "suite/highscores.h"

namespace ch {

class Runtime;

// What the suite writes, told apart by the file's name: "*.Ini" settings,
// "*.Txt" tables, "*.sfl" saved games; anything else is not checked.
enum class HomeFileKind { Settings, Table, SavedGame, Temporary, Other };
HomeFileKind KindOfHomeFile(const std::string& name);

// Empty when the text reads back as the writer wrote it; otherwise what is wrong.
std::string SettingsFault(const std::string& text);
std::string TableFault(const std::string& text);
std::string SavedGameFault(const std::string& text);

// How a table may change from one look to the next: unchanged, cut to ten
// places, one new entry scored `score` pushing the rest down (the last may
// fall off), or cleared to ten equal default lines. Empty when the change is
// one of these.
std::string TableChangeFault(const std::vector<ScoreEntry>& before, const std::vector<ScoreEntry>& after,
                             long long score);

// Watches the home folder through inotify, so that a look reads only the
// files written since the last one, however many saved games pile up.
class HomeWatch {
public:
    explicit HomeWatch(std::string folder);
    ~HomeWatch();
    HomeWatch(const HomeWatch&) = delete;
    HomeWatch& operator=(const HomeWatch&) = delete;
    // Looks at every file changed since the last look; the first fault found,
    // or empty. `score` is the game's CurrentScore now.
    std::string look(long long score);

private:
    std::string lookAt(const std::string& name, long long score);

    struct Seen {
        int64_t size = -1;
        int64_t mtime = 0;
        uint64_t inode = 0;
        std::vector<ScoreEntry> entries;  // tables only
    };
    std::string folder_;
    int notify_ = -1;
    bool first_ = true;
    std::map<std::string, Seen> seen_;
};

// The score shown by a game window against CurrentScore, while a game is in
// progress and nothing modal is open. Empty when they agree, or when there is
// nothing to compare.
std::string ShownScoreFault(Runtime& runtime, const std::string& gameForm);

}  // namespace ch
