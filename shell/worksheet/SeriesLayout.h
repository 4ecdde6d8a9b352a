#pragma once

#include <string>
#include <vector>

namespace caudalera {

/// How the rows of a window's `grdt` lie in a series file: records of one single a data column.
struct SeriesLayout {
    /// Headers of the data columns, which are the fields of a record in their order.
    std::vector<std::string> fields;
    std::string saveFilter;
    /// The open dialog's; the same as the save dialog's where it is empty.
    std::string openFilter{};
    /// One record stands behind those of the rows.
    bool lastRecord = false;
    /// What a loaded field is shown by.
    std::string mask = "#0.0#######";

    const std::string& filterToOpen() const { return openFilter.empty() ? saveFilter : openFilter; }
};

// The layouts that several windows share, so that they read each other's files.

/// One value a row, extension X.
SeriesLayout layoutSerieX();
/// Pairs of values, extension XY.
SeriesLayout layoutParesXY();
/// Return period, duration and largest intensity, extension TDI; the third header differs in one
/// blank between the windows.
SeriesLayout layoutTriosTDI(std::string encabezadoIntensidad);

} // namespace caudalera
