#include "bench/BenchProgram.h"

#include <benchmark/benchmark.h>

namespace caudalera::bench {
namespace {

/// bCalcular of the normal distribution with the longest series that it takes.
void calculateNormal(benchmark::State& state) {
    BenchProgram bench("frmDisNormal", 499);
    bench.load();
    for ([[maybe_unused]] auto each : state)
        bench.program.click(bench.sheet().bCalcular);
    if (!bench.platform.messages.empty() || bench.program.ended())
        state.SkipWithError("the calculation failed");
}
BENCHMARK(calculateNormal)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace caudalera::bench
