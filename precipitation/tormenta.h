#pragma once

#include "shell/numbers/Serie.h"

#include <span>

namespace caudalera {

/// One interval of a storm as a pluviograph records it, with what follows from it.
struct IntervaloTormenta {
    /// Duration (min) and rainfall (mm) of the interval itself.
    Real tiempo;
    Real lluvia;
    /// The same from the beginning of the storm to the end of the interval.
    Real tiempoAcumulado;
    Real lluviaAcumulada;
    /// Mean intensity in the interval (mm/hr).
    Real intensidad;
};

/// The intervals of a storm, with their largest intensity. It is that of one interval: sums of
/// adjacent intervals are not looked at.
/// Source: Chow, Maidment and Mays, Applied Hydrology (1988), section 3.4, for the hyetograph and
/// the cumulative hyetograph (mass curve) of a storm.
class Tormenta {
public:
    /// `capacidad`: intervals that it holds.
    explicit Tormenta(long capacidad) : intervalos_(capacidad) {}

    /// The next interval, of this duration (min) and rainfall (mm): its intensity is rainfall * 60
    /// / duration. Failure 11 for a duration of 0, 9 past the capacity, 6 for an intensity past the
    /// singles and a sum past the doubles.
    void agregar(Real tiempo, Real lluvia);

    std::span<const IntervaloTormenta> intervalos() const { return intervalos_.primeros(n_); }

    /// Largest intensity (mm/hr), 0 if none is above it, and the duration (min) of its interval,
    /// the first one of several that are equal in single precision; 0 without any.
    float intensidadMaxima() const { return intensidadMaxima_; }
    float duracionMaxima() const { return duracionMaxima_; }

private:
    SerieDe<IntervaloTormenta> intervalos_;
    long n_ = 0;
    float intensidadMaxima_ = 0;
    float duracionMaxima_ = 0;
};

} // namespace caudalera
