#include "shell/numbers/parametrosComunes.h"

#include "shell/numbers/momentos.h"

namespace caudalera {

SumasCentrales sumasCentrales(std::span<const Real> x) {
    SumasCentrales sumas;
    sumas.n = static_cast<double>(x.size());
    sumas.media = media(x);
    sumas.cuadrados = sumaDesvios(x, sumas.media, 2);
    sumas.M3 = sumaDesvios(x, sumas.media, 3) / sumas.n;
    sumas.M4 = sumaDesvios(x, sumas.media, 4) / sumas.n;
    return sumas;
}

ParametrosComunes parametrosMuestrales(const SumasCentrales& sumas) {
    const Real n = sumas.n;
    ParametrosComunes p;
    p.media = sumas.media;
    p.varianza = sumas.cuadrados / (n - 1);
    p.desviacion = Sqr(p.varianza);
    p.variacion = p.desviacion / p.media;
    p.sesgo = sesgoMuestral(sumas.M3, n, p.desviacion);
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
