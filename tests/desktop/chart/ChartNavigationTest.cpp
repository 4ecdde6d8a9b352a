#include "tests/desktop/chart/ChartFixture.h"

#include <QLabel>
#include <QLineEdit>
#include <QSet>
#include <QToolButton>

using namespace caudalera;

namespace {

bool close(const QCPRange& a, const QCPRange& b, double share = 0.02) {
    const double slack = share * b.size();
    return std::abs(a.lower - b.lower) < slack && std::abs(a.upper - b.upper) < slack;
}

} // namespace

/// Moving through a chart with mouse and keyboard, and what it tells on the way.
class ChartNavigationTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<ChartFixture> chart;
    QCustomPlot* plot = nullptr;
    QCPRange wholeX;
    QCPRange wholeY;

    void start(const Chart& drawn, const std::string& separator = ".") {
        chart = std::make_unique<ChartFixture>(separator);
        plot = chart->plot;
        chart->show(drawn);
        wholeX = chart->x();
        wholeY = chart->y();
    }
    QToolButton& wholeButton() const { return *plot->findChild<QToolButton*>("verTodo"); }
    QLabel& readout() const { return *plot->findChild<QLabel*>("coordenadas"); }
    bool isWhole() const { return chart->x() == wholeX && chart->y() == wholeY; }

    /// Whether a point of a curve is in sight, tried one by one.
    bool showsACurve() const {
        for (const Graph::Series& series : chart->graph.series()) {
            const std::vector<double>& x = *chart->graph.x();
            for (std::size_t i = 1; i < x.size(); ++i) {
                for (double part = 0; part <= 1; part += 1e-5) {
                    if (chart->x().contains(x[i - 1] + part * (x[i] - x[i - 1])) &&
                        chart->y().contains(series.y[i - 1] +
                                            part * (series.y[i] - series.y[i - 1])))
                        return true;
                }
            }
        }
        return false;
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        QTest::keyClick(chart->view, key, modifiers);
    }

private slots:
    void init() { start(ChartFixture::threeSeries()); }
    void cleanup() { chart.reset(); }

    void theWheelZoomsAtThePointer() {
        const QPoint pointer = chart->at(0.25, 0.5);
        const double pointed = plot->xAxis->pixelToCoord(pointer.x());
        const double height = plot->yAxis->pixelToCoord(pointer.y());
        chart->wheel(pointer, 2);
        QVERIFY(chart->x().size() < 0.8 * wholeX.size());
        QVERIFY(chart->y().size() < 0.8 * wholeY.size());
        QVERIFY(std::abs(plot->xAxis->pixelToCoord(pointer.x()) - pointed) < wholeX.size() / 100);
        QVERIFY(std::abs(plot->yAxis->pixelToCoord(pointer.y()) - height) < wholeY.size() / 100);
        chart->wheel(pointer, -2);
        QVERIFY(close(chart->x(), wholeX, 1e-3));
        QVERIFY(close(chart->y(), wholeY, 1e-3));
    }

    void theWheelOverAnAxisZoomsAlongThatOneAlone() {
        const QRect inner = plot->axisRect()->rect();
        chart->wheel({inner.center().x(), inner.bottom() + 10}, 1);
        QVERIFY(chart->x().size() < wholeX.size());
        QVERIFY(chart->y() == wholeY);
        chart->view->showAll();
        chart->wheel({inner.left() - 10, inner.center().y()}, 1);
        QVERIFY(chart->x() == wholeX);
        QVERIFY(chart->y().size() < wholeY.size());
    }

    void aDragMovesTheDrawingWithThePointer() {
        const QPoint from = chart->at(0.6, 0.5);
        const QPoint to = chart->at(0.45, 0.4);
        const double x = plot->xAxis->pixelToCoord(from.x());
        const double y = plot->yAxis->pixelToCoord(from.y());
        chart->drag(from, to);
        QVERIFY(std::abs(plot->xAxis->pixelToCoord(to.x()) - x) < wholeX.size() / 100);
        QVERIFY(std::abs(plot->yAxis->pixelToCoord(to.y()) - y) < wholeY.size() / 100);
        QVERIFY(std::abs(chart->x().size() - wholeX.size()) < 1e-9 * wholeX.size());
        QVERIFY(chart->x().lower > wholeX.lower && chart->y().lower < wholeY.lower);
        // The button is up: the pointer goes its own way again.
        const QCPRange left = chart->x();
        chart->pull(chart->at(0.7, 0.7));
        QVERIFY(chart->x() == left);
    }

    void aDragWithShiftZoomsIntoItsRectangleAndADoubleClickGoesBack() {
        const QCPRange wantedX(plot->xAxis->pixelToCoord(chart->at(0.2, 0).x()),
                               plot->xAxis->pixelToCoord(chart->at(0.6, 0).x()));
        const QCPRange wantedY(plot->yAxis->pixelToCoord(chart->at(0, 0.7).y()),
                               plot->yAxis->pixelToCoord(chart->at(0, 0.3).y()));
        chart->drag(chart->at(0.2, 0.3), chart->at(0.6, 0.7), Qt::ShiftModifier);
        QVERIFY(close(chart->x(), wantedX));
        QVERIFY(close(chart->y(), wantedY));
        QTest::mouseDClick(plot, Qt::LeftButton, {}, chart->at(0.5, 0.5));
        QVERIFY(isWhole());
    }

    void anUnsteadyClickMovesAndZoomsNothing() {
        const QPoint from = chart->at(0.5, 0.5);
        chart->drag(from, from + QPoint(3, 2));
        QVERIFY(isWhole());
        chart->drag(from, from + QPoint(3, 2), Qt::ShiftModifier);
        QVERIFY(isWhole());
    }

    void aNewDrawingShowsEverythingAgain() {
        chart->wheel(chart->at(0.5, 0.5), 3);
        chart->show(ChartFixture::threeSeries());
        QVERIFY(isWhole());
        chart->wheel(chart->at(0.5, 0.5), 3);
        chooseInMenu(*plot, QStringLiteral("Ver todo"));
        QVERIFY(isWhole());
    }

    void aSmallButtonGoesBackWhileSomethingElseThanTheWholeIsInSight() {
        QVERIFY(!wholeButton().isVisible());
        chart->wheel(chart->at(0.5, 0.5), 1);
        QVERIFY(wholeButton().isVisible());
        QCOMPARE(wholeButton().text(), QStringLiteral("Ver todo"));
        QVERIFY(plot->axisRect()->rect().contains(wholeButton().geometry()));
        QTest::mouseClick(&wholeButton(), Qt::LeftButton);
        QVERIFY(isWhole());
        QVERIFY(!wholeButton().isVisible());
        chart->drag(chart->at(0.6, 0.5), chart->at(0.4, 0.5));
        QVERIFY(wholeButton().isVisible());
        // At another size it stands in the same corner.
        chart->view->resize(500, 300);
        QApplication::processEvents();
        const QRect inner = plot->axisRect()->rect();
        QVERIFY(inner.contains(wholeButton().geometry()));
        QVERIFY(inner.right() - wholeButton().geometry().right() < 10);
    }

    // A quarter of the sight beyond either end: half of it is the whole.
    void zoomingOutEndsAtTwiceTheWhole() {
        chart->wheel(chart->at(0.1, 0.9), -60);
        QVERIFY(std::abs(chart->x().size() - 2 * wholeX.size()) < 1e-9 * wholeX.size());
        QVERIFY(std::abs(chart->y().size() - 2 * wholeY.size()) < 1e-9 * wholeY.size());
        QVERIFY(std::abs(chart->x().center() - wholeX.center()) < 1e-9 * wholeX.size());
        QVERIFY(std::abs(chart->y().center() - wholeY.center()) < 1e-9 * wholeY.size());
    }

    void movingEndsWithAQuarterOfTheSightBeyondTheEnd() {
        for (int i = 0; i < 4; ++i)
            chart->drag(chart->at(0.1, 0.1), chart->at(0.9, 0.9));
        QVERIFY(std::abs(chart->x().lower - (wholeX.lower - wholeX.size() / 4)) <
                1e-9 * wholeX.size());
        QVERIFY(std::abs(chart->y().upper - (wholeY.upper + wholeY.size() / 4)) <
                1e-9 * wholeY.size());
        for (int i = 0; i < 4; ++i)
            chart->drag(chart->at(0.9, 0.9), chart->at(0.1, 0.1));
        QVERIFY(std::abs(chart->x().upper - (wholeX.upper + wholeX.size() / 4)) <
                1e-9 * wholeX.size());
        QVERIFY(std::abs(chart->y().lower - (wholeY.lower - wholeY.size() / 4)) <
                1e-9 * wholeY.size());
    }

    void zoomingInEndsAtAThousandthOfTheWhole() {
        for (int i = 0; i < 100; ++i)
            chart->wheel(chart->pointOf(200, 0.6), 1);
        QVERIFY(std::abs(chart->x().size() - wholeX.size() / 1000) < 1e-9 * wholeX.size());
        QVERIFY(std::abs(chart->y().size() - wholeY.size() / 1000) < 1e-9 * wholeY.size());
        QVERIFY(showsACurve());
        for (const QCPAxis* axis : {plot->xAxis, plot->yAxis}) {
            const QStringList labels = ChartFixture::labels(axis);
            QVERIFY2(labels.size() > 1, qPrintable(labels.join(u' ')));
            QCOMPARE(QSet<QString>(labels.begin(), labels.end()).size(), labels.size());
        }
    }

    /// Of numbers that are large beside what they span, every label still tells its own.
    void numbersKeepApartHoweverCloseOneLooks() {
        Chart drawn;
        drawn.x = std::vector<double>{5e8, 5e8 + 7};
        drawn.series = {{"", {-3e12, -3e12 + 1e5}}};
        start(drawn);
        for (int i = 0; i < 100; ++i)
            chart->wheel(chart->pointOf(5e8 + 3.5, -3e12 + 5e4), 1);
        QVERIFY(chart->x().size() >= 0.5);
        for (const QCPAxis* axis : {plot->xAxis, plot->yAxis}) {
            const QStringList labels = ChartFixture::labels(axis);
            QVERIFY2(labels.size() > 1, qPrintable(labels.join(u' ')));
            QCOMPARE(QSet<QString>(labels.begin(), labels.end()).size(), labels.size());
        }
    }

    void somethingOfACurveStaysInSight() {
        for (const QPoint corner : {chart->at(0.05, 0.1), chart->at(0.95, 0.95)}) {
            chart->view->showAll();
            chart->wheel(corner, 60);
            QVERIFY(showsACurve());
            QVERIFY(!isWhole());
        }
        // Where there is nothing the rectangle is refused.
        chart->view->showAll();
        chart->drag(chart->at(0.05, 0.05), chart->at(0.15, 0.15), Qt::ShiftModifier);
        QVERIFY(isWhole());
        for (const QPoint to : {chart->at(0.1, 0.9), chart->at(0.9, 0.1)}) {
            chart->view->showAll();
            chart->wheel(chart->pointOf(200, 0.6), 8);
            for (int i = 0; i < 20; ++i)
                chart->drag(chart->at(0.5, 0.5), to);
            QVERIFY(showsACurve());
        }
    }

    void keysMoveAndZoom() {
        const QCPRange x = chart->x();
        key(Qt::Key_Right);
        QVERIFY(close(chart->x(), x + 0.1 * x.size(), 1e-9));
        key(Qt::Key_Left);
        key(Qt::Key_Left);
        QVERIFY(close(chart->x(), x - 0.1 * x.size(), 1e-9));
        key(Qt::Key_Home);
        QVERIFY(isWhole());
        key(Qt::Key_Up);
        QVERIFY(close(chart->y(), wholeY + 0.1 * wholeY.size(), 1e-9));
        key(Qt::Key_Down);
        key(Qt::Key_Down);
        QVERIFY(close(chart->y(), wholeY - 0.1 * wholeY.size(), 1e-9));
        key(Qt::Key_0);
        QVERIFY(isWhole());
        key(Qt::Key_Plus);
        QVERIFY(chart->x().size() < 0.9 * wholeX.size() && chart->y().size() < 0.9 * wholeY.size());
        QVERIFY(std::abs(chart->x().center() - wholeX.center()) < 0.01 * wholeX.size());
        key(Qt::Key_Minus, Qt::KeypadModifier);
        key(Qt::Key_Minus, Qt::KeypadModifier);
        QVERIFY(chart->x().size() > 1.1 * wholeX.size());
        key(Qt::Key_0, Qt::KeypadModifier);
        QVERIFY(isWhole());
        // What the program has for itself.
        key(Qt::Key_Plus, Qt::ControlModifier);
        key(Qt::Key_Left, Qt::AltModifier);
        key(Qt::Key_A);
        QVERIFY(isWhole());
    }

    void tabReachesTheChartAndAClickLeavesTheFocusWhereItIs() {
        QLineEdit field(&chart->top);
        field.show();
        field.setFocus();
        QTest::mouseClick(plot, Qt::LeftButton, {}, chart->at(0.5, 0.5));
        QVERIFY(field.hasFocus());
        const auto ring = [&](int inwards) {
            return chart->view->grab().toImage().pixelColor(inwards, 100) == style::accent();
        };
        QVERIFY(!ring(0));
        QTest::keyClick(&field, Qt::Key_Tab);
        QVERIFY(chart->view->hasFocus());
        QVERIFY(ring(0) && ring(1) && !ring(2));
        QTest::keyClick(chart->view, Qt::Key_Tab);
        QVERIFY(field.hasFocus());
        QVERIFY(!ring(0));
    }

    void theMenuOpensFromTheKeyboard() {
        for (const auto& [menuKey, modifiers] :
             {std::pair(Qt::Key_Menu, Qt::KeyboardModifiers()),
              std::pair(Qt::Key_F10, Qt::KeyboardModifiers(Qt::ShiftModifier))}) {
            chart->wheel(chart->at(0.5, 0.5), 3);
            key(menuKey, modifiers);
            // Some platforms send both.
            QContextMenuEvent event(QContextMenuEvent::Keyboard, {0, 0}, chart->top.pos());
            QApplication::sendEvent(chart->view, &event);
            QWidget* menu = QApplication::activePopupWidget();
            QVERIFY(menu);
            QVERIFY(QRect(chart->view->mapToGlobal(QPoint()), chart->view->size())
                        .contains(menu->pos()));
            QCOMPARE(chart->view->findChildren<QMenu*>().size(), 1);
            QTest::keyClick(menu, Qt::Key_Up);
            QTest::keyClick(menu, Qt::Key_Return);
            QVERIFY(isWhole());
            QTRY_VERIFY(chart->view->findChildren<QMenu*>().isEmpty());
        }
        key(Qt::Key_F10);
        QVERIFY(!QApplication::activePopupWidget());
    }

    void theCoordinatesUnderThePointerAreShown() {
        QVERIFY(!readout().isVisible());
        chart->hover(chart->pointOf(200, 0.5));
        QVERIFY(readout().isVisible());
        // Steps of 50 and 0.2, with four and three ticks between: 10 and 0.05.
        QCOMPARE(readout().text(), QStringLiteral("x = 200   y = 0.50"));
        QVERIFY(plot->axisRect()->rect().contains(readout().geometry()));
        // Beside the drawing there are none.
        chart->hover({2, 2});
        QVERIFY(!readout().isVisible());
        chart->hover(chart->pointOf(200, 0.5));
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(plot, &leave);
        QVERIFY(!readout().isVisible());
        start(ChartFixture::threeSeries(), ",");
        chart->hover(chart->pointOf(150, 0.25));
        QCOMPARE(readout().text(), QStringLiteral("x = 150   y = 0,25"));
    }

    void theCoordinatesGetMoreDigitsCloserBy() {
        chart->wheel(chart->pointOf(200, 0.6), 30);
        chart->hover(chart->pointOf(200, 0.6));
        const QString close = readout().text();
        QVERIFY2(close.startsWith(QStringLiteral("x = 200.0")), qPrintable(close));
        QVERIFY2(close.contains(QStringLiteral("y = 0.600")), qPrintable(close));
        chart->view->showAll();
        QVERIFY(readout().text().size() < close.size());
    }

    void theCoordinatesCoverNeitherPointerNorCurveNorButton() {
        chart->wheel(chart->at(0.5, 0.5), 1);
        for (const double across : {0.02, 0.5, 0.98}) {
            for (const double down : {0.02, 0.5, 0.98}) {
                const QPoint pointer = chart->at(across, down);
                chart->hover(pointer);
                QVERIFY(readout().isVisible());
                QVERIFY(!readout().geometry().contains(pointer));
                QVERIFY(!readout().geometry().intersects(wholeButton().geometry()));
            }
        }
        // The curves rise from the lower left to the upper right.
        chart->view->showAll();
        chart->hover(chart->at(0.5, 0.5));
        const QPoint middle = readout().geometry().center();
        const QRect inner = plot->axisRect()->rect();
        QVERIFY((middle.x() > inner.center().x()) == (middle.y() > inner.center().y()));
        // Nothing is in the way of a drag.
        chart->press(chart->at(0.5, 0.5));
        chart->pull(chart->at(0.4, 0.5));
        QVERIFY(!readout().isVisible());
        QTest::mouseRelease(plot, Qt::LeftButton, {}, chart->at(0.4, 0.5));
    }
};

QTEST_MAIN(ChartNavigationTest)
#include "ChartNavigationTest.moc"
