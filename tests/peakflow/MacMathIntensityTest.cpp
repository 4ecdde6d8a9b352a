// The intensity tab within the window of Mac Math, its files and the report.

#include "tests/peakflow/MacMathWindowTest.h"
#include "tests/support/SeriesBytes.h"

namespace caudalera {
namespace {

// San José, D = 30, T = 50: 10.8070854133 ln 50 + 65.4154353475 = 107.6930.
TEST_F(MacMathWindowTest, AProvinceGivesTheIntensity) {
    tab(2);
    EXPECT_EQ(focus(), "txtLi");
    click("optProvincias");
    EXPECT_TRUE(shown("fraProvincias"));
    click("optSanJose");
    duration("30", "50");
    click("bcalcularI");
    EXPECT_EQ(results(), "30.0|107.69|107.69");
    EXPECT_TRUE(form.calculado());
    enter("txtTi", "200.01");
    click("bcalcularI");
    expectMessage({"Para este método el período de retorno T no puede ser mayor de 200", "Error"});
    EXPECT_EQ(results(), "30.0|107.69|107.69");
}

// 0.0195 (1000^3 / 50)^0.385 = 12.6163.
TEST_F(MacMathWindowTest, TheConcentrationTimeIsTheDuration) {
    enter("txtLi", "1000");
    enter("txtHi", "50");
    enter("txtTi", "10");
    click("bcalcularI");
    EXPECT_EQ(results(), "12.62|0.0|0.0");
    click("bLimpiar");
    EXPECT_EQ(text("txttci"), "12.62") << "of another tab";
    tab(2);
    click("bLimpiar");
    for (const char* name : {"txtLi", "txtHi", "txtTi", "txttci", "txtImaxi"})
        EXPECT_EQ(text(name), "") << name;
}

TEST_F(MacMathWindowTest, TheFaultsOfTheIntensityAreToldHereToo) {
    click("optProvincias");
    click("bcalcularI");
    EXPECT_EQ(messages(),
              (std::vector<Message>{
                  {"Ingresar un valor adecuado para la distancia L", "Error"},
                  {"Ingresar un valor adecuado para el período de retorno T", "Error"}}));
    click("optRegistros");
    duration("30", "50");
    rows({{"4", "16", "400"}, {"4", "256", "200"}, {"16", "16", "800"}});
    click("bcalcularI");
    EXPECT_EQ(messages(), (std::vector<Message>{{"Para el ajuste a la ecuación se requiere por lo "
                                                 "menos cuatro tríos de datos",
                                                 "", Icon::error}}));
    rows({{"16", "0", "400"}});
    click("bcalcularI");
    expectMessage({"Ingresó valores para T, D ó Imáx iguales a 0 ó negativos. Estos valores no "
                   "permiten la correlación potencial. ¡Hacer la corrección correspondiente!",
                   ""});
}

class MacMathReportTest : public MacMathWindowTest {
protected:
    MacMathReportTest() {
        group("12.5", "50 - 80", "Fina", "7.5");
        group("7.5", "100", "Arenosa", "0.1");
        click("bCponderado");
    }

    static std::string rule(std::size_t hyphens) { return std::string(hyphens, '-') + "\n"; }

    // 0.16 + 0.22 + 0.15 = 0.53 and 0.20: (12.5 * 0.53 + 7.5 * 0.20) / 20 = 0.40625, shown 0.41.
    // Widths 10, 22, 22, 30, 10: " 12.5" has 5 characters, "50 - 80" 7, "Fina" 4, "7.5" 3, " .53"
    // 4; " 7.5" has 4, "100" 3, "Arenosa" 7, "0.1" 3, " .2" 3.
    const std::string head =
        "Resultados\n\nCálculo del caudal máximo utilizando el método de Mac Math\n\n\n"
        "Serie de datos de área, cobertura, textura, pendiente y de C parciales:\n" +
        rule(120) + " N°\t Área\t Cobertura (%)\t\t\t Textura\t\t Pendiente (%)\t C\n" + rule(120) +
        "1     " + " 12.5     " + "50 - 80" + std::string(15, ' ') + "Fina" + std::string(18, ' ') +
        "7.5" + std::string(27, ' ') + " .53      \n" + "2     " + " 7.5      " + "100" +
        std::string(19, ' ') + "Arenosa" + std::string(15, ' ') + "0.1" + std::string(27, ' ') +
        " .2       \n" + rule(120) + "\n" + std::string(25, ' ') + "C ponderado:0.41\n" +
        std::string(27, ' ') + "Area total:20 has\n" + "\nCálculo del I máxima:\n\n";
};

TEST_F(MacMathReportTest, WithoutASourceTellsGroupsAndFlow) {
    click("bReporte");
    EXPECT_EQ(report(), head + "Resultados de los cálculos:\n" + rule(90) +
                            "     Pendiente cauce S:  o/oo\n"
                            "     Coeficiente C: 0.41\n"
                            "     Área de la cuenca: 20 has\n"
                            "     I máx:  mm/hr\n"
                            "     Q máx:  m3/s\n");
    EXPECT_TRUE(messages().empty());
}

// The surface 400 T^0.5 D^-0.25 of the records at T = 100, D = 625 is 400 * 10 / 5 = 800.
// 0.0091 * 0.41 * 800 * 20^0.8 * 32^0.2 = 65.57967.
TEST_F(MacMathReportTest, WithRecordsTellsThemToo) {
    click("optRegistros");
    duration("625", "100");
    rows({{"4", "16", "400"}, {"4", "256", "200"}, {"16", "16", "800"}, {"16", "256", "400"}});
    click("bcalcularI");
    EXPECT_EQ(text("txtecuacioni"), "Imáx = 400.00*T^(0.500) *D^(-0.2500)");
    enter("txtsp", "32");
    click("bCalcular");
    click("bReporte");
    EXPECT_EQ(report(), head + "Valores de T, D y Imáx:\n" + rule(90) +
                            " Trío\t\t T (años)\t Duración (min)\t I máx (mm/hr)\n" + rule(90) +
                            " 1\t\t4.0\t\t16.0\t\t400.0\n"
                            " 2\t\t4.0\t\t256.0\t\t200.0\n"
                            " 3\t\t16.0\t\t16.0\t\t800.0\n"
                            " 4\t\t16.0\t\t256.0\t\t400.0\n" +
                            rule(90) +
                            " La I máx para un período de retorno de 100 años y una duración de "
                            "625.0 min, es 800.0 mm/hr\n"
                            "Resultados de los cálculos:\n" +
                            rule(90) +
                            "     Pendiente cauce S: 32 o/oo\n"
                            "     Coeficiente C: 0.41\n"
                            "     Área de la cuenca: 20 has\n"
                            "     I máx: 800.0 mm/hr\n"
                            "     Q máx: 65.580 m3/s\n");
}

TEST_F(MacMathWindowTest, TheFilesAreThoseOfTheRationalMethod) {
    click("optRegistros");
    rows({{"4", "16", "400"}});
    platform.answers.push_back(file("a.TDI"));
    click("bCrear");
    EXPECT_EQ(bytesOf(file("a.TDI")),
              (Bytes{0x00, 0x00, 0x80, 0x40, 0x00, 0x00, 0x80, 0x41, 0x00, 0x00, 0xC8, 0x43}));
    open("frmQmaxRacional");
    click("optRegistros");
    platform.answers.push_back(file("a.TDI"));
    click("bAccesar");
    EXPECT_EQ(rowText("grdt", 1), " 1|4.0|16.0|400.0");
}

} // namespace
} // namespace caudalera
