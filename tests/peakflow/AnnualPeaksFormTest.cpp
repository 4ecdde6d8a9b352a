// What the windows of Gumbel and Nash share: the years of the rows, the fields, clearing.

#include "tests/peakflow/AnnualPeaksTest.h"

namespace caudalera {
namespace {

INSTANTIATE_TEST_SUITE_P(Peaks, BothPeakWindowsTest,
                         ::testing::Values("frmQmaxGumbel", "frmQmaxNash"));

TEST_P(BothPeakWindowsTest, StartsWithAnEmptyGridThatHasTheFocus) {
    EXPECT_EQ(form.grdt.Rows(), 2);
    EXPECT_EQ(form.grdt.Cols(), 2);
    EXPECT_EQ(form.grdt.FixedRows(), 1);
    EXPECT_EQ(form.grdt.FixedCols(), 1);
    EXPECT_EQ(rowText("grdt", 0), "N°|X");
    EXPECT_EQ(rowText("grdt", 1), "[?]|");
    EXPECT_EQ(form.grdt.visibleRows, 14);
    EXPECT_EQ(form.grddis.Rows(), 2);
    EXPECT_EQ(form.grddis.Cols(), 9);
    EXPECT_EQ(form.grddis.FixedRows(), 1);
    EXPECT_EQ(form.grddis.FixedCols(), 0);
    EXPECT_EQ(rowText("grddis", 1), "||||||||");
    EXPECT_EQ(focus(), "grdt");
    EXPECT_EQ(form.find("bGraficar"), nullptr);
    EXPECT_EQ(form.find("Graph1"), nullptr);
}

TEST_P(BothPeakWindowsTest, FieldsAndHeadingsHaveTheirTexts) {
    EXPECT_EQ(form.txtanno.label()->caption, "Año de inicio:");
    EXPECT_EQ(form.txtanno.unit(), nullptr);
    EXPECT_EQ(form.txtTdato.label()->caption,
              "Período de retorno de cálculo del caudal de diseño (T):");
    EXPECT_EQ(form.txtTdato.unit()->caption, "años");
    EXPECT_EQ(text("lblIngreso"), "Ingreso de datos:");
    EXPECT_EQ(text("lblNota"), "Nota:");
    EXPECT_EQ(text("lblNotaEnter"), "Una vez que digite el dato, presionar ENTER");
    EXPECT_EQ(text("lblResultados"), "Resultados:");
    EXPECT_EQ(text("txtanno"), "");
    EXPECT_EQ(text("txtTdato"), "");
    EXPECT_FALSE(form.txtanno.result);
    EXPECT_FALSE(form.txtTdato.result);
}

TEST_P(BothPeakWindowsTest, EnterGoesFromTheYearToTheGridAndFromThePeriodToTheCommand) {
    key("txtanno", Key::Kind::enter);
    EXPECT_EQ(focus(), "grdt");
    key("txtTdato", Key::Kind::enter);
    EXPECT_EQ(focus(), "bCalcular");
}

TEST_P(BothPeakWindowsTest, RowsAreLabelledByTheirYears) {
    enter("txtanno", "1918");
    values({"16.3", "13.1", "16.6"});
    EXPECT_EQ(marks(), " 1918| 1919| 1920|[->]");
    EXPECT_EQ(rowText("grdt", 2), " 1919|13.1");
}

TEST_P(BothPeakWindowsTest, WithoutAYearTheyCountFromZero) {
    values({"1", "2"});
    EXPECT_EQ(marks(), " 0| 1|[->]");
}

TEST_P(BothPeakWindowsTest, TheYearIsTakenWhenItsFieldIsLeft) {
    values({"1", "2"});
    enter("txtanno", "1970");
    EXPECT_EQ(marks(), " 0| 1|[->]");
    program.leave(form.txtanno);
    EXPECT_EQ(marks(), " 1970| 1971|[->]");
    enter("txtanno", "1980");
    cell("grdt", 1, 1);
    EXPECT_EQ(marks(), " 1980| 1981|[?]");
    enter("txtanno", "");
    program.leave(form.txtanno);
    EXPECT_EQ(marks(), " 0| 1|[?]");
}

TEST_P(BothPeakWindowsTest, TheYearIsAnIntegerRoundedToEven) {
    values({"1", "2"});
    for (const auto& [typed, labels] :
         {std::pair{"1970.5", " 1970| 1971|[->]"}, std::pair{"1971.5", " 1972| 1973|[->]"},
          std::pair{"1970.51", " 1971| 1972|[->]"}, std::pair{"abc", " 0| 1|[->]"},
          std::pair{"-1", "-1| 0|[->]"}, std::pair{"19 70 d. C.", " 1970| 1971|[->]"},
          std::pair{"-32768", "-32768|-32767|[->]"}, std::pair{"32766.4", " 32766| 32767|[->]"}}) {
        enter("txtanno", typed);
        program.leave(form.txtanno);
        EXPECT_EQ(marks(), labels);
        EXPECT_EQ(text("txtanno"), typed);
    }
    EXPECT_FALSE(platform.ending.has_value());
}

TEST_P(BothPeakWindowsTest, AYearPastTheCountersIsFatal) {
    enter("txtanno", "32767");
    program.leave(form.txtanno);
    enter("txtanno", "32767.5");
    EXPECT_FALSE(platform.ending.has_value());
    program.leave(form.txtanno);
    EXPECT_TRUE(fatal(6));
}

TEST_P(BothPeakWindowsTest, AYearBelowTheCountersIsFatal) {
    enter("txtanno", "-32769");
    click("bCalcular");
    EXPECT_TRUE(fatal(6));
    EXPECT_TRUE(messages().empty());
}

TEST_P(BothPeakWindowsTest, ALabelPastTheCountersIsFatal) {
    enter("txtanno", "32767");
    values({"1"});
    EXPECT_EQ(marks(), " 32767|[->]");
    values({"2"});
    EXPECT_TRUE(fatal(6));
}

TEST_P(BothPeakWindowsTest, AYearThatLeavesNoRoomForTheRowsIsFatal) {
    values({"1", "2"});
    enter("txtanno", "32767");
    program.leave(form.txtanno);
    EXPECT_TRUE(fatal(6));
}

TEST_P(BothPeakWindowsTest, InsertingAndDeletingMovesTheYearsOn) {
    enter("txtanno", "2001");
    values({"1", "2", "3"});
    cell("grdt", 2, 1);
    click("mnuEditInsertar");
    EXPECT_EQ(marks(), " 2001| 2002| 2003| 2004|[?]");
    EXPECT_EQ(rowText("grdt", 2), " 2002|");
    EXPECT_EQ(rowText("grdt", 3), " 2003|2.0");
    cell("grdt", 1, 1);
    click("mnuEditEliminar");
    EXPECT_EQ(marks(), " 2001| 2002| 2003|[?]");
    EXPECT_EQ(rowText("grdt", 2), " 2002|2.0");
    // On the append row all is lost but the year.
    cell("grdt", 4, 1);
    click("mnuEditEliminar");
    EXPECT_EQ(marks(), "[?]");
    values({"7"});
    EXPECT_EQ(marks(), " 2001|[->]");
}

TEST_P(BothPeakWindowsTest, ClearingStartsAtTheYearZero) {
    enter("txtanno", "2001");
    values(fivePeaks());
    calculate("50");
    EXPECT_EQ(cellText("grddis", 1, 0), "5");
    click("bLimpiar");
    EXPECT_EQ(form.grdt.Rows(), 2);
    EXPECT_EQ(rowText("grddis", 1), "||||||||");
    EXPECT_EQ(cellText("grddis", 0, 8), "Qdiseño");
    EXPECT_EQ(text("txtanno"), "");
    EXPECT_EQ(text("txtTdato"), "");
    EXPECT_EQ(focus(), "txtanno");
    cell("grdt", 1, 1);
    values({"1", "2"});
    EXPECT_EQ(marks(), " 0| 1|[->]");
}

TEST_P(BothPeakWindowsTest, NeedsThePeriod) {
    values(fivePeaks());
    click("bCalcular");
    expectMessage(
        {"Ingresar el valor correspondiente del período de retorno", "Error por no ingresar T"});
    EXPECT_EQ(focus(), "txtTdato");
    EXPECT_EQ(rowText("grddis", 1), "||||||||");
}

// A blank passes as a period of 0.
TEST_P(BothPeakWindowsTest, APeriodOfZeroOrLessIsNoPeriod) {
    values(fivePeaks());
    calculate("50");
    const std::string before = rowText("grddis", 1);
    for (const char* T : {"0", "-2", " ", "abc", "1e999"}) {
        SCOPED_TRACE(T);
        calculate(T);
        expectMessage(datosInadecuados);
        EXPECT_EQ(rowText("grddis", 1), before);
    }
    EXPECT_FALSE(platform.ending.has_value());
}

TEST_P(BothPeakWindowsTest, TooFewPeaksAreToldByTheMessageOfInadequateData) {
    calculate("50");
    expectMessage(datosInadecuados);
    values({"5"});
    click("bCalcular");
    expectMessage(datosInadecuados);
    EXPECT_EQ(rowText("grddis", 1), "||||||||");
}

} // namespace
} // namespace caudalera
