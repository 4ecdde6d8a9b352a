#pragma once

#include "desktop/chart/ChartLegend.h"
#include "shell/window/Graph.h"

#include <QPointer>
#include <QSharedPointer>
#include <QStringList>
#include <QWidget>
#include <cstdint>
#include <optional>

class QCustomPlot;
class QMenu;
class QToolButton;

namespace caudalera {

class ChartNavigation;
class ChartReadout;
class ChartTicker;

/// Shows a chart of the model. It scales itself to the data, and mouse and keyboard move through
/// it. Points that are not set are not drawn. While the chart is not visible the view is hidden and
/// its room stays free.
class ChartView : public QWidget {
    Q_OBJECT

public:
    ChartView(const Graph& graph, QWidget* parent);

    /// Reads the chart again if it was drawn or cleared since.
    void sync();

    /// All the data with their margins: what a new drawing and a double click show.
    void showAll();
    void copyImage() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void build();
    void addOverlays();
    void applyFonts();
    /// Whether the titles of the axes have changed.
    bool nameAxes();
    /// As much of the titles as their axes are long, as many ticks as have room.
    void fitTitles();
    void fitTicks();
    void placeOverlays();
    void read();
    void addSeries(const std::vector<double>& x, const Graph::Series& series, int index);
    void scale();
    void openMenu(const QPoint& position);
    /// What a legend stands for, the whole of a title that is cut short; empty elsewhere.
    QString explanationAt(const QPoint& position) const;

    const Graph& graph_;
    QCustomPlot* plot_;
    QSharedPointer<ChartTicker> xTicker_;
    QSharedPointer<ChartTicker> yTicker_;
    ChartLegend legend_;
    ChartNavigation* navigation_;
    ChartReadout* readout_;
    QToolButton* wholeButton_;
    QString xTitle_;
    QString yTitle_;
    QPointer<QMenu> menu_;
    /// None before the first reading.
    std::optional<std::uint64_t> revision_;
};

} // namespace caudalera
