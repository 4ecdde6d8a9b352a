// What the window of the rational method shows at the start, how it moves the focus, what its
// fields accept, what bLimpiar empties.

#include "tests/peakflow/RacionalTest.h"

#include <map>
#include <set>

namespace caudalera {
namespace {

TEST_F(RacionalTest, StartsOnTheFlowTab) {
    EXPECT_EQ(form.caption, "Cálculo del caudal máximo utilizando el método Racional");
    EXPECT_EQ(form.SSTab1.titles(),
              (std::vector<std::string>{"Cálculo de Q", "Cálculo de C", "Cálculo de I"}));
    EXPECT_EQ(form.SSTab1.tab(), 0);
    EXPECT_EQ(focus(), "txtcq");
    EXPECT_EQ(form.Picture1.image(), "racional");
    EXPECT_EQ(text("lblMensajeI"), "para una duración igual al tiempo de concentración y un "
                                   "período de retorno T");
    EXPECT_FALSE(form.calculado());
}

TEST_F(RacionalTest, FieldsHaveTheirLabelsAndUnits) {
    const struct {
        const char *name, *label, *unit;
    } fields[] = {
        {"txtcq", "Coeficiente C:", ""},
        {"txtaq", "Área cuenca:", "has"},
        {"txtiq", "Intensidad máxima (I):", "mm/hr"},
        {"txtqmax", "Q máximo:", "m3/s"},
        {"txtgrupo", "Grupo N°:", ""},
        {"txtac", "Area (a):", "has"},
        {"txts", "Pendiente", "%"},
        {"txtCponderado", "C ponderado:", ""},
        {"txtatotal", "Área total:", "has"},
        {"txtLi", "Distancia al punto más alejado (L):", "m"},
        {"txtHi", "Desnivel (H):", "m"},
        {"txtTi", "Período de retorno (T):", ""},
        {"txtDuracionAdi", "", ""},
        {"txttci", "Tiempo de concentración ó duración (tc):", "min"},
        {"txtImaxi", "Intensidad máxima (I):", "mm/hr"},
        {"txtecuacioni", "", ""},
    };
    for (const auto& [name, label, unit] : fields) {
        SCOPED_TRACE(name);
        const auto& box = control<TextBox>(name);
        EXPECT_EQ(box.label() ? box.label()->caption : "", label);
        EXPECT_EQ(box.unit() ? box.unit()->caption : "", unit);
        EXPECT_EQ(box.text(), std::string(name) == "txtgrupo" ? " 1" : "");
    }
    EXPECT_EQ(text("lblDuracionAdi"), "min");
    EXPECT_EQ(text("lblecuacioni"), "Ecuación de cálculo de Imáx:");
    EXPECT_EQ(text("lbleti1i"), "Ingreso de los tríos de datos T, D, Imáx:");
    EXPECT_EQ(text("lbleti2i"), "Nota:");
    EXPECT_EQ(text("lbleti3i"), "Una vez que digite el dato, presionar ENTER");
    EXPECT_EQ(text("lblZonasNoUrbanas"), "Zonas no urbanas:");
}

TEST_F(RacionalTest, FramesOptionsAndButtonsHaveTheirCaptions) {
    const std::map<std::string, std::string> captions = {
        {"Frame7", "Archivos y resultados:"},
        {"fraResultadoQ", "Resultado:"},
        {"fraResultadosC", "Resultados:"},
        {"fraResultadosI", "Resultados:"},
        {"fraDuracion", "La duración es conocida ?"},
        {"optDuracionAdiNo", "No"},
        {"optDuracionAdiSi", "Sí"},
        {"fraOpciones", "Opciones cálculo:"},
        {"optRegistros", "Registro de datos"},
        {"fraProvincias", "Provincia:"},
        {"optSanJose", "San José"},
        {"optPuntarenas", "Puntarenas"},
        {"optCartago", "Cartago"},
        {"optLimon", "Limón"},
        {"optLiberia", "Liberia"},
        {"optAlajuela", "Alajuela"},
        {"bCalcular", "Calc&ular"},
        {"bAgregar", "&Agregar"},
        {"bCponderado", "C ponderado"},
        {"bcalcularI", "Calcular I"},
    };
    for (const auto& [name, caption] : captions)
        EXPECT_EQ(text(name), caption) << name;
    for (const char* province :
         {"optSanJose", "optPuntarenas", "optCartago", "optLimon", "optLiberia", "optAlajuela"})
        EXPECT_NE(text("optProvincias").find(text(province)), std::string::npos);
    EXPECT_EQ(form.find("bGraficar"), nullptr);
}

TEST_F(RacionalTest, ListsStartOnTheirChoices) {
    EXPECT_EQ(form.cboCobertura.items(),
              (std::vector<std::string>{"Forestal", "Praderas", "Terrenos cultivados"}));
    EXPECT_EQ(text("cboCobertura"), "Terrenos cultivados");
    EXPECT_EQ(form.cboCobertura.label()->caption, "Cobertura:");
    EXPECT_EQ(form.cboTextura.items(),
              (std::vector<std::string>{"Franco arenosa", "Franco arcillolimosa", "Franco limosa",
                                        "Arcillosa"}));
    EXPECT_EQ(text("cboTextura"), "Franco arenosa");
    EXPECT_EQ(form.cboTextura.label()->caption, "Textura:");
    EXPECT_EQ(form.cboZUrbana.items().size(), 18U);
    EXPECT_EQ(text("cboZUrbana"), "Zonas urbanas");
    EXPECT_EQ(form.cboZUrbana.label()->caption, "Zonas urbanas");
}

TEST_F(RacionalTest, NeitherSourceNorProvinceIsSetAtTheStart) {
    EXPECT_TRUE(checked("optDuracionAdiNo"));
    for (const char* name :
         {"optDuracionAdiSi", "optProvincias", "optRegistros", "optSanJose", "optPuntarenas",
          "optCartago", "optLimon", "optLiberia", "optAlajuela"})
        EXPECT_FALSE(checked(name)) << name;
    for (const char* name : {"txtDuracionAdi", "lblDuracionAdi", "fraProvincias", "lblecuacioni",
                             "txtecuacioni", "lbleti1i", "lbleti2i", "lbleti3i", "grdt", "txtt"})
        EXPECT_FALSE(shown(name)) << name;
}

TEST_F(RacionalTest, ResultsAreShownApartFromWhatIsEntered) {
    for (const char* name : {"txttci", "txtImaxi", "txtecuacioni"})
        EXPECT_TRUE(control<TextBox>(name).result) << name;
    for (const char* name :
         {"txtcq", "txtaq", "txtiq", "txtac", "txts", "txtLi", "txtHi", "txtTi", "txtDuracionAdi"})
        EXPECT_FALSE(control<TextBox>(name).result) << name;
}

TEST_F(RacionalTest, GridsStartEmpty) {
    EXPECT_EQ(form.grdC.Rows(), 50);
    EXPECT_EQ(form.grdC.Cols(), 6);
    EXPECT_EQ(form.grdC.FixedRows(), 1);
    EXPECT_EQ(form.grdC.FixedCols(), 0);
    EXPECT_EQ(form.grdC.visibleRows, 10);
    EXPECT_EQ(rowText("grdC", 0), "Grupo N°|Área|Cobertura|Textura|Pendiente|C");
    EXPECT_EQ(rowText("grdC", 1), "|||||");
    EXPECT_EQ(form.grdt.Rows(), 2);
    EXPECT_EQ(form.grdt.FixedCols(), 1);
    EXPECT_EQ(form.grdt.visibleRows, 14);
    EXPECT_EQ(rowText("grdt", 0), "Trío|T (años)|Duración (min)|I máx (mm/hr)");
    EXPECT_EQ(rowText("grdt", 1), "[?]|||");
}

TEST_F(RacionalTest, EnterMovesAlongTheFieldsOfEachTab) {
    for (const char* next : {"txtaq", "txtiq", "bCalcular"}) {
        key(focus(), Key::Kind::enter);
        EXPECT_EQ(focus(), next);
    }
    tab(2);
    for (const char* next : {"txtHi", "txtTi", "txtTi"}) {
        key(focus(), Key::Kind::enter);
        EXPECT_EQ(focus(), next);
    }
}

TEST_F(RacionalTest, ATabGivesItsFirstFieldTheFocus) {
    tab(1);
    EXPECT_EQ(focus(), "txtac");
    tab(2);
    EXPECT_EQ(focus(), "txtLi");
    tab(0);
    EXPECT_EQ(focus(), "txtcq");
}

TEST_F(RacionalTest, TheIntensityTabAsksForTheConcentrationTimeAgain) {
    click("optDuracionAdiSi");
    tab(0);
    EXPECT_TRUE(checked("optDuracionAdiSi"));
    tab(2);
    EXPECT_TRUE(checked("optDuracionAdiNo"));
    EXPECT_FALSE(shown("txtDuracionAdi"));
    EXPECT_FALSE(shown("lblDuracionAdi"));
}

TEST_F(RacionalTest, NumberFieldsTakeDigitsOnePointAndBackspace) {
    for (const char* name : {"txtcq", "txtaq", "txtiq", "txtac", "txts", "txtLi", "txtHi", "txtTi",
                             "txtDuracionAdi"}) {
        SCOPED_TRACE(name);
        type(name, "-1a2 .5,.7e+3");
        EXPECT_EQ(text(name), "12.573");
        program.key(control<Control>(name), {Key::Kind::character, 8});
        EXPECT_EQ(text(name), "12.57");
        enter(name, "-3 pegado");
        EXPECT_EQ(text(name), "-3 pegado");
        enter(name, "");
        // The characters beside the digits are a slash and a colon.
        type(name, "/0123456789:");
        EXPECT_EQ(text(name), "0123456789");
    }
    click("optRegistros");
    type("grdt", "-a");
    EXPECT_EQ(text("txtt"), "-a");
}

TEST_F(RacionalTest, NumberFieldsJudgeTheWholeTextThatWouldResult) {
    for (const char* name : {"txtcq", "txtaq", "txtiq", "txtac", "txts", "txtLi", "txtHi", "txtTi",
                             "txtDuracionAdi"}) {
        SCOPED_TRACE(name);
        auto& box = control<TextBox>(name);
        for (const char* refused : {"1.2.3", "-5", "1e3", "abc", "12 m", "1,5,2"})
            program.pasteText(box, refused);
        program.insertText(box, "0,45");
        program.insertText(box, "1.2.3");
        EXPECT_EQ(box.text(), "");
        program.pasteText(box, "0,45");
        EXPECT_EQ(box.text(), "0.45");
        program.pasteText(box, "1.5");
        EXPECT_EQ(box.text(), "0.45") << "two points";
        program.select(box, 0, 4);
        program.pasteText(box, "1.234,5");
        EXPECT_EQ(box.text(), "1234.5");
        program.select(box, 3, 3);
        type(name, ".");
        EXPECT_EQ(box.text(), "123.") << "the point that stood there is replaced";
    }
}

TEST_F(RacionalTest, ClearingTheFlowTabLeavesTheOthers) {
    for (const char* name : {"txtcq", "txtaq", "txtiq", "txtac", "txts", "txtLi", "txtHi", "txtTi"})
        enter(name, "1");
    click("bCalcular");
    click("bLimpiar");
    for (const char* name : {"txtcq", "txtaq", "txtiq", "txtqmax"})
        EXPECT_EQ(text(name), "") << name;
    for (const char* name : {"txtac", "txts", "txtLi", "txtHi", "txtTi"})
        EXPECT_EQ(text(name), "1") << name;
    EXPECT_EQ(focus(), "txtcq");
}

/// Counts how often each control stands in a layout.
void count(const Layout& node, std::map<const Control*, int>& times) {
    if (node.control)
        ++times[node.control];
    for (const auto& line : node.lines) {
        if (line.label)
            ++times[line.label];
        for (const Control* field : line.fields)
            ++times[field];
        if (line.unit)
            ++times[line.unit];
    }
    for (const Layout& child : node.children)
        count(child, times);
}

TEST_F(RacionalTest, EveryControlHasItsPlaceOnce) {
    std::map<const Control*, int> times;
    count(form.layout, times);
    for (const auto& group : form.commands) {
        if (group.frame)
            ++times[group.frame];
        for (const Button* button : group.buttons)
            ++times[button];
    }
    for (const Control* control : form.controls()) {
        const bool placedByTheView = control->kind() == ControlKind::menu ||
                                     control->kind() == ControlKind::status ||
                                     control == &form.txtt;
        EXPECT_EQ(times[control], placedByTheView ? 0 : 1) << control->name();
    }
    EXPECT_EQ(form.layout.kind, Layout::Kind::tabs);
    EXPECT_EQ(form.layout.children.size(), 3U);
}

} // namespace
} // namespace caudalera
