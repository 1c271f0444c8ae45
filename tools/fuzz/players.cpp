// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/fuzz/players.h"

#include <algorithm>
#include <array>

#include "games/spirehold/modSpirehold.h"
#include "games/treyshift/modTreyshift.h"
#include "suite/cards.h"
#include "window/basic.h"
#include "window/form.h"

namespace ch {

namespace {

long long Number(const Form& game, const char* name, int index = -1) {
    Value v;
    if (!game.readVariable(name, index, v)) return 0;
    if (const long long* n = std::get_if<long long>(&v)) return *n;
    if (const bool* b = std::get_if<bool>(&v)) return *b ? 1 : 0;
    return 0;
}

std::string Text(const Form& game, const char* name, int index) {
    Value v;
    if (!game.readVariable(name, index, v)) return "";
    if (const std::string* s = std::get_if<std::string>(&v)) return Trim(*s);
    return "";
}

int Rank(const std::string& code) { return code.empty() ? 0 : CardValue(code); }
char Suit(const std::string& code) { return code.empty() ? ' ' : code.back(); }

std::string Click(const Form& game, const std::string& control) { return "click " + game.name() + "." + control; }

// ---- Treyshift: take the up card and lay it where a column is on its way to
// a Trip or a Run; storage when no column wants it.

// A second card that can still become a Trip or a Run under `top`.
bool StartsColumn(int top, int next) {
    return next == top || (next == top + 1 && top + 2 <= 13) || (next == top - 1 && top - 2 >= 1) ||
           (top == 1 && next == 13) || (top == 12 && next == 13);
}

// How much a column wants the card: 10 completes it, 2 carries it on, 1 for
// an empty column, below 0 when the card would spoil or can't go there.
int ColumnWants(const Form& game, int column, const std::string& card) {
    std::array<std::string, 3> cards;
    int filled = 0;
    for (int row = 0; row < 3; ++row) {
        cards[static_cast<size_t>(row)] = Text(game, "FieldCards", column + 4 * row);
        if (!cards[static_cast<size_t>(row)].empty()) ++filled;
    }
    if (filled == 0) return 1;
    if (filled == 1) return StartsColumn(Rank(cards[0]), Rank(card)) ? 2 : -2;
    if (filled == 2)
        return treyshift::ScoreColumn(cards[0], cards[1], card) != treyshift::ColumnKind::None ? 10 : -5;
    return -100;
}

std::string TreyshiftMove(const Form& game, std::mt19937_64& random) {
    const bool selected = Number(game, "Selected") != 0;
    const long long zone = Number(game, "SourceZone");
    const long long source = Number(game, "SourceIndex");
    const auto bestColumn = [&](const std::string& card, int& wants) {
        int best = 0;
        wants = -1000;
        for (int column = 0; column < treyshift::kColumns; ++column) {
            const int w = ColumnWants(game, column, card) * 4 + static_cast<int>(random() % 3);
            if (w > wants) wants = w, best = column;
        }
        wants /= 4;
        return best;
    };
    if (!selected) {
        // A stored card that completes a column goes first.
        for (int t = 0; t < treyshift::kTempSlots; ++t) {
            const std::string card = Text(game, "TempCards", t);
            int wants = 0;
            if (!card.empty()) bestColumn(card, wants);
            if (wants >= 10) return Click(game, "TempCard(" + std::to_string(t) + ")");
        }
        if (Text(game, "UpCards", 2).empty()) return Click(game, "cmdTakeScore");
        return Click(game, "UpCard(2)");
    }
    if (zone == treyshift::ZoneField) return Click(game, "PlayCard(" + std::to_string(source) + ")");
    const std::string card =
        zone == treyshift::ZoneDeck ? Text(game, "UpCards", 2) : Text(game, "TempCards", static_cast<int>(source));
    int wants = 0;
    const int column = bestColumn(card, wants);
    if (wants >= 1) return Click(game, "PlayCard(" + std::to_string(column) + ")");
    if (zone == treyshift::ZoneDeck)
        for (int t = 0; t < treyshift::kTempSlots; ++t)
            if (Text(game, "TempCards", t).empty()) return Click(game, "TempCard(" + std::to_string(t) + ")");
    return Click(game, "PlayCard(" + std::to_string(column) + ")");
}

// ---- Handgrid: lay the hole card where its row and column hold most of its
// rank, then of its suit, so that all ten hands pay.
std::string HandgridMove(const Form& game, std::mt19937_64& random) {
    const long long hole = Number(game, "HoleCount");
    if (hole <= 0) return "";
    const std::string card = Text(game, "HoleCards", static_cast<int>(hole));
    if (card.empty()) return "";
    int best = -1;
    long long bestScore = -1;
    for (int cell = 0; cell < 25; ++cell) {
        if (!Text(game, "PlayedCards", cell).empty()) continue;
        long long score = static_cast<long long>(random() % 3);
        for (int other = 0; other < 25; ++other) {
            if (other == cell || (other / 5 != cell / 5 && other % 5 != cell % 5)) continue;
            const std::string there = Text(game, "PlayedCards", other);
            if (there.empty()) continue;
            if (Rank(there) == Rank(card)) score += 12;
            if (Suit(there) == Suit(card)) score += 4;
        }
        if (score > bestScore) bestScore = score, best = cell;
    }
    return best < 0 ? "" : Click(game, "PlayCards(" + std::to_string(best) + ")");
}

// ---- Fivestack: lay the next card where it brings a column nearest 21
// without a bust (an ace as 11 where it fits), and pass when no column takes
// it, so that the five columns reach the top of the table.
std::string FivestackMove(const Form& game, std::mt19937_64& random) {
    const long long position = Number(game, "DeckPosition");
    if (position < 1 || position >= static_cast<long long>(Deck.size())) return "";
    const int value = std::min(CardValue(Deck[static_cast<size_t>(position)]), 10);
    int best = -1, bestTotal = -1;
    for (int column = 0; column < 5; ++column) {
        const Control* label = game.find("ColumnTotal", column);
        if (!label || Number(game, "ColumnCards", column) >= 5) continue;
        const int total = static_cast<int>(Val(label->caption()));
        const int reached = total + (value == 1 && total + 11 <= 21 ? 11 : value);
        if (reached <= 21 && reached > bestTotal) best = column, bestTotal = reached;
    }
    if (best >= 0) return Click(game, "cmdHit(" + std::to_string(best) + ")");
    if (Number(game, "PassesLeft") != 0) return Click(game, "cmdPass");
    return Click(game, "cmdHit(" + std::to_string(random() % 5) + ")");
}

// ---- Spirehold: take any face-up tower card one rank from the up card, so
// that runs grow long; turn the stack only when none is there.
std::string SpireholdMove(const Form& game, std::mt19937_64& random) {
    const int up = static_cast<int>(Number(game, "UpCardValue"));
    const int back = ImageList2().indexOf("BACK");
    std::vector<int> legal;
    for (int i = 0; i < spirehold::kTowerCards; ++i) {
        const Control* card = game.find("UpCardImage", i);
        if (!card || !card->visible() || !card->enabled() || card->picture() == 0 || card->picture() == back) continue;
        if (spirehold::IsNeighbour(Rank(Text(game, "DeckCards", i)), up)) legal.push_back(i);
    }
    if (!legal.empty()) return Click(game, "UpCardImage(" + std::to_string(legal[random() % legal.size()]) + ")");
    if (Number(game, "CardsRemaining") > 0) return Click(game, "CardStackPicture");
    return Click(game, "cmdTakeScore");
}

}  // namespace

std::string ScoringMove(const Form& game, std::mt19937_64& random) {
    if (game.name() == "frmSpirehold") return SpireholdMove(game, random);
    if (game.name() == "frmTreyshift") return TreyshiftMove(game, random);
    if (game.name() == "frmFivestack") return FivestackMove(game, random);
    if (game.name() == "frmHandgrid") return HandgridMove(game, random);
    return "";
}

std::vector<std::string> GoodDeck(std::mt19937_64& random) {
    static const char kSuits[] = {'S', 'H', 'C', 'D'};
    std::vector<std::string> deck;
    const int pattern = static_cast<int>(random() % 4);
    for (int i = 0; i < 52; ++i) {
        // Cards of a rank together, or each suit in sequence; either way round.
        const int k = pattern % 2 == 0 ? i : 51 - i;
        const int rank = pattern < 2 ? k / 4 + 1 : k % 13 + 1;
        const char suit = pattern < 2 ? kSuits[k % 4] : kSuits[k / 13];
        deck.push_back(std::to_string(rank) + suit);
    }
    return deck;
}

const std::vector<std::string>& EdgeValues() {
    static const std::vector<std::string> kValues = {
        "0",          "-1",          "1",           "32767",      "32768",      "-32768", "-32769",
        "65535",      "65536",       "2147483647",  "2147483648", "-2147483648", "-2147483649",
        "4294967296", "99999999999999999999", "10", "11",         "60",         "100",    "1000",
        "5000",       "20000",       "50000",       "100000",     "1000000"};
    return kValues;
}

std::string EdgeSettings(const std::string& text, double p, std::mt19937_64& random) {
    std::string out;
    size_t pos = 0;
    bool valueNext = false;
    const auto& values = EdgeValues();
    while (pos < text.size()) {
        size_t end = text.find('\n', pos);
        if (end == std::string::npos) end = text.size();
        std::string line = text.substr(pos, end - pos);
        const std::string ending = end < text.size() ? "\n" : "";
        std::string cr;
        if (!line.empty() && line.back() == '\r') line.pop_back(), cr = "\r";
        const bool numeric = !line.empty() && line.find_first_not_of("-0123456789") == std::string::npos;
        if (valueNext && numeric && std::uniform_real_distribution<double>(0, 1)(random) < p)
            line = values[static_cast<size_t>(random() % values.size())];
        valueNext = !line.empty() && line.front() == '[';
        out += line + cr + ending;
        pos = end + 1;
    }
    return out;
}

}  // namespace ch
