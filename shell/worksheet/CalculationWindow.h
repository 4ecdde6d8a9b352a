#pragma once

#include "shell/report/ReportWriter.h"
#include "shell/window/Window.h"

#include <vector>

namespace caudalera {

/// What every calculation window has: its command buttons, which stand in the same groups in all of
/// them, and the frame of its report.
class CalculationWindow : public Window {
public:
    CalculationWindow(Program& program, std::string name, std::string caption);

    Frame Frame6{*this, "Frame6", ""};
    Button bCalcular{*this, "bCalcular", "Calc&ular", "Efectuar cálculos"};
    Button bLimpiar{*this, "bLimpiar", "&Limpiar", "Limpiar pantalla"};
    Button bImprimir{*this, "bImprimir", "&Imprimir", "Imprimir pantalla"};
    Button bMenu{*this, "bMenu", "&Menú Principal", "Retornar menú principal"};
    Frame Frame7{*this, "Frame7", "Archivos y resultados:"};
    Button bReporte{*this, "bReporte", "&Reporte", "Generar reporte"};
    Button bCalculadora{*this, "bCalculadora", "Calculadora"};

protected:
    /// Shows a command of the window's own behind `bCalcular`.
    void mandatoTrasCalcular(Button& boton);
    /// Shows a command behind `bReporte`, among those of files.
    void mandatoDeArchivo(Button& boton);

    /// Fields that hold results: they look like it and are emptied with the results.
    void registrarResultados(const std::vector<TextBox*>& campos);
    /// Fields that the user fills and that are emptied with the results all the same.
    void registrarEntradas(const std::vector<TextBox*>& campos);
    /// Empties the registered fields, in the order in which they were registered.
    void vaciarCampos();

    /// ENTER takes the focus from each of these to the next.
    void encadenar(const std::vector<Control*>& controles);
    /// Refuses what a field holds: the message, and the field emptied and with the focus.
    void rechazar(TextBox& campo, const Message& motivo);
    /// Whether a field holds a text; refused if not.
    bool exigir(TextBox& campo, const Message& siVacio);
    /// The two gates in front of a chart, and of other commands that need the same: false, behind
    /// the message, if there is no calculation to go by, or fewer than two points.
    bool hayCalculo(bool calculado, const Message& siNo) const;
    bool hayPuntos(long puntos, const Message& siNo) const;

    virtual void calcular() = 0;
    virtual void limpiar() = 0;
    /// The window's own content of the report, behind the title block.
    virtual void escribirReporte(ReportWriter& reporte) = 0;
    /// Rows of data that the report counts.
    virtual long filasDelReporte() const { return 0; }
    /// The report stands.
    virtual void trasReporte() {}

private:
    void reporte();

    std::vector<TextBox*> camposQueSeVacian_;
};

} // namespace caudalera
