#pragma once

#include <QString>

class QCustomPlot;
class QWidget;

namespace caudalera {

/// A name for a picture of a window with that caption which every file system takes.
QString imageNameFor(const QString& caption);

/// Asks where the picture of a drawing goes, at first in the folder of the last one of the run or
/// among the user's pictures, and writes it there. What could not be written is told.
void askAndSaveChart(QCustomPlot& plot, const QString& caption, QWidget* parent);

} // namespace caudalera
