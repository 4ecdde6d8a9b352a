#include "tests/desktop/chart/ChartFixture.h"

#include <QClipboard>
#include <QHelpEvent>
#include <QToolTip>

using namespace caudalera;

namespace {

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

} // namespace

class ChartViewTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<ChartFixture> chart;
    ChartView* view = nullptr;
    QCustomPlot* plot = nullptr;
    Graph* graph = nullptr;

    static Chart threeSeries() { return ChartFixture::threeSeries(); }
    void show(const Chart& drawn) const { chart->show(drawn); }
    static QStringList labels(const QCPAxis* axis) { return ChartFixture::labels(axis); }
    void start(const std::string& separator) {
        chart = std::make_unique<ChartFixture>(separator);
        view = chart->view;
        plot = chart->plot;
        graph = &chart->graph;
    }
    /// What the tool tip of a point of the drawing says.
    QString tipAt(QPoint position) const {
        QHelpEvent event(QEvent::ToolTip, position, plot->mapToGlobal(position));
        QApplication::sendEvent(plot, &event);
        // The one before stays for a moment.
        QTest::qWait(400);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    }

private slots:
    void init() { start("."); }
    void cleanup() { chart.reset(); }

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
        Chart drawn;
        drawn.style = 1;
        drawn.x = std::vector<double>{3, 1, 2};
        drawn.series = {{"", {30, 10, 20}}};
        show(drawn);
        const auto* curve = qobject_cast<QCPCurve*>(plot->plottable(0));
        QVERIFY(curve);
        QVector<double> x;
        for (const QCPCurveData& point : *curve->data())
            x.append(point.key);
        QCOMPARE(x, (QVector<double>{3, 1, 2}));
        QVERIFY(!curve->scatterStyle().isNone());
    }

    void withoutPositionsThePointsStandAtTheirRanks() {
        Chart drawn;
        drawn.series = {{"", {5, 7, 9}}};
        show(drawn);
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
        Chart drawn;
        drawn.x = std::vector<double>{0, 0, 2, 5, 6, 6};
        drawn.series = {{"", {0, -0.5, -1, -2, -0.5, 0}}};
        show(drawn);
        const QCPRange height = plot->yAxis->range();
        QVERIFY(height.lower < -2 && height.upper > 0 && height.upper < 0.5);
        QVERIFY(!plot->yAxis->rangeReversed());
        QVERIFY(plot->yAxis->grid()->zeroLinePen() != plot->yAxis->grid()->pen());
        QVERIFY(labels(plot->yAxis).contains(QStringLiteral("0")));
        const auto* curve = qobject_cast<QCPCurve*>(plot->plottable(0));
        QCOMPARE(curve->data()->size(), 6);
    }

    void equalValuesStillGetARange() {
        Chart drawn;
        drawn.series = {{"", {4, 4, 4}}};
        show(drawn);
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
        Label months(chart->window, "lblMeses", "Eje de Meses: 0 = Ene, 1 = Feb, ... ,11= Dic");
        Label function(chart->window, "lblFuncion", "Fx");
        Label share(chart->window, "lblPorcentaje", "(%)");
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
        start(separator.toStdString());
        Chart drawn;
        drawn.series = {{"", {y[0], y[1]}}};
        show(drawn);
        plot->replot();
        const QStringList found = labels(plot->yAxis);
        QVERIFY2(found.contains(label), qPrintable(found.join(u' ')));
        QVERIFY(found.contains(QStringLiteral("0")));
    }

    void monthsGetNoTicksBetweenThem() {
        Chart drawn;
        drawn.x = std::vector<double>{0, 1, 2, 3};
        drawn.series = {{"", {1, 2, 4, 8}}};
        show(drawn);
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

    void theMenuCopiesTheImage() {
        show(threeSeries());
        QGuiApplication::clipboard()->clear();
        chooseInMenu(*plot, QStringLiteral("Copiar imagen"));
        const QImage image = QGuiApplication::clipboard()->image();
        QVERIFY(image.width() >= plot->width());
    }

    void titlesOfTheDrawingStandAtItsAxes() {
        Chart drawn = threeSeries();
        drawn.xTitle = "Probabilidad Q >= (%)";
        drawn.yTitle = "Q considerado (m3/s)";
        show(drawn);
        QCOMPARE(plot->xAxis->label(), QStringLiteral("Probabilidad Q >= (%)"));
        QCOMPARE(plot->yAxis->label(), QStringLiteral("Q considerado (m3/s)"));
        graph->clear();
        view->sync();
        show(threeSeries());
        QCOMPARE(plot->xAxis->label(), QString());
    }

    void aTitleThatIsTooLongIsCutAndToldWhole() {
        Chart drawn = threeSeries();
        drawn.yTitle = std::string(200, 'm');
        show(drawn);
        const QString label = plot->yAxis->label();
        QVERIFY(label.endsWith(u'\u2026'));
        QVERIFY(view->fontMetrics().horizontalAdvance(label) <= plot->axisRect()->height());
        QCOMPARE(tipAt({8, plot->axisRect()->rect().center().y()}),
                 QString::fromStdString(drawn.yTitle));
        // A larger drawing has more of it, and a short one needs no explanation.
        chart->top.resize(700, 760);
        view->resize(680, 740);
        QTRY_VERIFY(plot->yAxis->label().size() > label.size());
        drawn.yTitle = "Q";
        show(drawn);
        QCOMPARE(tipAt({8, plot->axisRect()->rect().center().y()}), QString());
    }

    void theLegendTellsWhatItStandsFor() {
        show(threeSeries());
        QCPLegend* legend = nullptr;
        for (QCPLegend* each : plot->findChildren<QCPLegend*>())
            if (each != plot->legend)
                legend = each;
        QVERIFY(legend);
        QCOMPARE(tipAt(legend->item(0)->rect().center()),
                 QStringLiteral("Probabilidad experimental"));
        QCOMPARE(tipAt(legend->item(1)->rect().center()),
                 QStringLiteral("Con parámetros ordinarios"));
        QCOMPARE(tipAt(legend->item(2)->rect().center()), QString());
        QCOMPARE(tipAt(chart->at(0.5, 0.5)), QString());
        // The names themselves stay as they are.
        auto* item = qobject_cast<QCPPlottableLegendItem*>(legend->item(0));
        QVERIFY(item);
        QCOMPARE(item->plottable()->name(), QStringLiteral("P(X)"));
        show(Chart(threeSeries()));
        QCOMPARE(tipAt(chart->at(0.5, 0.5)), QString());
    }

    void theMonthsOfAYearEachHaveTheirNumber() {
        Chart drawn;
        drawn.x.emplace();
        drawn.series.emplace_back();
        for (int month = 0; month < 12; ++month) {
            drawn.x->push_back(month);
            drawn.series[0].y.push_back(month);
        }
        show(drawn);
        QStringList months;
        for (int month = 0; month < 12; ++month)
            months.append(QString::number(month));
        QCOMPARE(labels(plot->xAxis), months);
    }

    void numbersOfTheAxesDoNotRunIntoOneAnother() {
        Chart drawn;
        drawn.x = std::vector<double>{500'000'000, 500'100'000};
        drawn.series = {{"", {0, 1}}};
        show(drawn);
        view->resize(280, 180);
        QApplication::processEvents();
        plot->replot();
        const QVector<double> ticks = plot->xAxis->tickVector();
        QVERIFY(ticks.size() >= 2);
        const double apart =
            plot->xAxis->coordToPixel(ticks[1]) - plot->xAxis->coordToPixel(ticks[0]);
        for (const QString& label : labels(plot->xAxis))
            QVERIFY2(view->fontMetrics().horizontalAdvance(label) < apart, qPrintable(label));
    }
};

QTEST_MAIN(ChartViewTest)
#include "ChartViewTest.moc"
