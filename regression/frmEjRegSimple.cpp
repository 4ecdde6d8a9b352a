#include "regression/frmEjRegSimple.h"

#include "regression/textosRegresion.h"
#include "shell/text/Text.h"
#include "shell/worksheet/Messages.h"

#include <string_view>
#include <utility>

namespace caudalera {

namespace {

constexpr std::string_view mascaraCoeficiente = "#0.0######";
constexpr std::string_view mascaraCorrelacion = "#0.0####";
constexpr std::string_view mascaraY = "#0.0000";
constexpr std::array nombresEcuaciones = {"Lineal", "Exponencial", "Potencial"};
constexpr const char* rotuloEcuacion = "Ecuación:";

} // namespace

frmEjRegSimple::frmEjRegSimple(Program& program)
    : Worksheet(program, "frmEjRegSimple", "Cálculos con ecuaciones de Regresión Simple", "Par",
                layoutParesXY()) {
    columnas = {&X_, &Y_};
    registrarEntradas({&txtvxx});
    registrarResultados({&txtvyy});
    bGraficar.onClick = [this] { graficar(); };
    bLimpiarDatos.onClick = [this] { limpiarDatos(); };
    optLineal.onClick = [this] { evaluar(lineal); };
    optExponencial.onClick = [this] { evaluar(exponencial); };
    optPotencial.onClick = [this] { evaluar(potencial); };
    txtvxx.onChange = [this] {
        ecuacionElegida.clear();
        txtvyy.setText({});
    };
    txtvxx.onEnter = [this] { optLineal.set(); };
    disponer();
}

void frmEjRegSimple::disponer() {
    using namespace layout;
    using Column = MSFlexGrid::ColumnAlignment;
    txtvxx.width = 14;
    txtvyy.width = 14;
    grdecua.columnWidths = {1500, 4800, 1300, 1300};
    grdecua.columnAlignments = {Column::left, Column::left, Column::center, Column::center};
    grdecua.visibleRows = static_cast<int>(numEcuaciones);
    layout = row({
        ingreso.columna(grdt),
        column({control(grdecua),
                frame(fraAplicar, row({column({control(lblCalculoY), fields({txtvxx, txtvyy})}),
                                       list({&optLineal, &optExponencial, &optPotencial}),
                                       buttons({&bLimpiarDatos})})),
                control(Graph1).stretched()})
            .stretched(),
    });
    mandatoTrasCalcular(bGraficar);
}

void frmEjRegSimple::reiniciarResultados() {
    grdecua.reset(numEcuaciones + 1, 4, 1, 0);
    grdecua.setHeaders({"Correlación", "Ecuación", "R", "R2"});
}

void frmEjRegSimple::borrarResultados() {
    Worksheet::borrarResultados();
    lblCalculoY.caption = rotuloEcuacion;
    calculado_ = false;
    Graph1.clear();
}

void frmEjRegSimple::trasAccesar() {
    borrarResultados();
    ecuacionElegida.clear();
}

void frmEjRegSimple::limpiarDatos() {
    vaciarCampos();
    ecuacionElegida.clear();
    setFocus(txtvxx);
}

void frmEjRegSimple::calcular() {
    conTrampa([this] { ajustar(); },
              [this](const RuntimeFailure&) {
                  mensaje("Ingresó valores para X ó Y iguales a 0 ó negativos. Estos valores no "
                          "permiten la correlación exponencial ni potencial. ¡Hacer la corrección "
                          "correspondiente!");
              });
}

void frmEjRegSimple::ajustar() {
    leerCuadricula();
    if (!hayPuntos(n, {mensajeAjusteDosPuntos, "Error", Icon::error})) {
        setFocus(grdt);
        calculado_ = true;
        return;
    }
    const auto x = X_.primeros(n);
    const auto y = Y_.primeros(n);
    const auto lnY = logaritmos(y);
    const AjusteLineal recta = ajusteLineal(x, y);
    const AjusteLineal curvaExponencial = ajusteLineal(x, lnY);
    const AjusteLineal curvaPotencial = ajusteLineal(logaritmos(x), lnY);
    // Nothing is kept or shown before all three have succeeded.
    coeficientes_ = {
        Coeficientes{recta.intercepto, recta.pendiente},
        Coeficientes{Exp(curvaExponencial.intercepto), Exp(curvaExponencial.pendiente)},
        Coeficientes{Exp(curvaPotencial.intercepto), curvaPotencial.pendiente}};
    escribirFila(lineal, recta);
    escribirFila(exponencial, curvaExponencial);
    escribirFila(potencial, curvaPotencial);
    calculado_ = true;
}

void frmEjRegSimple::escribirFila(Ecuacion ecuacion, const AjusteLineal& ajuste) {
    const long fila = ecuacion + 1;
    grdecua.setTextMatrix(fila, 0, nombresEcuaciones[ecuacion]);
    grdecua.setTextMatrix(fila, 1, textoEcuacion(ecuacion));
    grdecua.setTextMatrix(fila, 2, formatear(ajuste.r, mascaraCorrelacion));
    grdecua.setTextMatrix(fila, 3, formatear(ajuste.r2, mascaraCorrelacion));
}

std::string frmEjRegSimple::textoEcuacion(Ecuacion ecuacion) const {
    const std::string a = formatear(coeficientes_[ecuacion].a, mascaraCoeficiente);
    const std::string b = formatear(coeficientes_[ecuacion].b, mascaraCoeficiente);
    if (ecuacion == lineal)
        return textoRecta(a, b);
    if (ecuacion == exponencial)
        return "Y = " + a + " * ( " + b + " ) " + " ^ X";
    return "Y = " + a + " *  X ^ (" + b + ")";
}

void frmEjRegSimple::evaluar(Ecuacion ecuacion) {
    if (!hayCalculo(calculado_,
                    {"Antes de hallar valor de Y, efectuar los cálculos de correlación"}) ||
        !exigir(txtvxx, {"Ingresar un valor adecuado para X"}))
        return;
    lblCalculoY.caption = std::string("Ecuación ") + nombresEcuaciones[ecuacion];
    txtvyy.setText(formatear(valorDeY(ecuacion, Val(txtvxx.text())), mascaraY));
}

Real frmEjRegSimple::valorDeY(Ecuacion ecuacion, Real x) const {
    const auto [a, b] = coeficientes_[ecuacion];
    if (ecuacion == lineal)
        return a + b * x;
    if (ecuacion == exponencial)
        return a * Pow(b, x);
    return a * Pow(x, b);
}

void frmEjRegSimple::graficar() {
    leerCuadricula();
    if (!hayPuntos(n, graficoDeDosPuntos())) {
        setFocus(grdt);
        return;
    }
    Chart grafico;
    grafico.style = 1;
    grafico.autoAdvance = false;
    grafico.x.emplace();
    grafico.series.emplace_back();
    for (long i = 1; i <= n; ++i) {
        grafico.x->push_back(X_[i].value());
        grafico.series.front().y.push_back(Y_[i].value());
    }
    dibujar(Graph1, std::move(grafico));
}

void frmEjRegSimple::escribirReporte(ReportWriter& reporte) {
    constexpr auto LF = ReportWriter::LF;
    constexpr auto TAB = ReportWriter::TAB;
    constexpr long guionesPares = 75;
    constexpr long guionesEcuaciones = 109;
    constexpr long columnaR = 2;

    reporte.tablaDeDatos("Pares de datos X,Y:", " Par\t\t X\t\t Y\t\t", grdt, filasDelReporte(),
                         guionesPares);

    reporte.abrirTabla("Ecuaciones de ajuste de pares de datos:",
                       {" Tipo    \t\t Ecuación\t\t R       \t\t R^2     \t\t"}, guionesEcuaciones);
    // The filling differs between the rows so that the columns stand under one another.
    reporte.filas(grdecua, 1, 1, "  \t");
    for (long fila = 2; fila <= numEcuaciones; ++fila) {
        for (long col = 0; col < grdecua.Cols(); ++col)
            reporte << grdecua.TextMatrix(fila, col) << blancos(col == columnaR ? 5 : 0) << TAB;
        reporte << LF;
    }
    reporte.cerrarTabla(guionesEcuaciones);

    reporte << "Cálculo de Y para un valor de X:" << LF << LF;
    reporte << lblCalculoY.caption << ":" << LF;
    reporte << "Para X = " << txtvxx.text() << LF;
    reporte << "El valor de Y es: Y = " << txtvyy.text() << LF;
}

} // namespace caudalera
