#pragma once

#include "shell/numbers/Real.h"
#include "shell/numbers/RuntimeFailure.h"

#include <cstddef>
#include <span>
#include <vector>

namespace caudalera {

/// A series of values at the indices that are given when it is made, all of them 0 at first; an
/// index outside is failure 9. How many of the values are in use is for its owner to know.
template <typename T>
class SerieDe {
public:
    /// Indices 1 to `capacidad`.
    explicit SerieDe(long capacidad) : SerieDe(1, capacidad) {}
    /// Indices `primero` to `ultimo`.
    SerieDe(long primero, long ultimo)
        : primero_(primero), valores_(static_cast<std::size_t>(ultimo - primero + 1)) {}

    T& operator[](long indice) { return valores_[posicion(indice)]; }
    const T& operator[](long indice) const { return valores_[posicion(indice)]; }

    /// The values at the indices 1 to n, as the numerical routines take them.
    std::span<const T> primeros(long n) const { return hasta(*this, n); }
    std::span<T> primeros(long n) { return hasta(*this, n); }

private:
    template <typename Self>
    static auto hasta(Self& serie, long n) {
        std::span todos(serie.valores_);
        if (n <= 0)
            return todos.first(0);
        const std::size_t desde = serie.posicion(1);
        return todos.subspan(desde, serie.posicion(n) - desde + 1);
    }

    std::size_t posicion(long indice) const {
        if (indice < primero_ || indice - primero_ >= static_cast<long>(valores_.size()))
            throw RuntimeFailure(Failure::index);
        return static_cast<std::size_t>(indice - primero_);
    }

    long primero_;
    std::vector<T> valores_;
};

/// The series that a calculation works on, and one held in single precision.
using Serie = SerieDe<Real>;
using SerieSimple = SerieDe<float>;

} // namespace caudalera
