#include "bench/BenchProgram.h"
#include "shell/report/frmPadre.h"

#include <benchmark/benchmark.h>

namespace caudalera::bench {
namespace {

/// bReporte of 499 rows into a document of its own.
void composeReport(benchmark::State& state) {
    BenchProgram bench("frmDisNormal", 499);
    bench.load();
    bench.program.click(bench.sheet().bCalcular);
    for ([[maybe_unused]] auto each : state) {
        bench.program.click(bench.sheet().bReporte);
        state.PauseTiming();
        if (frmPadre* padre = ventanaDeReportes(bench.program))
            bench.program.close(*padre);
        state.ResumeTiming();
    }
    if (!bench.platform.messages.empty() || bench.program.ended())
        state.SkipWithError("the report failed");
}
BENCHMARK(composeReport)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace caudalera::bench
