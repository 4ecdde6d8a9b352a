// bCalcular where a run-time failure stops it: its one message, and what stays.

#include "tests/fitting/DisNormalTest.h"

namespace caudalera::testing {
namespace {

class DisNormalFailure : public DisNormalTest {};

TEST_F(DisNormalFailure, FewerThanFourValues) {
    click("bCalcular");
    EXPECT_EQ(messages(), badData) << "no value";
    for (const std::string value : {"3", "1", "2"}) {
        fit({value});
        EXPECT_EQ(messages(), badData) << value;
        EXPECT_EQ(parameters(), noParameters);
        EXPECT_EQ(rowText("grddis", 1), "|||||");
        EXPECT_EQ(text("lblmensaje"), "");
        EXPECT_EQ(text("lblAjuste"), "Ajuste:");
    }
    fit({"4"});
    EXPECT_TRUE(messages().empty());
    EXPECT_FALSE(text("lblmensaje").empty());
}

TEST_F(DisNormalFailure, MeanOfExactlyZero) {
    fit({"-3", "-1", "0", "4"});
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(parameters(), noParameters);
}

TEST_F(DisNormalFailure, EqualValues) {
    fit({"5", "5", "5", "5"});
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(parameters(), noParameters);
    EXPECT_FALSE(program.ended());
}

TEST_F(DisNormalFailure, Overflow) {
    fit({"1E200", "1", "2", "3"});
    EXPECT_EQ(messages(), badData);
}

TEST_F(DisNormalFailure, FirstFailureLeavesTheGateClosed) {
    fit({"1", "2", "3"});
    messages();
    click("bGraficar");
    expectMessage({"Efectuar cálculos antes de graficar", "Mensaje de Error", Icon::error});
}

// 5, 6, 7 stop in the linear moments: mean and S are those of the new data, what is linear is that
// of the old ones, and so are all texts.
TEST_F(DisNormalFailure, LaterFailureLeavesTheMixOfParametersAndTheOpenGate) {
    fit({"1", "2", "3", "4"});
    const std::string verdict = text("lblmensaje");
    keepRows(1);
    cell("grdt", 1, 1);
    type("grdt", "5");
    key("txtt", Key::Kind::enter);
    fit({"6", "7"});
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(parameters(), (Texts{"2.5", "1.291", "2.5", "1.477"}));
    EXPECT_EQ(text("lblmensaje"), verdict);
    EXPECT_EQ(rowText("grddis", 4), "4|4.0|0.80|0.8774|0.8451|0.0774");
    // With T = 2 the flow is the mean, but for 1E-7 of the deviation.
    EXPECT_EQ(flowOf("2"), "6.0");
    click("optMomentoLi");
    EXPECT_EQ(flowOf("2"), "2.50");
    // With T = 100: 6 + 1 * 2.3267853 and 2.5 + 1.4770449 * 2.3267853.
    EXPECT_EQ(flowOf("100"), "5.94");
    click("optOrdinario");
    EXPECT_EQ(flowOf("100"), "8.33");
}

// Five values of 5: the means are set and both deviations become 0, so the evaluation divides by
// zero with no trap around it.
TEST_F(DisNormalFailure, EvaluationAfterAFailureWorksOnWhatItLeft) {
    fit({"1", "2", "3", "4"});
    keepRows(0);
    ASSERT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    fit({"5", "5", "5", "5", "5"});
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(flowOf("100"), "5.0");
    enter("txtxq", "6");
    click("bPmenor");
    EXPECT_TRUE(fatal(11));
}

} // namespace
} // namespace caudalera::testing
