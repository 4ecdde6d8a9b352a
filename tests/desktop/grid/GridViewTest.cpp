#include "desktop/grid/GridView.h"
#include "desktop/grid/GridEditor.h"
#include "desktop/style/Style.h"
#include "tests/desktop/DesktopFixture.h"

#include <QClipboard>
#include <QScrollBar>

namespace caudalera {

class GridViewTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        desktop_ = std::make_unique<DesktopFixture>();
        desktop_->open("frmEjRegSimple");
    }
    void cleanup() {
        const QString boxes = desktop_->unexpectedBoxes();
        desktop_.reset();
        QVERIFY2(boxes.isEmpty(), qPrintable(boxes));
    }

    void theGridHasTheKeyboardWhenAWindowOpens() {
        QCOMPARE(QApplication::focusWidget(), &desktop_->gridView());
    }

    void typedValuesFillTheAppendRowFromLeftToRight() {
        desktop_->typeValues({"1", "2.5"});
        QCOMPARE(desktop_->row(1), QStringLiteral(" 1|1.0|2.5"));
        QCOMPARE(desktop_->row(2), QStringLiteral("[->]||"));
        QCOMPARE(desktop_->gridView().model()->rowCount(), 2);
    }

    void keysThatComeFasterThanTheEditBoxAreNotLost() {
        // All keys go to the grid, as those that were pressed before the box had the keyboard.
        QTest::keyClicks(&desktop_->gridView(), "123.45");
        QCOMPARE(editor().text(), QStringLiteral("123.45"));
        QTest::keyClick(&desktop_->gridView(), Qt::Key_Return);
        QCOMPARE(desktop_->row(1), QStringLiteral("[->]|123.45|"));
    }

    void theEditBoxFloatsOverTheCurrentCellWhileItIsEdited() {
        QVERIFY(editor().isHidden());
        desktop_->type("7");
        QVERIFY(editor().isVisible());
        QCOMPARE(QApplication::focusWidget(), &editor());
        QVERIFY(cellRect(1, 1).contains(editor().geometry()));
        desktop_->press(Qt::Key_Return);
        QVERIFY(editor().isHidden());
        QCOMPARE(QApplication::focusWidget(), &desktop_->gridView());
    }

    void theStatusBarTellsHowToEnterWhileACellIsEdited() {
        const auto& panel = desktop_->control<StatusBar>("StatusBar1").panels[0];
        desktop_->type("7");
        QCOMPARE(QString::fromStdString(panel),
                 QStringLiteral("Para introducir o modificar datos, digitarlos y luego presionar "
                                "ENTER"));
        desktop_->press(Qt::Key_Escape);
        QVERIFY(panel.empty());
    }

    void aClickOnACellAndTypingReplaceItsValue() {
        desktop_->typeValues({"1", "2", "3", "4"});
        desktop_->clickCell(1, 2);
        desktop_->type("25");
        desktop_->press(Qt::Key_Enter);
        QCOMPARE(desktop_->row(1), QStringLiteral(" 1|1.0|25.0"));
        QCOMPARE(desktop_->grid().Row(), 2L);
    }

    void theBlankOpensTheBoxWithTheWholeValueSelected() {
        desktop_->typeValues({"1", "2"});
        desktop_->clickCell(1, 2);
        desktop_->press(Qt::Key_Space);
        QCOMPARE(editor().selectedText(), QStringLiteral("2.0"));
        desktop_->type("9");
        QCOMPARE(editor().text(), QStringLiteral("9"));
    }

    void f2AndADoubleClickOpenTheBoxWithTheWholeValueSelected() {
        desktop_->typeValues({"1.5", "2"});
        desktop_->clickCell(1, 1);
        desktop_->press(Qt::Key_F2);
        QCOMPARE(editor().text(), QStringLiteral("1.5"));
        QCOMPARE(editor().selectedText(), QStringLiteral("1.5"));
        desktop_->press(Qt::Key_Escape);
        QTest::mouseDClick(desktop_->gridView().viewport(), Qt::LeftButton, {},
                           desktop_->centerOf(1, 2));
        QVERIFY(editor().isVisible());
        QCOMPARE(editor().text(), QStringLiteral("2.0"));
        desktop_->type("7");
        desktop_->press(Qt::Key_Return);
        QCOMPARE(desktop_->row(1), QStringLiteral(" 1|1.5|7.0"));
    }

    void deleteEmptiesTheCurrentCell() {
        desktop_->typeValues({"1.5", "2", "3", "4"});
        desktop_->clickCell(1, 2);
        desktop_->press(Qt::Key_Delete);
        QCOMPARE(desktop_->row(1), QStringLiteral(" 1|1.5|"));
        QVERIFY(editor().isHidden());
        QCOMPARE(QApplication::focusWidget(), &desktop_->gridView());
        // Of a cell that is open, the key takes a character.
        desktop_->clickCell(2, 1);
        desktop_->press(Qt::Key_F2);
        desktop_->press(Qt::Key_Home);
        desktop_->press(Qt::Key_Delete);
        QCOMPARE(editor().text(), QStringLiteral(".0"));
    }

    void anOpenCellWearsADressOfItsOwnWhereverTheKeyboardIs() {
        desktop_->typeValues({"1", "2", "2", "4", "3", "6.5"});
        desktop_->clickCell(2, 1);
        QVERIFY(!isDressed(2, 1));
        desktop_->type("5000");
        QVERIFY(isDressed(2, 1));
        // The calculation reads the cells, which have not got it.
        desktop_->clickButton("bCalcular");
        QVERIFY(QApplication::focusWidget() != &editor());
        QCOMPARE(desktop_->row(2), QStringLiteral(" 2|2.0|4.0"));
        QVERIFY(isDressed(2, 1));
        // The keyboard back at the grid, it has.
        desktop_->gridView().setFocus(Qt::TabFocusReason);
        QCOMPARE(desktop_->row(2), QStringLiteral(" 2|5000|4.0"));
        QVERIFY(!isDressed(2, 1));
    }

    void undoingInTheBoxStaysInIt() {
        desktop_->typeValues({"1", "2"});
        desktop_->clickCell(1, 1);
        desktop_->type("15");
        desktop_->press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(editor().text(), QStringLiteral("1"));
        desktop_->press(Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(editor().text(), QStringLiteral("15"));
        desktop_->press(Qt::Key_Z, Qt::ControlModifier);
        desktop_->press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(QString::fromStdString(desktop_->control<TextBox>("txtt").text()),
                 QStringLiteral("15"));
        QVERIFY(editor().isVisible());
        QCOMPARE(desktop_->row(1), QStringLiteral(" 1|1.0|2.0"));
    }

    void backspaceOnTheGridOpensTheBox() {
        desktop_->press(Qt::Key_Backspace);
        QVERIFY(editor().isVisible());
        QCOMPARE(editor().text(), QStringLiteral("0.0"));
    }

    void lineEditingWorksInsideTheBox() {
        desktop_->type("15");
        desktop_->press(Qt::Key_Left);
        desktop_->type("2");
        desktop_->press(Qt::Key_Home);
        desktop_->press(Qt::Key_Delete);
        QCOMPARE(QString::fromStdString(desktop_->control<TextBox>("txtt").text()),
                 QStringLiteral("25"));
        desktop_->press(Qt::Key_Return);
        QCOMPARE(desktop_->row(1), QStringLiteral("[->]|25.0|"));
    }

    void escapeDropsWhatWasTyped() {
        desktop_->typeValues({"1", "2"});
        desktop_->clickCell(1, 1);
        desktop_->type("99");
        desktop_->press(Qt::Key_Escape);
        QVERIFY(editor().isHidden());
        QCOMPARE(desktop_->row(1), QStringLiteral(" 1|1.0|2.0"));
    }

    void downAndUpStoreTheTextAsTyped() {
        desktop_->typeValues({"1", "2", "3", "4"});
        desktop_->clickCell(1, 1);
        desktop_->type("abc");
        desktop_->press(Qt::Key_Down);
        QCOMPARE(desktop_->row(1), QStringLiteral(" 1|abc|2.0"));
        QCOMPARE(desktop_->grid().Row(), 2L);
        desktop_->type("1,5");
        desktop_->press(Qt::Key_Up);
        QCOMPARE(desktop_->row(2), QStringLiteral(" 2|1,5|4.0"));
        QCOMPARE(desktop_->grid().Row(), 1L);
    }

    void arrowsMoveTheCurrentCellAndTabLeavesTheGrid() {
        desktop_->typeValues({"1", "2", "3", "4"});
        desktop_->clickCell(1, 1);
        desktop_->press(Qt::Key_Right);
        QCOMPARE(desktop_->grid().Col(), 2L);
        desktop_->press(Qt::Key_Left);
        desktop_->press(Qt::Key_Left);
        QCOMPARE(desktop_->grid().Col(), 1L);
        desktop_->press(Qt::Key_Down);
        QCOMPARE(desktop_->grid().Row(), 2L);
        desktop_->press(Qt::Key_Tab);
        QVERIFY(QApplication::focusWidget() != &desktop_->gridView());
        QVERIFY(desktop_->window().focus() != &desktop_->grid());
    }

    void aClickOnAnotherRowDropsWhatStandsInTheAppendRow() {
        desktop_->typeValues({"1", "2", "3"});
        QCOMPARE(desktop_->row(2), QStringLiteral("[->]|3.0|"));
        desktop_->clickCell(1, 1);
        QCOMPARE(desktop_->row(2), QStringLiteral("[?]||"));
    }

    void theCurrentCellStaysInSight() {
        QStringList values;
        for (int i = 1; i <= 200; ++i)
            values.append(QString::number(i));
        desktop_->typeValues(values);
        QVERIFY(desktop_->gridView().viewport()->rect().contains(desktop_->centerOf(101, 1)));
        desktop_->press(Qt::Key_Home, Qt::ControlModifier);
        QCOMPARE(desktop_->grid().Row(), 1L);
        QVERIFY(desktop_->gridView().viewport()->rect().contains(desktop_->centerOf(1, 1)));
    }

    void enterOnTheGridBringsTheCurrentRowToTheTop() {
        fill(100);
        desktop_->clickCell(1, 1);
        for (int i = 0; i < 5; ++i)
            desktop_->press(Qt::Key_Return);
        QCOMPARE(desktop_->grid().TopRow(), 6L);
        QCOMPARE(desktop_->gridView().rowAt(0), 5);
    }

    void scrollingHidesTheBoxAndStoresNothing() {
        fill(100);
        desktop_->clickCell(1, 1);
        desktop_->type("5");
        desktop_->gridView().verticalScrollBar()->setValue(40);
        QVERIFY(editor().isHidden());
        QCOMPARE(desktop_->row(1), QStringLiteral("[?]|1|"));
        QCOMPARE(desktop_->grid().TopRow(), 41L);
        QCOMPARE(desktop_->gridView().rowAt(0), 40);
    }

    void aWindowOfAnotherSizeKeepsTheBoxOverItsCell() {
        desktop_->typeValues({"1", "2"});
        desktop_->type("5");
        desktop_->view().resize(desktop_->view().size() + QSize(60, -80));
        QTest::qWait(50);
        QVERIFY(editor().isVisible());
        QVERIFY(cellRect(2, 1).contains(editor().geometry()));
    }

    void aDragSelectsAndCtrlCCopiesWithTabsAndLineEnds() {
        desktop_->typeValues({"1", "2", "3", "4", "5", "6"});
        QWidget* viewport = desktop_->gridView().viewport();
        QTest::mousePress(viewport, Qt::LeftButton, {}, desktop_->centerOf(1, 1));
        QTest::mouseMove(viewport, desktop_->centerOf(2, 2));
        drag(desktop_->centerOf(2, 2));
        QTest::mouseRelease(viewport, Qt::LeftButton, {}, desktop_->centerOf(2, 2));
        desktop_->press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("1.0\t2.0\n3.0\t4.0"));
    }

    void shiftExtendsTheSelection() {
        desktop_->typeValues({"1", "2", "3", "4"});
        desktop_->clickCell(1, 1);
        desktop_->press(Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(desktop_->grid().Row(), 1L);
        QCOMPARE(desktop_->grid().RowSel(), 2L);
        desktop_->press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("1.0\n3.0"));
        desktop_->clickCell(2, 2, Qt::ShiftModifier);
        desktop_->press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("1.0\t2.0\n3.0\t4.0"));
    }

    void ctrlACopiesAllThatIsFilled() {
        desktop_->typeValues({"1", "2", "3", "4"});
        desktop_->press(Qt::Key_A, Qt::ControlModifier);
        desktop_->press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("1.0\t2.0\n3.0\t4.0"));
    }

    void lettersWithControlAreNoText() {
        desktop_->press(Qt::Key_G, Qt::ControlModifier);
        QVERIFY(editor().isHidden());
    }

private:
    GridEditor& editor() { return *desktop_->gridView().editor(); }
    QRect cellRect(long row, long col) {
        return desktop_->gridView().visualRect(
            desktop_->gridView().model()->index(static_cast<int>(row) - 1, static_cast<int>(col)));
    }
    static bool isBluish(const QColor& color) { return color.blue() > color.red() + 30; }
    /// Whether a cell shows the ground, the frame and the pencil of one that is being edited.
    bool isDressed(long row, long col) {
        const QImage image = desktop_->gridView().viewport()->grab(cellRect(row, col)).toImage();
        const int right = image.width() - 1;
        const int bottom = image.height() - 1;
        bool frame = true;
        for (const int line : {0, 1}) {
            for (const QPoint& at : {QPoint(line, bottom / 2), QPoint(right - line, bottom / 2),
                                     QPoint(right / 2, line), QPoint(right / 2, bottom - line)})
                frame = frame && image.pixelColor(at) == style::accent();
        }
        const bool ground = image.pixelColor(right - 3, bottom - 3) == style::editedCell() &&
                            image.pixelColor(right - 3, 3) == style::editedCell();
        int pencil = 0;
        for (int x = 2; x < image.height(); ++x) {
            for (int y = 2; y < bottom - 1; ++y)
                pencil += isBluish(image.pixelColor(x, y)) ? 1 : 0;
        }
        return frame && ground && pencil > 10;
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
    /// QTest::mouseMove presses no button.
    void drag(const QPoint& to) {
        QWidget* viewport = desktop_->gridView().viewport();
        QMouseEvent move(QEvent::MouseMove, to, viewport->mapToGlobal(to), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &move);
    }

    std::unique_ptr<DesktopFixture> desktop_;
};

} // namespace caudalera

using caudalera::GridViewTest;
QTEST_MAIN(GridViewTest)
#include "GridViewTest.moc"
