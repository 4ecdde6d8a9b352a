#include "evapotranspiration/frmPenman.h"

#include "evapotranspiration/tablasSolares.h"

#include <string_view>
#include <utility>

namespace caudalera {

namespace {

constexpr std::string_view mascaraResultado = "0.0#";
constexpr long guionesDelReporte = 35;

} // namespace

frmPenman::frmPenman(Program& program)
    : SingleMonthWindow(program, "frmPenman",
                        "Cálculo de la evapotranspiración potencial por el método de Penman "
                        "modificado por la FAO") {
    disponer();
}

void frmPenman::disponer() {
    using namespace layout;
    registrarEntradas(
        {&txtLatitud, &txth, &txtT, &txtHRmed, &txtHRmax, &txtUz, &txtHz, &txtRVdVn, &txtnp});
    registrarResultados({&txtRa,  &txtN,         &txtRnpNg,     &txtFhv, &txtU2,  &txtea,
                         &txted,  &txteaed,      &txtw,         &txt1w,  &txtfu,  &txtft,
                         &txtfed, &txtfnN,       &txtRn1,       &txtRs,  &txtRns, &txtRn,
                         &txtC,   &txtRadiacion, &txtAdveccion, &txtETo});
    const Layout datos = fields(
        {lineaDeLatitud(), txth, cobMes, txtT, txtHRmed, txtHRmax, txtUz, txtHz, txtRVdVn, txtnp});
    const Layout parciales =
        row({fields({txtRa, txtN, txtRnpNg, txtFhv, txtU2, txtea, txted, txteaed, txtw}),
             fields({txt1w, txtfu, txtft, txtfed, txtfnN, txtRn1, txtRs, txtRns, txtRn})});
    layout = row({
        frame(fraDatos, datos),
        column({frame(fraParciales, parciales),
                frame(fraFinales, fields({txtC, txtRadiacion, txtAdveccion, txtETo}))}),
    });
}

void frmPenman::limpiar() {
    vaciarCampos();
    reiniciarSitio();
}

DatosPenman frmPenman::leerDatos() {
    DatosPenman datos;
    datos.latitud = enRadianes(leer(txtLatitud, "la latitud").value_or(0));
    tomarMes();
    datos.h = leer(txth, "la altitud").value_or(0);
    temperatura_ = leer(txtT, "la temperatura").value_or(temperatura_);
    datos.T = temperatura_;
    datos.HRmed = leer(txtHRmed, "la humedad relativa media").value_or(0);
    datos.HRmax = leer(txtHRmax, "la humedad relativa máxima").value_or(0);
    datos.Uz = leer(txtUz, "la velocidad del viento").value_or(0);
    datos.hz = leer(txtHz, "la altura de medición del viento").value_or(0);
    datos.VdVn = leer(txtRVdVn, "la relación de velocidades del viento Vd/Vn").value_or(0);
    datos.n = leer(txtnp, "el número de horas de insolación solar real").value_or(0);
    datos.declinacion = declinacionSolar(mes());
    datos.dr = factorDistancia(mes());
    return datos;
}

void frmPenman::calcular() {
    mostrar(penman(leerDatos()));
}

void frmPenman::mostrar(const TerminosPenman& t) {
    const std::pair<TextBox*, Real> valores[] = {
        {&txtN, t.N},
        {&txtRa, t.Ra},
        {&txtRnpNg, t.nN},
        {&txtFhv, t.fz},
        {&txtU2, t.U2},
        {&txtea, t.ea},
        {&txted, t.ed},
        {&txteaed, t.deficit},
        {&txtw, t.w},
        {&txt1w, t.unoMenosW},
        {&txtfu, t.fu},
        {&txtft, t.ft},
        {&txtfed, t.fed},
        {&txtfnN, t.fnN},
        {&txtRs, t.Rs},
        {&txtRns, t.Rns},
        {&txtRn1, t.Rn1},
        {&txtRn, t.Rn},
        {&txtRadiacion, t.terRadiacion},
        {&txtAdveccion, t.terAdveccion},
        {&txtC, t.c},
        {&txtETo, t.ETo},
    };
    for (const auto& [campo, valor] : valores)
        campo->setText(formatear(valor, mascaraResultado));
}

void frmPenman::escribirReporte(ReportWriter& reporte) {
    escribirDatos(reporte);
    escribirParciales(reporte);
    escribirFinales(reporte);
}

void frmPenman::escribirDatos(ReportWriter& reporte) const {
    constexpr auto LF = ReportWriter::LF;
    reporte.encabezado({"Datos: "}, guionesDelReporte);
    reporte << " Latitud: Lat = " << txtLatitud.text() << " " << cobNS.text() << LF;
    reporte << " Altitud: h = " << txth.text() << " m.s.n.m." << LF;
    reporte << " Mes de cálculo: Mes = " << cobMes.text() << LF;
    reporte << " Temperatura: Tmed = " << txtT.text() << " ºC" << LF;
    reporte << " Humedad relativa media: HRmed = " << txtHRmed.text() << " %" << LF;
    reporte << " Humedad relativa máxima: HRmáx = " << txtHRmax.text() << " %" << LF;
    reporte << " Velocidad del viento: Uz = " << txtUz.text() << " km/hr" << LF;
    reporte << " Altura medición del viento hz = : " << txtHz.text() << " m" << LF;
    reporte << " Relación velocidad dia/velocidad noche: Ud/Un = " << txtRVdVn.text() << LF;
    reporte << " Horas de insolación real: n = " << txtnp.text() << " hr/día" << LF;
    reporte << LF;
}

void frmPenman::escribirParciales(ReportWriter& reporte) const {
    constexpr auto LF = ReportWriter::LF;
    reporte.encabezado({" Resultados parciales:"}, guionesDelReporte);
    reporte << " Radiación extraterrestre: Ra = " << txtRa.text() << " mm/día" << LF;
    reporte << " Duración máxima posible de horas de insolación : N = " << txtN.text() << " hr/día"
            << LF;
    reporte << " Insolación relativa: n/N = " << txtRnpNg.text() << LF;
    reporte << " Coeficiente de correción por altura velocidad fz = " << txtFhv.text() << LF;
    reporte << " Velocidad del viento medida a 2 m: U2 = " << txtU2.text() << " km/hr" << LF;
    reporte << " Presión de vapor del agua a saturación: ea = " << txtea.text() << " mbar" << LF;
    reporte << " Presión de vapor del agua actual: ed = " << txted.text() << " mbar" << LF;
    reporte << " Déficit presión de vapor: ea - ed = " << txteaed.text() << " mbar" << LF;
    reporte << " Factor de ponderación para Penman: w = " << txtw.text() << LF;
    reporte << " Valor de: 1 - w = " << txt1w.text() << LF;
    reporte << " Función del viento: fu = " << txtfu.text() << LF;
    reporte << " Función de la temperatura: ft = " << txtft.text() << LF;
    reporte << " Función de la presión del vapor del agua: fed = " << txtfed.text() << LF;
    reporte << " Función de la relación entre hora de insolación reales y máxima: fu/N = "
            << txtfnN.text() << LF;
    reporte << " Radiación neta de onda larga: Rn1 = " << txtRn1.text() << " mm/día" << LF;
    reporte << " Radiación de onda corta: Rs = " << txtRs.text() << " mm/día" << LF;
    reporte << " Radiación neta de onda corta: Rns = " << txtRns.text() << " mm/día" << LF;
    reporte << " Radiación neta total: Rn = " << txtRn.text() << " mm/día" << LF;
    reporte << LF;
}

void frmPenman::escribirFinales(ReportWriter& reporte) const {
    constexpr auto LF = ReportWriter::LF;
    reporte.encabezado({" Resultados finales:"}, guionesDelReporte);
    reporte << " Factor de ajuste para Penman: c = " << txtC.text() << LF;
    reporte << " Témino de radiación: TerRadiación = " << txtRadiacion.text() << " mm/día" << LF;
    reporte << " Témino de advección: TerAdvección = " << txtAdveccion.text() << " mm/día" << LF;
    reporte << LF;
    reporte << " Evapotranpiración de referencia: ETo = " << txtETo.text() << " mm/día" << LF;
    reporte << LF;
}

} // namespace caudalera
