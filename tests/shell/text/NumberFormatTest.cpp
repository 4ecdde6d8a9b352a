// The number formatter, by hand-worked cases and against exact decimal arithmetic.

#include "shell/text/Text.h"
#include "tests/shell/text/ExactDecimal.h"
#include "tests/support/FailureNumber.h"

#include <gtest/gtest.h>

#include <bit>
#include <cfloat>
#include <clocale>
#include <limits>
#include <locale>
#include <random>

namespace caudalera::testing {
namespace {

struct MaskCase {
    const char* mask;
    const char* zero;        // 0
    const char* half;        // 0.5
    const char* two;         // 2
    const char* negative;    // -1234.56789
    const char* nearHundred; // 99.99995, a tie at the fourth decimal
};

// Worked by hand for every mask in use: round half away at the last place, then strike the zeros
// that stand on a '#' with nothing but zeros to their right.
constexpr MaskCase maskCases[] = {
    {"#####0.###0", "0.0", "0.50", "2.0", "-1234.5679", "100.0"},
    {"#####0.##00", "0.00", "0.500", "2.00", "-1234.5679", "100.00"},
    {"#####0.#0", "0.0", "0.50", "2.0", "-1234.57", "100.0"},
    {"#####0.0#", "0.0", "0.5", "2.0", "-1234.57", "100.0"},
    {"#####0.0###", "0.0", "0.5", "2.0", "-1234.5679", "100.0"},
    {"#####0.0####", "0.0", "0.5", "2.0", "-1234.56789", "99.99995"},
    {"#####0.0##0", "0.00", "0.50", "2.00", "-1234.5679", "100.00"},
    {"###.#0", ".0", ".50", "2.0", "-1234.57", "100.0"},
    {"###.0", ".0", ".5", "2.0", "-1234.6", "100.0"},
    {"###.0#", ".0", ".5", "2.0", "-1234.57", "100.0"},
    {"###0.###0", "0.0", "0.50", "2.0", "-1234.5679", "100.0"},
    {"###0.0", "0.0", "0.5", "2.0", "-1234.6", "100.0"},
    {"###0.0###", "0.0", "0.5", "2.0", "-1234.5679", "100.0"},
    {"##0", "0", "1", "2", "-1235", "100"},
    {"##0.0#", "0.0", "0.5", "2.0", "-1234.57", "100.0"},
    {"##0.0###", "0.0", "0.5", "2.0", "-1234.5679", "100.0"},
    {"#.0#", ".0", ".5", "2.0", "-1234.57", "100.0"},
    {"#0.0##", "0.0", "0.5", "2.0", "-1234.568", "100.0"},
    {"#0.0####", "0.0", "0.5", "2.0", "-1234.56789", "99.99995"},
    {"#0.0######", "0.0", "0.5", "2.0", "-1234.56789", "99.99995"},
    {"#0.0#######", "0.0", "0.5", "2.0", "-1234.56789", "99.99995"},
    {"#0.0000", "0.0000", "0.5000", "2.0000", "-1234.5679", "100.0000"},
    {"+#####0.##00", "+0.00", "+0.500", "+2.00", "-+1234.5679", "+100.00"},
    {"0.##", "0.", "0.5", "2.", "-1234.57", "100."},
    {"0.###0", "0.0", "0.50", "2.0", "-1234.5679", "100.0"},
    {"0.##0", "0.0", "0.50", "2.0", "-1234.568", "100.0"},
    {"0.##00", "0.00", "0.500", "2.00", "-1234.5679", "100.00"},
    {"0.#0", "0.0", "0.50", "2.0", "-1234.57", "100.0"},
    {"0.0#", "0.0", "0.5", "2.0", "-1234.57", "100.0"},
    {"0.0##", "0.0", "0.5", "2.0", "-1234.568", "100.0"},
    {"0.0###", "0.0", "0.5", "2.0", "-1234.5679", "100.0"},
    {"0.0####", "0.0", "0.5", "2.0", "-1234.56789", "99.99995"},
    {"0.0#######", "0.0", "0.5", "2.0", "-1234.56789", "99.99995"},
    {"0.0000", "0.0000", "0.5000", "2.0000", "-1234.5679", "100.0000"},
    // Not in use, for the rules that the masks above leave untouched.
    {"0.00", "0.00", "0.50", "2.00", "-1234.57", "100.00"},
    {".0", ".0", ".5", "2.0", "-1234.6", "100.0"},
    {"000.0#", "000.0", "000.5", "002.0", "-1234.57", "100.0"},
    {"#00", "00", "01", "02", "-1235", "100"},
    {"0#", "00", "01", "02", "-1235", "100"},
    {"##", "", "1", "2", "-1235", "100"},
};

bool isPlace(char c) {
    return c == '#' || c == '0';
}

/// Mask over an exact decimal, built from the last character of the mask to the first.
std::string referenceByMask(const ExactDecimal& number, const std::string& mask,
                            const std::string& separator) {
    const std::size_t point = mask.find('.');
    const std::string before = mask.substr(0, point);
    const std::string behind = point == std::string::npos ? "" : mask.substr(point + 1);
    ExactDecimal rounded = roundPlaces(number, behind.size());
    rounded.integer.erase(0, rounded.integer.find_first_not_of('0'));

    std::string text;
    bool significant = false;
    for (std::size_t i = behind.size(); i-- > 0;) {
        significant = significant || rounded.fraction[i] != '0';
        if (behind[i] == '0' || significant)
            text.insert(text.begin(), rounded.fraction[i]);
    }
    if (point != std::string::npos)
        text.insert(0, separator);
    const std::size_t firstPlace = before.find_first_of("#0");
    if (firstPlace == std::string::npos)
        text.insert(0, rounded.integer);
    for (std::size_t i = before.size(); i-- > 0;) {
        if (!isPlace(before[i])) {
            text.insert(text.begin(), before[i]);
        } else if (i == firstPlace && !rounded.integer.empty()) {
            text.insert(0, rounded.integer);
        } else if (!rounded.integer.empty()) {
            text.insert(text.begin(), rounded.integer.back());
            rounded.integer.pop_back();
        } else if (before.find('0') <= i) {
            text.insert(text.begin(), '0');
        }
    }
    return number.negative && !roundPlaces(number, behind.size()).isZero() ? "-" + text : text;
}

void expectAllMasksAgree(double value) {
    const ExactDecimal decimal = roundSignificant(expand(value), 15);
    for (const MaskCase& row : maskCases) {
        ASSERT_EQ(formatear(value, row.mask), referenceByMask(decimal, row.mask, "."))
            << std::hexfloat << value << " by " << row.mask;
    }
}

void expectAllMasksAgree(float value) {
    const ExactDecimal decimal = roundSignificant(expand(value), 7);
    for (const MaskCase& row : maskCases) {
        ASSERT_EQ(formatear(value, row.mask, ","), referenceByMask(decimal, row.mask, ","))
            << std::hexfloat << value << " by " << row.mask;
    }
}

TEST(NumberFormat, EveryMaskByHand) {
    for (const MaskCase& row : maskCases) {
        EXPECT_EQ(formatear(0.0, row.mask), row.zero) << row.mask;
        EXPECT_EQ(formatear(0.5, row.mask), row.half) << row.mask;
        EXPECT_EQ(formatear(2.0, row.mask), row.two) << row.mask;
        EXPECT_EQ(formatear(-1234.56789, row.mask), row.negative) << row.mask;
        EXPECT_EQ(formatear(99.99995, row.mask), row.nearHundred) << row.mask;
    }
}

TEST(NumberFormat, OptionalPlacesShowWhileDigitsRemain) {
    EXPECT_EQ(formatear(0.25, "0.##00"), "0.2500");
    EXPECT_EQ(formatear(2.5, "0.##00"), "2.500");
    EXPECT_EQ(formatear(0.05, "0.##00"), "0.0500");
    EXPECT_EQ(formatear(0.0005, "0.##00"), "0.0005");
    EXPECT_EQ(formatear(12.34, "0.#0"), "12.34");
    EXPECT_EQ(formatear(1.2910, "0.##00"), "1.2910");
    EXPECT_EQ(formatear(0.00000001, "#0.0#######"), "0.00000001");
    EXPECT_EQ(formatear(1.10000001, "#0.0#######"), "1.10000001");
}

// In binary 2.675 and 1.005 lie below the tie; in their 15 decimal digits they are the tie.
TEST(NumberFormat, RoundsTheDecimalDigitsAndNotTheBinaryValue) {
    EXPECT_EQ(formatear(2.675, "0.00"), "2.68");
    EXPECT_EQ(formatear(1.005, "0.00"), "1.01");
    EXPECT_EQ(formatear(-1.005, "0.00"), "-1.01");
    EXPECT_EQ(formatear(0.125, "0.00"), "0.13");
    EXPECT_EQ(formatear(0.375, "0.00"), "0.38");
    EXPECT_EQ(formatear(2.5, "##0"), "3");
    EXPECT_EQ(formatear(-2.5, "##0"), "-3");
    EXPECT_EQ(formatear(0.49999999999999994, "##0"), "1"); // 15 digits: 0.500000000000000
    EXPECT_EQ(formatear(0.499999999999999, "##0"), "0");
}

TEST(NumberFormat, CarryRunsThroughAllDigits) {
    EXPECT_EQ(formatear(9.996, "0.00"), "10.00");
    EXPECT_EQ(formatear(999.5, "##0"), "1000");
    EXPECT_EQ(formatear(0.95, "###.0"), "1.0");
    EXPECT_EQ(formatear(0.05, "###.0"), ".1");
    EXPECT_EQ(formatear(0.999999999, "#0.0#######"), "1.0");
    EXPECT_EQ(formatear(1299.9999, "0.0##"), "1300.0");
}

TEST(NumberFormat, ValueThatRoundsToZeroHasNoMinus) {
    EXPECT_EQ(formatear(-0.0, "0.00"), "0.00");
    EXPECT_EQ(formatear(-0.004, "0.00"), "0.00");
    EXPECT_EQ(formatear(-0.005, "0.00"), "-0.01");
    EXPECT_EQ(formatear(-1E-300, "#0.0#######"), "0.0");
    EXPECT_EQ(formatear(-0.4, "##0"), "0");
    EXPECT_EQ(formatear(-DBL_TRUE_MIN, "0.##"), "0.");
    EXPECT_EQ(formatear(-0.00004, "+#####0.##00"), "+0.00");
}

TEST(NumberFormat, LargeValuesShowFifteenDigitsAndZeros) {
    EXPECT_EQ(formatear(1E15, "0.0#"), "1000000000000000.0");
    EXPECT_EQ(formatear(1234567890123456789.0, "#0.0#######"), "1234567890123460000.0");
    EXPECT_EQ(formatear(1E22, "##0"), "1" + std::string(22, '0'));
    EXPECT_EQ(formatear(-DBL_MAX, "0.0"), "-179769313486232" + std::string(294, '0') + ".0");
}

// 123.456 as a single is 123.45600128...; 0.1 is 0.100000001490...; 16777216 has 8 digits.
TEST(NumberFormat, SingleHasSevenDigits) {
    EXPECT_EQ(formatear(123.456F, "#0.0#######"), "123.456");
    EXPECT_EQ(formatear(0.1F, "#0.0#######"), "0.1");
    EXPECT_EQ(formatear(16777216.0F, "#0.0#######"), "16777220.0");
    EXPECT_EQ(formatear(-2.675F, "0.00"), "-2.68");
    EXPECT_EQ(formatear(static_cast<double>(0.1F), "#0.0#######"), "0.1");
    EXPECT_EQ(formatear(static_cast<double>(123.456F), "#0.0#######"), "123.45600128");
}

TEST(NumberFormat, SeparatorStandsForThePoint) {
    EXPECT_EQ(formatear(1234.5, "#0.0000", ","), "1234,5000");
    EXPECT_EQ(formatear(-0.5, "###.0", ","), "-,5");
    EXPECT_EQ(formatear(2.0, "0.##", ","), "2,");
    EXPECT_EQ(formatear(2.5, "##0", ","), "3");
    EXPECT_EQ(formatear(2.5, "0.0", "\u066B"), "2\u066B5");
    // The numeric reading stops at a comma, so the decimals are lost on the way through a cell.
    EXPECT_EQ(Val(formatear(1234.5, "#0.0#######", ",")), 1234);
}

TEST(NumberFormat, NoDigitsWithoutAFiniteValue) {
    const double infinity = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(failureNumber([&] { formatear(infinity, "0.0"); }), 6);
    EXPECT_EQ(failureNumber([&] { formatear(-infinity, "0.0"); }), 6);
    EXPECT_EQ(failureNumber([&] { formatear(nan, "0.0"); }), 5);
    EXPECT_EQ(failureNumber([&] { formatear(static_cast<float>(infinity), "0.0"); }), 6);
}

class CommaPoint : public std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

TEST(NumberFormat, NoLocaleOfTheProcessReachesTheTexts) {
    const std::locale before =
        std::locale::global(std::locale(std::locale::classic(), new CommaPoint));
    const std::string numericBefore = std::setlocale(LC_NUMERIC, nullptr);
    for (const char* name : {"es_PE.UTF-8", "es_ES.UTF-8", "de_DE.UTF-8", "Spanish_Spain.1252"}) {
        if (std::setlocale(LC_NUMERIC, name) != nullptr)
            break;
    }
    EXPECT_EQ(formatear(1234567.25, "#0.0#######"), "1234567.25");
    EXPECT_EQ(Str(1234567.25), " 1234567.25");
    EXPECT_EQ(textoPlano(1234567L), "1234567");
    EXPECT_EQ(Val("1234567.25"), 1234567.25);
    EXPECT_EQ(Val("1,5"), 1);
    std::setlocale(LC_NUMERIC, numericBefore.c_str());
    std::locale::global(before);
}

TEST(NumberFormat, AgreesWithExactArithmeticInEverydayMagnitudes) {
    std::mt19937_64 random(20240611);
    std::uniform_real_distribution<double> mantissa(-10, 10);
    std::uniform_int_distribution<int> exponent(-12, 18);
    for (int i = 0; i < 3000; ++i)
        expectAllMasksAgree(mantissa(random) * std::pow(10, exponent(random)));
}

// Quotients by powers of ten are where the ties of the decimal digits lie.
TEST(NumberFormat, AgreesWithExactArithmeticOnDecimalTies) {
    std::mt19937_64 random(7);
    std::uniform_int_distribution<long long> whole(-2'000'000, 2'000'000);
    std::uniform_int_distribution<int> places(0, 10);
    for (int i = 0; i < 3000; ++i) {
        const double tie = static_cast<double>(whole(random) * 10 + 5);
        expectAllMasksAgree(tie / std::pow(10, places(random)));
    }
}

TEST(NumberFormat, AgreesWithExactArithmeticOverAllDoubles) {
    std::mt19937_64 random(99);
    for (int i = 0; i < 300;) {
        const auto value = std::bit_cast<double>(random());
        if (!std::isfinite(value))
            continue;
        expectAllMasksAgree(value);
        ++i;
    }
}

TEST(NumberFormat, AgreesWithExactArithmeticForSingles) {
    std::mt19937_64 random(5);
    std::uniform_real_distribution<float> mantissa(-10, 10);
    std::uniform_int_distribution<int> exponent(-9, 12);
    for (int i = 0; i < 2000; ++i) {
        const double wide = static_cast<double>(mantissa(random)) * std::pow(10, exponent(random));
        expectAllMasksAgree(static_cast<float>(wide));
    }
}

} // namespace
} // namespace caudalera::testing
