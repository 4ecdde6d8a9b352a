#include "desktop/grid/GridView.h"
#include "tests/desktop/DesktopFixture.h"

#include <QHeaderView>
#include <QScrollBar>

namespace caudalera {

/// How a grid shares its room out among its columns, and how far results
/// scroll.
class GridRoomTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        desktop_ = std::make_unique<DesktopFixture>();
        desktop_->open("frmCurvaDuracion");
    }
    void cleanup() {
        const QString boxes = desktop_->unexpectedBoxes();
        desktop_.reset();
        QVERIFY2(boxes.isEmpty(), qPrintable(boxes));
    }

    void theColumnsFillTheRoom() {
        QCOMPARE(results().horizontalHeader()->length(), results().viewport()->width());
        desktop_->view().resize(desktop_->view().size() - QSize(70, 0));
        QTest::qWait(20);
        QCOMPARE(results().horizontalHeader()->length(), results().viewport()->width());
    }

    void theBarBelowIsThereAsLongAsItIsNeeded() {
        desktop_->view().resize(1400, 700);
        QTest::qWait(20);
        QVERIFY(!results().horizontalScrollBar()->isVisible());
        const int before = results().sizeHint().height();
        drag(results(), 1, 1200);
        QTRY_VERIFY(results().horizontalScrollBar()->isVisible());
        // It takes none of the room of the rows.
        QCOMPARE(results().sizeHint().height() - before,
                 results().horizontalScrollBar()->sizeHint().height());
        drag(results(), 1, -1200);
        QTRY_VERIFY(!results().horizontalScrollBar()->isVisible());
    }

    void aColumnIsDraggedAndKeepsItsWidth() {
        const int before = results().columnWidth(1);
        drag(results(), 1, 37);
        QCOMPARE(results().columnWidth(1), before + 37);
        // Wider than all that the window holds, which scrolls in it until then.
        desktop_->view().resize(desktop_->view().size() + QSize(690, 0));
        QTest::qWait(20);
        QCOMPARE(results().columnWidth(1), before + 37);
        // The others share what it leaves.
        QCOMPARE(results().horizontalHeader()->length(), results().viewport()->width());
    }

    void noColumnIsDraggedBelowItsTitle() {
        drag(results(), 1, 100);
        drag(results(), 1, -(results().columnWidth(1) - 20));
        const int title = results().fontMetrics().horizontalAdvance("Q ordenado (m3/s)");
        QVERIFY2(results().columnWidth(1) > title && results().columnWidth(1) < title + 40,
                 qPrintable(QString::number(results().columnWidth(1))));
    }

    void noColumnIsNarrowerThanAValueInIt() {
        GridView& grid = desktop_->gridView();
        const QString value("1234567890123456789012345678901234567890");
        desktop_->typeValues({"5"});
        desktop_->type(value);
        // As it was typed: ENTER would cut it to the digits of a number.
        desktop_->press(Qt::Key_Up);
        desktop_->clickCell(1, 1);
        desktop_->type(value);
        desktop_->press(Qt::Key_Down);
        QCOMPARE(desktop_->row(1), QString(" 1|" + value));
        const int needed = grid.fontMetrics().horizontalAdvance(value);
        QVERIFY(grid.columnWidth(1) > needed);
        drag(grid, 1, -(grid.columnWidth(1) - 20));
        QVERIFY(grid.columnWidth(1) > needed);
        QVERIFY(grid.columnWidth(1) < needed + 40);
    }

    void aValueThatComesIntoSightHasItsRoomToo() {
        fill(200);
        desktop_->session.act([&] {
            desktop_->program().act(
                [&] { desktop_->grid().setTextMatrix(150, 1, std::string(50, '8')); });
        });
        GridView& grid = desktop_->gridView();
        const int needed = grid.fontMetrics().horizontalAdvance(QString(50, u'8'));
        QVERIFY(grid.columnWidth(1) < needed);
        grid.verticalScrollBar()->setValue(145);
        QVERIFY(grid.columnWidth(1) > needed);
        // An emptied grid has the widths that it began with.
        desktop_->clickButton("bLimpiar");
        QVERIFY(grid.columnWidth(1) < needed);
        QCOMPARE(grid.horizontalHeader()->length(), grid.viewport()->width());
    }

    void resultsThatFitDoNotScroll() {
        desktop_->typeValues({"3", "1", "2"});
        desktop_->clickButton("bCalcular");
        QCOMPARE(desktop_->control<MSFlexGrid>("grddis").Rows(), 500L);
        QCOMPARE(results().verticalScrollBar()->maximum(), 0);
    }

    void resultsScrollToTheLastRowThatIsFilled() {
        fill(60);
        desktop_->clickButton("bCalcular");
        QScrollBar& bar = *results().verticalScrollBar();
        QVERIFY(bar.maximum() > 0);
        bar.setValue(400);
        QVERIFY(rowOf(60).bottom() < results().viewport()->height());
        QVERIFY(rowOf(61).bottom() >= results().viewport()->height());
        // A smaller view has farther to go.
        desktop_->view().resize(desktop_->view().width(), desktop_->view().minimumHeight());
        QTest::qWait(20);
        bar.setValue(400);
        QVERIFY(rowOf(60).bottom() < results().viewport()->height());
        QVERIFY(rowOf(61).bottom() >= results().viewport()->height());
        desktop_->clickButton("bLimpiar");
        QCOMPARE(bar.maximum(), 0);
        QCOMPARE(bar.value(), 0);
        QCOMPARE(results().model()->rowCount(), 499);
    }

    void theKeyboardReachesTheBlankRowsToo() {
        fill(60);
        desktop_->clickButton("bCalcular");
        results().setFocus();
        desktop_->press(Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(desktop_->control<MSFlexGrid>("grddis").Row(), 499L);
        QVERIFY(results().viewport()->rect().contains(rowOf(499)));
        desktop_->press(Qt::Key_Home, Qt::ControlModifier);
        results().verticalScrollBar()->setValue(400);
        QVERIFY(rowOf(61).bottom() >= results().viewport()->height());
    }

    void whereOneTypesTheEmptyRowIsReached() {
        fill(60);
        GridView& grid = desktop_->gridView();
        grid.verticalScrollBar()->setValue(400);
        QVERIFY(grid.viewport()->rect().contains(desktop_->centerOf(61, 1)));
    }

private:
    GridView& results() { return desktop_->widget<GridView>("grddis"); }
    /// Where a row of the results stands, counted from 1.
    QRect rowOf(int row) { return results().visualRect(results().model()->index(row - 1, 1)); }

    /// Draws the right border of a column.
    static void drag(GridView& grid, int column, int by) {
        QHeaderView& header = *grid.horizontalHeader();
        QWidget& there = *header.viewport();
        const QPoint from(header.sectionViewportPosition(column) + header.sectionSize(column) - 1,
                          header.height() / 2);
        const QPoint to = from + QPoint(by, 0);
        QTest::mousePress(&there, Qt::LeftButton, {}, from);
        for (const QPoint& at : {(from + to) / 2, to}) {
            QMouseEvent move(QEvent::MouseMove, at, there.mapToGlobal(at), Qt::NoButton,
                             Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&there, &move);
        }
        QTest::mouseRelease(&there, Qt::LeftButton, {}, to);
    }

    /// Rows of data without typing them, the append row behind.
    void fill(long rows) {
        desktop_->session.act([&] {
            desktop_->program().act([&] {
                MSFlexGrid& grid = desktop_->grid();
                grid.setRows(rows + 2);
                for (long row = 1; row <= rows; ++row)
                    grid.setTextMatrix(row, 1, std::to_string(row));
            });
        });
    }

    std::unique_ptr<DesktopFixture> desktop_;
};

} // namespace caudalera

using caudalera::GridRoomTest;
QTEST_MAIN(GridRoomTest)
#include "GridRoomTest.moc"
