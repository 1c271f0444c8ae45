// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/fonts.h"

#include <cctype>
#include <cmath>

namespace ch {

QFont ControlFont(const std::string& name, double size, bool bold) {
    std::string lower;
    for (char c : name) lower += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    const bool serif = lower.find("times") != std::string::npos || lower == "ms serif" ||
                       lower.find("roman") != std::string::npos;
    QFont font(serif ? QStringLiteral("DejaVu Serif") : QStringLiteral("DejaVu Sans"));
    font.setStyleHint(serif ? QFont::Serif : QFont::SansSerif);
    // DejaVu runs wider than the fonts the layouts were made for.
    constexpr double kScale = 0.9;
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(size * 96.0 / 72.0 * kScale))));
    font.setBold(bold);
    return font;
}

}  // namespace ch
