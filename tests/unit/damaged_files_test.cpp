// SPDX-License-Identifier: GPL-3.0-or-later
// Damaged, unreadable and missing files under every game window: a corpus
// made from the files the game itself writes (cut at every byte, LF line
// ends, random bytes, 10 MB, a 1 MB line, numbers beyond 32 bits and below
// zero) and the disk's faults (a folder in the file's place, a file that can't
// be read, a home folder that can't be written), and each numeric section of
// a settings file at the edges of the 16- and 32-bit types. Each window must
// open, play and close; a file it could not read is never written over.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <fstream>
#include <functional>
#include <ostream>
#include <random>
#include <string>
#include <variant>
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
    const char* topScore;  // "High Score: 50,000" of a fresh table, as shown
};

const Game kGames[] = {
    {"frmSumfall", "cmdSumfall", "Sumfall.Ini", "HiScores90_11.Txt", "High Score: 50,000"},
    {"frmFivestack", "cmdFivestack", "Fivestack.Ini", "HiScores60.Txt", "High Score: 50,000"},
    {"frmBlackrush", "cmdBlackrush", "Blackrush.Ini", "BlackrushHiScores90.Txt", "High Score: 50,000"},
    {"frmSpirehold", "cmdSpirehold", "Spirehold.Ini", "SpireholdHiScores45.Txt", "Current High Score: 30,000"},
    {"frmDuopick", "cmdDuopick", "Duopick.Ini", "DuopickHighScores45.Txt", "High Score: 30,000"},
    {"frmHandgrid", "cmdHandgrid", "Handgrid.Ini", "HandgridHighScores75.Txt", "High Score: 30,000"},
    {"frmTreyshift", "cmdTreyshift", "Treyshift.Ini", "TreyshiftHiScores120.Txt", "High Score: 30,000"},
};

void PrintTo(const Game& g, std::ostream* os) { *os << g.form; }

std::string ReadText(const fs::path& path) {
    std::string text;
    return ReadWholeFile(path.string(), text) ? text : "<unread>";
}

void WriteText(const fs::path& path, const std::string& text) {
    std::error_code ec;
    fs::remove_all(path, ec);
    std::ofstream(path, std::ios::binary) << text;
}

// A session of the suite in one runtime, driven by a plan of steps and checks
// that run between them. Modal name entry and Hall of Fame windows are
// answered as they come (an empty name, Done).
class Session {
public:
    using Step = HeadlessPlatform::Step;

    explicit Session(const fs::path& home) : home_(home) {
        platform_.setSource([this] { return next(); });
        platform_.setFailureReporter([this](const std::string& text) {
            for (const std::string& allowed : allowedUnanswered)
                if (text.find('"' + allowed + '"') != std::string::npos) return;
            ADD_FAILURE() << text << " (" << what << ")";
        });
    }

    void then(std::function<void()> check) { plan_.emplace_back(std::move(check)); }
    // An input, made only if `when` holds at that moment.
    void input(InputKind kind, const std::string& form, const std::string& control = "", const std::string& text = "",
               std::function<bool()> when = [] { return true; }) {
        Step step;
        step.kind = Step::Kind::Input;
        step.event.kind = kind;
        step.event.form = form;
        step.event.control = control;
        step.event.text = text;
        plan_.emplace_back(Maybe{std::move(when), step});
    }
    void click(const std::string& form, const std::string& control) { input(InputKind::Click, form, control); }
    void clickIf(std::function<bool()> when, const std::string& form, const std::string& control) {
        input(InputKind::Click, form, control, "", std::move(when));
    }
    void type(const std::string& form, const std::string& control, const std::string& text) {
        input(InputKind::SetText, form, control, text);
    }
    void answerIf(std::function<bool()> when, MsgAnswer a) {
        then([this, when, a] {
            if (when()) platform_.queueAnswer(a, 0);
        });
    }
    void answer(MsgAnswer a) { answerIf([] { return true; }, a); }
    // Opens the game from the selector; closes it with Yes.
    void open(const Game& g) { click("frmSelect", g.button); }
    void close(const Game& g) { closeIf([] { return true; }, g); }
    void closeIf(const std::function<bool()>& when, const Game& g) {
        answerIf(when, MsgAnswer::Yes);
        input(InputKind::Close, g.form, "", "", when);
    }
    // A whole game left to the clock: every round runs out, no bonus round.
    void play(const Game& g) {
        click(g.form, "cmdPlay");
        toTheEnd(1000);
    }
    // Time passes a second at a time until the game is over, `seconds` at
    // most; then "Game Over" stands its two seconds.
    // In a game with Take Score, a whole game whose every round is taken at
    // once, so that each bonus is paid with the seconds left.
    void takeScores(const Game& g) {
        const auto canTake = [this, &g](bool inGame) {
            return [this, &g, inGame] {
                const Form* f = runtime_.loaded(g.form);
                const Control* take = f ? f->find("cmdTakeScore") : nullptr;
                return take && (!inGame || (GameInProgress && take->enabled()));
            };
        };
        clickIf(canTake(false), g.form, "cmdPlay");
        for (int round = 0; round < 5; ++round) clickIf(canTake(true), g.form, "cmdTakeScore");
        toTheEnd(1000);
    }
    void toTheEnd(int seconds, bool mustEnd = true) {
        plan_.emplace_back(Until{[] { return !GameInProgress; }, seconds, mustEnd});
        plan_.emplace_back(Until{[] { return false; }, 2, false});
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

    Runtime& runtime() { return runtime_; }
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
            if (Form* f = runtime_.loaded(modal); f && f->modal()) {
                Step step;
                step.kind = Step::Kind::Input;
                step.event.form = modal;
                step.event.control = std::string(modal) == "frmHiScoreName" ? "cmdOK" : "cmdDone";
                return step;
            }
        while (!plan_.empty()) {
            auto& item = plan_.front();
            if (auto* until = std::get_if<Until>(&item)) {
                if (!until->done() && until->seconds-- > 0) {
                    Step step;
                    step.kind = Step::Kind::Advance;
                    step.ms = 1000;
                    return step;
                }
                EXPECT_TRUE(until->done() || !until->mustEnd) << "the game never ended (" << what << ")";
                plan_.pop_front();
            } else if (auto* maybe = std::get_if<Maybe>(&item)) {
                const bool go = maybe->when();
                const Step step = maybe->step;
                plan_.pop_front();
                if (go) return step;
            } else {
                const auto check = std::move(std::get<std::function<void()>>(item));
                plan_.pop_front();
                check();
            }
        }
        return Step{};  // the end: quit
    }

    fs::path home_;
    HeadlessPlatform platform_;
    Runtime runtime_{platform_};
    struct Until {
        std::function<bool()> done;
        int seconds;
        bool mustEnd;
    };
    struct Maybe {
        std::function<bool()> when;
        Step step;
    };
    std::deque<std::variant<std::function<void()>, Until, Maybe>> plan_;
};

// The corpus made from a valid file: what a crash, another program or a
// bad disk could leave in its place.
struct Damage {
    std::string what;
    std::string text;
};

std::string WithLineEnds(std::string text, const std::string& end) {
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
        out += text[i] == '\n' ? end : std::string(1, text[i]);
    }
    return out;
}

// Every number standing alone on a line, or after the ", " of a table's
// entry, replaced by `number`.
std::string WithNumbers(const std::string& text, const std::string& number) {
    auto numeric = [](const std::string& s) {
        return !s.empty() && s.find_first_not_of("-0123456789") == std::string::npos;
    };
    std::string out;
    for (size_t start = 0; start < text.size();) {
        size_t end = text.find('\n', start);
        end = end == std::string::npos ? text.size() : end;
        std::string line = text.substr(start, end - start);
        const std::string cr = !line.empty() && line.back() == '\r' ? "\r" : "";
        if (!cr.empty()) line.pop_back();
        const size_t comma = line.rfind(", ");
        if (numeric(line)) line = number;
        else if (comma != std::string::npos && numeric(line.substr(comma + 2))) line = line.substr(0, comma + 2) + number;
        out += line + cr + (end < text.size() ? "\n" : "");
        start = end + 1;
    }
    return out;
}

// Cut at every byte (the first cut is the empty file), then the rest; the
// index of a cut is its length.
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
    std::vector<std::string> lines;
    for (size_t start = 0; start < valid.size();) {
        size_t end = valid.find('\n', start);
        end = end == std::string::npos ? valid.size() : end + 1;
        lines.push_back(valid.substr(start, end - start));
        start = end;
    }
    for (int n = 0; n < 2; ++n) {
        std::shuffle(lines.begin(), lines.end(), random);
        std::string text;
        for (size_t i = 0; i < lines.size(); ++i)
            if (random() % 4) text += lines[i];
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

// The file with the value of one numeric section at a time set to each value
// at the edge of the 16- and 32-bit types: the bounds, one past, -1 and 0.
std::vector<Damage> EdgeCases(const std::string& valid) {
    std::vector<std::string> lines;
    for (size_t start = 0; start < valid.size();) {
        size_t end = valid.find("\r\n", start);
        end = end == std::string::npos ? valid.size() : end;
        lines.push_back(valid.substr(start, end - start));
        start = end + 2;
    }
    std::vector<Damage> cases;
    for (size_t i = 1; i < lines.size(); ++i) {
        const std::string& value = lines[i];
        if (lines[i - 1].empty() || lines[i - 1].front() != '[' || value.empty() ||
            value.find_first_not_of("-0123456789") != std::string::npos)
            continue;
        for (const char* edge : {"2147483647", "2147483648", "-2147483648", "-2147483649", "32767", "32768", "-32768",
                                 "-32769", "-1", "0"}) {
            std::string text;
            for (size_t k = 0; k < lines.size(); ++k) text += (k == i ? std::string(edge) : lines[k]) + "\r\n";
            cases.push_back({lines[i - 1] + " " + edge, text});
        }
    }
    return cases;
}

// A fresh home folder, in memory where there is such a folder: a sync there
// costs nothing.
fs::path MakeHome() {
    std::error_code ec;
    const fs::path base = fs::is_directory("/dev/shm", ec) ? fs::path("/dev/shm") : fs::temp_directory_path();
    std::string pattern = (base / "cardhaven-damaged-XXXXXX").string();
    return mkdtemp(pattern.data()) ? fs::path(pattern) : fs::path();
}

// The section names of a settings text, in order.
std::vector<std::string> Sections(const std::string& text) {
    std::vector<std::string> names;
    for (size_t start = 0; start < text.size();) {
        size_t end = text.find("\r\n", start);
        if (end == std::string::npos) break;
        const std::string line = text.substr(start, end - start);
        if (!line.empty() && line.front() == '[') names.push_back(line);
        start = end + 2;
    }
    return names;
}

class DamagedFiles : public ::testing::TestWithParam<Game> {
protected:
    void SetUp() override {
        home = MakeHome();
        ASSERT_FALSE(home.empty());
    }
    void TearDown() override {
        ClearFileFaults();
        std::error_code ec;
        fs::remove_all(home, ec);
    }
    // The files a game writes from nothing: its settings and its fresh table.
    void Fresh(std::string& settings, std::string& table) {
        const Game& g = GetParam();
        Session s(home);
        s.open(g);
        s.then([&] { EXPECT_EQ(s.caption(g.form, "lblHighScore"), g.topScore); });
        s.close(g);
        s.run();
        settings = ReadText(home / g.settings);
        table = ReadText(home / g.table);
        ASSERT_FALSE(Sections(settings).empty());
        ASSERT_EQ(table, DefaultHighScoreText(ParseHighScoreText(table).front().score) + "\r\n");
    }

    fs::path home;
};

std::string GameName(const ::testing::TestParamInfo<Game>& info) { return std::string(info.param.form).substr(3); }

}  // namespace

// Every damaged settings file: the window opens, plays and closes with no
// message, and what it writes on closing is a whole settings file again.
TEST_P(DamagedFiles, SettingsFileOpensAndIsWrittenWhole) {
    const Game& g = GetParam();
    std::string settings, table;
    Fresh(settings, table);
    const std::vector<Damage> corpus = Corpus(settings, 14);
    Session s(home);
    for (size_t i = 0; i < corpus.size(); ++i) {
        const Damage& d = corpus[i];
        s.then([&, this] {
            s.what = d.what;
            WriteText(home / g.settings, d.text);
        });
        s.open(g);
        s.then([&] { EXPECT_TRUE(s.shown(g.form)) << d.what; });
        // A game to its end now and then; every file at least opens and closes.
        if (i % 32 == 0 || i >= settings.size()) s.play(g);
        s.close(g);
        s.then([&, this] {
            EXPECT_TRUE(s.shown("frmSelect")) << d.what;
            const std::vector<std::string> boxes = s.boxes();
            // The close question alone (and a game's own end, which may
            // tell nothing else either).
            EXPECT_EQ(boxes.size(), 1u) << d.what << ": " << ::testing::PrintToString(boxes);
            EXPECT_EQ(Sections(ReadText(home / g.settings)), Sections(settings)) << d.what;
        });
    }
    s.run();
}

// Every numeric section of the settings file at each edge value, one section
// at a time: the window opens, a game whose rounds are all taken at once
// comes to its end, and the window closes. A score carried past its range is
// told as the platform's overflow; nothing else shows a message.
class EdgeValues : public DamagedFiles {};

TEST_P(EdgeValues, EachSectionIsPlayedThrough) {
    const Game& g = GetParam();
    std::string settings, table;
    Fresh(settings, table);
    const std::vector<Damage> cases = EdgeCases(settings);
    ASSERT_GE(cases.size(), 40u);  // "[Deck]", "[State]", "[Width]" and "[Height]" at least
    Session s(home);
    for (const Damage& d : cases) {
        s.then([&, this] {
            s.what = d.what;
            WriteText(home / g.settings, d.text);
        });
        s.open(g);
        s.takeScores(g);
        s.close(g);
        s.then([&] {
            EXPECT_TRUE(s.shown("frmSelect")) << d.what;
            std::vector<std::string> boxes = s.boxes();
            std::erase(boxes, "Run-time error '6':\r\n\r\nOverflow");
            EXPECT_EQ(boxes.size(), 1u) << d.what << ": " << ::testing::PrintToString(boxes);
        });
    }
    s.run();
}

// A settings file that is there but can't be read: the window runs on its
// defaults and leaves the file (or folder) as it was, also on closing.
TEST_P(DamagedFiles, UnreadableSettingsAreNeitherAppliedNorReplaced) {
    const Game& g = GetParam();
    std::string settings, table;
    Fresh(settings, table);
    const fs::path file = home / g.settings;
    // Sounds off in the file: a window that applied it would play silently.
    std::string quiet = settings;
    const size_t at = quiet.find("[Play Sounds]\r\nTrue");
    ASSERT_NE(at, std::string::npos);
    quiet.replace(at, 19, "[Play Sounds]\r\nFalse");
    Session s(home);
    for (const bool folder : {false, true}) {
        s.then([&, folder] {
            if (folder) {
                fs::remove(file);
                fs::create_directories(file / "inside");
            } else {
                WriteText(file, quiet);
                SetFileFault(FileFault::Unreadable, file.string());
            }
        });
        s.open(g);
        s.then([&] {
            EXPECT_TRUE(s.shown(g.form));
            EXPECT_TRUE(PlaySounds) << "a file that could not be read was applied";
            EXPECT_EQ(s.caption(g.form, "lblHighScore"), g.topScore);
        });
        s.play(g);
        s.close(g);
        s.then([&, folder] {
            EXPECT_EQ(s.boxes().size(), 1u);
            if (folder) {
                EXPECT_TRUE(fs::is_directory(file / "inside"));
            } else {
                ClearFileFaults();
                EXPECT_EQ(ReadText(file), quiet);
            }
        });
    }
    s.run();
}

// Every damaged table: the label shows the first score it holds (0 when it
// holds none), looking at it never rewrites it, and a game played into it
// keeps every entry it could read, or tells the player the table failed.
TEST_P(DamagedFiles, TablesShowTheirTopScoreAndLoseNoEntry) {
    const Game& g = GetParam();
    std::string settings, table;
    Fresh(settings, table);
    const std::string prefix = std::string(g.topScore).substr(0, std::string(g.topScore).find(':') + 2);
    // Below every entry of the corpus: any score the game makes gets a place.
    std::string valid = "Ann, 71200\r\nBob*, 900\r\n";
    for (int i = 0; i < 8; ++i) valid += "P" + std::to_string(i) + ", -" + std::to_string(100000 + i) + "\r\n";
    valid += "Eleventh, -300000\r\n\r\n";
    const std::vector<Damage> corpus = Corpus(valid, 6);
    const fs::path file = home / g.table;
    Session s(home);
    for (size_t i = 0; i < corpus.size(); ++i) {
        const Damage& d = corpus[i];
        s.then([&, this] {
            s.what = d.what;
            WriteText(home / g.settings, settings);
            WriteText(file, d.text);
        });
        s.open(g);
        const bool played = i % 32 == 0 || i >= valid.size();
        s.then([&] {
            const std::vector<ScoreEntry> before = ParseHighScoreText(d.text, 1);
            long long top = 0;
            const bool shows = before.empty() || ScoreValue(before.front().score, top);
            EXPECT_EQ(s.caption(g.form, "lblHighScore"), shows ? prefix + FormatScore(top) : "") << d.what;
            EXPECT_EQ(ReadText(file), d.text) << d.what;
        });
        if (played) {
            s.play(g);
            s.then([&] {
                const std::vector<ScoreEntry> before = ParseHighScoreText(d.text, 11);
                const std::vector<ScoreEntry> after = ParseHighScoreText(ReadText(file), 12);
                std::vector<ScoreEntry> kept;  // the entries written back, the new one left out
                for (const ScoreEntry& e : after)
                    if (e.name != "Unknown User") kept.push_back(e);
                // The entries read, in their order: only the tenth and beyond
                // may drop out.
                EXPECT_GE(kept.size(), std::min<size_t>(before.size(), 9)) << d.what;
                for (size_t k = 0; k < kept.size() && k < before.size(); ++k) {
                    EXPECT_EQ(kept[k].name, before[k].name) << d.what;
                    EXPECT_EQ(kept[k].score, before[k].score) << d.what;
                }
                // A top score beyond any score, left at the top, can't be
                // shown after the game: the player is told.
                long long top = 0;
                const bool damagedTop = !after.empty() && !ScoreValue(after.front().score, top);
                const std::vector<std::string> boxes = s.boxes();
                if (damagedTop) EXPECT_EQ(boxes, std::vector<std::string>{kTableMessage}) << d.what;
                else EXPECT_TRUE(boxes.empty()) << d.what << ": " << ::testing::PrintToString(boxes);
            });
        }
        s.close(g);
        s.then([&] { s.boxes(); });
    }
    s.run();
}

// A table that is there but can't be read, and a home folder where nothing
// can be written: the window opens with no high score shown, plays, and at
// the end of the game tells the player; nothing is written over or made.
TEST_P(DamagedFiles, UnreadableTablesAndAReadOnlyHomeAreToldAtTheEnd) {
    const Game& g = GetParam();
    std::string settings, table;
    Fresh(settings, table);
    const fs::path file = home / g.table;
    const std::string mine = "Mine, 123456\r\n\r\n";
    // A read-only home holding no files, and one holding the game's files.
    enum Case { Unreadable, Folder, EmptyReadOnlyHome, ReadOnlyHome };
    Session s(home);
    for (const Case c : {Unreadable, Folder, EmptyReadOnlyHome, ReadOnlyHome}) {
        s.then([&, c, this] {
            fs::remove_all(file);
            if (c == Unreadable) {
                WriteText(file, mine);
                SetFileFault(FileFault::Unreadable, file.string());
            } else if (c == Folder) {
                fs::create_directories(file / "inside");
            } else if (c == EmptyReadOnlyHome) {
                fs::remove(home / g.settings);
                SetFileFault(FileFault::ReadOnly, home.string());
            } else {
                WriteText(home / g.settings, settings);
                WriteText(file, mine);
                SetFileFault(FileFault::ReadOnly, home.string());
            }
        });
        s.open(g);
        s.then([&, c] {
            EXPECT_TRUE(s.shown(g.form));
            const std::string prefix = std::string(g.topScore).substr(0, std::string(g.topScore).find(':') + 2);
            EXPECT_EQ(s.caption(g.form, "lblHighScore"), c == ReadOnlyHome ? prefix + "123,456" : "");
            EXPECT_TRUE(s.boxes().empty());
        });
        s.play(g);
        s.then([&] {
            EXPECT_FALSE(GameInProgress);
            EXPECT_EQ(s.boxes(), std::vector<std::string>{kTableMessage});
        });
        s.close(g);
        s.then([&, c, this] {
            EXPECT_EQ(s.boxes().size(), 1u);  // the close question, nothing more
            EXPECT_TRUE(s.shown("frmSelect"));
            ClearFileFaults();
            if (c == Unreadable || c == ReadOnlyHome) {
                EXPECT_EQ(ReadText(file), mine);
                EXPECT_TRUE(c != ReadOnlyHome || ReadText(home / g.settings) == settings);
            } else if (c == Folder) {
                EXPECT_TRUE(fs::is_directory(file / "inside"));
            } else {
                EXPECT_FALSE(fs::exists(file));
                EXPECT_FALSE(fs::exists(home / g.settings));
            }
        });
    }
    s.run();
}

INSTANTIATE_TEST_SUITE_P(EveryGame, DamagedFiles, ::testing::ValuesIn(kGames), GameName);
INSTANTIATE_TEST_SUITE_P(EveryGame, EdgeValues, ::testing::ValuesIn(kGames), GameName);

// Sumfall's saved games: a file the game saved, then damaged. Opening it
// either refuses it with the message, leaving the dialog up, or tells whose
// game it was and replays it; the file itself is never touched.
TEST(DamagedSavedGames, AreRefusedOrReplayed) {
    const Game& g = kGames[0];
    const fs::path home = MakeHome();
    ASSERT_FALSE(home.empty());

    // A game of two rounds, saved.
    std::string valid;
    {
        Session s(home);
        s.open(g);
        s.play(g);
        s.click(g.form, "mnuSave");
        s.type("frmSave", "txtGameName", "valid");
        s.type("frmSave", "txtUserName", "Ann");
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
    corpus.push_back({"whole", valid});
    corpus.push_back({"no last line end", valid.substr(0, valid.size() - 2)});
    corpus.push_back({"a folder", ""});
    corpus.push_back({"unreadable", valid});
    corpus.push_back({"missing", ""});
    const fs::path file = home / "game.sfl";
    Session s(home);
    s.allowedUnanswered = {"Unknown Error! Unable to play Sumfall!", "Giving up so soon?",
                           "Are you sure you want to quit now? Were just getting started!"};
    s.open(g);
    for (size_t i = 0; i < corpus.size(); ++i) {
        const Damage& d = corpus[i];
        s.then([&] {
            s.what = d.what;
            WriteText(file, d.text);
            if (d.what == "a folder") {
                fs::remove(file);
                fs::create_directories(file / "inside");
            }
            if (d.what == "unreadable") SetFileFault(FileFault::Unreadable, file.string());
            if (d.what == "missing") fs::remove(file);
        });
        s.click(g.form, "mnuOpen");
        s.type("frmOpen", "txtGameName", "game.sfl");
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
                // A file without its cards, or with a card that has no
                // picture, can't be dealt: the deal fails, and the window
                // asks to close (No here, so it stays).
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
        s.clickIf([&s] { return s.shown("frmOpen"); }, "frmOpen", "cmdCancel");
        s.then([&] {
            ClearFileFaults();
            if (d.what == "a folder") {
                EXPECT_TRUE(fs::is_directory(file / "inside"));
            } else if (d.what != "missing") {
                EXPECT_EQ(ReadText(file), d.text) << d.what;
            }
        });
        // A replay runs to its end, or is ended when its clock can't end it.
        s.toTheEnd(400, false);
        s.answerIf([] { return GameInProgress; }, MsgAnswer::Yes);
        s.clickIf([] { return GameInProgress; }, g.form, "cmdPlay");
        s.then([&] {
            EXPECT_FALSE(GameInProgress) << d.what;
            s.boxes();
        });
        // A window whose Play failed keeps "&End Game" on its button: it is
        // closed and opened anew for the next file.
        s.closeIf([&s, &g] { return s.shown(g.form) && s.caption(g.form, "cmdPlay") == "&End Game"; }, g);
        s.clickIf([&s, &g] { return !s.runtime().loaded(g.form); }, "frmSelect", g.button);
        s.then([&s] { s.boxes(); });
    }
    s.close(g);
    s.run();
    std::error_code ec;
    fs::remove_all(home, ec);
}
