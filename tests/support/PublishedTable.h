#pragma once

#include "tests/support/PublishedSeries.h"

#include <algorithm>
#include <cstddef>
#include <sstream>
#include <string>
#include <vector>

namespace caudalera {

/// Columns of a table, by the names in its header line and in the order asked for, as the values
/// are written there.
inline std::vector<std::vector<std::string>> tableOf(const std::filesystem::path& path,
                                                     const std::vector<std::string>& columns) {
    const auto cellsOf = [](const std::string& line) {
        std::vector<std::string> cells;
        std::istringstream stream(line);
        for (std::string cell; std::getline(stream, cell, ',');)
            cells.push_back(cell);
        return cells;
    };
    std::ifstream file(path);
    std::string header;
    std::getline(file, header);
    header.erase(header.find_last_not_of("\r ") + 1);
    const auto names = cellsOf(header);
    std::vector<std::size_t> places;
    for (const std::string& column : columns) {
        const auto found = std::find(names.begin(), names.end(), column);
        if (found == names.end())
            throw std::runtime_error("no column " + column + " in " + path.string());
        places.push_back(static_cast<std::size_t>(found - names.begin()));
    }
    std::vector<std::vector<std::string>> rows;
    for (const std::string& line : valuesOf(path)) {
        const auto cells = cellsOf(line);
        std::vector<std::string> row;
        for (const std::size_t place : places)
            row.push_back(cells.at(place));
        rows.push_back(row);
    }
    return rows;
}

/// The same of tests/data.
inline std::vector<std::vector<std::string>>
publishedTable(const std::string& name, const std::vector<std::string>& columns) {
    return tableOf(std::filesystem::path(CAUDALERA_SOURCE_DIR) / "tests" / "data" / (name + ".csv"),
                   columns);
}

} // namespace caudalera
