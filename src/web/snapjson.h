// SPDX-License-Identifier: GPL-3.0-or-later
// The snapshot of the windows as JSON, the form the page's renderer reads:
// a form with nothing changed as {"name", "instance", "same": true}, any
// other with its header and the controls that changed (see
// window/snapshot.h), so that a count-up sends one label, not the window.
#pragma once

#include <string>

#include "window/snapshot.h"

namespace ch {

class SnapshotJson {
public:
    std::string write(const Snapshot& snapshot);
};

// A string as a JSON string literal, quotes included.
std::string JsonString(const std::string& text);

}  // namespace ch
