#pragma once

#include "shell/window/Window.h"

#include <string>

namespace caudalera {

/// The heading over a data grid and the note below it, as most windows have them.
class DataEntry {
public:
    DataEntry(Window& window, std::string heading)
        : lblIngreso(window, "lblIngreso", std::move(heading)), lblNota(window, "lblNota", "Nota:"),
          lblNotaEnter(window, "lblNotaEnter", "Una vez que digite el dato, presionar ENTER") {
        lblIngreso.heading = true;
        lblNota.heading = true;
        lblNotaEnter.wraps = true;
    }

    Label lblIngreso;
    Label lblNota;
    Label lblNotaEnter;

    /// The grid with its heading and note, as the left column of a window.
    Layout columna(MSFlexGrid& grid) {
        using namespace layout;
        return column({control(lblIngreso), control(grid).stretched(), control(lblNota),
                       control(lblNotaEnter)});
    }
};

} // namespace caudalera
