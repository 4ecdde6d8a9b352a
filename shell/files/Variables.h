#pragma once

#include "shell/numbers/Integer16.h"

#include <string>

namespace caudalera {

/// Globals that all windows share within one command; what is kept between commands is said with
/// it.
struct Variables {
    /// Rows of data that a report being composed counts.
    Integer16 contadorLineas;
    /// Records of the file being loaded.
    Integer16 numRegistros;
    /// Path from the last file dialog.
    std::string nombreArchivo;
    /// Classes of the last grouping by `frmParEstAgru`, kept as long as the program runs.
    Integer16 numClases;
    /// A command that failed between open and close leaves it so; the next opening fails and frees
    /// it. Kept until then.
    bool archivoUnoEnUso = false;
};

} // namespace caudalera
