// The three methods of the mean rainfall over a basin.

#include "precipitation/isoyetas.h"
#include "precipitation/mediaPonderada.h"
#include "precipitation/promedioAritmetico.h"
#include "precipitation/thiessen.h"
#include "tests/support/FailureNumber.h"

#include <gtest/gtest.h>

#include <vector>

namespace caudalera {
namespace {

using Values = std::vector<Real>;
using testing::failureNumber;

// Chow, Maidment and Mays, Applied Hydrology (1988), section 3.4: the stations inside a basin of
// 9.14 km2 have 20, 30, 40 and 50 mm, whose mean is 35.0 mm. With the station outside (10 mm) and
// the areas of the polygons 284.6 / 9.14 are 31.1 mm. The bands between the isohyets have 5, 15,
// 25, 35, 45 and 53 mm: 255.1 / 9.14 are 27.9 mm.
TEST(ArithmeticMean, OfThePublishedBasin) {
    EXPECT_EQ(promedioAritmetico(Values{20, 30, 40, 50}).value(), 35);
}

TEST(Thiessen, OfThePublishedBasin) {
    // 10 * 0.22 + 20 * 4.02 + 30 * 1.35 + 40 * 1.60 + 50 * 1.95 = 2.2 + 80.4 + 40.5 + 64 + 97.5.
    const Values rain{10, 20, 30, 40, 50};
    const Values areas{0.22, 4.02, 1.35, 1.60, 1.95};
    EXPECT_NEAR(thiessen(rain, areas).value(), 284.6 / 9.14, 1e-13);
}

// 0.88 * 5 + 1.59 * 15 + 2.24 * 25 + 3.01 * 35 + 1.22 * 45 + 0.20 * 53
// = 4.4 + 23.85 + 56 + 105.35 + 54.9 + 10.6.
TEST(Isohyets, OfThePublishedBasin) {
    const Values isohyets{0, 10, 20, 30, 40, 50, 56};
    const Values areas{0.88, 1.59, 2.24, 3.01, 1.22, 0.20};
    EXPECT_NEAR(isoyetas(isohyets, areas).value(), 255.1 / 9.14, 1e-13);
}

TEST(ArithmeticMean, OfOneStationIsItsOwn) {
    EXPECT_EQ(promedioAritmetico(Values{12.5}).value(), 12.5);
}

TEST(ArithmeticMean, OfNoStationFails) {
    EXPECT_EQ(failureNumber([] { promedioAritmetico({}); }), 11);
}

TEST(Thiessen, AStationWithoutAreaCountsForNothing) {
    EXPECT_EQ(thiessen(Values{10, 999, 30}, Values{1, 0, 3}).value(), 25);
}

// (5 * 10 + 8 * (-2)) / (5 - 2) = 34 / 3.
TEST(Thiessen, TakesANegativeAreaAsItStands) {
    EXPECT_NEAR(thiessen(Values{10, 8}, Values{5, -2}).value(), 34.0 / 3, 1e-14);
}

TEST(Thiessen, ATotalAreaOfZeroFails) {
    EXPECT_EQ(failureNumber([] { thiessen(Values{10, 20}, Values{0, 0}); }), 11);
    EXPECT_EQ(failureNumber([] { thiessen(Values{10, 20}, Values{4, -4}); }), 11);
    EXPECT_EQ(failureNumber([] { thiessen({}, {}); }), 11);
}

TEST(Thiessen, ASumPastTheDoublesFails) {
    EXPECT_EQ(failureNumber([] { thiessen(Values{1e200}, Values{1e200}); }), 6);
    EXPECT_EQ(failureNumber([] { thiessen(Values{0, 0}, Values{1e308, 1e308}); }), 6);
}

TEST(Isohyets, ASingleBandHasTheMeanOfItsIsohyets) {
    EXPECT_EQ(isoyetas(Values{10, 20}, Values{5}).value(), 15);
}

// Bands of 15, 25 and 40 mm: (15 * 2 + 25 * 3 + 40 * 5) / 10 = 305 / 10.
TEST(Isohyets, WeighsTheBandsByTheirAreas) {
    EXPECT_EQ(isoyetas(Values{10, 20, 30, 50}, Values{2, 3, 5}).value(), 30.5);
}

// Bands of 40, 25 and 35 mm, which is not in order: (40 + 25 * 2 + 35 * 2) / 5 = 160 / 5.
TEST(Isohyets, NeedNotAscend) {
    EXPECT_EQ(isoyetas(Values{50, 30, 20, 50}, Values{1, 2, 2}).value(), 32);
}

TEST(Isohyets, ATotalAreaOfZeroFails) {
    EXPECT_EQ(failureNumber([] { isoyetas(Values{10, 20}, Values{0}); }), 11);
    EXPECT_EQ(failureNumber([] { isoyetas(Values{10}, {}); }), 11);
}

} // namespace
} // namespace caudalera
