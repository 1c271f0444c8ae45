// SPDX-License-Identifier: GPL-3.0-or-later
// The rules of Handgrid as plain data and functions: the ten poker hands with
// their names and default points, how one line of five cells is named, the
// transposition of the grid, the stack picture, and the scoring values with
// their defaults.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "window/control.h"

namespace ch::handgrid {

constexpr int kCells = 25;          // PlayedCards(0..24), row major
constexpr int kLines = 5;           // five rows and five columns
constexpr int kDeckSlots = 52;      // RoundDeck(1..52), slot 0 unused
using Grid = std::array<std::string, kCells>;
using Line = std::array<std::string, kLines>;

enum Hand { Nothing, OnePair, TwoPair, Trips, Straight, Flush, FullHouse, Four, StraightFlush, RoyalFlush };
constexpr int kHands = 10;

// The names the labels show, by Hand.
extern const std::array<const char*, kHands> kHandNames;
// Points of each hand by Hand; Nothing is always 0.
using HandValues = std::array<int32_t, kHands>;

// The values the custom scoring dialog edits, with their defaults; the
// settings file keeps them.
struct ScoringValues {
    HandValues HandScores = {0, 50, 70, 80, 90, 100, 200, 300, 400, 500};
    int32_t BonusScore = 100000;     // the score that earns the bonus round
    int16_t OverWritesAllowed = 3;   // filled cells a round may overwrite
};

// Default settings of the game.
constexpr int16_t kDefaultTimeLimit = 75;
constexpr int32_t kDefaultTimeBonus = 1;  // the suite's TimeBonus while Handgrid is open

// Label colours: a hand name in blue, "Nothing" in the system's button text
// colour (the platform's 0x80000012).
constexpr int kHandColour = Colour::Blue;
constexpr int kButtonTextColour = static_cast<int>(0x80000012u);
int HandColour(const std::string& handName);

// Line `line` (0 to 4) of the grid as the evaluator reads it: each cell
// trimmed, an empty cell as "0".
Line LineOf(const Grid& cells, int line);

// Swaps cell r*5+c with c*5+r in place, so that columns read as rows.
void TransposeCards(Grid& cells);

// The cards' numeric values in ascending order, written one after the other:
// 1, 10, 11, 12, 13 give "110111213"; empty cells give a leading "0".
std::string HandString(Line hand);
// Only the ten runs from ace-low to ace-high are straights, looked up by the
// first character of the hand string; there is no wrap-around past the king.
bool IsStraightString(const std::string& handString);

// Names one line of five cells, partly filled or not: pairs, trips and fours
// count as soon as the cards of a rank stand in the line; a flush and a
// straight need five cards.
Hand EvaluateHand(const Line& hand);
inline const char* HandName(Hand hand) { return kHandNames[static_cast<size_t>(hand)]; }

// The stack picture for the cards left to draw.
const char* StackPictureKey(int cardsLeft);

// "Over Writes Remaining: n" and its colour: red at 0, blue otherwise.
std::string OverWritesText(int remaining);
int OverWritesColour(const std::string& caption);

// True when any scoring value differs from its default (time limit and the
// count-down switch do not count).
bool IsCustomScoring(const ScoringValues& values, int32_t timeBonus);

}  // namespace ch::handgrid
