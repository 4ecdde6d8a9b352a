#pragma once

#include <QLabel>
#include <QPoint>
#include <vector>

class QCustomPlot;

namespace caudalera {

class ChartTicker;

/// The coordinates under the pointer, in the corner of the drawing that the curves leave free.
class ChartReadout : public QLabel {
    Q_OBJECT

public:
    ChartReadout(QCustomPlot& plot, const ChartTicker& x, const ChartTicker& y);

    /// A widget in a corner, which it does not cover.
    void keepClearOf(const QWidget& other) { other_ = &other; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void follow();
    /// The first of the corners that is free.
    QRect place();
    /// The corners from the one farthest from all curves on.
    std::vector<QRect> corners() const;
    /// Distance from the curves, in pixels.
    double clearance(const QRect& place) const;

    QCustomPlot& plot_;
    const ChartTicker& x_;
    const ChartTicker& y_;
    const QWidget* other_ = nullptr;
    QPoint pointer_;
    /// Of the drawing in sight; none until they are asked for.
    std::vector<QRect> corners_;
};

} // namespace caudalera
