#pragma once

#include "app/registry.h"
#include "recording/RecordingPlatform.h"
#include "shell/window/Program.h"
#include "shell/worksheet/Worksheet.h"
#include "tests/support/SeriesBytes.h"
#include "tests/support/TemporaryFolder.h"

#include <benchmark/benchmark.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace caudalera::bench {

/// A started program with one window open, its controls found by their names.
class OpenWindow {
public:
    explicit OpenWindow(const std::string& name) {
        program.start();
        program.act([&] { window_ = program.show(name); });
        if (!window_)
            throw std::logic_error("no window " + name);
    }
    OpenWindow(const OpenWindow&) = delete;
    OpenWindow& operator=(const OpenWindow&) = delete;

    RecordingPlatform platform;
    Program program{platform, ventanas()};

    Window& window() { return *window_; }
    template <typename Kind = Control>
    Kind& control(const std::string& name) {
        return dynamic_cast<Kind&>(*window_->find(name));
    }
    void enter(const std::string& field, const std::string& text) {
        program.changeText(control<TextBox>(field), text);
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

/// The same with a calculation window of one series, and a series file of its own.
class BenchProgram : public OpenWindow {
public:
    BenchProgram(const std::string& window, long records)
        : BenchProgram(window, anyValues(records)) {}
    BenchProgram(const std::string& window, const std::vector<float>& series) : OpenWindow(window) {
        writeSingles(series_, series);
    }

    Worksheet& sheet() { return dynamic_cast<Worksheet&>(window()); }
    /// Loads the series file as bAccesar does.
    void load() {
        platform.answers.emplace_back(series_);
        program.click(sheet().bAccesar);
    }

private:
    /// Values of four digits with two decimals, in no order.
    static std::vector<float> anyValues(long records) {
        std::vector<float> values;
        for (long i = 1; i <= records; ++i)
            values.push_back(static_cast<float>((i * 7919) % 100003) / 100 + 1);
        return values;
    }

    TemporaryFolder folder_;
    std::string series_ = folder_.file("serie.X");
};

} // namespace caudalera::bench
