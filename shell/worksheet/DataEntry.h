#pragma once

#include "shell/window/Window.h"

#include <string>
#include <utility>

namespace caudalera {

/// The heading over a data grid and the note below it.
class DataEntry {
public:
    /// Names of the three labels, where a window has its own.
    struct Names {
        std::string heading = "lblIngreso";
        std::string note = "lblNota";
        std::string enter = "lblNotaEnter";
    };

    DataEntry(Window& window, std::string heading) : DataEntry(window, std::move(heading), {}) {}
    DataEntry(Window& window, std::string heading, Names names)
        : lblIngreso(window, std::move(names.heading), std::move(heading)),
          lblNota(window, std::move(names.note), "Nota:"),
          lblNotaEnter(window, std::move(names.enter),
                       "Una vez que digite el dato, presionar ENTER") {
        lblIngreso.heading = true;
        lblNota.heading = true;
        lblNotaEnter.wraps = true;
    }

    Label lblIngreso;
    Label lblNota;
    Label lblNotaEnter;

    void mostrar(bool visibles) {
        for (Label* rotulo : {&lblIngreso, &lblNota, &lblNotaEnter})
            rotulo->visible = visibles;
    }

    /// The grid with its heading and note, as the left column of a window.
    Layout columna(MSFlexGrid& cuadricula) {
        using namespace layout;
        return column({control(lblIngreso), control(cuadricula).stretched(), control(lblNota),
                       control(lblNotaEnter)});
    }
};

} // namespace caudalera
