#include "bench/BenchProgram.h"
#include "recording/Act.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <string>
#include <vector>

namespace caudalera::bench {
namespace {

void type(OpenWindow& window, const std::vector<std::vector<std::string>>& rows) {
    typeRows(window.program, window.control<MSFlexGrid>("grdt"), rows);
}

/// bCalcular of the simple regression with all the pairs that it takes.
void calculateSimpleRegression(benchmark::State& state) {
    OpenWindow window("frmEjRegSimple");
    std::vector<std::vector<std::string>> pairs;
    for (int i = 1; i <= 250; ++i)
        pairs.push_back({std::to_string(i), std::to_string(3 * i + i * 7919 % 101)});
    type(window, pairs);
    window.measure(state, "bCalcular");
}
BENCHMARK(calculateSimpleRegression)->Unit(benchmark::kMicrosecond);

/// bcalcularI of the rational method, the power fit to all the records that it takes.
void calculateIntensity(benchmark::State& state) {
    OpenWindow window("frmQmaxRacional");
    window.program.click(window.control("optRegistros"));
    std::vector<std::vector<std::string>> records;
    for (int i = 1; i <= 500; ++i) {
        const double T = 2 + i % 50;
        const double D = 5 + i % 60;
        records.push_back({std::to_string(T), std::to_string(D),
                           std::to_string(400 * std::pow(T, 0.2) * std::pow(D, -0.6))});
    }
    type(window, records);
    window.enter("txtLi", "1500");
    window.enter("txtHi", "40");
    window.enter("txtTi", "25");
    window.measure(state, "bcalcularI");
}
BENCHMARK(calculateIntensity)->Unit(benchmark::kMicrosecond);

/// bCalcular of Penman.
void calculatePenman(benchmark::State& state) {
    OpenWindow window("frmPenman");
    const std::vector<std::pair<std::string, std::string>> fields = {
        {"txtLatitud", "10"}, {"txth", "1200"},   {"txtT", "22"},
        {"txtHRmed", "75"},   {"txtHRmax", "90"}, {"txtUz", "9"},
        {"txtHz", "2"},       {"txtRVdVn", "2"},  {"txtnp", "7"}};
    for (const auto& [field, text] : fields)
        window.enter(field, text);
    window.measure(state, "bCalcular");
}
BENCHMARK(calculatePenman)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace caudalera::bench
