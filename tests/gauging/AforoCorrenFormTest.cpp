// What the window of the gauging shows when it opens, where ENTER leads, the meter's velocity.

#include "tests/gauging/AforoCorrenTest.h"

#include <utility>

namespace caudalera::testing {
namespace {

class AforoCorrenForm : public AforoCorrenTest {};
class AforoCorrenVelocity : public AforoCorrenTest {
protected:
    void reading(const std::string& NR, const std::string& t, const std::string& a,
                 const std::string& b) {
        enter("txtNR", NR);
        enter("txtTiempo", t);
        enter("txtA", a);
        enter("txtB", b);
        click("bVelocidad");
    }
};

TEST_F(AforoCorrenForm, TextsOfTheWindow) {
    EXPECT_EQ(window("frmAforoCorren").caption, "Aforo con correntómetro o molinete");
    EXPECT_EQ(text("lblIngreso"), "Ingreso de datos:");
    EXPECT_EQ(text("lblNota"), "Nota:");
    EXPECT_EQ(text("lblNotaEnter"), "Una vez que digite el dato, presionar ENTER");
    EXPECT_EQ(text("lblEsquema"), "Esquema de ingreso de datos:");
    EXPECT_EQ(control<Picture>("Picture1").image(), "aforo");
    EXPECT_EQ(text("fraCalcularV"), "¿Calcular velocidad?");
    EXPECT_EQ(text("optSi"), "Si");
    EXPECT_EQ(text("optNo"), "No");
    EXPECT_EQ(text("fraVelocidad"), "Datos para velocidad:");
    EXPECT_EQ(text("lblEcuacionV"), "v = a n + b");
    EXPECT_EQ(text("lblDondeN"), "donde: n = NR/ t");
    EXPECT_EQ(text("bVelocidad"), "Valor de v");
    EXPECT_EQ(text("bGraficar"), "&Graficar");
    EXPECT_EQ(control<Button>("bGraficar").toolTip, "Mostrar gráfico");
}

TEST_F(AforoCorrenForm, LabelsAndUnitsOfTheFields) {
    const std::vector<std::vector<std::string>> fields = {
        {"txtho", "Profundidad en el margen (ho):", "m"},
        {"txtvo", "Velocidad en el margen (vo):", "m/s"},
        {"txtQ", "Caudal total (Q):", "m3/s"},
        {"txtNR", "Nº revoluciones (NR):", ""},
        {"txtTiempo", "Tiempo (t):", "s"},
        {"txtA", "a:", ""},
        {"txtB", "b: ", ""},
        {"txtV", "", "m/s"}};
    for (const auto& field : fields) {
        const auto& box = control<TextBox>(field[0]);
        EXPECT_EQ(box.label() ? box.label()->caption : "", field[1]) << field[0];
        EXPECT_EQ(box.unit() ? box.unit()->caption : "", field[2]) << field[0];
    }
}

TEST_F(AforoCorrenForm, CommandsInTheOrderOfEveryWindow) {
    Texts names;
    for (const auto& group : window("frmAforoCorren").commands) {
        for (const Button* button : group.buttons)
            names.push_back(button->name());
    }
    EXPECT_EQ(names, (Texts{"bCalcular", "bGraficar", "bLimpiar", "bImprimir", "bReporte", "bCrear",
                            "bAccesar", "bCalculadora", "bMenu"}));
}

TEST_F(AforoCorrenForm, StartsEmptyWithAMarginAtTheWaterLine) {
    EXPECT_EQ(rowText("grdt", 0), "Tramo|L (m)|h (m)|Vm (m/s)");
    EXPECT_EQ(rowText("grdt", 1), "[?]|||");
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    EXPECT_EQ(control<MSFlexGrid>("grdavq").FixedRows(), 1);
    EXPECT_EQ(control<MSFlexGrid>("grdavq").FixedCols(), 1);
    expectNoResults();
    EXPECT_EQ(text("txtho"), "0");
    EXPECT_EQ(text("txtvo"), "0");
    EXPECT_EQ(control<TextBox>("txtho").selStart(), 0U);
    EXPECT_EQ(control<TextBox>("txtho").selLength(), 1U);
    EXPECT_EQ(focus(), "grdt");
    EXPECT_TRUE(control<Option>("optNo").checked());
    EXPECT_FALSE(control<Option>("optSi").checked());
    EXPECT_FALSE(control<Frame>("fraVelocidad").visible);
}

TEST_F(AforoCorrenForm, EnterLeadsFromFieldToField) {
    enter("txtvo", "0.25");
    key("txtho", Key::Kind::enter);
    EXPECT_EQ(focus(), "txtvo");
    EXPECT_EQ(control<TextBox>("txtvo").selStart(), 0U);
    EXPECT_EQ(control<TextBox>("txtvo").selLength(), 4U);
    key("txtvo", Key::Kind::enter);
    EXPECT_EQ(focus(), "grdt");
    click("optSi");
    for (const auto& [field, next] :
         {std::pair{"txtNR", "txtTiempo"}, std::pair{"txtTiempo", "txtA"},
          std::pair{"txtA", "txtB"}, std::pair{"txtB", "bVelocidad"}}) {
        key(field, Key::Kind::enter);
        EXPECT_EQ(focus(), next);
    }
}

TEST_F(AforoCorrenVelocity, TheOptionShowsAndHidesItsFields) {
    click("optSi");
    EXPECT_TRUE(control<Frame>("fraVelocidad").visible);
    EXPECT_EQ(focus(), "txtNR");
    click("optNo");
    EXPECT_FALSE(control<Frame>("fraVelocidad").visible);
    EXPECT_TRUE(control<Option>("optNo").checked());
}

TEST_F(AforoCorrenVelocity, TheMetersEquation) {
    click("optSi");
    reading("120", "60", "0.2545", "0.0105");
    EXPECT_EQ(text("txtV"), "0.5195");
    reading("45", "50", "0.7", "0.01");
    EXPECT_EQ(text("txtV"), "0.64");
    reading("100", "30", "0.25", "0");
    EXPECT_EQ(text("txtV"), "0.8333");
    reading("0", "30", "0.25", "-1");
    EXPECT_EQ(text("txtV"), "-1.0");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    EXPECT_EQ(rowText("grdt", 1), "[?]|||");
}

TEST_F(AforoCorrenVelocity, EveryEmptyFieldIsAskedForInItsTurn) {
    click("optSi");
    const std::string title = "Error de ingreso de dato";
    const std::vector<std::pair<std::string, std::string>> asked = {
        {"txtNR", "Ingresar un valor adecuado para NR"},
        {"txtTiempo", "Ingresar un valor adecuado para el tiempo"},
        {"txtA", "Ingresar un valor adecuado para el coeficiente a"},
        {"txtB", "Ingresar un valor adecuado para para el coeficiente b"}};
    for (const auto& [field, words] : asked) {
        click("bVelocidad");
        expectMessage({words, title});
        EXPECT_EQ(focus(), field);
        EXPECT_EQ(text("txtV"), "");
        enter(field, "2");
    }
    click("bVelocidad");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(text("txtV"), "4.0");
}

// 0.25 * 120 / 60 + 0.1.
TEST_F(AforoCorrenVelocity, ARefusalKeepsTheVelocityBefore) {
    for (const auto& [field, value] : std::vector<std::pair<std::string, std::string>>{
             {"txtNR", "120"}, {"txtTiempo", "60"}, {"txtA", "0.25"}, {"txtB", "0.1"}})
        enter(field, value);
    click("bVelocidad");
    EXPECT_EQ(text("txtV"), "0.6");
    enter("txtB", "");
    messages();
    click("bVelocidad");
    EXPECT_EQ(messages().size(), 1U);
    EXPECT_EQ(focus(), "txtB");
    EXPECT_EQ(text("txtV"), "0.6");
}

TEST_F(AforoCorrenVelocity, ATimeOfZeroIsFatal) {
    reading("120", "0", "0.25", "0.01");
    EXPECT_TRUE(fatal(11));
    EXPECT_TRUE(messages().empty());
}

TEST_F(AforoCorrenVelocity, ATextWithoutANumberIsATimeOfZero) {
    reading("0", "abc", "0.25", "0.01");
    EXPECT_TRUE(fatal(11));
}

} // namespace
} // namespace caudalera::testing
