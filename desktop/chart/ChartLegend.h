#pragma once

#include <QString>
#include <QStringList>

class QCPAbstractPlottable;
class QCPLegend;
class QCustomPlot;
class QFont;
class QPoint;

namespace caudalera {

/// The names of a drawing's series, in a line above it, where they cover no data.
class ChartLegend {
public:
    explicit ChartLegend(QCustomPlot& plot) : plot_(plot) {}

    void clear();
    /// `meaning`: what the series' name stands for.
    void add(QCPAbstractPlottable& series, const QString& meaning);
    void setFont(const QFont& font);
    /// As many entries beside one another as the drawing is wide.
    void fit();
    /// What the name at a point of the drawing stands for; empty beside the names.
    QString meaningAt(const QPoint& position) const;

private:
    void build();

    QCustomPlot& plot_;
    QCPLegend* legend_ = nullptr;
    QStringList meanings_;
};

} // namespace caudalera
