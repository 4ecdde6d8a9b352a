#include "stats/sumasAgrupadas.h"

namespace caudalera {

namespace {

/// Sum of (M - centro)^exponente f over the classes.
Real sumaPonderada(const Agrupacion& agrupacion, Real centro, int exponente) {
    Real suma = 0;
    for (const Clase& clase : agrupacion.clases)
        suma += Pow(clase.marca - centro, exponente) * static_cast<double>(clase.frecuencia);
    return suma;
}

} // namespace

SumasCentrales sumasAgrupadas(const Agrupacion& agrupacion) {
    SumasCentrales sumas;
    sumas.n = static_cast<double>(agrupacion.n);
    sumas.media = sumaPonderada(agrupacion, 0, 1) / sumas.n;
    sumas.cuadrados = sumaPonderada(agrupacion, sumas.media, 2);
    sumas.M3 = sumaPonderada(agrupacion, sumas.media, 3) / sumas.n;
    sumas.M4 = sumaPonderada(agrupacion, sumas.media, 4) / sumas.n;
    return sumas;
}

} // namespace caudalera
