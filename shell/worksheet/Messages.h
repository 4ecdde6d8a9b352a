#pragma once

namespace caudalera {

// Texts that windows of several rooms show.

inline constexpr const char* mensajeGraficoSinCalculo = "Efectuar cálculos antes de graficar";
inline constexpr const char* mensajeGraficoDosPuntos =
    "Para graficar se requiere por lo menos dos puntos";

} // namespace caudalera
