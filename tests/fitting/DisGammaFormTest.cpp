// What the windows of the gamma family show when they open.

#include "shell/window/Window.h"
#include "tests/fitting/DisGammaTest.h"

namespace caudalera::testing {
namespace {

struct Expected {
    std::string form;
    std::string caption;
    std::string frame;
    std::string ordinary;
    std::string linear;
    /// Fields of each kind with their labels.
    std::vector<std::vector<std::string>> fields;
};

const std::vector<std::vector<std::string>> fieldsOfThree = {
    {"txtxo", "De posición (x0):"},      {"txtgamma", "De forma (gamma):"},
    {"txtbeta", "De escala (beta):"},    {"txtxol", "De posición (x0l):"},
    {"txtgammal", "De forma (gammal):"}, {"txtbetal", "De escala (betal):"}};

const std::vector<Expected> forms = {
    {"frmDisGamma2par",
     "Ajuste de una serie de datos a la distribución Gamma de 2 parámetros",
     "Parámetros distribución Gamma 2 par:",
     "Con momentos ordinarios:",
     "Con momentos lineales:",
     {{"txtgamma", "De forma (gamma):"},
      {"txtbeta", "De escala (beta):"},
      {"txtgammal", "De forma (gammal):"},
      {"txtbetal", "De escala (betal):"}}},
    {"frmDisGamma3par", "Ajuste de una serie de datos a la distribución Gamma de 3 parámetros",
     "Parámetros distribución Gamma 3 par:", "Momentos ordinarios:", "Momentos lineales:",
     fieldsOfThree},
    {"frmDisLogPearson3", "Ajuste de una serie de datos a la distribución Log-Pearson tipo III",
     "Parámetros distribución LogPearson3:", "Momentos ordinarios:", "Momentos lineales:",
     fieldsOfThree},
};

class DisGammaForm : public WindowTest {
protected:
    std::string labelOf(const std::string& field) {
        const Label* label = control<TextBox>(field).label();
        return label ? label->caption : std::string();
    }
};

TEST_F(DisGammaForm, TextsOfTheWindows) {
    for (const Expected& expected : forms) {
        const Window& form = open(expected.form);
        EXPECT_EQ(form.caption, expected.caption);
        EXPECT_EQ(text("lblIngreso"), "Ingreso de datos:");
        EXPECT_EQ(text("fraTipoAjuste"), "Tipo de ajuste:");
        EXPECT_EQ(text("fraNivel"), "Nivel significación:");
        EXPECT_EQ(text("fraCaudal"), "Caudal de diseño:");
        EXPECT_EQ(text("fraParametros"), expected.frame);
        EXPECT_EQ(text("lblOrdinarios"), expected.ordinary);
        EXPECT_EQ(text("lblLineales"), expected.linear);
        EXPECT_EQ(text("lblAjuste"), "Ajuste:");
        EXPECT_EQ(text("lblmensaje"), "");
        EXPECT_TRUE(control<Option>("optOrdinario").checked());
        EXPECT_TRUE(control<Option>("opt005").checked());
        EXPECT_EQ(rowText("grdt", 0), "N°|X");
        EXPECT_EQ(rowText("grddis", 0), "m|X|P(X)|G(Y) Ordinario|G(Y) Mom Lineal|Delta");
        EXPECT_EQ(control<MSFlexGrid>("grddis").Rows(), 500);
        EXPECT_FALSE(control<Graph>("Graph1").visible);
    }
}

TEST_F(DisGammaForm, ParametersAreResultsUnderTheHeadingOfTheirKind) {
    for (const Expected& expected : forms) {
        const Window& form = open(expected.form);
        std::vector<std::string> order;
        for (const Control* each : form.controls()) {
            const std::string& name = each->name();
            const auto* box = dynamic_cast<const TextBox*>(each);
            if ((box && box->result && name != "txtxp") || name == "lblOrdinarios" ||
                name == "lblLineales")
                order.push_back(name);
        }
        std::vector<std::string> wanted;
        for (const auto& field : expected.fields) {
            EXPECT_EQ(labelOf(field[0]), field[1]) << expected.form;
            EXPECT_EQ(text(field[0]), "") << expected.form;
            if (wanted.empty())
                wanted.emplace_back("lblOrdinarios");
            if (wanted.size() == expected.fields.size() / 2 + 1)
                wanted.emplace_back("lblLineales");
            wanted.push_back(field[0]);
        }
        EXPECT_EQ(order, wanted) << expected.form;
    }
}

TEST_F(DisGammaForm, BeforeAnyCalculation) {
    const auto error = [](const std::string& text) {
        return std::vector<Message>{{text, "Mensaje de Error", Icon::error}};
    };
    const auto messagesOf = [this](const std::string& button) {
        click(button);
        return messages();
    };
    for (const Expected& expected : forms) {
        open(expected.form);
        EXPECT_EQ(messagesOf("bGraficar"), error("Efectuar cálculos antes de graficar"));
        EXPECT_EQ(messagesOf("bQ"), error("Efectuar cálculos antes de evaluar caudal de diseño"));
        EXPECT_EQ(messagesOf("bT"),
                  error("Efectuar cálculos antes de evaluar el período de retorno"));
        for (const std::string button : {"bPmayor", "bPmenor"})
            EXPECT_EQ(messagesOf(button),
                      error("Efectuar cálculos antes de evaluar la probabilidad de no excedencia"))
                << button;
    }
}

} // namespace
} // namespace caudalera::testing
