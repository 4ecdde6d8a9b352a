#include "precipitation/tormenta.h"

namespace caudalera {

void Tormenta::agregar(Real tiempo, Real lluvia) {
    constexpr int minutosPorHora = 60;
    const IntervaloTormenta anterior = n_ > 0 ? intervalos_[n_] : IntervaloTormenta();
    const Real intensidad = (lluvia * minutosPorHora) / tiempo;
    intervalos_[n_ + 1] = {tiempo, lluvia, anterior.tiempoAcumulado + tiempo,
                           anterior.lluviaAcumulada + lluvia, intensidad};
    ++n_;
    if (const float simple = toSingle(intensidad); intensidadMaxima_ < simple) {
        intensidadMaxima_ = simple;
        duracionMaxima_ = toSingle(tiempo);
    }
}

} // namespace caudalera
