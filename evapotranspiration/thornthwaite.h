#pragma once

#include "shell/numbers/Real.h"
#include "shell/numbers/Serie.h"
#include "shell/text/MonthData.h"

namespace caudalera {

// Source of the method: C. W. Thornthwaite, An approach toward a rational classification of
// climate, Geographical Review 38 (1948). Failures of all routines: 5 for a fractional power of a
// negative or a negative power of 0, 6 past the double or single range, 11 for a division by zero.

/// Heat index of a month with the mean temperature T (degrees Celsius, not negative).
Real indiceTermico(Real T);

/// Exponent a of a year with the heat index I, the sum of its months.
Real exponenteThornthwaite(Real I);

/// Evapotranspiration, mm in a month of 30 days of 12 hours of sun.
Real evapotranspiracionSinCorregir(Real T, Real I, Real a);

/// A year by the method, from its temperatures to the evapotranspiration of each month.
class AnnoThornthwaite {
public:
    static constexpr long meses = mesesCortos.size();

    /// What is given: mean temperatures (degrees Celsius), and the factors of the latitude for the
    /// length of month and days.
    SerieSimple T{meses};
    SerieSimple f{meses};

    Serie i{meses};
    Real I;
    Real a;
    /// Unadjusted evapotranspiration, adjusted (mm/month), and a day of it (mm/day).
    SerieSimple ETo{meses};
    SerieSimple ETr{meses};
    SerieSimple ETrDiaria{meses};

    /// Each step for all months before the next one; a failure leaves what was computed before it.
    void calcular();
};

} // namespace caudalera
