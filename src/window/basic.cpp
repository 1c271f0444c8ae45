// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/basic.h"

#include <cctype>
#include <cmath>
#include <limits>

namespace ch {

double Val(const std::string& text) {
    size_t i = 0;
    const size_t n = text.size();
    while (i < n && (text[i] == ' ' || text[i] == '\t')) ++i;
    bool negative = false;
    if (i < n && (text[i] == '+' || text[i] == '-')) {
        negative = text[i] == '-';
        ++i;
    }
    double value = 0;
    while (i < n && std::isdigit(static_cast<unsigned char>(text[i]))) {
        value = value * 10 + (text[i] - '0');
        ++i;
    }
    if (i < n && text[i] == '.') {
        ++i;
        double scale = 0.1;
        while (i < n && std::isdigit(static_cast<unsigned char>(text[i]))) {
            value += (text[i] - '0') * scale;
            scale /= 10;
            ++i;
        }
    }
    return negative ? -value : value;
}

namespace {
template <typename Int>
Int RoundToEven(double value) {
    if (!std::isfinite(value)) throw RuntimeError(kErrOverflow, "Overflow");
    const double rounded = std::nearbyint(value);  // default mode: half to even
    if (rounded < static_cast<double>(std::numeric_limits<Int>::min()) ||
        rounded > static_cast<double>(std::numeric_limits<Int>::max()))
        throw RuntimeError(kErrOverflow, "Overflow");
    return static_cast<Int>(rounded);
}
}  // namespace

int16_t CInt(double value) { return RoundToEven<int16_t>(value); }
int32_t CLng(double value) { return RoundToEven<int32_t>(value); }

std::string Str(long long value) {
    return value < 0 ? std::to_string(value) : " " + std::to_string(value);
}

std::string NumText(long long value) { return std::to_string(value); }

std::string FormatScore(long long value) {
    const bool negative = value < 0;
    const unsigned long long magnitude =
        negative ? 0ULL - static_cast<unsigned long long>(value) : static_cast<unsigned long long>(value);
    const std::string digits = std::to_string(magnitude);
    std::string out;
    const size_t lead = digits.size() % 3 == 0 ? 3 : digits.size() % 3;
    out += digits.substr(0, lead);
    for (size_t i = lead; i < digits.size(); i += 3) {
        out += ',';
        out += digits.substr(i, 3);
    }
    return negative ? "-" + out : out;
}

std::string LTrim(const std::string& text) {
    size_t start = text.find_first_not_of(' ');
    return start == std::string::npos ? std::string() : text.substr(start);
}

std::string RTrim(const std::string& text) {
    size_t end = text.find_last_not_of(' ');
    return end == std::string::npos ? std::string() : text.substr(0, end + 1);
}

std::string Trim(const std::string& text) { return LTrim(RTrim(text)); }

bool ParseBoolText(const std::string& text) { return text == "True"; }

}  // namespace ch
