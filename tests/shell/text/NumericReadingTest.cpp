// The numeric reading of a text, by cases and against a slow reader of another make.

#include "shell/text/Text.h"
#include "tests/support/FailureNumber.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstdlib>
#include <optional>
#include <random>
#include <string>

namespace caudalera::testing {
namespace {

bool areDigits(const std::string& text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
}

std::string withoutSign(const std::string& text) {
    return text.substr(!text.empty() && (text[0] == '+' || text[0] == '-') ? 1 : 0);
}

/// Whether the whole of a text without blanks is one decimal number.
bool isNumber(const std::string& text) {
    const std::size_t letter = text.find_first_of("EeDd");
    if (letter != std::string::npos && !areDigits(withoutSign(text.substr(letter + 1))))
        return false;
    std::string mantissa = withoutSign(text.substr(0, letter));
    const std::size_t point = mantissa.find('.');
    if (point != std::string::npos)
        mantissa.erase(point, 1);
    return areDigits(mantissa);
}

/// Value of the text, nothing for a value past the double range: all blanks struck out, characters
/// taken off the end until a number is left, its exponent letter made an `e`, and the C library's
/// reader.
std::optional<double> referenceReading(const std::string& text) {
    std::string solid;
    for (const char c : text) {
        if (c != ' ' && c != '\t' && c != '\r' && c != '\n')
            solid += c;
    }
    while (!solid.empty() && !isNumber(solid))
        solid.pop_back();
    const std::size_t letter = solid.find_first_of("EeDd");
    if (letter != std::string::npos)
        solid[letter] = 'e';
    const double value = std::strtod(solid.c_str(), nullptr);
    if (std::isinf(value))
        return std::nullopt;
    return value;
}

void expectAgrees(const std::string& text) {
    const std::optional<double> expected = referenceReading(text);
    if (!expected.has_value()) {
        ASSERT_EQ(failureNumber([&] { Val(text); }), 6) << '"' << text << '"';
        return;
    }
    ASSERT_EQ(Val(text), *expected) << '"' << text << '"';
}

TEST(NumericReading, LeadingNumber) {
    EXPECT_EQ(Val("12abc"), 12);
    EXPECT_EQ(Val("1,5"), 1);
    EXPECT_EQ(Val("abc"), 0);
    EXPECT_EQ(Val(""), 0);
    EXPECT_EQ(Val("0.0"), 0);
    EXPECT_EQ(Val("12.5"), 12.5);
    EXPECT_EQ(Val(".5"), 0.5);
    EXPECT_EQ(Val("5."), 5);
    EXPECT_EQ(Val("007"), 7);
    EXPECT_EQ(Val("1.2.3"), 1.2);
    EXPECT_EQ(Val("..5"), 0);
    EXPECT_EQ(Val("."), 0);
    EXPECT_EQ(Val("$5"), 0);
    EXPECT_EQ(Val("1/2"), 1);
}

TEST(NumericReading, Sign) {
    EXPECT_EQ(Val("-3.5"), -3.5);
    EXPECT_EQ(Val("+3.5"), 3.5);
    EXPECT_EQ(Val("-.5"), -0.5);
    EXPECT_EQ(Val("-"), 0);
    EXPECT_EQ(Val("+-5"), 0);
    EXPECT_EQ(Val("--5"), 0);
    EXPECT_EQ(Val("5-3"), 5);
    EXPECT_EQ(Val("- 5"), -5);
}

TEST(NumericReading, BlanksAreSkippedEverywhere) {
    EXPECT_EQ(Val(" 1"), 1);
    EXPECT_EQ(Val("1 2 3"), 123);
    EXPECT_EQ(Val("\t1\r\n2\n3 . 5 "), 123.5);
    EXPECT_EQ(Val(" - 1 E - 2 "), -0.01);
    EXPECT_EQ(Val("1 2 x 3"), 12);
    EXPECT_EQ(Val("   "), 0);
    EXPECT_EQ(Val("\n"), 0);
    // Other white space is no blank: vertical tab, form feed, the no-break space.
    EXPECT_EQ(Val("1\v2"), 1);
    EXPECT_EQ(Val("1\f2"), 1);
    EXPECT_EQ(Val("1\u00A02"), 1);
}

TEST(NumericReading, Exponent) {
    EXPECT_EQ(Val("1E3"), 1000);
    EXPECT_EQ(Val("1e3"), 1000);
    EXPECT_EQ(Val("1D3"), 1000);
    EXPECT_EQ(Val("1d3"), 1000);
    EXPECT_EQ(Val("1.5E+2"), 150);
    EXPECT_EQ(Val("25D-1"), 2.5);
    EXPECT_EQ(Val(".5E1"), 5);
    EXPECT_EQ(Val("5.E1"), 50);
    EXPECT_EQ(Val("1E2.5"), 100);
    EXPECT_EQ(Val("1E2E3"), 100);
    EXPECT_EQ(Val("1E002"), 100);
}

TEST(NumericReading, ExponentLetterWithoutDigitsIsNotPartOfTheNumber) {
    EXPECT_EQ(Val("12E"), 12);
    EXPECT_EQ(Val("12E+"), 12);
    EXPECT_EQ(Val("12d-"), 12);
    EXPECT_EQ(Val("12EE5"), 12);
    EXPECT_EQ(Val("12E+-5"), 12);
    EXPECT_EQ(Val("E5"), 0);
    EXPECT_EQ(Val(".E5"), 0);
}

TEST(NumericReading, NothingButDecimalNumbers) {
    EXPECT_EQ(Val("0x10"), 0);
    EXPECT_EQ(Val("&H10"), 0);
    EXPECT_EQ(Val("inf"), 0);
    EXPECT_EQ(Val("nan"), 0);
    EXPECT_EQ(Val("1#"), 1);
    EXPECT_EQ(Val(std::string("1\0002", 3)), 1);
}

TEST(NumericReading, PastTheDoubleRangeIsFailure6) {
    EXPECT_EQ(failureNumber([] { Val("1E309"); }), 6);
    EXPECT_EQ(failureNumber([] { Val("-1E309"); }), 6);
    EXPECT_EQ(failureNumber([] { Val("1E99999999999999999999"); }), 6);
    EXPECT_EQ(failureNumber([] { Val("1" + std::string(400, '0')); }), 6);
    // The range ends half a unit above the largest double, at 1.797693134862315807...E308.
    EXPECT_EQ(Val("1.7976931348623157E308"), DBL_MAX);
    EXPECT_EQ(Val("1.7976931348623158E308"), DBL_MAX);
    EXPECT_EQ(Val("-1.7976931348623158E308"), -DBL_MAX);
    EXPECT_EQ(failureNumber([] { Val("1.7976931348623159E308"); }), 6);
}

TEST(NumericReading, BelowTheDoubleRangeIsZero) {
    EXPECT_EQ(Val("1E-400"), 0);
    EXPECT_EQ(Val("1E-99999999999999999999"), 0);
    EXPECT_EQ(Val("." + std::string(400, '0') + "1"), 0);
    // The smallest double is 4.94E-324; half of it, 2.4703...E-324, is the border.
    EXPECT_EQ(Val("4.94E-324"), DBL_TRUE_MIN);
    EXPECT_EQ(Val("2.4704E-324"), DBL_TRUE_MIN);
    EXPECT_EQ(Val("2.4703E-324"), 0);
    EXPECT_EQ(Val("2.2250738585072014E-308"), DBL_MIN);
    EXPECT_FALSE(std::signbit(Val("-1E-400")));
    EXPECT_FALSE(std::signbit(Val("-0")));
}

TEST(NumericReading, ZeroWithAnyExponentIsZero) {
    EXPECT_EQ(Val("0E999"), 0);
    EXPECT_EQ(Val("0.000E99999999999999999999"), 0);
    EXPECT_EQ(Val("-0E-999"), 0);
}

// Mantissa and exponent may each leave the double range as long as their product does not.
TEST(NumericReading, LongMantissas) {
    EXPECT_EQ(Val("." + std::string(399, '0') + "1E401"), 10);
    EXPECT_EQ(Val("25" + std::string(400, '0') + "E-401"), 2.5);
    // 2^53 + 1 lies halfway between two doubles: to the even one, unless a digit far behind tells.
    EXPECT_EQ(Val("9007199254740993"), 9007199254740992.0);
    EXPECT_EQ(Val("9007199254740993." + std::string(900, '0') + "1"), 9007199254740994.0);
}

TEST(NumericReading, AgreesWithReferenceOnNumbers) {
    std::mt19937_64 random(11);
    const auto upTo = [&](unsigned limit) { return static_cast<unsigned>(random() % limit); };
    const auto digits = [&](unsigned limit) {
        std::string text;
        for (unsigned count = upTo(limit); count > 0; --count)
            text += static_cast<char>('0' + upTo(10));
        return text;
    };
    const char* signs[] = {"", "-", "+", " "};
    const char* letters[] = {"", "E", "e", "D", "d", " E ", "x"};
    int overflows = 0;
    int zeros = 0;
    for (int i = 0; i < 20000; ++i) {
        std::string text = signs[upTo(4)] + digits(20);
        if (upTo(3) > 0)
            text += "." + digits(20);
        text += letters[upTo(7)];
        text += signs[upTo(4)] + std::to_string(upTo(350));
        const std::optional<double> expected = referenceReading(text);
        overflows += expected.has_value() ? 0 : 1;
        zeros += expected == 0 ? 1 : 0;
        expectAgrees(text);
    }
    EXPECT_GT(overflows, 500);
    EXPECT_GT(zeros, 500);
    EXPECT_LT(overflows + zeros, 15000);
}

TEST(NumericReading, AgreesWithReferenceOnScrambledText) {
    std::mt19937_64 random(12);
    const std::string characters = "00112233456789..++--EeDd  \t\r\nax,";
    for (int i = 0; i < 20000; ++i) {
        std::string text;
        for (auto length = random() % 12; length > 0; --length)
            text += characters[random() % characters.size()];
        expectAgrees(text);
    }
}

} // namespace
} // namespace caudalera::testing
