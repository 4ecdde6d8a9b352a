#include "evapotranspiration/frmBlaneyCriddle.h"

#include "evapotranspiration/Eleccion.h"
#include "evapotranspiration/coeficientesCultivo.h"
#include "shell/text/Text.h"

#include <cstddef>
#include <string>
#include <utility>

namespace caudalera {

namespace {

constexpr auto LF = ReportWriter::LF;
constexpr const char* tituloError = "Mensaje de error";
/// Enough for the longest class of the climate, most of whose characters are narrow.
constexpr int anchoDeLista = 20;

using Clases = std::vector<Eleccion<ClaseClimatica>>;

const Clases& clasesDeInsolacion() {
    static const Clases clases = {{"Despejado (0.85-0.95)", ClaseClimatica::alta},
                                  {"Nublado parcial (0.65-0.85)", ClaseClimatica::media},
                                  {"Nublado (0.30-0.60)", ClaseClimatica::baja},
                                  {"Cubierto (0.15-0.25)", ClaseClimatica::baja}};
    return clases;
}

const Clases& clasesDeHumedad() {
    static const Clases clases = {{"Baja (< 20)", ClaseClimatica::baja},
                                  {"Media (20-50)", ClaseClimatica::media},
                                  {"Alta (>50)", ClaseClimatica::alta}};
    return clases;
}

const Clases& clasesDeViento() {
    static const Clases clases = {{"Débil (< 7.2)", ClaseClimatica::baja},
                                  {"Moderado (7.2-18)", ClaseClimatica::media},
                                  {"Fuerte ( >18)", ClaseClimatica::alta}};
    return clases;
}

} // namespace

frmBlaneyCriddle::frmBlaneyCriddle(Program& program)
    : MonthlyWorksheet(
          program, "frmBlaneyCriddle",
          "Cálculo de la evapotranspiración potencial por el método de Blaney_Criddle modificado "
          "por la FAO",
          {.fields = {"Temperatura (ºC)"},
           .saveFilter = "Temperaturas mensuales TB|*.TB",
           .mask = "0.0#"},
          {.ingreso = "Ingreso de datos de temperaturas:",
           .marcoLatitud = "Ingreso del dato de la  latitud:",
           .latitudes = latitudesBlaneyCriddle(),
           .faltanMeses = "Ingresar las temperaturas promedios mensuales, para los 12 meses"}),
      cobInsolacion(*this, "cobInsolacion", textosDe(clasesDeInsolacion()), {},
                    "Insolación relativa (n/N):"),
      cobHumedad(*this, "cobHumedad", textosDe(clasesDeHumedad()), {},
                 "Humedad relativa mínima (%):"),
      cobViento(*this, "cobViento", textosDe(clasesDeViento()), {},
                "Velocidad del viento (Km/hr):"),
      cobKc(*this, "cobKc", textosDe(cultivosBlaneyCriddle()), {}) {
    columnas = {&T};
    OptEstimado.preset(true);
    optKcEstimado.preset(true);
    mostrarClima(true);
    mostrarKc(true);
    OptEstimado.onClick = [this] {
        mostrarClima(true);
        setFocus(cobInsolacion);
    };
    OptMedido.onClick = [this] {
        mostrarClima(false);
        setFocus(txtcn);
    };
    optKcEstimado.onClick = [this] {
        mostrarKc(true);
        setFocus(cobKc);
    };
    optKcTabla.onClick = [this] {
        mostrarKc(false);
        setFocus(txtKcTabla);
    };
    disponer();
}

void frmBlaneyCriddle::disponer() {
    using namespace layout;
    grddis.columnWidths = {700, 800, 900, 1500, 1100, 1300};
    grddis.visibleRows = static_cast<int>(meses);
    for (List* lista : {&cobInsolacion, &cobHumedad, &cobViento})
        lista->width = anchoDeLista;
    const Layout estimado =
        fields({cobInsolacion, {nullptr, {&lblNubosidad}, nullptr}, cobHumedad, cobViento});
    layout = row({
        ingreso.columna(grdt),
        column({
            marcoLatitud(),
            frame(fraClima, column({row({control(OptEstimado), control(OptMedido)}),
                                    frame(fraClimaEstimado, estimado),
                                    frame(fraClimaMedido, fields({txtcn, txtchrmin, txtcv}))})),
            frame(fraKc, column({row({control(optKcEstimado), control(optKcTabla)}),
                                 row({frame(fraKcEstimado, row({control(cobKc)})).stretched(),
                                      frame(fraKcTabla, fields({txtKcTabla})).stretched()})})),
        }),
        column({control(grddis), control(Graph1).stretched()}).stretched(),
    });
}

void frmBlaneyCriddle::load() {
    MonthlyWorksheet::load();
    porcentajes_.cargar(platform().fixedDirectory());
    insolacion_.cargar(platform().fixedDirectory());
}

void frmBlaneyCriddle::mostrarClima(bool estimado) {
    fraClimaEstimado.visible = estimado;
    fraClimaMedido.visible = !estimado;
}

void frmBlaneyCriddle::mostrarKc(bool estimado) {
    fraKcEstimado.visible = estimado;
    fraKcTabla.visible = !estimado;
}

void frmBlaneyCriddle::reiniciarResultados() {
    grddis.reset(meses + 1, 6, 1, 0);
    grddis.setHeaders({"Mes", "T", "P(%)", "ETo diaria (mm)", "ETr diaria", "ETr mensual"});
}

void frmBlaneyCriddle::limpiar() {
    MonthlyWorksheet::limpiar();
    for (TextBox* campo : {&txtcn, &txtchrmin, &txtcv, &txtKcTabla})
        campo->setText({});
    for (List* lista : {&cobInsolacion, &cobHumedad, &cobViento, &cobKc})
        lista->setText({});
    calculado = false;
}

void frmBlaneyCriddle::calcularAnno() {
    porcentajes_.copiar(clave(), P);
    insolacion_.copiar(clave(), N);
    leerMeses();
    const auto dadoClima = leerClima();
    if (!dadoClima)
        return;
    const auto Kc = leerKc();
    if (!Kc)
        return;
    calcularMeses(*dadoClima, *Kc);
    escribirResultados();
    calculado = true;
}

std::optional<frmBlaneyCriddle::Clima> frmBlaneyCriddle::leerClima() {
    return OptEstimado.checked() ? leerClimaEstimado() : leerClimaMedido();
}

std::optional<frmBlaneyCriddle::Clima> frmBlaneyCriddle::leerClimaEstimado() {
    const auto clase = [this](List& lista, const Clases& clases, const char* dato) {
        const auto elegida = valorElegido(clases, lista.text());
        if (!elegida) {
            mensaje(std::string("Ingresar dato de ") + dato, "Error", Icon::information);
            setFocus(lista);
        }
        return elegida;
    };
    const auto sol = clase(cobInsolacion, clasesDeInsolacion(), "insolación");
    if (!sol)
        return std::nullopt;
    const auto humedad = clase(cobHumedad, clasesDeHumedad(), "humedad relativa");
    if (!humedad)
        return std::nullopt;
    const auto viento = clase(cobViento, clasesDeViento(), "velocidad de viento");
    if (!viento)
        return std::nullopt;
    Clima dado;
    dado.coeficientes = coeficientesBlaney(*sol, *humedad, *viento);
    return dado;
}

std::optional<frmBlaneyCriddle::Clima> frmBlaneyCriddle::leerClimaMedido() {
    const auto horas = leerMedida(txtcn, "del número de horas de insolación real (n)");
    if (!horas)
        return std::nullopt;
    const auto HRmin = leerMedida(txtchrmin, "de la humedad relativa mínima");
    if (!HRmin)
        return std::nullopt;
    const auto U = leerMedida(txtcv, "de la velocidad del viento");
    if (!U)
        return std::nullopt;
    const ClaseClimatica humedad = claseDeHumedad(*HRmin);
    const ClaseClimatica viento = claseDeViento(*U);
    // The wind in m/s is used nowhere; it refuses one past the doubles.
    static_cast<void>(10 * *U / 36);
    return Clima{std::nullopt, *horas, humedad, viento};
}

std::optional<Real> frmBlaneyCriddle::leerMedida(TextBox& campo, const char* magnitud) {
    if (!exigir(campo, {std::string("Ingresar valor adecuado ") + magnitud, tituloError,
                        Icon::information}))
        return std::nullopt;
    return Val(campo.text());
}

std::optional<Real> frmBlaneyCriddle::leerKc() {
    if (optKcEstimado.checked()) {
        const auto elegido = valorElegido(cultivosBlaneyCriddle(), cobKc.text());
        if (elegido)
            return Real(*elegido);
        mensaje("Ingresar dato de Kc del cultivo", "Error", Icon::information);
        setFocus(cobKc);
        return std::nullopt;
    }
    if (!exigir(txtKcTabla,
                {"Ingresar dato de Kc del cultivo adecuado", tituloError, Icon::information}))
        return std::nullopt;
    return Val(txtKcTabla.text());
}

void frmBlaneyCriddle::calcularMeses(const Clima& dadoClima, Real Kc) {
    for (long mes = 1; mes <= meses; ++mes) {
        const Real f = factorBlaney(T[mes], P[mes]);
        const CoeficientesBlaney coeficientes =
            dadoClima.coeficientes
                ? *dadoClima.coeficientes
                : coeficientesBlaney(claseDeInsolacion(dadoClima.n / Real(N[mes])),
                                     dadoClima.humedad, dadoClima.viento);
        ETo[mes] = toSingle(evapotranspiracionBlaney(coeficientes, f));
        ETr[mes] = toSingle(Kc * Real(ETo[mes]));
    }
    for (long mes = 1; mes <= meses; ++mes) {
        const long dias = diasDeMes[static_cast<std::size_t>(mes - 1)];
        ETrMensual[mes] = toSingle(Real(ETr[mes]) * Real(static_cast<double>(dias)));
    }
}

void frmBlaneyCriddle::escribirResultados() {
    for (long mes = 1; mes <= meses; ++mes) {
        grddis.setTextMatrix(mes, 0, etiquetaMes(mes));
        grddis.setTextMatrix(mes, 1, formatear(T[mes], "0.0#"));
        grddis.setTextMatrix(mes, 2, formatear(P[mes], "0.0#"));
        grddis.setTextMatrix(mes, 3, formatear(ETo[mes], "0.0##"));
        grddis.setTextMatrix(mes, 4, formatear(ETr[mes], "0.0##"));
        grddis.setTextMatrix(mes, 5, formatear(ETrMensual[mes], "0.0#"));
    }
}

std::string frmBlaneyCriddle::tituloCurvas() const {
    return grddis.TextMatrix(0, 4) + " (mm)";
}

std::vector<Graph::Series> frmBlaneyCriddle::curvas() const {
    return {curva({}, ETr.primeros(meses))};
}

void frmBlaneyCriddle::reporteDeDatos(ReportWriter& reporte) const {
    constexpr long guionesDatos = 40;
    reporte.abrirTabla("Serie de datos de temperaturas mensuales", {" Mes\t       Temperatura\t"},
                       guionesDatos);
    reporte.filas(grdt, 1, meses, "\t");
    reporte.cerrarTabla(guionesDatos);
    reporte << " Datos climatológicos:" << LF;
    reporte.regla(guionesDatos);
    reporte << " Latitud: " << cobLatitud.text() << "º " << cobLatitudNS.text() << LF;
    if (OptEstimado.checked()) {
        reporte << fraClimaEstimado.caption << LF;
        reporte << " Insolación relativa (n/N): " << cobInsolacion.text() << LF;
        reporte << " Humedad relativa mínima: " << cobHumedad.text() << " %" << LF;
        reporte << " Velocidad del viento: " << cobViento.text() << " Km/hr" << LF;
    } else {
        reporte << fraClimaMedido.caption << LF;
        reporte << " Número de horas de insolación real (n): " << txtcn.text() << " horas" << LF;
        reporte << " Humedad relativa mínima: " << txtchrmin.text() << " %" << LF;
        reporte << " Velocidad del viento: " << txtcv.text() << " Km/hr" << LF;
    }
    if (optKcEstimado.checked()) {
        reporte << fraKcEstimado.caption << LF << " Kc: " << cobKc.text() << LF;
    } else {
        reporte << fraKcTabla.caption << LF << " Kc: " << txtKcTabla.text() << LF;
    }
    reporte << LF;
}

void frmBlaneyCriddle::escribirReporte(ReportWriter& reporte) {
    constexpr long guiones = 145;
    reporteDeDatos(reporte);
    reporte.encabezado(
        {"Resultado del cálculo de la evapotranspiración potencial, método de Blaney-Criddle:"},
        guiones);
    reporte << "Mes  "
            << "  Temperatura   "
            << "           P(%)   "
            << "       ETo diaria (mm)   "
            << "   ETr diaria (mm)   "
            << "   ETr mensual (mm)   " << LF;
    reporte.regla(guiones);
    reporte.filas(grddis, 1, meses, "\t");
    reporte.regla(guiones);
}

} // namespace caudalera
