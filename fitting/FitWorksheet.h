#pragma once

#include "fitting/FitTexts.h"
#include "shell/numbers/Serie.h"
#include "shell/window/Graph.h"
#include "shell/worksheet/DataEntry.h"
#include "shell/worksheet/Worksheet.h"

#include <array>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace caudalera {

/// The template of the windows that fit a distribution to a series: empirical probabilities,
/// parameters, theoretical probabilities, the Smirnov-Kolmogorov test, and the four questions to
/// the fitted distribution, all of it for each kind of moments that the window has. A window
/// supplies its texts and masks, the checks of its series and its distribution.
class FitWorksheet : public Worksheet {
public:
    FitWorksheet(Program& program, std::string name, std::string caption, const FitTexts& textos);

    DataEntry ingreso{*this, "Ingreso de datos:"};
    Button bGraficar{*this, "bGraficar", "&Graficar", "Mostrar gráfico"};

    /// Choice of the kind of moments, in the windows that have linear moments.
    struct TipoDeAjuste {
        explicit TipoDeAjuste(Window& window) : ventana(window) { optOrdinario.preset(true); }

        Window& ventana;
        Frame fraTipoAjuste{ventana, "fraTipoAjuste", "Tipo de ajuste:"};
        OptionGroup grupo;
        Option optOrdinario{ventana, "optOrdinario", "Parámetros ordinarios", grupo};
        Option optMomentoLi{ventana, "optMomentoLi", "Momentos lineales", grupo};
    };
    std::optional<TipoDeAjuste> tipoDeAjuste;

    Frame fraNivel{*this, "fraNivel", "Nivel significación:"};
    OptionGroup niveles;
    Option opt020{*this, "opt020", "0.20", niveles};
    Option opt010{*this, "opt010", "0.10", niveles};
    Option opt005{*this, "opt005", "0.05", niveles};
    Option opt001{*this, "opt001", "0.01", niveles};

    Frame fraParametros;

    Frame fraCaudal{*this, "fraCaudal", "Caudal de diseño:"};
    TextBox txtxq{*this, "txtxq", "Caudal (Q):", "m3/s"};
    TextBox txtxt{*this, "txtxt", "Período de retorno (T):"};
    TextBox txtxp{*this, "txtxp", "Probabilidad (P):", "%"};
    Button bQ{*this, "bQ", "Q=f(T)", "Caudal de diseño"};
    Button bT{*this, "bT", "T=f(Q)", "Periodo de retorno"};
    Button bPmayor{*this, "bPmayor", "P(Q>q)", "Probabilidad de excedencia"};
    Button bPmenor{*this, "bPmenor", "P(Q<q)", "Probabilidad de no excedencia"};

    MSFlexGrid grddis{*this, "grddis"};
    Label lblAjuste{*this, "lblAjuste", "Ajuste:"};
    Label lblmensaje{*this, "lblmensaje", ""};
    Graph Graph1{*this, "Graph1"};

protected:
    enum class Momentos { ordinarios, lineales };
    enum class Evaluacion { Q, T, Pmayor, Pmenor };

    /// A parameter of the distribution: where it is held and shown, and its line in the report.
    struct Parametro {
        Real* valor;
        TextBox* campo;
        std::string_view linea;
    };

    /// A curve of the chart, its legend and what that stands for.
    struct Curva {
        Serie* serie;
        std::string_view leyenda;
        std::string_view significado;
    };

    // What a window sets when it is built.
    std::vector<Parametro> ordinarios;
    std::vector<Parametro> lineales;
    /// What columns 3 and 4 of `grddis` show.
    std::array<const Serie*, 2> columnasDeAjuste{&acumOrdinaria, &acumLineal};
    std::vector<Curva> curvas{
        {&probEmpirica, "Exp", "Probabilidad experimental de los datos"},
        {&acumOrdinaria, "Ord", "Probabilidad teórica con parámetros ordinarios"},
        {&acumLineal, "ML", "Probabilidad teórica con momentos lineales"}};
    /// Sets the layout and the commands, with the parameter fields as they stand in their frame.
    void disponer(Layout camposDeParametros);

    // What a window supplies to `bCalcular`, in the order of the steps.
    /// Behind the reading of the grid, which may have failed, and before any other step.
    virtual void trasLeer() {}
    /// Looks at the series in input order; false, after its message, ends the command.
    virtual bool admitirSerie() { return true; }
    /// The same for the sorted series, before the empirical probabilities.
    virtual bool admitirOrdenada() { return true; }
    /// What is computed of the sorted series before the empirical probabilities.
    virtual void trasOrdenar() {}
    /// Fills the parameters one after another, so that a failure leaves those before it.
    virtual void calcularParametros() = 0;
    /// Looks at all reduced variates of a kind, before any cumulative value.
    virtual void trasReducir(Momentos /*tipo*/, std::span<const Real> /*reducidas*/) {}
    /// Before the test and behind it.
    virtual void antesDelAjuste() {}
    virtual void trasElAjuste() {}

    // What a window supplies to the evaluation commands.
    /// Whether the parameters can answer at all; false, after its message, ends the command.
    virtual bool admitirEvaluacion(Momentos /*tipo*/) { return true; }
    /// The same for the flow that T, Pmayor or Pmenor asks about.
    virtual bool admitirCaudal(Evaluacion /*cual*/, Momentos /*tipo*/, Real /*q*/) { return true; }

    // The distribution with the parameters of a kind of moments.
    virtual Real reducir(Momentos tipo, Real q) = 0;
    /// Probability of non-exceedance of a reduced variate.
    virtual Real probabilidad(Momentos tipo, Real reducida) = 0;
    /// Flow of a probability of non-exceedance.
    virtual Real cuantil(Momentos tipo, Real p) = 0;

    /// What the fits of logarithms say of a sorted series with a value of 0 or less, which they do
    /// not admit; they differ in the icon.
    bool admitirPositivos(Icon icono) const;

    /// As the options stand now.
    Momentos tipoElegido() const;
    /// The kinds that the window has.
    std::vector<Momentos> tipos() const;

    void calcular() override;
    void limpiar() override;
    void escribirReporte(ReportWriter& reporte) override;
    void reiniciarResultados() override;
    void antesDeAccesar() override;
    void leerCuadricula() override;

    static constexpr long capacidad = 500;
    /// Rows of data at the last `bCalcular` or `bCrear`.
    Integer16 conteoDatos;
    Serie serieDatos{capacidad};
    Serie serieOrdenada{capacidad};
    /// These have an element 0 in front, where the chart has its origin.
    Serie probEmpirica{0, capacidad};
    Serie acumOrdinaria{0, capacidad};
    Serie acumLineal{0, capacidad};
    Serie reducidaOrdinaria{capacidad};
    Serie reducidaLineal{capacidad};
    Serie delta{capacidad};
    bool ajusteCalculado = false;

private:
    void ajustar();
    Serie& reducidas(Momentos tipo);
    Serie& acumuladas(Momentos tipo);
    void calcularAcumuladas();
    void escribirParametros();
    void probarAjuste();
    void escribirResultados();
    void escribirVeredicto(Real teorico);
    void borrarCampos();
    void graficar();
    void evaluarQ();
    void evaluarCaudal(Evaluacion cual);
    bool admitirMandato(std::string_view sinCalculo, const TextBox& campo,
                        std::string_view campoVacio);
    void mensajeDeError(std::string_view texto) const;
    std::vector<const Parametro*> parametros() const;

    void reporteDeSerie(ReportWriter& reporte) const;
    void reporteDelAjuste(ReportWriter& reporte) const;
    void reporteDeParametros(ReportWriter& reporte) const;

    const FitTexts& textos_;
};

} // namespace caudalera
