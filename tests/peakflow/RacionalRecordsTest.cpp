// The third tab with the power fit to the user's records.

#include "tests/peakflow/RacionalTest.h"

namespace caudalera {
namespace {

constexpr const char* faltanTrios =
    "Para el ajuste a la ecuación se requiere por lo menos cuatro tríos de datos";

TEST_F(RacionalTest, TheRecordsShowTheirGridAndHideTheProvinces) {
    click("optProvincias");
    click("optLimon");
    click("optRegistros");
    EXPECT_FALSE(shown("fraProvincias"));
    for (const char* name :
         {"optSanJose", "optPuntarenas", "optCartago", "optLimon", "optLiberia", "optAlajuela"})
        EXPECT_FALSE(checked(name)) << name;
    for (const char* name : {"grdt", "lbleti1i", "lbleti2i", "lbleti3i"})
        EXPECT_TRUE(shown(name)) << name;
    EXPECT_FALSE(shown("txtecuacioni"));
    rows({{"4", "16", "400"}});
    EXPECT_EQ(rowText("grdt", 1), " 1|4.0|16.0|400.0");
    click("optRegistros");
    EXPECT_EQ(form.grdt.Rows(), 2);
}

// The records lie on 400 T^0.5 D^-0.25. T = 100, D = 625: 400 * 10 / 5 = 800.
TEST_F(RacionalTest, TheFitGivesIntensityAndEquation) {
    duration("625", "100");
    records(triosDeLaSuperficie);
    click("bcalcularI");
    EXPECT_EQ(results(), "625.0|800.0|800.0");
    EXPECT_EQ(text("txtecuacioni"), "Imáx = 400.00*T^(0.500) *D^(-0.2500)");
    EXPECT_TRUE(shown("lblecuacioni"));
    EXPECT_TRUE(shown("txtecuacioni"));
    EXPECT_TRUE(form.calculado());
    EXPECT_TRUE(messages().empty());
}

// T = 10000, D = 16: 400 * 100 / 2 = 20000.
TEST_F(RacionalTest, TheFitTakesAnyReturnPeriod) {
    duration("16", "10000");
    records(triosDeLaSuperficie);
    click("bcalcularI");
    EXPECT_EQ(results(), "16.0|20000.0|20000.0");
    EXPECT_TRUE(messages().empty());
}

// 0^0.5 = 0, so a missing T goes on to an intensity of 0.
TEST_F(RacionalTest, TheFitTakesAReturnPeriodOfZero) {
    duration("16", "");
    records(triosDeLaSuperficie);
    click("bcalcularI");
    expectMessage({"Ingresar un valor adecuado para el período de retorno T", "Error"});
    EXPECT_EQ(results(), "16.0|0.0|0.0");
}

TEST_F(RacionalTest, FewerThanFourTriosKeepTheIntensityAndGoOn) {
    click("optProvincias");
    click("optSanJose");
    duration("30", "50");
    click("bcalcularI");
    EXPECT_EQ(results(), "30.0|107.69|107.69");
    records({triosDeLaSuperficie[0], triosDeLaSuperficie[1], triosDeLaSuperficie[2]});
    cell("grdt", 1, 2);
    enter("txtDuracionAdi", "45");
    click("bcalcularI");
    expectMessage({faltanTrios, "", Icon::error});
    EXPECT_EQ(focus(), "grdt");
    EXPECT_EQ(form.grdt.Row(), 4);
    EXPECT_EQ(form.grdt.Col(), 1);
    EXPECT_EQ(cellText("grdt", 4, 0), "[->]");
    EXPECT_EQ(results(), "45.0|107.69|107.69");
    EXPECT_FALSE(shown("txtecuacioni"));
    EXPECT_TRUE(form.calculado());
}

TEST_F(RacionalTest, NoTrioAtAllIsTooFew) {
    duration("30", "500");
    click("optRegistros");
    click("bcalcularI");
    expectMessage({faltanTrios, "", Icon::error});
    EXPECT_EQ(form.grdt.Row(), 1);
    EXPECT_EQ(results(), "30.0|0.0|0.0");
}

// ln 1 = 0 in every record leaves no pivot in the column of T.
TEST_F(RacionalTest, ASingularSystemWritesNothing) {
    duration("30", "50");
    records({{"1", "10", "90"}, {"1", "20", "70"}, {"1", "30", "60"}, {"1", "60", "40"}});
    click("bcalcularI");
    expectMessage({"El sistema que se origina tiene infinitas soluciones", "", Icon::error});
    EXPECT_EQ(results(), "||");
    EXPECT_FALSE(shown("lblecuacioni"));
    EXPECT_FALSE(form.calculado());
}

TEST_F(RacionalTest, ARecordOfZeroOrLessIsToldAndWritesNothing) {
    duration("30", "50");
    for (const auto& bad :
         {std::vector<std::string>{"0", "10", "90"}, {"5", "-10", "90"}, {"5", "10", "x"}}) {
        auto trios = triosDeLaSuperficie;
        trios.push_back(bad);
        records(trios);
        click("bcalcularI");
        expectMessage({mensajeDePotencial, ""});
    }
    EXPECT_EQ(results(), "||");
    EXPECT_FALSE(shown("txtecuacioni"));
    EXPECT_FALSE(form.calculado());
}

// K = 400, m = -0.5, n = -0.25: 400/2/2, 400/2/4, 400/4/2, 400/4/4. 0^-0.5 has no value.
TEST_F(RacionalTest, AFailureOfTheEvaluationShowsNoEquation) {
    duration("16", "0");
    records({{"4", "16", "100"}, {"4", "256", "50"}, {"16", "16", "50"}, {"16", "256", "25"}});
    click("bcalcularI");
    expectMessage({mensajeDePotencial, ""});
    EXPECT_EQ(results(), "||");
    EXPECT_FALSE(shown("txtecuacioni"));
    // T = 4, D = 16 lies on the first record.
    enter("txtTi", "4");
    click("bcalcularI");
    EXPECT_EQ(results(), "16.0|100.0|100.0");
    EXPECT_EQ(text("txtecuacioni"), "Imáx = 400.00*T^(-0.500) *D^(-0.2500)");
}

// The trap holds the whole command: a length past the single range fails before the records count.
TEST_F(RacionalTest, AFailureOfTheDurationIsToldWithRecords) {
    click("optRegistros");
    enter("txtLi", "1e39");
    enter("txtHi", "50");
    enter("txtTi", "10");
    click("bcalcularI");
    expectMessage({mensajeDePotencial, ""});
    EXPECT_EQ(results(), "||");
}

TEST_F(RacionalTest, ATextInACellReadsAsItsLeadingNumber) {
    duration("625", "100");
    records(triosDeLaSuperficie);
    cell("grdt", 1, 3);
    type("grdt", "400 mm/hr");
    key("grdt", Key::Kind::down);
    EXPECT_EQ(cellText("grdt", 1, 3), "400 mm/hr");
    click("bcalcularI");
    EXPECT_EQ(results(), "625.0|800.0|800.0");
}

TEST_F(RacionalTest, TheEditMenuWorksOnTheRecords) {
    duration("625", "100");
    auto trios = triosDeLaSuperficie;
    trios.insert(trios.begin(), {"0", "0", "0"});
    records(trios);
    cell("grdt", 1, 1);
    program.rightClick(form.grdt);
    click("mnuEditEliminar");
    EXPECT_EQ(rowText("grdt", 1), " 1|4.0|16.0|400.0");
    click("bcalcularI");
    EXPECT_EQ(text("txtImaxi"), "800.0");
}

TEST_F(RacionalTest, ClearingTheTabEmptiesTheRecords) {
    tab(2);
    duration("625", "100");
    records(triosDeLaSuperficie);
    click("bcalcularI");
    click("bLimpiar");
    EXPECT_EQ(form.grdt.Rows(), 2);
    EXPECT_TRUE(shown("grdt"));
    EXPECT_TRUE(shown("lbleti1i"));
    EXPECT_FALSE(shown("lblecuacioni"));
    EXPECT_FALSE(shown("txtecuacioni"));
    for (const char* name : {"txtLi", "txtHi", "txtTi", "txttci", "txtImaxi"})
        EXPECT_EQ(text(name), "") << name;
    EXPECT_EQ(text("txtiq"), "800.0");
    EXPECT_TRUE(checked("optRegistros"));
    EXPECT_TRUE(checked("optDuracionAdiNo"));
    EXPECT_EQ(focus(), "txtLi");
}

} // namespace
} // namespace caudalera
