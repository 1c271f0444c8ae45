// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/games.h"

#include "games/blackrush/info.h"
#include "games/duopick/info.h"
#include "games/fivestack/info.h"
#include "games/handgrid/info.h"
#include "games/spirehold/info.h"
#include "games/sumfall/info.h"
#include "games/treyshift/info.h"

namespace ch {

namespace {
constexpr const GameInfo* kGames[] = {
    &sumfall::kGame,  &fivestack::kGame, &blackrush::kGame, &spirehold::kGame,
    &duopick::kGame, &handgrid::kGame,  &treyshift::kGame,
};
}  // namespace

std::span<const GameInfo* const> Games() { return kGames; }

void RegisterGameForms(Runtime& runtime) {
    for (const GameInfo* game : kGames) RegisterGame(runtime, *game);
}

}  // namespace ch
