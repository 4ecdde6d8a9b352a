// The samples for the curves: the series files hold what their texts say, and the curves are those
// computed from the texts in decimal arithmetic.

#include "tests/support/PublishedTable.h"
#include "tests/support/WindowTest.h"

#include <string>
#include <vector>

namespace caudalera {
namespace {

class CurvesSamplesTest : public WindowTest {
protected:
    void expectLoads(const std::string& window, const std::string& file, const std::string& text) {
        open(window);
        platform.answers.emplace_back(samplePath(file).string());
        click("bAccesar");
        const auto rows = tableOf(samplePath(text), {"caudal_m3s"});
        auto& grdt = control<MSFlexGrid>("grdt");
        ASSERT_EQ(grdt.Rows(), static_cast<long>(rows.size()) + 2);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            EXPECT_DOUBLE_EQ(std::stod(grdt.TextMatrix(static_cast<long>(i) + 1, 1)),
                             std::stod(rows[i][0]))
                << i;
        }
        click("bCalcular");
        EXPECT_TRUE(messages().empty());
    }
};

// 245.6 / 40.5068493 and 237.7 / 40.5068493; 100 / 365 and 200 / 365.
TEST_F(CurvesSamplesTest, AYearOfDailyFlows) {
    expectLoads("frmCurvaDuracion", "caudales_diarios.CD", "caudales_diarios.csv");
    EXPECT_EQ(rowText("grddis", 1), "1|245.6|245.6|6.0632|0.27");
    EXPECT_EQ(rowText("grddis", 2), "2|237.7|237.7|5.8681|0.55");
    // 270 flows are different.
    EXPECT_EQ(cellText("grddis", 270, 2), "6.5");
    EXPECT_EQ(cellText("grddis", 270, 3), "0.1605");
    EXPECT_EQ(cellText("grddis", 270, 4), "100.0");
    EXPECT_EQ(cellText("grddis", 271, 2), "");
    EXPECT_EQ(cellText("grddis", 365, 1), "6.5");
    enter("txtxp", "50");
    click("bQ");
    EXPECT_EQ(text("txtxq"), " 24.45");
    enter("txtxp", "95");
    click("bQ");
    EXPECT_EQ(text("txtxq"), " 7.0125");
}

TEST_F(CurvesSamplesTest, TenYearsOfMonthlyFlows) {
    expectLoads("frmVariacionEsta", "caudales_mensuales.VE", "caudales_mensuales.csv");
    EXPECT_EQ(text("txtnanos"), "10");
    EXPECT_EQ(rowText("grddis", 1), "Ene|10.32|9.73|9.11|8.44|7.66|6.64");
    EXPECT_EQ(rowText("grddis", 10), "Oct|35.84|33.76|31.58|29.22|26.5|22.93");
}

} // namespace
} // namespace caudalera
