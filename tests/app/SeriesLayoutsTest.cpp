// How the rows of every window lie in its file, against a table of all of them.

#include "shell/worksheet/Worksheet.h"
#include "tests/support/WindowTest.h"

#include <algorithm>
#include <cstddef>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace caudalera {
namespace {

struct Row {
    std::string_view window;
    std::size_t bytes;
    std::vector<std::string> fields;
    bool lastRecord;
    std::string_view saveFilter;
    std::string_view openFilter;
};

/// The layouts of the 32 windows with a data grid.
const std::vector<Row> table = {
    {"frmParamEsta", 4, {"X"}, false, "Valores de X|*.X", "Valores X|*.X"},
    {"frmParEstAgru", 4, {"X"}, false, "Valores de X|*.X", "Valores X|*.X"},
    {"frmDistriFre", 4, {"X"}, false, "Valores de X|*.X", "Valores X|*.X"},
    {"frmDisNormal", 4, {"X"}, false, "Valores de X|*.X", "Valores X|*.X"},
    {"frmDisLogNormal2", 4, {"X"}, false, "Valores de X|*.X", "Valores X|*.X"},
    {"frmDisLogNormal3", 4, {"X"}, false, "Valores de X|*.X", "Valores X|*.X"},
    {"frmDisGamma2par", 4, {"X"}, false, "Valores de X|*.X", "Valores X|*.X"},
    {"frmDisGamma3par", 4, {"X"}, false, "Valores de X|*.X", "Valores X|*.X"},
    {"frmDisLogPearson3", 4, {"X"}, false, "Valores de X|*.X", "Valores X|*.X"},
    {"frmDisGumbel", 4, {"X"}, false, "Valores de X|*.X", "Valores X|*.X"},
    {"frmDisLogGumbel", 4, {"X"}, false, "Valores de X|*.X", "Valores X|*.X"},
    {"frmQmaxGumbel", 4, {"X"}, true, "Valores de Q|*.Q", "Valores Q|*.Q"},
    {"frmQmaxNash", 4, {"X"}, true, "Valores de Q|*.Q", "Valores Q|*.Q"},
    {"frmVariacionEsta",
     4,
     {"X"},
     false,
     "Valores mensuales de X|*.VE",
     "Valores mensuales de X|*.VE"},
    {"frmCurvaDuracion",
     4,
     {"Caudal Q (m3/s)"},
     false,
     "Valores de caudales Q|*.CD",
     "Valores de caudales Q|*.CD"},
    {"frmPromArit",
     4,
     {"Precipitación (mm)"},
     false,
     "Valores de precipitación P|*.P",
     "Valores de precipitación P|*.P"},
    {"frmThornthwaite",
     4,
     {"Temperatura (ºC)"},
     false,
     "Temperaturas mensuales TM|*.TM",
     "Temperaturas mensuales TM|*.TM"},
    {"frmBlaneyCriddle",
     4,
     {"Temperatura (ºC)"},
     false,
     "Temperaturas mensuales TB|*.TB",
     "Temperaturas mensuales TB|*.TB"},
    {"frmEjRegSimple", 8, {"X", "Y"}, false, "Pares valores X,Y|*.XY", "Pares valores X,Y|*.XY"},
    {"frmRegreLineal", 8, {"X", "Y"}, false, "Pares valores X,Y|*.XY", "Pares valores X,Y|*.XY"},
    {"frmRegPoli2Gra", 8, {"X", "Y"}, false, "Pares valores X,Y|*.XY", "Pares valores X,Y|*.XY"},
    {"frmRegPoli3Gra", 8, {"X", "Y"}, false, "Pares valores X,Y|*.XY", "Pares valores X,Y|*.XY"},
    {"frmAnalisisTor",
     8,
     {"Tiempo parcial (min)", "Lluvia parcial (mm)"},
     false,
     "Pares valores T,H|*.TH",
     "Pares valores T,H|*.TH"},
    {"frmThiessen",
     8,
     {"Precipitación (mm)", "Área"},
     false,
     "Pares valores P, A|*.PA",
     "Pares valores P, A|*.PA"},
    {"frmIsoyeta",
     8,
     {"Valor de isoyeta (mm)", "Área entre isoyetas"},
     true,
     "Pares valores I, A|*.IA",
     "Pares valores I, A|*.IA"},
    {"frmBalanceHidro",
     8,
     {"Temperatura (ºC)", "Precipitación (mm)"},
     false,
     "Temperaturas y precipitación TP|*.TP",
     "Temperaturas y precipitación TP|*.TP"},
    {"frmRegMul2Var",
     12,
     {"X1", "X2", "Y"},
     false,
     "Trio valores X,Y,Z|*.XYZ",
     "Trio valores X,Y,Z|*.XYZ"},
    {"frmIntensidadMax",
     12,
     {"T (años)", "Duración (min)", "Imáx (mm/hr)"},
     false,
     "Trio valores T,D,I|*.TDI",
     "Trio valores T,D,I|*.TDI"},
    {"frmQmaxRacional",
     12,
     {"T (años)", "Duración (min)", "I máx (mm/hr)"},
     false,
     "Trio valores T,D,I|*.TDI",
     "Trio valores T,D,I|*.TDI"},
    {"frmQmaxMacMath",
     12,
     {"T (años)", "Duración (min)", "I máx (mm/hr)"},
     false,
     "Trio valores T,D,I|*.TDI",
     "Trio valores T,D,I|*.TDI"},
    {"frmAforoCorren",
     12,
     {"L (m)", "h (m)", "Vm (m/s)"},
     true,
     "Trio valores L,h,v|*.LHV",
     "Trio valores L,h,V|*.LHV"},
    {"frmRegMul3Var",
     16,
     {"X1", "X2", "X3", "Y"},
     false,
     "Cuartetos valores XS,Y|*.XSY",
     "Cuartetos valores XS,Y|*.XSY"},
};

class SeriesLayoutsTest : public WindowTest {};

TEST_F(SeriesLayoutsTest, EveryWindowWithADataGridHasItsRow) {
    ASSERT_EQ(table.size(), 32U);
    const std::set<std::string_view> temperatures = {"frmThornthwaite", "frmBlaneyCriddle",
                                                     "frmBalanceHidro"};
    int checked = 0;
    for (const WindowEntry& entry : ventanas()) {
        const auto* sheet = dynamic_cast<Worksheet*>(&open(std::string(entry.name)));
        const auto row = std::find_if(table.begin(), table.end(),
                                      [&](const Row& each) { return each.window == entry.name; });
        ASSERT_EQ(sheet != nullptr, row != table.end()) << entry.name;
        if (!sheet)
            continue;
        const SeriesLayout& layout = sheet->seriesLayout();
        EXPECT_EQ(layout.fields.size() * 4, row->bytes) << entry.name;
        EXPECT_EQ(layout.fields, row->fields) << entry.name;
        EXPECT_EQ(layout.lastRecord, row->lastRecord) << entry.name;
        EXPECT_EQ(layout.saveFilter, row->saveFilter) << entry.name;
        EXPECT_EQ(layout.filterToOpen(), row->openFilter) << entry.name;
        EXPECT_EQ(layout.mask, temperatures.contains(entry.name) ? "0.0#" : "#0.0#######")
            << entry.name;
        ++checked;
    }
    EXPECT_GE(checked, 4);
}

} // namespace
} // namespace caudalera
