#include "shell/worksheet/SeriesLayouts.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace caudalera {

namespace {

constexpr std::string_view saveX = "Valores de X|*.X";
constexpr std::string_view openX = "Valores X|*.X";
constexpr std::string_view saveQ = "Valores de Q|*.Q";
constexpr std::string_view openQ = "Valores Q|*.Q";
constexpr std::string_view pairsXY = "Pares valores X,Y|*.XY";
constexpr std::string_view triosTDI = "Trio valores T,D,I|*.TDI";
constexpr std::string_view temperatureMask = "0.0#";

/// A layout whose two dialogs have the same filter.
SeriesLayout same(std::string_view window, std::vector<std::string_view> fields,
                  std::string_view filter) {
    return {window, std::move(fields), filter, filter};
}

} // namespace

const std::vector<SeriesLayout>& seriesLayouts() {
    static const std::vector<SeriesLayout> layouts = {
        {"frmParamEsta", {"X"}, saveX, openX},
        {"frmParEstAgru", {"X"}, saveX, openX},
        {"frmDistriFre", {"X"}, saveX, openX},
        {"frmDisNormal", {"X"}, saveX, openX},
        {"frmDisLogNormal2", {"X"}, saveX, openX},
        {"frmDisLogNormal3", {"X"}, saveX, openX},
        {"frmDisGamma2par", {"X"}, saveX, openX},
        {"frmDisGamma3par", {"X"}, saveX, openX},
        {"frmDisLogPearson3", {"X"}, saveX, openX},
        {"frmDisGumbel", {"X"}, saveX, openX},
        {"frmDisLogGumbel", {"X"}, saveX, openX},
        {"frmQmaxGumbel", {"X"}, saveQ, openQ, true},
        {"frmQmaxNash", {"X"}, saveQ, openQ, true},
        same("frmVariacionEsta", {"X"}, "Valores mensuales de X|*.VE"),
        same("frmCurvaDuracion", {"Caudal Q (m3/s)"}, "Valores de caudales Q|*.CD"),
        same("frmPromArit", {"Precipitación (mm)"}, "Valores de precipitación P|*.P"),
        {"frmThornthwaite",
         {"Temperatura (ºC)"},
         "Temperaturas mensuales TM|*.TM",
         "Temperaturas mensuales TM|*.TM",
         false,
         temperatureMask},
        {"frmBlaneyCriddle",
         {"Temperatura (ºC)"},
         "Temperaturas mensuales TB|*.TB",
         "Temperaturas mensuales TB|*.TB",
         false,
         temperatureMask},
        same("frmEjRegSimple", {"X", "Y"}, pairsXY),
        same("frmRegreLineal", {"X", "Y"}, pairsXY),
        same("frmRegPoli2Gra", {"X", "Y"}, pairsXY),
        same("frmRegPoli3Gra", {"X", "Y"}, pairsXY),
        same("frmAnalisisTor", {"Tiempo parcial (min)", "Lluvia parcial (mm)"},
             "Pares valores T,H|*.TH"),
        same("frmThiessen", {"Precipitación (mm)", "Área"}, "Pares valores P, A|*.PA"),
        {"frmIsoyeta",
         {"Valor de isoyeta (mm)", "Área entre isoyetas"},
         "Pares valores I, A|*.IA",
         "Pares valores I, A|*.IA",
         true},
        {"frmBalanceHidro",
         {"Temperatura (ºC)", "Precipitación (mm)"},
         "Temperaturas y precipitación TP|*.TP",
         "Temperaturas y precipitación TP|*.TP",
         false,
         temperatureMask},
        same("frmRegMul2Var", {"X1", "X2", "Y"}, "Trio valores X,Y,Z|*.XYZ"),
        same("frmIntensidadMax", {"T (años)", "Duración (min)", "Imáx (mm/hr)"}, triosTDI),
        same("frmQmaxRacional", {"T (años)", "Duración (min)", "I máx (mm/hr)"}, triosTDI),
        same("frmQmaxMacMath", {"T (años)", "Duración (min)", "I máx (mm/hr)"}, triosTDI),
        {"frmAforoCorren",
         {"L (m)", "h (m)", "Vm (m/s)"},
         "Trio valores L,h,v|*.LHV",
         "Trio valores L,h,V|*.LHV",
         true},
        same("frmRegMul3Var", {"X1", "X2", "X3", "Y"}, "Cuartetos valores XS,Y|*.XSY"),
    };
    return layouts;
}

const SeriesLayout& seriesLayout(std::string_view window) {
    const auto& all = seriesLayouts();
    const auto found = std::find_if(
        all.begin(), all.end(), [&](const SeriesLayout& each) { return each.window == window; });
    if (found == all.end())
        throw std::logic_error("no series layout for " + std::string(window));
    return *found;
}

} // namespace caudalera
