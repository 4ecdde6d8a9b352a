// What the window of the log-normal distribution of two parameters shows when it opens.

#include "shell/window/Window.h"
#include "tests/fitting/DisLogNormal2Test.h"

namespace caudalera::testing {
namespace {

class DisLogNormal2Form : public DisLogNormal2Test {};

TEST_F(DisLogNormal2Form, TextsOfTheWindow) {
    EXPECT_EQ(window("frmDisLogNormal2").caption,
              "Ajuste de una serie de datos a la distribución lognormal de 2 parámetros");
    EXPECT_EQ(text("fraParametros"), "Parámetros distribución log-normal:");
    EXPECT_EQ(text("fraTipoAjuste"), "Tipo de ajuste:");
    EXPECT_EQ(text("fraNivel"), "Nivel significación:");
    EXPECT_EQ(text("fraCaudal"), "Caudal de diseño:");
    EXPECT_EQ(text("lblAjuste"), "Ajuste:");
    EXPECT_EQ(text("lblmensaje"), "");
}

TEST_F(DisLogNormal2Form, FieldsOfTheParameters) {
    EXPECT_EQ(labelOf("txtux"), "De escala (µy):");
    EXPECT_EQ(labelOf("txtSX"), "De forma (Sy):");
    EXPECT_EQ(labelOf("txtmedial"), "De escala (µyl):");
    EXPECT_EQ(labelOf("txtsl"), "De forma (Syl):");
    EXPECT_EQ(parameters(), noParameters);
}

TEST_F(DisLogNormal2Form, OptionsAndTheirDefaults) {
    EXPECT_TRUE(control<Option>("optOrdinario").checked());
    EXPECT_FALSE(control<Option>("optMomentoLi").checked());
    EXPECT_TRUE(control<Option>("opt005").checked());
}

TEST_F(DisLogNormal2Form, EmptyGridsWithTheirHeaders) {
    EXPECT_EQ(rowText("grdt", 0), "N°|X");
    EXPECT_EQ(rowText("grddis", 0), "m|X|P(X)|F(Z) Ordinario|F(Z) Mom Lineal|Delta");
    EXPECT_EQ(control<MSFlexGrid>("grddis").Rows(), 500);
    EXPECT_TRUE(resultRows().empty());
}

} // namespace
} // namespace caudalera::testing
