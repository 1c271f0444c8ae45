// SPDX-License-Identifier: GPL-3.0-or-later
// The snapshot of the windows as JSON, the form the page's renderer reads.
// Controls whose revision the page already has are sent as {"key", "rev"}
// alone, so that a count-up sends one label, not the whole window.
#pragma once

#include <map>
#include <string>

#include "qt/snapshot.h"

namespace ch {

class SnapshotJson {
public:
    std::string write(const Snapshot& snapshot);

private:
    // Revision last sent per "instance/key".
    std::map<std::string, uint64_t> sent_;
};

// A string as a JSON string literal, quotes included.
std::string JsonString(const std::string& text);

}  // namespace ch
