#pragma once

#include "shell/numbers/Real.h"

namespace caudalera {

// Source of the method: Doorenbos and Pruitt, Crop water requirements, FAO Irrigation and Drainage
// Paper 24 (1977), the modified Blaney-Criddle method.

/// The classes that the method puts sunshine, humidity and wind into.
enum class ClaseClimatica { baja, media, alta };

/// Class of the relative sunshine n/N: medium from 0.6 to 0.8.
ClaseClimatica claseDeInsolacion(Real nN);
/// Class of the minimum relative humidity (%): medium from 20 to 50.
ClaseClimatica claseDeHumedad(Real HRmin);
/// Class of the wind (km/hr): medium from 7.2 to 18.
ClaseClimatica claseDeViento(Real U);

/// What the classes set: ETo = a + b f.
struct CoeficientesBlaney {
    float a;
    float b;
};

/// From the paper's lines for the three classes; the slope of much sun, dry air and medium wind is
/// 1.12, below those beside it.
CoeficientesBlaney coeficientesBlaney(ClaseClimatica insolacion, ClaseClimatica humedad,
                                      ClaseClimatica viento);

/// The method's f of a month with the mean temperature T (degrees Celsius) and the mean daily
/// percentage P of the annual daytime hours.
Real factorBlaney(Real T, Real P);

/// Reference evapotranspiration, mm/day; negative where f is small.
Real evapotranspiracionBlaney(const CoeficientesBlaney& coef, Real f);

} // namespace caudalera
