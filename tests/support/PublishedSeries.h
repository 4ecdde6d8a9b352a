#pragma once

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace caudalera {

/// The values of a file of tests/data as they are written there, the header line left out.
inline std::vector<std::string> publishedSeries(const std::string& name) {
    std::ifstream file(std::filesystem::path(CAUDALERA_SOURCE_DIR) / "tests" / "data" /
                       (name + ".csv"));
    std::vector<std::string> values;
    std::string line;
    std::getline(file, line);
    while (std::getline(file, line)) {
        while (!line.empty() && (line.back() == '\r' || line.back() == ' '))
            line.pop_back();
        if (!line.empty())
            values.push_back(line);
    }
    if (values.empty())
        throw std::runtime_error("no values in tests/data/" + name + ".csv");
    return values;
}

} // namespace caudalera
