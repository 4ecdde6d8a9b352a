#include "desktop/grid/GridView.h"
#include "tests/desktop/DesktopFixture.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPushButton>
#include <QToolTip>

namespace caudalera {

namespace {

constexpr QMessageBox::Icon information = QMessageBox::Information;

} // namespace

class GridMenuTest : public QObject {
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

    void theMenuHasTheWindowsEntriesAlone() {
        QMenu* menu = openMenu();
        QStringList words;
        for (const QAction* action : menu->actions())
            words.append(action->isSeparator() ? QStringLiteral("-")
                                               : action->text().section(u'\t', 0, 0));
        QCOMPARE(words, QStringList({"Insertar Fila", "-", "Eliminar Fila"}));
    }

    void insertingIsDisabledOnTheAppendRowAlone() {
        desktop_->typeValues({"1", "2"});
        QVERIFY(!entry("mnuEditInsertar")->isEnabled());
        desktop_->clickCell(1, 1);
        QVERIFY(entry("mnuEditInsertar")->isEnabled());
    }

    void rowsAreInsertedAndDeletedAtTheCurrentRow() {
        desktop_->typeValues({"1", "2", "3", "4"});
        desktop_->clickCell(2, 1);
        choose("mnuEditInsertar");
        QCOMPARE(desktop_->row(2), QStringLiteral(" 2||"));
        QCOMPARE(desktop_->row(3), QStringLiteral(" 3|3.0|4.0"));
        choose("mnuEditEliminar");
        QCOMPARE(desktop_->row(2), QStringLiteral(" 2|3.0|4.0"));
        QCOMPARE(desktop_->gridView().model()->rowCount(), 3);
    }

    void deletingOnTheAppendRowEmptiesTheGrid() {
        desktop_->typeValues({"1", "2", "3", "4"});
        choose("mnuEditEliminar");
        QCOMPARE(desktop_->grid().Rows(), 2L);
        QCOMPARE(desktop_->gridView().model()->rowCount(), 1);
    }

    void aRightClickSelectsTheWholeRow() {
        desktop_->typeValues({"1", "2"});
        desktop_->clickCell(1, 2);
        openMenu();
        QCOMPARE(desktop_->gridView().selectedText(), QStringLiteral("1.0\t2.0"));
    }

    void aBlockIsEnteredAsTypingWould() {
        paste("1.5\t2\r\n3\t4.25\r\n");
        QCOMPARE(desktop_->row(1), QStringLiteral(" 1|1.5|2.0"));
        QCOMPARE(desktop_->row(2), QStringLiteral(" 2|3.0|4.25"));
        QCOMPARE(desktop_->row(3), QStringLiteral("[->]||"));
    }

    void aBlockWithDecimalCommasIsEnteredWithPoints() {
        paste("1,5\t1.234,5\n-0,25\t12");
        QCOMPARE(desktop_->row(1), QStringLiteral(" 1|1.5|1234.5"));
        QCOMPARE(desktop_->row(2), QStringLiteral(" 2|-0.25|12.0"));
    }

    void commasThatNothingDecidesAreAskedForOnceABlock() {
        const auto ask = [this](const char* button) {
            desktop_->expectBox(
                {QStringLiteral("¿Qué número es «1,234»?"), QStringLiteral("Pegar"),
                 QMessageBox::Question},
                [button] {
                    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                    auto* choice = box->findChild<QPushButton*>(QString::fromUtf8(button));
                    if (choice)
                        choice->click();
                });
            QGuiApplication::clipboard()->setText(QStringLiteral("1,234\t5,678\n"));
            QTest::keyClick(&desktop_->gridView(), Qt::Key_V, Qt::ControlModifier);
        };
        ask("cancelado");
        QCOMPARE(desktop_->row(1), QStringLiteral("[?]||"));
        ask("miles");
        QCOMPARE(desktop_->row(1), QStringLiteral(" 1|1234.0|5678.0"));
        ask("decimales");
        QCOMPARE(desktop_->row(2), QStringLiteral(" 2|1.234|5.678"));
    }

    void headingsAreLeftOutAndThatIsSaid() {
        QVERIFY(QToolTip::text().isEmpty());
        paste("Nivel\tCaudal\n1,5\t2\n");
        QCOMPARE(desktop_->row(1), QStringLiteral(" 1|1.5|2.0"));
        QCOMPARE(desktop_->grid().Rows(), 3L);
        QCOMPARE(QToolTip::text(), QStringLiteral("La primera fila no tiene números: se dejó "
                                                  "fuera como encabezado."));
    }

    void aBlockWithAWordIsRefusedWhole() {
        desktop_->expectBox({"No se pegó nada: el dato de la fila 3, columna 2 no es un número: "
                             "«abc»",
                             "Caudalera", information});
        paste("1\t2\n3\t4\n5\tabc\n");
        QCOMPARE(desktop_->grid().Rows(), 2L);
        QCOMPARE(desktop_->row(1), QStringLiteral("[?]||"));
    }

    void aBlockThatIsTooWideIsRefused() {
        desktop_->expectBox({"No se pegó nada: el bloque tiene 3 columnas y desde la celda actual "
                             "caben 2",
                             "Caudalera", information});
        paste("1\t2\t3\n");
        QCOMPARE(desktop_->row(1), QStringLiteral("[?]||"));
    }

    void aBlockThatIsTooWideForTheLastColumnIsRefused() {
        desktop_->clickCell(1, 2);
        desktop_->expectBox({"No se pegó nada: el bloque tiene 2 columnas y desde la celda actual "
                             "cabe 1",
                             "Caudalera", information});
        paste("1\t2\n");
        QCOMPARE(desktop_->row(1), QStringLiteral("[->]||"));
    }

    void aBlockOverDataReplacesItDownward() {
        desktop_->typeValues({"1", "2", "3", "4", "5", "6"});
        desktop_->clickCell(1, 2);
        paste("20\n40\n60\n");
        QCOMPARE(desktop_->row(1), QStringLiteral(" 1|1.0|20.0"));
        QCOMPARE(desktop_->row(2), QStringLiteral(" 2|3.0|40.0"));
        QCOMPARE(desktop_->row(3), QStringLiteral(" 3|5.0|60.0"));
        QCOMPARE(desktop_->grid().Rows(), 5L);
    }

    void aColumnThatWouldLeaveNewRowsIncompleteIsRefused() {
        desktop_->typeValues({"1", "2"});
        desktop_->expectBox({"No se pegó nada: cada fila nueva lleva 2 datos y las del bloque "
                             "tienen 1",
                             "Caudalera", information});
        paste("7\n8\n");
        QCOMPARE(desktop_->row(2), QStringLiteral("[->]||"));
    }

    void aBlockThatPassesTheLastRowIsRefusedBeforeItsFirst() {
        desktop_->expectBox({"No se pegó nada: con el bloque habría 32766 filas de datos y en la "
                             "cuadrícula caben 32765",
                             "Caudalera", information});
        paste(QStringLiteral("1\t2\n").repeated(32766));
        QCOMPARE(desktop_->grid().Rows(), 2L);
        QCOMPARE(desktop_->row(1), QStringLiteral("[?]||"));
        QVERIFY(!desktop_->program().ended());
    }

    void aBlockPastedIntoTheOpenBoxGoesToTheGrid() {
        desktop_->type("9");
        paste("1\t2\n3\t4\n");
        QCOMPARE(desktop_->row(1), QStringLiteral(" 1|1.0|2.0"));
        QCOMPARE(desktop_->row(2), QStringLiteral(" 2|3.0|4.0"));
    }

    void aSingleValuePastedIntoTheOpenBoxStaysThere() {
        desktop_->type("9");
        paste("5");
        QCOMPARE(QString::fromStdString(desktop_->control<TextBox>("txtt").text()),
                 QStringLiteral("95"));
    }

    void resultsAreCopiedWithTheirHeadingsAndEitherDecimalSign() {
        desktop_->typeValues({"1", "2", "2", "4", "3", "6.5"});
        desktop_->clickButton("bCalcular");
        auto& results = desktop_->widget<GridView>("grdecua");
        const auto choose = [&](const char* name) {
            results.setFocus();
            QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
            QApplication::sendEvent(results.viewport(), &event);
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            QVERIFY(menu);
            menu->findChild<QAction*>(QString::fromUtf8(name))->trigger();
            menu->close();
        };
        const auto copied = [&] {
            choose("copiarConEncabezados");
            return QGuiApplication::clipboard()->text();
        };
        auto& grid = desktop_->control<MSFlexGrid>("grdecua");
        desktop_->session.act([&] {
            desktop_->program().selectCell(grid, 1, 2);
            desktop_->program().act([&] { grid.setSelectionEnd(1, 3); });
        });
        const std::string r = grid.TextMatrix(1, 2);
        const std::string r2 = grid.TextMatrix(1, 3);
        const auto both = [&](char from, char to) {
            QString row = QString::fromStdString(r + "\t" + r2);
            return QStringLiteral("R\tR2\n") + row.replace(from, to);
        };
        QVERIFY(r.find('.') != std::string::npos);
        QCOMPARE(copied(), both('.', '.'));
        choose("decimalComa");
        QCOMPARE(copied(), both('.', ','));
        choose("decimalPunto");
        QCOMPARE(copied(), both('.', '.'));
    }

    void anEquationIsCopiedAsItStands() {
        desktop_->typeValues({"1", "2", "2", "4", "3", "6.5"});
        desktop_->clickButton("bCalcular");
        desktop_->session.copyDecimal = u',';
        auto& results = desktop_->widget<GridView>("grdecua");
        auto& grid = desktop_->control<MSFlexGrid>("grdecua");
        desktop_->session.act([&] { desktop_->program().selectCell(grid, 1, 1); });
        QCOMPARE(results.selectedText(), QString::fromStdString(grid.TextMatrix(1, 1)));
        QVERIFY(results.selectedText().contains(u'.'));
    }

    void resultsAreCopiedButNotPastedInto() {
        desktop_->typeValues({"1", "2", "2", "4", "3", "6.5"});
        desktop_->clickButton("bCalcular");
        auto& results = desktop_->widget<GridView>("grdecua");
        results.setFocus();
        const std::string before = desktop_->control<MSFlexGrid>("grdecua").TextMatrix(1, 0);
        desktop_->press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QString::fromStdString(before));
        QGuiApplication::clipboard()->setText("5");
        desktop_->press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(QString::fromStdString(desktop_->control<MSFlexGrid>("grdecua").TextMatrix(1, 0)),
                 QString::fromStdString(before));
    }

private:
    QMenu* openMenu() {
        const QPoint point = desktop_->centerOf(1, 1);
        QWidget* viewport = desktop_->gridView().viewport();
        QTest::mouseClick(viewport, Qt::RightButton, {}, point);
        QContextMenuEvent event(QContextMenuEvent::Mouse, point, viewport->mapToGlobal(point));
        QApplication::sendEvent(viewport, &event);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu)
            throw std::logic_error("no menu");
        return menu;
    }
    QAction* entry(const char* name) {
        QMenu* menu = openMenu();
        auto* action = menu->findChild<QAction*>(QString::fromUtf8(name));
        menu->close();
        return action;
    }
    void choose(const char* name) {
        QMenu* menu = openMenu();
        auto* action = menu->findChild<QAction*>(QString::fromUtf8(name));
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
    }
    void paste(const QString& text) {
        QGuiApplication::clipboard()->setText(text);
        desktop_->press(Qt::Key_V, Qt::ControlModifier);
    }

    std::unique_ptr<DesktopFixture> desktop_;
};

} // namespace caudalera

using caudalera::GridMenuTest;
QTEST_MAIN(GridMenuTest)
#include "GridMenuTest.moc"
