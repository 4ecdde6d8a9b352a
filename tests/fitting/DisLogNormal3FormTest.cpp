// What the window of the log-normal distribution of three parameters shows when it opens.

#include "fitting/FitWindow.h"
#include "fitting/logNormal2.h"
#include "fitting/logNormal3.h"
#include "shell/window/Window.h"
#include "tests/fitting/DisLogNormal3Test.h"

namespace caudalera::testing {
namespace {

static_assert(ConMomentosLineales<LogNormal2>);
static_assert(!ConMomentosLineales<LogNormal3>);

class DisLogNormal3Form : public DisLogNormal3Test {};

TEST_F(DisLogNormal3Form, TextsOfTheWindow) {
    EXPECT_EQ(window("frmDisLogNormal3").caption,
              "Ajuste de una serie de datos a la distribución lognormal de 3 parámetros");
    EXPECT_EQ(text("fraParametros"), "Parámetros distribución log-normal:");
    EXPECT_EQ(text("fraNivel"), "Nivel significación:");
    EXPECT_EQ(text("fraCaudal"), "Caudal de diseño:");
    EXPECT_EQ(text("lblAjuste"), "Ajuste:");
    EXPECT_EQ(text("lblmensaje"), "");
}

TEST_F(DisLogNormal3Form, FieldsOfTheParameters) {
    EXPECT_EQ(labelOf("txtxo"), "De posición (xo):");
    EXPECT_EQ(labelOf("txtux"), "De escala (µy):");
    EXPECT_EQ(labelOf("txtSX"), "De forma (Sy):");
    EXPECT_EQ(parameters(), noParameters);
}

TEST_F(DisLogNormal3Form, HasNoChoiceOfMoments) {
    for (const std::string name :
         {"fraTipoAjuste", "optOrdinario", "optMomentoLi", "txtmedial", "txtsl"})
        EXPECT_EQ(window("frmDisLogNormal3").find(name), nullptr) << name;
    EXPECT_TRUE(control<Option>("opt005").checked());
}

TEST_F(DisLogNormal3Form, EmptyGridsWithTheirHeaders) {
    EXPECT_EQ(rowText("grdt", 0), "N°|X");
    EXPECT_EQ(rowText("grddis", 0), "m|X|P(X)|Z|F(Z)|Delta");
    auto& grid = control<MSFlexGrid>("grddis");
    EXPECT_EQ(grid.Rows(), 500);
    EXPECT_EQ(grid.columnWidths, (std::vector<int>{700, 1000, 1000, 1200, 1300, 1000}));
    EXPECT_TRUE(resultRows().empty());
}

} // namespace
} // namespace caudalera::testing
