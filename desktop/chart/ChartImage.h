#pragma once

#include <QString>

class QCustomPlot;

namespace caudalera {

/// Writes a drawing as it stands to a file, by the name's suffix as PDF, SVG or (any other) PNG;
/// false if the file can't be written.
bool saveChartImage(QCustomPlot& plot, const QString& path);

} // namespace caudalera
