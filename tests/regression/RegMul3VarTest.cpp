// Multiple regression with three variables, in what it adds to that with two.

#include "tests/regression/RegressionTest.h"

#include <filesystem>

namespace caudalera {
namespace {

const Message tooFew = {
    "Para calcular el valor de Se, se requiere por lo menos cinco cuartetos de datos", "",
    Icon::error};
const Message singular = {"El sistema que se origina tiene infinitas soluciones", "", Icon::error};
const Message notPositive = {
    "Ingresó valores para X1, X2, X3 ó Y iguales a 0 ó negativos. Estos valores no permiten la "
    "correlación potencial. ¡Hacer la corrección correspondiente!",
    "", Icon::none};
const Message notCalculated = {"Antes de hallar valor de Y, efectuar los cálculos de correlación",
                               "", Icon::none};
const Message noX = {"Ingresar un valor adecuado para X1 , X2 y X3", "", Icon::none};

class RegMul3VarTest : public RegressionTest {
protected:
    RegMul3VarTest() : RegressionTest("frmRegMul3Var") {}

    using Texts = std::vector<std::string>;
    const Texts noEquations = {"||||", "||||"};

    // Solved in rational arithmetic, the potential fit with logarithms of 60 digits: 1.8462665,
    // 1.7144949, 1.2489019, -0.4919473, R = 0.9986749, R2 = 0.9973515, Se = 0.5438327; potential
    // 3.3230645, 0.6840462, 0.3620451, -0.1760247, R = 0.9980426, R2 = 0.9960890, Se = 1.1431926.
    const Rows quartets = {{"1", "2", "7", "3"}, {"2", "1", "5", "4"},  {"3", "5", "2", "12"},
                           {"4", "3", "6", "9"}, {"5", "8", "1", "20"}, {"6", "4", "3", "16"}};
    const Texts quartetsEquations = {
        "Lineal Múltiple|Y = 1.8463 +1.7145 * X1 +1.2489 * X2-0.4919 * X3        "
        "|0.9987|0.9974|0.5438",
        "Potencial Múltiple|Y = 3.3231 *X1^(+0.6840) *X2^(+0.3620)* X3^(-0.1760)"
        "|0.9980|0.9961|1.1432"};

    void enterX(const std::string& first, const std::string& second, const std::string& third) {
        enter("txtvxx1", first);
        enter("txtvxx2", second);
        enter("txtvxx3", third);
    }

    /// As many quartets, all of them on Y = X1 * X2 / X3 with the three independent.
    static Rows product(int count) {
        Rows data;
        for (int i = 1; i <= count; ++i) {
            const int second = 1 + i % 7;
            const int third = 1 + i % 2;
            data.push_back({std::to_string(2 * i), std::to_string(second), std::to_string(third),
                            std::to_string(2 * i * second / third)});
        }
        return data;
    }
};

TEST_F(RegMul3VarTest, HasItsTexts) {
    EXPECT_EQ(window("frmRegMul3Var").caption,
              "Cálculos con ecuaciones de regresión múltiple, con 3 variables independientes");
    EXPECT_EQ(text("lblIngreso"), "Ingreso de los cuartetos de datos:");
    EXPECT_EQ(text("fraAplicar"), "Aplicar ecuación:");
    EXPECT_EQ(control<TextBox>("txtvxx3").label()->caption, "Valor de X3:");
    EXPECT_EQ(text("lblCalculoY"), "Cálculo para:");
    EXPECT_EQ(text("optLineal"), "correlación lineal múltiple");
    EXPECT_EQ(text("optPotencial"), "correlación potencial múltiple");
    EXPECT_EQ(text("bLimpiar"), "Limpiar Pan&talla");
    EXPECT_EQ(window("frmRegMul3Var").find("Graph1"), nullptr);
    EXPECT_EQ(rowText("grdt", 0), "Cuarteto|X1|X2|X3|Y");
    EXPECT_EQ(rowText("grdecua", 0), "Correlación|Ecuación|R|R^2|Se");
    EXPECT_EQ(equations(), noEquations);
}

TEST_F(RegMul3VarTest, FitsBothEquations) {
    calculate(quartets);
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(equations(), quartetsEquations);
}

// 1.6798637, 1.4320923, 1.4265863, -0.4278972, Se = sqrt(SSE / 1) = 0.3724239; potential 3.4602251,
// 0.6506064, 0.3635153, -0.1905494, R = 0.9982220, R2 = 0.9964472, Se = 1.3294498.
TEST_F(RegMul3VarTest, FiveQuartetsAreEnough) {
    calculate({quartets.begin(), quartets.begin() + 5});
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(equations(),
              (Texts{"Lineal Múltiple|Y = 1.6799 +1.4321 * X1 +1.4266 * X2-0.4279 * X3        "
                     "|0.9996|0.9993|0.3724",
                     "Potencial Múltiple|Y = 3.4602 *X1^(+0.6506) *X2^(+0.3635)* X3^(-0.1905)"
                     "|0.9982|0.9964|1.3294"}));
}

TEST_F(RegMul3VarTest, RefusesFourQuartetsButSetsTheFlag) {
    calculate({quartets.begin(), quartets.begin() + 4});
    expectMessage(tooFew);
    EXPECT_EQ(focus(), "grdt");
    EXPECT_EQ(equations(), noEquations);
    enterX("1", "2", "3");
    click("optPotencial");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(text("txtvyy"), "0.0000");
}

TEST_F(RegMul3VarTest, AValueWithoutLogarithmLosesTheLinearFitToo) {
    for (std::size_t column = 0; column < 4; ++column) {
        Rows broken = quartets;
        broken[2][column] = "0";
        replaceRows(broken);
        click("bCalcular");
        EXPECT_EQ(messages(), std::vector{notPositive}) << "in column " << column;
        EXPECT_EQ(equations(), noEquations);
    }
}

TEST_F(RegMul3VarTest, AFailureKeepsTheLastFit) {
    calculate(quartets);
    Rows broken = quartets;
    broken[5][3] = "-1";
    replaceRows(broken);
    click("bCalcular");
    expectMessage(notPositive);
    EXPECT_EQ(equations(), quartetsEquations);
    enterX("6", "4", "2");
    click("optLineal");
    EXPECT_EQ(text("txtvyy"), "16.1449");
}

// X3 is X1, whole numbers.
TEST_F(RegMul3VarTest, ASingularSystemHasItsOwnMessage) {
    calculate({{"1", "2", "1", "3"},
               {"2", "1", "2", "4"},
               {"3", "5", "3", "12"},
               {"4", "3", "4", "9"},
               {"0", "0", "0", "1"}});
    expectMessage(singular);
    EXPECT_EQ(equations(), noEquations);
    enterX("1", "1", "1");
    click("optLineal");
    expectMessage(notCalculated);
}

// X2 = X1^2 is no line, but ln X2 = 2 ln X1.
TEST_F(RegMul3VarTest, ASystemSingularInTheLogarithmsAloneLosesTheLinearFitToo) {
    calculate(quartets);
    replaceRows({{"1", "1", "3", "2"},
                 {"2", "4", "1", "3"},
                 {"3", "9", "2", "5"},
                 {"4", "16", "5", "9"},
                 {"5", "25", "4", "11"},
                 {"6", "36", "2", "12"}});
    click("bCalcular");
    expectMessage(singular);
    EXPECT_EQ(equations(), quartetsEquations);
}

// Se is the same wherever Y stands: from the residuals it keeps its digits.
TEST_F(RegMul3VarTest, TheStandardErrorIsThatOfTheResiduals) {
    Rows high = quartets;
    for (auto& quartet : high)
        quartet[3] = std::to_string(std::stoi(quartet[3]) + 10000000);
    calculate(high);
    EXPECT_EQ(cellText("grdecua", 1, 4), "0.5438");
}

TEST_F(RegMul3VarTest, TakesFiveHundredQuartetsAndFailsOnOneMore) {
    calculate(product(500));
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(rowText("grdecua", 2),
              "Potencial Múltiple|Y = 1.00 *X1^(+1.00) *X2^(+1.00)* X3^(-1.00)|1.00|1.00|0.00");
    calculate({{"501", "1", "1", "501"}});
    expectMessage(notPositive);
    EXPECT_FALSE(platform.ending);
}

// 16.1449488 and 3.3230645 x 6^0.6840462 x 4^0.3620451 x 2^-0.1760247 = 16.5506224.
TEST_F(RegMul3VarTest, EvaluatesByTheOptionClicked) {
    calculate(quartets);
    enterX("6", "4", "2");
    click("optLineal");
    EXPECT_EQ(text("txtvyy"), "16.1449");
    EXPECT_EQ(text("lblCalculoY"), "Correlación lineal múltiple");
    click("optPotencial");
    EXPECT_EQ(text("txtvyy"), "16.5506");
    EXPECT_EQ(text("lblCalculoY"), "Correlación potencial múltiple");
    type("txtvxx3", "0");
    EXPECT_EQ(text("txtvyy"), "16.5506");
    EXPECT_TRUE(control<Option>("optPotencial").checked());
}

TEST_F(RegMul3VarTest, EnterGoesThroughTheFieldsAndEvaluatesLinearly) {
    calculate(quartets);
    type("txtvxx1", "6");
    key("txtvxx1", Key::Kind::enter);
    EXPECT_EQ(focus(), "txtvxx2");
    type("txtvxx2", "4");
    key("txtvxx2", Key::Kind::enter);
    EXPECT_EQ(focus(), "txtvxx3");
    type("txtvxx3", "2");
    key("txtvxx3", Key::Kind::enter);
    EXPECT_TRUE(control<Option>("optLineal").checked());
    EXPECT_EQ(text("txtvyy"), "16.1449");
}

TEST_F(RegMul3VarTest, RefusesEachEmptyFieldAndFocusesTheFirst) {
    click("optLineal");
    expectMessage(notCalculated);
    calculate(quartets);
    const Rows incomplete = {{"", "4", "2"}, {"6", "", "2"}, {"6", "4", ""}};
    for (const auto& x : incomplete) {
        enterX(x[0], x[1], x[2]);
        for (const char* option : {"optLineal", "optPotencial"}) {
            click(option);
            EXPECT_EQ(messages(), std::vector{noX});
            EXPECT_EQ(focus(), "txtvxx1");
        }
    }
    EXPECT_EQ(text("txtvyy"), "");
}

TEST_F(RegMul3VarTest, ZeroToANegativeExponentEndsThePotentialEquation) {
    calculate(quartets);
    enterX("6", "4", "0");
    click("optPotencial");
    EXPECT_TRUE(fatal(5));
}

TEST_F(RegMul3VarTest, LimpiarAndLimpiarDatosEmptyTheThirdFieldToo) {
    calculate(quartets);
    enterX("6", "4", "2");
    click("optLineal");
    click("bLimpiarDatos");
    for (const char* field : {"txtvxx1", "txtvxx2", "txtvxx3", "txtvyy"})
        EXPECT_EQ(text(field), "") << field;
    EXPECT_EQ(focus(), "txtvxx1");
    EXPECT_FALSE(control<Option>("optLineal").checked());
    EXPECT_EQ(equations(), quartetsEquations);

    enterX("6", "4", "2");
    click("optLineal");
    click("bLimpiar");
    for (const char* field : {"txtvxx1", "txtvxx2", "txtvxx3", "txtvyy"})
        EXPECT_EQ(text(field), "") << field;
    EXPECT_EQ(text("lblCalculoY"), "Ecuación:");
    EXPECT_FALSE(control<Option>("optLineal").checked());
    EXPECT_EQ(equations(), noEquations);
    click("optLineal");
    expectMessage(notCalculated);
}

TEST_F(RegMul3VarTest, SavesQuartetsAndLoadsThemBack) {
    rows({{"1.5", "0.1", "-3", "4"}, {"2", "4", "7", "123456.789"}});
    platform.answers = {file("a.XSY"), file("a.XSY")};
    click("bCrear");
    EXPECT_EQ(std::filesystem::file_size(file("a.XSY")), 32U);
    replaceRows(quartets);
    click("bCalcular");
    enterX("6", "4", "2");
    click("optLineal");
    click("bAccesar");
    EXPECT_EQ(rowText("grdt", 1), " 1|1.5|0.1|-3.0|4.0");
    EXPECT_EQ(rowText("grdt", 2), " 2|2.0|4.0|7.0|123456.8");
    EXPECT_EQ(equations(), noEquations);
    for (const char* field : {"txtvxx1", "txtvxx2", "txtvxx3", "txtvyy"})
        EXPECT_EQ(text(field), "") << field;
    EXPECT_EQ(text("lblCalculoY"), "Ecuación:");
    EXPECT_FALSE(control<Option>("optLineal").checked());
    click("optLineal");
    expectMessage(notCalculated);
}

const std::string title =
    "Resultados\n\n"
    "Cálculos con ecuaciones de regresión múltiple, con 3 variables independientes\n\n\n";
const std::string dataRule = std::string(102, '-') + "\n";
const std::string equationsRule = std::string(152, '-') + "\n";
const std::string dataHeader = "Cuarteto de valores X1, X2, X3 e Y:\n\n" + dataRule +
                               " Cuar\t\t X1\t\t X2\t\t X3\t\t Y\t\t\n" + dataRule;
const std::string equationsHeader =
    "Ecuaciones de ajuste de correlación múltiple:\n\n" + equationsRule +
    " Correlación        \t\t Ecuación           \t\t R   \t\t R^2 \t Se  \t\t\n" + equationsRule;

TEST_F(RegMul3VarTest, ReportsQuartetsEquationsAndTheValueFound) {
    calculate(quartets);
    enterX("6", "4", "2");
    click("optLineal");
    click("bReporte");
    EXPECT_EQ(report(),
              title + dataHeader +
                  " 1\t\t1.0\t\t2.0\t\t7.0\t\t3.0\t\t\n"
                  " 2\t\t2.0\t\t1.0\t\t5.0\t\t4.0\t\t\n"
                  " 3\t\t3.0\t\t5.0\t\t2.0\t\t12.0\t\t\n"
                  " 4\t\t4.0\t\t3.0\t\t6.0\t\t9.0\t\t\n"
                  " 5\t\t5.0\t\t8.0\t\t1.0\t\t20.0\t\t\n"
                  " 6\t\t6.0\t\t4.0\t\t3.0\t\t16.0\t\t\n" +
                  dataRule + "\n" + equationsHeader +
                  "Lineal Múltiple  \tY = 1.8463 +1.7145 * X1 +1.2489 * X2-0.4919 * X3          \t"
                  "0.9987  \t0.9974  \t0.5438  \t\n"
                  "Potencial Múltiple\tY = 3.3231 *X1^(+0.6840) *X2^(+0.3620)* X3^(-0.1760)\t"
                  "0.9980     \t0.9961\t1.1432\t\n" +
                  equationsRule +
                  "\nCálculo de Y para un valor de X1, X2 y X3:\n\n"
                  "Correlación lineal múltiple:\n"
                  "Para X1 = 6\n"
                  "Para X2 = 4 y\n"
                  "Para X3 = 2\n"
                  "El valor de Y es: Y = 16.1449\n");
}

TEST_F(RegMul3VarTest, ReportsTheEmptyWindowToo) {
    click("bReporte");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(report(), title + dataHeader + dataRule + "\n" + equationsHeader +
                            "  \t  \t  \t  \t  \t\n"
                            "\t\t     \t\t\t\n" +
                            equationsRule +
                            "\nCálculo de Y para un valor de X1, X2 y X3:\n\n"
                            "Cálculo para::\n"
                            "Para X1 = \n"
                            "Para X2 =  y\n"
                            "Para X3 = \n"
                            "El valor de Y es: Y = \n");
}

} // namespace
} // namespace caudalera
