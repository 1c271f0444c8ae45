// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/sumfall/modSumfall.h"

#include <cctype>

#include "window/basic.h"
#include "window/control.h"

namespace ch::sumfall {

const std::array<FieldPlace, kFieldPlaces> kField = {{
    {700, 0, 0},
    {600, -2610, 500},
    {600, 2610, 500},
    {600, -630, 500},
    {600, 630, 500},
    {500, -3285, 1000},
    {500, -1935, 1000},
    {500, 0, 1000},
    {500, 1935, 1000},
    {500, 3285, 1000},
    {400, -3960, 1500},
    {400, -2610, 1500},
    {400, -1260, 1500},
    {400, 1260, 1500},
    {400, 2610, 1500},
    {400, 3960, 1500},
    {300, -3285, 2000},
    {300, -1935, 2000},
    {300, 1935, 2000},
    {300, 3285, 2000},
    {200, -2610, 2500},
    {200, 2610, 2500},
}};

const std::array<std::vector<int>, kFieldPlaces> kCoveredBy = {{
    {3, 4}, {5, 6}, {8, 9}, {7, 12}, {7, 13}, {10, 11}, {11, 12}, {}, {13, 14}, {14, 15}, {16},
    {16, 17}, {17}, {18}, {18, 19}, {19}, {20}, {20}, {21}, {21}, {}, {},
}};

bool IsExposed(int index, const std::array<bool, kFieldPlaces>& holdsCard) {
    if (index > 19) return true;
    if (index < 0) return false;
    for (int over : kCoveredBy[static_cast<size_t>(index)])
        if (holdsCard[static_cast<size_t>(over)]) return false;
    return true;
}

int DeckSize(int cardGoal) {
    if (cardGoal <= 11) return 52;
    if (cardGoal == 12) return 56;
    if (cardGoal == 13) return 60;
    return 64;
}

std::vector<std::string> DeckForCardGoal(int cardGoal) {
    static const char kSuits[] = {'S', 'H', 'C', 'D'};
    std::vector<std::string> deck(1);
    for (char suit : kSuits)
        for (int k = 0; k < 4; ++k) deck.push_back(std::string("1") + suit);
    for (char suit : kSuits)
        for (int rank = 2; rank <= 10; ++rank) deck.push_back(Str(rank) + suit);
    for (int rank = 11; rank <= 13 && static_cast<int>(deck.size()) - 1 < DeckSize(cardGoal); ++rank)
        for (char suit : kSuits) deck.push_back(std::to_string(rank) + suit);
    return deck;
}

std::string CardGoalWord(int cardGoal) {
    static const char* const kWords[] = {"Tens:", "Elevens:", "Twelves:", "Thirteens:", "Fourteens:", "Fifteens:"};
    if (cardGoal < 10 || cardGoal > 15) return "";
    return kWords[cardGoal - 10];
}

std::string CardGoalName(int cardGoal) {
    static const char* const kNames[] = {"ten", "eleven", "twelve", "thirteen", "fourteen", "fifteen"};
    if (cardGoal < 10 || cardGoal > 15) return "";
    return kNames[cardGoal - 10];
}

const std::array<SelectionColour, 6> kSelectionColours = {{
    {"mnuYellow", "&Yellow", Colour::Yellow},
    {"mnuRed", "&Red (Default)", Colour::Red},
    {"mnuBlue", "&Blue", Colour::Blue},
    {"mnuGreen", "&Green", Colour::Green},
    {"mnuPurple", "&Purple", Colour::Purple},
    {"mnuBlack", "&Black", Colour::Black},
}};

const char* PlayPileKey(int cardsLeft) {
    if (cardsLeft < 1) return "EMPTY";
    if (cardsLeft <= 10) return "BACK";
    if (cardsLeft <= 20) return "HALF";
    return "FULL";
}

std::string SavedGameText(const SavedGame& game) {
    std::string text;
    auto line = [&text](const std::string& s) { text += s + "\r\n"; };
    auto deck = [&](const char* heading, const std::vector<std::string>& cards) {
        line(heading);
        for (size_t i = 1; i < cards.size(); ++i) line(Trim(cards[i]));
    };
    line("[Card Goal]");
    line(NumText(game.cardGoal));
    line("[Time Limit]");
    line(NumText(game.timeLimit));
    line("[Score]");
    line(NumText(game.score));
    line("[Custom]");
    line(BoolText(game.custom));
    line("[UserName]");
    line(game.userName.empty() ? "an anonymous user" : game.userName);
    deck("[Round 1 Deck]", game.round1);
    if (game.round2.size() > 1 && !game.round2[1].empty()) deck("[Round 2 Deck]", game.round2);
    if (game.round3.size() > 1 && !game.round3[1].empty()) deck("[Round 3 Deck]", game.round3);
    return text;
}

namespace {
// Reads a text one field at a time: a field ends at a comma or a line end,
// leading blanks are skipped, and a field in double quotes may hold commas.
// An empty line is an empty field: the empty codes of a game saved before
// any was played read back as such.
class FieldReader {
public:
    explicit FieldReader(const std::string& text) : text_(text) {}
    bool next(std::string& field) {
        if (pos_ >= text_.size()) return false;
        field.clear();
        while (pos_ < text_.size() && text_[pos_] == ' ') ++pos_;
        if (pos_ < text_.size() && text_[pos_] == '"') {
            ++pos_;
            while (pos_ < text_.size() && text_[pos_] != '"') field += text_[pos_++];
            if (pos_ < text_.size()) ++pos_;
            while (pos_ < text_.size() && text_[pos_] != ',' && text_[pos_] != '\r' && text_[pos_] != '\n') ++pos_;
        } else {
            while (pos_ < text_.size() && text_[pos_] != ',' && text_[pos_] != '\r' && text_[pos_] != '\n')
                field += text_[pos_++];
            field = RTrim(field);
        }
        if (pos_ < text_.size() && text_[pos_] == ',') ++pos_;
        else skipOneLineEnd();
        return true;
    }

private:
    void skipOneLineEnd() {
        if (pos_ < text_.size() && text_[pos_] == '\r') ++pos_;
        if (pos_ < text_.size() && text_[pos_] == '\n') ++pos_;
    }
    const std::string& text_;
    size_t pos_ = 0;
};

// A number field: blank (read as 0) or a sign, digits and a decimal part.
bool ReadNumber(FieldReader& in, double& value) {
    std::string field;
    if (!in.next(field)) return false;
    const std::string t = Trim(field);
    size_t i = !t.empty() && (t[0] == '-' || t[0] == '+') ? 1 : 0;
    bool digits = false;
    for (; i < t.size(); ++i) {
        if (std::isdigit(static_cast<unsigned char>(t[i]))) digits = true;
        else if (t[i] != '.') return false;
    }
    if (!t.empty() && !digits) return false;
    value = Val(t);
    return true;
}
}  // namespace

namespace {
bool ReadSavedGame(const std::string& text, SavedGame& game) {
    FieldReader in(text);
    std::string field;
    if (!in.next(field) || field != "[Card Goal]") return false;
    game = SavedGame{};
    int size = DeckSize(kDefaultCardGoal);
    auto readDeck = [&](std::vector<std::string>& deck) {
        deck.assign(static_cast<size_t>(size) + 1, std::string());
        for (int i = 1; i <= size; ++i)
            if (!in.next(deck[static_cast<size_t>(i)])) return false;
        return true;
    };
    for (;;) {
        double number = 0;
        if (field == "[Card Goal]") {
            if (!ReadNumber(in, number)) return false;
            game.cardGoal = CInt(number);
            size = DeckSize(game.cardGoal);
            game.round1.assign(static_cast<size_t>(size) + 1, std::string());
            game.round2 = game.round1;
            game.round3 = game.round1;
        } else if (field == "[Time Limit]") {
            if (!ReadNumber(in, number)) return false;
            game.timeLimit = CInt(number);
            game.timeLimitRead = true;
        } else if (field == "[Score]") {
            if (!ReadNumber(in, number)) return false;
            game.score = CLng(number);
        } else if (field == "[UserName]") {
            if (!in.next(game.userName)) return false;
        } else if (field == "[Custom]") {
            std::string value;
            if (!in.next(value)) return false;
            game.custom = value != "False";
        } else if (field == "[Round 1 Deck]") {
            if (!readDeck(game.round1)) return false;
        } else if (field == "[Round 2 Deck]") {
            if (!readDeck(game.round2)) return false;
        } else if (field == "[Round 3 Deck]") {
            if (!readDeck(game.round3)) return false;
        }
        if (!in.next(field)) return true;
    }
}

}  // namespace

bool ParseSavedGame(const std::string& text, SavedGame& game) {
    try {
        return ReadSavedGame(text, game);
    } catch (const RuntimeError&) {
        return false;  // a number out of its range
    }
}

std::string SavedGameVerdict(int32_t score) {
    if (score < 20000) return "amassed a pitiful";
    if (score <= 40000) return "accumulated a sorry";
    if (score <= 60000) return "earned a pretty weak";
    if (score <= 80000) return "earned a mediocre";
    if (score <= 100000) return "earned a respectable";
    if (score <= 120000) return "earned a decent";
    if (score <= 140000) return "earned a darned good";
    if (score <= 160000) return "earned an incredible";
    return "earned an unbelievable";
}

std::string SavedGameMessage(const SavedGame& game) {
    return "This game was saved by " + game.userName + ". He or she " + SavedGameVerdict(game.score) +
           " score of " + FormatScore(game.score) + " in this game. " +
           (game.custom ? "Customized scoring was in effect when this game was played. "
                        : "Customized scoring was not in effect when this game was played. ");
}

}  // namespace ch::sumfall
