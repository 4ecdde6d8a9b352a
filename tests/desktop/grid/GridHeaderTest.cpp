#include "desktop/grid/GridView.h"
#include "desktop/style/Style.h"
#include "tests/desktop/DesktopFixture.h"

#include <QClipboard>
#include <QHeaderView>
#include <QScrollBar>

namespace caudalera {

namespace {

/// A window with a result grid whose titles have their units in a second row.
class frmDosFilas : public Window {
public:
    explicit frmDosFilas(Program& program) : Window(program, "frmDosFilas", "Dos filas fijas") {
        layout = layout::control(grdecua).stretched();
    }

    MSFlexGrid grdecua{*this, "grdecua"};

    void load() override {
        grdecua.reset(40, 4, 2, 1);
        grdecua.setHeaders({"N°", "T parcial", "I", "P"});
        grdecua.setHeaders({"", "(min)", "(mm por cada hora completa)", "(mm)"}, 1);
        for (long row = 2; row < 5; ++row) {
            for (long col = 0; col < 4; ++col)
                grdecua.setTextMatrix(row, col, std::to_string(10 * row + col));
        }
    }
};

const std::vector<WindowEntry>& windows() {
    static const std::vector<WindowEntry> entries = [] {
        std::vector<WindowEntry> all = ventanas();
        all.push_back({"frmDosFilas", [](Program& program) -> std::unique_ptr<Window> {
                           return std::make_unique<frmDosFilas>(program);
                       }});
        return all;
    }();
    return entries;
}

} // namespace

/// The header of a grid, with one fixed row and with two.
class GridHeaderTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        desktop_ = std::make_unique<DesktopFixture>(windows());
        desktop_->open("frmDosFilas");
        desktop_->view().resize(900, 400);
        QTest::qWait(20);
    }
    void cleanup() {
        const QString boxes = desktop_->unexpectedBoxes();
        desktop_.reset();
        QVERIFY2(boxes.isEmpty(), qPrintable(boxes));
    }

    void allFixedRowsAreLinesOfTheHeader() {
        const QAbstractItemModel& model = *view().model();
        QCOMPARE(model.headerData(1, Qt::Horizontal).toString(),
                 QStringLiteral("T parcial\n(min)"));
        QCOMPARE(model.rowCount(), 38);
        QCOMPARE(model.index(0, 0).data().toString(), QStringLiteral("20"));
    }

    void theSecondLineStandsBelowTheFirst() {
        // N° has nothing in the second row; T parcial has its unit.
        QVERIFY(inkIn(0, 0) > 0);
        QCOMPARE(inkIn(0, 1), 0);
        QVERIFY(inkIn(1, 0) > 0);
        QVERIFY(inkIn(1, 1) > 0);
    }

    void theCellsBeginBelowTheHeader() {
        const QHeaderView& header = *view().horizontalHeader();
        QVERIFY(header.height() > 2 * view().fontMetrics().height());
        QCOMPARE(view().viewport()->geometry().top(), header.geometry().bottom() + 1);
        QVERIFY(view().minimumSizeHint().height() > header.height() + 4 * view().rowHeight(0));
    }

    void aColumnIsAsWideAsTheLongestOfItsLines() {
        const int length =
            view().fontMetrics().horizontalAdvance(QStringLiteral("(mm por cada hora completa)"));
        QVERIFY(view().columnWidth(2) > length);
        desktop_->view().resize(1, 1);
        QTest::qWait(20);
        QVERIFY(view().columnWidth(2) > length);
    }

    void clicksAndKeysReachTheCellsBelowTheFixedRows() {
        click(3, 1);
        QCOMPARE(grid().Row(), 3L);
        for (int i = 0; i < 5; ++i)
            desktop_->press(Qt::Key_Up);
        QCOMPARE(grid().Row(), 2L);
        QCOMPARE(grid().Col(), 1L);
        desktop_->press(Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(grid().Row(), 39L);
        QVERIFY(view().viewport()->rect().contains(rectOf(39, 1)));
        desktop_->press(Qt::Key_Home, Qt::ControlModifier);
        QCOMPARE(grid().Row(), 2L);
        QCOMPARE(rectOf(2, 1).top(), 0);
    }

    void scrollingTellsTheTopmostRowBelowTheFixedOnes() {
        desktop_->session.act(
            [&] { desktop_->program().act([&] { grid().setTextMatrix(39, 1, "391"); }); });
        view().verticalScrollBar()->setValue(5);
        QCOMPARE(grid().TopRow(), 7L);
        QCOMPARE(rectOf(7, 1).top(), 0);
        desktop_->session.act([&] { desktop_->program().act([&] { grid().setTopRow(2); }); });
        QCOMPARE(view().verticalScrollBar()->value(), 0);
    }

    void onlyCellsBelowTheFixedRowsAreCopied() {
        click(2, 2);
        desktop_->press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("22"));
        desktop_->press(Qt::Key_A, Qt::ControlModifier);
        desktop_->press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 QStringLiteral("21\t22\t23\n31\t32\t33\n41\t42\t43"));
    }

    void aGridBuiltAnewWithOneFixedRowHasOneLine() {
        const int two = view().horizontalHeader()->height();
        desktop_->session.act([&] {
            desktop_->program().act([&] {
                grid().reset(40, 4, 1, 1);
                grid().setHeaders({"N°", "T parcial", "I", "P"});
            });
        });
        QTest::qWait(20);
        QCOMPARE(two - view().horizontalHeader()->height(), view().fontMetrics().lineSpacing());
        QCOMPARE(view().viewport()->geometry().top(),
                 view().horizontalHeader()->geometry().bottom() + 1);
        QCOMPARE(view().model()->headerData(1, Qt::Horizontal).toString(),
                 QStringLiteral("T parcial"));
        QCOMPARE(view().model()->rowCount(), 39);
    }

private:
    GridView& view() { return desktop_->widget<GridView>("grdecua"); }
    MSFlexGrid& grid() { return desktop_->control<MSFlexGrid>("grdecua"); }

    QRect rectOf(int row, int col) {
        return view().visualRect(view().model()->index(row - 2, col));
    }

    void click(int row, int col) {
        QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, rectOf(row, col).center());
    }

    /// Pixels that stand out from the ground in the upper (0) or the lower (1) half of a title.
    int inkIn(int col, int half) {
        QHeaderView& header = *view().horizontalHeader();
        const QImage image = header.viewport()->grab().toImage();
        const int middle = header.height() / 2;
        int ink = 0;
        // Without the line between the titles.
        for (int x = header.sectionViewportPosition(col) + 2;
             x < header.sectionViewportPosition(col) + header.sectionSize(col) - 2; ++x) {
            for (int y = half * middle; y < (half + 1) * middle; ++y)
                ink += image.pixelColor(x, y) != style::accent() ? 1 : 0;
        }
        return ink;
    }

    std::unique_ptr<DesktopFixture> desktop_;
};

} // namespace caudalera

using caudalera::GridHeaderTest;
QTEST_MAIN(GridHeaderTest)
#include "GridHeaderTest.moc"
