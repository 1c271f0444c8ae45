// SPDX-License-Identifier: GPL-3.0-or-later
// The fonts the controls name, mapped to fonts a Linux desktop has, in pixel
// sizes at 96 dots per inch so that text fits the layouts in twips.
#pragma once

#include <QFont>
#include <string>

namespace ch {

QFont ControlFont(const std::string& name, double size, bool bold);

}  // namespace ch
