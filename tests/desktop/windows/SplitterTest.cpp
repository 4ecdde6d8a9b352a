#include "desktop/windows/Splitter.h"
#include "desktop/chart/ChartView.h"
#include "desktop/grid/GridView.h"
#include "tests/desktop/DesktopFixture.h"

#include <algorithm>

namespace caudalera {

/// The border between results and their chart.
class SplitterTest : public QObject {
    Q_OBJECT

private slots:
    void everyChartHasABorderToItsResults_data() {
        QTest::addColumn<QString>("name");
        for (const WindowEntry& entry : ventanas()) {
            const QByteArray name(entry.name.data(), static_cast<qsizetype>(entry.name.size()));
            QTest::newRow(name.constData()) << QString::fromUtf8(name);
        }
    }
    void everyChartHasABorderToItsResults() {
        QFETCH(QString, name);
        DesktopFixture desktop;
        desktop.open(name.toStdString());
        const auto grids = desktop.view().findChildren<GridView*>();
        const bool results = std::any_of(grids.begin(), grids.end(),
                                         [](const GridView* grid) { return !grid->editor(); });
        auto* chart = desktop.view().findChild<ChartView*>();
        auto* splitter = desktop.view().findChild<Splitter*>();
        QCOMPARE(splitter != nullptr, results && chart);
        if (!splitter)
            return;
        QCOMPARE(splitter->count(), 2);
        QVERIFY(!splitter->widget(0)->findChildren<GridView*>().empty());
        QVERIFY(splitter->widget(1)->isAncestorOf(chart));
        QVERIFY(splitter->handle(1)->isVisible());
        QVERIFY(std::min(splitter->handle(1)->width(), splitter->handle(1)->height()) >= 8);
    }

    void theHandleIsSeen() {
        DesktopFixture desktop;
        desktop.open("frmDisNormal");
        QWidget& handle = *desktop.view().findChild<Splitter*>()->handle(1);
        const QImage image = handle.grab().toImage();
        int bar = 0;
        for (int x = 0; x < image.width(); ++x)
            bar += image.pixelColor(x, image.height() / 2).lightnessF() < 0.65 ? 1 : 0;
        QVERIFY2(bar >= 30, qPrintable(QString::number(bar)));
    }

    void draggingItGivesTheGridMoreRows() {
        DesktopFixture desktop;
        desktop.open("frmDisNormal");
        const int rows = desktop.widget<GridView>("grddis").height();
        const int chart = desktop.widget<ChartView>("Graph1").height();
        drag(desktop, {0, 60});
        QCOMPARE(desktop.widget<GridView>("grddis").height(), rows + 60);
        QCOMPARE(desktop.widget<ChartView>("Graph1").height(), chart - 60);
        drag(desktop, {0, -40});
        QCOMPARE(desktop.widget<GridView>("grddis").height(), rows + 20);
    }

    void sideBySideItMovesSideways() {
        DesktopFixture desktop;
        desktop.open("frmAforoCorren");
        desktop.view().resize(1300, 700);
        QTest::qWait(20);
        const int grid = desktop.widget<GridView>("grdavq").width();
        const int chart = desktop.widget<ChartView>("Graph1").width();
        drag(desktop, {50, 0});
        QCOMPARE(desktop.widget<GridView>("grdavq").width(), grid + 50);
        QCOMPARE(desktop.widget<ChartView>("Graph1").width(), chart - 50);
    }

    void neitherPartCanBeMovedAway() {
        DesktopFixture desktop;
        desktop.open("frmDisNormal");
        drag(desktop, {0, 2000});
        const auto& chart = desktop.widget<ChartView>("Graph1");
        QVERIFY(chart.height() >= chart.minimumSizeHint().height());
        drag(desktop, {0, -2000});
        const auto& grid = desktop.widget<GridView>("grddis");
        QVERIFY(grid.height() >= grid.minimumSizeHint().height());
    }

    /// A verdict that runs over more lines keeps them all, wherever the border stands.
    void sentencesKeepTheirLines() {
        DesktopFixture desktop;
        desktop.open("frmDisNormal");
        drag(desktop, {0, -2000});
        desktop.typeValues({"1", "2", "3", "4"});
        desktop.clickButton("bCalcular");
        QTest::qWait(20);
        const auto& verdict = desktop.widget<QWidget>("lblmensaje");
        QVERIFY(verdict.height() >= verdict.heightForWidth(verdict.width()));
        QVERIFY(verdict.geometry().bottom() < verdict.parentWidget()->height());
    }

private:
    static void drag(DesktopFixture& desktop, const QPoint& by) {
        QWidget& handle = *desktop.view().findChild<Splitter*>()->handle(1);
        const QPoint from = handle.rect().center();
        QTest::mousePress(&handle, Qt::LeftButton, {}, from);
        QTest::mouseMove(&handle, from + by);
        // The handle has moved with the pointer.
        QTest::mouseRelease(&handle, Qt::LeftButton, {}, from);
        QTest::qWait(20);
    }
};

} // namespace caudalera

using caudalera::SplitterTest;
QTEST_MAIN(SplitterTest)
#include "SplitterTest.moc"
