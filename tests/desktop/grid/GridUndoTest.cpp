#include "desktop/grid/GridEditor.h"
#include "desktop/grid/GridView.h"
#include "tests/desktop/DesktopFixture.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>

namespace caudalera {

namespace {

/// A window with a command that says something between its two changes of the grid.
class frmDosCambios : public Window {
public:
    explicit frmDosCambios(Program& program) : Window(program, "frmDosCambios", "Dos cambios") {
        using namespace layout;
        layout = column({control(grdt), control(bCalcular)});
        grdt.editor = &txtt;
        grdt.history = &history_;
        txtt.visible = false;
        bCalcular.onClick = [this] {
            grdt.setTextMatrix(1, 1, "uno");
            mensaje("A medias");
            grdt.setTextMatrix(2, 1, "dos");
        };
    }

    MSFlexGrid grdt{*this, "grdt"};
    TextBox txtt{*this, "txtt"};
    Button bCalcular{*this, "bCalcular", "Calcular"};

    void load() override {
        grdt.reset(4, 2, 1, 1);
        grdt.setHeaders({"N°", "X"});
        setFocus(grdt);
    }

private:
    GridHistory history_{grdt};
};

const std::vector<WindowEntry>& windows() {
    static const std::vector<WindowEntry> entries = [] {
        std::vector<WindowEntry> all = ventanas();
        all.push_back({"frmDosCambios", [](Program& program) -> std::unique_ptr<Window> {
                           return std::make_unique<frmDosCambios>(program);
                       }});
        return all;
    }();
    return entries;
}

constexpr Qt::KeyboardModifiers ctrl = Qt::ControlModifier;

} // namespace

/// Taking changes of a data grid back and bringing them again, by the keys that everybody knows.
class GridUndoTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        desktop_ = std::make_unique<DesktopFixture>(windows());
        desktop_->open("frmEjRegSimple");
    }
    void cleanup() {
        const QString boxes = desktop_->unexpectedBoxes();
        desktop_.reset();
        QVERIFY2(boxes.isEmpty(), qPrintable(boxes));
    }

    void whatWasTypedIsTakenBackValueByValue() {
        desktop_->typeValues({"1", "2", "3", "4"});
        desktop_->press(Qt::Key_Z, ctrl);
        QCOMPARE(desktop_->row(2), QStringLiteral("[->]|3.0|"));
        desktop_->press(Qt::Key_Z, ctrl);
        QCOMPARE(desktop_->row(2), QStringLiteral("[->]||"));
        desktop_->press(Qt::Key_Z, ctrl);
        QCOMPARE(desktop_->row(1), QStringLiteral("[->]|1.0|"));
        QCOMPARE(desktop_->gridView().model()->rowCount(), 1);
        desktop_->press(Qt::Key_Y, ctrl);
        desktop_->press(Qt::Key_Z, ctrl | Qt::ShiftModifier);
        desktop_->press(Qt::Key_Y, ctrl);
        QCOMPARE(desktop_->row(2), QStringLiteral(" 2|3.0|4.0"));
        QCOMPARE(desktop_->gridView().model()->index(1, 2).data().toString(),
                 QStringLiteral("4.0"));
        QCOMPARE(desktop_->grid().Row(), 3L);
    }

    void typingGoesOnWhereTheChangeWasTakenBack() {
        desktop_->typeValues({"1", "2", "3"});
        desktop_->press(Qt::Key_Z, ctrl);
        QCOMPARE(QApplication::focusWidget(), &desktop_->gridView());
        desktop_->typeValues({"5", "6"});
        QCOMPARE(desktop_->row(2), QStringLiteral(" 2|5.0|6.0"));
        desktop_->press(Qt::Key_Y, ctrl);
        QCOMPARE(desktop_->row(3), QStringLiteral("[->]||"));
    }

    void aBlockIsOneStep() {
        desktop_->typeValues({"1", "2"});
        QGuiApplication::clipboard()->setText(QStringLiteral("3\t4\n5\t6\n7\t8\n"));
        desktop_->press(Qt::Key_V, ctrl);
        QCOMPARE(desktop_->row(4), QStringLiteral(" 4|7.0|8.0"));
        desktop_->press(Qt::Key_Z, ctrl);
        QCOMPARE(desktop_->row(2), QStringLiteral("[->]||"));
        QCOMPARE(desktop_->grid().Rows(), 3L);
        desktop_->press(Qt::Key_Y, ctrl);
        QCOMPARE(desktop_->row(4), QStringLiteral(" 4|7.0|8.0"));
    }

    void emptiedCellsRowsAndGridsComeBack() {
        desktop_->typeValues({"1", "2", "3", "4"});
        desktop_->clickCell(1, 2);
        desktop_->press(Qt::Key_Delete);
        QCOMPARE(desktop_->row(1), QStringLiteral(" 1|1.0|"));
        choose("mnuEditEliminar");
        QCOMPARE(desktop_->row(1), QStringLiteral(" 1|3.0|4.0"));
        choose("mnuEditInsertar");
        QCOMPARE(desktop_->row(1), QStringLiteral(" 1||"));
        desktop_->clickButton("bLimpiar");
        QCOMPARE(desktop_->grid().Rows(), 2L);
        // The keyboard is still at the button.
        QCOMPARE(QApplication::focusWidget(), &desktop_->widget<QWidget>("bLimpiar"));
        const QStringList wanted = {" 1||", " 1|3.0|4.0", " 1|1.0|", " 1|1.0|2.0"};
        for (const QString& row : wanted) {
            desktop_->press(Qt::Key_Z, ctrl);
            QCOMPARE(desktop_->row(1), row);
        }
        QCOMPARE(desktop_->row(2), QStringLiteral(" 2|3.0|4.0"));
        QCOMPARE(desktop_->grid().Row(), 1L);
        QCOMPARE(desktop_->grid().Col(), 2L);
    }

    void resultsStayAsTheyWere() {
        desktop_->typeValues({"1", "2", "2", "4", "3", "6.5"});
        desktop_->clickButton("bCalcular");
        const auto& results = desktop_->control<MSFlexGrid>("grdecua");
        const std::string equation = results.TextMatrix(1, 1);
        QVERIFY(!equation.empty());
        desktop_->gridView().setFocus();
        desktop_->press(Qt::Key_Z, ctrl);
        QCOMPARE(desktop_->grid().Rows(), 4L);
        QCOMPARE(results.TextMatrix(1, 1), equation);
    }

    void anOpenBoxGetsTheKeyThatCameBeforeItHadTheKeyboard() {
        desktop_->typeValues({"1", "2"});
        QTest::keyClicks(&desktop_->gridView(), "75");
        QTest::keyClick(&desktop_->gridView(), Qt::Key_Z, ctrl);
        QVERIFY(desktop_->gridView().editor()->isVisible());
        QCOMPARE(desktop_->row(1), QStringLiteral(" 1|1.0|2.0"));
    }

    void theRowThatComesBackIsInSight() {
        QStringList values;
        for (int i = 0; i < 200; ++i)
            values.append(QString::number(i));
        desktop_->typeValues(values);
        desktop_->clickCell(90, 1);
        desktop_->type("7");
        desktop_->press(Qt::Key_Return);
        desktop_->press(Qt::Key_Home, ctrl);
        desktop_->press(Qt::Key_Z, ctrl);
        QCOMPARE(desktop_->grid().Row(), 90L);
        QVERIFY(desktop_->gridView().viewport()->rect().contains(desktop_->centerOf(90, 1)));
    }

    void resultGridsHaveNothingToTakeBack() {
        desktop_->typeValues({"1", "2", "2", "4", "3", "6.5"});
        desktop_->clickButton("bCalcular");
        auto& results = desktop_->widget<GridView>("grdecua");
        results.setFocus();
        desktop_->press(Qt::Key_Z, ctrl);
        desktop_->press(Qt::Key_Y, ctrl);
        QCOMPARE(desktop_->grid().Rows(), 5L);
        QVERIFY(!desktop_->control<MSFlexGrid>("grdecua").TextMatrix(1, 1).empty());
    }

    void anActThatSaysSomethingInBetweenIsOneStep() {
        desktop_->open("frmDosCambios");
        desktop_->expectBox({"A medias", "Caudalera", QMessageBox::NoIcon},
                            [this] { QCOMPARE(desktop_->row(1), QStringLiteral("|uno")); });
        desktop_->clickButton("bCalcular");
        QCOMPARE(desktop_->row(2), QStringLiteral("|dos"));
        QTest::keyClick(&desktop_->gridView(), Qt::Key_Z, ctrl);
        QCOMPARE(desktop_->row(1), QStringLiteral("|"));
        QCOMPARE(desktop_->row(2), QStringLiteral("|"));
    }

private:
    void choose(const char* name) {
        QWidget* viewport = desktop_->gridView().viewport();
        const QPoint point = desktop_->centerOf(1, 1);
        QContextMenuEvent event(QContextMenuEvent::Mouse, point, viewport->mapToGlobal(point));
        QApplication::sendEvent(viewport, &event);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu);
        auto* action = menu->findChild<QAction*>(QString::fromUtf8(name));
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
    }

    std::unique_ptr<DesktopFixture> desktop_;
};

} // namespace caudalera

using caudalera::GridUndoTest;
QTEST_MAIN(GridUndoTest)
#include "GridUndoTest.moc"
