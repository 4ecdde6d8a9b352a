// The report of simple regression.

#include "tests/regression/EjRegSimpleTest.h"

#include "shell/report/frmPadre.h"

namespace caudalera {
namespace {

const std::string title = "Resultados\n\nCálculos con ecuaciones de Regresión Simple\n\n\n";
const std::string pairsRule = std::string(75, '-') + "\n";
const std::string equationsRule = std::string(109, '-') + "\n";
const std::string pairsHeader =
    "Pares de datos X,Y:\n\n" + pairsRule + " Par\t\t X\t\t Y\t\t\n" + pairsRule;
const std::string equationsHeader = "Ecuaciones de ajuste de pares de datos:\n\n" + equationsRule +
                                    " Tipo    \t\t Ecuación\t\t R       \t\t R^2     \t\t\n" +
                                    equationsRule;

TEST_F(EjRegSimpleTest, ReportsPairsEquationsAndTheValueFound) {
    calculate(doubling);
    enter("txtvxx", "2.5");
    click("optExponencial");
    click("bReporte");
    EXPECT_EQ(report(),
              title + pairsHeader +
                  " 1\t\t1.0\t\t2.0\t\t\n"
                  " 2\t\t2.0\t\t4.0\t\t\n"
                  " 3\t\t3.0\t\t8.0\t\t\n"
                  " 4\t\t4.0\t\t16.0\t\t\n" +
                  pairsRule + "\n" + equationsHeader +
                  "Lineal  \tY = -4.0 + 4.6 * X  \t0.95917  \t0.92  \t\n"
                  "Exponencial\tY = 1.0 * ( 2.0 )  ^ X\t1.0     \t1.0\t\n"
                  "Potencial\tY = 1.7747426 *  X ^ (1.459022)\t0.98018     \t0.96076\t\n" +
                  equationsRule +
                  "\n"
                  "Cálculo de Y para un valor de X:\n\n"
                  "Ecuación Exponencial:\n"
                  "Para X = 2.5\n"
                  "El valor de Y es: Y = 5.6569\n");
}

TEST_F(EjRegSimpleTest, ReportsTheEmptyWindowToo) {
    click("bReporte");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(report(), title + pairsHeader + pairsRule + "\n" + equationsHeader +
                            "  \t  \t  \t  \t\n"
                            "\t\t     \t\t\n"
                            "\t\t     \t\t\n" +
                            equationsRule +
                            "\n"
                            "Cálculo de Y para un valor de X:\n\n"
                            "Ecuación::\n"
                            "Para X = \n"
                            "El valor de Y es: Y = \n");
}

TEST_F(EjRegSimpleTest, ReportsCellsAsTheyAreShown) {
    rows({{"1", "2"}});
    cell("grdt", 1, 1);
    type("grdt", "abc");
    key("grdt", Key::Kind::down);
    click("bReporte");
    EXPECT_NE(report().find(" 1\t\tabc\t\t2.0\t\t\n"), std::string::npos);
}

TEST_F(EjRegSimpleTest, CentresTheTitleAndIndentsTheWholeReport) {
    click("bReporte");
    const auto& paragraphs = ventanaDeReportes(program)->active()->rtfText.paragraphs();
    EXPECT_EQ(paragraphs[0].format.alignment, Alignment::center);
    EXPECT_EQ(paragraphs[2].format.alignment, Alignment::center);
    EXPECT_EQ(paragraphs[5].text(), "Pares de datos X,Y:");
    EXPECT_EQ(paragraphs[5].format.alignment, Alignment::left);
    for (const Paragraph& paragraph : paragraphs) {
        EXPECT_EQ(paragraph.format.indent, 200);
        EXPECT_EQ(paragraph.format.rightIndent, 200);
    }
}

} // namespace
} // namespace caudalera
