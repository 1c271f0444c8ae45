// SPDX-License-Identifier: GPL-3.0-or-later
// Damaged, unreadable and missing files under every game window: each opens,
// plays and closes, and a file it could not read is never written over.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <fstream>
#include <functional>
#include <optional>
#include <ostream>
#include <utility>
#include <random>
#include <string>
#include <vector>

#include "games/games.h"
#include "suite/common.h"
#include "suite/files.h"
#include "suite/gamewindow.h"
#include "suite/highscores.h"
#include "suite/suite.h"
#include "window/basic.h"
#include "window/form.h"
#include "window/headless.h"
#include "window/runtime.h"

using namespace ch;
namespace fs = std::filesystem;

namespace {

const char kTableMessage[] =
    "An error occured when attmpting to access the High Score Table. Please close and restart the game.";
const char kOpenMessage[] =
    "Unable to open the requested file. It may be damaged or you may have entered an invalid file name.";

struct Game {
    const char* form;
    const char* button;
    const char* settings;  // in the home folder
    const char* table;     // the table file of the default time limit (and card goal)
    const char* label;     // the high score label's words before the score
    const char* top;       // the top score of a fresh table, as shown
};

const Game kGames[] = {
    {"frmSumfall", "cmdSumfall", "Sumfall.Ini", "HiScores90_11.Txt", "High Score: ", "50,000"},
    {"frmFivestack", "cmdFivestack", "Fivestack.Ini", "HiScores60.Txt", "High Score: ", "50,000"},
    {"frmBlackrush", "cmdBlackrush", "Blackrush.Ini", "BlackrushHiScores90.Txt", "High Score: ", "50,000"},
    {"frmSpirehold", "cmdSpirehold", "Spirehold.Ini", "SpireholdHiScores45.Txt", "Current High Score: ", "30,000"},
    {"frmDuopick", "cmdDuopick", "Duopick.Ini", "DuopickHighScores45.Txt", "High Score: ", "30,000"},
    {"frmHandgrid", "cmdHandgrid", "Handgrid.Ini", "HandgridHighScores75.Txt", "High Score: ", "30,000"},
    {"frmTreyshift", "cmdTreyshift", "Treyshift.Ini", "TreyshiftHiScores120.Txt", "High Score: ", "30,000"},
};

void PrintTo(const Game& g, std::ostream* os) { *os << g.form; }

std::string ReadText(const fs::path& path) {
    std::string text;
    return ReadWholeFile(path.string(), text) ? text : "<unread>";
}

// A file's content laid down or checked; "<folder>" is a folder in its place, "<none>" no file.
void Lay(const fs::path& path, const std::string& content) {
    std::error_code ec;
    fs::remove_all(path, ec);
    if (content == "<folder>") fs::create_directories(path / "inside");
    else if (content != "<none>") std::ofstream(path, std::ios::binary) << content;
}
bool Holds(const fs::path& path, const std::string& content) {
    if (content == "<folder>") return fs::is_directory(path / "inside");
    return content == "<none>" ? !fs::exists(path) : ReadText(path) == content;
}

// A session of the suite in one runtime, run by a plan of steps and checks;
// modal name entry and Hall of Fame windows are answered (an empty name, Done).
class Session {
public:
    using Step = HeadlessPlatform::Step;
    using When = std::function<bool()>;
    static bool Always() { return true; }

    explicit Session(const fs::path& home) : home_(home) {
        platform_.setSource([this] { return next(); });
        platform_.setFailureReporter([this](const std::string& text) {
            for (const std::string& allowed : allowedUnanswered)
                if (text.find('"' + allowed + '"') != std::string::npos) return;
            ADD_FAILURE() << text << " (" << what << ")";
        });
    }

    static Step Input(InputKind kind, const std::string& form, const std::string& control,
                      const std::string& text = "") {
        Step step{Step::Kind::Input, {}, 0};
        step.event.kind = kind;
        step.event.form = form;
        step.event.control = control;
        step.event.text = text;
        return step;
    }
    void then(std::function<void()> check) {
        plan_.emplace_back([check] {
            check();
            return std::optional<Step>();
        });
    }
    void input(InputKind kind, const std::string& form, const std::string& control, const std::string& text = "",
               When when = Always) {
        plan_.emplace_back([step = Input(kind, form, control, text), when, done = false]() mutable {
            return std::exchange(done, true) || !when() ? std::nullopt : std::optional<Step>(step);
        });
    }
    void click(const std::string& form, const std::string& control, When when = Always) {
        input(InputKind::Click, form, control, "", std::move(when));
    }
    void answer(MsgAnswer a, When when = Always) {
        then([this, when, a] {
            if (when()) platform_.queueAnswer(a, 0);
        });
    }
    void open(const Game& g) { click("frmSelect", g.button); }
    void close(const Game& g, const When& when = Always) {
        answer(MsgAnswer::Yes, when);
        input(InputKind::Close, g.form, "", "", when);
    }
    // A whole game left to the clock: every round runs out, no bonus round.
    void play(const Game& g) {
        click(g.form, "cmdPlay");
        toTheEnd(1000);
    }
    // A whole game with every round taken at once, each bonus paid with the seconds left.
    void takeScores(const Game& g) {
        const auto canTake = [this, &g](bool inGame) {
            return [this, &g, inGame] {
                const Form* f = runtime_.loaded(g.form);
                const Control* take = f ? f->find("cmdTakeScore") : nullptr;
                return take && (!inGame || (GameInProgress && take->enabled()));
            };
        };
        click(g.form, "cmdPlay", canTake(false));
        for (int round = 0; round < 5; ++round) click(g.form, "cmdTakeScore", canTake(true));
        toTheEnd(1000);
    }
    // A second at a time until game over (`seconds` at most); "Game Over" then stands two seconds.
    void toTheEnd(int seconds, bool mustEnd = true) {
        plan_.emplace_back([this, seconds, mustEnd]() mutable {
            if (GameInProgress && seconds-- > 0) return std::optional<Step>(Step{Step::Kind::Advance, {}, 1000});
            EXPECT_TRUE(!GameInProgress || !mustEnd) << "the game never ended (" << what << ")";
            return std::optional<Step>();
        });
        plan_.emplace_back([seconds = 2]() mutable {
            return seconds-- > 0 ? std::optional<Step>(Step{Step::Kind::Advance, {}, 1000}) : std::nullopt;
        });
    }

    void run() {
        RegisterGameForms(runtime_);
        StartSuite(runtime_, {home_.string(), "", ""});
        try {
            runtime_.run();
        } catch (const StopRun&) {
        } catch (const std::exception& e) {
            ADD_FAILURE() << "uncaught " << e.what() << " (" << what << ")";
        }
        ClearFileFaults();
    }

    std::string what;  // the case at hand, for failures found by the platform
    // Message boxes that may go unanswered: No, or Cancel, is taken.
    std::vector<std::string> allowedUnanswered;
    // The message boxes shown since the last call, their texts only.
    std::vector<std::string> boxes() {
        std::vector<std::string> texts;
        for (const MessageBox& box : platform_.takeMessageBoxes()) texts.push_back(box.text);
        return texts;
    }
    std::string caption(const std::string& form, const std::string& control) {
        Form* f = runtime_.loaded(form);
        return f ? f->c(control).caption() : "<not loaded>";
    }
    bool shown(const std::string& form) {
        Form* f = runtime_.loaded(form);
        return f && f->visible();
    }

private:
    Step next() {
        for (const char* modal : {"frmHiScoreName", "frmHighScores"})
            if (Form* f = runtime_.loaded(modal); f && f->modal())
                return Input(InputKind::Click, modal, modal == std::string("frmHiScoreName") ? "cmdOK" : "cmdDone");
        for (; !plan_.empty(); plan_.pop_front())
            if (const std::optional<Step> step = plan_.front()()) return *step;
        return Step{};  // the end: quit
    }

    fs::path home_;
    HeadlessPlatform platform_;
    Runtime runtime_{platform_};
    std::deque<std::function<std::optional<Step>()>> plan_;
};

// The corpus made from a valid file: what a crash, another program or a bad disk could leave.
struct Damage {
    std::string what;
    std::string text;
};

// A text's lines, each with its line end.
std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    for (size_t start = 0, end; start < text.size(); start = end) {
        end = text.find('\n', start);
        end = end == std::string::npos ? text.size() : end + 1;
        lines.push_back(text.substr(start, end - start));
    }
    return lines;
}

bool Numeric(const std::string& s) { return !s.empty() && s.find_first_not_of("-0123456789") == std::string::npos; }

std::string WithLineEnds(std::string text, const std::string& end) {
    for (size_t at = 0; (at = text.find("\r\n", at)) != std::string::npos; at += end.size()) text.replace(at, 2, end);
    return text;
}

// Every number alone on a line, or after a table entry's ", ", replaced by `number`.
std::string WithNumbers(const std::string& text, const std::string& number) {
    std::string out;
    for (std::string line : Lines(text)) {
        const size_t body = line.find_last_not_of("\r\n") + 1, comma = line.rfind(", ");
        const std::string end = line.substr(body);
        line.resize(body);
        if (Numeric(line)) line = number;
        else if (comma != std::string::npos && Numeric(line.substr(comma + 2)))
            line.replace(comma + 2, std::string::npos, number);
        out += line + end;
    }
    return out;
}

// Cut at every byte (the first cut empty, a cut's index its length), then the rest.
std::vector<Damage> Corpus(const std::string& valid, unsigned seed) {
    std::vector<Damage> corpus;
    for (size_t k = 0; k < valid.size(); ++k) corpus.push_back({"cut at " + std::to_string(k), valid.substr(0, k)});
    corpus.push_back({"LF line ends", WithLineEnds(valid, "\n")});
    corpus.push_back({"CR line ends", WithLineEnds(valid, "\r")});
    std::mt19937 random(seed);
    for (size_t size : {1u, 97u, 4096u}) {
        std::string bytes(size, '\0');
        for (char& b : bytes) b = static_cast<char>(random());
        corpus.push_back({"random bytes " + std::to_string(size), bytes});
    }
    // The file's own lines in a random order, some left out.
    std::vector<std::string> lines = Lines(valid);
    for (int n = 0; n < 2; ++n) {
        std::shuffle(lines.begin(), lines.end(), random);
        std::string text;
        for (const std::string& line : lines)
            if (random() % 4) text += line;
        corpus.push_back({"lines shuffled", text});
    }
    std::string big = valid;
    while (big.size() < 10'000'000) big += "line " + std::to_string(big.size()) + " of a file grown past all sense\r\n";
    corpus.push_back({"10 MB", big});
    corpus.push_back({"1 MB line", valid + std::string(1'000'000, 'x') + "\r\n" + valid});
    for (const char* number : {"4294967296", "99999999999999999999", "2147483647", "-2147483648", "-2147483649", "-1",
                               "32768", "-32769", "0"})
        corpus.push_back({std::string("numbers ") + number, WithNumbers(valid, number)});
    return corpus;
}

// One numeric section at a time set to each 16- and 32-bit edge: the bounds, one past, -1, 0.
std::vector<Damage> EdgeCases(const std::string& valid) {
    const std::vector<std::string> lines = Lines(valid);
    std::vector<Damage> cases;
    for (size_t i = 1; i < lines.size(); ++i) {
        if (lines[i - 1].front() != '[' || !Numeric(lines[i].substr(0, lines[i].size() - 2))) continue;
        for (const char* edge : {"2147483647", "2147483648", "-2147483648", "-2147483649", "32767", "32768", "-32768",
                                 "-32769", "-1", "0"}) {
            std::string text;
            for (size_t k = 0; k < lines.size(); ++k) text += k == i ? edge + std::string("\r\n") : lines[k];
            cases.push_back({lines[i - 1].substr(0, lines[i - 1].size() - 2) + " " + edge, text});
        }
    }
    return cases;
}

std::vector<std::string> Sections(const std::string& text) {
    std::vector<std::string> names = Lines(text);
    std::erase_if(names, [](const std::string& line) { return line.front() != '['; });
    return names;
}

// A fresh home folder, in memory where there is one, so that a sync costs nothing.
template <class Base>
class InHome : public Base {
protected:
    void SetUp() override {
        std::error_code ec;
        const fs::path base = fs::is_directory("/dev/shm", ec) ? fs::path("/dev/shm") : fs::temp_directory_path();
        std::string pattern = (base / "cardhaven-damaged-XXXXXX").string();
        ASSERT_NE(mkdtemp(pattern.data()), nullptr);
        home = pattern;
    }
    void TearDown() override {
        ClearFileFaults();
        std::error_code ec;
        fs::remove_all(home, ec);
    }
    fs::path home;
};

class DamagedFiles : public InHome<::testing::TestWithParam<Game>> {
protected:
    // The files a game writes into an empty home: its settings and its fresh table.
    void SetUp() override {
        InHome::SetUp();
        const Game& g = GetParam();
        Session s(home);
        s.open(g);
        s.then([&] { EXPECT_EQ(s.caption(g.form, "lblHighScore"), g.label + std::string(g.top)); });
        s.close(g);
        s.run();
        settings = ReadText(home / g.settings);
        table = ReadText(home / g.table);
        ASSERT_FALSE(Sections(settings).empty());
        ASSERT_EQ(table, DefaultHighScoreText(ParseHighScoreText(table).front().score) + "\r\n");
    }

    // Each damaged settings file or table in turn: the window opens, plays and closes with no
    // message but the close question (and the overflow of a score carried past its range),
    // and writes a whole settings file on closing. Corpus files now and then play a game out.
    enum class Kind { Settings, EdgeValues, Table };
    void OpenEach(const std::string& valid, Kind kind) {
        const Game& g = GetParam();
        const std::vector<Damage> cases = kind == Kind::EdgeValues ? EdgeCases(valid) : Corpus(valid, 14);
        ASSERT_GE(cases.size(), 40u);  // "[Deck]", "[State]", "[Width]" and "[Height]" at least
        const fs::path file = home / (kind == Kind::Table ? g.table : g.settings);
        Session s(home);
        for (size_t i = 0; i < cases.size(); ++i) {
            const Damage& d = cases[i];
            s.then([&, this] {
                s.what = d.what;
                Lay(home / g.settings, settings);
                Lay(file, d.text);
            });
            s.open(g);
            s.then([&] {
                EXPECT_TRUE(s.shown(g.form)) << d.what;
                if (kind == Kind::Table) TableShown(s, d.text, file);
            });
            if (kind == Kind::EdgeValues) {
                s.takeScores(g);
            } else if (i % 32 == 0 || i >= valid.size()) {
                s.play(g);
                if (kind == Kind::Table) s.then([&] { TableKept(s, d.text, file); });
            }
            s.close(g);
            s.then([&, this] {
                EXPECT_TRUE(s.shown("frmSelect")) << d.what;
                std::vector<std::string> boxes = s.boxes();
                if (kind == Kind::EdgeValues) std::erase(boxes, "Run-time error '6':\r\n\r\nOverflow");
                EXPECT_EQ(boxes.size(), 1u) << d.what << ": " << ::testing::PrintToString(boxes);
                EXPECT_EQ(Sections(ReadText(home / g.settings)), Sections(settings)) << d.what;
            });
        }
        s.run();
    }
    // A damaged table's label shows its first score (0 if none); looking never rewrites it.
    void TableShown(Session& s, const std::string& text, const fs::path& file) {
        SCOPED_TRACE(s.what);
        const std::vector<ScoreEntry> before = ParseHighScoreText(text, 1);
        long long top = 0;
        const bool shows = before.empty() || ScoreValue(before.front().score, top);
        EXPECT_EQ(s.caption(GetParam().form, "lblHighScore"), shows ? GetParam().label + FormatScore(top) : "");
        EXPECT_EQ(ReadText(file), text);
    }
    // A game played into a damaged table keeps every entry it read, in order (the tenth on may
    // drop); a top score beyond any score stays on top and can't be shown: the player is told.
    void TableKept(Session& s, const std::string& text, const fs::path& file) {
        SCOPED_TRACE(s.what);
        const std::vector<ScoreEntry> before = ParseHighScoreText(text, 11);
        const std::vector<ScoreEntry> after = ParseHighScoreText(ReadText(file), 12);
        std::vector<ScoreEntry> kept = after;  // the entries written back, the new one left out
        std::erase_if(kept, [](const ScoreEntry& e) { return e.name == "Unknown User"; });
        EXPECT_GE(kept.size(), std::min<size_t>(before.size(), 9));
        for (size_t k = 0; k < kept.size() && k < before.size(); ++k)
            EXPECT_EQ(kept[k].name + ", " + kept[k].score, before[k].name + ", " + before[k].score);
        long long top = 0;
        const bool damagedTop = !after.empty() && !ScoreValue(after.front().score, top);
        EXPECT_EQ(s.boxes(), damagedTop ? std::vector<std::string>{kTableMessage} : std::vector<std::string>{});
    }

    std::string settings, table;
};

class EdgeValues : public DamagedFiles {};

std::string GameName(const ::testing::TestParamInfo<Game>& info) { return std::string(info.param.form).substr(3); }

}  // namespace

TEST_P(DamagedFiles, SettingsFileOpensAndIsWrittenWhole) { OpenEach(settings, Kind::Settings); }
TEST_P(EdgeValues, EachSectionIsPlayedThrough) { OpenEach(settings, Kind::EdgeValues); }

// Every damaged table, of entries below any score the game makes, so that it gets a place.
TEST_P(DamagedFiles, TablesShowTheirTopScoreAndLoseNoEntry) {
    std::string valid = "Ann, 71200\r\nBob*, 900\r\n";
    for (int i = 0; i < 8; ++i) valid += "P" + std::to_string(i) + ", -" + std::to_string(100000 + i) + "\r\n";
    OpenEach(valid + "Eleventh, -300000\r\n\r\n", Kind::Table);
}

// Files there but unreadable (a read fault, a folder in their place) and a home where nothing
// can be written: the window opens on its defaults, shows the top score it read, plays, tells
// the player at game over if the table failed, and writes over or makes nothing.
TEST_P(DamagedFiles, UnreadableFilesAndAReadOnlyHomeAreLeftAsTheyWere) {
    const Game& g = GetParam();
    // Sounds off in the settings: a window that applied them would play silently.
    std::string quiet = settings;
    const size_t at = quiet.find("[Play Sounds]\r\nTrue");
    ASSERT_NE(at, std::string::npos);
    quiet.replace(at, 19, "[Play Sounds]\r\nFalse");
    const std::string mine = "Mine, 123456\r\n\r\n", fresh = g.label + std::string(g.top);
    const fs::path ini = home / g.settings, file = home / g.table;
    struct Case { std::string ini, table; FileFault fault; fs::path faulty; std::string label; bool told; };
    const Case cases[] = {
        {quiet, table, FileFault::Unreadable, ini, fresh, false},
        {"<folder>", table, FileFault::Unreadable, "", fresh, false},
        {settings, mine, FileFault::Unreadable, file, "", true},
        {settings, "<folder>", FileFault::Unreadable, "", "", true},
        {"<none>", "<none>", FileFault::ReadOnly, home, "", true},
        {settings, mine, FileFault::ReadOnly, home, g.label + std::string("123,456"), true},
    };
    Session s(home);
    for (const Case& c : cases) {
        s.then([&] {
            Lay(ini, c.ini);
            Lay(file, c.table);
            if (!c.faulty.empty()) SetFileFault(c.fault, c.faulty.string());
        });
        s.open(g);
        s.then([&] {
            EXPECT_TRUE(s.shown(g.form));
            EXPECT_TRUE(PlaySounds) << "a file that could not be read was applied";
            EXPECT_EQ(s.caption(g.form, "lblHighScore"), c.label);
            EXPECT_TRUE(s.boxes().empty());
        });
        s.play(g);
        s.then([&] {
            EXPECT_FALSE(GameInProgress);
            EXPECT_EQ(s.boxes(), c.told ? std::vector<std::string>{kTableMessage} : std::vector<std::string>{});
        });
        s.close(g);
        s.then([&] {
            EXPECT_EQ(s.boxes().size(), 1u);  // the close question, nothing more
            EXPECT_TRUE(s.shown("frmSelect"));
            ClearFileFaults();
            // Settings that were read may be written back on closing.
            EXPECT_TRUE(!(c.faulty == home || c.faulty == ini || c.ini == "<folder>") || Holds(ini, c.ini));
            EXPECT_TRUE(Holds(file, c.table)) << ReadText(file);
        });
    }
    s.run();
}
INSTANTIATE_TEST_SUITE_P(EveryGame, DamagedFiles, ::testing::ValuesIn(kGames), GameName);
INSTANTIATE_TEST_SUITE_P(EveryGame, EdgeValues, ::testing::ValuesIn(kGames), GameName);

// Sumfall's saved games, saved then damaged: opening one refuses it with the message, the
// dialog left up, or names the player and replays it; the file is never touched.
using DamagedSavedGames = InHome<::testing::Test>;

TEST_F(DamagedSavedGames, AreRefusedOrReplayed) {
    const Game& g = kGames[0];

    std::string valid;
    {
        Session s(home);
        s.open(g);
        s.play(g);
        s.click(g.form, "mnuSave");
        s.input(InputKind::SetText, "frmSave", "txtGameName", "valid");
        s.input(InputKind::SetText, "frmSave", "txtUserName", "Ann");
        s.click("frmSave", "cmdOK");
        s.run();
        valid = ReadText(home / "valid.sfl");
    }
    ASSERT_EQ(valid.rfind("[Card Goal]\r\n11\r\n", 0), 0u) << valid;
    ASSERT_NE(valid.find("[Round 2 Deck]"), std::string::npos);
    // A cut inside the first deck leaves it short of cards: damaged.
    const size_t deckStart = valid.find("[Round 1 Deck]\r\n") + 16;
    const size_t lastCard = valid.rfind("\r\n", valid.find("[Round 2 Deck]") - 3) + 2;

    std::vector<Damage> corpus = Corpus(valid, 22);
    corpus.insert(corpus.end(), {{"whole", valid}, {"no last line end", valid.substr(0, valid.size() - 2)},
                                 {"a folder", "<folder>"}, {"unreadable", valid}, {"missing", "<none>"}});
    const fs::path file = home / "game.sfl";
    Session s(home);
    s.allowedUnanswered = {"Unknown Error! Unable to play Sumfall!", "Giving up so soon?",
                           "Are you sure you want to quit now? Were just getting started!"};
    s.open(g);
    for (size_t i = 0; i < corpus.size(); ++i) {
        const Damage& d = corpus[i];
        s.then([&] {
            s.what = d.what;
            Lay(file, d.text);
            if (d.what == "unreadable") SetFileFault(FileFault::Unreadable, file.string());
        });
        s.click(g.form, "mnuOpen");
        s.input(InputKind::SetText, "frmOpen", "txtGameName", "game.sfl");
        s.answer(MsgAnswer::Yes);  // to a time limit question, if any
        s.click("frmOpen", "cmdOK");
        s.then([&, i] {
            const std::vector<std::string> boxes = s.boxes();
            ASSERT_FALSE(boxes.empty()) << d.what;
            const bool refused = boxes.front() == kOpenMessage;
            if (refused) {
                EXPECT_EQ(boxes.size(), 1u) << d.what;
                EXPECT_TRUE(s.shown("frmOpen")) << d.what;
                EXPECT_FALSE(GameInProgress) << d.what;
            } else {
                EXPECT_EQ(boxes.front().rfind("This game was saved by ", 0), 0u) << d.what << ": " << boxes.front();
                EXPECT_FALSE(s.shown("frmOpen")) << d.what;
                // A file without its cards, or with a card that has no picture, can't be dealt:
                // the deal fails and the window asks to close (No here, so it stays).
                if (boxes.size() > 1) {
                    EXPECT_EQ(boxes, (std::vector<std::string>{boxes.front(), "Unable to deal the cards.",
                                                               "Unknown Error! Unable to play Sumfall!",
                                                               CloseQuestion()}))
                        << d.what;
                    EXPECT_TRUE(s.shown(g.form));
                    EXPECT_FALSE(GameInProgress);
                }
            }
            const bool inFirstDeck = d.what.rfind("cut at ", 0) == 0 && i >= deckStart && i <= lastCard;
            const bool whole = d.what == "whole" || d.what == "no last line end" || d.what == "LF line ends";
            const bool broken = d.what.rfind("random", 0) == 0 || d.what == "a folder" || d.what == "unreadable" ||
                                d.what == "missing" || d.what == "numbers 4294967296" ||
                                d.what == "numbers 99999999999999999999" || d.what == "numbers -2147483649";
            EXPECT_TRUE(refused || !(inFirstDeck || broken)) << d.what;
            EXPECT_TRUE(!refused || !whole) << d.what;
        });
        s.click("frmOpen", "cmdCancel", [&s] { return s.shown("frmOpen"); });
        s.then([&] {
            ClearFileFaults();
            EXPECT_TRUE(Holds(file, d.text)) << d.what;
        });
        // A replay runs to its end, or is ended when its clock can't end it.
        s.toTheEnd(400, false);
        s.answer(MsgAnswer::Yes, [] { return GameInProgress; });
        s.click(g.form, "cmdPlay", [] { return GameInProgress; });
        s.then([&] {
            EXPECT_FALSE(GameInProgress) << d.what;
            s.boxes();
        });
        // A window whose Play failed keeps "&End Game": it is closed and opened anew for the next file.
        s.close(g, [&s, &g] { return s.shown(g.form) && s.caption(g.form, "cmdPlay") == "&End Game"; });
        s.click("frmSelect", g.button, [&s, &g] { return !s.shown(g.form); });
        s.then([&s] { s.boxes(); });
    }
    s.close(g);
    s.run();
}
