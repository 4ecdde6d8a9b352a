#pragma once

#include "app/registry.h"
#include "recording/RecordingPlatform.h"
#include "shell/window/Program.h"
#include "shell/worksheet/Worksheet.h"
#include "tests/support/SeriesBytes.h"
#include "tests/support/TemporaryFolder.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace caudalera::bench {

/// A started program with one calculation window open, and a series file of its own.
class BenchProgram {
public:
    BenchProgram(const std::string& window, long records) {
        // Values of four digits with two decimals, in no order.
        std::vector<float> values;
        for (long i = 1; i <= records; ++i)
            values.push_back(static_cast<float>((i * 7919) % 100003) / 100 + 1);
        writeSingles(series_, values);
        program.start();
        program.act([&] { sheet_ = dynamic_cast<Worksheet*>(program.show(window)); });
        if (!sheet_)
            throw std::logic_error("no worksheet " + window);
    }
    BenchProgram(const BenchProgram&) = delete;
    BenchProgram& operator=(const BenchProgram&) = delete;

    RecordingPlatform platform;
    Program program{platform, ventanas()};

    Worksheet& sheet() { return *sheet_; }
    /// Loads the series file as bAccesar does.
    void load() {
        platform.answers.emplace_back(series_);
        program.click(sheet_->bAccesar);
    }

private:
    TemporaryFolder folder_;
    std::string series_ = folder_.file("serie.X");
    Worksheet* sheet_ = nullptr;
};

} // namespace caudalera::bench
