// SPDX-License-Identifier: GPL-3.0-or-later
// The conversions every rule and settings file goes through.
#include <gtest/gtest.h>

#include "window/basic.h"

using namespace ch;

TEST(Val, ReadsTheNumberAtTheStartAndNeverAnExponent) {
    const std::pair<const char*, double> cases[] = {
        {"2D", 2}, {"1E5", 1},  {"12abc", 12}, {"abc", 0}, {"", 0},
        {"   -7 points", -7}, {"+3", 3}, {"2.5x", 2.5}, {" 13D", 13}, {"-", 0},
    };
    for (const auto& [text, value] : cases) EXPECT_DOUBLE_EQ(Val(text), value) << text;
}

TEST(Conversions, RoundHalvesToTheEvenNeighbourAndOverflowOutOfRange) {
    // 22.5 and 37.5 are a quarter of 90 and of 150 seconds.
    const std::pair<double, int> ints[] = {{2.5, 2},   {3.5, 4},         {-2.5, -2},      {22.5, 22},
                                           {37.5, 38}, {2.4999, 2}, {32767.4, 32767}, {-32768.5, -32768}};
    for (const auto& [value, rounded] : ints) EXPECT_EQ(CInt(value), rounded) << value;
    EXPECT_EQ(CLng(2500000.5), 2500000);
    EXPECT_EQ(CLng(-0.5), 0);
    try {
        CInt(32767.5);
        FAIL() << "no error raised";
    } catch (const RuntimeError& e) {
        EXPECT_EQ(e.number(), 6);
        EXPECT_EQ(e.description(), "Overflow");
    }
    EXPECT_THROW(CLng(2147483648.0), RuntimeError);
    EXPECT_NO_THROW(CLng(-2147483648.0));
}

TEST(Texts, ScoresGroupDigitsInThreesAndStrKeepsTheBlankOfItsSign) {
    const std::pair<std::string, std::string> texts[] = {
        {FormatScore(0), "0"},        {FormatScore(999), "999"},       {FormatScore(1000), "1,000"},
        {FormatScore(1234567), "1,234,567"}, {FormatScore(-1500), "-1,500"},
        {FormatScore(-2147483648LL), "-2,147,483,648"}, {Str(7), " 7"}, {Str(0), " 0"}, {Str(-7), "-7"},
        {NumText(7), "7"}, {Trim("  10D "), "10D"}, {LTrim("  a "), "a "}, {RTrim("  a "), "  a"}, {Trim("   "), ""}};
    for (const auto& [text, expected] : texts) EXPECT_EQ(text, expected);
}

// A settings file's True is the one spelling; anything else reads as False.
TEST(Booleans, StoredAsMinusOneAndReadOnlyFromTrue) {
    EXPECT_EQ(BoolValue(true), -1);
    EXPECT_EQ(BoolValue(false), 0);
    EXPECT_STREQ(BoolText(true), "True");
    EXPECT_TRUE(ParseBoolText("True"));
    for (const char* text : {"TRUE", "true", " True", "False", "yes"}) EXPECT_FALSE(ParseBoolText(text)) << text;
}
