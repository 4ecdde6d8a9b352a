#include "bench/BenchProgram.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

namespace caudalera::bench {
namespace {

constexpr std::array distributions = {
    "frmDisNormal",    "frmDisLogNormal2",  "frmDisLogNormal3", "frmDisGamma2par",
    "frmDisGamma3par", "frmDisLogPearson3", "frmDisGumbel",     "frmDisLogGumbel",
};

/// The longest series that a fit takes, in no order: quantiles of an exponential law from 100 on,
/// which every distribution takes, by both kinds of moments.
std::vector<float> floods() {
    constexpr int n = 499;
    std::vector<float> values;
    for (int i = 1; i <= n; ++i) {
        const double p = static_cast<double>(1 + i * 191 % n) / (n + 1);
        values.push_back(static_cast<float>(100 - 60 * std::log(1 - p)));
    }
    return values;
}

void calculate(benchmark::State& state, const std::string& window) {
    BenchProgram bench(window, floods());
    bench.load();
    bench.measure(state, "bCalcular");
}

/// The design flow of a fit calculated before.
void designFlow(benchmark::State& state, const std::string& window) {
    BenchProgram bench(window, floods());
    bench.load();
    bench.program.click(bench.sheet().bCalcular);
    bench.enter("txtxt", "100");
    bench.measure(state, "bQ");
}

bool exists(const std::string& window) {
    return std::any_of(ventanas().begin(), ventanas().end(),
                       [&](const WindowEntry& entry) { return entry.name == window; });
}

/// Both of every distribution that the program has.
const bool registered = [] {
    for (const std::string window : distributions) {
        if (!exists(window))
            continue;
        benchmark::RegisterBenchmark(("calculate/" + window).c_str(), calculate, window)
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark(("designFlow/" + window).c_str(), designFlow, window)
            ->Unit(benchmark::kMicrosecond);
    }
    return true;
}();

} // namespace
} // namespace caudalera::bench
