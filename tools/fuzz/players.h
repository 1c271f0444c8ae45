// SPDX-License-Identifier: GPL-3.0-or-later
// Play toward big scores: states that random clicks never reach (near-perfect
// grids, long chains of Trips) are where the scores run past their range.
//
// ScoringMove reads a running game's board through the variables the window
// exposes and returns the click its rules score best, as a line of the
// driver's script ("" when the player has no opinion of this game or state).
// GoodDeck gives a 52-card order for the next shuffle that the same player
// turns into big scores: cards of a rank together, suits in sequence.
#pragma once

#include <random>
#include <string>
#include <vector>

namespace ch {

class Form;

std::string ScoringMove(const Form& game, std::mt19937_64& random);
std::vector<std::string> GoodDeck(std::mt19937_64& random);

// Values at the edges of the 16- and 32-bit types (the bounds, one past,
// negative, zero) and round numbers near the games' own limits, as a player
// or a settings file would write them.
const std::vector<std::string>& EdgeValues();
// A settings file's text with the value of every numeric section changed to
// an edge value, each with the chance `p`; other lines kept as they are.
std::string EdgeSettings(const std::string& text, double p, std::mt19937_64& random);

}  // namespace ch
