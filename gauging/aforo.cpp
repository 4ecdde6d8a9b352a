#include "gauging/aforo.h"

#include <cstddef>

namespace caudalera {

Real velocidadMolinete(Real a, Real NR, Real t, Real b) {
    return ((a * NR) / t) + b;
}

Aforo aforar(const SeccionAforada& seccion) {
    Aforo aforo;
    SeccionAforada::Vertical antes = seccion.margen;
    for (std::size_t i = 0; i < seccion.L.size(); ++i) {
        const SeccionAforada::Vertical despues{seccion.h[i], seccion.v[i]};
        TramoAforado tramo;
        tramo.area = (antes.h + despues.h) / 2 * seccion.L[i];
        tramo.velocidad = (antes.v + despues.v) / 2;
        tramo.caudal = tramo.area * tramo.velocidad;
        aforo.caudalTotal += tramo.caudal;
        aforo.tramos.push_back(tramo);
        antes = despues;
    }
    return aforo;
}

std::vector<PuntoPerfil> perfilSeccion(Real profundidadMargen, const SeccionAforada& seccion) {
    std::vector<PuntoPerfil> perfil = {{0, 0}};
    if (profundidadMargen != 0)
        perfil.push_back({0, -profundidadMargen});
    Real x = 0;
    Real profundidad = seccion.margen.h;
    for (std::size_t i = 0; i < seccion.L.size(); ++i) {
        x += seccion.L[i];
        profundidad = seccion.h[i];
        // Not the negation, which makes a negative zero of a depth of 0.
        perfil.push_back({x, 0 - profundidad});
    }
    if (profundidad != 0)
        perfil.push_back({x, 0});
    return perfil;
}

} // namespace caudalera
