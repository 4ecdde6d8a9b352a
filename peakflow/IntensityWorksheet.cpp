#include "peakflow/IntensityWorksheet.h"

#include "peakflow/tiempoConcentracion.h"
#include "regression/gaussJordan.h"
#include "shell/text/Text.h"
#include "shell/worksheet/PastedBlock.h"

#include <algorithm>
#include <utility>

namespace caudalera {

namespace {

constexpr const char* tituloError = "Error";
constexpr const char* mascaraEcuacion = "#####0.##00";
constexpr float periodoMaximo = 200;

/// Digits with at most one decimal point, no digit at all included: it is being typed.
bool esNumeroSinSigno(std::string_view texto) {
    return texto.find_first_not_of("0123456789.") == std::string_view::npos &&
           std::count(texto.begin(), texto.end(), '.') <= 1;
}

} // namespace

IntensityWorksheet::IntensityWorksheet(Program& program, std::string name, std::string text)
    : Worksheet(program, std::move(name), std::move(text), "Trío",
                layoutTriosTDI("I máx (mm/hr)")) {
    columnas = {&T_, &D_, &Imax_};
    lbleti1i.heading = true;
    lbleti2i.heading = true;
    txtDuracionAdi.visible = false;
    lblDuracionAdi.visible = false;
    optDuracionAdiNo.preset(true);
    fraProvincias.visible = false;
    grdt.visible = false;
    mostrarIngreso(false);
    mostrarEcuacion(false);
    txttci.result = txtImaxi.result = txtecuacioni.result = true;
    txtecuacioni.width = 40;

    soloNumeros({&txtLi, &txtHi, &txtTi, &txtDuracionAdi, &txttci, &txtImaxi});
    txtLi.onEnter = [this] { setFocus(txtHi); };
    txtHi.onEnter = [this] { setFocus(txtTi); };
    optDuracionAdiSi.onClick = [this] {
        txtDuracionAdi.setText({});
        mostrarDuracion(true);
        setFocus(txtDuracionAdi);
    };
    optDuracionAdiNo.onClick = [this] { mostrarDuracion(false); };
    optProvincias.onClick = [this] { elegirProvincias(); };
    optRegistros.onClick = [this] { elegirRegistros(); };
    bcalcularI.onClick = [this] { calcularI(); };
}

void IntensityWorksheet::soloNumeros(const std::vector<TextBox*>& campos) {
    for (TextBox* campo : campos) {
        campo->acceptable = esNumeroSinSigno;
        campo->asPasted = numberAsPasted;
    }
}

Layout IntensityWorksheet::disposicionI() {
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
        column({list({&lbleti1i}), control(grdt).stretched(), list({&lbleti2i, &lbleti3i})})
            .stretched(),
        column({
            buttons({&bcalcularI}),
            frame(fraResultadosI,
                  column({fields({txttci, txtImaxi}), list({&lblecuacioni, &txtecuacioni})})),
        }),
    });
}

void IntensityWorksheet::mostrarDuracion(bool conocida) {
    txtDuracionAdi.visible = conocida;
    lblDuracionAdi.visible = conocida;
}

void IntensityWorksheet::mostrarIngreso(bool si) {
    for (Label* rotulo : {&lbleti1i, &lbleti2i, &lbleti3i})
        rotulo->visible = si;
}

void IntensityWorksheet::mostrarEcuacion(bool si) {
    lblecuacioni.visible = si;
    txtecuacioni.visible = si;
}

void IntensityWorksheet::elegirProvincias() {
    fraProvincias.visible = true;
    mostrarIngreso(false);
    mostrarEcuacion(false);
    reiniciarCuadricula();
    grdt.visible = false;
}

void IntensityWorksheet::elegirRegistros() {
    fraProvincias.visible = false;
    provincias.clear();
    grdt.visible = true;
    reiniciarCuadricula();
    mostrarIngreso(true);
}

void IntensityWorksheet::entrarEnI() {
    setFocus(txtLi);
    optDuracionAdiNo.set();
}

void IntensityWorksheet::limpiarI() {
    optDuracionAdiNo.set();
    if (optRegistros.checked()) {
        reiniciarCuadricula();
        mostrarEcuacion(false);
    }
    for (TextBox* campo : {&txtLi, &txtHi, &txtTi, &txttci, &txtImaxi})
        campo->setText({});
    setFocus(txtLi);
}

void IntensityWorksheet::antesDeAccesar() {
    txtecuacioni.setText({});
    mostrarEcuacion(false);
    calculado_ = false;
}

void IntensityWorksheet::rechazar(TextBox& campo, const char* texto) {
    mensaje(texto, tituloError);
    setFocus(campo);
}

void IntensityWorksheet::calcularI() {
    conTrampa(
        [this] {
            if (!tomarDuracion())
                return;
            tomarPeriodo();
            if (optProvincias.checked() && !intensidadDeProvincia())
                return;
            if (optRegistros.checked() && !intensidadDeRegistros())
                return;
            txttci.setText(formatear(duracion_, "0.#0"));
            txtImaxi.setText(formatear(intensidad_, "0.#0"));
            recibirIntensidad(txtImaxi.text());
            calculado_ = true;
        },
        [this](const RuntimeFailure&) {
            if (optRegistros.checked()) {
                mensaje("Ingresó valores para T, D ó Imáx iguales a 0 ó negativos. Estos valores "
                        "no permiten la correlación potencial. ¡Hacer la corrección "
                        "correspondiente!");
            }
        });
}

bool IntensityWorksheet::tomarDuracion() {
    if (!optDuracionAdiSi.checked()) {
        duracion_ = duracionDeConcentracion();
        return true;
    }
    if (txtDuracionAdi.text().empty()) {
        rechazar(txtDuracionAdi, "Ingresar un valor adecuado para la duración D ó tc");
        return false;
    }
    duracion_ = Val(txtDuracionAdi.text());
    return true;
}

Real IntensityWorksheet::duracionDeConcentracion() {
    if (txtLi.text().empty()) {
        rechazar(txtLi, "Ingresar un valor adecuado para la distancia L");
        return 0;
    }
    if (txtHi.text().empty()) {
        rechazar(txtHi, "Ingresar un valor adecuado para el desnivel H");
        return 0;
    }
    const float L = toSingle(Val(txtLi.text()));
    const float H = toSingle(Val(txtHi.text()));
    if (H == 0) {
        mensaje("El valor para el desnivel H no puede ser 0", tituloError);
        txtHi.setText({});
        setFocus(txtHi);
        return 0;
    }
    return tiempoConcentracion(L, H);
}

void IntensityWorksheet::tomarPeriodo() {
    if (txtTi.text().empty()) {
        rechazar(txtTi, "Ingresar un valor adecuado para el período de retorno T");
        periodo_ = 0;
        return;
    }
    periodo_ = toSingle(Val(txtTi.text()));
}

std::optional<Provincia> IntensityWorksheet::provinciaElegida() const {
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

bool IntensityWorksheet::intensidadDeProvincia() {
    if (periodo_ > periodoMaximo) {
        mensaje("Para este método el período de retorno T no puede ser mayor de 200", tituloError);
        txtTi.setText({});
        setFocus(txtTi);
        return false;
    }
    // With no province set the intensity stays as it was.
    if (const auto provincia = provinciaElegida())
        intensidad_ = intensidadProvincial(*provincia, duracion_, Real(periodo_));
    return true;
}

bool IntensityWorksheet::intensidadDeRegistros() {
    leerCuadricula();
    if (n < minimoTrios) {
        mensaje(mensajeCuatroTrios, {}, Icon::error);
        grdt.setCol(1);
        grdt.setRow(filaDeAlta());
        setFocus(grdt);
        return true;
    }
    std::vector<TrioIntensidad> trios;
    for (long i = 1; i <= n; ++i)
        trios.push_back({T_[i], D_[i], Imax_[i]});
    const auto ajuste = ajustePotencial(trios);
    if (!ajuste) {
        mensaje(mensajeSistemaSingular, {}, Icon::error);
        return false;
    }
    intensidad_ = ajuste->intensidad(Real(periodo_), duracion_);
    txtecuacioni.setText("Imáx = " + formatear(ajuste->K, mascaraEcuacion) + "*T^(" +
                         formatear(ajuste->m, mascaraEcuacion) + ") *D^(" +
                         formatear(ajuste->n, mascaraEcuacion) + ")");
    mostrarEcuacion(true);
    return true;
}

void IntensityWorksheet::escribirReporteI(ReportWriter& reporte) const {
    constexpr long guiones = 90;
    constexpr std::string_view LF = ReportWriter::LF;
    constexpr std::string_view TAB = ReportWriter::TAB;
    if (optRegistros.checked()) {
        reporte << "Valores de T, D y Imáx:" << LF;
        reporte.encabezado({" Trío\t\t T (años)\t Duración (min)\t I máx (mm/hr)"}, guiones);
        for (long fila = 1; fila <= filasDelReporte(); ++fila) {
            reporte << grdt.TextMatrix(fila, 0);
            for (long col = 1; col < grdt.Cols(); ++col)
                reporte << TAB << TAB << grdt.TextMatrix(fila, col);
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
