#pragma once

#include "shell/numbers/Real.h"
#include "shell/numbers/momentos.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

namespace caudalera::testing {

/// Sorted values of a skewed law, the same ones for a seed on every machine.
inline std::vector<Real> skewedSeries(unsigned seed, int n) {
    std::mt19937 engine(seed);
    std::vector<Real> series;
    for (int i = 0; i < n; ++i) {
        const double uniform = (engine() + 0.5) / 4294967296.0;
        series.emplace_back(50 * std::pow(-std::log(uniform), 1.3) + 10);
    }
    std::sort(series.begin(), series.end());
    return series;
}

template <typename Change>
std::vector<Real> mapped(std::vector<Real> series, Change change) {
    for (Real& x : series)
        x = change(x);
    return series;
}

} // namespace caudalera::testing
