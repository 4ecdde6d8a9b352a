// The sample year: the series files hold what its text says, and load into their windows.

#include "tests/evapotranspiration/MonthlyTest.h"
#include "tests/support/PublishedTable.h"

#include <string>
#include <vector>

namespace caudalera {
namespace {

class EvapotranspirationSamplesTest : public MonthlyTest {
protected:
    void expectLoads(const std::string& name, const std::string& sample,
                     const std::vector<std::string>& columns) {
        const auto rows = tableOf(samplePath("valle_tropical.csv"), columns);
        open(name);
        load(samplePath(sample).string());
        auto& grdt = control<MSFlexGrid>("grdt");
        ASSERT_EQ(grdt.Rows(), 14);
        ASSERT_EQ(rows.size(), 12U);
        for (std::size_t month = 0; month < 12; ++month) {
            const long row = static_cast<long>(month) + 1;
            EXPECT_EQ(grdt.TextMatrix(row, 0), rows[month][0]);
            for (std::size_t column = 1; column < columns.size(); ++column) {
                EXPECT_DOUBLE_EQ(std::stod(grdt.TextMatrix(row, static_cast<long>(column))),
                                 std::stod(rows[month][column]));
            }
        }
    }
};

TEST_F(EvapotranspirationSamplesTest, TheTemperaturesLoad) {
    expectLoads("frmThornthwaite", "valle_tropical.TM", {"mes", "temperatura_C"});
    click("bCalcular");
    EXPECT_EQ(text("txti"), "123.3116");
    expectLoads("frmBlaneyCriddle", "valle_tropical.TB", {"mes", "temperatura_C"});
}

TEST_F(EvapotranspirationSamplesTest, TheTemperaturesAndRainfallsLoad) {
    expectLoads("frmBalanceHidro", "valle_tropical.TP",
                {"mes", "temperatura_C", "precipitacion_mm"});
    click("bCalcular");
    EXPECT_EQ(text("txtMesIni"), "Mayo");
}

} // namespace
} // namespace caudalera
