#include "bench/BenchProgram.h"

#include <benchmark/benchmark.h>

namespace caudalera::bench {
namespace {

/// bAccesar of a series file that fills nearly all rows that a grid can have.
void loadSeriesFile(benchmark::State& state) {
    constexpr long records = 32000;
    BenchProgram bench("frmParamEsta", records);
    for ([[maybe_unused]] auto each : state)
        bench.load();
    if (bench.sheet().grdt.Rows() != records + 2)
        state.SkipWithError("the file was not loaded");
    state.SetItemsProcessed(state.iterations() * records);
}
BENCHMARK(loadSeriesFile)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace caudalera::bench
