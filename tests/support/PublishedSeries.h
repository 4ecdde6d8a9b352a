#pragma once

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace caudalera {

/// The values of a file of one column as they are written there, the header line left out.
inline std::vector<std::string> valuesOf(const std::filesystem::path& path) {
    std::ifstream file(path);
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
        throw std::runtime_error("no values in " + path.string());
    return values;
}

/// A series of tests/data.
inline std::vector<std::string> publishedSeries(const std::string& name) {
    return valuesOf(std::filesystem::path(CAUDALERA_SOURCE_DIR) / "tests" / "data" /
                    (name + ".csv"));
}

/// A file of the samples that users get.
inline std::filesystem::path samplePath(const std::string& file) {
    return std::filesystem::path(CAUDALERA_SOURCE_DIR) / "samples" / file;
}

} // namespace caudalera
