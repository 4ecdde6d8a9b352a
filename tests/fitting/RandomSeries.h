#pragma once

#include "shell/numbers/Real.h"

#include <algorithm>
#include <random>
#include <vector>

namespace caudalera::testing {

/// n values between 1 and 1001 in ascending order, the same ones for a seed on every machine.
inline std::vector<Real> randomSeries(unsigned seed, int n) {
    std::mt19937 numbers(seed);
    std::vector<Real> series;
    for (int i = 0; i < n; ++i)
        series.emplace_back(1 + 1000 * (numbers() / 4294967296.0));
    std::sort(series.begin(), series.end());
    return series;
}

} // namespace caudalera::testing
