// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/cards.h"

#include <algorithm>
#include <cmath>
#include <deque>

#include "suite/common.h"
#include "window/basic.h"
#include "window/form.h"
#include "window/runtime.h"

namespace ch {

std::vector<std::string> Deck(1);

int CardValue(const std::string& code) { return static_cast<int>(Val(Trim(code))); }

std::string CardKey(const std::string& code) { return Trim(code); }

namespace randomness {
namespace {
uint64_t g_state = 0x5EED;
long g_draws = 0;
std::deque<int> g_queued;
std::vector<std::string> g_stack;
bool g_stacked = false;
std::function<void(const std::string&)> g_report;

void Report(const std::string& text) {
    if (g_report) g_report(text);
}

uint64_t SplitMix(uint64_t& state) {
    uint64_t z = (state += 0x9E3779B97F4A7C15ULL);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31);
}
}  // namespace

void Reset(uint64_t seed) {
    g_state = seed;
    g_draws = 0;
    g_queued.clear();
    g_stack.clear();
    g_stacked = false;
}

void Queue(std::vector<int> values) { g_queued.insert(g_queued.end(), values.begin(), values.end()); }

void StackNextShuffle(std::vector<std::string> order) {
    g_stacked = !order.empty();
    g_stack = std::move(order);
}

bool StackPending() { return g_stacked; }

void SetFailureReporter(std::function<void(const std::string&)> report) { g_report = std::move(report); }

long DrawCount() { return g_draws; }

// At step i the card wanted at i is fetched from a place at or after i, so the
// places before i, already right, are never touched again.
bool DrawsForOrder(const std::vector<std::string>& deck, const std::vector<std::string>& order,
                   std::vector<int>& draws) {
    const size_t n = deck.empty() ? 0 : deck.size() - 1;
    draws.clear();
    if (order.size() != n) return false;
    std::vector<std::string> work = deck;
    for (size_t i = 1; i <= n; ++i) {
        const std::string wanted = Trim(order[i - 1]);
        size_t k = i;
        while (k <= n && Trim(work[k]) != wanted) ++k;
        if (k > n) return false;
        draws.push_back(static_cast<int>(k));
        std::swap(work[i], work[k]);
    }
    return true;
}

// The draws of a stacked shuffle, or none.
std::vector<int> TakeStackedDraws() {
    std::vector<int> draws;
    if (!g_stacked) return draws;
    g_stacked = false;
    if (!DrawsForOrder(Deck, g_stack, draws)) {
        Report("stack: not an order of the " + std::to_string(DeckUpperBound()) + " cards being shuffled");
        draws.clear();
    }
    g_stack.clear();
    return draws;
}

int16_t Draw(int lower, int upper) {
    ++g_draws;
    if (!g_queued.empty()) {
        const int value = g_queued.front();
        g_queued.pop_front();
        if (value < lower || value > upper)
            Report("random " + std::to_string(value) + " is outside " + std::to_string(lower) + ".." +
                   std::to_string(upper));
        return static_cast<int16_t>(value);
    }
    const int64_t clock = Runtime::exists() ? Runtime::current().platform().wallClock() : 0;
    g_state ^= static_cast<uint64_t>(clock) * 0xD1B54A32D192ED03ULL;
    const double r = static_cast<double>(SplitMix(g_state) >> 11) * 0x1.0p-53;
    return static_cast<int16_t>(std::floor((upper - lower + 1) * r + lower));
}
}  // namespace randomness

int16_t RandomInteger(int lower, int upper) { return randomness::Draw(lower, upper); }

bool CreateStandardDeck() {
    static const char kSuits[] = {'S', 'H', 'C', 'D'};
    try {
        Deck.assign(53, std::string());
        for (int i = 1; i <= 52; ++i) Deck[static_cast<size_t>(i)] = Str((i - 1) % 13 + 1) + kSuits[(i - 1) / 13];
        return true;
    } catch (const std::exception&) {
        MsgBox("Unable to create the deck.", MsgButtons::OK, MsgIcon::None, AppTitle);
        return false;
    }
}

bool ShuffleDeck() {
    try {
        const int n = DeckUpperBound();
        const std::vector<int> stacked = randomness::TakeStackedDraws();
        for (int i = 1; i <= n; ++i) {
            const int j = stacked.empty() ? RandomInteger(1, n) : stacked[static_cast<size_t>(i - 1)];
            std::swap(Deck.at(static_cast<size_t>(i)), Deck.at(static_cast<size_t>(j)));
        }
        return true;
    } catch (const std::exception&) {
        MsgBox("Unable to shuffle the deck.", MsgButtons::OK, MsgIcon::Critical, AppTitle);
        return false;
    }
}

ImageCatalogue::ImageCatalogue() { reset(); }

void ImageCatalogue::reset() {
    static const char kSuits[] = {'S', 'H', 'C', 'D'};
    keys_.assign(kCount + 1, std::string());
    keys_[1] = "FULL";
    keys_[2] = "BACK";
    keys_[3] = "HALF";
    keys_[kEmptyPlace] = "EMPTY";
    for (int i = kFirstFace; i <= kLastFace; ++i)
        keys_[static_cast<size_t>(i)] = std::to_string((i - kFirstFace) % 13 + 1) + kSuits[(i - kFirstFace) / 13];
    keys_[kPointer] = "POINTER";
    keys_[kEmpty76x100] = "Empty";
    keys_[kSplashEmblem] = "SFUP";
}

const std::string& ImageCatalogue::key(int index) const {
    static const std::string none;
    if (index < 1 || index > kCount) return none;
    return keys_[static_cast<size_t>(index)];
}

int ImageCatalogue::indexOf(const std::string& key) const {
    if (key.empty()) return 0;
    for (int i = 1; i <= kCount; ++i)
        if (keys_[static_cast<size_t>(i)] == key) return i;
    return 0;
}

int ImageCatalogue::pixelWidth(int index) const {
    if (index >= 1 && index <= 12) return (index - 1) % 3 == 1 ? 71 : 76;
    if (index >= kFirstFace && index <= kLastFace) return 69;
    if (index == kPointer) return 32;
    if (index == kEmpty76x100) return 76;
    return 71;  // the empty place and the splash picture
}

int ImageCatalogue::pixelHeight(int index) const {
    if (index >= 1 && index <= 12) return (index - 1) % 3 == 1 ? 96 : 98;
    if (index >= kFirstFace && index <= kLastFace) return 94;
    if (index == kPointer) return 32;
    if (index == kEmpty76x100) return 100;
    return 96;
}

void ImageCatalogue::moveBackKeys(int firstIndex) {
    for (int i = 1; i <= 12; ++i) keys_[static_cast<size_t>(i)].clear();
    keys_[static_cast<size_t>(firstIndex)] = "FULL";
    keys_[static_cast<size_t>(firstIndex + 1)] = "BACK";
    keys_[static_cast<size_t>(firstIndex + 2)] = "HALF";
    if (Runtime::exists()) Runtime::current().touch();
}

ImageCatalogue& ImageList2() {
    static ImageCatalogue catalogue;
    return catalogue;
}

const BackDesign kBackDesigns[4] = {
    {"mnuPalm", "&Palm Tree", 1},
    {"mnuMagic", "&Magic Hands", 4},
    {"mnuNight", "&Night Castle", 7},
    {"mnuHot", "&Hot Cards", 10},
};

void ClearDeckCheck(Form& window) {
    for (const char* name : {"mnuMagic", "mnuPalm", "mnuNight", "mnuHot"})
        if (Control* entry = window.find(name)) entry->setChecked(false);
}

}  // namespace ch
