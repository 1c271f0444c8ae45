// SPDX-License-Identifier: GPL-3.0-or-later
// The rules of Sumfall as plain data and functions: the deck for each card
// goal, the 22 field places with their tiers and offsets, which places cover
// which, the selection colours, and the saved game file.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace ch::sumfall {

constexpr int kFieldPlaces = 22;
constexpr int kUpPileSize = 31;  // UpCards(1..31)
constexpr int kDefaultCardGoal = 11;
constexpr int kUpCardPoints = 100;
constexpr int kFlipCost = 100;      // a voluntary turn of the play pile
constexpr int kFallBackCost = 100;  // an up card passed over falls back into the field

// The values the custom scoring dialog edits, with their defaults. They last
// as long as the window stays open.
struct ScoringValues {
    int32_t BonusRoundScore = 80000;  // the score after round 2 that earns the bonus round
    int32_t CompletionBonus = 10000;  // clearing the upper playing area
    int32_t CombinationBonus = 1500;  // each combination that makes the card goal
    bool operator==(const ScoringValues&) const = default;
};
constexpr int32_t kDefaultTimeBonus = 100;  // the suite's TimeBonus while Sumfall is open

struct FieldPlace {
    int points;  // paid when the card goes in a combination
    int dx, dy;  // twips from place 0
};
extern const std::array<FieldPlace, kFieldPlaces> kField;

// The places that lie on each place; a place is exposed when none of them
// still holds a card. Place 7 has no entry and is exposed from the start.
extern const std::array<std::vector<int>, kFieldPlaces> kCoveredBy;

// True when place `index` is exposed, given which places still hold a card.
// A place above 19 is always exposed.
bool IsExposed(int index, const std::array<bool, kFieldPlaces>& holdsCard);

// The deck before shuffling: slot 0 empty, sixteen aces, four of each rank 2
// to 10, then jacks for a goal of 12, and queens, kings as the goal rises.
std::vector<std::string> DeckForCardGoal(int cardGoal);
int DeckSize(int cardGoal);  // 52, 56, 60 or 64
inline int StockUpperBound(int cardGoal) { return DeckSize(cardGoal) - 22; }

// "Elevens:" for 11 and so on; the caption of lblElevens.
std::string CardGoalWord(int cardGoal);
// "eleven" for 11: the word in the custom scoring dialog.
std::string CardGoalName(int cardGoal);

struct SelectionColour {
    const char* menu;
    const char* caption;
    int color;
};
extern const std::array<SelectionColour, 6> kSelectionColours;
constexpr int kDefaultSelectionColour = 1;

// The stack picture for a play pile holding n cards.
const char* PlayPileKey(int cardsLeft);

// A saved game: the decks of the last finished game, so that another player
// can replay the very same cards.
struct SavedGame {
    int cardGoal = kDefaultCardGoal;
    int timeLimit = 90;
    int32_t score = 0;
    bool custom = false;
    std::string userName;
    std::vector<std::string> round1, round2, round3;  // from index 1; slot 0 empty
    bool timeLimitRead = false;
};

// The file's text, CR LF line ends; rounds 2 and 3 only when they were dealt.
std::string SavedGameText(const SavedGame& game);
// Reads a saved game; false when the text is not one (the first line must be
// "[Card Goal]", every value must be there). Fields end at a comma or a line
// end, as the file's reader has always split them.
bool ParseSavedGame(const std::string& text, SavedGame& game);
// "amassed a pitiful" .. "earned an unbelievable".
std::string SavedGameVerdict(int32_t score);
// The message shown after opening a saved game (without the time limit question).
std::string SavedGameMessage(const SavedGame& game);


}  // namespace ch::sumfall
