#include "gauging/frmAforoCorren.h"

#include "shell/text/Text.h"
#include "shell/window/Program.h"
#include "shell/worksheet/Messages.h"

#include <string>
#include <string_view>
#include <utility>

namespace caudalera {

namespace {

constexpr std::string_view mascaraResultado = "0.0###";
constexpr std::string_view mascaraMargen = "0.##";
constexpr const char* margenInicial = "0";
/// Rows of the result grid, the header among them; a gauging of more stretches does not fit.
constexpr long filasDeResultados = 50;

SeriesLayout layoutTramos() {
    return {.fields = {"L (m)", "h (m)", "Vm (m/s)"},
            .saveFilter = "Trio valores L,h,v|*.LHV",
            .openFilter = "Trio valores L,h,V|*.LHV",
            .lastRecord = true};
}

} // namespace

frmAforoCorren::frmAforoCorren(Program& program)
    : Worksheet(program, "frmAforoCorren", "Aforo con correntómetro o molinete", "Tramo",
                layoutTramos()) {
    columnas = {&L, &h, &v};
    registrarCamposDeSerie({&txtho, &txtvo});
    registrarResultados({&txtQ, &txtV});
    registrarEntradas({&txtNR, &txtTiempo, &txtA, &txtB});
    optNo.preset(true);
    fraVelocidad.visible = false;

    bGraficar.onClick = [this] { graficar(); };
    optSi.onClick = [this] {
        fraVelocidad.visible = true;
        setFocus(txtNR);
    };
    optNo.onClick = [this] { fraVelocidad.visible = false; };
    bVelocidad.onClick = [this] { valorDeV(); };
    encadenar({&txtNR, &txtTiempo, &txtA, &txtB, &bVelocidad});
    txtho.onEnter = [this] {
        setFocus(txtvo);
        txtvo.select(0, longitud(txtvo.text()));
    };
    txtvo.onEnter = [this] { setFocus(grdt); };
    disponer();
}

void frmAforoCorren::disponer() {
    using namespace layout;
    lblEsquema.heading = true;
    grdt.columnWidths = {800, 1300, 1300, 1300};
    grdavq.columnWidths = {800, 1400, 1600, 1500};
    grdavq.visibleRows = 8;
    const Layout velocidad =
        column({list({&lblEcuacionV, &lblDondeN}),
                fields({txtNR, txtTiempo, txtA, txtB, {&bVelocidad, {&txtV}, txtV.unit()}})});
    // Both rows have the same share, so that the drawing keeps its size beside the frame that comes
    // and goes.
    layout = row({
        column({fields({txtho, txtvo}), ingreso.columna(grdt).stretched()}),
        column({row({column({control(lblEsquema), control(Picture1).stretched()}).stretched(),
                     column({frame(fraCalcularV, row({control(optSi), control(optNo)})),
                             frame(fraVelocidad, velocidad)})})
                    .stretched(),
                row({column({control(grdavq).stretched(), fields({txtQ})}),
                     control(Graph1).stretched()})
                    .stretched()})
            .stretched(),
    });
    mandatoTrasCalcular(bGraficar);
}

void frmAforoCorren::load() {
    Worksheet::load();
    ponerMargenEnCero();
    txtho.select(0, longitud(txtho.text()));
}

void frmAforoCorren::ponerMargenEnCero() {
    for (TextBox* campo : {&txtho, &txtvo})
        campo->setText(margenInicial);
}

void frmAforoCorren::reiniciarResultados() {
    grdavq.reset(filasDeResultados, 4, 1, 1);
    grdavq.setHeaders({"Tramo", "Area (m2)", "Velocidad (m/s)", "Caudal (m3/s)"});
}

void frmAforoCorren::borrarResultados() {
    Worksheet::borrarResultados();
    ponerMargenEnCero();
    Graph1.clear();
}

void frmAforoCorren::limpiar() {
    Worksheet::limpiar();
    optNo.set();
}

void frmAforoCorren::leerCuadricula() {
    Worksheet::leerCuadricula();
    L[n + 1] = 0;
    h[n + 1] = Val(txtho.text());
    v[n + 1] = Val(txtvo.text());
}

std::vector<Real> frmAforoCorren::ultimoRegistro() const {
    return {0, Val(txtho.text()), Val(txtvo.text())};
}

void frmAforoCorren::recibirUltimoRegistro(std::span<const float> registro) {
    txtho.setText(formatear(registro[1], mascaraMargen));
    txtvo.setText(formatear(registro[2], mascaraMargen));
}

void frmAforoCorren::calcular() {
    conTrampa([this] { aforarSeccion(); },
              [this](const RuntimeFailure&) {
                  mensaje("Ingresó valores inadecuados. ¡Hacer la corrección correspondiente!");
              });
}

void frmAforoCorren::aforarSeccion() {
    seccion_.tramos = contarFilas();
    leerCuadricula();
    seccion_.margen = {h[n + 1], v[n + 1]};
    seccion_.L = L;
    seccion_.h = h;
    seccion_.v = v;
    const Aforo aforo = aforar(seccion_.datos());
    escribirAforo(aforo);
    txtQ.setText(formatear(aforo.caudalTotal, mascaraResultado));
    calculado = true;
}

void frmAforoCorren::escribirAforo(const Aforo& aforo) {
    long fila = 0;
    for (const TramoAforado& tramo : aforo.tramos) {
        ++fila;
        grdavq.setTextMatrix(fila, 0, textoPlano(fila));
        grdavq.setTextMatrix(fila, 1, formatear(tramo.area, mascaraResultado));
        grdavq.setTextMatrix(fila, 2, formatear(tramo.velocidad, mascaraResultado));
        grdavq.setTextMatrix(fila, 3, formatear(tramo.caudal, mascaraResultado));
    }
    grdavq.clearRowsFrom(fila + 1);
    while (++fila < grdavq.Rows())
        grdavq.setTextMatrix(fila, 0, {});
}

void frmAforoCorren::valorDeV() {
    const std::pair<TextBox*, const char*> datos[] = {
        {&txtNR, "Ingresar un valor adecuado para NR"},
        {&txtTiempo, "Ingresar un valor adecuado para el tiempo"},
        {&txtA, "Ingresar un valor adecuado para el coeficiente a"},
        {&txtB, "Ingresar un valor adecuado para para el coeficiente b"},
    };
    for (const auto& [campo, siVacio] : datos) {
        if (!exigir(*campo, {siVacio, "Error de ingreso de dato"}))
            return;
    }
    const Real velocidad = velocidadMolinete(Val(txtA.text()), Val(txtNR.text()),
                                             Val(txtTiempo.text()), Val(txtB.text()));
    txtV.setText(formatear(velocidad, mascaraResultado));
}

void frmAforoCorren::graficar() {
    if (!hayCalculo(calculado, {mensajeGraficoSinCalculo, "Mensaje de Error", Icon::error}))
        return;
    long puntos = 0;
    for (const PuntoPerfil& punto : perfilSeccion(Val(txtho.text()), seccion_.datos())) {
        ++puntos;
        perfilX[puntos] = punto.x;
        perfilY[puntos] = punto.y;
    }
    Chart grafico;
    grafico.x.emplace();
    grafico.series.emplace_back();
    for (long i = 1; i <= puntos; ++i) {
        grafico.x->push_back(perfilX[i].value());
        grafico.series.front().y.push_back(perfilY[i].value());
    }
    grafico.xTitle = "L acumulada (m)";
    grafico.yTitle = grdt.TextMatrix(0, 2);
    dibujar(Graph1, std::move(grafico));
}

void frmAforoCorren::escribirReporte(ReportWriter& reporte) {
    constexpr auto LF = ReportWriter::LF;
    constexpr long guionesDeDatos = 85;
    constexpr long guionesDeResultados = 95;
    const long tramos = program().variables.contadorLineas;
    reporte << "Valores iniciales:" << LF;
    reporte << "Profundidad en el margen ho = " << txtho.text() << " m" << LF;
    reporte << "Velocidad en el margen vo = " << txtvo.text() << " m/s" << LF << LF;
    reporte.tablaDeDatos("Longitudes, profundidades y velocidades en los tramos:",
                         " Tramo    \t\t L (m)    \t\t h (m)    \t\t v (m/s)  \t\t", grdt, tramos,
                         guionesDeDatos);
    reporte.tablaDeDatos("Resultados para los tramos de la sección transversal:",
                         " Tramo\t\t Área (m2)\t\t Velocidad (m/s)\t\t Caudal (m3/s) \t\t", grdavq,
                         tramos, guionesDeResultados);
    reporte << "Caudal total de la sección: Q = " << txtQ.text() << " m3/s" << LF;
}

} // namespace caudalera
