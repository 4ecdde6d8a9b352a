#pragma once

#include "app/registry.h"
#include "desktop/chart/ChartView.h"
#include "desktop/style/Style.h"
#include "recording/RecordingPlatform.h"
#include "shell/window/Program.h"

#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QWheelEvent>
#include <memory>
#include <qcustomplot.h>

namespace caudalera {

/// A chart on the screen with a window of its own, and what a person does to it.
class ChartFixture {
public:
    explicit ChartFixture(const std::string& separator = ".") {
        style::apply(*qApp);
        platform.separator = separator;
        top.resize(700, 460);
        view = new ChartView(graph, &top);
        view->resize(680, 440);
        plot = view->findChild<QCustomPlot*>();
        top.show();
        if (!QTest::qWaitForWindowActive(&top))
            throw std::logic_error("the chart does not come to the screen");
        view->sync();
    }

    RecordingPlatform platform;
    Program program{platform, ventanas()};
    Window window{program, "frmPrueba", "Prueba"};
    Graph graph{window, "Graph1"};
    QWidget top;
    ChartView* view = nullptr;
    QCustomPlot* plot = nullptr;

    static Chart threeSeries() {
        Chart chart;
        chart.x = std::vector<double>{100, 150, 200, 300};
        chart.series = {{"P(X)", {0.2, 0.4, 0.6, 0.8}, "Probabilidad experimental"},
                        {"F(Z) Ordinario", {0.1, 0.3, 0.55, 0.95}, "Con parámetros ordinarios"},
                        {"F(Z) Mom Lineal", {0.12, 0.33, 0.5, 0.9}}};
        return chart;
    }

    void show(const Chart& chart) {
        dibujar(graph, chart);
        view->sync();
    }
    QCPRange x() const { return plot->xAxis->range(); }
    QCPRange y() const { return plot->yAxis->range(); }
    static QStringList labels(const QCPAxis* axis) {
        const QVector<QString> found = axis->tickVectorLabels();
        return {found.begin(), found.end()};
    }

    QPoint at(double shareOfWidth, double shareOfHeight) const {
        const QRect inner = plot->axisRect()->rect();
        return {inner.left() + static_cast<int>(shareOfWidth * inner.width()),
                inner.top() + static_cast<int>(shareOfHeight * inner.height())};
    }
    QPoint pointOf(double x, double y) const {
        return {qRound(plot->xAxis->coordToPixel(x)), qRound(plot->yAxis->coordToPixel(y))};
    }
    void hover(QPoint to) const { move(to, Qt::NoButton, {}); }
    void press(QPoint from, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        QTest::mousePress(plot, Qt::LeftButton, modifiers, from);
    }
    /// With the left button down: the offscreen platform keeps none while it moves.
    void pull(QPoint to, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        move(to, Qt::LeftButton, modifiers);
    }
    void drag(QPoint from, QPoint to, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        press(from, modifiers);
        pull((from + to) / 2, modifiers);
        pull(to, modifiers);
        QTest::mouseRelease(plot, Qt::LeftButton, modifiers, to);
    }
    void wheel(QPoint position, int notches) const {
        const int step = notches < 0 ? -1 : 1;
        for (int i = 0; i != notches; i += step) {
            QWheelEvent event(position, plot->mapToGlobal(position), {}, {0, 120 * step},
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(plot, &event);
        }
    }

private:
    void move(QPoint to, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) const {
        QMouseEvent event(QEvent::MouseMove, to, plot->mapToGlobal(to), Qt::NoButton, button,
                          modifiers);
        QApplication::sendEvent(plot, &event);
    }
};

/// Chooses an entry of the menu that is open with the mouse.
inline void chooseInOpenMenu(const QString& entry) {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu);
    for (QAction* action : menu->actions())
        if (action->text() == entry) {
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
            return;
        }
    QFAIL("no such entry");
}

/// The same in the context menu that the pointer opens over a chart.
inline void chooseInMenu(QCustomPlot& plot, const QString& entry) {
    const QPoint middle = plot.axisRect()->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, middle, plot.mapToGlobal(middle));
    QApplication::sendEvent(&plot, &event);
    chooseInOpenMenu(entry);
}

} // namespace caudalera
