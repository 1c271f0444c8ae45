// SPDX-License-Identifier: GPL-3.0-or-later
// Conventions shared by every part of the suite: number parsing and formatting,
// the integer conversions with their rounding and overflow rules, booleans, and
// the run-time error that handlers catch where a message box shows its text.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace ch {

// A run-time error with a number and a description ("Overflow" is 6).
class RuntimeError : public std::runtime_error {
public:
    RuntimeError(int number, const std::string& description)
        : std::runtime_error(description), number_(number) {}
    int number() const { return number_; }
    std::string description() const { return what(); }

private:
    int number_;
};

constexpr int kErrOverflow = 6;

// The number at the start of a text: leading blanks skipped, an optional sign,
// digits, an optional decimal part. Never an exponent: "2D" is 2, "1E5" is 1.
double Val(const std::string& text);

// Fraction to whole number, a half going to the even neighbour; out of range
// raises "Overflow".
int16_t CInt(double value);
int32_t CLng(double value);

// Number to text with the leading blank of a non-negative number (" 7", "-7").
std::string Str(long long value);
// Number to text without any blank ("7", "-7").
std::string NumText(long long value);

// The display formats "###,###,###,##0" and "##,##0": digit groups of three,
// at least one digit, a minus sign in front of a negative number.
std::string FormatScore(long long value);

std::string Trim(const std::string& text);
std::string LTrim(const std::string& text);
std::string RTrim(const std::string& text);

// Booleans as the 16-bit values a stored or shown flag takes.
inline int16_t BoolValue(bool b) { return b ? -1 : 0; }
// Booleans in files.
inline const char* BoolText(bool b) { return b ? "True" : "False"; }
// Exactly "True" is true; anything else ("TRUE", "true", " True") reads as false.
bool ParseBoolText(const std::string& text);

}  // namespace ch
