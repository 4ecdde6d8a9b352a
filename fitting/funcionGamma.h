#pragma once

#include "shell/numbers/Integer16.h"
#include "shell/numbers/Real.h"

namespace caudalera {

/// Gamma function of a, by the series of Stirling at a + 10 (Abramowitz and Stegun, Handbook of
/// Mathematical Functions, 6.1.41) and the recurrence down to a. For a > 0.0001 its relative error
/// is below 2E-10, that of the series' third term; nearer to 0 the sum a + 10 loses digits of a.
/// Failure 6 from a = 161.63 on, where the value at a + 10 leaves the double range; 11 for 0, -1
/// and so on to -9; 5 for -10 and below.
Real funcionGamma(Real a);

/// Regularised lower incomplete gamma function P(a, x), by its power series (Abramowitz and Stegun,
/// 6.5.29); G is `funcionGamma` of a. The series ends with the first term that is below 1E-7 of the
/// sum, which leaves the result low by up to 3E-7 of itself. It can take as many terms as the
/// product a (a + 1) (a + 2)... stays within the double range, some 170 for a small a and 130 for
/// a = 161. They suffice for x up to 112, for a above 10 to some more, up to 214 for a = 161.
/// Failure 6 past that. Past x = 566 or so the terms vanish before that failure comes, and what is
/// returned is no probability but next to 0; from 745 on, and for x = 0, it is failure 11. Failure
/// 5 for x < 0.
Real gammaIncompleta(Real a, Real x, Real G);

/// The x with P(a, x) = p, sought from x = a on until P is within 0.00005 of p; the x returned is
/// one step beyond. Every step is a share of x: below 0.8 the cube root of p / P, from there on
/// 0.1, from 0.9 on 0.01 and from 0.995 on 0.002 of the logarithm of (1 - p) / (1 - P). After 1200
/// passes the x in hand is returned, however far off: the steps creep where a is small (below some
/// 0.02 at 0.8, 0.08 at 0.9 and 0.2 at 0.995), and for p below 0.8 they overshoot for ever where P
/// is steep (a large, p small). `pasadas` counts the passes as they are made.
/// Failures of both functions above, at every x that the search meets: 5 also where a step leads
/// below 0, which takes an a below 1E-6; 5 for p below 0 and from 1 on, 11 for 0.
Real gammaInversa(Real a, Real p, Integer16& pasadas);

} // namespace caudalera
