// SPDX-License-Identifier: GPL-3.0-or-later
// Start-up of the suite, shared by the desktop program and the headless driver.
#pragma once

#include <string>

namespace ch {

class Runtime;

struct SuiteOptions {
    std::string appPath;      // folder of settings, tables and saved games
    std::string dataPath;     // folder of the wave and music files
    std::string commandLine;  // what the game windows see as the command line
};

// Registers the suite's own windows, resets the shared state, fixes
// AppPath and shows the selector (its Form_Load runs inside). The caller
// registers the games first (RegisterGame, gameinfo.h), so that the selector
// offers them.
void StartSuite(Runtime& runtime, const SuiteOptions& options);

// The address cmdLaunchBrowser opens.
const char* WebSiteAddress();

// Opens a page in the default browser; tells the player when it can't.
void OpenWebPage(const std::string& url);

}  // namespace ch
