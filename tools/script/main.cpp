// SPDX-License-Identifier: GPL-3.0-or-later
// cardhaven-script [--home DIR] [--data DIR] [--command TEXT] [--trace] [SCRIPT]
// Runs the suite on the headless platform, driven by a script. Exit status:
// 0 when every expectation held, 1 after any FAIL, 2 after an ERROR.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>

#include "games/games.h"
#include "suite/cards.h"
#include "suite/suite.h"
#include "tools/script/script.h"
#include "window/runtime.h"
#ifdef CARDHAVEN_TEST_FORMS
#include "tests/support/testforms.h"  // the test driver's own windows
#endif

#ifndef CARDHAVEN_VERSION
#define CARDHAVEN_VERSION "unknown"
#endif

namespace {

constexpr char kUsage[] = "usage: cardhaven-script [--home DIR] [--data DIR] [--command TEXT] [--trace] [SCRIPT]\n";

[[noreturn]] void Usage(const std::string& complaint) {
    std::cerr << "cardhaven-script: " << complaint << "\n" << kUsage;
    std::exit(2);
}

void PrintHelp() {
    std::cout << kUsage
              << "Runs Card Haven without a display, driven by a script read from SCRIPT or,\n"
                 "without one or with -, from standard input.\n"
                 "\n"
                 "  --home DIR      folder of settings, high score tables and saved games\n"
                 "                  (a fresh temporary folder by default)\n"
                 "  --data DIR      folder of the wave and music files\n"
                 "  --command TEXT  the command line the game windows see\n"
                 "  --trace         print each event as it is served\n"
                 "  --help          print this help and exit\n"
                 "  --version       print the version and exit\n"
                 "\n"
                 "Exit status: 0 when every expectation held, 1 after a failed one, 2 after an\n"
                 "error in the script or on the command line.\n";
}

}  // namespace

int main(int argc, char** argv) {
    ch::SuiteOptions options;
    std::string scriptPath;
    bool trace = false;
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        auto value = [&]() -> std::string {
            if (i + 1 >= argc) Usage(arg + " needs a value");
            return argv[++i];
        };
        if (arg == "--help" || arg == "-h") {
            PrintHelp();
            return 0;
        } else if (arg == "--version") {
            std::cout << "cardhaven-script " CARDHAVEN_VERSION "\n";
            return 0;
        } else if (arg == "--home") options.appPath = value();
        else if (arg == "--data") options.dataPath = value();
        else if (arg == "--command") options.commandLine = value();
        else if (arg == "--trace") trace = true;
        else if (!arg.empty() && arg[0] == '-' && arg != "-") Usage("unknown option " + arg);
        else if (!scriptPath.empty()) Usage("one script at a time");
        else scriptPath = arg;
    }

    std::ifstream file;
    if (!scriptPath.empty() && scriptPath != "-") {
        file.open(scriptPath);
        if (!file) {
            std::cerr << "cardhaven-script: cannot read " << scriptPath << "\n";
            return 2;
        }
    }
    std::istream& in = file.is_open() ? static_cast<std::istream&>(file) : std::cin;

    std::optional<ch::TemporaryHome> tempHome;
    if (options.appPath.empty()) {
        tempHome.emplace("cardhaven");
        if (tempHome->path().empty()) {
            std::cerr << "cardhaven-script: cannot make a temporary folder\n";
            return 2;
        }
        options.appPath = tempHome->path();
    }

    int status = 0;
    {
        ch::HeadlessPlatform platform;
        ch::Runtime runtime(platform);
        ch::ScriptRunner runner(runtime, platform, in, std::cout);
        runner.setTracing(trace);
        if (!scriptPath.empty() && scriptPath != "-")
            runner.setFolder(std::filesystem::path(scriptPath).parent_path().string());
        platform.setSource([&runner] { return runner.next(); });
        platform.setFailureReporter([&runner](const std::string& text) { runner.fail(text); });
        ch::randomness::SetFailureReporter([&runner](const std::string& text) { runner.fail(text); });
        // Told only when asked for: a trace line is built at every timer tick.
        if (trace) runtime.setTracer([&runner](const std::string& text) { runner.trace(text); });
        try {
            ch::RegisterGameForms(runtime);
#ifdef CARDHAVEN_TEST_FORMS
            ch::RegisterTestForms(runtime);
#endif
            ch::StartSuite(runtime, options);
#ifdef CARDHAVEN_TEST_FORMS
            ch::ShowTestLauncher(runtime);
#endif
            runtime.run();
        } catch (const ch::StopRun&) {
        } catch (const ch::ScriptError&) {
            status = 2;
        }
        ch::randomness::SetFailureReporter(nullptr);
        if (status == 0 && runner.failures() > 0) status = 1;
    }
    return status;
}
