// Empty fields of the Penman window, and what a run leaves to the next one.

#include "tests/evapotranspiration/PenmanTest.h"

#include <utility>
#include <vector>

namespace caudalera {
namespace {

const std::vector<std::pair<std::string, std::string>> emptyMessages = {
    {"txtLatitud", "Ingresar un valor adecuado para la latitud"},
    {"txth", "Ingresar un valor adecuado para la altitud"},
    {"txtT", "Ingresar un valor adecuado para la temperatura"},
    {"txtHRmed", "Ingresar un valor adecuado para la humedad relativa media"},
    {"txtHRmax", "Ingresar un valor adecuado para la humedad relativa máxima"},
    {"txtUz", "Ingresar un valor adecuado para la velocidad del viento"},
    {"txtHz", "Ingresar un valor adecuado para la altura de medición del viento"},
    {"txtRVdVn", "Ingresar un valor adecuado para la relación de velocidades del viento Vd/Vn"},
    {"txtnp", "Ingresar un valor adecuado para el número de horas de insolación solar real"},
};

Message told(const std::string& text) {
    return {text, "Mensaje de error", Icon::information};
}

TEST_F(PenmanTest, TellsEachEmptyFieldAndFocusesItButGoesOn) {
    for (const auto& [field, message] : emptyMessages) {
        if (field == "txtHz")
            continue;
        fill({{field, ""}});
        for (const char* result : {"txtRa", "txtETo"})
            enter(result, "");
        click("bCalcular");
        EXPECT_EQ(messages(), std::vector{told(message)}) << field;
        EXPECT_EQ(focus(), field);
        EXPECT_NE(text("txtRa"), "") << field;
        EXPECT_NE(text("txtETo"), "") << field;
    }
}

TEST_F(PenmanTest, TellsAllEmptyFieldsInARowAndEndsOnTheHeightOfTheWind) {
    enter("txtLatitud", "");
    click("bCalcular");
    std::vector<Message> all;
    for (const auto& [field, message] : emptyMessages)
        all.push_back(told(message));
    EXPECT_EQ(messages(), all);
    EXPECT_EQ(focus(), "txtnp");
    // ln(67.8 x 0 - 5.42).
    EXPECT_TRUE(fatal(5));
}

// All 0 but the height of the wind. January on the equator: Ra = 14.94685 (916.732 / 58.98757 x
// cos(0.3656) / 0.97104), Rs = Ra / 4, ea = 6.108 (0 degrees), ed = 0, f(u) = 0.27, f(t) = 273.16^4
// x 4.9e-9 / 2.47 = 11.04505, Rn1 = f(t) x 0.34 x 0.1 = 0.37553, Rn = 2.80253 - 0.37553 = 2.427.
// Slope = 4098 x 6.108 / 237.3^2 = 0.444498, gamma = 0.016286 x 101.3 / 2.501 = 0.659643,
// w = 0.402577: radiation term 0.97705, advection 0.597423 x 0.27 x 6.108 = 0.98525; c = 0.892,
// ETo = 0.892 x 1.9623 = 1.75037.
TEST_F(PenmanTest, TakesEmptyFieldsAsZero) {
    enter("txtLatitud", "");
    enter("txtHz", "2");
    click("bCalcular");
    EXPECT_EQ(messages().size(), 8U);
    EXPECT_EQ(focus(), "txtnp");
    expectTexts({{"txtRa", "14.95"},
                 {"txtRnpNg", "0.0"},
                 {"txtea", "6.11"},
                 {"txted", "0.0"},
                 {"txtw", "0.4"},
                 {"txtfu", "0.27"},
                 {"txtft", "11.05"},
                 {"txtRn1", "0.38"},
                 {"txtRn", "2.43"},
                 {"txtC", "0.89"},
                 {"txtRadiacion", "0.98"},
                 {"txtAdveccion", "0.99"},
                 {"txtETo", "1.75"}});
}

TEST_F(PenmanTest, ABlankIsNoEmptyField) {
    fill({{"txth", " "}});
    click("bCalcular");
    EXPECT_TRUE(messages().empty());
}

// ea at 20 degrees is 23.38 mbar (FAO Irrigation and Drainage Paper 56: 2.338 kPa), at 0 degrees
// 6.108.
TEST_F(PenmanTest, AnEmptyTemperatureKeepsThatOfTheLastRun) {
    fill({{"txtT", ""}});
    click("bCalcular");
    EXPECT_EQ(text("txtea"), "6.11");
    enter("txtT", "20");
    click("bCalcular");
    EXPECT_EQ(text("txtea"), "23.38");
    enter("txtT", "");
    messages();
    click("bCalcular");
    EXPECT_EQ(messages().size(), 1U);
    EXPECT_EQ(text("txtea"), "23.38");
}

TEST_F(PenmanTest, TheTemperatureOutlivesLimpiar) {
    fill({{"txtT", "20"}});
    click("bCalcular");
    click("bLimpiar");
    fill({{"txtT", ""}});
    click("bCalcular");
    EXPECT_EQ(text("txtea"), "23.38");
}

TEST_F(PenmanTest, ATemperatureThatIsNoNumberIsZeroAndNotThatOfTheLastRun) {
    fill({{"txtT", "20"}});
    click("bCalcular");
    enter("txtT", "abc");
    click("bCalcular");
    EXPECT_EQ(text("txtea"), "6.11");
}

// Ra on the equator: 13.85 in June, 14.95 in January (see the calculation tests).
TEST_F(PenmanTest, AMonthThatIsNoneKeepsThatOfTheLastRun) {
    fill({{"txtLatitud", "0"}});
    choose("cobMes", "Junio");
    click("bCalcular");
    EXPECT_EQ(text("txtRa"), "13.85");
    choose("cobMes", "enero");
    click("bCalcular");
    EXPECT_EQ(text("txtRa"), "13.85");
    choose("cobMes", "Septiembre");
    click("bCalcular");
    EXPECT_EQ(text("txtRa"), "13.85");
    choose("cobMes", "Enero");
    click("bCalcular");
    EXPECT_EQ(text("txtRa"), "14.95");
    EXPECT_TRUE(messages().empty());
}

TEST_F(PenmanTest, AMonthThatIsNoneOnAFirstRunEndsTheProgramOnceAllIsRead) {
    enter("txtLatitud", "");
    choose("cobMes", "");
    click("bCalcular");
    // All nine fields are empty and have their messages first; month 0 then has no declination.
    const auto shown = messages();
    ASSERT_EQ(shown.size(), 9U);
    EXPECT_EQ(shown.front(), told("Ingresar un valor adecuado para la latitud"));
    EXPECT_EQ(shown.back(), told("Ingresar un valor adecuado para el número de horas de "
                                 "insolación solar real"));
    EXPECT_TRUE(fatal(9));
}

TEST_F(PenmanTest, AWindowOpenedAnewRemembersNothing) {
    fill({{"txtT", "20"}});
    click("bCalcular");
    program.close(window("frmPenman"));
    open("frmPenman");
    EXPECT_EQ(text("txtLatitud"), "10");
    fill({{"txtT", ""}});
    click("bCalcular");
    EXPECT_EQ(text("txtea"), "6.11");
}

} // namespace
} // namespace caudalera
