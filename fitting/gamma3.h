#pragma once

#include "shell/numbers/Integer16.h"
#include "shell/numbers/Real.h"

#include <span>

namespace caudalera {

/// The gamma distribution of three parameters, Pearson's type III, of a variable q: F(q) =
/// P(forma, (q - posicion) / escala), P the regularised lower incomplete gamma function. The
/// functions are numerical; see funcionGamma.h.
struct Gamma3 {
    /// Lower end and scale, in the unit of the series, and shape.
    Real posicion;
    Real forma;
    Real escala;
    /// The parameters are those of no distribution that fits the series; they are set all the same.
    bool invalida = false;
};

// Parameters from a series in ascending order, set one after another, so that a failure leaves
// those before it; whether they are invalid before them.

/// Ordinary moments (Rao and Hamed 2000, chapter 6): mean, standard deviation with divisor n - 1
/// and skew coefficient, see momentos.h. Invalid for a negative skew, which gives a negative scale.
/// Failure 11 for fewer than three values, for equal ones, for the mean 0 and for the skew 0.
void ajustarOrdinarios(Gamma3& d, std::span<const Real> ordenada);

/// Linear moments, by the approximations of Hosking (1990) for the linear skew t = l3 / l2, of
/// which only the absolute value counts: a negative one gives the parameters of the mirror image.
/// For |t| of 1 and more all are 0 and invalid. Failure 11 for fewer than four values, for equal
/// ones and for the linear skew 0; 6 for one so small that `funcionGamma` fails.
void ajustarLineales(Gamma3& d, std::span<const Real> ordenada);

/// Reduced variate (q - posicion) / escala of a value; failure 11 for the scale 0.
Real variableReducida(const Gamma3& d, Real q);
/// Probability of non-exceedance of a reduced variate; failures as `gammaIncompleta`.
Real acumulada(const Gamma3& d, Real y);
/// Value of a probability of non-exceedance, with the passes that its search makes; failures as
/// `gammaInversa`.
Real inversa(const Gamma3& d, Real p, Integer16& pasadas);

} // namespace caudalera
