#include "shell/files/FilePath.h"
#include "shell/text/Text.h"
#include "shell/window/Graph.h"
#include "shell/window/Program.h"
#include "shell/worksheet/Worksheet.h"

#include <algorithm>
#include <numeric>

namespace caudalera {

namespace {

constexpr const char* parte = " · ";

bool tieneCeldas(const MSFlexGrid& cuadricula) {
    for (long fila = cuadricula.FixedRows(); fila < cuadricula.Rows(); ++fila) {
        for (long col = cuadricula.FixedCols(); col < cuadricula.Cols(); ++col) {
            if (!cuadricula.TextMatrix(fila, col).empty())
                return true;
        }
    }
    return false;
}

/// Whether a control shows something.
bool muestra(const Control& control) {
    if (!control.visible)
        return false;
    switch (control.kind()) {
    case ControlKind::text:
        return !static_cast<const TextBox&>(control).text().empty();
    case ControlKind::grid:
        return tieneCeldas(static_cast<const MSFlexGrid&>(control));
    case ControlKind::label:
        return static_cast<const Label&>(control).mark != Label::Mark::none;
    default:
        return true;
    }
}

bool esResultado(const Control& control) {
    switch (control.kind()) {
    case ControlKind::text:
        return static_cast<const TextBox&>(control).result;
    case ControlKind::grid:
        return !static_cast<const MSFlexGrid&>(control).editor;
    case ControlKind::label:
        // The verdict of a fit.
        return static_cast<const Label&>(control).mark != Label::Mark::none;
    default:
        return control.kind() == ControlKind::chart;
    }
}

std::uint64_t escrituras(const std::vector<const Control*>& controles) {
    return std::accumulate(
        controles.begin(), controles.end(), std::uint64_t{0},
        [](std::uint64_t suma, const Control* control) { return suma + control->written(); });
}

} // namespace

std::vector<const Control*> Worksheet::resultados() const {
    std::vector<const Control*> todos;
    for (const Control* control : controls()) {
        if (esResultado(*control))
            todos.push_back(control);
    }
    return todos;
}

void Worksheet::registrarCalculo(const std::function<void()>& pasos) {
    const std::uint64_t antes = escrituras(resultados());
    filasLeidas_ = 0;
    pasos();
    // One that was refused has written nothing; one that did not read the grid where it might have
    // went by the data that it had.
    if (escrituras(resultados()) == antes || (filasLeidas_ == 0 && grdt.visible))
        return;
    estado_.calculated();
    estado_.done("calculado");
}

void Worksheet::anotarArchivo(const char* hecho) {
    estado_.done(hecho + pathText(filePath(program().variables.nombreArchivo).filename()));
}

std::vector<const Control*> Worksheet::staleResults() const {
    if (!estado_.changedSinceCalculation())
        return {};
    auto atrasados = resultados();
    std::erase_if(atrasados, [](const Control* control) { return !muestra(*control); });
    return atrasados;
}

std::string Worksheet::status() const {
    std::string texto;
    if (grdt.visible) {
        const long datos = estado_.count();
        texto = datos == 0 ? "Sin datos" : datos == 1 ? "1 dato" : textoPlano(datos) + " datos";
    }
    const std::string suceso = staleResults().empty()
                                   ? estado_.lastDone()
                                   : "Los datos cambiaron: los resultados son del cálculo anterior";
    if (!texto.empty() && !suceso.empty())
        texto += parte;
    texto += suceso;
    return texto.empty() ? "Listo" : texto;
}

} // namespace caudalera
