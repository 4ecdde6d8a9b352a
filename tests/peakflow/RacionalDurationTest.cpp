// Duration and return period of the third tab: the given duration, the concentration time, what a
// missing value stops and what it does not.

#include "tests/peakflow/RacionalTest.h"

namespace caudalera {
namespace {

constexpr const char* faltaL = "Ingresar un valor adecuado para la distancia L";
constexpr const char* faltaH = "Ingresar un valor adecuado para el desnivel H";
constexpr const char* faltaT = "Ingresar un valor adecuado para el período de retorno T";

TEST_F(RacionalTest, AKnownDurationHasAFieldOfItsOwn) {
    enter("txtDuracionAdi", "7");
    click("optDuracionAdiSi");
    EXPECT_TRUE(shown("txtDuracionAdi"));
    EXPECT_TRUE(shown("lblDuracionAdi"));
    EXPECT_EQ(text("txtDuracionAdi"), "");
    EXPECT_EQ(focus(), "txtDuracionAdi");
    enter("txtDuracionAdi", "30");
    click("optDuracionAdiNo");
    EXPECT_FALSE(shown("txtDuracionAdi"));
    EXPECT_FALSE(shown("lblDuracionAdi"));
    EXPECT_EQ(text("txtDuracionAdi"), "30");
}

// A click on the option that is set runs its event again.
TEST_F(RacionalTest, ChoosingTheKnownDurationAgainEmptiesIt) {
    duration("30", "10");
    click("optDuracionAdiSi");
    EXPECT_EQ(text("txtDuracionAdi"), "");
}

TEST_F(RacionalTest, WithoutASourceTheDurationAndTheOldIntensityAreWritten) {
    EXPECT_FALSE(form.calculado());
    duration("30.255", "10");
    click("bcalcularI");
    EXPECT_EQ(results(), "30.26|0.0|0.0");
    EXPECT_TRUE(form.calculado());
    EXPECT_TRUE(messages().empty());
}

// 0.0195 (1000^3 / 50)^0.385 = 12.61627...
TEST_F(RacionalTest, AnUnknownDurationIsTheConcentrationTime) {
    enter("txtLi", "1000");
    enter("txtHi", "50");
    enter("txtTi", "10");
    click("bcalcularI");
    EXPECT_EQ(results(), "12.62|0.0|0.0");
}

// Singles lie 2 apart at 2^24 = 16777216, so 0.9 m more is the same length. In doubles the time,
// some 4.3 million minutes, would grow by 0.9 / 2^24 * 1.155 of it, a quarter of a minute.
TEST_F(RacionalTest, LengthAndDropAreHeldInSingles) {
    enter("txtHi", "1");
    enter("txtTi", "10");
    enter("txtLi", "16777216");
    click("bcalcularI");
    const std::string first = text("txttci");
    enter("txtLi", "16777216.9");
    click("bcalcularI");
    EXPECT_EQ(text("txttci"), first);
    // A drop below the single range is 0, one past it a failure without a message.
    enter("txtHi", "1e-50");
    click("bcalcularI");
    expectMessage({"El valor para el desnivel H no puede ser 0", "Error"});
    enter("txtHi", "1e39");
    enter("txtLi", "1");
    click("bcalcularI");
    EXPECT_EQ(text("txttci"), "0.0");
    EXPECT_TRUE(messages().empty());
}

TEST_F(RacionalTest, AMissingKnownDurationStops) {
    click("optDuracionAdiSi");
    click("bcalcularI");
    expectMessage({"Ingresar un valor adecuado para la duración D ó tc", "Error"});
    EXPECT_EQ(focus(), "txtDuracionAdi");
    EXPECT_EQ(results(), "||");
    EXPECT_FALSE(form.calculado());
}

// Without a source nothing needs a logarithm, so the command goes on to its end with D = 0.
TEST_F(RacionalTest, AFaultOfTheConcentrationTimeShowsItsFirstMessageAndGoesOn) {
    enter("txtTi", "10");
    click("bcalcularI");
    expectMessage({faltaL, "Error"});
    EXPECT_EQ(focus(), "txtLi");
    EXPECT_EQ(results(), "0.0|0.0|0.0");
    EXPECT_TRUE(form.calculado());

    enter("txtLi", "1000");
    click("bcalcularI");
    expectMessage({faltaH, "Error"});
    EXPECT_EQ(focus(), "txtHi");

    enter("txtHi", "0");
    click("bcalcularI");
    expectMessage({"El valor para el desnivel H no puede ser 0", "Error"});
    EXPECT_EQ(text("txtHi"), "");
    EXPECT_EQ(focus(), "txtHi");
    EXPECT_EQ(results(), "0.0|0.0|0.0");
}

TEST_F(RacionalTest, AMissingReturnPeriodShowsItsMessageAndGoesOn) {
    duration("30", "");
    click("bcalcularI");
    expectMessage({faltaT, "Error"});
    EXPECT_EQ(focus(), "txtTi");
    EXPECT_EQ(results(), "30.0|0.0|0.0");
}

TEST_F(RacionalTest, BothMessagesComeInSequenceAndThenTheLogarithmFails) {
    click("optProvincias");
    click("optSanJose");
    click("bcalcularI");
    const auto seen = messages();
    ASSERT_EQ(seen.size(), 2U);
    EXPECT_EQ(seen[0], (Message{faltaL, "Error", Icon::none}));
    EXPECT_EQ(seen[1], (Message{faltaT, "Error", Icon::none}));
    EXPECT_EQ(focus(), "txtTi");
    EXPECT_EQ(results(), "||");
    EXPECT_FALSE(form.calculado());
}

// L^3 / H below 0 has no fractional power.
TEST_F(RacionalTest, ANegativeDropFailsWithoutAMessage) {
    enter("txtLi", "1000");
    enter("txtHi", "-50");
    enter("txtTi", "10");
    click("bcalcularI");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(results(), "||");
    EXPECT_FALSE(platform.ending.has_value());
}

TEST_F(RacionalTest, ClearingTheIntensityTabEmptiesIt) {
    tab(2);
    click("optProvincias");
    click("optSanJose");
    enter("txtLi", "1000");
    enter("txtHi", "50");
    duration("30", "50");
    click("bcalcularI");
    const std::string handedOn = text("txtiq");
    click("bLimpiar");
    EXPECT_TRUE(checked("optDuracionAdiNo"));
    EXPECT_FALSE(shown("txtDuracionAdi"));
    EXPECT_FALSE(shown("lblDuracionAdi"));
    for (const char* name : {"txtLi", "txtHi", "txtTi", "txttci", "txtImaxi"})
        EXPECT_EQ(text(name), "") << name;
    EXPECT_EQ(focus(), "txtLi");
    EXPECT_EQ(text("txtiq"), handedOn);
    EXPECT_TRUE(checked("optProvincias"));
    EXPECT_TRUE(checked("optSanJose"));
    EXPECT_TRUE(shown("fraProvincias"));
    EXPECT_TRUE(form.calculado());
}

} // namespace
} // namespace caudalera
