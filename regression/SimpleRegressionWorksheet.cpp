#include "regression/SimpleRegressionWorksheet.h"

#include "shell/worksheet/Messages.h"

namespace caudalera {

SimpleRegressionWorksheet::SimpleRegressionWorksheet(Program& program, std::string name,
                                                     std::string text, RegressionTexts textos,
                                                     long capacidad)
    : RegressionWorksheet(program, std::move(name), std::move(text), "Par", layoutParesXY(),
                          std::move(textos)),
      X(capacidad), Y(capacidad) {
    columnas = {&X, &Y};
    bGraficar.onClick = [this] { graficar(); };
    bLimpiarDatos.onClick = [this] { limpiarDatos(); };
}

RegressionTexts textosDePares() {
    RegressionTexts textos;
    textos.tituloDatos = "Ingreso de los pares de datos:";
    textos.encabezados = {"Correlación", "Ecuación", "R", "R2"};
    textos.anchos = {1500, 4800, 1300, 1300};
    textos.reporteDatos = {"Pares de datos X,Y:", " Par\t\t X\t\t Y\t\t", 75};
    textos.reporteEcuaciones = {"Ecuaciones de ajuste de pares de datos:",
                                " Tipo    \t\t Ecuación\t\t R       \t\t R^2     \t\t", 109};
    textos.reporteEvaluacion = "Cálculo de Y para un valor de X:";
    return textos;
}

void SimpleRegressionWorksheet::disponerPares(Layout evaluaciones) {
    disponer({&txtvxx},
             {std::move(evaluaciones), layout::column({layout::buttons({&bLimpiarDatos})})},
             &Graph1);
    mandatoTrasCalcular(bGraficar);
}

bool SimpleRegressionWorksheet::leerPares() {
    leerCuadricula();
    if (n > 1)
        return true;
    rechazar(
        {"Para el ajuste a la ecuación se requiere por lo menos dos puntos", "Error", Icon::error});
    return false;
}

void SimpleRegressionWorksheet::graficar() {
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
        grafico.x->push_back(X[i].value());
        grafico.series.front().y.push_back(Y[i].value());
    }
    grafico.xTitle = grdt.TextMatrix(0, 1);
    grafico.yTitle = grdt.TextMatrix(0, 2);
    dibujar(Graph1, std::move(grafico));
}

} // namespace caudalera
