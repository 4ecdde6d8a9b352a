#include "shell/numbers/parametrosComunes.h"

namespace caudalera {

SumasCentrales sumasCentrales(const Serie& x, long n) {
    SumasCentrales sumas;
    sumas.n = static_cast<double>(n);
    sumas.media = media(x, n);
    sumas.cuadrados = sumaDesvios(x, n, sumas.media, 2);
    const Real cubos = sumaDesvios(x, n, sumas.media, 3);
    const Real cuartas = sumaDesvios(x, n, sumas.media, 4);
    sumas.M3 = cubos / sumas.n;
    sumas.M4 = cuartas / sumas.n;
    return sumas;
}

ParametrosComunes parametrosMuestrales(const SumasCentrales& sumas) {
    const Real n = sumas.n;
    ParametrosComunes p;
    p.media = sumas.media;
    p.varianza = sumas.cuadrados / (n - 1);
    p.desviacion = Sqr(p.varianza);
    p.variacion = p.desviacion / p.media;
    p.sesgo = (Pow(n, 2) * sumas.M3) / ((n - 1) * (n - 2) * Pow(p.desviacion, 3));
    p.curtosis = (Pow(n, 3) * sumas.M4) / ((n - 1) * (n - 2) * (n - 3) * Pow(p.desviacion, 4));
    return p;
}

ParametrosComunes parametrosPoblacionales(const SumasCentrales& sumas) {
    ParametrosComunes p;
    p.media = sumas.media;
    p.varianza = sumas.cuadrados / sumas.n;
    p.desviacion = Sqr(p.varianza);
    p.variacion = p.desviacion / p.media;
    p.sesgo = sumas.M3 / Pow(p.desviacion, 3);
    p.curtosis = sumas.M4 / Pow(p.desviacion, 4);
    return p;
}

} // namespace caudalera
