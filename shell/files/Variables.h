#pragma once

#include "shell/numbers/Integer16.h"

#include <string>

namespace caudalera {

/// Globals that all windows share within one command; nothing in them is kept between commands
/// but whether file number 1 is open.
struct Variables {
    /// Rows of data that a report being composed counts.
    Integer16 contadorLineas;
    /// Records of the file being loaded.
    Integer16 numRegistros;
    /// Path from the last file dialog.
    std::string nombreArchivo;
    /// A command that failed between open and close leaves it so; the next opening fails and frees
    /// it.
    bool archivoUnoEnUso = false;
};

} // namespace caudalera
