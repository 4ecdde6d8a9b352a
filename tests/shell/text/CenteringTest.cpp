// Lengths, blanks, centring, and the rounding of halves to the even number.

#include "shell/text/Text.h"
#include "tests/support/FailureNumber.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace caudalera::testing {
namespace {

TEST(Length, CountsCharactersAndNotBytes) {
    EXPECT_EQ(longitud(""), 0U);
    EXPECT_EQ(longitud("Caudal"), 6U);
    EXPECT_EQ(longitud("Año"), 3U);
    EXPECT_EQ(longitud("N°"), 2U);
    EXPECT_EQ(longitud("Imáx = "), 7U);
    EXPECT_EQ(longitud("ß"), 1U);
    EXPECT_EQ(longitud("\u2265"), 1U);      // three bytes
    EXPECT_EQ(longitud("\U0001D4A2x"), 2U); // four bytes and one
}

TEST(Blanks, AsManyAsAsked) {
    EXPECT_EQ(blancos(0), "");
    EXPECT_EQ(blancos(1), " ");
    EXPECT_EQ(blancos(5), "     ");
    EXPECT_EQ(blancos(-1), "");
    EXPECT_EQ(blancos(-1000), "");
}

// (25 - 4) / 2 = 10.5 goes down to 10, (25 - 2) / 2 = 11.5 up to 12.
TEST(Centring, HalvesGoToTheEvenNumber) {
    EXPECT_EQ(blancosParaCentrar(25, 4), 10);
    EXPECT_EQ(blancosParaCentrar(25, 2), 12);
    EXPECT_EQ(blancosParaCentrar(25, 5), 10);
    EXPECT_EQ(blancosParaCentrar(18, 7), 6);  // 5.5
    EXPECT_EQ(blancosParaCentrar(18, 9), 4);  // 4.5
    EXPECT_EQ(blancosParaCentrar(18, 17), 0); // 0.5
    EXPECT_EQ(blancosParaCentrar(18, 15), 2); // 1.5
}

TEST(Centring, NoneWhereTheTextIsWider) {
    EXPECT_EQ(blancosParaCentrar(18, 18), 0);
    EXPECT_EQ(blancosParaCentrar(18, 19), 0);
    EXPECT_EQ(blancosParaCentrar(18, 21), 0);
    EXPECT_EQ(blancosParaCentrar(0, 100), 0);
}

TEST(Centring, AgreesWithFloatingRounding) {
    for (long ancho = 0; ancho <= 160; ++ancho) {
        for (long largo = 0; largo <= 200; ++largo) {
            const double p = std::nearbyint(static_cast<double>(ancho - largo) / 2);
            ASSERT_EQ(blancosParaCentrar(ancho, largo), p < 0 ? 0 : static_cast<long>(p))
                << ancho << ' ' << largo;
        }
    }
}

TEST(Centring, BlanksOnBothSides) {
    EXPECT_EQ(centrado("1.25", 10), "   1.25   ");
    EXPECT_EQ(centrado("abc", 10), "    abc    "); // 3.5 to 4, on both sides
    EXPECT_EQ(centrado("", 4), "    ");
    EXPECT_EQ(centrado("largo", 3), "largo");
    EXPECT_EQ(centrado("Año", 7), "  Año  ");
    EXPECT_EQ(centrado("Año", 8), "  Año  "); // 2.5 to 2
}

TEST(RoundingToEven, Halves) {
    EXPECT_EQ(redondeoAlPar(0.5), 0);
    EXPECT_EQ(redondeoAlPar(1.5), 2);
    EXPECT_EQ(redondeoAlPar(2.5), 2);
    EXPECT_EQ(redondeoAlPar(3.5), 4);
    EXPECT_EQ(redondeoAlPar(-0.5), 0);
    EXPECT_EQ(redondeoAlPar(-1.5), -2);
    EXPECT_EQ(redondeoAlPar(-2.5), -2);
    EXPECT_EQ(redondeoAlPar(32766.5), 32766);
    EXPECT_EQ(redondeoAlPar(32767.5), 32768);
}

TEST(RoundingToEven, NearestOtherwise) {
    EXPECT_EQ(redondeoAlPar(0), 0);
    EXPECT_EQ(redondeoAlPar(0.49999999999999994), 0);
    EXPECT_EQ(redondeoAlPar(0.50000000000000011), 1);
    EXPECT_EQ(redondeoAlPar(2.4), 2);
    EXPECT_EQ(redondeoAlPar(2.6), 3);
    EXPECT_EQ(redondeoAlPar(-2.4), -2);
    EXPECT_EQ(redondeoAlPar(-2.6), -3);
}

TEST(RoundingToEven, AgreesWithTheProcessorsRounding) {
    std::mt19937_64 random(3);
    std::uniform_real_distribution<double> wide(-2E9, 2E9);
    for (int i = 0; i < 10000; ++i) {
        const double value = wide(random);
        ASSERT_EQ(redondeoAlPar(value), static_cast<long>(std::nearbyint(value))) << value;
        const double half = std::floor(value / 2) + 0.5;
        ASSERT_EQ(redondeoAlPar(half), static_cast<long>(std::nearbyint(half))) << half;
    }
}

TEST(RoundingToEven, PastTheRangeIsAFailure) {
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(failureNumber([] { redondeoAlPar(1E19); }), 6);
    EXPECT_EQ(failureNumber([] { redondeoAlPar(-1E19); }), 6);
    EXPECT_EQ(failureNumber([&] { redondeoAlPar(infinity); }), 6);
    EXPECT_EQ(failureNumber([] { redondeoAlPar(std::numeric_limits<double>::quiet_NaN()); }), 5);
    const auto lowest = static_cast<double>(std::numeric_limits<long>::min());
    EXPECT_EQ(redondeoAlPar(lowest), std::numeric_limits<long>::min());
    EXPECT_EQ(failureNumber([&] { redondeoAlPar(-lowest); }), 6);
}

} // namespace
} // namespace caudalera::testing
