// Published fits, typed into the window; tests/data/README.md names the sources.

#include "tests/fitting/DisLogNormal2Test.h"
#include "tests/support/PublishedSeries.h"

#include <cmath>

namespace caudalera::testing {
namespace {

class DisLogNormal2Published : public DisLogNormal2Test {};

// 10.7169522 and 0.4500740.
TEST_F(DisLogNormal2Published, WabashByMoments) {
    fit(publishedSeries("wabash"));
    EXPECT_EQ(text("txtux"), "10.717");
    EXPECT_EQ(text("txtSX"), "0.4501");
}

// Of the decimal logarithms l1 = 0.96723909 and l2 = 0.09452119; times Log(10), and for the
// deviation Sqr(pi), they are 2.2271503 and 0.3857623.
TEST_F(DisLogNormal2Published, WindSpeedsByLinearMoments) {
    fit(publishedSeries("airquality_wind"));
    EXPECT_EQ(text("txtmedial"), "2.2272");
    EXPECT_EQ(text("txtsl"), "0.3858");
}

// Without a published fit: parameters, flows and D in 40-digit arithmetic with the exact functions.
// Ordinary 5.2240551, 0.2463609; linear 0.2425274. Exact quantile of T = 100: 329.368; the inverse
// is good to 4.5E-4 of the deviation, 0.04.
TEST_F(DisLogNormal2Published, HarricanaInManyDigits) {
    fit(valuesOf(samplePath("harricana_amos.csv")));
    EXPECT_EQ(parameters(), (Texts{"5.2241", "0.2464", "5.2241", "0.2425"}));
    EXPECT_NEAR(std::stod(flowOf("100")), 329.368, 0.04 + 0.005);
    EXPECT_EQ(text("lblmensaje"),
              "Como el delta teórico 0.0670, es menor que el delta tabular 0.1637. Los datos se "
              "ajustan a la distribución logNormal 2 parámetros, con un nivel de significación del "
              "5%");
    click("optMomentoLi");
    click("bCalcular");
    EXPECT_NE(text("lblmensaje").find("delta teórico 0.0639, es menor"), std::string::npos);
}

} // namespace
} // namespace caudalera::testing
