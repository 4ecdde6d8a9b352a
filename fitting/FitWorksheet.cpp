#include "fitting/FitWorksheet.h"

#include "fitting/smirnovKolmogorov.h"
#include "shell/numbers/momentos.h"
#include "shell/text/Text.h"
#include "shell/worksheet/Messages.h"

namespace caudalera {

namespace {

constexpr std::string_view mascaraValor = "#####0.0###";
constexpr std::string_view mascaraAcumulada = "#####0.0##0";
constexpr std::string_view mascaraCaudal = "#####0.#0";

} // namespace

FitWorksheet::FitWorksheet(Program& program, std::string name, std::string text,
                           const FitTexts& textos)
    : Worksheet(program, std::move(name), std::move(text), "N°", layoutSerieX()),
      fraParametros(*this, "fraParametros", std::string(textos.marcoParametros)), textos_(textos) {
    columnas = {&serieDatos};
    if (textos.momentosLineales)
        tipoDeAjuste.emplace(*this);
    opt005.preset(true);
    grddis.columnWidths = {700, 1000, 1000, 1200, 1300, 1000};
    grddis.columnAlignments.assign(6, MSFlexGrid::ColumnAlignment::center);
    grddis.visibleRows = 8;
    bGraficar.onClick = [this] { graficar(); };
    bQ.onClick = [this] { evaluarQ(); };
    bT.onClick = [this] { evaluarCaudal(Evaluacion::T); };
    bPmayor.onClick = [this] { evaluarCaudal(Evaluacion::Pmayor); };
    bPmenor.onClick = [this] { evaluarCaudal(Evaluacion::Pmenor); };
    txtxt.command = &bQ;
    txtxq.command = &bT;
}

void FitWorksheet::disponer(Layout camposDeParametros) {
    using namespace layout;
    lblAjuste.heading = true;
    lblmensaje.wraps = true;
    registrarEntradas({&txtxq, &txtxt});
    registrarResultados({&txtxp});
    for (TextBox* campo : {&txtxq, &txtxt, &txtxp})
        campo->width = 12;
    for (const Parametro* parametro : parametros()) {
        registrarResultados({parametro->campo});
        parametro->campo->width = 12;
    }

    std::vector<Layout> elecciones;
    if (tipoDeAjuste) {
        elecciones.push_back(
            frame(tipoDeAjuste->fraTipoAjuste,
                  row({control(tipoDeAjuste->optOrdinario), control(tipoDeAjuste->optMomentoLi)})));
    }
    elecciones.push_back(
        frame(fraNivel, row({control(opt020), control(opt010), control(opt005), control(opt001)})));
    elecciones.push_back(frame(fraParametros, std::move(camposDeParametros)));
    elecciones.push_back(
        frame(fraCaudal, column({fields({txtxq, txtxt, txtxp}), buttons({&bQ, &bT}),
                                 buttons({&bPmayor, &bPmenor})})));
    layout = row({
        ingreso.columna(grdt),
        column(std::move(elecciones)),
        column(
            {control(grddis), control(lblAjuste), control(lblmensaje), control(Graph1).stretched()})
            .stretched(),
    });
    mandatoTrasCalcular(bGraficar);
}

std::vector<const FitWorksheet::Parametro*> FitWorksheet::parametros() const {
    std::vector<const Parametro*> todos;
    for (const auto* tipo : {&ordinarios, &lineales}) {
        for (const Parametro& parametro : *tipo)
            todos.push_back(&parametro);
    }
    return todos;
}

void FitWorksheet::reiniciarResultados() {
    grddis.reset(500, 6, 1, 0);
    grddis.setHeaders({"m", "X", "P(X)", std::string(textos_.columnas.encabezados[0]),
                       std::string(textos_.columnas.encabezados[1]), "Delta"});
}

void FitWorksheet::borrarCampos() {
    vaciarCampos();
    ajusteCalculado = false;
    lblmensaje.caption.clear();
    lblmensaje.mark = Label::Mark::none;
    lblAjuste.caption = "Ajuste:";
}

void FitWorksheet::limpiar() {
    reiniciarCuadricula();
    reiniciarResultados();
    borrarCampos();
    Graph1.clear();
}

void FitWorksheet::antesDeAccesar() {
    reiniciarResultados();
    Graph1.clear();
    borrarCampos();
}

void FitWorksheet::leerCuadricula() {
    conteoDatos = contarFilas();
    Worksheet::leerCuadricula();
}

FitWorksheet::Momentos FitWorksheet::tipoElegido() const {
    return tipoDeAjuste && tipoDeAjuste->optMomentoLi.checked() ? Momentos::lineales
                                                                : Momentos::ordinarios;
}

std::vector<FitWorksheet::Momentos> FitWorksheet::tipos() const {
    if (tipoDeAjuste)
        return {Momentos::ordinarios, Momentos::lineales};
    return {Momentos::ordinarios};
}

Serie& FitWorksheet::reducidas(Momentos tipo) {
    return tipo == Momentos::lineales ? reducidaLineal : reducidaOrdinaria;
}

Serie& FitWorksheet::acumuladas(Momentos tipo) {
    return tipo == Momentos::lineales ? acumLineal : acumOrdinaria;
}

void FitWorksheet::mensajeDeError(std::string_view texto) const {
    mensaje(std::string(texto), "Mensaje de Error", Icon::error);
}

void FitWorksheet::calcular() {
    conTrampa([this] { ajustar(); },
              [this](const RuntimeFailure&) {
                  mensaje(std::string(textos_.falloCalculo), "Mensaje de error", Icon::information);
              });
}

void FitWorksheet::ajustar() {
    leerCuadricula();
    trasLeer();
    if (!admitirSerie())
        return;
    for (long i = 1; i <= conteoDatos; ++i)
        serieOrdenada[i] = serieDatos[i];
    ordenarAscendente(serieOrdenada.primeros(conteoDatos));
    if (!admitirOrdenada())
        return;
    trasOrdenar();
    for (long m = 1; m <= conteoDatos; ++m)
        probEmpirica[m] = posicionWeibull(m, conteoDatos);
    calcularParametros();
    calcularAcumuladas();
    escribirParametros();
    antesDelAjuste();
    probarAjuste();
    trasElAjuste();
    ajusteCalculado = true;
}

bool FitWorksheet::admitirPositivos(Icon icono) const {
    const auto ordenada = serieOrdenada.primeros(conteoDatos);
    if (ordenada.empty() || ordenada.front() > 0)
        return true;
    mensaje("Para esta distribución, los valores de la serie no pueden ser iguales a 0, ¡Corregir "
            "valores¡",
            "Mensaje de error", icono);
    return false;
}

void FitWorksheet::calcularAcumuladas() {
    for (const Momentos tipo : tipos()) {
        for (long m = 1; m <= conteoDatos; ++m)
            reducidas(tipo)[m] = reducir(tipo, serieOrdenada[m]);
        trasReducir(tipo, reducidas(tipo).primeros(conteoDatos));
    }
    for (const Momentos tipo : tipos()) {
        for (long m = 1; m <= conteoDatos; ++m)
            acumuladas(tipo)[m] = probabilidad(tipo, reducidas(tipo)[m]);
    }
}

void FitWorksheet::escribirParametros() {
    for (const Parametro* parametro : parametros())
        parametro->campo->setText(formatear(*parametro->valor, mascaraValor));
}

void FitWorksheet::probarAjuste() {
    const Momentos tipo = tipoElegido();
    lblAjuste.caption = tipo == Momentos::lineales ? "Ajuste con momentos lineales:"
                                                   : "Ajuste con momentos ordinarios:";
    for (long m = 1; m <= conteoDatos; ++m)
        delta[m] = Abs(probEmpirica[m] - acumuladas(tipo)[m]);
    const Real teorico = deltaTeorico(delta.primeros(conteoDatos));
    escribirResultados();
    escribirVeredicto(teorico);
}

void FitWorksheet::escribirResultados() {
    for (long m = 1; m <= conteoDatos; ++m) {
        grddis.setTextMatrix(m, 0, textoPlano(m));
        grddis.setTextMatrix(m, 1, formatear(serieOrdenada[m], mascaraValor));
        grddis.setTextMatrix(m, 2, formatear(probEmpirica[m], mascaraAcumulada));
        grddis.setTextMatrix(m, 3, formatear((*columnasDeAjuste[0])[m], mascaraAcumulada));
        grddis.setTextMatrix(m, 4, formatear((*columnasDeAjuste[1])[m], mascaraAcumulada));
        grddis.setTextMatrix(m, 5, formatear(delta[m], mascaraAcumulada));
    }
    grddis.clearRowsFrom(conteoDatos + 1);
}

void FitWorksheet::escribirVeredicto(Real teorico) {
    struct Nivel {
        const Option& opcion;
        double coeficiente;
        const char* texto;
    };
    const std::array<Nivel, 4> todos{{{opt020, 1.07, " 20%"},
                                      {opt010, 1.22, " 10%"},
                                      {opt005, 1.36, " 5%"},
                                      {opt001, 1.63, " 1%"}}};
    for (const Nivel& nivel : todos) {
        if (!nivel.opcion.checked())
            continue;
        const Real tabular = deltaTabular(nivel.coeficiente, conteoDatos);
        const bool ajusta = seAjusta(teorico, tabular);
        lblmensaje.caption =
            "Como el delta teórico " + formatear(teorico, textos_.mascaraTeorico) +
            (ajusta ? ", es menor que el delta tabular " : ", es mayor que el delta tabular ") +
            formatear(tabular, textos_.mascaraTabular) +
            (ajusta ? ". Los datos se ajustan a la distribución "
                    : ". Los datos no se ajustan a la distribución ") +
            std::string(textos_.distribucion) + ", con un nivel de significación del" + nivel.texto;
        lblmensaje.mark = ajusta ? Label::Mark::yes : Label::Mark::no;
    }
}

void FitWorksheet::graficar() {
    if (!hayCalculo(ajusteCalculado, {mensajeGraficoSinCalculo, "Mensaje de Error", Icon::error}) ||
        !hayPuntos(conteoDatos, graficoDeDosPuntos()))
        return;
    Chart grafico;
    grafico.x.emplace(1, 0.0);
    for (long m = 1; m <= conteoDatos; ++m)
        grafico.x->push_back(serieOrdenada[m].value());
    for (const Curva& curva : curvas) {
        (*curva.serie)[0] = 0;
        Graph::Series series{std::string(curva.leyenda), {}, std::string(curva.significado)};
        for (long m = 0; m <= conteoDatos; ++m)
            series.y.push_back((*curva.serie)[m].value());
        grafico.series.push_back(std::move(series));
    }
    grafico.xTitle = grddis.TextMatrix(0, 1);
    grafico.yTitle = grddis.TextMatrix(0, 2);
    dibujar(Graph1, std::move(grafico));
}

bool FitWorksheet::admitirMandato(std::string_view sinCalculo, const TextBox& campo,
                                  std::string_view campoVacio) {
    if (!ajusteCalculado) {
        mensajeDeError(sinCalculo);
        return false;
    }
    if (campo.text().empty()) {
        mensajeDeError(campoVacio);
        return false;
    }
    return admitirEvaluacion(tipoElegido());
}

void FitWorksheet::evaluarQ() {
    if (!admitirMandato("Efectuar cálculos antes de evaluar caudal de diseño", txtxt,
                        "Ingresar un valor de T, antes de evaluar"))
        return;
    const Real T = Val(txtxt.text());
    const Real p = 1 - 1 / T;
    txtxq.setText(formatear(cuantil(tipoElegido(), p), mascaraCaudal));
}

void FitWorksheet::evaluarCaudal(Evaluacion cual) {
    std::string_view sinCalculo = textos_.excedenciaSinCalculo;
    if (cual == Evaluacion::T) {
        sinCalculo = "Efectuar cálculos antes de evaluar el período de retorno";
    } else if (cual == Evaluacion::Pmenor) {
        sinCalculo = "Efectuar cálculos antes de evaluar la probabilidad de no excedencia";
    }
    if (!admitirMandato(sinCalculo, txtxq, "Ingresar un valor para Q, antes de evaluar"))
        return;
    const Momentos tipo = tipoElegido();
    const Real q = Val(txtxq.text());
    if (!admitirCaudal(cual, tipo, q))
        return;
    const Real F = probabilidad(tipo, reducir(tipo, q));
    if (cual == Evaluacion::T) {
        txtxt.setText(formatear(1 / (1 - F), textos_.mascaraPeriodo));
    } else if (cual == Evaluacion::Pmayor) {
        txtxp.setText(formatear((1 - F) * 100, textos_.mascaraProbabilidad));
    } else {
        txtxp.setText(formatear(F * 100, textos_.mascaraProbabilidad));
    }
}

} // namespace caudalera
