// Fit and evaluation of the equation of the largest intensity, with its refusals and failures.

#include "tests/precipitation/IntensidadMaxTest.h"

namespace caudalera {
namespace {

// T = 100, D = 625: 400 * 10 / 5 = 800.
TEST_F(IntensidadMaxTest, FindsTheSurfaceThatTheTriosLieOn) {
    calculate(triosDeLaSuperficie, "100", "625");
    EXPECT_EQ(equation(), "Imáx = 400.00*T^(0.500) *D^(-0.2500)|1.00|1.00|0.00");
    EXPECT_EQ(text("txtvI"), "800.0");
    EXPECT_TRUE(form.calculado());
    EXPECT_TRUE(messages().empty());
}

TEST_F(IntensidadMaxTest, ShowsEquationAndQualityOfTriosNearASurface) {
    calculate(cincoTrios, "25", "45");
    EXPECT_EQ(equation(), ecuacionDeCinco);
    EXPECT_EQ(text("txtvI"), "77.94");
}

// With ln T and ln D of -1 and 1 (values 1/e and e, 15 digits) and ln Imax = 1, 2, 4, 9 the
// equation of the logarithms is 4 + 2.5 x1 + 1.5 x2 and leaves 1, -1, -1, 1: R2 = 34 / 38 = 0.8947,
// its root 0.9459. Of Imax itself Se is 5123.0010, with 4 - 3 (40 digits). At T = D = 1 Imax is K =
// e^4.
TEST_F(IntensidadMaxTest, RIsOfTheLogarithmsAndSeOfTheIntensities) {
    const std::string low = "0.367879441171442";
    const std::string high = "2.71828182845905";
    // Typed as they stand: ENTER would cut them to eight decimals.
    rows({{"1", "1", "1"}, {"1", "1", "1"}, {"1", "1", "1"}, {"1", "1", "1"}});
    const std::vector<std::vector<std::string>> trios = {{low, low, "2.71828182845905"},
                                                         {low, high, "7.38905609893065"},
                                                         {high, low, "54.5981500331442"},
                                                         {high, high, "8103.08392757538"}};
    for (long row = 1; row <= 4; ++row) {
        for (long col = 1; col <= 3; ++col) {
            cell("grdt", row, col);
            type("grdt",
                 trios[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(col - 1)]);
            key("grdt", Key::Kind::down);
        }
    }
    design("1", "1");
    click("bCalcular");
    EXPECT_EQ(equation(), "Imáx = 54.5982*T^(2.500) *D^(1.500)|0.9459|0.8947|5123.0010");
    EXPECT_EQ(text("txtvI"), "54.60");
}

TEST_F(IntensidadMaxTest, TheIntensityHasOneOrTwoDecimals) {
    calculate(triosDeLaSuperficie, "2", "16");
    EXPECT_EQ(text("txtvI"), "282.84"); // 200 * sqrt(2)
    design("1", "160000");
    click("bCalcular");
    EXPECT_EQ(text("txtvI"), "20.0");
}

// 123456789 is 123456792 as a single. 400 * sqrt(T) is 4444444.478 of it and 4444444.424 of the
// double; with T = 2^40 400 * 2^20 / D^0.25 is 3979066.137 and 3979066.161.
TEST_F(IntensidadMaxTest, TheDesignIsHeldInSingles) {
    calculate(triosDeLaSuperficie, "123456789", "1");
    EXPECT_EQ(text("txtvI"), "4444444.48");
    design("1099511627776", "123456789");
    click("bCalcular");
    EXPECT_EQ(text("txtvI"), "3979066.14");
}

TEST_F(IntensidadMaxTest, ADesignValuePastTheSinglesIsTold) {
    calculate(triosDeLaSuperficie, "1e39", "16");
    expectMessage({mensajeDePotencial, ""});
    design("100", "1e39");
    click("bCalcular");
    expectMessage({mensajeDePotencial, ""});
    EXPECT_EQ(text("txtvI"), "");
    EXPECT_EQ(equation(), "|||");
    EXPECT_FALSE(form.calculado());
}

// 0^0.5 = 0; 0^-0.25 has no value.
TEST_F(IntensidadMaxTest, AReturnPeriodOfZeroIsTakenAndADurationOfZeroHasNoPower) {
    calculate(triosDeLaSuperficie, "0", "16");
    EXPECT_EQ(text("txtvI"), "0.0");
    EXPECT_EQ(equation(), "Imáx = 400.00*T^(0.500) *D^(-0.2500)|1.00|1.00|0.00");
    EXPECT_TRUE(messages().empty());
    design("4", "0");
    click("bCalcular");
    expectMessage({mensajeDePotencial, ""});
    EXPECT_EQ(text("txtvI"), "0.0");
}

TEST_F(IntensidadMaxTest, FewerThanFourTriosAreRefusedBeforeTheDesignIsLookedAt) {
    calculate(cincoTrios, "25", "45");
    click("bLimpiar");
    rows({cincoTrios[0], cincoTrios[1], cincoTrios[2]});
    cell("grdt", 1, 2);
    click("bCalcular");
    expectMessage({"Para el ajuste a la ecuación se requiere por lo menos cuatro tríos de datos",
                   "Error: número inadecuado de datos"});
    EXPECT_EQ(focus(), "grdt");
    EXPECT_EQ(form.grdt.Row(), 4);
    EXPECT_EQ(form.grdt.Col(), 1);
    EXPECT_EQ(equation(), "|||");
    EXPECT_EQ(text("txtvI"), "");
    EXPECT_TRUE(form.calculado());
}

TEST_F(IntensidadMaxTest, FourTriosAreEnough) {
    calculate({cincoTrios[0], cincoTrios[1], cincoTrios[2], cincoTrios[3]}, "25", "45");
    EXPECT_TRUE(messages().empty());
    EXPECT_TRUE(form.calculado());
}

TEST_F(IntensidadMaxTest, TheDesignIsAskedForReturnPeriodFirst) {
    rows(cincoTrios);
    click("bCalcular");
    expectMessage({"Ingresar un valor adecuado para el período de retorno T", "Error"});
    EXPECT_EQ(focus(), "txtvT");
    enter("txtvT", "25");
    click("bCalcular");
    expectMessage({"Ingresar un valor adecuado para la duración D", "Error"});
    EXPECT_EQ(focus(), "txtvD");
    EXPECT_EQ(text("txtvT"), "25");
    EXPECT_FALSE(form.calculado());
    EXPECT_EQ(equation(), "|||");
    enter("txtvT", "");
    enter("txtvD", "45");
    click("bCalcular");
    expectMessage({"Ingresar un valor adecuado para el período de retorno T", "Error"});
}

// ln 1 = 0 in every record leaves no pivot in the column of T.
TEST_F(IntensidadMaxTest, ASingularSystemIsToldAndWritesNothing) {
    calculate(cincoTrios, "25", "45");
    click("bLimpiar");
    calculate({{"1", "10", "90"}, {"1", "20", "70"}, {"1", "30", "60"}, {"1", "60", "40"}}, "5",
              "30");
    expectMessage({"El sistema que se origina tiene infinitas soluciones", "", Icon::error});
    EXPECT_EQ(equation(), "|||");
    EXPECT_EQ(text("txtvI"), "");
    EXPECT_FALSE(form.calculado());
}

// With one T in all records the system is singular but for rounding: 10 leaves a pivot, 7 leaves
// none. K and m are rounding then, the rest is the power regression on D: in 40 digits the power is
// -0.488248544068, R2 0.983496996578, Se with two degrees of freedom 5.16415541798 and I(30)
// 55.7677250121.
TEST_F(IntensidadMaxTest, OneReturnPeriodInAllRecordsIsSingularOnlyWherePivotsAreZero) {
    const auto records = [](const std::string& T) {
        return std::vector<std::vector<std::string>>{
            {T, "10", "90"}, {T, "20", "70"}, {T, "30", "60"}, {T, "60", "40"}, {T, "90", "31"}};
    };
    calculate(records("10"), "10", "30");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(cellText("grdecua", 1, 1), "0.9917");
    EXPECT_EQ(cellText("grdecua", 1, 2), "0.9835");
    EXPECT_EQ(cellText("grdecua", 1, 3), "5.1642");
    EXPECT_EQ(text("txtvI"), "55.77");
    click("bLimpiar");
    calculate(records("7"), "7", "30");
    expectMessage({"El sistema que se origina tiene infinitas soluciones", "", Icon::error});
    EXPECT_EQ(equation(), "|||");
}

// Neither T nor D tells anything of I: both powers and R2 are 0, K is Sqr(9 * 25), and of these
// values rounding leaves R2 below 0.
TEST_F(IntensidadMaxTest, AQualityBelowZeroFailsBehindTheIntensity) {
    calculate({{"2", "5", "9"}, {"2", "120", "25"}, {"10", "5", "25"}, {"10", "120", "9"}}, "7",
              "30");
    expectMessage({mensajeDePotencial, ""});
    EXPECT_EQ(text("txtvI"), "15.0");
    EXPECT_EQ(equation(), "|||");
    EXPECT_FALSE(form.calculado());
}

TEST_F(IntensidadMaxTest, ATrioOfZeroOrLessIsToldAndLeavesWhatIsShown) {
    calculate(cincoTrios, "25", "45");
    for (const auto& bad :
         {std::vector<std::string>{"0", "10", "90"}, {"5", "-10", "90"}, {"5", "10", "x"}}) {
        rows({bad});
        click("bCalcular");
        expectMessage({mensajeDePotencial, ""});
        cell("grdt", 6, 1);
        click("mnuEditEliminar");
        cell("grdt", 6, 1);
    }
    EXPECT_EQ(equation(), ecuacionDeCinco);
    EXPECT_EQ(text("txtvI"), "77.94");
}

// All ln Imax are 0: K = 1 and both powers 0, so Imáx is 1, and R2 is 0 / 0.
TEST_F(IntensidadMaxTest, TheIntensityIsShownBeforeItsQualityFails) {
    calculate(cincoTrios, "25", "45");
    click("bLimpiar");
    calculate({{"2", "10", "1"}, {"2", "60", "1"}, {"10", "10", "1"}, {"10", "60", "1"}}, "5",
              "30");
    expectMessage({mensajeDePotencial, ""});
    EXPECT_EQ(text("txtvI"), "1.0");
    EXPECT_EQ(equation(), "|||");
    EXPECT_FALSE(form.calculado());
}

} // namespace
} // namespace caudalera
