#pragma once

#include <QString>
#include <QStringList>

class QCustomPlot;

namespace caudalera {

/// What a drawing can be written as, as the filters of a save dialog.
QStringList chartImageFilters();
/// The path itself if its suffix names one of those formats, else with the suffix of a filter.
QString withImageSuffix(const QString& path, const QString& filter);

/// Writes a drawing as it stands to a file, in the format that the name's suffix says: PDF, SVG,
/// JPG, BMP or (any other) PNG; false if the file can't be written.
bool saveChartImage(QCustomPlot& plot, const QString& path);

} // namespace caudalera
