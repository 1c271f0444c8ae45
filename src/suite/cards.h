// SPDX-License-Identifier: GPL-3.0-or-later
// Cards, the shared deck, the shuffle with its exact use of random numbers, and
// the image catalogue whose keys "FULL", "BACK" and "HALF" follow the back design.
//
// A card code is rank then suit letter ("1S" .. "13D"), at times with a leading
// blank (" 10D") that every consumer trims; it is also the key of the card's
// picture. A card's value is the number at the start of the trimmed code.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace ch {

class Form;

// The shared deck; slot 0 exists and stays empty, cards run from 1 to the upper bound.
extern std::vector<std::string> Deck;
inline int DeckUpperBound() { return static_cast<int>(Deck.size()) - 1; }

int CardValue(const std::string& code);        // " 10D" and "10D" are 10
std::string CardKey(const std::string& code);  // the catalogue key: the trimmed code

// A result in lower..upper. The generator is reseeded from the platform's
// clock at every call, the reading mixed into its running state.
int16_t RandomInteger(int lower, int upper);
bool CreateStandardDeck();
// For i = 1 to n: exchange Deck(i) with Deck(RandomInteger(1, n)); exactly n draws.
bool ShuffleDeck();

// What a script may impose on the draws.
namespace randomness {
void Reset(uint64_t seed = 0x5EED);
// The next calls of RandomInteger return these values, whoever makes them.
void Queue(std::vector<int> values);
// The next ShuffleDeck leaves the deck in this order (codes compared trimmed);
// an empty order takes back one not yet used.
void StackNextShuffle(std::vector<std::string> order);
// True while a stacked order waits for the next ShuffleDeck.
bool StackPending();
// Where a value out of a call's bounds or an impossible stack is reported.
void SetFailureReporter(std::function<void(const std::string&)> report);
// Draws made so far by RandomInteger, for tests.
long DrawCount();
// The draws that make the shuffle leave `deck` in `order`; false when `order`
// is not a permutation of the deck's cards.
bool DrawsForOrder(const std::vector<std::string>& deck, const std::vector<std::string>& order,
                   std::vector<int>& draws);
}  // namespace randomness

// The 68 entries of the image catalogue, by one-based index and text key.
class ImageCatalogue {
public:
    static constexpr int kCount = 68;
    static constexpr int kFirstFace = 14;
    static constexpr int kLastFace = 65;
    static constexpr int kEmptyPlace = 13;
    static constexpr int kPointer = 66;
    static constexpr int kEmpty76x100 = 67;
    static constexpr int kSplashEmblem = 68;  // the fixed emblem of a splash screen

    ImageCatalogue();
    void reset();  // keys as at start

    const std::string& key(int index) const;  // empty when the entry holds no key
    int indexOf(const std::string& key) const;  // 0 when no entry holds it
    // The design-time size of an entry's picture, in pixels.
    int pixelWidth(int index) const;
    int pixelHeight(int index) const;

    // Moves "FULL", "BACK" and "HALF" to the three images of a back design
    // beginning at `firstIndex` (1, 4, 7 or 10); the other nine lose their key.
    void moveBackKeys(int firstIndex);

private:
    std::vector<std::string> keys_;
};

ImageCatalogue& ImageList2();

// The four back designs by their menu entries. The pictures of an entry never
// change; which DeckDesign number an entry stands for is the game's business.
struct BackDesign {
    const char* menu;     // "mnuPalm"
    const char* caption;  // "&Palm Tree"
    int firstIndex;       // catalogue index of its full stack
};
extern const BackDesign kBackDesigns[4];  // Palm, Magic, Night, Hot

// Removes the tick from the window's four design entries.
void ClearDeckCheck(Form& window);

}  // namespace ch
