#pragma once

#include "shell/window/Graph.h"

#include <QWidget>
#include <cstdint>
#include <optional>

class QCPAxisRect;
class QCPLegend;
class QCustomPlot;

namespace caudalera {

class ChartTicker;

/// Shows a chart of the model. It scales itself to the data; the wheel zooms at the pointer, a
/// drag over the drawing zooms into the rectangle it draws, a drag with Shift moves the drawing,
/// a double click goes back to the whole. Points that are not set are not drawn. While the chart is
/// not visible the view is hidden and its room stays free.
class ChartView : public QWidget {
    Q_OBJECT

public:
    ChartView(const Graph& graph, QWidget* parent);

    /// Reads the chart again if it was drawn or cleared since.
    void sync();

    /// All the data with their margins: what a new drawing and a double click show.
    void showAll();
    void copyImage() const;
    /// By the name's suffix as PDF, SVG or PNG; false if the file can't be written.
    bool saveImage(const QString& path) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void build();
    void connectMouse();
    void applyFonts();
    /// Whether the captions of the axes have changed.
    bool nameAxes();
    void read();
    void addLegend();
    void addSeries(const std::vector<double>& x, const Graph::Series& series, int index);
    void fitLegend();
    void openMenu(const QPoint& position);
    void askAndSave();

    const Graph& graph_;
    QCustomPlot* plot_;
    QSharedPointer<ChartTicker> xTicker_;
    QSharedPointer<ChartTicker> yTicker_;
    QCPLegend* legend_ = nullptr;
    /// None before the first reading.
    std::optional<std::uint64_t> revision_;
};

} // namespace caudalera
