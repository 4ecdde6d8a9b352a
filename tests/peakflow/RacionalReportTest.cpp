// The report of the rational method, whole, for each source of the intensity.

#include "tests/peakflow/RacionalTest.h"

namespace caudalera {
namespace {

const std::string title = "Resultados\n\n"
                          "Cálculo del caudal máximo utilizando el método Racional\n\n\n";

std::string rule(std::size_t hyphens) {
    return std::string(hyphens, '-') + "\n";
}

const std::string groupHead = "Serie de datos de área, cobertura y de C parciales:\n" + rule(140) +
                              " N°\t Área\t Cobertura\t\t\t Textura\t\t Pendiente\t C\n" +
                              rule(140);

class RacionalReportTest : public RacionalTest {
protected:
    RacionalReportTest() {
        group("12.5", "Forestal", "Franco arcillolimosa", "7.5");
        urbanGroup("7.5", "áreas comerciales con vecindarios");
        click("bCponderado");
    }

    // 12.5 * 0.35 + 7.5 * 0.70 = 9.625 over 20 is 0.48125, shown 0.48. Widths 10, 40, 22, 10, 10:
    // " 12.5" has 5 characters, "Forestal" 8, "Franco arcillolimosa" 20, "7.5" 3, " .35" 4; " 7.5"
    // has 4, the urban surface 33, " .7" 3.
    const std::string groups =
        groupHead + "1     " + " 12.5     " + "Forestal" + std::string(32, ' ') +
        "Franco arcillolimosa  " + "7.5       " + " .35      \n" + "2     " + " 7.5      " +
        "áreas comerciales con vecindarios" + std::string(7 + 22 + 10, ' ') + " .7       \n" +
        rule(140) + "\n" + std::string(25, ' ') + "C ponderado:0.48\n" + std::string(27, ' ') +
        "Area total:20 has\n" + "\nCálculo del I máxima:\n\n";
};

TEST_F(RacionalReportTest, WithoutASourceTellsGroupsAndFlow) {
    click("bReporte");
    EXPECT_EQ(report(), title + groups + "Resultados de los cálculos:\n" + rule(90) +
                            "     Coeficiente C: 0.48\n"
                            "     Área de la cuenca: 20 has\n"
                            "     I máx:  mm/hr\n"
                            "     Q máx:  m3/s\n");
    EXPECT_TRUE(messages().empty());
}

// San José, D = 30, T = 50: 107.69 as worked out with the provinces.
// 0.48 * 107.69 * 20 / 360 = 2.87173...
TEST_F(RacionalReportTest, WithAProvinceTellsItsIntensity) {
    click("optProvincias");
    click("optSanJose");
    duration("30", "50");
    click("bcalcularI");
    click("bCalcular");
    click("bReporte");
    EXPECT_EQ(report(), title + groups +
                            " La I máx para un período de retorno de 50 años y una duración de "
                            "30.0 min, es 107.69 mm/hr\n"
                            "Resultados de los cálculos:\n" +
                            rule(90) +
                            "     Coeficiente C: 0.48\n"
                            "     Área de la cuenca: 20 has\n"
                            "     I máx: 107.69 mm/hr\n"
                            "     Q máx: 2.872 m3/s\n");
}

// 800 mm/hr as worked out with the records; 0.48 * 800 * 20 / 360 = 21.3333...
TEST_F(RacionalReportTest, WithRecordsTellsThemToo) {
    duration("625", "100");
    records(triosDeLaSuperficie);
    click("bcalcularI");
    click("bCalcular");
    click("bReporte");
    EXPECT_EQ(report(), title + groups + "Valores de T, D y Imáx:\n" + rule(90) +
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
                            "     Coeficiente C: 0.48\n"
                            "     Área de la cuenca: 20 has\n"
                            "     I máx: 800.0 mm/hr\n"
                            "     Q máx: 21.333 m3/s\n");
    EXPECT_EQ(program.variables.contadorLineas, 4);
}

TEST_F(RacionalTest, TheReportOfAnEmptyWindowHasNoGroupLines) {
    click("bReporte");
    EXPECT_EQ(report(), title + groupHead + rule(140) + "\n" + std::string(25, ' ') +
                            "C ponderado:\n" + std::string(27, ' ') + "Area total: has\n" +
                            "\nCálculo del I máxima:\n\n"
                            "Resultados de los cálculos:\n" +
                            rule(90) +
                            "     Coeficiente C: \n"
                            "     Área de la cuenca:  has\n"
                            "     I máx:  mm/hr\n"
                            "     Q máx:  m3/s\n");
    EXPECT_TRUE(messages().empty());
}

TEST_F(RacionalTest, TheReportTakesWhatTheFieldsHold) {
    click("optProvincias");
    enter("txtTi", "25");
    enter("txtcq", "0.4");
    click("bReporte");
    EXPECT_NE(report().find(" La I máx para un período de retorno de 25 años y una duración de  "
                            "min, es  mm/hr\n"),
              std::string::npos);
    EXPECT_NE(report().find("     Coeficiente C: 0.4\n"), std::string::npos);
}

// A text wider than its column has no blanks behind it.
TEST_F(RacionalTest, ALongTextOfTheReportIsNotCut) {
    const std::string cover(45, 'x');
    group("1", cover, "Arcillosa", "1");
    click("bReporte");
    EXPECT_NE(
        report().find("1      1        " + cover + "Arcillosa             1          0        \n"),
        std::string::npos);
}

} // namespace
} // namespace caudalera
