// The samples of rainfall: the series files hold what their texts say, and the results are those
// that are published of them.

#include "tests/support/PublishedTable.h"
#include "tests/support/WindowTest.h"

#include <string>
#include <vector>

namespace caudalera {
namespace {

class PrecipitationSamplesTest : public WindowTest {
protected:
    /// `last`: whether the text's last line is the record behind the rows.
    void expectLoads(const std::string& window, const std::string& name,
                     const std::string& extension, const std::vector<std::string>& columns,
                     bool last = false) {
        open(window);
        platform.answers.emplace_back(samplePath(name + "." + extension).string());
        click("bAccesar");
        auto lines = tableOf(samplePath(name + ".csv"), columns);
        if (last) {
            EXPECT_EQ(text("txtUltimaIsoyeta"), lines.back().front());
            lines.pop_back();
        }
        auto& grdt = control<MSFlexGrid>("grdt");
        ASSERT_EQ(grdt.Rows(), static_cast<long>(lines.size()) + 2);
        for (std::size_t i = 0; i < lines.size(); ++i) {
            for (std::size_t j = 0; j < columns.size(); ++j) {
                EXPECT_DOUBLE_EQ(
                    std::stod(grdt.TextMatrix(static_cast<long>(i) + 1, static_cast<long>(j) + 1)),
                    std::stod(lines[i][j]));
            }
        }
    }
    void calculate() {
        click("bCalcular");
        EXPECT_TRUE(messages().empty());
    }
};

// 7.9 mm in 5 min are 94.8 mm/hr; the intervals add up to 140 min and 49.8 mm.
TEST_F(PrecipitationSamplesTest, TheStorm) {
    expectLoads("frmAnalisisTor", "tormenta", "TH", {"tiempo_min", "lluvia_mm"});
    calculate();
    EXPECT_EQ(text("txtvI"), "94.8");
    EXPECT_EQ(text("txtvD"), "5");
    EXPECT_EQ(rowText("grdecua", 12), "11|30|140|1.4|49.8|2.8");
}

// With 40 digits K = 249.929628948, m = 0.125930863815, n = -0.417617112124, R = 0.980980078253,
// R2 = 0.962321913929, Se = 10.00227455, and 76.46306481 for T = 25 and D = 45.
TEST_F(PrecipitationSamplesTest, TheIntensitiesOfSanJose) {
    expectLoads("frmIntensidadMax", "intensidades_san_jose", "TDI",
                {"periodo_retorno_anos", "duracion_min", "intensidad_mm_hr"});
    enter("txtvT", "25");
    enter("txtvD", "45");
    calculate();
    EXPECT_EQ(rowText("grdecua", 1),
              "Imáx = 249.9296*T^(0.1259) *D^(-0.4176)|0.9810|0.9623|10.0023");
    EXPECT_EQ(text("txtvI"), "76.46");
}

// The book gives 35.0, 31.1 (284.6 / 9.14) and 27.9 mm (255.1 / 9.14 before it rounds the bands).
TEST_F(PrecipitationSamplesTest, TheBasin) {
    expectLoads("frmPromArit", "cuenca_estaciones", "P", {"precipitacion_mm"});
    calculate();
    EXPECT_EQ(text("txtPprom"), "35.0");
    expectLoads("frmThiessen", "cuenca_thiessen", "PA", {"precipitacion_mm", "area_km2"});
    calculate();
    EXPECT_EQ(text("txtPprom"), "31.138");
    expectLoads("frmIsoyeta", "cuenca_isoyetas", "IA", {"isoyeta_mm", "area_km2"}, true);
    calculate();
    EXPECT_EQ(text("txtPprom"), "27.91");
}

} // namespace
} // namespace caudalera
