#include "regression/PolynomialRegressionWorksheet.h"

#include "regression/ajusteMultiple.h"
#include "regression/textosRegresion.h"
#include "shell/worksheet/Messages.h"

#include <cstddef>
#include <utility>

namespace caudalera {

namespace {

RegressionTexts textos(const PolynomialRegressionTexts& propios) {
    RegressionTexts textos;
    textos.tituloDatos = "Ingreso de los pares de datos:";
    textos.marcoAplicar = "Aplicar ecuación polinomial:";
    textos.rotulo = "Ingresar:";
    textos.rotuloTrasReiniciar = rotuloEcuacion;
    textos.encabezados = {"Correlación", "Ecuación", "R", "R^2", "Se"};
    textos.ecuaciones = {propios.ecuacion};
    textos.anchos = {1900, 4800, 1000, 1000, 1300};
    textos.reporteDatos = {"Pares de valores X e Y:", " Par\t\t X\t\t Y\t\t", 60};
    textos.reporteEcuaciones = {"Ecuación de ajuste de correlación polinomial:",
                                " Correlación             \t\t Ecuación                         "
                                "\t\t R   \t R^2 \t Se  \t\t",
                                propios.guionesEcuacion};
    textos.reporteEvaluacion = "Cálculo de Y para un valor de X:";
    return textos;
}

std::vector<double> primerosValores(const Serie& serie, long n) {
    std::vector<double> valores;
    for (const Real valor : serie.primeros(n))
        valores.push_back(valor.value());
    return valores;
}

} // namespace

PolynomialRegressionWorksheet::PolynomialRegressionWorksheet(Program& program, std::string name,
                                                             std::string text,
                                                             PolynomialRegressionTexts propios)
    : RegressionWorksheet(program, std::move(name), std::move(text), "Par", layoutParesXY(),
                          textos(propios)),
      propios_(std::move(propios)),
      potencias_(static_cast<std::size_t>(propios_.grado), Serie(propios_.capacidad)),
      Y_(propios_.capacidad), Yc_(propios_.capacidad), coeficientes_(potencias_.size() + 1) {
    columnas = {&potencias_[0], &Y_};
    bGraficar.onClick = [this] { graficar(); };
    bCalY.onClick = [this] { calcularY(); };
    txtvxx1.command = &bCalY;
    txtvxx1.onChange = [this] { txtvyy.setText({}); };
    disponer({&txtvxx1}, {layout::buttons({&bCalY})}, &Graph1);
    mandatoTrasCalcular(bGraficar);
}

void PolynomialRegressionWorksheet::leerCuadricula() {
    RegressionWorksheet::leerCuadricula();
    numPares_ = n;
    for (std::size_t j = 1; j < potencias_.size(); ++j) {
        for (long i = 1; i <= numPares_; ++i)
            potencias_[j][i] = Pow(potencias_[0][i], static_cast<double>(j + 1));
    }
}

void PolynomialRegressionWorksheet::calcular() {
    leerCuadricula();
    if (numPares_ <= static_cast<long>(coeficientes_.size())) {
        rechazar(sinTitulo(propios_.pocosPares, Icon::error));
        return;
    }
    Regresores x;
    for (const Serie& potencia : potencias_)
        x.push_back(potencia.primeros(numPares_));
    const auto ajuste = ajusteMultiple(x, std::as_const(Y_).primeros(numPares_));
    if (!ajuste) {
        avisarSistemaSingular();
        return;
    }
    const Real Se = errorEstandar(*ajuste);
    coeficientes_ = ajuste->coeficientes;
    for (long i = 1; i <= numPares_; ++i)
        Yc_[i] = valorLineal(coeficientes_, observacion(x, static_cast<std::size_t>(i - 1)));
    escribirEcuacion(0, textoPolinomio(),
                     {coeficiente(ajuste->r), coeficiente(ajuste->r2), coeficiente(Se)});
    calculado = true;
}

std::string PolynomialRegressionWorksheet::textoPolinomio() const {
    std::string texto = "Y = " + coeficiente(coeficientes_[0]);
    for (std::size_t j = 1; j < coeficientes_.size(); ++j) {
        texto += " " + conSigno(coeficientes_[j]) + " * X";
        if (j > 1)
            texto += " ^" + std::to_string(j);
    }
    return texto;
}

void PolynomialRegressionWorksheet::calcularY() {
    if (!hayCalculo(calculado, sinTitulo(mensajeCalcularYSinCalculo)))
        return;
    txtvyy.setText({});
    if (!exigir(txtvxx1, sinTitulo(mensajeFaltaX)))
        return;
    const Real x = valoresDados().front();
    std::vector<Real> potencias;
    for (std::size_t j = 1; j <= potencias_.size(); ++j)
        potencias.push_back(Pow(x, static_cast<double>(j)));
    txtvyy.setText(formatear(valorLineal(coeficientes_, potencias), mascaraEvaluacion));
}

void PolynomialRegressionWorksheet::graficar() {
    if (!hayCalculo(calculado, sinTitulo(mensajeGraficoSinEjecutar)))
        return;
    Chart grafico;
    grafico.style = 1;
    grafico.x = primerosValores(potencias_[0], numPares_);
    grafico.series = {{"Dat", primerosValores(Y_, numPares_), "Datos"},
                      {"Teo", primerosValores(Yc_, numPares_), "Valores teóricos de la ecuación"}};
    grafico.xTitle = grdt.TextMatrix(0, 1);
    grafico.yTitle = grdt.TextMatrix(0, 2);
    dibujar(Graph1, std::move(grafico));
}

} // namespace caudalera
