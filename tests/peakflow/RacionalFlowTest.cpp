// The flow Q = C I A / 360 of the first tab.

#include "tests/peakflow/RacionalTest.h"

namespace caudalera {
namespace {

class RacionalFlowTest : public RacionalTest {
protected:
    std::string flow(const std::string& C, const std::string& I, const std::string& A) {
        enter("txtcq", C);
        enter("txtiq", I);
        enter("txtaq", A);
        click("bCalcular");
        return text("txtqmax");
    }
};

// 0.5 * 100 * 36 / 360 = 5 exactly. 0.3 * 107.69 * 12.5 / 360 = 403.8375 / 360 = 1.1217708...
// 0.25 * 6 * 1 / 360 = 1.5 / 360 = 0.0041666...; 1.5 * 1 * 120 / 360 = 0.5. In the
// last one, 10^6, every digit of the divisor counts.
TEST_F(RacionalFlowTest, IsShownWithOneToThreeDecimals) {
    EXPECT_EQ(flow("0.5", "100", "36"), "5.0");
    EXPECT_EQ(flow("0.3", "107.69", "12.5"), "1.122");
    EXPECT_EQ(flow("0.25", "6", "1"), "0.004");
    EXPECT_EQ(flow("1.5", "1", "120"), "0.50");
    EXPECT_EQ(flow("1", "3600", "100000"), "1000000.0");
    EXPECT_TRUE(messages().empty());
}

TEST_F(RacionalFlowTest, NeedsNeitherOfTheOtherTabs) {
    EXPECT_EQ(flow("1", "360", "2"), "2.0");
    EXPECT_EQ(text("txtImaxi"), "");
    EXPECT_EQ(text("txtCponderado"), "");
}

TEST_F(RacionalFlowTest, ATextThatIsNoNumberIsZero) {
    EXPECT_EQ(flow("abc", "100", "36"), "0.0");
    EXPECT_EQ(flow("-0.5", "100", "36"), "-5.0");
    EXPECT_TRUE(messages().empty());
}

TEST_F(RacionalFlowTest, AsksForTheFirstMissingValueOnly) {
    const std::string title = "Error por dato inadecuado";
    click("bCalcular");
    expectMessage({"Ingresar un valor adecuado para C", title});
    EXPECT_EQ(focus(), "txtcq");
    enter("txtcq", "0.5");
    click("bCalcular");
    expectMessage({"Ingresar un valor adecuado para el área", title});
    EXPECT_EQ(focus(), "txtaq");
    enter("txtaq", "36");
    click("bCalcular");
    expectMessage({"Ingresar un valor adecuado para la Imáx", title});
    EXPECT_EQ(focus(), "txtiq");
    EXPECT_EQ(text("txtqmax"), "");
}

TEST_F(RacionalFlowTest, ARefusalLeavesTheOldFlow) {
    flow("0.5", "100", "36");
    enter("txtaq", "");
    click("bCalcular");
    EXPECT_EQ(text("txtqmax"), "5.0");
    EXPECT_EQ(text("txtcq"), "0.5");
}

TEST_F(RacionalFlowTest, ANumberPastTheRangeIsFatal) {
    flow("1e200", "1e200", "1");
    EXPECT_TRUE(fatal(6));
}

TEST_F(RacionalFlowTest, TheLocalesSeparatorStandsInTheFlow) {
    platform.separator = ",";
    EXPECT_EQ(flow("0.3", "107.69", "12.5"), "1,122");
}

} // namespace
} // namespace caudalera
