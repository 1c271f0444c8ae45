// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/fuzz/fuzzer.h"

#include <fcntl.h>
#include <sstream>
#include <streambuf>
#include <unistd.h>

#include "games/games.h"
#include "suite/cards.h"
#include "suite/common.h"
#include "suite/suite.h"
#include "suite/files.h"
#include "tools/fuzz/players.h"
#include "tools/script/script.h"
#include "window/basic.h"
#include "window/runtime.h"

namespace ch {

// ---- Watchdog ----------------------------------------------------------------

void WatchedPlatform::sleep(int ms) {
    HeadlessPlatform::sleep(ms);
    check();
}

WaitResult WatchedPlatform::wait(InputEvent& event, int64_t deadline, bool pollOnly) {
    ++waits_;
    check();
    return HeadlessPlatform::wait(event, deadline, pollOnly);
}

void WatchedPlatform::served(int64_t busyUntil) {
    quietUntil_ = std::max(now(), busyUntil);
    waits_ = 0;
}

void WatchedPlatform::check() {
    if (!hang_.empty()) return;
    if (now() > quietUntil_ + kHangMs)
        hang_ = "the loop asked for no input for " + std::to_string((now() - quietUntil_) / 1000) + " s of virtual time";
    else if (waits_ > kHangWaits)
        hang_ = "the loop polled " + std::to_string(waits_) + " times without asking for input";
    // StopRun is the one exception game code never catches: the run ends here.
    if (!hang_.empty()) throw StopRun{};
}

// ---- The line source -----------------------------------------------------------

namespace {

// A stream whose every line the fuzzer makes when the driver reads it.
class LineBuffer : public std::streambuf {
public:
    explicit LineBuffer(Fuzzer& fuzzer) : fuzzer_(fuzzer) {}

protected:
    int_type underflow() override {
        line_ = fuzzer_.nextLine();
        if (line_.empty()) return traits_type::eof();
        line_ += '\n';
        setg(line_.data(), line_.data(), line_.data() + line_.size());
        return traits_type::to_int_type(line_[0]);
    }

private:
    Fuzzer& fuzzer_;
    std::string line_;
};

// A text in the driver's quotes, with its four escapes.
std::string Quoted(const std::string& text) {
    std::string out = "\"";
    for (char ch : text) {
        if (ch == '"' || ch == '\\') out += '\\', out += ch;
        else if (ch == '\r') out += "\\r";
        else if (ch == '\n') out += "\\n";
        else out += ch;
    }
    return out + "\"";
}

// A pending "click F.C" or "type F.C ..." still has its window: the events
// before it may have closed that window.
bool PendingFormLoaded(Runtime& runtime, const std::string& line) {
    const size_t space = line.find(' ');
    const size_t dot = line.find('.', space);
    if (space == std::string::npos || dot == std::string::npos) return true;
    return runtime.loaded(line.substr(space + 1, dot - space - 1)) != nullptr;
}

bool AnyControl(const Control& c) {
    switch (c.kind()) {
        case ControlKind::Timer:
        case ControlKind::DirList:   // the folder lists would walk out of the home folder
        case ControlKind::DriveList: return false;
        default: return true;
    }
}
bool TextBox(const Control& c) { return c.kind() == ControlKind::TextBox; }
bool CheckBox(const Control& c) { return c.kind() == ControlKind::CheckBox; }
bool OptionButton(const Control& c) { return c.kind() == ControlKind::OptionButton; }
bool List(const Control& c) { return c.kind() == ControlKind::ListBox || c.kind() == ControlKind::FileList; }
bool TakesKeys(const Control& c) {
    switch (c.kind()) {
        case ControlKind::Button:
        case ControlKind::TextBox:
        case ControlKind::CheckBox:
        case ControlKind::OptionButton:
        case ControlKind::ListBox:
        case ControlKind::FileList: return true;
        default: return false;
    }
}

double Weight(const Control& c) {
    switch (c.kind()) {
        case ControlKind::Button: return 4;
        case ControlKind::Image: return 2;
        case ControlKind::Menu: return 1.5;
        case ControlKind::CheckBox:
        case ControlKind::OptionButton:
        case ControlKind::TextBox:
        case ControlKind::ListBox:
        case ControlKind::FileList: return 1;
        default: return 0.3;
    }
}

}  // namespace

// ---- The fuzzer ----------------------------------------------------------------

Fuzzer::Fuzzer(Runtime& runtime, WatchedPlatform& platform, const FuzzOptions& options)
    : runtime_(runtime),
      platform_(platform),
      options_(options),
      random_(options.seed),
      home_(options.home),
      steady_(options.seed % 3 == 2 || options.scoring) {}

int Fuzzer::uniform(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }
bool Fuzzer::chance(double p) { return std::uniform_real_distribution<double>(0, 1)(random_) < p; }

void Fuzzer::setFault(const std::string& fault) {
    if (result_.fault.empty()) result_.fault = fault;
}

FuzzResult Fuzzer::result() const {
    FuzzResult r = result_;
    r.virtualMs = platform_.now();
    return r;
}

std::string Fuzzer::check() {
    if (gameWasInProgress_ && !GameInProgress && runtime_.loaded(options_.game)) ++result_.gamesCompleted;
    gameWasInProgress_ = GameInProgress;
    result_.bestScore = std::max<long long>(result_.bestScore, CurrentScore);
    // What was heard and shown is read off, so a long run keeps no record of it.
    for (const std::string& sound : platform_.takeSounds()) ++result_.sounds[sound];
    if (Form* game = runtime_.loaded(options_.game))
        if (const Control* message = game->find("lblMessage"); message && message->visible() && message->caption() != lastMessage_)
            ++result_.messages[lastMessage_ = message->caption()];
    for (const MessageBox& box : platform_.takeMessageBoxes()) ++result_.messageBoxes[box.text.substr(0, 80)];
    std::string fault = home_.look(CurrentScore);
    if (fault.empty()) fault = ShownScoreFault(runtime_, options_.game);
    // A modal window that random input cannot close in thousands of events
    // does not answer the player either.
    Form* modal = runtime_.topModal();
    modalEvents_ = modal && modal == lastModal_ ? modalEvents_ + 1 : 0;
    lastModal_ = modal;
    if (fault.empty() && modalEvents_ > kStuckEvents)
        fault = modal->name() + " stays open through " + std::to_string(kStuckEvents) + " events";
    return fault;
}

std::string Fuzzer::nextLine() {
    std::string line;
    if (lastWasStep_) {
        if (std::string fault = check(); !fault.empty()) {
            setFault(fault);
            // The trail ends where the fault shows; a shown score that is wrong
            // fails the replay there too.
            std::string tail = "# fault: " + fault + "\n";
            if (fault.find("lblCurrentScore") != std::string::npos)
                tail += "expect " + options_.game + ".lblCurrentScore " + Quoted(FormatScore(CurrentScore)) + "\n";
            trail(tail);
            return "";
        }
    }
    lastWasStep_ = false;
    if (!result_.fault.empty()) return "";
    if (result_.events >= options_.events) {
        if (options_.keepTrail) trail(closingExpectations());
        return "";
    }

    int64_t busyUntil = 0;
    if (platform_.queuedAnswers() < 4) {
        // Every message box finds an answer waiting, sometimes after a while:
        // four, since one event may open several boxes (a saved game that
        // can't be dealt: its information, the deal, Play's failure and the
        // close question).
        line = std::string("answer ") + (chance(0.5) ? "first" : "second");
        if (chance(0.2)) line += " after " + std::to_string(uniform(1, 3000));
    } else if (!settingsWritten_ && !options_.settingsFile.empty()) {
        settingsWritten_ = true;
        line = "file " + options_.settingsFile + " " +
               Quoted(options_.bonusSection + "\r\n" + std::to_string(uniform(1, 3000)) + "\r\n\r\n");
    } else if (tablesWritten_ < options_.tables.size()) {
        line = "file " + options_.tables[tablesWritten_++] + " " + Quoted(lowTable());
    } else if (result_.events == 0) {
        line = "click frmSelect." + options_.selectorButton;
        lastWasStep_ = true;
    } else if (options_.scoring && randomness::StackPending() != OnlyGameOpen()) {
        // An order waits only while the game's window is the one open: the
        // selector's ring and the other games shuffle decks of their own.
        if (randomness::StackPending()) {
            line = "stack none";
        } else {
            line = "stack";
            for (const std::string& card : GoodDeck(random_)) line += " " + card;
        }
    } else if (!pending_.empty() && PendingFormLoaded(runtime_, pending_.front())) {
        line = pending_.front();
        pending_.pop_front();
        lastWasStep_ = true;
    } else {
        pending_.clear();
        line = event();
        lastWasStep_ = true;
        if (line.rfind("advance ", 0) == 0) busyUntil = platform_.now() + std::stoll(line.substr(8));
    }
    if (lastWasStep_) ++result_.events;
    platform_.served(busyUntil);
    ::alarm(60);  // real time: a handler that never returns is a hang too
    trail(line + "\n");
    return line;
}

void Fuzzer::trail(const std::string& text) {
    if (trailFd_ < 0) return;
    const char* p = text.data();
    size_t left = text.size();
    while (left > 0) {
        const ssize_t n = ::write(trailFd_, p, left);
        if (n <= 0) return;
        p += n;
        left -= static_cast<size_t>(n);
    }
}

// What a replay of the trail must reach: the same clock, score and windows.
std::string Fuzzer::closingExpectations() {
    std::string text = "# the state the run ended in\n";
    text += "expect CurrentScore " + NumText(CurrentScore) + "\n";
    text += "expect GameInProgress " + std::string(GameInProgress ? "True" : "False") + "\n";
    text += "expect ElapsedSeconds " + NumText(ElapsedSeconds) + "\n";
    for (Form* form : runtime_.loadedForms()) {
        text += "expect " + form->name() + ".Visible " + (form->visible() ? "True" : "False") + "\n";
        if (const Control* label = form->find("lblCurrentScore"))
            text += "expect " + form->name() + ".lblCurrentScore " + Quoted(label->caption()) + "\n";
        if (const Control* label = form->find("lblTime"))
            text += "expect " + form->name() + ".lblTime " + Quoted(label->caption()) + "\n";
    }
    return text;
}

void Fuzzer::openTrail() {
    if (options_.trail.empty()) return;
    trailFd_ = ::open(options_.trail.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    trail("# cardhaven-fuzz --game " + options_.game + " --seed " + std::to_string(options_.seed) + "\n"
          "# Replay: cardhaven-script --data DATA THIS-FILE\n");
}

void Fuzzer::closeTrail(bool remove) {
    if (trailFd_ < 0) return;
    ::close(trailFd_);
    trailFd_ = -1;
    if (remove) ::unlink(options_.trail.c_str());
}

std::string Fuzzer::lowTable() {
    static const char* const kNames[] = {"Ann", "Bo*", "Quillmark", "Unknown User", "Zoë"};
    std::string text;
    int score = uniform(0, 8000);
    for (int i = 0; i < 10; ++i) {
        text += std::string(kNames[uniform(0, 4)]) + ", " + std::to_string(score) + "\r\n";
        score -= uniform(0, 1200);
    }
    return text + "\r\n";
}

// The settings file as the window last wrote it, with values at the edges in
// its numeric sections; empty before the window first wrote it.
std::string Fuzzer::edgeSettings() {
    std::string text;
    if (options_.settingsName.empty() || !ReadWholeFile(options_.home + "/" + options_.settingsName, text)) return "";
    return "file " + options_.settingsName + " " + Quoted(EdgeSettings(text, 0.5, random_));
}

// Every box of a dialog: an edge value, one for all boxes or each its own,
// or the box left as it is; then OK.
std::string Fuzzer::fillDialog(Form& dialog) {
    const std::vector<std::string>& values = EdgeValues();
    const auto pick = [&] { return values[static_cast<size_t>(uniform(0, static_cast<int>(values.size()) - 1))]; };
    const std::string shared = chance(0.3) ? pick() : "";
    for (const auto& owned : dialog.controls()) {
        if (owned->kind() != ControlKind::TextBox || chance(0.2)) continue;
        pending_.push_back("type " + ref(*owned) + " " + Quoted(shared.empty() ? pick() : shared));
    }
    if (const Control* ok = dialog.find("cmdOK")) pending_.push_back("click " + ref(*ok));
    if (pending_.empty()) return advance();
    std::string first = pending_.front();
    pending_.pop_front();
    return first;
}

// The game's window is open, and no other game's; Sumfall's decks are not
// of 52 cards, so no order is stacked for it.
bool Fuzzer::OnlyGameOpen() const {
    if (options_.game == "frmSumfall") return false;
    const Form* game = runtime_.loaded(options_.game);
    if (!game || !game->visible()) return false;
    for (const Form* form : runtime_.loadedForms())
        if (form != game && form->hasVariable("CurrentRound")) return false;
    return true;
}

std::string Fuzzer::advance() {
    int ms;
    // Playing for the score leaves the clock little time.
    if (options_.scoring && GameInProgress && chance(0.95)) return "advance " + std::to_string(uniform(1, 400));
    const int roll = uniform(1, 100);
    if (roll <= 40) ms = uniform(1, 300);
    else if (roll <= 70) ms = uniform(300, 3000);
    else if (roll <= 90) ms = uniform(3000, 20000);
    else if (roll <= 99) ms = uniform(20000, 120000);
    else ms = uniform(120000, 360000);
    return "advance " + std::to_string(ms);
}

std::string Fuzzer::text(bool fileName) {
    static const std::vector<std::string> kWords = {
        "", "0", "1", "-1", "7", "10", "250", "5000", "32767", "32768", "-32768", "-32769", "65536", "2147483647",
        "2147483648", "-2147483648", "-2147483649", "4294967296", "99999999999", "1e308", "1.5", "0x10", " 12 ", "&H7FFF", "Ann", "Zoë", "名前",
        "a,b", ",", "\"", "\t", "\x01", "\x7f", "line\r\nbreak", "Quillmark"};
    static const std::string kNameChars = "abcXYZ019 _-";
    std::string out;
    if (fileName) {
        // File names stay in the home folder: no separators, no dot, no wildcards.
        const int length = uniform(0, 12);
        for (int i = 0; i < length; ++i) out += kNameChars[static_cast<size_t>(uniform(0, static_cast<int>(kNameChars.size()) - 1))];
        return out;
    }
    const int roll = uniform(1, 100);
    if (roll <= 70) return kWords[static_cast<size_t>(uniform(0, static_cast<int>(kWords.size()) - 1))];
    if (roll <= 95) {
        const int length = uniform(1, 40);
        for (int i = 0; i < length; ++i) out += static_cast<char>(uniform(32, 126));
        return out;
    }
    return std::string(static_cast<size_t>(uniform(1000, 20000)), static_cast<char>(uniform('0', 'z')));
}

Form* Fuzzer::pickForm() {
    std::vector<Form*> forms = runtime_.loadedForms();
    if (forms.empty()) return nullptr;
    if (Form* modal = runtime_.topModal(); modal && chance(0.9)) return modal;
    Form* game = runtime_.loaded(options_.game);
    if (game && chance(0.8)) return game;
    return forms[static_cast<size_t>(uniform(0, static_cast<int>(forms.size()) - 1))];
}

Control* Fuzzer::pickControl(Form& form, bool (*fits)(const Control&)) {
    const bool liveOnly = chance(0.85);
    std::vector<Control*> candidates;
    std::vector<double> weights;
    for (const auto& owned : form.controls()) {
        Control& c = *owned;
        if (!AnyControl(c) || !fits(c)) continue;
        if (form.name() == "frmSelect" && c.name() == "cmdClose") continue;  // it ends the program
        if (liveOnly && !runtime_.accepts(form, &c)) continue;
        candidates.push_back(&c);
        // Clear High Scores less often, so that the tables fill up.
        double weight = Weight(c) * (c.name().find("Clear") != std::string::npos ? 0.1 : 1.0);
        // A steady player mostly plays the cards a game deals, to its end.
        if (steady_ && GameInProgress && (c.kind() == ControlKind::Menu || c.name() == "cmdPlay" ||
                                          c.name() == "cmdExit" || c.name() == "cmdQuit"))
            weight *= 0.02;
        weights.push_back(weight);
    }
    if (candidates.empty()) return nullptr;
    std::discrete_distribution<size_t> pick(weights.begin(), weights.end());
    return candidates[pick(random_)];
}

std::string Fuzzer::ref(const Control& control) const { return control.form().name() + "." + control.displayName(); }

std::string Fuzzer::event() {
    Form* form = pickForm();
    if (!form) return advance();
    // Back at the selector: mostly open the game again.
    if (form->name() == "frmSelect" && form->visible() && chance(0.8)) {
        const std::string open = "click frmSelect." + options_.selectorButton;
        if (!options_.edges) return open;
        if (std::string file = edgeSettings(); !file.empty()) {
            pending_.push_back(open);
            return file;
        }
        return open;
    }
    Form* game = runtime_.loaded(options_.game);
    const bool gameOnTop = game && form == game && !runtime_.topModal();
    if (options_.scoring && gameOnTop && GameInProgress && game->c("cmdPlay").enabled() && chance(0.85))
        if (std::string move = ScoringMove(*game, random_); !move.empty()) return move;
    if (options_.edges && form->modal() && form->name().find("Custom") != std::string::npos && chance(0.3))
        return fillDialog(*form);
    // Between games the scoring dialog is opened often, so that its boxes
    // take values at the edges.
    if (options_.edges && gameOnTop && !GameInProgress && chance(0.03))
        if (const Control* custom = game->find("mnuCustom"); custom && runtime_.accepts(*game, custom))
            return "click " + game->name() + ".mnuCustom";

    const int roll = uniform(1, 100);
    auto on = [&](bool (*fits)(const Control&)) { return pickControl(*form, fits); };
    if (roll <= 30) return advance();
    if (roll <= 75) {
        if (Control* c = on(AnyControl)) return "click " + ref(*c);
    } else if (roll <= 80) {
        if (Control* c = on(AnyControl)) return "dblclick " + ref(*c);
    } else if (roll <= 84) {
        if (Control* c = on(TextBox)) {
            const bool fileName = c->name() == "txtGameName";
            return "type " + ref(*c) + " " + Quoted(text(fileName));
        }
    } else if (roll <= 87) {
        if (Control* c = on(TakesKeys)) {
            static const std::vector<std::string> kKeys = {"Return", "Escape", "Tab", "Space", "Backspace", "a", "7", ","};
            return "key " + ref(*c) + " " + kKeys[static_cast<size_t>(uniform(0, static_cast<int>(kKeys.size()) - 1))];
        }
    } else if (roll <= 89) {
        if (Control* c = on(CheckBox)) return "check " + ref(*c) + " " + std::to_string(uniform(0, 1));
    } else if (roll <= 91) {
        if (Control* c = on(OptionButton)) return "choose " + ref(*c);
    } else if (roll <= 92) {
        if (Control* c = on(List)) return "select " + ref(*c) + " " + std::to_string(uniform(-1, 12));
    } else if (roll <= 93) {
        if (Control* c = on(TakesKeys)) return "focus " + ref(*c);
    } else if (roll <= 94) {
        if (Control* c = on(AnyControl)) return "move " + ref(*c);
    } else if (roll <= 96) {
        if (Control* c = on(AnyControl)) return "queue click " + ref(*c);
    } else if (roll <= 98) {
        if (form->name() != "frmSelect" && !(steady_ && GameInProgress)) return "close " + form->name();
    } else if (roll <= 99) {
        return "resize " + form->name() + " " + std::to_string(uniform(0, 30000)) + " " + std::to_string(uniform(0, 20000));
    } else {
        return "windowstate " + form->name() + " " + std::to_string(uniform(0, 2));
    }
    return advance();
}

// ---- One run -------------------------------------------------------------------

FuzzResult RunFuzz(const FuzzOptions& options, const std::string& dataPath) {
    WatchedPlatform platform;
    Runtime runtime(platform);
    Fuzzer fuzzer(runtime, platform, options);
    fuzzer.openTrail();
    LineBuffer lines(fuzzer);
    std::istream in(&lines);
    std::ostringstream out;
    ScriptRunner runner(runtime, platform, in, out);
    platform.setSource([&runner] { return runner.next(); });
    platform.setFailureReporter([&runner](const std::string& text) { runner.fail(text); });
    randomness::SetFailureReporter([&runner](const std::string& text) { runner.fail(text); });
    SuiteOptions suite;
    suite.appPath = options.home;
    suite.dataPath = dataPath;
    try {
        RegisterGameForms(runtime);
        StartSuite(runtime, suite);
        runtime.run();
    } catch (const StopRun&) {
    } catch (const ScriptError&) {
        fuzzer.setFault("the driver refused a line: " + out.str());
    } catch (const std::exception& e) {
        fuzzer.setFault(std::string("uncaught exception: ") + e.what());
    } catch (...) {
        fuzzer.setFault("uncaught exception");
    }
    randomness::SetFailureReporter(nullptr);
    if (!platform.hang().empty()) fuzzer.setFault("hang: " + platform.hang());
    if (runner.failures() > 0) fuzzer.setFault("the driver failed a line: " + out.str());
    FuzzResult result = fuzzer.result();
    if (result.fault.empty() && result.events < options.events)
        fuzzer.setFault("the program ended after " + std::to_string(result.events) + " events");
    result = fuzzer.result();
    fuzzer.closeTrail(result.fault.empty() && !options.keepTrail);
    return result;
}

}  // namespace ch
