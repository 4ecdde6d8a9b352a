#include "desktop/chart/ChartView.h"
#include "tests/desktop/DesktopFixture.h"

#include <qcustomplot.h>

using namespace caudalera;

/// The chart among the other controls of a window.
class ChartWindowTest : public QObject {
    Q_OBJECT

private:
    /// Tabs until the chart has the keyboard; false if it does not come by.
    static bool tabToTheChart() {
        for (int i = 0; i < 60; ++i) {
            if (qobject_cast<ChartView*>(QApplication::focusWidget()))
                return true;
            DesktopFixture::press(Qt::Key_Tab);
        }
        return false;
    }

private slots:
    void tabReachesTheChartOnceItIsDrawn() {
        DesktopFixture desktop;
        Window& window = desktop.open("frmRegreLineal");
        desktop.typeValues({"1", "2", "3", "5", "4", "4"});
        QVERIFY(!tabToTheChart());
        desktop.clickButton("bGraficar");
        QVERIFY(tabToTheChart());
        auto* plot = desktop.view().findChild<QCustomPlot*>();
        const double span = plot->xAxis->range().size();
        const Control* focus = window.focus();
        DesktopFixture::press(Qt::Key_Plus);
        QVERIFY(plot->xAxis->range().size() < span);
        DesktopFixture::press(Qt::Key_0);
        QCOMPARE(plot->xAxis->range().size(), span);
        // The window does not notice: no field is left or entered by a look at the chart.
        QCOMPARE(window.focus(), focus);
        QVERIFY(window.focus() != window.find("Graph1"));
        // The way goes on and back into the fields.
        DesktopFixture::press(Qt::Key_Tab);
        QVERIFY(!qobject_cast<ChartView*>(QApplication::focusWidget()));
        DesktopFixture::press(Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(qobject_cast<ChartView*>(QApplication::focusWidget()));
        DesktopFixture::press(Qt::Key_Menu);
        QVERIFY(QApplication::activePopupWidget());
        QApplication::activePopupWidget()->close();
        QCOMPARE(desktop.unexpectedBoxes(), QString());
    }

    void aChartThatIsClearedGivesTheKeyboardBack() {
        DesktopFixture desktop;
        desktop.open("frmRegreLineal");
        desktop.typeValues({"1", "2", "3", "5", "4", "4"});
        desktop.clickButton("bGraficar");
        QVERIFY(tabToTheChart());
        desktop.clickButton("bLimpiar");
        auto* chart = desktop.view().findChild<ChartView*>();
        QVERIFY(!chart->isVisible());
        QVERIFY(QApplication::focusWidget());
        QVERIFY(!chart->hasFocus());
        QCOMPARE(desktop.unexpectedBoxes(), QString());
    }
};

QTEST_MAIN(ChartWindowTest)
#include "ChartWindowTest.moc"
