#pragma once

#include "shell/numbers/Integer16.h"

#include <array>
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
    /// Record buffers of the 4-, 8-, 12- and 16-byte files.
    std::array<float, 1> registroUno{};
    std::array<float, 2> registroPar{};
    std::array<float, 3> registroTrio{};
    std::array<float, 4> registroCuarteto{};
    /// A command that failed between open and close leaves it so; the next opening fails and frees
    /// it.
    bool archivoUnoEnUso = false;
};

} // namespace caudalera
