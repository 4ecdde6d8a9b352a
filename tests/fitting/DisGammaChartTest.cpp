// bGraficar in the windows of the gamma family, also after bQ, which leaves the passes of its
// search as the number of points.

#include "tests/fitting/DisGamma3Test.h"

namespace caudalera::testing {
namespace {

struct Case {
    std::string form;
    std::string firstLegend;
    /// A period whose search takes these passes with the exact function too (see DisGammaTest.h),
    /// one with more than 500 of them (532, 595 and all 1200), and the one at which the search
    /// begins on the spot: 1 / (1 - F) of the reduced variate that equals the shape.
    std::string period;
    long passes;
    std::string longPeriod;
    std::string periodOfOnePass;
};

const std::vector<Case> cases = {
    {"frmDisGamma2par", "Exp", "2", 16, "200", "2.39953357211"},
    {"frmDisGamma3par", "Exp", "2", 20, "200", "2.48526722561"},
    {"frmDisLogPearson3", "Teo", "5", 15, "1.01", "2.18554473961"},
};

class DisGammaChart : public DisGammaTest, public ::testing::WithParamInterface<Case> {
protected:
    DisGammaChart() : DisGammaTest(GetParam().form) {}

    Graph& chart() { return control<Graph>("Graph1"); }
    const Texts series = {"11", "2", "5", "3"};
    static constexpr std::size_t n = 4;
    const std::vector<double> sorted = {0, 2, 3, 5, 11};
};

TEST_P(DisGammaChart, ThreeSeriesFromTheOrigin) {
    fit(series);
    click("bGraficar");
    EXPECT_TRUE(messages().empty());
    ASSERT_EQ(chart().series().size(), 3U);
    EXPECT_EQ(chart().series()[0].legend, GetParam().firstLegend);
    EXPECT_EQ(chart().series()[1].legend, "Ord");
    EXPECT_EQ(chart().series()[2].legend, "ML");
    EXPECT_EQ(chart().x(), sorted);
    for (std::size_t which = 0; which < 3; ++which) {
        const auto& y = chart().series()[which].y;
        ASSERT_EQ(y.size(), n + 1);
        EXPECT_EQ(y[0], 0);
        for (std::size_t m = 1; m <= n; ++m)
            EXPECT_NEAR(
                y[m],
                std::stod(cellText("grddis", static_cast<long>(m), 2 + static_cast<long>(which))),
                0.5e-4 + 1e-9);
    }
}

TEST_P(DisGammaChart, AfterAFlowItDrawsAsManyPointsAsTheSearchMadePasses) {
    fit(series);
    flowOf(GetParam().period);
    click("bGraficar");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(chart().points(), GetParam().passes + 1);
    // Past the data the arrays hold nothing yet.
    std::vector<double> x = sorted;
    x.resize(static_cast<std::size_t>(GetParam().passes) + 1);
    EXPECT_EQ(chart().x(), x);
    for (const auto& each : chart().series()) {
        EXPECT_GT(each.y[n], 0.7);
        EXPECT_EQ(each.y[n + 1], 0);
    }
}

TEST_P(DisGammaChart, PastTheDataItDrawsWhatALongerSeriesLeft) {
    Texts longer = series;
    longer.insert(longer.end(), {"12", "14", "99"});
    fit(longer);
    ASSERT_TRUE(messages().empty());
    refit(series);
    ASSERT_TRUE(messages().empty());
    flowOf(GetParam().period);
    click("bGraficar");
    EXPECT_EQ(chart().x()->at(n), sorted.back());
    EXPECT_EQ(chart().x()->at(n + 3), 99);
    EXPECT_NEAR(chart().series()[0].y[n + 3],
                static_cast<double>(n + 3) / static_cast<double>(n + 4), 1e-12);
    EXPECT_EQ(chart().x()->at(n + 4), 0);
}

TEST_P(DisGammaChart, CalculatingAndSavingCountTheRowsAgain) {
    fit(series);
    flowOf(GetParam().period);
    click("bCalcular");
    click("bGraficar");
    EXPECT_EQ(chart().points(), static_cast<long>(n) + 1);
    flowOf(GetParam().period);
    platform.answers = {file("serie.X")};
    click("bCrear");
    EXPECT_EQ(bytesOf(file("serie.X")).size(), 4 * n);
    click("bGraficar");
    EXPECT_EQ(chart().points(), static_cast<long>(n) + 1);
}

TEST_P(DisGammaChart, QuestionsAboutAFlowAndTheReportCountNothing) {
    fit(series);
    flowOf(GetParam().period);
    periodOf("20");
    above("20");
    below("20");
    click("bReporte");
    EXPECT_EQ(report().find("\n " + std::to_string(n + 1) + "\t"), std::string::npos);
    click("bGraficar");
    EXPECT_EQ(chart().points(), GetParam().passes + 1);
}

TEST_P(DisGammaChart, SearchOfMoreThan500PassesMakesItFatal) {
    fit(series);
    flowOf(GetParam().longPeriod);
    EXPECT_FALSE(program.ended());
    click("bGraficar");
    EXPECT_TRUE(fatal(9));
}

TEST_P(DisGammaChart, SearchOfOnePassRefusesIt) {
    fit(series);
    flowOf(GetParam().periodOfOnePass);
    click("bGraficar");
    expectMessage({"Para graficar se requiere por lo menos dos puntos", "Error", Icon::error});
    EXPECT_FALSE(chart().visible);
}

INSTANTIATE_TEST_SUITE_P(Windows, DisGammaChart, ::testing::ValuesIn(cases),
                         [](const auto& each) { return each.param.form; });

} // namespace
} // namespace caudalera::testing
