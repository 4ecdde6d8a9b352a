#include "app/registry.h"
#include "recording/Act.h"
#include "recording/RecordingPlatform.h"
#include "shell/window/Program.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <stdexcept>
#include <string>
#include <vector>

namespace caudalera::bench {
namespace {

/// A started program with one window open, its controls found by their names.
class OpenWindow {
public:
    explicit OpenWindow(const std::string& name) {
        program.start();
        program.act([&] { window_ = program.show(name); });
        if (!window_)
            throw std::logic_error("no window " + name);
    }

    RecordingPlatform platform;
    Program program{platform, ventanas()};

    template <typename Kind = Control>
    Kind& control(const std::string& name) {
        return dynamic_cast<Kind&>(*window_->find(name));
    }
    void enter(const std::string& field, const std::string& text) {
        program.changeText(control<TextBox>(field), text);
    }
    void type(const std::vector<std::vector<std::string>>& rows) {
        typeRows(program, control<MSFlexGrid>("grdt"), rows);
    }
    /// Clicks a command for as long as the benchmark runs.
    void measure(benchmark::State& state, const std::string& command) {
        Control& button = control(command);
        for ([[maybe_unused]] auto each : state)
            program.click(button);
        if (!platform.messages.empty() || program.ended())
            state.SkipWithError("the command failed");
    }

private:
    Window* window_ = nullptr;
};

/// bCalcular of the simple regression with all the pairs that it takes.
void calculateSimpleRegression(benchmark::State& state) {
    OpenWindow window("frmEjRegSimple");
    std::vector<std::vector<std::string>> pairs;
    for (int i = 1; i <= 250; ++i)
        pairs.push_back({std::to_string(i), std::to_string(3 * i + i * 7919 % 101)});
    window.type(pairs);
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
    window.type(records);
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
