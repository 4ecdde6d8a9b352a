#include "shell/worksheet/Worksheet.h"
#include "tests/support/WindowTest.h"

#include <memory>
#include <string>
#include <vector>

namespace caudalera {
namespace {

/// A worksheet that leaves to the template all that it can.
class PlainSheet : public Worksheet {
public:
    explicit PlainSheet(Program& program) : Worksheet(program, "hoja", "Hoja", "N°", {{"X"}, {}}) {
        columnas = {&X_};
        registrarEntradas({&txtT});
        registrarResultados({&txtQ});
        encadenar({&txtT, &cobMes, &txtQ, &bCalcular});
    }

    TextBox txtT{*this, "txtT"};
    List cobMes{*this, "cobMes", {"Enero", "Febrero"}, "Enero"};
    TextBox txtQ{*this, "txtQ"};
    TextBox txtNota{*this, "txtNota"};
    MSFlexGrid grdres{*this, "grdres"};

    bool calculado = false;
    std::vector<std::string> pasos;

protected:
    /// T is asked for, and must not be 0.
    void calcular() override {
        if (!exigir(txtT, {"Ingresar T", "Error"}))
            return;
        if (txtT.text() == "0") {
            rechazar(txtT, {"T no puede ser 0", "Error", Icon::error});
            return;
        }
        leerCuadricula();
        if (!hayPuntos(n, {"Faltan puntos", "Puntos", Icon::error}) ||
            !hayCalculo(calculado, {"Falta el cálculo"}))
            return;
        txtQ.setText("25");
        grdres.setTextMatrix(1, 0, "25");
    }
    void reiniciarResultados() override { grdres.reset(2, 1, 1, 0); }
    void trasAgregarFila() override {
        pasos.push_back(std::to_string(grdt.Rows()) + " filas, fila " + grdt.TextMatrix(1, 0) +
                        ", actual " + std::to_string(grdt.Row()));
    }
    void escribirReporte(ReportWriter& /*reporte*/) override {}

private:
    Serie X_{10};
};

const std::vector<WindowEntry>& plainSheetAlone() {
    static const std::vector<WindowEntry> entries =
        withProgramWindows({{"hoja", [](Program& p) -> std::unique_ptr<Window> {
                                 return std::make_unique<PlainSheet>(p);
                             }}});
    return entries;
}

class CalculationWindowTest : public WindowTest {
protected:
    CalculationWindowTest()
        : WindowTest(plainSheetAlone()), hoja(dynamic_cast<PlainSheet&>(open("hoja"))) {}

    PlainSheet& hoja;

    /// A calculation that has a result.
    void calculate() {
        enter("txtT", "5");
        values({"1", "2"});
        hoja.calculado = true;
        click("bCalcular");
        ASSERT_EQ(text("txtQ"), "25");
    }
};

TEST_F(CalculationWindowTest, AnEmptyFieldIsAskedForAndGetsTheFocus) {
    click("bCalcular");
    expectMessage({"Ingresar T", "Error", Icon::none});
    EXPECT_EQ(focus(), "txtT");
}

TEST_F(CalculationWindowTest, AFieldThatIsRefusedIsEmptiedAndGetsTheFocus) {
    enter("txtT", "0");
    click("bCalcular");
    expectMessage({"T no puede ser 0", "Error", Icon::error});
    EXPECT_EQ(text("txtT"), "");
    EXPECT_EQ(focus(), "txtT");
}

TEST_F(CalculationWindowTest, TwoPointsPassTheGateAndOneDoesNot) {
    enter("txtT", "5");
    values({"1"});
    hoja.calculado = true;
    click("bCalcular");
    expectMessage({"Faltan puntos", "Puntos", Icon::error});
    EXPECT_EQ(text("txtQ"), "");
    values({"2"});
    click("bCalcular");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(text("txtQ"), "25");
}

TEST_F(CalculationWindowTest, WithoutACalculationTheOtherGateIsShut) {
    enter("txtT", "5");
    values({"1", "2"});
    click("bCalcular");
    expectMessage({"Falta el cálculo", "", Icon::none});
    EXPECT_EQ(text("txtQ"), "");
}

TEST_F(CalculationWindowTest, EnterLeadsAlongFieldsAndListsToTheCommand) {
    hoja.setFocus(hoja.txtT);
    key("txtT", Key::Kind::enter);
    EXPECT_EQ(focus(), "cobMes");
    key("cobMes", Key::Kind::enter);
    EXPECT_EQ(focus(), "txtQ");
    key("txtQ", Key::Kind::enter);
    EXPECT_EQ(focus(), "bCalcular");
}

TEST_F(CalculationWindowTest, FieldsOfResultsLookLikeItAndThoseThatTheUserFillsDoNot) {
    EXPECT_TRUE(hoja.txtQ.result);
    EXPECT_FALSE(hoja.txtT.result);
}

TEST_F(CalculationWindowTest, ClearingEmptiesTheDataTheResultsAndTheRegisteredFieldsAlone) {
    calculate();
    enter("txtNota", "queda");
    click("bLimpiar");
    EXPECT_EQ(hoja.grdt.Rows(), 2);
    EXPECT_EQ(cellText("grdres", 1, 0), "");
    EXPECT_EQ(text("txtT"), "");
    EXPECT_EQ(text("txtQ"), "");
    EXPECT_EQ(text("txtNota"), "queda");
    EXPECT_EQ(text("cobMes"), "Enero");
}

TEST_F(CalculationWindowTest, LoadingTakesTheResultsAwayBeforeItsDialog) {
    calculate();
    // The dialog is cancelled: no file is loaded.
    click("bAccesar");
    EXPECT_EQ(cellText("grdres", 1, 0), "");
    EXPECT_EQ(text("txtQ"), "");
}

TEST_F(CalculationWindowTest, TheHookBehindAnAppendedRowFindsItLabelledAndTheNextOneCurrent) {
    values({"1", "2"});
    EXPECT_EQ(hoja.pasos, (std::vector<std::string>{"3 filas, fila  1, actual 2",
                                                    "4 filas, fila  1, actual 3"}));
    cell("grdt", 1, 1);
    key("grdt", Key::Kind::enter);
    EXPECT_EQ(hoja.pasos.size(), 2U) << "no row is appended by moving down";
}

} // namespace
} // namespace caudalera
