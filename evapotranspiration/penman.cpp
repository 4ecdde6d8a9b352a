#include "evapotranspiration/penman.h"

#include "evapotranspiration/radiacionSolar.h"

namespace caudalera {

VientoPenman vientoADosMetros(Real Uz, Real hz) {
    VientoPenman viento;
    viento.fz = 4.87 / Log(67.8 * hz - 5.42);
    if (hz > 2)
        viento.fz += 0.01;
    viento.U2 = viento.fz * Uz;
    viento.U = (viento.U2 * 10) / 36;
    viento.Ukm = viento.U2 * 24;
    return viento;
}

Real presionDeVaporSaturado(Real T) {
    return 6.108 * Exp((T * 17.27) / (T + 237.3));
}

Real factorDePonderacion(Real T, Real h, Real ea) {
    const Real delta = (ea * 4098) / Pow(T + 237.3, 2);
    const Real P = 101.3 * Pow((293 - 0.0065 * h) / 293, 5.296);
    const Real lambda = 2.501 - T * 0.002361;
    const Real gamma = (0.016286 * P) / lambda;
    return delta / (delta + gamma);
}

Real factorDeAjuste(Real U, Real r, Real H, Real Rs) {
    Real c = U * 0.00219 * Rs;
    c += U * -0.0781 + 0.892;
    c += 0.000402 * H * Rs;
    c += 0.000196 * r * U * H;
    c += 0.0000198 * r * U * H * Rs;
    c += U * 0.00000236 * U * H * Rs;
    c += -0.0000086 * Pow(r, 2) * U * H;
    c += -0.0000000292 * r * U * U * H * H * Rs;
    c += -0.0000161 * H * Rs;
    return c;
}

TerminosPenman penman(const DatosPenman& d) {
    TerminosPenman t;
    const RadiacionSolar sol = radiacionSolar(d.latitud, d.declinacion, d.dr);
    t.N = sol.N;
    t.Ra = sol.Ra;
    t.nN = d.n / t.N;
    if (t.nN > 1)
        t.nN = 1;

    const VientoPenman viento = vientoADosMetros(d.Uz, d.hz);
    t.fz = viento.fz;
    t.U2 = viento.U2;

    t.ea = presionDeVaporSaturado(d.T);
    t.ed = (t.ea * d.HRmed) / 100;
    t.deficit = t.ea - t.ed;
    t.w = factorDePonderacion(d.T, d.h, t.ea);
    t.unoMenosW = 1 - t.w;
    t.fu = 0.27 * (1 + viento.Ukm / 100);

    t.Rs = (0.25 + 0.5 * t.nN) * t.Ra;
    t.Rns = t.Rs * 0.75;
    // Black-body radiation, 4.9 x 10^-9 MJ/m2/day/K^4, over the latent heat of 2.47 MJ/kg.
    t.ft = Pow(d.T + 273.16, 4) * (4.9 / 2.47) * Pow(10, -9);
    t.fed = 0.34 - Sqr(t.ed) * 0.044;
    t.fnN = 0.9 * t.nN + 0.1;
    t.Rn1 = t.ft * t.fed * t.fnN;
    t.Rn = t.Rns - t.Rn1;

    t.c = factorDeAjuste(viento.U, d.VdVn, d.HRmax, t.Rs);
    t.terRadiacion = t.Rn * t.w;
    t.terAdveccion = t.unoMenosW * t.fu * t.deficit;
    t.ETo = t.c * (t.terRadiacion + t.terAdveccion);
    return t;
}

} // namespace caudalera
