#pragma once

#include "shell/numbers/Real.h"

namespace caudalera {

/// What the modified Penman method asks of a month at a site.
struct DatosPenman {
    /// Radians, negative in the southern hemisphere.
    Real latitud;
    /// Solar declination of the month (radians) and inverse of its distance factor.
    Real declinacion;
    Real dr;
    /// Altitude (m), mean temperature (degrees Celsius), mean and maximum relative humidity (%).
    Real h;
    Real T;
    Real HRmed;
    Real HRmax;
    /// Wind (km/hr) and the height (m) that it is measured at; ratio of day wind to night wind.
    Real Uz;
    Real hz;
    Real VdVn;
    /// Actual sunshine, hours a day.
    Real n;
};

/// Wind at 2 m in the units that the method's terms ask for.
struct VientoPenman {
    /// Height correction.
    Real fz;
    /// km/hr, m/s and km/day.
    Real U2;
    Real U;
    Real Ukm;
};

/// Every term of the method, radiations in mm/day, pressures in mbar.
struct TerminosPenman {
    Real Ra, N, nN;
    Real fz, U2;
    Real ea, ed, deficit;
    Real w, unoMenosW;
    Real fu, ft, fed, fnN;
    Real Rs, Rns, Rn1, Rn;
    Real c, terRadiacion, terAdveccion;
    /// Reference evapotranspiration, mm/day.
    Real ETo;
};

// Source of the method: Doorenbos and Pruitt, Crop water requirements, FAO Irrigation and Drainage
// Paper 24 (1977), the modified Penman method; sources of single terms stand with them. Failures of
// all routines: 5 for a logarithm, root or power out of its range, 6 past the double range, 11 for
// a division by zero.

/// Wind (km/hr) measured at hz (m), brought to 2 m by the logarithmic profile over grass (FAO
/// Irrigation and Drainage Paper 56, equation 47); above 2 m the factor gets another 0.01. Failure
/// 5 if 67.8 * hz - 5.42 is 0 or less.
VientoPenman vientoADosMetros(Real Uz, Real hz);

/// Saturation vapour pressure (mbar) at T degrees Celsius: the formula of Tetens (1930).
Real presionDeVaporSaturado(Real T);

/// Weighting factor of the radiation term, delta / (delta + gamma), from the vapour pressure's
/// slope at T and the psychrometric constant of the altitude h (m). Slope, latent heat and
/// psychrometric constant are those of FAO Irrigation and Drainage Paper 56, the pressure is the
/// barometric formula of the standard atmosphere with the exponent 5.296.
Real factorDePonderacion(Real T, Real h, Real ea);

/// Adjustment factor c for the day and night conditions: wind U at 2 m (m/s), ratio r of day wind
/// to night wind, maximum relative humidity H (%), short-wave radiation Rs (mm/day). A regression
/// on the table of c of Paper 24, in the manner of Allen and Pruitt, FAO-24 reference
/// evapotranspiration factors, Journal of Irrigation and Drainage Engineering 117(5), 1991.
Real factorDeAjuste(Real U, Real r, Real H, Real Rs);

/// All terms in the order of the method. The relative sunshine n/N is at most 1.
TerminosPenman penman(const DatosPenman& datos);

} // namespace caudalera
