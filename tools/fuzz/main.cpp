// SPDX-License-Identifier: GPL-3.0-or-later
// cardhaven-fuzz --game NAME [--seed N] [--events N] [--data DIR] [--trail FILE] [--keep-trail] [--home DIR]
// Plays one game of the suite with seeded random input on the headless
// platform and checks after every event what must always hold. On a fault it
// keeps the run's trail, a script that cardhaven-script replays, and exits 1.
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <optional>
#include <string>
#include <vector>
#include <unistd.h>

#include "games/games.h"
#include "tools/fuzz/fuzzer.h"
#include "tools/script/script.h"

namespace {

constexpr char kUsage[] =
    "usage: cardhaven-fuzz --game NAME [--seed N] [--events N] [--data DIR] [--trail FILE] [--keep-trail]\n"
    "                      [--stats] [--home DIR] [--edges] [--scoring]\n";

[[noreturn]] void Usage(const std::string& complaint) {
    std::cerr << "cardhaven-fuzz: " << complaint << "\n" << kUsage;
    std::exit(2);
}

// A run that stops answering in real time is a hang too: the trail is on disk.
void OnAlarm(int) {
    const char text[] = "cardhaven-fuzz: FAULT hang: no input asked for in 60 s of real time; trail kept\n";
    (void)!::write(2, text, sizeof text - 1);
    ::_exit(1);
}

}  // namespace

int main(int argc, char** argv) {
    ch::FuzzOptions options;
    std::string data;
    std::string gameName;
    bool stats = false;
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        auto value = [&]() -> std::string {
            if (i + 1 >= argc) Usage(arg + " needs a value");
            return argv[++i];
        };
        if (arg == "--help" || arg == "-h") {
            std::cout << kUsage
                      << "Plays one game (sumfall, fivestack, blackrush, spirehold, duopick, handgrid,\n"
                         "treyshift) with random input drawn from SEED, in virtual time, and checks\n"
                         "after every event: no crash or uncaught exception, no hang, every settings\n"
                         "file, table and saved game reads back, a table loses an entry only to a newer\n"
                         "score or to Clear, the score shown is CurrentScore. On a fault the trail FILE\n"
                         "(default cardhaven-fuzz-GAME-SEED.script) replays it: cardhaven-script --data DIR FILE.\n"
                         "--keep-trail keeps it after a clean run too, ending in expectations of the\n"
                         "state the run reached, so that a replay checks itself. --stats counts the\n"
                         "message boxes shown, by text, the sounds played, the game's messages and the\n"
                         "highest score.\n"
                         "--edges writes values at the edges of 16- and 32-bit numbers (the bounds, one\n"
                         "past, negative, zero) into every numeric section of the settings file each\n"
                         "time the game opens again, and into the boxes of its scoring dialog.\n"
                         "--scoring plays toward big scores: favourable decks, and the moves the rules\n"
                         "score (Treyshift, Handgrid, Fivestack, Spirehold).\n";
            return 0;
        } else if (arg == "--game") gameName = value();
        else if (arg == "--seed") options.seed = std::strtoull(value().c_str(), nullptr, 10);
        else if (arg == "--events") options.events = std::strtoll(value().c_str(), nullptr, 10);
        else if (arg == "--data") data = value();
        else if (arg == "--trail") options.trail = value();
        else if (arg == "--home") options.home = value();
        else if (arg == "--keep-trail") options.keepTrail = true;
        else if (arg == "--stats") stats = true;
        else if (arg == "--edges") options.edges = true;
        else if (arg == "--scoring") options.scoring = true;
        else Usage("unknown argument " + arg);
    }
    const ch::GameInfo* game = nullptr;
    for (const ch::GameInfo* g : ch::Games())
        if (gameName == g->name) game = g;
    if (!game) Usage("--game takes one of the seven games");
    options.game = game->form;
    options.selectorButton = game->button;
    // The settings file as the home folder holds it, without its leading "\\".
    const std::string settings = std::string(game->settingsFile).substr(1);
    options.settingsName = settings;
    // Odd seeds start with a bonus round within reach of random play.
    if (*game->bonusSection && options.seed % 2 == 1) {
        options.settingsFile = settings;
        options.bonusSection = game->bonusSection;
    }
    for (const ch::TimeEntry& limit : game->timeEntries) {
        const std::string stem = game->tableName + std::to_string(limit.seconds);
        if (game->cardGoals.empty()) options.tables.push_back(stem + ".Txt");
        for (int goal : game->cardGoals) options.tables.push_back(stem + "_" + std::to_string(goal) + ".Txt");
    }
    if (options.trail.empty())
        options.trail = "cardhaven-fuzz-" + gameName + "-" + std::to_string(options.seed) + ".script";

    std::optional<ch::TemporaryHome> tempHome;
    if (options.home.empty()) {
        tempHome.emplace("cardhaven-fuzz");
        if (tempHome->path().empty()) {
            std::cerr << "cardhaven-fuzz: cannot make a temporary folder\n";
            return 2;
        }
        options.home = tempHome->path();
    }

    std::signal(SIGALRM, OnAlarm);
    const auto start = std::chrono::steady_clock::now();
    const ch::FuzzResult result = ch::RunFuzz(options, data);
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    ::alarm(0);

    tempHome.reset();
    std::cout << gameName << " seed " << options.seed << ": " << result.events << " events, " << result.gamesCompleted
              << " games completed, " << result.virtualMs / 1000 << " s of virtual time, " << seconds << " s\n";
    if (stats) {
        std::cout << "  highest score " << result.bestScore << "\n";
        for (const auto& [text, count] : result.messageBoxes) std::cout << "  " << count << "  " << text << "\n";
        for (const auto& [sound, count] : result.sounds) std::cout << "  " << count << "  " << sound << "\n";
        for (const auto& [text, count] : result.messages) std::cout << "  " << count << "  lblMessage " << text << "\n";
    }
    if (!result.fault.empty()) {
        std::cout << "FAULT " << result.fault << "\nreplay: cardhaven-script --data DATA " << options.trail << "\n";
        return 1;
    }
    return 0;
}
