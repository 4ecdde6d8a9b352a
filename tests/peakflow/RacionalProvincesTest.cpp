// The third tab with the equation of a province.

#include "tests/peakflow/RacionalTest.h"

namespace caudalera {
namespace {

class RacionalProvincesTest : public RacionalTest {
protected:
    RacionalProvincesTest() { click("optProvincias"); }

    /// What the tab shows for a province.
    std::string intensity(const std::string& option, const std::string& D, const std::string& T) {
        duration(D, T);
        click(option);
        click("bcalcularI");
        return results();
    }
};

TEST_F(RacionalProvincesTest, ShowsTheProvincesAndHidesTheRecords) {
    EXPECT_TRUE(shown("fraProvincias"));
    for (const char* name :
         {"lbleti1i", "lbleti2i", "lbleti3i", "lblecuacioni", "txtecuacioni", "grdt"})
        EXPECT_FALSE(shown(name)) << name;
}

TEST_F(RacionalProvincesTest, DropsTheRecordsAndTheirEquation) {
    duration("625", "100");
    records(triosDeLaSuperficie);
    click("bcalcularI");
    EXPECT_TRUE(shown("txtecuacioni"));
    click("optProvincias");
    EXPECT_EQ(form.grdt.Rows(), 2);
    for (const char* name :
         {"lbleti1i", "lbleti2i", "lbleti3i", "lblecuacioni", "txtecuacioni", "grdt"})
        EXPECT_FALSE(shown(name)) << name;
}

// With D = 30 and T = 50, worked out apart in 40 digits (ln 30 = 3.4011973817, ln 50 =
// 3.9120230054, ln ln 30 = 1.2241275407):
// San José 10.8070854133 * ln 50 + 65.4154353475 = 107.6930; Puntarenas 24.9537444209 and
// 75.0338401333: 172.6535; Cartago 14.7444934181 and 60.0898410811: 117.7706; Limón 11.1145452510
// and 67.0069039796: 110.4873; Liberia 18.6253719728 and 78.3734259796: 151.2363; Alajuela
// 12.4954435758 and 78.1139248095: 126.9964.
TEST_F(RacionalProvincesTest, EachEquationGivesItsIntensity) {
    EXPECT_EQ(intensity("optSanJose", "30", "50"), "30.0|107.69|107.69");
    EXPECT_EQ(intensity("optPuntarenas", "30", "50"), "30.0|172.65|172.65");
    EXPECT_EQ(intensity("optCartago", "30", "50"), "30.0|117.77|117.77");
    EXPECT_EQ(intensity("optLimon", "30", "50"), "30.0|110.49|110.49");
    EXPECT_EQ(intensity("optLiberia", "30", "50"), "30.0|151.24|151.24");
    EXPECT_EQ(intensity("optAlajuela", "30", "50"), "30.0|127.0|127.0");
    EXPECT_TRUE(form.calculado());
    EXPECT_TRUE(messages().empty());
}

// tc = 12.6162753732 min, ln tc = 2.5349877: (20.3018 - 7.0766209...) ln 10 + (166.097 -
// 75.0401990...) = 121.5089020423.
TEST_F(RacionalProvincesTest, TakeTheConcentrationTimeToo) {
    enter("txtLi", "1000");
    enter("txtHi", "50");
    enter("txtTi", "10");
    click("optSanJose");
    click("bcalcularI");
    EXPECT_EQ(results(), "12.62|121.51|121.51");
}

// San José at 10 min: 13.8739495061 ln 200 + 97.9363365942 = 171.4449242050.
TEST_F(RacionalProvincesTest, TakeReturnPeriodsUpTo200) {
    EXPECT_EQ(intensity("optSanJose", "10", "200"), "10.0|171.44|171.44");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(intensity("optSanJose", "20", "200.001"), "10.0|171.44|171.44");
    EXPECT_EQ(messages().size(), 1U);
    EXPECT_EQ(intensity("optSanJose", "20", "200.5"), "10.0|171.44|171.44");
    expectMessage({"Para este método el período de retorno T no puede ser mayor de 200", "Error"});
    EXPECT_EQ(text("txtTi"), "");
    EXPECT_EQ(focus(), "txtTi");
}

// The limit stands before the equation: its message comes also with no province set.
TEST_F(RacionalProvincesTest, RefuseTheReturnPeriodBeforeTheProvinceCounts) {
    duration("20", "1000");
    click("bcalcularI");
    EXPECT_EQ(messages().size(), 1U);
    EXPECT_EQ(results(), "||");
    EXPECT_FALSE(form.calculado());
}

TEST_F(RacionalProvincesTest, WithoutAProvinceTheOldIntensityStays) {
    duration("20", "10");
    click("bcalcularI");
    EXPECT_EQ(results(), "20.0|0.0|0.0");
    intensity("optSanJose", "30", "50");
    // Choosing the records unsets the provinces.
    click("optRegistros");
    click("optProvincias");
    EXPECT_FALSE(checked("optSanJose"));
    enter("txtDuracionAdi", "45");
    click("bcalcularI");
    EXPECT_EQ(results(), "45.0|107.69|107.69");
    EXPECT_TRUE(messages().empty());
}

TEST_F(RacionalProvincesTest, ALogarithmOfZeroFailsSilently) {
    intensity("optSanJose", "30", "50");
    for (const auto& [D, T] : {std::pair{"0", "50"}, std::pair{"30", "0"}, std::pair{"abc", "50"},
                               std::pair{"-1", "50"}})
        EXPECT_EQ(intensity("optSanJose", D, T), "30.0|107.69|107.69") << D << ", " << T;
    EXPECT_TRUE(messages().empty());
    EXPECT_FALSE(platform.ending.has_value());
    EXPECT_TRUE(form.calculado());
}

// ln 1 = 0 has no logarithm; ln ln 2 = -0.3665129206 makes the first factor 51.6317205493, above
// its constant: 51.6317205493 ln 5 + 182.9980631233 = 266.0961116595.
TEST_F(RacionalProvincesTest, AlajuelaHasNoIntensityOfOneMinute) {
    EXPECT_EQ(intensity("optAlajuela", "1", "5"), "||");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(intensity("optAlajuela", "2", "5"), "2.0|266.10|266.10");
    EXPECT_EQ(intensity("optAlajuela", "0.9", "5"), "2.0|266.10|266.10");
    EXPECT_EQ(intensity("optCartago", "1", "1"), "1.0|156.89|156.89");
}

TEST_F(RacionalProvincesTest, ANewIntensityLeavesTheFlow) {
    enter("txtcq", "0.5");
    enter("txtaq", "36");
    enter("txtiq", "100");
    click("bCalcular");
    intensity("optSanJose", "30", "50");
    EXPECT_EQ(text("txtiq"), "107.69");
    EXPECT_EQ(text("txtqmax"), "5.0");
    // 0.5 * 107.69 * 36 / 360 = 5.3845.
    click("bCalcular");
    EXPECT_EQ(text("txtqmax"), "5.385");
}

} // namespace
} // namespace caudalera
