// The routines of the gauging: the meter's equation, the mean-section method, the profile.

#include "gauging/aforo.h"
#include "tests/support/FailureNumber.h"

#include <gtest/gtest.h>
#include <string>

namespace caudalera::testing {
namespace {

/// A section of three stretches: L 2, 3, 1; h 1, 2, 0.5; v 0.5, 0.75, 0.25.
class Aforar : public ::testing::Test {
protected:
    std::vector<Real> L{2, 3, 1};
    std::vector<Real> h{1, 2, 0.5};
    std::vector<Real> v{0.5, 0.75, 0.25};
    SeccionAforada::Vertical margin{0.5, 0.25};

    SeccionAforada section() const { return {margin, L, h, v}; }
    std::string profile(Real depthAtMargin) const {
        std::string points;
        for (const PuntoPerfil& point : perfilSeccion(depthAtMargin, section()))
            points += std::to_string(point.x.value()).substr(0, 4) + "," +
                      std::to_string(point.y.value()).substr(0, 4) + " ";
        return points;
    }
};

// 1: (0.5 + 1) / 2 * 2 = 1.5 and (0.25 + 0.5) / 2 = 0.375, so 0.5625.
// 2: (1 + 2) / 2 * 3 = 4.5 and (0.5 + 0.75) / 2 = 0.625, so 2.8125.
// 3: (2 + 0.5) / 2 * 1 = 1.25 and (0.75 + 0.25) / 2 = 0.5, so 0.625. Sum 4.
TEST_F(Aforar, EveryStretchTakesTheMeansOfItsEnds) {
    const Aforo gauging = aforar(section());
    ASSERT_EQ(gauging.tramos.size(), 3U);
    const double expected[3][3] = {{1.5, 0.375, 0.5625}, {4.5, 0.625, 2.8125}, {1.25, 0.5, 0.625}};
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(gauging.tramos[i].area, expected[i][0]) << i;
        EXPECT_EQ(gauging.tramos[i].velocidad, expected[i][1]) << i;
        EXPECT_EQ(gauging.tramos[i].caudal, expected[i][2]) << i;
    }
    EXPECT_EQ(gauging.caudalTotal, 4);
}

TEST_F(Aforar, FromAnEmptyMarginTheFirstStretchIsATriangle) {
    margin = {0, 0};
    const Aforo gauging = aforar(section());
    EXPECT_EQ(gauging.tramos[0].area, 1);
    EXPECT_EQ(gauging.tramos[0].velocidad, 0.25);
    EXPECT_EQ(gauging.tramos[0].caudal, 0.25);
}

TEST_F(Aforar, NoStretchesNoFlow) {
    L = h = v = {};
    const Aforo gauging = aforar(section());
    EXPECT_TRUE(gauging.tramos.empty());
    EXPECT_EQ(gauging.caudalTotal, 0);
}

TEST_F(Aforar, AProductPastTheDoubleRangeIsFailure6) {
    L = {1e200, 1, 1};
    h = {1e200, 1, 1};
    EXPECT_EQ(failureNumber([&] { aforar(section()); }), 6);
}

TEST_F(Aforar, TheProfileOfAMarginWithDepthAtBothEnds) {
    EXPECT_EQ(profile(0.5), "0.00,0.00 0.00,-0.5 2.00,-1.0 5.00,-2.0 6.00,-0.5 6.00,0.00 ");
}

TEST_F(Aforar, AMarginOnTheWaterLineNeedsNoPoint) {
    h = {1, 2, 0};
    EXPECT_EQ(profile(0), "0.00,0.00 2.00,-1.0 5.00,-2.0 6.00,0.00 ");
    EXPECT_EQ(profile(0.5), "0.00,0.00 0.00,-0.5 2.00,-1.0 5.00,-2.0 6.00,0.00 ");
    h = {1, 2, 0.5};
    EXPECT_EQ(profile(0), "0.00,0.00 2.00,-1.0 5.00,-2.0 6.00,-0.5 6.00,0.00 ");
}

TEST_F(Aforar, WithoutStretchesTheMarginIsTheEndToo) {
    L = h = v = {};
    EXPECT_EQ(profile(0), "0.00,0.00 0.00,0.00 ");
    EXPECT_EQ(profile(2), "0.00,0.00 0.00,-2.0 0.00,0.00 ");
    margin.h = 0;
    EXPECT_EQ(profile(0), "0.00,0.00 ");
}

TEST(VelocidadMolinete, TheMetersEquation) {
    // 0.25 * 120 / 60 + 0.015.
    EXPECT_DOUBLE_EQ(velocidadMolinete(0.25, 120, 60, 0.015).value(), 0.515);
    EXPECT_EQ(velocidadMolinete(2, 3, 4, -1), Real(0.5));
    EXPECT_EQ(failureNumber([] { velocidadMolinete(1, 1, 0, 1); }), 11);
    EXPECT_EQ(failureNumber([] { velocidadMolinete(1, 0, 0, 1); }), 11);
}

} // namespace
} // namespace caudalera::testing
