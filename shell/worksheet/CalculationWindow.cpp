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

void CalculationWindow::mandatoTrasCalcular(Button& boton) {
    auto& calculo = commands[0].buttons;
    calculo.insert(calculo.begin() + 1, &boton);
}

void CalculationWindow::mandatoDeArchivo(Button& boton) {
    commands[1].buttons.push_back(&boton);
}

void CalculationWindow::registrarResultados(const std::vector<TextBox*>& campos) {
    for (TextBox* campo : campos)
        campo->result = true;
    registrarEntradas(campos);
}

void CalculationWindow::registrarEntradas(const std::vector<TextBox*>& campos) {
    camposQueSeVacian_.insert(camposQueSeVacian_.end(), campos.begin(), campos.end());
}

void CalculationWindow::vaciarCampos() {
    for (TextBox* campo : camposQueSeVacian_)
        campo->setText({});
}

void CalculationWindow::encadenar(const std::vector<Control*>& controles) {
    for (std::size_t i = 0; i + 1 < controles.size(); ++i) {
        const auto avanza = [this, siguiente = controles[i + 1]] { setFocus(siguiente); };
        if (auto* campo = dynamic_cast<TextBox*>(controles[i]))
            campo->onEnter = avanza;
        if (auto* lista = dynamic_cast<List*>(controles[i]))
            lista->onEnter = avanza;
    }
}

void CalculationWindow::rechazar(TextBox& campo, const Message& motivo) {
    mensaje(motivo);
    campo.setText({});
    setFocus(campo);
}

bool CalculationWindow::exigir(TextBox& campo, const Message& siVacio) {
    if (!campo.text().empty())
        return true;
    rechazar(campo, siVacio);
    return false;
}

bool CalculationWindow::hayCalculo(bool calculado, const Message& siNo) const {
    if (!calculado)
        mensaje(siNo);
    return calculado;
}

bool CalculationWindow::hayPuntos(long puntos, const Message& siNo) const {
    if (puntos <= 1)
        mensaje(siNo);
    return puntos > 1;
}

void CalculationWindow::reporte() {
    program().show("frmPadre");
    conTrampa(
        [this] {
            program().variables.contadorLineas = filasDelReporte();
            ReportWriter escritor(ventanaDeReportes(program())->documentForReport().rtfText);
            escritor.titulo(caption);
            escribirReporte(escritor);
            trasReporte();
        },
        [this](const RuntimeFailure&) {
            mensaje("No se puede editar el reporte: " + caption, "Mensaje de error",
                    Icon::information);
        });
}

} // namespace caudalera
