#include "stats/frmParamEsta.h"

#include "stats/tablaParametros.h"

namespace caudalera {

namespace {

constexpr std::string_view mascaraComun = "0.##00";
constexpr std::string_view mascaraVarianza = "0.0###";
constexpr std::string_view mascaraLineal = "0.0000";

} // namespace

frmParamEsta::frmParamEsta(Program& program)
    : SeriesWorksheet(program, "frmParamEsta",
                      "Cálculo de parámetros estadísticos, comunes y con momentos lineales") {
    using namespace layout;
    registrarResultados({&txtL1, &txtL2, &txtL3, &txtL4});
    for (TextBox* campo : {&txtL1, &txtL2, &txtL3, &txtL4})
        campo->width = 14;
    prepararTablaParametros(grdParam, {2050, 1750, 1750, 1750});
    disponer(column({control(grdParam).stretched(),
                     frame(fraCoeficientes, fields({txtL1, txtL2, txtL3, txtL4}))})
                 .stretched());
}

void frmParamEsta::reiniciarResultados() {
    reiniciarTablaParametros(grdParam,
                             {"Parámetros", "Muestrales", "Poblacionales", "Momentos Lineales"});
}

void frmParamEsta::calcular() {
    leerOrdenada();
    if (!hayPuntos(n, {"Para el cálculo de los parámetros se requieren por lo menos dos datos",
                       "Error", Icon::error}))
        return;
    const SumasCentrales sumas = sumasCentrales(serieX.primeros(n));
    const ParametrosComunes muestrales = parametrosMuestrales(sumas);
    const ParametrosComunes poblacionales = parametrosPoblacionales(sumas);
    const MomentosLineales momentos = momentosLineales(serieOrdenada.primeros(n));
    escribirMomentos(momentos);
    escribirParametros(grdParam, {textosComunes(muestrales), textosComunes(poblacionales),
                                  textosLineales(momentos)});
}

void frmParamEsta::escribirMomentos(const MomentosLineales& momentos) {
    txtL1.setText(formatear(momentos.l1, mascaraLineal));
    txtL2.setText(formatear(momentos.l2, mascaraLineal));
    txtL3.setText(formatear(momentos.l3, mascaraLineal));
    txtL4.setText(formatear(momentos.l4, mascaraLineal));
}

std::vector<std::string> frmParamEsta::textosComunes(const ParametrosComunes& p) const {
    return {formatear(p.media, mascaraComun),      formatear(p.varianza, mascaraVarianza),
            formatear(p.desviacion, mascaraComun), formatear(p.variacion, mascaraComun),
            formatear(p.sesgo, mascaraComun),      formatear(p.curtosis, mascaraComun)};
}

std::vector<std::string> frmParamEsta::textosLineales(const MomentosLineales& momentos) const {
    // Here the ratios of the linear moments stand for variation, skew and kurtosis, and the square
    // of the second one for the variance.
    const auto [l1, l2, l3, l4] = momentos;
    return {formatear(l1, mascaraLineal),      formatear(Pow(l2, 2), mascaraVarianza),
            formatear(l2, mascaraLineal),      formatear(l2 / l1, mascaraLineal),
            formatear(l3 / l2, mascaraLineal), formatear(l4 / l2, mascaraLineal)};
}

void frmParamEsta::escribirReporte(ReportWriter& reporte) {
    constexpr auto LF = ReportWriter::LF;
    reporteDeSerie(reporte);
    reporteDeParametros(reporte, grdParam,
                        "     Parámetros       \t                   Muestrales \t"
                        " Poblacionales  \t    Momentos Lineales  ",
                        145);

    reporte << "Coeficientes Lineales:" << LF << LF;
    reporte << "L1 = " << txtL1.text() << LF << "L2 = " << txtL2.text() << LF;
    reporte << "L3 = " << txtL3.text() << LF << "L4 = " << txtL4.text() << LF << LF;

    reporteDeOrdenados(reporte);
}

} // namespace caudalera
