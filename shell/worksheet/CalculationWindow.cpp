#include "shell/worksheet/CalculationWindow.h"

#include "shell/report/frmPadre.h"
#include "shell/window/Program.h"

namespace caudalera {

CalculationWindow::CalculationWindow(Program& program, std::string name, std::string text)
    : Window(program, std::move(name), std::move(text)) {
    mainAction = &bCalcular;
    commands = {{&Frame6, {&bCalcular, &bLimpiar, &bImprimir}},
                {&Frame7, {&bReporte}},
                {nullptr, {&bCalculadora, &bMenu}}};
    bCalcular.onClick = [this] { calcular(); };
    bLimpiar.onClick = [this] { limpiar(); };
    bImprimir.onClick = [this] { platform().printWindow(*this); };
    bMenu.onClick = [this] {
        this->program().unload(*this);
        this->program().show("frmCaudalera");
    };
    bReporte.onClick = [this] { reporte(); };
    bCalculadora.enabled = this->program().knows("frmCalculadora");
    bCalculadora.onClick = [this] { this->program().show("frmCalculadora"); };
}

void CalculationWindow::mandatoTrasCalcular(Button& button) {
    auto& calculation = commands[0].buttons;
    calculation.insert(calculation.begin() + 1, &button);
}

void CalculationWindow::mandatoDeArchivo(Button& button) {
    commands[1].buttons.push_back(&button);
}

void CalculationWindow::reporte() {
    program().show("frmPadre");
    conTrampa(
        [this] {
            program().variables.contadorLineas = filasDelReporte();
            ReportWriter escritor(ventanaDeReportes(program())->documentoParaReporte().rtfText);
            escritor.titulo(caption);
            escribirReporte(escritor);
        },
        [this](const RuntimeFailure&) {
            mensaje("No se puede editar el reporte: " + caption, "Mensaje de error",
                    Icon::information);
        });
}

} // namespace caudalera
