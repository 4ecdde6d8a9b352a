#pragma once

#include "shell/report/ReportWriter.h"
#include "shell/window/Window.h"

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
    void mandatoTrasCalcular(Button& button);
    /// Shows a command behind `bReporte`, among those of files.
    void mandatoDeArchivo(Button& button);

    virtual void calcular() = 0;
    virtual void limpiar() = 0;
    /// The window's own content of the report, behind the title block.
    virtual void escribirReporte(ReportWriter& reporte) = 0;
    /// Rows of data that the report counts.
    virtual long filasDelReporte() const { return 0; }

private:
    void reporte();
};

} // namespace caudalera
