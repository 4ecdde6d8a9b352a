#include "shell/window/Program.h"
#include "tests/support/WindowTest.h"

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace caudalera {
namespace {

struct Row {
    std::string_view menu;
    std::string_view entry;
    std::string_view caption;
    std::string_view opens;
    std::string_view windowCaption;
};

/// The menu bar, entry by entry in order; the window's caption stands where the entry opens one.
const std::vector<Row> table = {
    {"mpara", "mparanoagru", "Datos no agrupados", "frmParamEsta",
     "Cálculo de parámetros estadísticos, comunes y con momentos lineales"},
    {"mpara", "mparaagru", "Datos agrupados", "frmParEstAgru",
     "Cálculo de parámetros estadísticos agrupando datos"},
    {"mpara", "mparadistri", "Distribución de frecuencia", "frmDistriFre",
     "Cálculo de la distribución de frecuencia de una muestra"},
    {"mpara", "mparasalir", "&Salir", "", ""},
    {"mregre", "mnuregreLineal", "Regresión &lineal", "frmRegreLineal",
     "Cálculos con ecuaciones de regresión lineal simple, admite valores negativos o 0"},
    {"mregre", "mregresimple", "Regresión &simple", "frmEjRegSimple",
     "Cálculos con ecuaciones de Regresión Simple"},
    {"mregre", "mregremulti2", "Regresión múltiple &2 var. independientes", "frmRegMul2Var",
     "Cálculos con ecuaciones de Regresión Múltiple, con 2 variables independientes"},
    {"mregre", "mregremul3", "Regresión múltiple &3 var. independientes", "frmRegMul3Var",
     "Cálculos con ecuaciones de regresión múltiple, con 3 variables independientes"},
    {"mregre", "mregrepoli2", "Regresión &polinomial 2° grado", "frmRegPoli2Gra",
     "Cálculos con ecuaciones de regresión polinomial de 2° grado"},
    {"mregre", "mregrepoli3", "Regresión polinomial 3° &grado", "frmRegPoli3Gra",
     "Cálculos con ecuaciones de regresión polinomial de 3er grado"},
    {"mdistri", "mdistrinormal", "&Normal", "frmDisNormal",
     "Ajuste de una serie de datos a la distribución normal"},
    {"mdistri", "mdistrinlog2para", "LogNormal 2 parámetros", "frmDisLogNormal2",
     "Ajuste de una serie de datos a la distribución lognormal de 2 parámetros"},
    {"mdistri", "mdistrilog3", "LogNormal 3 parámetros", "frmDisLogNormal3",
     "Ajuste de una serie de datos a la distribución lognormal de 3 parámetros"},
    {"mdistri", "mdistrgam2", "Gamma 2 parámetros", "frmDisGamma2par",
     "Ajuste de una serie de datos a la distribución Gamma de 2 parámetros"},
    {"mdistri", "mdistrigam3", "Gamma 3 parámetros", "frmDisGamma3par",
     "Ajuste de una serie de datos a la distribución Gamma de 3 parámetros"},
    {"mdistri", "mdistrilogPearson", "LogPearson tipo III", "frmDisLogPearson3",
     "Ajuste de una serie de datos a la distribución Log-Pearson tipo III"},
    {"mdistri", "mdistriGumbel", "Gumbel", "frmDisGumbel",
     "Ajuste de una serie de datos a la distribución Gumbel"},
    {"mdistri", "mdistrilogGumbel", "LogGumbel", "frmDisLogGumbel",
     "Ajuste de una serie de datos a la distribución logGumbel o distribución de Fréchet"},
    {"mcurvaca", "mcurvacavaresta", "Curva de variación estacional", "frmVariacionEsta",
     "Curva de variación estacional"},
    {"mcurvaca", "mcurvacadura", "Curva de duración", "frmCurvaDuracion",
     "Análisis de frecuencia de caudales, a través de la curva de duración"},
    {"mpreci", "mprecitormen", "Análisis tormenta", "frmAnalisisTor",
     "Análisis de una tormenta y cálculo de la intensidad maxima"},
    {"mpreci", "mnupreciintmax", "Cálculo intensidad máxima", "frmIntensidadMax",
     "Cálculo de la intensidad máxima de diseño para una duración y período de retorno dado"},
    {"mpreci", "mpreciprom", "Promedio aritmético", "frmPromArit",
     "Cálculo de la precipitación promedio por el método del promedio aritmético"},
    {"mpreci", "mprepoligono", "Polígono de Thiessen", "frmThiessen",
     "Cálculo de la precipitación promedio por el método de Thiessen"},
    {"mpreci", "mpreisoyeta", "Isoyetas", "frmIsoyeta",
     "Cálculo de la precipitación promedio por el método de las isoyetas"},
    {"maforo", "maforocorren", "Correntómetro", "frmAforoCorren",
     "Aforo con correntómetro o molinete"},
    {"mmaxi", "mmaxeraci", "Racioanal", "frmQmaxRacional",
     "Cálculo del caudal máximo utilizando el método Racional"},
    {"mmaxi", "mmaxemmacmath", "Mac Math", "frmQmaxMacMath",
     "Cálculo del caudal máximo utilizando el método de Mac Math"},
    {"mmaxi", "mmaxestgumbel", "Gumbel", "frmQmaxGumbel",
     "Cálculo de caudal de diseño utilizando la distribución Gumbel"},
    {"mmaxi", "maxestnash", "Nash", "frmQmaxNash",
     "Cálculo del caudal de diseño utilizando el método estadístico propuesto por Nash"},
    {"mevapo", "mevthorn", "Thornthwaite", "frmThornthwaite",
     "Cálculo de la evapotranspiración potencial por el método de Thornthwaite"},
    {"mevapo", "mevablaney", "Blaney-Criddle", "frmBlaneyCriddle",
     "Cálculo de la evapotranspiración potencial por el método de Blaney_Criddle modificado por la "
     "FAO"},
    {"mevapo", "mevapenman", "Penman", "frmPenman",
     "Cálculo de la evapotranspiración potencial por el método de Penman modificado por la FAO"},
    {"mevapo", "mevaHargreaves", "Hargreaves", "frmHargreaves",
     "Cálculo de la evapotranspiración potencial por el método de Hargreaves"},
    {"mevapo", "mevabalance", "Balance hídrico", "frmBalanceHidro",
     "Cálculo del balance hídrico por el método de Thornthwaite"},
    {"mayuda", "mayuayu", "Ayuda", "", ""},
    {"mayuda", "mayuacerca", "Acerca de Caudalera", "frmacerc", "Acerca de Caudalera para Windows"},
};

const std::vector<std::pair<std::string, std::string>> titles = {
    {"mpara", "Parámetros Estadísticos"},
    {"mregre", "&Regresión"},
    {"mdistri", "&Distribuciones"},
    {"mcurvaca", "Curvas características"},
    {"mpreci", "Precipitación"},
    {"maforo", "Aforo"},
    {"mmaxi", "Caudales máximos"},
    {"mevapo", "Evapotranspiración"},
    {"mayuda", "Ayuda"},
};

class MenuTest : public WindowTest {
protected:
    Window& main() { return window("frmCaudalera"); }
    std::vector<std::string> loaded() const {
        std::vector<std::string> names;
        for (const auto& each : program.windows())
            names.push_back(each->name());
        return names;
    }
};

TEST_F(MenuTest, TheMainWindowHasItsCaptionAndExitButton) {
    EXPECT_EQ(main().caption, "Caudalera, software para cálculos hidrológicos y estadísticos "
                              "aplicados a la hidrología");
    EXPECT_EQ(text("bsalir"), "&Salir");
}

TEST_F(MenuTest, TheMenuBarHasItsTitlesInOrder) {
    const auto& bar = main().menuBar;
    ASSERT_EQ(bar.size(), titles.size());
    for (std::size_t i = 0; i < titles.size(); ++i) {
        EXPECT_EQ(bar[i]->name(), titles[i].first);
        EXPECT_EQ(bar[i]->caption, titles[i].second);
    }
}

TEST_F(MenuTest, EveryEntryStandsInItsPlaceWithItsCaption) {
    std::vector<std::string> expected;
    for (const Row& row : table) {
        expected.push_back(std::string(row.menu) + ": " + std::string(row.entry) + " \"" +
                           std::string(row.caption) + "\"");
    }
    std::vector<std::string> found;
    for (const MenuEntry* title : main().menuBar) {
        for (const MenuEntry* entry : title->entries) {
            if (entry) {
                found.push_back(title->name() + ": " + entry->name() + " \"" + entry->caption +
                                "\"");
            }
        }
    }
    EXPECT_EQ(found, expected);
}

TEST_F(MenuTest, SeparatorsStandBetweenEntriesOnly) {
    for (const MenuEntry* title : main().menuBar) {
        ASSERT_FALSE(title->entries.empty());
        EXPECT_NE(title->entries.front(), nullptr) << title->name();
        EXPECT_NE(title->entries.back(), nullptr) << title->name();
        for (std::size_t i = 1; i < title->entries.size(); ++i)
            EXPECT_TRUE(title->entries[i] || title->entries[i - 1]) << title->name();
    }
}

TEST_F(MenuTest, AnEntryIsEnabledWhenThereIsWhatItOpens) {
    std::set<std::string_view> known = {""};
    for (const WindowEntry& entry : ventanas())
        known.insert(entry.name);
    main();
    for (const Row& row : table) {
        EXPECT_EQ(control<MenuEntry>(std::string(row.entry)).enabled, known.contains(row.opens))
            << row.entry;
    }
}

TEST_F(MenuTest, EveryEntryOpensItsWindowUnderItsCaption) {
    int opened = 0;
    for (const Row& row : table) {
        main();
        if (row.opens.empty() || !control<MenuEntry>(std::string(row.entry)).enabled)
            continue;
        click(std::string(row.entry));
        const Window* const window = program.front();
        ASSERT_NE(window, nullptr);
        EXPECT_EQ(window->name(), row.opens);
        EXPECT_EQ(window->caption, row.windowCaption);
        EXPECT_TRUE(window->visible);
        EXPECT_FALSE(program.ended()) << row.entry;
        ++opened;
    }
    EXPECT_EQ(program.windows().size(), static_cast<std::size_t>(opened) + 1)
        << "all of them stand open together, the main window behind";
}

TEST_F(MenuTest, EveryWindowThatThereIsHasItsEntry) {
    std::set<std::string_view> opens = {"frmCaudalera", "frmPadre", "frmCalculadora"};
    for (const Row& row : table)
        opens.insert(row.opens);
    for (const WindowEntry& entry : ventanas())
        EXPECT_TRUE(opens.contains(entry.name)) << entry.name;
}

TEST_F(MenuTest, AnEntryOfWhatIsNotThereDoesNothing) {
    const auto none = withProgramWindows({});
    RecordingPlatform other;
    Program bare(other, none);
    bare.start();
    auto& entry = dynamic_cast<MenuEntry&>(*bare.find("frmCaudalera")->find("mdistrinormal"));
    EXPECT_FALSE(entry.enabled);
    bare.click(entry);
    EXPECT_EQ(bare.windows().size(), 1U);
    EXPECT_FALSE(bare.ended());
}

TEST_F(MenuTest, AMenuTitleOpensNoWindow) {
    main();
    for (const auto& [name, caption] : titles)
        click(name);
    EXPECT_EQ(loaded(), std::vector<std::string>{"frmCaudalera"});
}

TEST_F(MenuTest, HelpStartsTheViewerAndDoesNotWait) {
    main();
    click("mayuayu");
    EXPECT_EQ(platform.processes,
              std::vector<std::string>{R"(c:\Caudalera\hh c:\Caudalera\Ayuda.chm)"});
    EXPECT_EQ(messages(), std::vector<Message>{});
}

TEST_F(MenuTest, HelpThatCannotBeStartedIsToldAndTheProgramGoesOn) {
    platform.processesFail = true;
    main();
    click("mayuayu");
    expectMessage(
        {"Para obtener la ayuda presionar tecla F1 ", "Mensaje de error", Icon::information});
    EXPECT_FALSE(program.ended());
    EXPECT_EQ(loaded(), std::vector<std::string>{"frmCaudalera"});
}

TEST_F(MenuTest, TheAboutBoxClosesBackToTheMainWindow) {
    main();
    click("mayuacerca");
    EXPECT_EQ(window("frmacerc").caption, "Acerca de Caudalera para Windows");
    EXPECT_EQ(text("bsalir"), "&Cerrar");
    click("bsalir");
    EXPECT_EQ(loaded(), std::vector<std::string>{"frmCaudalera"});
    EXPECT_EQ(program.front()->name(), "frmCaudalera");
    EXPECT_FALSE(program.ended());
}

} // namespace
} // namespace caudalera
