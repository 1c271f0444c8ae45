// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/gameinfo.h"

namespace ch {

namespace {
std::vector<const GameInfo*>& Games() {
    static std::vector<const GameInfo*> games;
    return games;
}
}  // namespace

void RegisterGame(Runtime& runtime, const GameInfo& game) {
    game.registerForms(runtime);
    for (const GameInfo*& known : Games())
        if (std::string(known->title) == game.title) {
            known = &game;
            return;
        }
    Games().push_back(&game);
}

const std::vector<const GameInfo*>& RegisteredGames() { return Games(); }

const GameInfo* GameByTitle(const std::string& title) {
    for (const GameInfo* game : Games())
        if (title == game->title) return game;
    return nullptr;
}

const GameInfo* GameByForm(const std::string& form) {
    for (const GameInfo* game : Games())
        if (form == game->form) return game;
    return nullptr;
}

}  // namespace ch
