#pragma once

#include "shell/window/Platform.h"

namespace caudalera {

// Texts that windows of several rooms show.

inline constexpr const char* mensajeGraficoSinCalculo = "Efectuar cálculos antes de graficar";
inline constexpr const char* mensajeGraficoSinEjecutar = "Ejecutar cálculos antes de graficar";

/// What a chart says of fewer than two points; the error icon in the regressions, the fits and the
/// storm.
inline Message graficoDeDosPuntos(Icon icono = Icon::error) {
    return {"Para graficar se requiere por lo menos dos puntos", "Error", icono};
}

} // namespace caudalera
