#pragma once

#include "shell/window/Graph.h"
#include "shell/worksheet/DataEntry.h"
#include "shell/worksheet/Worksheet.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace caudalera {

/// The texts in which the windows of regression differ.
struct RegressionTexts {
    std::string tituloDatos;
    /// Caption of the frame in which an equation is evaluated.
    std::string marcoAplicar;
    /// `lblCalculoY` at the start, and after a reset.
    std::string rotulo;
    std::string rotuloTrasReiniciar;

    /// `grdecua`: its headers, and the names of its equations in column 0.
    std::vector<std::string> encabezados;
    std::vector<std::string> ecuaciones;
    std::vector<int> anchos;

    /// The report's table of data and table of equations: title, heading row, length of the rules.
    struct Tabla {
        std::string titulo;
        std::string columnas;
        long guiones = 0;
    };
    Tabla reporteDatos;
    Tabla reporteEcuaciones;
    std::string reporteEvaluacion;
};

/// The template of the windows that fit equations to rows of data: the fitted equations with their
/// correlation, and Y for values that the user gives. A window supplies its texts, its fields and
/// the fit.
class RegressionWorksheet : public Worksheet {
public:
    RegressionWorksheet(Program& program, std::string name, std::string caption,
                        std::string encabezadoFilas, SeriesLayout seriesLayout,
                        RegressionTexts textos);

private:
    // Before the controls, which are built from them.
    RegressionTexts textos_;

public:
    DataEntry ingreso{*this, textos_.tituloDatos};
    MSFlexGrid grdecua{*this, "grdecua"};
    Frame fraAplicar{*this, "fraAplicar", textos_.marcoAplicar};
    Label lblCalculoY{*this, "lblCalculoY", textos_.rotulo};
    TextBox txtvyy{*this, "txtvyy", "Valor de Y:"};

protected:
    /// The equations that the user picks from, in the windows that have several.
    OptionGroup ecuacionElegida;
    /// A fit has been made, or refused for too few rows.
    bool calculado = false;

    /// Sets the layout, with what stands in the frame of the evaluation beside its fields.
    /// `valores` are the fields of the independent variables in their order.
    void disponer(const std::vector<TextBox*>& valores, std::vector<Layout> mandatos,
                  Graph* grafico = nullptr);

    void reiniciarResultados() override;
    // Here the results go once the file is loaded, so that a load that fails leaves them.
    void antesDeAccesar() override {}
    void trasAccesar() override;
    /// Resets everything that is shown of a fit.
    void borrarResultados() override;
    /// Empties the fields of the evaluation for new values.
    void limpiarDatos();

    /// There are too few rows for a fit. The evaluations are open all the same, with the equations
    /// of the last fit.
    void rechazar(const Message& message);
    /// The message of a system without a solution of its own.
    void avisarSistemaSingular() const;
    /// Shows equation `indice`, counted from 0, with what stands behind its text.
    void escribirEcuacion(std::size_t indice, std::string ecuacion,
                          const std::vector<std::string>& valores);

    /// A coefficient in an equation of several terms; `conSigno` also shows a plus.
    std::string coeficiente(Real valor) const;
    std::string conSigno(Real valor) const;

    void escribirReporte(ReportWriter& reporte) override;
    /// The end of the report, below its title.
    virtual void reporteDeEvaluacion(ReportWriter& reporte);

    /// Whether a field of the independent variables is empty.
    bool faltaAlgunValor() const;
    /// Numeric reading of the fields of the independent variables.
    std::vector<Real> valoresDados() const;

private:
    std::vector<TextBox*> valores_;
    Graph* grafico_ = nullptr;
};

} // namespace caudalera
