#include "curves/frmVariacionEsta.h"

#include "shell/text/Text.h"
#include "shell/worksheet/Messages.h"

#include <utility>

namespace caudalera {

namespace {

constexpr auto LF = ReportWriter::LF;

/// A probability of being equalled or exceeded, as the grid and the chart name it.
struct Probabilidad {
    double P;
    const char* encabezado;
    const char* leyenda;
};
constexpr std::array<Probabilidad, 6> probabilidades{{{0.70, " 70 %", "70%"},
                                                      {0.75, " 75 %", "75%"},
                                                      {0.80, "80 %", "80%"},
                                                      {0.85, "85 %", "85%"},
                                                      {0.90, "90 %", "90%"},
                                                      {0.95, "95 %", "95%"}}};

constexpr std::string_view mascaraValor = "#####0.0#";
constexpr long numMeses = mesesCortos.size();

SeriesLayout layoutSerieMensual() {
    return {{"X"}, "Valores mensuales de X|*.VE"};
}

} // namespace

frmVariacionEsta::frmVariacionEsta(Program& program)
    : Worksheet(program, "frmVariacionEsta", "Curva de variación estacional", "Mes",
                layoutSerieMensual()) {
    columnas = {&serieMensual};
    registrarResultados({&txtnanos});
    bGraficar.onClick = [this] { graficar(); };
    disponer();
}

void frmVariacionEsta::disponer() {
    using namespace layout;
    lblProbabilidad.heading = true;
    Graph1.xLabels = {&lblEjeMeses};
    txtnanos.width = 6;
    grddis.columnWidths.assign(numCurvas + 1, 1200);
    grddis.columnWidths[0] = 900;
    grddis.visibleRows = static_cast<int>(numMeses);
    layout = row({
        ingreso.columna(grdt),
        column({row({control(lblProbabilidad), fields({txtnanos})}), control(grddis),
                control(Graph1).stretched()})
            .stretched(),
    });
    mandatoTrasCalcular(bGraficar);
}

std::string frmVariacionEsta::etiquetaFila(long fila) const {
    return std::string(mesDeFila(fila));
}

void frmVariacionEsta::reiniciarResultados() {
    grddis.reset(numMeses + 1, static_cast<long>(numCurvas) + 1, 1, 0);
    std::vector<std::string> encabezados = {"Meses"};
    for (const Probabilidad& probabilidad : probabilidades)
        encabezados.emplace_back(probabilidad.encabezado);
    grddis.setHeaders(encabezados);
}

void frmVariacionEsta::borrarResultados() {
    Worksheet::borrarResultados();
    calculado = false;
    Graph1.clear();
}

bool frmVariacionEsta::leerMeses() {
    leerCuadricula();
    auto meses = separarMeses(std::as_const(serieMensual).primeros(n));
    if (!meses) {
        mensaje("Ingresar los datos de años completos", "Datos mensuales incompletos",
                Icon::information);
        return false;
    }
    valoresMes = *std::move(meses);
    numAnos = n / numMeses;
    txtnanos.setText(textoPlano(long{numAnos}));
    return true;
}

void frmVariacionEsta::calcular() {
    conTrampa([this] { calcularCurvas(); },
              [this](const RuntimeFailure&) {
                  mensaje("Ingresar datos adecuadamente ", "Mensaje de error", Icon::information);
              });
}

void frmVariacionEsta::calcularCurvas() {
    if (!leerMeses())
        return;
    if (!admitenLogaritmo(valoresMes)) {
        mensaje("Los valores de la serie no pueden ser iguales a 0, ¡Revisar y corregir valores¡",
                "Mensaje de error", Icon::information);
        return;
    }
    for (std::size_t mes = 0; mes < valoresMes.size(); ++mes) {
        const LeyMensual ley = leyMensual(valoresMes[mes]);
        for (std::size_t i = 0; i < numCurvas; ++i)
            curvas[i][mes] = valorDeExcedencia(ley, probabilidades[i].P);
    }
    escribirCurvas();
    calculado = true;
}

void frmVariacionEsta::escribirCurvas() {
    for (long mes = 1; mes <= numMeses; ++mes) {
        grddis.setTextMatrix(mes, 0, etiquetaFila(mes));
        for (std::size_t i = 0; i < numCurvas; ++i) {
            grddis.setTextMatrix(
                mes, static_cast<long>(i) + 1,
                formatear(curvas[i][static_cast<std::size_t>(mes - 1)], mascaraValor));
        }
    }
}

void frmVariacionEsta::graficar() {
    if (!hayCalculo(calculado, {mensajeGraficoSinCalculo, "Mensaje de Error", Icon::error}))
        return;
    Chart grafico;
    grafico.x.emplace();
    for (long mes = 0; mes < numMeses; ++mes)
        grafico.x->push_back(static_cast<double>(mes));
    for (std::size_t i = 0; i < numCurvas; ++i) {
        Graph::Series serie{probabilidades[i].leyenda,
                            {},
                            std::string("Probabilidad de ocurrencia del ") +
                                probabilidades[i].leyenda};
        for (const Real valor : curvas[i])
            serie.y.push_back(valor.value());
        grafico.series.push_back(std::move(serie));
    }
    grafico.yTitle = grdt.TextMatrix(0, 1);
    dibujar(Graph1, std::move(grafico));
}

void frmVariacionEsta::escribirReporte(ReportWriter& reporte) {
    if (!leerMeses())
        return;
    reporteDeLaSerie(reporte);
    reporteDeCurvas(reporte);
}

void frmVariacionEsta::reporteDeLaSerie(ReportWriter& reporte) const {
    constexpr long guiones = 140;
    constexpr long ancho = 12;
    std::string encabezado = "Año  ";
    for (const std::string_view mes : mesesCortos)
        encabezado.append("  ").append(mes).append("   ");
    reporte.abrirTabla("Serie de datos mensuales", {encabezado + "   "}, guiones);
    for (long ano = 1; ano <= numAnos; ++ano) {
        reporte << Str(ano) << blancos(8);
        for (const std::vector<Real>& valores : valoresMes) {
            const std::string texto = Str(valores[static_cast<std::size_t>(ano - 1)].value());
            reporte << blancos(blancosParaCentrar(ancho, static_cast<long>(longitud(texto))))
                    << texto;
        }
        reporte << LF;
    }
    reporte.cerrarTabla(guiones);
}

void frmVariacionEsta::reporteDeCurvas(ReportWriter& reporte) const {
    constexpr long guiones = 130;
    constexpr long ancho = 18;
    std::string encabezado = "Meses  ";
    for (const Probabilidad& probabilidad : probabilidades)
        encabezado.append(10, ' ').append(probabilidad.leyenda).append("   ");
    reporte.abrirTabla("Probabilidad de que los eventos mensuales sean igualados o superados",
                       {encabezado + "   "}, guiones);
    for (long fila = 1; fila <= numMeses; ++fila) {
        const std::string& mes = grddis.TextMatrix(fila, 0);
        reporte << blancos(blancosParaCentrar(ancho, static_cast<long>(longitud(mes)))) << mes;
        for (long col = 1; col < grddis.Cols(); ++col)
            reporte << centrado(grddis.TextMatrix(fila, col), ancho);
        reporte << LF;
    }
    reporte.cerrarTabla(guiones);
}

} // namespace caudalera
