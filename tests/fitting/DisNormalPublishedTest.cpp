// Published fits, typed into the window; tests/data/README.md names the sources.

#include "tests/fitting/DisNormalTest.h"
#include "tests/support/PublishedSeries.h"

#include <cmath>

namespace caudalera::testing {
namespace {

class DisNormalPublished : public DisNormalTest {
protected:
    double shown(const std::string& field) { return std::stod(text(field)); }
    static double cumulative(double z) { return 0.5 * std::erfc(-z / std::sqrt(2.0)); }
};

// Rao and Hamed, example 5.1.1: 12665 and 4710. Example 5.1.2 has the quantile 0.99, 23624 with
// their rounded variate and 23622 with the exact one; normalInversa is good to 4.5E-4 of S.
TEST_F(DisNormalPublished, TippecanoeByMoments) {
    fit(publishedSeries("tippecanoe"));
    EXPECT_NEAR(shown("txtux"), 12665, 0.5);
    EXPECT_NEAR(shown("txtSX"), 4710, 0.5);
    EXPECT_NEAR(std::stod(flowOf("100")), 23622, 4.5e-4 * 4710 + 0.5);
    // Back again.
    EXPECT_NEAR(std::stod(periodOf("23622")), 100, 0.2);
}

TEST_F(DisNormalPublished, HarricanaByMoments) {
    fit(valuesOf(samplePath("harricana_amos.csv")));
    EXPECT_EQ(text("txtux"), "191.3174"); // 191.31739
    EXPECT_EQ(text("txtSX"), "47.9616");  // 47.96161
}

TEST_F(DisNormalPublished, WindSpeedsByLinearMoments) {
    fit(publishedSeries("airquality_wind"));
    EXPECT_EQ(text("txtmedial"), "9.9575"); // 9.9575163
    EXPECT_EQ(text("txtsl"), "3.5134");     // 3.513431
}

TEST_F(DisNormalPublished, CrosscheckSampleByLinearMoments) {
    fit(publishedSeries("sample31"));
    EXPECT_EQ(text("txtmedial"), "1648.8065"); // 1648.8064516
    // Sqr(pi) times 138.2365591.
    EXPECT_NEAR(shown("txtsl"), 138.2365591 * std::sqrt(std::acos(-1.0)), 0.5e-4 + 1e-6);
}

// The quantiles at i / 31 of a normal law: their deltas by the exact function and the sample's own
// deviation.
TEST_F(DisNormalPublished, QuantilesOfANormalLaw) {
    Texts series;
    double squares = 0;
    std::vector<double> variates;
    for (int i = 1; i <= 30; ++i) {
        double low = -5;
        double high = 5;
        for (int step = 0; step < 60; ++step) {
            const double middle = (low + high) / 2;
            (cumulative(middle) < i / 31.0 ? low : high) = middle;
        }
        variates.push_back(low);
        squares += low * low;
        series.push_back(std::to_string(100 + 15 * low));
    }
    fit(series);
    EXPECT_NEAR(shown("txtux"), 100, 1e-4);
    const double deviation = std::sqrt(squares / 29);
    EXPECT_NEAR(shown("txtSX"), 15 * deviation, 1e-4);
    for (int i = 1; i <= 30; ++i) {
        const double F = cumulative(variates[static_cast<std::size_t>(i) - 1] / deviation);
        EXPECT_NEAR(std::stod(cellText("grddis", i, 5)), std::fabs(i / 31.0 - F), 0.5e-4 + 1e-6)
            << i;
    }
    EXPECT_NE(text("lblmensaje").find("Los datos se ajustan a la distribución Normal"),
              std::string::npos);
}

} // namespace
} // namespace caudalera::testing
