// The samples for the regressions: the series files hold what their texts say, and the fits are
// those that are published of them.

#include "tests/support/PublishedTable.h"
#include "tests/support/WindowTest.h"

#include <string>
#include <vector>

namespace caudalera {
namespace {

class RegressionSamplesTest : public WindowTest {
protected:
    void expectLoads(const std::string& window, const std::string& file, const std::string& text,
                     const std::vector<std::string>& columns) {
        open(window);
        platform.answers.emplace_back(samplePath(file).string());
        click("bAccesar");
        const auto rows = tableOf(samplePath(text), columns);
        auto& grdt = control<MSFlexGrid>("grdt");
        ASSERT_EQ(grdt.Rows(), static_cast<long>(rows.size()) + 2);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            for (std::size_t j = 0; j < columns.size(); ++j) {
                EXPECT_DOUBLE_EQ(
                    std::stod(grdt.TextMatrix(static_cast<long>(i) + 1, static_cast<long>(j) + 1)),
                    std::stod(rows[i][j]));
            }
        }
        click("bCalcular");
        EXPECT_TRUE(messages().empty());
    }
};

// Near the curve that the pairs were made from; 14.2353359, 1.6481192, R = 0.9995969 and R2 =
// 0.9991939 with logarithms of 60 digits, the parabola in rational arithmetic.
TEST_F(RegressionSamplesTest, TheRatingCurve) {
    const std::vector<std::string> columns = {"nivel_m", "caudal_m3s"};
    expectLoads("frmEjRegSimple", "curva_gasto.XY", "curva_gasto.csv", columns);
    EXPECT_EQ(rowText("grdecua", 3), "Potencial|Y = 14.2353359 *  X ^ (1.6481192)|0.9996|0.99919");
    expectLoads("frmRegPoli2Gra", "curva_gasto.XY", "curva_gasto.csv", columns);
    EXPECT_EQ(rowText("grdecua", 1), "Polinomio 2° grado|Y = -2.4433 +10.4602 * X +6.4917 * X "
                                     "^2|0.9994|0.9989|1.0587");
}

// Published everywhere with the data: volume = -57.9877 + 4.7082 girth + 0.3393 height, R2 =
// 0.948, Se = 3.882; ln volume = -6.63162 + 1.98265 ln girth + 1.11712 ln height, R2 = 0.9777 (a =
// exp(-6.63162) = 0.00132).
TEST_F(RegressionSamplesTest, TheCherryTrees) {
    expectLoads("frmRegMul2Var", "cerezos.XYZ", "cerezos.csv",
                {"diametro_in", "altura_ft", "volumen_ft3"});
    EXPECT_EQ(rowText("grdecua", 1),
              "Lineal Múltiple|Y = -57.9877 +4.7082 *X1 +0.3393 *X2|0.9736|0.9480|3.8818");
    EXPECT_EQ(rowText("grdecua", 2),
              "Potencial Múltiple|Y= 0.0013*X1^(1.9826) *X2^(1.1171)|0.9888|0.9777|2.5413");
}

// loss = -39.9197 + 0.7156 air + 1.2953 water - 0.1521 acid, R2 = 0.9136, Se = 3.243.
TEST_F(RegressionSamplesTest, TheStackLoss) {
    expectLoads("frmRegMul3Var", "perdida_amoniaco.XSY", "perdida_amoniaco.csv",
                {"flujo_aire", "temperatura_agua_C", "concentracion_acido", "perdida"});
    EXPECT_EQ(rowText("grdecua", 1), "Lineal Múltiple|Y = -39.9197 +0.7156 * X1 +1.2953 * "
                                     "X2-0.1521 * X3        |0.9558|0.9136|3.2434");
}

} // namespace
} // namespace caudalera
