#include "desktop/chart/ChartView.h"
#include "app/registry.h"
#include "desktop/style/Style.h"
#include "recording/RecordingPlatform.h"
#include "shell/window/Program.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QMenu>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <qcustomplot.h>

using namespace caudalera;

namespace {

Chart threeSeries() {
    Chart chart;
    chart.x = std::vector<double>{100, 150, 200, 300};
    chart.series = {{"P(X)", {0.2, 0.4, 0.6, 0.8}},
                    {"F(Z) Ordinario", {0.1, 0.3, 0.55, 0.95}},
                    {"F(Z) Mom Lineal", {0.12, 0.33, 0.5, 0.9}}};
    return chart;
}

/// A storm of two intervals as a staircase: two series and as many points again as an interval has
/// are declared, the points of the first series alone are set.
Chart storm() {
    Chart chart;
    chart.kind = Graph::Kind::area;
    chart.points = 12;
    chart.x = std::vector<double>{0, 0, 10, 10, 10, 10, 30, 30};
    chart.series = {{"", {0, 12, 12, 0, 0, 48, 48, 0}}, {}};
    return chart;
}

bool close(const QCPRange& a, const QCPRange& b) {
    const double slack = 0.02 * b.size();
    return std::abs(a.lower - b.lower) < slack && std::abs(a.upper - b.upper) < slack;
}

} // namespace

class ChartViewTest : public QObject {
    Q_OBJECT

private:
    RecordingPlatform platform;
    std::unique_ptr<Program> program;
    std::unique_ptr<Window> window;
    std::unique_ptr<Graph> graph;
    std::unique_ptr<QWidget> top;
    ChartView* view = nullptr;
    QCustomPlot* plot = nullptr;
    QTemporaryDir folder;

    void show(const Chart& chart) {
        dibujar(*graph, chart);
        view->sync();
    }
    QPoint at(double shareOfWidth, double shareOfHeight) const {
        const QRect inner = plot->axisRect()->rect();
        return {inner.left() + static_cast<int>(shareOfWidth * inner.width()),
                inner.top() + static_cast<int>(shareOfHeight * inner.height())};
    }
    void drag(QPoint from, QPoint to, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::mousePress(plot, Qt::LeftButton, modifiers, from);
        QTest::mouseMove(plot, (from + to) / 2);
        // The offscreen platform keeps no buttons down while it moves.
        for (const QPoint& step : {(from + to) / 2, to}) {
            QMouseEvent move(QEvent::MouseMove, step, plot->mapToGlobal(step), Qt::NoButton,
                             Qt::LeftButton, modifiers);
            QApplication::sendEvent(plot, &move);
        }
        QTest::mouseRelease(plot, Qt::LeftButton, modifiers, to);
    }
    void wheel(QPoint position, int steps) {
        QWheelEvent event(position, plot->mapToGlobal(position), {}, {0, 120 * steps}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(plot, &event);
    }
    /// Chooses an entry of the context menu as the mouse opens it.
    void chooseInMenu(const QString& entry) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, at(0.5, 0.5),
                                plot->mapToGlobal(at(0.5, 0.5)));
        QApplication::sendEvent(plot, &event);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu);
        for (QAction* action : menu->actions())
            if (action->text() == entry) {
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
                return;
            }
        QFAIL("no such entry");
    }
    QStringList labels(const QCPAxis* axis) const {
        const QVector<QString> found = axis->tickVectorLabels();
        return {found.begin(), found.end()};
    }

private slots:
    void initTestCase() { style::apply(*qApp); }

    void init() {
        platform.separator = ".";
        program = std::make_unique<Program>(platform, ventanas());
        window = std::make_unique<Window>(*program, "frmPrueba", "Prueba");
        graph = std::make_unique<Graph>(*window, "Graph1");
        top = std::make_unique<QWidget>();
        top->resize(700, 460);
        view = new ChartView(*graph, top.get());
        view->resize(680, 440);
        plot = view->findChild<QCustomPlot*>();
        top->show();
        QVERIFY(QTest::qWaitForWindowExposed(top.get()));
        view->sync();
    }
    void cleanup() {
        top.reset();
        graph.reset();
    }

    void hiddenUntilDrawnAndItsRoomStaysFree() {
        QVERIFY(view->isHidden());
        QVERIFY(view->sizePolicy().retainSizeWhenHidden());
        show(threeSeries());
        QVERIFY(view->isVisible());
        graph->clear();
        view->sync();
        QVERIFY(view->isHidden());
        QCOMPARE(plot->plottableCount(), 0);
    }

    void drawingTwiceShowsTheCurvesOnce() {
        show(threeSeries());
        show(threeSeries());
        QCOMPARE(plot->plottableCount(), 3);
    }

    void pointsKeepTheirOrder() {
        Chart chart;
        chart.style = 1;
        chart.x = std::vector<double>{3, 1, 2};
        chart.series = {{"", {30, 10, 20}}};
        show(chart);
        const auto* curve = qobject_cast<QCPCurve*>(plot->plottable(0));
        QVERIFY(curve);
        QVector<double> x;
        for (const QCPCurveData& point : *curve->data())
            x.append(point.key);
        QCOMPARE(x, (QVector<double>{3, 1, 2}));
        QVERIFY(!curve->scatterStyle().isNone());
    }

    void withoutPositionsThePointsStandAtTheirRanks() {
        Chart chart;
        chart.series = {{"", {5, 7, 9}}};
        show(chart);
        bool found = false;
        QVERIFY(plot->plottable(0)->getKeyRange(found) == QCPRange(1, 3));
        QVERIFY(found);
    }

    void allDataLieInsideTheRanges() {
        show(threeSeries());
        QVERIFY(plot->xAxis->range().lower < 100 && plot->xAxis->range().upper > 300);
        QVERIFY(plot->yAxis->range().lower < 0.1 && plot->yAxis->range().upper > 0.95);
        // Probabilities are never negative, and so is their axis.
        QVERIFY(plot->yAxis->range().lower >= 0);
    }

    /// The bed of a river, of which the water line is seen with its vertical banks.
    void whatHangsFromZeroShowsTheLineAtZero() {
        Chart chart;
        chart.x = std::vector<double>{0, 0, 2, 5, 6, 6};
        chart.series = {{"", {0, -0.5, -1, -2, -0.5, 0}}};
        show(chart);
        const QCPRange height = plot->yAxis->range();
        QVERIFY(height.lower < -2 && height.upper > 0 && height.upper < 0.5);
        QVERIFY(!plot->yAxis->rangeReversed());
        QVERIFY(plot->yAxis->grid()->zeroLinePen() != plot->yAxis->grid()->pen());
        QVERIFY(labels(plot->yAxis).contains(QStringLiteral("0")));
        const auto* curve = qobject_cast<QCPCurve*>(plot->plottable(0));
        QCOMPARE(curve->data()->size(), 6);
    }

    void equalValuesStillGetARange() {
        Chart chart;
        chart.series = {{"", {4, 4, 4}}};
        show(chart);
        QVERIFY(plot->yAxis->range().lower < 4 && plot->yAxis->range().upper > 4);
    }

    void seriesDifferInColourAndLine() {
        show(threeSeries());
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(plot->plottable(i)->pen().color(), style::seriesColor(i));
            QCOMPARE(plot->plottable(i)->pen().style(), style::seriesPen(i));
        }
        // What a page without colours leaves of them.
        for (int i = 0; i < 2; ++i) {
            const QPen one = plot->plottable(i)->pen();
            const QPen next = plot->plottable(i + 1)->pen();
            QVERIFY(one.style() != next.style());
            QVERIFY(std::abs(qGray(one.color().rgb()) - qGray(next.color().rgb())) > 20);
        }
    }

    void theLegendNamesTheSeriesAndCoversNoData() {
        show(threeSeries());
        plot->replot();
        const auto legends = plot->findChildren<QCPLegend*>();
        QCPLegend* legend = nullptr;
        for (QCPLegend* each : legends)
            if (each != plot->legend)
                legend = each;
        QVERIFY(legend);
        QCOMPARE(legend->itemCount(), 3);
        QVERIFY(!legend->rect().intersects(plot->axisRect()->rect()));
        Chart unnamed = threeSeries();
        for (auto& series : unnamed.series)
            series.legend.clear();
        show(unnamed);
        QCOMPARE(plot->plotLayout()->rowCount(), 1);
    }

    void axesCarryTheVisibleOnesOfTheirLabels() {
        Label months(*window, "lblMeses", "Eje de Meses: 0 = Ene, 1 = Feb, ... ,11= Dic");
        Label function(*window, "lblFuncion", "Fx");
        Label share(*window, "lblPorcentaje", "(%)");
        graph->xLabels = {&months};
        graph->yLabels = {&function, &share};
        show(threeSeries());
        QCOMPARE(plot->xAxis->label(), QString::fromStdString(months.caption));
        QCOMPARE(plot->yAxis->label(), QStringLiteral("Fx (%)"));
        // The longest one has its room at the smallest size, too.
        const int length = view->fontMetrics().horizontalAdvance(plot->xAxis->label());
        QVERIFY(view->minimumSizeHint().width() > length);
        view->resize(view->minimumSizeHint());
        QApplication::processEvents();
        QVERIFY2(plot->axisRect()->width() >= length,
                 qPrintable(QStringLiteral("%1 of %2").arg(plot->axisRect()->width()).arg(length)));
        // Without a new drawing.
        function.caption = "fx";
        share.visible = false;
        view->sync();
        QCOMPARE(plot->yAxis->label(), QStringLiteral("fx"));
        graph->xLabels.clear();
        graph->yLabels.clear();
    }

    void labelsAreReadable_data() {
        QTest::addColumn<QList<double>>("y");
        QTest::addColumn<QString>("separator");
        QTest::addColumn<QString>("label");
        QTest::newRow("tenths") << QList<double>{0, 1} << "."
                                << "0.2";
        QTest::newRow("tenths with comma") << QList<double>{0, 1} << ","
                                           << "0,2";
        QTest::newRow("whole") << QList<double>{0, 100} << "."
                               << "20";
        QTest::newRow("thousands") << QList<double>{0, 5000} << "."
                                   << "1000";
        QTest::newRow("small") << QList<double>{0, 0.01} << "."
                               << "0.002";
    }
    void labelsAreReadable() {
        QFETCH(QList<double>, y);
        QFETCH(QString, separator);
        QFETCH(QString, label);
        platform.separator = separator.toStdString();
        delete view;
        view = new ChartView(*graph, top.get());
        view->resize(680, 440);
        plot = view->findChild<QCustomPlot*>();
        Chart chart;
        chart.series = {{"", {y[0], y[1]}}};
        show(chart);
        plot->replot();
        const QStringList found = labels(plot->yAxis);
        QVERIFY2(found.contains(label), qPrintable(found.join(u' ')));
        QVERIFY(found.contains(QStringLiteral("0")));
    }

    void monthsGetNoTicksBetweenThem() {
        Chart chart;
        chart.x = std::vector<double>{0, 1, 2, 3};
        chart.series = {{"", {1, 2, 4, 8}}};
        show(chart);
        plot->replot();
        QCOMPARE(labels(plot->xAxis), (QStringList{"0", "1", "2", "3"}));
    }

    void theAreaReachesDownToTheAxis() {
        show(storm());
        QCOMPARE(plot->plottableCount(), 2);
        QCOMPARE(plot->yAxis->range().lower, 0.0);
        const QColor ground = plot->plottable(0)->brush().color();
        QCOMPARE(ground.rgb(), style::seriesColor(0).rgb());
        // A point inside the second bar shows the ground's colour, one above the first does not.
        const QImage image = plot->toPixmap(plot->width(), plot->height()).toImage();
        const auto pixel = [&](double x, double y) {
            return image.pixelColor(static_cast<int>(plot->xAxis->coordToPixel(x)),
                                    static_cast<int>(plot->yAxis->coordToPixel(y)));
        };
        QVERIFY(pixel(21, 33) != pixel(5, 33));
        QCOMPARE(pixel(5, 33), QColor(Qt::white));
    }

    void pointsThatAreNotSetAreNotDrawn() {
        show(storm());
        for (int i = 0; i < plot->plottableCount(); ++i) {
            const auto* curve = qobject_cast<QCPCurve*>(plot->plottable(i));
            QVERIFY(curve);
            for (const QCPCurveData& point : *curve->data())
                QVERIFY2(point.t < 8 || point.value == 0, "only the ground is closed behind them");
        }
        QCOMPARE(qobject_cast<QCPCurve*>(plot->plottable(1))->dataCount(), 8);
        Chart ranks;
        ranks.points = 5;
        ranks.series = {{"", {5, 7, 9}}};
        show(ranks);
        bool found = false;
        QVERIFY(plot->plottable(0)->getKeyRange(found) == QCPRange(1, 3));
        QVERIFY(found);
    }

    void aChartChangesItsKindFromDrawingToDrawing() {
        show(storm());
        Chart mass;
        mass.x = std::vector<double>{0, 10, 30};
        mass.series = {{"", {0, 2, 18}}};
        show(mass);
        QCOMPARE(plot->plottableCount(), 1);
        QCOMPARE(plot->plottable(0)->brush().style(), Qt::NoBrush);
        show(storm());
        QCOMPARE(plot->plottableCount(), 2);
    }

    void theWheelZoomsAtThePointer() {
        show(threeSeries());
        const QCPRange before = plot->xAxis->range();
        const double pointed = plot->xAxis->pixelToCoord(at(0.25, 0.5).x());
        wheel(at(0.25, 0.5), 2);
        const QCPRange after = plot->xAxis->range();
        QVERIFY(after.size() < before.size());
        QVERIFY(after.contains(pointed));
        QVERIFY(std::abs(plot->xAxis->pixelToCoord(at(0.25, 0.5).x()) - pointed) <
                before.size() / 100);
    }

    void aDragZoomsIntoItsRectangleAndADoubleClickGoesBack() {
        show(threeSeries());
        const QCPRange wholeX = plot->xAxis->range();
        const QCPRange wholeY = plot->yAxis->range();
        const QCPRange wantedX(plot->xAxis->pixelToCoord(at(0.2, 0).x()),
                               plot->xAxis->pixelToCoord(at(0.6, 0).x()));
        const QCPRange wantedY(plot->yAxis->pixelToCoord(at(0, 0.7).y()),
                               plot->yAxis->pixelToCoord(at(0, 0.3).y()));
        drag(at(0.2, 0.3), at(0.6, 0.7));
        QVERIFY(close(plot->xAxis->range(), wantedX));
        QVERIFY(close(plot->yAxis->range(), wantedY));
        QTest::mouseDClick(plot, Qt::LeftButton, {}, at(0.5, 0.5));
        QVERIFY(plot->xAxis->range() == wholeX);
        QVERIFY(plot->yAxis->range() == wholeY);
    }

    void anUnsteadyClickZoomsNothing() {
        show(threeSeries());
        const QCPRange before = plot->xAxis->range();
        drag(at(0.5, 0.5), at(0.5, 0.5) + QPoint(3, 2));
        QVERIFY(plot->xAxis->range() == before);
    }

    void aDragWithShiftMovesTheDrawing() {
        show(threeSeries());
        const QCPRange before = plot->xAxis->range();
        drag(at(0.6, 0.5), at(0.2, 0.5), Qt::ShiftModifier);
        QVERIFY(plot->xAxis->range().lower > before.lower);
        QVERIFY(std::abs(plot->xAxis->range().size() - before.size()) < 1e-6 * before.size());
    }

    void aNewDrawingShowsEverythingAgain() {
        show(threeSeries());
        const QCPRange whole = plot->xAxis->range();
        wheel(at(0.5, 0.5), 3);
        show(threeSeries());
        QVERIFY(plot->xAxis->range() == whole);
        wheel(at(0.5, 0.5), 3);
        chooseInMenu(QStringLiteral("Ver todo"));
        QVERIFY(plot->xAxis->range() == whole);
    }

    void theMenuCopiesTheImage() {
        show(threeSeries());
        QGuiApplication::clipboard()->clear();
        chooseInMenu(QStringLiteral("Copiar imagen"));
        const QImage image = QGuiApplication::clipboard()->image();
        QVERIFY(image.width() >= plot->width());
    }

    void theMenuSavesTheImage_data() {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("suffix");
        QTest::newRow("png") << "Imagen PNG (*.png)"
                             << "png";
        QTest::newRow("pdf") << "Documento PDF (*.pdf)"
                             << "pdf";
        QTest::newRow("svg") << "Dibujo SVG (*.svg)"
                             << "svg";
    }
    void theMenuSavesTheImage() {
        QFETCH(QString, filter);
        QFETCH(QString, suffix);
        show(threeSeries());
        const QString path = folder.filePath(QStringLiteral("curva.") + suffix);
        QTimer::singleShot(0, this, [&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            dialog->selectNameFilter(filter);
            emit dialog->filterSelected(filter);
            // The filter gives the suffix.
            dialog->selectFile(folder.filePath(QStringLiteral("curva")));
            static_cast<QDialog*>(dialog)->done(QDialog::Accepted);
        });
        chooseInMenu(QStringLiteral("Guardar imagen..."));
        QFile file(path);
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(path));
        if (suffix == QLatin1String("png"))
            QVERIFY(!QImage(path).isNull());
        else if (suffix == QLatin1String("pdf"))
            QVERIFY(file.readAll().startsWith("%PDF"));
        else
            QVERIFY(QSvgRenderer(path).isValid());
    }

    void anImageThatCannotBeWrittenIsTold() {
        show(threeSeries());
        for (const char* name : {"no/hay/a.png", "no/hay/a.pdf", "no/hay/a.svg"})
            QVERIFY(!view->saveImage(folder.filePath(QLatin1String(name))));
    }
};

QTEST_MAIN(ChartViewTest)
#include "ChartViewTest.moc"
