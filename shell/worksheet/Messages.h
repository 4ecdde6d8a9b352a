#pragma once

#include "shell/window/Platform.h"

namespace caudalera {

// Texts that windows of several rooms show.

inline constexpr const char* mensajeGraficoSinCalculo = "Efectuar cálculos antes de graficar";

/// What a chart says of fewer than two points in the regressions, the fits and the storm.
inline Message graficoDeDosPuntos() {
    return {"Para graficar se requiere por lo menos dos puntos", "Error", Icon::error};
}

} // namespace caudalera
