// Form, resets, files and report of the equation of the largest intensity.

#include "tests/precipitation/IntensidadMaxTest.h"

namespace caudalera {
namespace {

TEST_F(IntensidadMaxTest, HasItsTexts) {
    EXPECT_EQ(form.caption, "Cálculo de la intensidad máxima de diseño para una duración y período "
                            "de retorno dado");
    EXPECT_EQ(text("lblIngreso"), "Ingreso de los tríos de datos T, D, Imáx:");
    EXPECT_EQ(text("lblNota"), "Nota:");
    EXPECT_EQ(text("lblNotaEnter"), "Una vez que digite el dato, presionar ENTER");
    EXPECT_EQ(text("fraDiseno"), "I máx de diseño:");
    EXPECT_EQ(text("lblCalculoY"), "Cálculo para:");
    EXPECT_EQ(form.txtvT.label()->caption, "Período de retorno (T):");
    EXPECT_EQ(form.txtvT.unit()->caption, "años");
    EXPECT_EQ(form.txtvD.label()->caption, "Duración (D):");
    EXPECT_EQ(form.txtvD.unit()->caption, "min");
    EXPECT_EQ(form.txtvI.label()->caption, "Imáx");
    EXPECT_EQ(form.txtvI.unit()->caption, "mm/hr");
    EXPECT_EQ(text("bLimpiar"), "&Limpiar");
    EXPECT_EQ(form.Picture1.image(), "intensidad");
    EXPECT_EQ(form.find("bGraficar"), nullptr);
    EXPECT_EQ(form.find("Graph1"), nullptr);
}

TEST_F(IntensidadMaxTest, StartsWithEmptyGrids) {
    EXPECT_EQ(rowText("grdt", 0), "Trío|T (años)|Duración (min)|Imáx (mm/hr)");
    EXPECT_EQ(rowText("grdt", 1), "[?]|||");
    EXPECT_EQ(form.grdecua.Rows(), 2);
    EXPECT_EQ(form.grdecua.Cols(), 4);
    EXPECT_EQ(form.grdecua.FixedRows(), 1);
    EXPECT_EQ(form.grdecua.FixedCols(), 0);
    EXPECT_EQ(rowText("grdecua", 0), "Ecuación|R|R^2|Se");
    EXPECT_EQ(equation(), "|||");
    EXPECT_EQ(focus(), "grdt");
    EXPECT_FALSE(form.calculado());
    EXPECT_TRUE(form.txtvI.result);
    EXPECT_FALSE(form.txtvT.result);
}

TEST_F(IntensidadMaxTest, LimpiarResetsDataResultsAndDesign) {
    calculate(cincoTrios, "25", "45");
    click("bLimpiar");
    EXPECT_EQ(form.grdt.Rows(), 2);
    EXPECT_EQ(rowText("grdecua", 0), "Ecuación|R|R^2|Se");
    EXPECT_EQ(equation(), "|||");
    for (const char* name : {"txtvT", "txtvD", "txtvI"})
        EXPECT_EQ(text(name), "") << name;
    EXPECT_FALSE(form.calculado());
}

TEST_F(IntensidadMaxTest, ALoadResetsTheResultsBeforeItsDialog) {
    calculate(cincoTrios, "25", "45");
    // Cancelled.
    click("bAccesar");
    EXPECT_EQ(form.grdt.Rows(), 2);
    EXPECT_EQ(equation(), "|||");
    EXPECT_EQ(text("txtvI"), "");
    // What was entered is no result.
    EXPECT_EQ(text("txtvT"), "25");
    EXPECT_EQ(text("txtvD"), "45");
    EXPECT_FALSE(form.calculado());
    EXPECT_TRUE(messages().empty());
}

// Lowest byte first: 4 is 0x40800000, 16 0x41800000, 400 0x43C80000.
TEST_F(IntensidadMaxTest, ASeriesFileHoldsTheTrios) {
    rows({{"4", "16", "400"}, {"16", "4", "400"}});
    platform.answers = {file("a.TDI"), file("a.TDI")};
    click("bCrear");
    EXPECT_EQ(bytesOf(file("a.TDI")),
              (Bytes{0x00, 0x00, 0x80, 0x40, 0x00, 0x00, 0x80, 0x41, 0x00, 0x00, 0xC8, 0x43, //
                     0x00, 0x00, 0x80, 0x41, 0x00, 0x00, 0x80, 0x40, 0x00, 0x00, 0xC8, 0x43}));
    click("bAccesar");
    EXPECT_EQ(rowText("grdt", 1), " 1|4.0|16.0|400.0");
    EXPECT_EQ(rowText("grdt", 2), " 2|16.0|4.0|400.0");
}

TEST_F(IntensidadMaxTest, FiveHundredTriosAreFittedAndOneMoreIsTold) {
    std::vector<float> values;
    for (int i = 0; i < 125; ++i) {
        values.insert(values.end(), {4, 16, 400, 4, 256, 200, 16, 16, 800, 16, 256, 400});
    }
    writeSingles(file("500.TDI"), values);
    platform.answers = {file("500.TDI")};
    click("bAccesar");
    design("100", "625");
    click("bCalcular");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(text("txtvI"), "800.0");
    cell("grdt", form.grdt.Rows() - 1, 1);
    rows({{"4", "16", "400"}});
    click("bCalcular");
    expectMessage({mensajeDePotencial, ""});
    platform.answers = {file("501.TDI")};
    click("bCrear");
    EXPECT_TRUE(fatal(9));
}

const std::string rule90 = std::string(90, '-') + "\n";
const std::string rule110 = std::string(110, '-') + "\n";
const std::string dataHead =
    "Resultados\n\nCálculo de la intensidad máxima de diseño para una duración y período de "
    "retorno dado\n\n\nTrios de valores T, D e Imax:\n" +
    rule90 + " Trío\t\t T (años)\t Duración (min)\t Imáx (mm/hr)\n" + rule90;
const std::string equationHead = "Ecuación de ajuste de correlación potencial múltiple:\n" +
                                 rule110 + " Ecuación           \t\t\t\t R   \t R^2 \t Se  \n" +
                                 rule110;

TEST_F(IntensidadMaxTest, ReportsTriosEquationAndDesign) {
    calculate(cincoTrios, "25", "45");
    click("bReporte");
    EXPECT_EQ(report(),
              dataHead +
                  " 1\t\t2.0\t\t10.0\t\t100.0\t\t\n"
                  " 2\t\t2.0\t\t60.0\t\t40.0\t\t\n"
                  " 3\t\t10.0\t\t10.0\t\t150.0\t\t\n"
                  " 4\t\t10.0\t\t60.0\t\t55.0\t\t\n"
                  " 5\t\t50.0\t\t30.0\t\t110.0\t\t\n" +
                  rule90 + "\n" + equationHead +
                  "Imáx = 307.4176*T^(0.2085) *D^(-0.5368)\t\t0.9987\t\t0.9974\t\t4.8121\t\t\n" +
                  rule110 +
                  "\nCálculo de Imáx para un valor de T y D:\n"
                  "Para T = 25 años  y\n"
                  "Para D = 45 min\n"
                  "El valor de Imáx es: Imáx = 77.94 mm/hr\n");
    EXPECT_TRUE(messages().empty());
}

TEST_F(IntensidadMaxTest, ReportsTheEmptyWindowToo) {
    click("bReporte");
    EXPECT_EQ(report(), dataHead + rule90 + "\n" + equationHead + "\t\t\t\t\t\t\t\t\n" + rule110 +
                            "\nCálculo de Imáx para un valor de T y D:\n"
                            "Para T =  años  y\n"
                            "Para D =  min\n"
                            "El valor de Imáx es: Imáx =  mm/hr\n");
}

} // namespace
} // namespace caudalera
