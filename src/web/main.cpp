// SPDX-License-Identifier: GPL-3.0-or-later
// The suite in the browser's worker: cardhaven-web [--test] [--command TEXT].
// Settings, tables and saved games live in /home/cardhaven, a memory folder
// the page fills from its persistent storage before the start and keeps in
// step with every whole-file write (src/web/bridge.js).
#include <string>

#include "games/games.h"
#include "suite/files.h"
#include "suite/suite.h"
#include "web/webplatform.h"
#include "window/runtime.h"

extern "C" {
void ch_post(const char* type, const char* body);
void ch_mirror_files();
}

int main(int argc, char** argv) {
    ch::SuiteOptions options;
    options.appPath = "/home/cardhaven";
    options.dataPath = "/data";
    bool testHooks = false;
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        if (arg == "--test") testHooks = true;
        else if (arg == "--command" && i + 1 < argc) options.commandLine = argv[++i];
    }
    // Nothing outside the home folder reaches persistent storage: the save
    // and open dialogs stop there, and no file is written elsewhere.
    ch::SetTopFolder(options.appPath);
    int status = 0;
    ch_mirror_files();
    {
        ch::WebPlatform platform(testHooks);
        ch::Runtime runtime(platform);
        try {
            ch::RegisterGameForms(runtime);
            ch::StartSuite(runtime, options);
            runtime.run();
        } catch (const ch::StopRun&) {
        }
    }
    ch_post("ended", "{}");
    return status;
}
