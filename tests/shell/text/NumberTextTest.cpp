// Number-to-text conversion and plain text, and their way back through the numeric reading.

#include "shell/text/Text.h"
#include "tests/shell/text/ExactDecimal.h"
#include "tests/support/FailureNumber.h"

#include <gtest/gtest.h>

#include <bit>
#include <cfloat>
#include <limits>
#include <random>

namespace caudalera::testing {
namespace {

/// Plain text out of the exact expansion: written out whole where it fits 15 and 15 places.
std::string referencePlain(double value, std::size_t significant) {
    ExactDecimal number = roundSignificant(expand(value), significant);
    if (number.isZero())
        return "0";
    number.integer.erase(0, number.integer.find_first_not_of('0'));
    number.fraction.erase(number.fraction.find_last_not_of('0') + 1);
    const std::string sign = number.negative ? "-" : "";
    if (number.integer.size() <= 15 && number.fraction.size() <= 15) {
        const std::string integer = number.integer.empty() ? "0" : number.integer;
        return sign + integer + (number.fraction.empty() ? "" : "." + number.fraction);
    }
    std::string digits = number.integer + number.fraction;
    const std::size_t first = digits.find_first_not_of('0');
    const int exponent = static_cast<int>(number.integer.size()) - static_cast<int>(first) - 1;
    digits = digits.substr(first, digits.find_last_not_of('0') - first + 1);
    std::string power = std::to_string(std::abs(exponent));
    power.insert(0, power.size() < 2 ? 2 - power.size() : 0, '0');
    return sign + digits.substr(0, 1) + (digits.size() > 1 ? "." + digits.substr(1) : "") +
           (exponent < 0 ? "E-" : "E+") + power;
}

/// The conversion with its blank and without the zero before the point, out of the plain text.
std::string withBlank(std::string plain) {
    const std::string sign = plain.front() == '-' ? "-" : " ";
    if (sign == "-")
        plain.erase(0, 1);
    if (plain.size() > 1 && plain[0] == '0')
        plain.erase(0, 1);
    return sign + plain;
}

template <typename Number>
void expectAgrees(Number value, std::size_t significant) {
    const std::string plain = referencePlain(value, significant);
    ASSERT_EQ(textoPlano(value), plain) << std::hexfloat << value;
    ASSERT_EQ(Str(value), withBlank(plain)) << std::hexfloat << value;
}

TEST(NumberText, BlankOfNonNegativeAndNoZeroBeforeThePoint) {
    EXPECT_EQ(Str(1.0), " 1");
    EXPECT_EQ(Str(0.5), " .5");
    EXPECT_EQ(Str(-0.5), "-.5");
    EXPECT_EQ(Str(12.25), " 12.25");
    EXPECT_EQ(Str(0.0), " 0");
    EXPECT_EQ(Str(-0.0), " 0");
    EXPECT_EQ(Str(-100.0), "-100");
    EXPECT_EQ(Str(0.05), " .05");
    EXPECT_EQ(Str(32767.0), " 32767");
}

TEST(NumberText, FifteenSignificantDigits) {
    EXPECT_EQ(Str(0.1 + 0.2), " .3");
    EXPECT_EQ(Str(1.0 / 3), " .333333333333333");
    EXPECT_EQ(Str(2.0 / 3), " .666666666666667");
    EXPECT_EQ(Str(-200.0 / 3), "-66.6666666666667");
    EXPECT_EQ(Str(0.99999999999999989), " 1");
}

// 15 places are written out on either side of the point; one more takes the exponent.
TEST(NumberText, FixedNotationEndsAtFifteenPlaces) {
    EXPECT_EQ(Str(999999999999999.0), " 999999999999999");
    EXPECT_EQ(Str(123456789012345.0), " 123456789012345");
    EXPECT_EQ(Str(1E14), " 100000000000000");
    EXPECT_EQ(Str(1E15), " 1E+15");
    EXPECT_EQ(Str(1E16), " 1E+16");
    EXPECT_EQ(Str(-1.25E15), "-1.25E+15");
    EXPECT_EQ(Str(1E-15), " .000000000000001");
    EXPECT_EQ(Str(1.5E-14), " .000000000000015");
    EXPECT_EQ(Str(1.5E-15), " 1.5E-15");
    EXPECT_EQ(Str(1.5E-16), " 1.5E-16");
    EXPECT_EQ(Str(0.123456789012345), " .123456789012345");
    EXPECT_EQ(Str(0.0123456789012345), " 1.23456789012345E-02");
    EXPECT_EQ(Str(-0.02 / 3), "-6.66666666666667E-03");
    EXPECT_EQ(Str(1E100), " 1E+100");
    EXPECT_EQ(Str(-1E-100), "-1E-100");
    EXPECT_EQ(Str(DBL_MAX), " 1.79769313486232E+308");
    // The smallest subnormal is 2^-1074 = 4.94065645841246544...E-324.
    EXPECT_EQ(Str(DBL_TRUE_MIN), " 4.94065645841247E-324");
}

TEST(NumberText, SingleHasSevenDigits) {
    EXPECT_EQ(Str(0.1F), " .1");
    EXPECT_EQ(Str(16777216.0F), " 16777220");
    EXPECT_EQ(Str(1.0F / 3), " .3333333");
    EXPECT_EQ(Str(-1234.567F), "-1234.567");
    EXPECT_EQ(Str(1E10F), " 10000000000");
    EXPECT_EQ(Str(1E15F), " 1E+15");
    EXPECT_EQ(textoPlano(0.1F), "0.1");
    EXPECT_EQ(textoPlano(-0.25F), "-0.25");
    EXPECT_EQ(textoPlano(FLT_MAX), "3.402823E+38");
}

TEST(NumberText, PlainText) {
    EXPECT_EQ(textoPlano(1.0), "1");
    EXPECT_EQ(textoPlano(0.5), "0.5");
    EXPECT_EQ(textoPlano(-0.5), "-0.5");
    EXPECT_EQ(textoPlano(0.0), "0");
    EXPECT_EQ(textoPlano(-0.0), "0");
    EXPECT_EQ(textoPlano(1.5E-16), "1.5E-16");
    EXPECT_EQ(textoPlano(1E-15), "0.000000000000001");
    EXPECT_EQ(textoPlano(0L), "0");
    EXPECT_EQ(textoPlano(500L), "500");
    EXPECT_EQ(textoPlano(-32768L), "-32768");
}

TEST(NumberText, NoDigitsWithoutAFiniteValue) {
    const double infinity = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(failureNumber([&] { Str(infinity); }), 6);
    EXPECT_EQ(failureNumber([&] { Str(static_cast<float>(-infinity)); }), 6);
    EXPECT_EQ(failureNumber([&] { Str(nan); }), 5);
    EXPECT_EQ(failureNumber([&] { textoPlano(infinity); }), 6);
    EXPECT_EQ(failureNumber([&] { textoPlano(nan); }), 5);
}

TEST(NumberText, AgreesWithExactArithmetic) {
    std::mt19937_64 random(31);
    std::uniform_real_distribution<double> mantissa(-10, 10);
    std::uniform_int_distribution<int> exponent(-20, 20);
    std::uniform_int_distribution<long long> whole(-99'999'999, 99'999'999);
    for (int i = 0; i < 10000; ++i) {
        expectAgrees(mantissa(random) * std::pow(10, exponent(random)), 15);
        expectAgrees(static_cast<double>(whole(random)) * std::pow(10, exponent(random)), 15);
    }
    for (int i = 0; i < 1000; ++i) {
        const auto value = std::bit_cast<double>(random());
        if (std::isfinite(value))
            expectAgrees(value, 15);
    }
}

TEST(NumberText, AgreesWithExactArithmeticForSingles) {
    std::mt19937_64 random(32);
    for (int i = 0; i < 5000; ++i) {
        const auto value = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
        if (std::isfinite(value))
            expectAgrees(value, 7);
    }
}

TEST(NumberText, ReadingReturnsWhatTheTextShows) {
    std::mt19937_64 random(33);
    std::uniform_real_distribution<double> mantissa(-10, 10);
    std::uniform_int_distribution<int> exponent(-300, 300);
    for (int i = 0; i < 10000; ++i) {
        const double value = mantissa(random) * std::pow(10, exponent(random));
        const std::string text = Str(value);
        const double read = Val(text);
        // Half a unit of the 15th digit is at most 5E-15 of the value.
        ASSERT_LE(std::fabs(read - value), 5.0001E-15 * std::fabs(value)) << text;
        ASSERT_EQ(Str(read), text);
        ASSERT_EQ(Val(textoPlano(value)), read) << text;
    }
}

// A double that was read from at most 15 digits is the nearest one to its own text.
TEST(NumberText, ValuesOfFifteenDigitsReturnExactly) {
    std::mt19937_64 random(34);
    std::uniform_int_distribution<long long> whole(-999'999'999'999'999, 999'999'999'999'999);
    std::uniform_int_distribution<int> places(0, 15);
    for (int i = 0; i < 10000; ++i) {
        const double value = static_cast<double>(whole(random)) / std::pow(10, places(random));
        ASSERT_EQ(Val(Str(value)), value) << std::hexfloat << value;
    }
}

// 15 digits of the largest double lie above it, so its own text can not be read.
TEST(NumberText, LargestDoubleDoesNotReturn) {
    EXPECT_EQ(failureNumber([] { Val(Str(DBL_MAX)); }), 6);
}

} // namespace
} // namespace caudalera::testing
