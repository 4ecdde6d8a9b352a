#pragma once

#include <string_view>
#include <vector>

namespace caudalera {

/// How the rows of a window's `grdt` lie in a series file.
struct SeriesLayout {
    std::string_view window;
    /// Headers of the data columns, which are the fields of a record in their order.
    std::vector<std::string_view> fields;
    std::string_view saveFilter;
    std::string_view openFilter;
    /// One record stands behind those of the rows.
    bool lastRecord = false;
    /// What a loaded field is shown by.
    std::string_view mask = "#0.0#######";

    /// Bytes of a record: four a field.
    int recordBytes() const { return static_cast<int>(fields.size()) * 4; }
};

/// All layouts, one row a window.
const std::vector<SeriesLayout>& seriesLayouts();

/// The layout of a window; it must have one.
const SeriesLayout& seriesLayout(std::string_view window);

} // namespace caudalera
