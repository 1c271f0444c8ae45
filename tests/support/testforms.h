// SPDX-License-Identifier: GPL-3.0-or-later
// Windows only in the test driver: a small game window built from the shared pieces as a game is,
// and a launcher that opens it and reads and writes files in AppPath for scripts.
#pragma once

namespace ch {

class Runtime;

inline constexpr const char* kTestGameTitle = "Testgame!";

void RegisterTestForms(Runtime& runtime);
void RegisterTestGame(Runtime& runtime);
void ShowTestLauncher(Runtime& runtime);

}  // namespace ch
