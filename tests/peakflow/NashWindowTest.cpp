// The design flow by Nash in its window, and the report.

#include "peakflow/frmQmaxNash.h"
#include "tests/peakflow/AnnualPeaksTest.h"
#include "tests/support/PublishedSeries.h"
#include "tests/support/SeriesBytes.h"

namespace caudalera {
namespace {

MSFlexGrid& tableOf(AnnualPeaksWindow& form) {
    return dynamic_cast<frmQmaxNash&>(form).grdTablaQX;
}

TEST_F(NashWindowTest, HasItsCaptionDrawingAndHeaders) {
    EXPECT_EQ(form.caption,
              "Cálculo del caudal de diseño utilizando el método estadístico propuesto por Nash");
    EXPECT_EQ(form.Picture1.image(), "nash");
    EXPECT_EQ(rowText("grddis", 0), "N° años disponibles|Qm|Xm|a|b|Qmáx|DeltaQ|IntervaloQ|Qdiseño");
    EXPECT_EQ(rowText("grdTablaQX", 0), "m|Q|T|X|Q*X|Q^2|X^2");
    EXPECT_EQ(tableOf(form).Rows(), 300);
    EXPECT_EQ(tableOf(form).Cols(), 7);
    EXPECT_EQ(tableOf(form).FixedRows(), 1);
    EXPECT_EQ(tableOf(form).FixedCols(), 0);
    EXPECT_EQ(text("fraSumatorias"), "Sumatorias:");
    EXPECT_EQ(sums(), "||||");
    for (const char* sum : {"txtSQ", "txtSX", "txtSQX", "txtSQ2", "txtSX2"})
        EXPECT_TRUE(control<TextBox>(sum).result) << sum;
}

// In 40 digits, from the sums about the means: a = 85.48348, b = -203.95931; at X = -2.05681 Q =
// 504.98824 with a margin of 82.02708, between 422.96117 and 587.01532.
TEST_F(NashWindowTest, FiveYears) {
    EXPECT_EQ(result(fivePeaks(), "50"), "5|200.0|-0.5615|85.4835|-203.9593|504.9882|82.0271| "
                                         "422 .96 -  587 .02|587.0153");
    EXPECT_EQ(sums(), "1000.0|-2.8073|-682.36|225000.0|2.17");
    EXPECT_EQ(rowText("grdTablaQX", 1), "1|300.0|6.0|-1.1014|-330.41|90000.0|1.213");
    EXPECT_EQ(rowText("grdTablaQX", 2), "2|250.0|3.0|-0.7543|-188.57|62500.0|0.5689");
    EXPECT_EQ(rowText("grdTablaQX", 3), "3|200.0|2.0|-0.5214|-104.28|40000.0|0.2718");
    EXPECT_EQ(rowText("grdTablaQX", 4), "4|150.0|1.5|-0.3214|-48.21|22500.0|0.1033");
    EXPECT_EQ(rowText("grdTablaQX", 5), "5|100.0|1.2|-0.1089|-10.89|10000.0|0.0119");
    EXPECT_EQ(rowText("grdTablaQX", 6), "||||||");
    EXPECT_TRUE(messages().empty());
}

// 505, -0.55582, -144.63035, -1168.76871, 230.97830, 434.95569, -203.97739, 665.93399.
TEST_F(NashWindowTest, AMarginMayReachBelowZero) {
    EXPECT_EQ(result({"20", "1000", "300", "700"}, "1.5"),
              "4|505.0|-0.5558|-144.6303|-1168.7687|230.9783|434.9557|-203-.98 -  665 "
              ".93|665.934");
    EXPECT_EQ(sums(), "2020.0|-2.2233|-1594.56|1580400.0|1.64");
}

// 33 years: 13330.30303, -0.59622, 7611.23641, -9592.23786, 30249.25457, 2363.11343, 27886.14114,
// 32612.36801; the two largest flows are the same, with a rank each.
TEST_F(NashWindowTest, TheFoxRiver) {
    loadFile(samplePath("fox_wrightstown.Q").string());
    calculate("100");
    EXPECT_EQ(rowText("grddis", 1),
              "33|13330.303|-0.5962|7611.2364|-9592.2379|30249.2546|2363.1134| 27886 .14 -  32612 "
              ".37|32612.368");
    EXPECT_EQ(sums(), "439900.0|-19.6752|-337502.71|6637450000.0|19.57");
    EXPECT_EQ(rowText("grdTablaQX", 1), "1|21300.0|34.0|-1.8872|-40197.96|453690000.0|3.5616");
    EXPECT_EQ(rowText("grdTablaQX", 2), "2|21300.0|17.0|-1.5796|-33644.77|453690000.0|2.495");
    EXPECT_EQ(rowText("grdTablaQX", 33), "33|3100.0|1.0303|0.1851|573.84|9610000.0|0.0343");
}

TEST_F(NashWindowTest, FewerYearsLeaveNoRowsOfMore) {
    result(fivePeaks(), "50");
    for (int i = 0; i < 2; ++i) {
        cell("grdt", 1, 1);
        click("mnuEditEliminar");
    }
    click("bCalcular");
    EXPECT_EQ(cellText("grddis", 1, 0), "3");
    EXPECT_EQ(cellText("grdTablaQX", 3, 0), "3");
    EXPECT_EQ(rowText("grdTablaQX", 4), "||||||");
    EXPECT_EQ(rowText("grdTablaQX", 5), "||||||");
    EXPECT_EQ(tableOf(form).Rows(), 300);
}

// ln 1 has no logarithm of its own; at 1 the division has none.
TEST_F(NashWindowTest, APeriodOfOneYearIsInadequate) {
    values(fivePeaks());
    for (const char* T : {"1", "0.99", "1e300"}) {
        calculate(T);
        expectMessage(datosInadecuados);
    }
    EXPECT_EQ(sums(), "||||") << "the period comes first";
    calculate("1.0001");
    EXPECT_TRUE(messages().empty());
}

// X = -0.75426 and -0.32137 of T = 3 and 1.5, the sum of the squares 0.67219; the sums stand before
// the margin fails.
TEST_F(NashWindowTest, TwoYearsFillTheSumsAlone) {
    values({"20", "40"});
    calculate("50");
    expectMessage(datosInadecuados);
    EXPECT_EQ(sums(), "60.0|-1.0756|-36.6|2000.0|0.67");
    EXPECT_EQ(rowText("grddis", 1), "||||||||");
    EXPECT_EQ(rowText("grdTablaQX", 1), "||||||");
}

// Of equal flows the slope is 0, and so is the margin where the sums are exact; X of T = 4, 2 and
// 4/3: -0.90330, -0.52139 and -0.22036, their mean -0.54835. Of 33.3 rounding leaves a root of a
// negative.
TEST_F(NashWindowTest, EqualFlowsHaveNoMarginOrFailByRounding) {
    EXPECT_EQ(result({"10", "10", "10"}, "10"),
              "3|10.0|-0.5484|10.0|0.0|10.0|0.0| 10 0 -  10 0|10.0");
    click("bLimpiar");
    values({"33.3", "33.3", "33.3"});
    calculate("10");
    expectMessage(datosInadecuados);
    EXPECT_EQ(sums(), "99.9|-1.6451|-54.78|3326.67|1.14");
    EXPECT_EQ(rowText("grddis", 1), "||||||||");
}

// T = 2: X = -0.52139, X^2 = 0.27185.
TEST_F(NashWindowTest, OneYearFillsTheSumsAlone) {
    values({"20"});
    calculate("50");
    expectMessage(datosInadecuados);
    EXPECT_EQ(sums(), "20.0|-0.5214|-10.43|400.0|0.27");
    EXPECT_EQ(rowText("grddis", 1), "||||||||");
}

TEST_F(NashWindowTest, NoYearsFillNothing) {
    calculate("50");
    expectMessage(datosInadecuados);
    EXPECT_EQ(sums(), "||||");
}

TEST_F(NashWindowTest, AFailureLeavesTheResultsOfBefore) {
    result(fivePeaks(), "50");
    rows({{"1e200"}});
    click("bCalcular");
    expectMessage(datosInadecuados);
    EXPECT_EQ(sums(), "1000.0|-2.8073|-682.36|225000.0|2.17");
    EXPECT_EQ(cellText("grddis", 1, 8), "587.0153");
    EXPECT_EQ(cellText("grdTablaQX", 5, 0), "5");
}

class NashManyYearsTest : public NashWindowTest {
protected:
    /// 1, 2, 3 ... as peaks since the year 1.
    void loadYears(int count) {
        std::vector<float> singles;
        for (int i = 1; i <= count; ++i)
            singles.push_back(static_cast<float>(i));
        singles.push_back(1);
        writeSingles(file("years.Q"), singles);
        loadFile(file("years.Q"));
        calculate("100");
    }
};

TEST_F(NashManyYearsTest, TheTableHolds299) {
    loadYears(299);
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(cellText("grddis", 1, 0), "299");
    EXPECT_EQ(cellText("grdTablaQX", 1, 1), "299.0");
    EXPECT_EQ(cellText("grdTablaQX", 299, 0), "299");
    EXPECT_EQ(cellText("grdTablaQX", 299, 1), "1.0");
}

// The mean of 1 to 300 is 150.5.
TEST_F(NashManyYearsTest, OneMoreIsToldBehindTheResults) {
    loadYears(300);
    expectMessage(datosInadecuados);
    EXPECT_EQ(cellText("grddis", 1, 0), "300");
    EXPECT_EQ(cellText("grddis", 1, 1), "150.5");
    EXPECT_EQ(text("txtSQ"), "45150.0");
    EXPECT_EQ(cellText("grdTablaQX", 299, 0), "299");
    EXPECT_EQ(cellText("grdTablaQX", 299, 1), "2.0");
    EXPECT_FALSE(platform.ending.has_value());
}

TEST_F(NashWindowTest, ClearingAndLoadingEmptyTableAndSums) {
    result(fivePeaks(), "50");
    click("bAccesar");
    EXPECT_EQ(sums(), "||||");
    EXPECT_EQ(rowText("grdTablaQX", 1), "||||||");
    EXPECT_EQ(text("txtTdato"), "50");
    result(fivePeaks(), "50");
    click("bLimpiar");
    EXPECT_EQ(sums(), "||||");
    EXPECT_EQ(rowText("grdTablaQX", 0), "m|Q|T|X|Q*X|Q^2|X^2");
    EXPECT_EQ(rowText("grdTablaQX", 5), "||||||");
}

const std::string head =
    "Resultados\n\n"
    "Cálculo del caudal de diseño utilizando el método estadístico propuesto por Nash\n\n\n"
    "Serie de datos Q:\n"
    "----------------------------------------\n"
    " Año\t\t Q\t\t\n"
    "----------------------------------------\n";

TEST_F(NashWindowTest, TheReportTellsPeaksAndResults) {
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
                            rule(100) +
                            "     Número de años disponibles: 5\n"
                            "                         Qm:                 200.0\n"
                            "                                    Xm:      -0.5615\n"
                            "                            a:               85.4835\n"
                            "                            b:               -203.9593\n"
                            "             Q máximo:                   504.9882\n"
                            "               Delta Q:                    82.0271\n"
                            "          Intervalo variación Q:       422 .96 -  587 .02\n"
                            "El caudal de diseño con el método estadístico propuesto por Nash,\n"
                            "para un período de retorno de 50 años es: 587.0153 m3/s\n" +
                            rule(100));
    EXPECT_EQ(program.variables.contadorLineas, 5);
    EXPECT_TRUE(messages().empty());
}

TEST_F(NashWindowTest, TheReportOfAnEmptyWindowHasEmptyResults) {
    click("bReporte");
    EXPECT_EQ(report(), head + rule(40) + "\nResultados de los cálculos:\n" + rule(100) +
                            "     Número de años disponibles: \n"
                            "                         Qm:                 \n"
                            "                                    Xm:      \n"
                            "                            a:               \n"
                            "                            b:               \n"
                            "             Q máximo:                   \n"
                            "               Delta Q:                    \n"
                            "          Intervalo variación Q:      \n"
                            "El caudal de diseño con el método estadístico propuesto por Nash,\n"
                            "para un período de retorno de  años es:  m3/s\n" +
                            rule(100));
    EXPECT_TRUE(messages().empty());
}

} // namespace
} // namespace caudalera
