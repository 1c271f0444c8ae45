// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/suite.h"

#include <memory>

#include "suite/cards.h"
#include "suite/common.h"
#include "suite/frmAbout.h"
#include "suite/frmHiScoreName.h"
#include "suite/frmHighScores.h"
#include "suite/frmRules.h"
#include "suite/frmSelect.h"
#include "window/runtime.h"

#ifndef CARDHAVEN_WEB_URL
#define CARDHAVEN_WEB_URL "https://quillmark.games/cardhaven/"
#endif

namespace ch {

const char* WebSiteAddress() { return CARDHAVEN_WEB_URL; }

void StartSuite(Runtime& runtime, const SuiteOptions& options) {
    ResetShared();
    AppPath = options.appPath;
    DataPath = options.dataPath;
    CommandLine = options.commandLine;
    ExposeShared(runtime);
    runtime.registerForm("frmSelect", [](Runtime& rt) { return std::make_unique<frmSelect>(rt); });
    runtime.registerForm("frmHighScores", [](Runtime& rt) { return std::make_unique<frmHighScores>(rt); });
    runtime.registerForm("frmHiScoreName", [](Runtime& rt) { return std::make_unique<frmHiScoreName>(rt); });
    runtime.registerForm("frmRules", [](Runtime& rt) { return std::make_unique<frmRules>(rt); });
    runtime.registerForm("frmAbout", [](Runtime& rt) { return std::make_unique<frmAbout>(rt); });
    runtime.show("frmSelect");
}

void OpenWebPage(const std::string& url) {
    switch (Runtime::current().platform().openWebPage(url)) {
        case Platform::WebResult::Opened: break;
        case Platform::WebResult::NoBrowser:
            MsgBox("Unable to find default web Browser", MsgButtons::OK, MsgIcon::Exclamation, AppTitle);
            break;
        case Platform::WebResult::Failed:
            MsgBox("Unable to open web page '" + url + "'.", MsgButtons::OK, MsgIcon::Exclamation, AppTitle);
            break;
    }
}

}  // namespace ch
