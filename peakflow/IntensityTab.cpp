#include "peakflow/IntensityTab.h"

#include "peakflow/RainfallFlowWindow.h"
#include "peakflow/tiempoConcentracion.h"
#include "regression/gaussJordan.h"
#include "shell/text/Text.h"

#include <utility>

namespace caudalera {

namespace {

constexpr const char* tituloError = "Error";
constexpr float periodoMaximo = 200;

} // namespace

IntensityTab::IntensityTab(RainfallFlowWindow& window) : ventana_(window), hoja_(window) {
    hoja_.columnas = {&T_, &D_, &Imax_};
    txtDuracionAdi.visible = false;
    lblDuracionAdi.visible = false;
    optDuracionAdiNo.preset(true);
    fraProvincias.visible = false;
    hoja_.grdt.visible = false;
    ingreso.mostrar(false);
    mostrarEcuacion(false);
    txttci.result = txtImaxi.result = txtecuacioni.result = true;
    txtecuacioni.width = 40;

    RainfallFlowWindow::soloNumeros({&txtLi, &txtHi, &txtTi, &txtDuracionAdi, &txttci, &txtImaxi});
    hoja_.encadenar({&txtLi, &txtHi, &txtTi});
    optDuracionAdiSi.onClick = [this] {
        txtDuracionAdi.setText({});
        mostrarDuracion(true);
        ventana_.setFocus(txtDuracionAdi);
    };
    optDuracionAdiNo.onClick = [this] { mostrarDuracion(false); };
    optProvincias.onClick = [this] { elegirProvincias(); };
    optRegistros.onClick = [this] { elegirRegistros(); };
    bcalcularI.onClick = [this] { hoja_.registrarCalculo([this] { calcular(); }); };
}

Layout IntensityTab::disposicion() {
    using namespace caudalera::layout;
    return row({
        column({
            fields({txtLi, txtHi, txtTi}),
            frame(fraDuracion, column({list({&optDuracionAdiNo, &optDuracionAdiSi}),
                                       fields({{nullptr, {&txtDuracionAdi}, &lblDuracionAdi}})})),
            frame(fraOpciones, list({&optProvincias, &optRegistros})),
            frame(fraProvincias, list({&optSanJose, &optPuntarenas, &optCartago, &optLimon,
                                       &optLiberia, &optAlajuela})),
        }),
        ingreso.columna(hoja_.grdt).stretched(),
        column({
            buttons({&bcalcularI}),
            frame(fraResultadosI,
                  column({fields({txttci, txtImaxi}), list({&lblecuacioni, &txtecuacioni})})),
        }),
    });
}

void IntensityTab::mostrarDuracion(bool conocida) {
    txtDuracionAdi.visible = conocida;
    lblDuracionAdi.visible = conocida;
}

void IntensityTab::mostrarEcuacion(bool si) {
    lblecuacioni.visible = si;
    txtecuacioni.visible = si;
}

void IntensityTab::elegirProvincias() {
    fraProvincias.visible = true;
    ingreso.mostrar(false);
    mostrarEcuacion(false);
    hoja_.reiniciarCuadricula();
    hoja_.grdt.visible = false;
}

void IntensityTab::elegirRegistros() {
    fraProvincias.visible = false;
    provincias.clear();
    hoja_.grdt.visible = true;
    hoja_.reiniciarCuadricula();
    ingreso.mostrar(true);
}

void IntensityTab::entrar() {
    ventana_.setFocus(txtLi);
    optDuracionAdiNo.set();
}

void IntensityTab::limpiar() {
    optDuracionAdiNo.set();
    if (optRegistros.checked()) {
        hoja_.reiniciarCuadricula();
        mostrarEcuacion(false);
    }
    for (TextBox* campo : {&txtLi, &txtHi, &txtTi, &txttci, &txtImaxi})
        campo->setText({});
    ventana_.setFocus(txtLi);
}

void IntensityTab::antesDeAccesar() {
    txtecuacioni.setText({});
    mostrarEcuacion(false);
    calculado_ = false;
}

void IntensityTab::calcular() {
    conTrampa(
        [this] {
            if (!tomarDuracion())
                return;
            tomarPeriodo();
            if (optProvincias.checked() && !intensidadDeProvincia())
                return;
            if (optRegistros.checked() && !intensidadDeRegistros())
                return;
            txttci.setText(hoja_.formatear(duracion_, "0.#0"));
            txtImaxi.setText(hoja_.formatear(intensidad_, "0.#0"));
            hoja_.txtiq.setText(txtImaxi.text());
            calculado_ = true;
        },
        [this](const RuntimeFailure&) {
            if (optRegistros.checked()) {
                hoja_.mensaje(
                    "Ingresó valores para T, D ó Imáx iguales a 0 ó negativos. Estos valores "
                    "no permiten la correlación potencial. ¡Hacer la corrección "
                    "correspondiente!");
            }
        });
}

bool IntensityTab::tomarDuracion() {
    if (!optDuracionAdiSi.checked()) {
        duracion_ = duracionDeConcentracion();
        return true;
    }
    if (!hoja_.exigir(txtDuracionAdi,
                      {"Ingresar un valor adecuado para la duración D ó tc", tituloError}))
        return false;
    duracion_ = Val(txtDuracionAdi.text());
    return true;
}

Real IntensityTab::duracionDeConcentracion() {
    if (!hoja_.exigir(txtLi, {"Ingresar un valor adecuado para la distancia L", tituloError}))
        return 0;
    if (!hoja_.exigir(txtHi, {"Ingresar un valor adecuado para el desnivel H", tituloError}))
        return 0;
    const float L = toSingle(Val(txtLi.text()));
    const float H = toSingle(Val(txtHi.text()));
    if (H == 0) {
        hoja_.rechazar(txtHi, {"El valor para el desnivel H no puede ser 0", tituloError});
        return 0;
    }
    return tiempoConcentracion(L, H);
}

void IntensityTab::tomarPeriodo() {
    const bool hay = hoja_.exigir(
        txtTi, {"Ingresar un valor adecuado para el período de retorno T", tituloError});
    periodo_ = hay ? toSingle(Val(txtTi.text())) : 0;
}

std::optional<Provincia> IntensityTab::provinciaElegida() const {
    const std::pair<const Option*, Provincia> todas[] = {
        {&optSanJose, Provincia::sanJose}, {&optPuntarenas, Provincia::puntarenas},
        {&optCartago, Provincia::cartago}, {&optLimon, Provincia::limon},
        {&optLiberia, Provincia::liberia}, {&optAlajuela, Provincia::alajuela},
    };
    for (const auto& [opcion, provincia] : todas) {
        if (opcion->checked())
            return provincia;
    }
    return std::nullopt;
}

bool IntensityTab::intensidadDeProvincia() {
    if (periodo_ > periodoMaximo) {
        hoja_.rechazar(txtTi, {"Para este método el período de retorno T no puede ser mayor de 200",
                               tituloError});
        return false;
    }
    // With no province set the intensity stays as it was.
    if (const auto provincia = provinciaElegida())
        intensidad_ = intensidadProvincial(*provincia, duracion_, Real(periodo_));
    return true;
}

bool IntensityTab::intensidadDeRegistros() {
    hoja_.leerCuadricula();
    if (hoja_.n < minimoTrios) {
        hoja_.mensaje(mensajeCuatroTrios, {}, Icon::error);
        hoja_.irAFilaDeAlta();
        return true;
    }
    const auto ajuste = ajustePotencial(
        enTrios(T_.primeros(hoja_.n), D_.primeros(hoja_.n), Imax_.primeros(hoja_.n)));
    if (!ajuste) {
        hoja_.mensaje(mensajeSistemaSingular, {}, Icon::error);
        return false;
    }
    intensidad_ = ajuste->intensidad(Real(periodo_), duracion_);
    txtecuacioni.setText(textoPotencial(hoja_.formatear(ajuste->K, mascaraPotencial),
                                        hoja_.formatear(ajuste->m, mascaraPotencial),
                                        hoja_.formatear(ajuste->n, mascaraPotencial)));
    mostrarEcuacion(true);
    return true;
}

void IntensityTab::escribirReporte(ReportWriter& reporte) const {
    constexpr long guiones = 90;
    constexpr std::string_view LF = ReportWriter::LF;
    constexpr std::string_view TAB = ReportWriter::TAB;
    if (optRegistros.checked()) {
        reporte << "Valores de T, D y Imáx:" << LF;
        reporte.encabezado({" Trío\t\t T (años)\t Duración (min)\t I máx (mm/hr)"}, guiones);
        for (long fila = 1; fila <= hoja_.filasDelReporte(); ++fila) {
            reporte << hoja_.grdt.TextMatrix(fila, 0);
            for (long col = 1; col < hoja_.grdt.Cols(); ++col)
                reporte << TAB << TAB << hoja_.grdt.TextMatrix(fila, col);
            reporte << LF;
        }
        reporte.regla(guiones);
    }
    if (optRegistros.checked() || optProvincias.checked()) {
        reporte << " La I máx para un período de retorno de " << txtTi.text()
                << " años y una duración de " << txttci.text() << " min, es " << txtImaxi.text()
                << " mm/hr" << LF;
    }
}

} // namespace caudalera
