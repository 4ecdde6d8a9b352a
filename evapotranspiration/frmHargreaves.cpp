#include "evapotranspiration/frmHargreaves.h"

#include "evapotranspiration/hargreaves.h"
#include "evapotranspiration/radiacionSolar.h"
#include "evapotranspiration/tablasSolares.h"
#include "shell/text/Text.h"

#include <algorithm>
#include <string_view>

namespace caudalera {

namespace {

constexpr const char* tituloError = "Mensaje de error";
constexpr std::string_view mascaraResultado = "0.0#";

} // namespace

frmHargreaves::frmHargreaves(Program& program)
    : SingleMonthWindow(program, "frmHargreaves",
                        "Cálculo de la evapotranspiración potencial por el método de Hargreaves") {
    registrarEntradas({&txtLatitud, &txtTmin, &txtTmax});
    registrarResultados({&txtRa, &txtETo, &txtETc});
    optKcEstimado.preset(true);
    OptFin.preset(true);
    fraKcTabla.visible = false;
    mostrarEtapa(etapaElegida());
    optKcEstimado.onClick = [this] { elegirKcEstimado(); };
    optKcTabla.onClick = [this] { elegirKcTabla(); };
    for (const Etapa& etapa : etapas_)
        etapa.opcion->onClick = [this, &etapa] { elegirEtapa(etapa); };
    disponer();
}

List frmHargreaves::listaDeCultivos(const char* nombre, EtapaCultivo etapa) {
    return {*this, nombre, textosDe(cultivosHargreaves(etapa)), {}};
}

void frmHargreaves::disponer() {
    using namespace layout;
    const Layout estimado =
        row({frame(fraEtapaCul, list({&OptInicio, &OptMediano, &OptFin})),
             frame(fraKcEstimado, list({&lblMensajeKC, &cobKcIni, &cobKcMed, &cobKcFin}))});
    layout = row({
        frame(fraDatos, fields({lineaDeLatitud(), cobMes, txtTmin, txtTmax})),
        frame(fraKc, column({list({&optKcEstimado, &optKcTabla}), estimado,
                             frame(fraKcTabla, fields({txtKcTabla}))})),
        frame(fraResultados, fields({txtRa, txtETo, txtETc})),
    });
}

void frmHargreaves::elegirKcEstimado() {
    fraKcEstimado.visible = fraEtapaCul.visible = true;
    fraKcTabla.visible = false;
    OptFin.set();
}

void frmHargreaves::elegirKcTabla() {
    fraKcTabla.visible = true;
    fraKcEstimado.visible = fraEtapaCul.visible = false;
    vaciarListas();
    txtKcTabla.setText({});
    setFocus(txtKcTabla);
}

void frmHargreaves::elegirEtapa(const Etapa& elegida) {
    mostrarEtapa(elegida);
    vaciarListas();
    setFocus(*elegida.lista);
}

void frmHargreaves::mostrarEtapa(const Etapa& elegida) {
    lblMensajeKC.caption = elegida.opcion->caption;
    for (const Etapa& etapa : etapas_)
        etapa.lista->visible = &etapa == &elegida;
}

void frmHargreaves::vaciarListas() {
    for (const Etapa& etapa : etapas_)
        etapa.lista->setText({});
}

const frmHargreaves::Etapa& frmHargreaves::etapaElegida() const {
    return *std::find_if(etapas_.begin(), etapas_.end() - 1,
                         [](const Etapa& etapa) { return etapa.opcion->checked(); });
}

void frmHargreaves::limpiar() {
    vaciarCampos();
    optKcEstimado.set();
    txtKcTabla.setText({});
    reiniciarSitio();
}

void frmHargreaves::calcular() {
    const auto grados = leer(txtLatitud, "la latitud");
    if (!grados)
        return;
    const Real latitud = enRadianes(*grados);
    tomarMes();
    const auto temperaturas = leerTemperaturas();
    if (!temperaturas)
        return;
    if (optKcEstimado.checked())
        tomarKcDeLista();
    if (fraKcTabla.visible && !tomarKcDeTabla())
        return;
    const Real declinacion = declinacionSolar(mes());
    const Real Ra = radiacionSolar(latitud, declinacion, factorDistancia(mes())).Ra;
    const Real ETo = evapotranspiracionHargreaves(Ra, temperaturas->minima, temperaturas->maxima);
    const Real ETc = Real(Kc) * ETo;
    txtRa.setText(formatear(Ra, mascaraResultado));
    txtETo.setText(formatear(ETo, mascaraResultado));
    txtETc.setText(formatear(ETc, mascaraResultado));
}

std::optional<frmHargreaves::Temperaturas> frmHargreaves::leerTemperaturas() {
    const auto minima = leer(txtTmin, "la temperatura mínima");
    if (!minima)
        return std::nullopt;
    const auto maxima = leer(txtTmax, "la temperatura máxima");
    if (!maxima)
        return std::nullopt;
    if (*minima >= *maxima) {
        mensaje("El valor de la temperatura máxima debe ser mayor que el de la temperatura mínima",
                tituloError, Icon::information);
        setFocus(txtTmax);
        return std::nullopt;
    }
    return Temperaturas{*minima, *maxima};
}

void frmHargreaves::tomarKcDeLista() {
    const Etapa& etapa = etapaElegida();
    if (const auto elegido = valorElegido(cultivosHargreaves(etapa.etapa), etapa.lista->text())) {
        Kc = toSingle(*elegido);
        return;
    }
    mensaje("Ingresar dato de Kc del cultivo", "Error", Icon::information);
    setFocus(*etapa.lista);
}

bool frmHargreaves::tomarKcDeTabla() {
    if (!exigir(txtKcTabla,
                {"Ingresar un valor adecuado del coeficiente kc", tituloError, Icon::information}))
        return false;
    Kc = toSingle(Val(txtKcTabla.text()));
    return true;
}

void frmHargreaves::escribirReporte(ReportWriter& reporte) {
    constexpr auto LF = ReportWriter::LF;
    constexpr long guiones = 35;
    reporte.encabezado({"Datos: "}, guiones);
    reporte << " Latitud: Lat = " << txtLatitud.text() << " " << cobNS.text() << LF;
    reporte << " Mes de cálculo: Mes = " << cobMes.text() << LF;
    reporte << " Temperatura mínima: Tmin = " << txtTmin.text() << " ºC" << LF;
    reporte << " Temperatura máxima: Tmax = " << txtTmax.text() << " ºC" << LF;
    reporte << " Coeficiente del cultivo: Kc = "
            << (optKcTabla.checked() ? txtKcTabla.text() : etapaElegida().lista->text()) << LF;
    reporte << LF;
    reporte.encabezado({" Resultados:"}, guiones);
    reporte << " Radiación extraterrestre: Ra = " << txtRa.text() << " mm/día" << LF;
    reporte << " Evapotranspiración de referencia: ETo = " << txtETo.text() << " mm/día" << LF;
    reporte << " Evapotranspiración del cultivo: ETc = " << txtETc.text() << " mm/día" << LF;
}

} // namespace caudalera
