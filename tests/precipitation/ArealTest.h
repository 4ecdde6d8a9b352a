#pragma once

#include "precipitation/ArealWorksheet.h"
#include "tests/support/SeriesBytes.h"
#include "tests/support/WindowTest.h"

#include <string>
#include <vector>

namespace caudalera {

/// The windows of the mean rainfall over a basin; a test opens the one that it is about.
class ArealTest : public WindowTest {
protected:
    ArealWorksheet& sheet(const std::string& name) {
        return dynamic_cast<ArealWorksheet&>(open(name));
    }
    long dataRows() { return control<MSFlexGrid>("grdt").Rows() - 2; }
    void save(const std::string& path) {
        platform.answers.push_back(path);
        click("bCrear");
    }
    void load(const std::string& path) {
        platform.answers.push_back(path);
        click("bAccesar");
    }
    /// Loads `count` rows of ones, with as many columns as the window has.
    void loadOnes(int count) {
        const auto columns = static_cast<int>(control<MSFlexGrid>("grdt").Cols()) - 1;
        const int last = control<Control>("grdt").window().find("txtUltimaIsoyeta") ? 1 : 0;
        writeSingles(file("unos"),
                     std::vector<float>(static_cast<std::size_t>(columns * (count + last)), 1.0F));
        load(file("unos"));
    }
};

} // namespace caudalera
