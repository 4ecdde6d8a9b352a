#include "peakflow/frmQmaxNash.h"

#include "shell/text/Text.h"

#include <algorithm>
#include <vector>

namespace caudalera {

namespace {

constexpr long filasDeTabla = 300;

AnnualPeaksTexts textos() {
    return {
        .dibujo = "nash",
        .encabezados = {"N° años disponibles", "Qm", "Xm", "a", "b", "Qmáx", "DeltaQ", "IntervaloQ",
                        "Qdiseño"},
        .lineasReporte = {"     Número de años disponibles: ",
                          "                         Qm:                 ",
                          "                                    Xm:      ",
                          "                            a:               ",
                          "                            b:               ",
                          "             Q máximo:                   ",
                          "               Delta Q:                    ",
                          "          Intervalo variación Q:      "},
        .guionesReporte = 100,
        .cierreReporte = "El caudal de diseño con el método estadístico propuesto por Nash,\n"
                         "para un período de retorno de ",
    };
}

} // namespace

frmQmaxNash::frmQmaxNash(Program& program)
    : AnnualPeaksWindow(
          program, "frmQmaxNash",
          "Cálculo del caudal de diseño utilizando el método estadístico propuesto por Nash",
          textos()) {
    using namespace layout;
    registrarResultados({&txtSQ, &txtSX, &txtSQX, &txtSQ2, &txtSX2});
    for (TextBox* suma : {&txtSQ, &txtSX, &txtSQX, &txtSQ2, &txtSX2})
        suma->width = 14;
    grdTablaQX.columnWidths = {700, 1400, 1300, 1300, 1500, 1700, 1300};
    grdTablaQX.columnAlignments.assign(7, MSFlexGrid::ColumnAlignment::center);
    grdTablaQX.visibleRows = 8;
    disponer({row({control(Picture1).stretched(),
                   frame(fraSumatorias, fields({txtSQ, txtSX, txtSQX, txtSQ2, txtSX2}))})
                  .stretched(3),
              fields({txtTdato}), control(grdTablaQX).stretched(2)});
}

void frmQmaxNash::reiniciarResultados() {
    AnnualPeaksWindow::reiniciarResultados();
    grdTablaQX.reset(filasDeTabla, 7, 1, 0);
    grdTablaQX.setHeaders({"m", "Q", "T", "X", "Q*X", "Q^2", "X^2"});
}

void frmQmaxNash::disenar(Real T) {
    const Real X = variableNash(T);
    std::vector<Real> caudales = leerOrdenados();
    std::reverse(caudales.begin(), caudales.end());
    const auto puntos = puntosNash(caudales);
    const SumasNash s = sumasNash(puntos);
    escribirSumas(s);
    const RectaNash recta = rectaNash(s);
    escribirDiseno({s.Qm, s.Xm, recta.a, recta.b}, caudalNash(s, recta, X));
    escribirTabla(puntos);
}

void frmQmaxNash::escribirSumas(const SumasNash& s) {
    txtSQ.setText(formatear(s.Q, "##0.0#"));
    txtSX.setText(formatear(s.X, "##0.0###"));
    txtSQX.setText(formatear(s.QX, "##0.0#"));
    txtSQ2.setText(formatear(s.Q2, "##0.0#"));
    txtSX2.setText(formatear(s.X2, "##0.0#"));
}

void frmQmaxNash::escribirTabla(std::span<const PuntoNash> puntos) {
    constexpr const char* dosDecimales = "#####0.0#";
    constexpr const char* cuatroDecimales = "#####0.0###";
    long m = 0;
    for (const auto& [Q, T, X] : puntos) {
        ++m;
        grdTablaQX.setTextMatrix(m, 0, textoPlano(m));
        grdTablaQX.setTextMatrix(m, 1, formatear(Q, dosDecimales));
        grdTablaQX.setTextMatrix(m, 2, formatear(T, cuatroDecimales));
        grdTablaQX.setTextMatrix(m, 3, formatear(X, cuatroDecimales));
        grdTablaQX.setTextMatrix(m, 4, formatear(Q * X, dosDecimales));
        grdTablaQX.setTextMatrix(m, 5, formatear(Pow(Q, 2), dosDecimales));
        grdTablaQX.setTextMatrix(m, 6, formatear(Pow(X, 2), cuatroDecimales));
    }
    grdTablaQX.clearRowsFrom(m + 1);
}

} // namespace caudalera
