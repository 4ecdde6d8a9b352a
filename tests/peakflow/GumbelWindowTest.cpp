// The design flow by Gumbel in its window, and the report.

#include "tests/peakflow/AnnualPeaksTest.h"
#include "tests/support/PublishedSeries.h"

namespace caudalera {
namespace {

TEST_F(GumbelWindowTest, HasItsCaptionDrawingAndHeaders) {
    EXPECT_EQ(form.caption, "Cálculo de caudal de diseño utilizando la distribución Gumbel");
    EXPECT_EQ(form.Picture1.image(), "gumbel");
    EXPECT_EQ(rowText("grddis", 0),
              "N° años disponibles|Qm|SQ|YN|SN|Qmáx|DeltaQ|IntervaloQ|Qdiseño");
}

// Mean 200, deviation sqrt(25000 / 4) = 79.0569; in 40 digits YN = 0.444565, SN = 0.857840, Q =
// 519.55452, margin 105.06030, between 414.49422 and 624.61482.
TEST_F(GumbelWindowTest, FiveYears) {
    EXPECT_EQ(result(fivePeaks(), "50"),
              "5|200.0|79.0569|0.4446|0.8578|519.5545|105.0603| 414 .49 -  624 .61|624.6148");
    EXPECT_TRUE(messages().empty());
}

// ln 1 = 0: 159.02969, between 53.96939 and 264.08999.
TEST_F(GumbelWindowTest, APeriodOfOneYear) {
    EXPECT_EQ(result(fivePeaks(), "1"),
              "5|200.0|79.0569|0.4446|0.8578|159.0297|105.0603| 53 .97 -  264 .09|264.09");
}

// 15, sqrt(50) = 7.07107, 0.339837, 0.745904, 48.863855, 10.807049, 38.056805, 59.670904.
TEST_F(GumbelWindowTest, TwoYearsAreEnough) {
    EXPECT_EQ(result({"10", "20"}, "50"),
              "2|15.0|7.0711|0.3398|0.7459|48.8639|10.807| 38 .06 -  59 .67|59.6709");
    EXPECT_TRUE(messages().empty());
}

// 33 years in 40 digits: 13330.30303, 4916.33024, 0.539281, 1.126193, 31079.70078, 4976.60265,
// 26103.09813 and 36056.30343.
TEST_F(GumbelWindowTest, TheFoxRiver) {
    loadFile(samplePath("fox_wrightstown.Q").string());
    calculate("100");
    EXPECT_EQ(rowText("grddis", 1), "33|13330.303|4916.3302|0.5393|1.1262|31079.7008|4976.6026| "
                                    "26103 .1 -  36056 .3|36056.3034");
}

// Equal peaks have no margin, so that both bounds are the peak itself.
TEST_F(GumbelWindowTest, TheIntervalSplitsIntegerAndFraction) {
    const auto interval = [this](const std::string& peak) {
        result({peak, peak, peak}, "10");
        EXPECT_EQ(cellText("grddis", 1, 2), "0.0");
        EXPECT_EQ(cellText("grddis", 1, 6), "0.0");
        return cellText("grddis", 1, 7);
    };
    EXPECT_EQ(interval("100"), " 100 0 -  100 0");
    EXPECT_EQ(interval("123.45"), " 123 .45 -  123 .45");
    EXPECT_EQ(interval("140.2"), " 140 .2 -  140 .2");
    EXPECT_EQ(interval("7.05"), " 7 .05 -  7 .05");
    EXPECT_EQ(interval("0.25"), " 0 .25 -  0 .25");
    EXPECT_EQ(interval("-0.25"), " 0-.25 - "
                                 " 0-.25");
    EXPECT_EQ(interval("-123.5"), "-123-.5 - -123-.5");
    // The fraction is rounded apart from the integer.
    EXPECT_EQ(interval("123.999"), " 123 1 -  123 1");
    EXPECT_EQ(interval("123.994"), " 123 .99 -  123 .99");
    EXPECT_EQ(interval("0.004"), " 0 0 -  0 0");
}

// A fraction with a comma reads back as 0.
TEST_F(GumbelWindowTest, UnderACommaTheIntervalHasNoFraction) {
    platform.separator = ",";
    values({"200", "100", "300", "250", "150"});
    calculate("50");
    EXPECT_EQ(rowText("grddis", 1),
              "5|200,0|79,0569|0,4446|0,8578|519,5545|105,0603| 414 0 -  624 0|624,6148");
}

// The new row stands in the place of the old one; a failure leaves it.
TEST_F(GumbelWindowTest, AFailureLeavesTheResults) {
    result(fivePeaks(), "50");
    rows({{"1e200"}, {"-1e200"}});
    click("bCalcular");
    expectMessage(datosInadecuados);
    EXPECT_EQ(cellText("grddis", 1, 8), "624.6148");
    EXPECT_EQ(cellText("grddis", 1, 0), "5");
}

TEST_F(GumbelWindowTest, TheGridKeepsItsOrder) {
    result(fivePeaks(), "50");
    EXPECT_EQ(cellText("grdt", 1, 1), "200.0");
    EXPECT_EQ(cellText("grdt", 2, 1), "100.0");
    EXPECT_EQ(cellText("grdt", 5, 1), "150.0");
}

const std::string head = "Resultados\n\n"
                         "Cálculo de caudal de diseño utilizando la distribución Gumbel\n\n\n"
                         "Serie de datos Q:\n"
                         "----------------------------------------\n"
                         " Año\t\t Q\t\t\n"
                         "----------------------------------------\n";

TEST_F(GumbelWindowTest, TheReportTellsPeaksAndResults) {
    enter("txtanno", "1995");
    values(fivePeaks());
    calculate("50");
    click("bReporte");
    EXPECT_EQ(report(), head +
                            " 1995\t\t200.0\t\t\n"
                            " 1996\t\t100.0\t\t\n"
                            " 1997\t\t300.0\t\t\n"
                            " 1998\t\t250.0\t\t\n"
                            " 1999\t\t150.0\t\t\n"
                            "----------------------------------------\n"
                            "\n"
                            "Resultados de los cálculos:\n" +
                            rule(130) +
                            "     Número de años disponibles: 5\n"
                            "             Promedio Q:                 200.0\n"
                            "          Desviación estándar Q:      79.0569\n"
                            "            Parámetro YN:               0.4446\n"
                            "            Parámetro SN:               0.8578\n"
                            "             Q máximo:                   519.5545\n"
                            "               Delta Q:                    105.0603\n"
                            "          Intervalo variación Q:       414 .49 -  624 .61\n"
                            "El caudal de diseño por Gumbel, para un período de retorno de 50 años "
                            "es: 624.6148 m3/s\n" +
                            rule(130));
    EXPECT_EQ(program.variables.contadorLineas, 5);
    EXPECT_TRUE(messages().empty());
}

TEST_F(GumbelWindowTest, TheReportOfAnEmptyWindowHasEmptyResults) {
    click("bReporte");
    EXPECT_EQ(report(), head + rule(40) + "\nResultados de los cálculos:\n" + rule(130) +
                            "     Número de años disponibles: \n"
                            "             Promedio Q:                 \n"
                            "          Desviación estándar Q:      \n"
                            "            Parámetro YN:               \n"
                            "            Parámetro SN:               \n"
                            "             Q máximo:                   \n"
                            "               Delta Q:                    \n"
                            "          Intervalo variación Q:      \n"
                            "El caudal de diseño por Gumbel, para un período de retorno de  años "
                            "es:  m3/s\n" +
                            rule(130));
    EXPECT_TRUE(messages().empty());
}

} // namespace
} // namespace caudalera
