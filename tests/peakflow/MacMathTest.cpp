// Coefficients and flow of the method of Mac Math.

#include "peakflow/macMath.h"
#include "tests/support/FailureNumber.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace caudalera {
namespace {

struct Part {
    const char* name;
    double C;
};
constexpr Part covers[] = {
    {"0 - 20", 0.30}, {"20 - 50", 0.22}, {"50 - 80", 0.16}, {"80 - 100", 0.12}, {"100", 0.08}};
constexpr Part textures[] = {
    {"Arenosa", 0.08}, {"Ligera", 0.12}, {"Media", 0.16}, {"Fina", 0.22}, {"Rocosa", 0.30}};

template <std::size_t size>
std::vector<std::string> namesOf(const Part (&parts)[size]) {
    std::vector<std::string> names;
    for (const Part& part : parts)
        names.emplace_back(part.name);
    return names;
}

double slopePart(double slope) {
    return coeficienteMacMath("", "", slope).value();
}

TEST(MacMathCoefficient, ListsAreInTheirOrder) {
    EXPECT_EQ(coberturasMacMath(), namesOf(covers));
    EXPECT_EQ(texturasMacMath(), namesOf(textures));
}

// The method's printed table: the least cover and the barest soil count most, both from 0.08 to
// 0.30. A slope of 3 % adds 0.10.
TEST(MacMathCoefficient, IsTheSumOfItsParts) {
    for (const Part& cover : covers) {
        EXPECT_DOUBLE_EQ(coeficienteMacMath(cover.name, "", -1).value(), cover.C) << cover.name;
        for (const Part& texture : textures) {
            EXPECT_DOUBLE_EQ(coeficienteMacMath("", texture.name, -1).value(), texture.C)
                << texture.name;
            EXPECT_NEAR(coeficienteMacMath(cover.name, texture.name, 3).value(),
                        cover.C + texture.C + 0.10, 1e-15);
        }
    }
}

// 0.08 + 0.08 + 0.04 and 0.30 + 0.30 + 0.15.
TEST(MacMathCoefficient, LiesBetweenItsLeastAndItsLargest) {
    EXPECT_NEAR(coeficienteMacMath("100", "Arenosa", 0.1).value(), 0.20, 1e-15);
    EXPECT_NEAR(coeficienteMacMath("0 - 20", "Rocosa", 9).value(), 0.75, 1e-15);
}

TEST(MacMathCoefficient, ABoundaryBelongsToTheLowerSlope) {
    EXPECT_EQ(slopePart(0), 0.04);
    EXPECT_EQ(slopePart(0.2), 0.04);
    EXPECT_EQ(slopePart(0.20001), 0.06);
    EXPECT_EQ(slopePart(0.5), 0.06);
    EXPECT_EQ(slopePart(0.50001), 0.06);
    EXPECT_EQ(slopePart(2), 0.06);
    EXPECT_EQ(slopePart(2.0001), 0.10);
    EXPECT_EQ(slopePart(5), 0.10);
    EXPECT_EQ(slopePart(5.0002), 0.15);
    EXPECT_EQ(slopePart(1e6), 0.15);
}

TEST(MacMathCoefficient, ANegativeSlopeAddsNothing) {
    EXPECT_EQ(slopePart(-1e-9), 0);
    EXPECT_EQ(slopePart(-100), 0);
}

TEST(MacMathCoefficient, ATextOutsideTheTablesAddsNothing) {
    EXPECT_EQ(coeficienteMacMath("0-20", "arenosa", 1), 0.06);
    EXPECT_EQ(coeficienteMacMath("Bosque", "Arcilla", -1), 0);
}

// 32^(4/5) = 2^4 and 32^(1/5) = 2.
TEST(MacMathFlow, IsAProductOfPowers) {
    EXPECT_EQ(caudalMacMath(1, 1, 1, 1), 0.0091);
    EXPECT_NEAR(caudalMacMath(0.5, 100, 1, 1).value(), 0.455, 1e-15);
    EXPECT_NEAR(caudalMacMath(1, 1, 32, 1).value(), 0.1456, 1e-15);
    EXPECT_NEAR(caudalMacMath(1, 1, 1, 32).value(), 0.0182, 1e-15);
    EXPECT_NEAR(caudalMacMath(0.5, 100, 32, 32).value(), 14.56, 1e-13);
    // exp(ln 0.0091 + ln 0.37 + ln 86.5 + 0.8 ln 740 + 0.2 ln 12.5) in 40 digits.
    EXPECT_NEAR(caudalMacMath(0.37, 86.5, 740, 12.5).value(), 95.2854528310819719, 1e-12);
}

TEST(MacMathFlow, OfNoAreaOrNoSlopeIsNone) {
    EXPECT_EQ(caudalMacMath(0.5, 100, 0, 10), 0);
    EXPECT_EQ(caudalMacMath(0.5, 100, 20, 0), 0);
}

TEST(MacMathFlow, FailsForNegativePowersAndPastTheRange) {
    using testing::failureNumber;
    EXPECT_EQ(failureNumber([] { caudalMacMath(0.5, 100, -20, 10); }), 5);
    EXPECT_EQ(failureNumber([] { caudalMacMath(0.5, 100, 20, -10); }), 5);
    EXPECT_EQ(failureNumber([] { caudalMacMath(1e200, 1e200, 1, 1); }), 6);
}

} // namespace
} // namespace caudalera
