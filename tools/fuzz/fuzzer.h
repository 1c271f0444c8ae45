// SPDX-License-Identifier: GPL-3.0-or-later
// cardhaven-fuzz: plays the suite with seeded random input and checks after
// every event what must always hold.
//
// The fuzzer writes each event as a line of the driver's script language and
// hands the line to the driver's own ScriptRunner, so the trail it keeps is a
// script that cardhaven-script replays event for event: the same input, the
// same virtual clock, hence the same random draws.
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "tools/fuzz/checks.h"
#include "window/headless.h"

namespace ch {

class Runtime;
class Form;
class Control;

struct FuzzOptions {
    std::string game = "frmSumfall";  // the game window the run plays
    std::string selectorButton = "cmdSumfall";
    uint64_t seed = 1;
    long long events = 10000;
    std::string home;   // a fresh folder
    std::string trail;  // where the script of the run is written
    // The game's tables, one a time limit (and card goal): the run starts with
    // low scores in them, so that games played at random make the tables too.
    std::vector<std::string> tables;
    // When set, the settings file holds only this section, a low score for a
    // bonus round, so that random games reach the bonus round too.
    std::string settingsFile, bonusSection;
    bool keepTrail = false;  // keep it after a clean run too, closed by expectations of the end state
    // Values at the edges of their types: each time the game window opens
    // again, its settings file holds them in its numeric sections (as the
    // window last wrote it), and custom scoring dialogs get them in their boxes.
    bool edges = false;
    std::string settingsName;  // the game's settings file, for `edges`
    // Play toward big scores: favourable decks are stacked, and where the
    // game has a player (tools/fuzz/players.h) its best move is preferred.
    bool scoring = false;
};

struct FuzzResult {
    long long events = 0;
    long long gamesCompleted = 0;  // Play to Game Over
    long long bestScore = 0;       // the highest CurrentScore seen
    int64_t virtualMs = 0;
    std::string fault;  // empty when every check held
    std::map<std::string, long long> messageBoxes;  // how often each text was shown
    std::map<std::string, long long> sounds;        // how often each sound was played
    std::map<std::string, long long> messages;      // the game's lblMessage captions seen
};

// The headless platform with a watchdog on virtual time: the loop must come
// back for input within a while of the last input or the last wait asked for.
class WatchedPlatform : public HeadlessPlatform {
public:
    static constexpr int64_t kHangMs = 15 * 60 * 1000;  // fifteen virtual minutes
    static constexpr long kHangWaits = 5'000'000;       // polls with no input asked for

    void sleep(int ms) override;
    WaitResult wait(InputEvent& event, int64_t deadline, bool pollOnly) override;
    // Called when the fuzzer hands out the next input; `busyUntil` is the end
    // of the idle time it asked for, if any.
    void served(int64_t busyUntil);
    const std::string& hang() const { return hang_; }

private:
    void check();
    int64_t quietUntil_ = 0;
    long waits_ = 0;
    std::string hang_;
};

class Fuzzer {
public:
    Fuzzer(Runtime& runtime, WatchedPlatform& platform, const FuzzOptions& options);

    // The next line of the script, or empty at the end of the run (or at the
    // first fault). Each line is also written to the trail.
    std::string nextLine();
    FuzzResult result() const;
    void setFault(const std::string& fault);
    // The trail is written line by line as the run goes, so that it is there
    // after a crash too; a clean run removes it.
    void openTrail();
    void closeTrail(bool remove);

private:
    std::string check();
    std::string event();
    std::string advance();
    std::string text(bool fileName);
    std::string lowTable();
    std::string edgeSettings();
    bool OnlyGameOpen() const;
    std::string fillDialog(Form& dialog);
    Form* pickForm();
    Control* pickControl(Form& form, bool (*fits)(const Control&));
    std::string ref(const Control& control) const;
    void trail(const std::string& text);
    std::string closingExpectations();
    int uniform(int low, int high);
    bool chance(double p);

    Runtime& runtime_;
    WatchedPlatform& platform_;
    FuzzOptions options_;
    std::mt19937_64 random_;
    HomeWatch home_;
    FuzzResult result_;
    static constexpr long kStuckEvents = 3000;
    const Form* lastModal_ = nullptr;
    long modalEvents_ = 0;
    size_t tablesWritten_ = 0;
    bool settingsWritten_ = false;
    // Every third seed, and every run that plays for the score, plays
    // steadily: menus, Play and closing rarely while a game runs, so that
    // rounds and bonus rounds are played out.
    bool steady_ = false;
    std::string lastMessage_;
    bool lastWasStep_ = false;
    bool gameWasInProgress_ = false;
    int trailFd_ = -1;
    std::deque<std::string> pending_;  // events that follow the last one, in order
};

// Runs one whole fuzz run in this process: the suite from its start, the
// game's selector button, then random input until `events` or a fault. The
// trail is removed when every check held.
FuzzResult RunFuzz(const FuzzOptions& options, const std::string& dataPath);

}  // namespace ch
