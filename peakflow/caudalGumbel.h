#pragma once

#include "peakflow/caudalDeDiseno.h"
#include "shell/numbers/Real.h"

#include <span>

namespace caudalera {

// Gumbel's method for the flow of a return period from annual peaks. Source: E. J. Gumbel, "The
// return period of flood flows", Annals of Mathematical Statistics 12 (1941), and Statistics of
// Extremes (1958), whose table 6.2.3 prints YN and SN.

/// Mean of the reduced variates of N plotting positions, by a closed approximation to the values
/// that are printed in tables (those of i / (N + 1)): within 0.0028 of them from N = 10 to 100, and
/// within 0.0005 from 20 on. Failure 5 for an N below 1.
Real mediaReducida(long N);

/// Standard deviation (divisor N) of the same reduced variates, by a power of N in each range of
/// N: within 0.0132 of the tables from N = 10 to 100, the furthest at N = 29, where the ranges
/// meet.
Real desviacionReducida(long N);

struct CaudalGumbel {
    /// Mean and standard deviation (divisor N - 1) of the peaks.
    Real Qm, SQ;
    /// Mean and standard deviation of the reduced variates.
    Real YN, SN;
    CaudalDeDiseno diseno;
};

/// Flow of a return period T (years) from annual peaks in ascending order, Qm - SQ / SN (YN - ln
/// T). The margin 1.14 SQ / SN is that of the largest of the peaks at a probability of 0.68,
/// whatever T is. Failure 11 for fewer than two peaks, 5 for a T of 0 or less.
CaudalGumbel caudalGumbel(std::span<const Real> ordenada, Real T);

} // namespace caudalera
