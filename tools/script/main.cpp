// cardhaven-script [--home DIR] [--data DIR] [--command TEXT] [--trace] [SCRIPT]
// Runs the suite on the headless platform, driven by a script. Exit status:
// 0 when every expectation held, 1 after any FAIL, 2 after an ERROR.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include "games/games.h"
#include "suite/cards.h"
#include "suite/suite.h"
#include "tools/script/script.h"
#include "window/runtime.h"
#ifdef CARDHAVEN_TEST_FORMS
#include "tests/support/testforms.h"  // the test driver's own windows
#endif

namespace fs = std::filesystem;

int main(int argc, char** argv) {
    ch::SuiteOptions options;
    std::string scriptPath;
    bool trace = false;
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        auto value = [&]() -> std::string {
            if (i + 1 >= argc) {
                std::cerr << "cardhaven-script: " << arg << " needs a value\n";
                std::exit(2);
            }
            return argv[++i];
        };
        if (arg == "--home") options.appPath = value();
        else if (arg == "--data") options.dataPath = value();
        else if (arg == "--command") options.commandLine = value();
        else if (arg == "--trace") trace = true;
        else if (!arg.empty() && arg[0] == '-' && arg != "-") {
            std::cerr << "usage: cardhaven-script [--home DIR] [--data DIR] [--command TEXT] [--trace] [SCRIPT]\n";
            return 2;
        } else scriptPath = arg;
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

    std::string tempHome;
    if (options.appPath.empty()) {
        std::string pattern = (fs::temp_directory_path() / "cardhaven-XXXXXX").string();
        if (!mkdtemp(pattern.data())) {
            std::cerr << "cardhaven-script: cannot make a temporary folder\n";
            return 2;
        }
        tempHome = options.appPath = pattern;
    }

    int status = 0;
    {
        ch::HeadlessPlatform platform;
        ch::Runtime runtime(platform);
        ch::ScriptRunner runner(runtime, platform, in, std::cout);
        runner.setTracing(trace);
        platform.setSource([&runner] { return runner.next(); });
        platform.setFailureReporter([&runner](const std::string& text) { runner.fail(text); });
        ch::randomness::SetFailureReporter([&runner](const std::string& text) { runner.fail(text); });
        runtime.setTracer([&runner](const std::string& text) { runner.trace(text); });
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
    if (!tempHome.empty()) {
        std::error_code ec;
        fs::remove_all(tempHome, ec);
    }
    return status;
}
