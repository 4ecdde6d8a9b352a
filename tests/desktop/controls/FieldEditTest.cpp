#include "tests/desktop/DesktopFixture.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QToolTip>

namespace caudalera {

/// Fields under a person's hands: `txtaq` takes digits and one point alone, `txtt` and `txth` take
/// any text.
class FieldEditTest : public QObject {
    Q_OBJECT

private slots:
    void init() { desktop_ = std::make_unique<DesktopFixture>(); }
    void cleanup() {
        const QString boxes = desktop_->unexpectedBoxes();
        desktop_.reset();
        QVERIFY2(boxes.isEmpty(), qPrintable(boxes));
    }

    void keysEditWhereTheCaretIs() {
        use("frmPenman", "txth");
        desktop_->type("1125");
        desktop_->press(Qt::Key_Left);
        desktop_->press(Qt::Key_Left);
        desktop_->type("1");
        QCOMPARE(shown(), QStringLiteral("11125"));
        QCOMPARE(field().cursorPosition(), 3);
        desktop_->press(Qt::Key_Backspace);
        desktop_->press(Qt::Key_Delete);
        QCOMPARE(shown(), QStringLiteral("115"));
        QCOMPARE(field().cursorPosition(), 2);
        desktop_->press(Qt::Key_Home, Qt::ShiftModifier);
        desktop_->type("9");
        QCOMPARE(shown(), QStringLiteral("95"));
        QCOMPARE(field().cursorPosition(), 1);
        QCOMPARE(box().selStart(), std::size_t{1});
    }

    void charactersOfTwoUnitsAreOneForTheModel() {
        use("frmPenman", "txth");
        commit(QStringLiteral("a😀😁"));
        desktop_->press(Qt::Key_Backspace);
        QCOMPARE(shown(), QStringLiteral("a😀"));
        QCOMPARE(box().selStart(), std::size_t{2});
        commit(QStringLiteral("😁"));
        desktop_->press(Qt::Key_Left);
        desktop_->press(Qt::Key_Left);
        desktop_->press(Qt::Key_Delete);
        QCOMPARE(shown(), QStringLiteral("a😁"));
        QCOMPARE(box().selStart(), std::size_t{1});
    }

    void whatIsTypedAndPastedCanBeUndoneAndDoneAgain() {
        use("frmPenman", "txth");
        desktop_->type("12");
        paste("34");
        desktop_->press(Qt::Key_Backspace);
        QCOMPARE(shown(), QStringLiteral("123"));
        for (const char* step : {"1234", "12", ""}) {
            desktop_->press(Qt::Key_Z, Qt::ControlModifier);
            QCOMPARE(shown(), QString::fromUtf8(step));
        }
        for (const char* step : {"12", "1234", "123"}) {
            desktop_->press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
            QCOMPARE(shown(), QString::fromUtf8(step));
        }
        paste("4");
        paste("56");
        desktop_->type("7");
        desktop_->press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(shown(), QStringLiteral("123456"));
    }

    void cuttingAndTheOtherKeysOfTheWidgetReachTheModel() {
        use("frmQmaxRacional", "txtaq");
        desktop_->type("12.5");
        desktop_->press(Qt::Key_Left, Qt::ShiftModifier);
        desktop_->press(Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("5"));
        QCOMPARE(shown(), QStringLiteral("12."));
        desktop_->press(Qt::Key_Backspace, Qt::ControlModifier);
        QCOMPARE(shown(), QStringLiteral("12"));
        desktop_->press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(shown(), QStringLiteral("12."));
    }

    void aNumberFieldTakesAPasteWholeOrNotAtAll_data() {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("pasted");
        QTest::addColumn<QString>("after");
        const auto row = [](const char* before, const char* pasted, const char* after) {
            QTest::addRow("%s + %s", before, QByteArray(pasted).trimmed().constData())
                << QString::fromUtf8(before) << QString::fromUtf8(pasted)
                << QString::fromUtf8(after);
        };
        row("", "12.5", "12.5");
        row("", "1.2.3", "");
        row("1", "2.3.4", "1");
        row("1.5", "2.5", "1.5");
        row("1", "2.5", "12.5");
        row("7", "abc", "7");
        row("7", "-5", "7");
        row("", "0,45", "0.45");
        row("", "1.234,5", "1234.5");
        row("", "1,5\r\n", "1.5");
        row("3", ",5", "3.5");
    }
    void aNumberFieldTakesAPasteWholeOrNotAtAll() {
        QFETCH(QString, before);
        QFETCH(QString, pasted);
        QFETCH(QString, after);
        use("frmQmaxRacional", "txtaq");
        desktop_->type(before);
        paste(pasted);
        QCOMPARE(shown(), after);
    }

    void aPasteThatANumberFieldRefusesSaysSo() {
        use("frmQmaxRacional", "txtaq");
        paste("12.5");
        QVERIFY(!QToolTip::isVisible());
        paste("abc");
        QCOMPARE(shown(), QStringLiteral("12.5"));
        QCOMPARE(QToolTip::text(), QStringLiteral("No se pegó nada: «abc» no es un número"));
        QToolTip::hideText();
    }

    void aNumberFieldTakesAnInputMethodsTextWholeOrNotAtAll() {
        use("frmQmaxRacional", "txtaq");
        for (const char* refused : {"0,45", "1.2.3", "a1"}) {
            commit(QString::fromUtf8(refused));
            QCOMPARE(shown(), QString());
        }
        commit(QStringLiteral("0.45"));
        QCOMPARE(shown(), QStringLiteral("0.45"));
        commit(QStringLiteral("1.5"));
        QCOMPARE(shown(), QStringLiteral("0.45"));
    }

    void whatAnInputMethodComposesGivesWayToWhatItCommits() {
        use("frmPenman", "txth");
        desktop_->type("12");
        QInputMethodEvent composing(QStringLiteral("n~"), {});
        QApplication::sendEvent(&field(), &composing);
        QCOMPARE(shown(), QStringLiteral("12"));
        commit(QStringLiteral("ñ"));
        QCOMPARE(shown(), QStringLiteral("12ñ"));
        QCOMPARE(field().displayText(), QStringLiteral("12ñ"));
        QCOMPARE(field().cursorPosition(), 3);
        QInputMethodEvent correcting;
        correcting.setCommitString(QStringLiteral("n"), -2, 2);
        QApplication::sendEvent(&field(), &correcting);
        QCOMPARE(shown(), QStringLiteral("1n"));
    }

    void aDroppedTextComesInAsAPastedOne() {
        use("frmQmaxRacional", "txtaq");
        drop(QStringLiteral("1.2.3"));
        QCOMPARE(shown(), QString());
        drop(QStringLiteral("0,45"));
        QCOMPARE(shown(), QStringLiteral("0.45"));
    }

    void theFieldsOwnMenuPastesAsTheKeysDo() {
        use("frmQmaxRacional", "txtaq");
        QGuiApplication::clipboard()->setText(QStringLiteral("0,45"));
        choose("pegar");
        QCOMPARE(shown(), QStringLiteral("0.45"));
        choose("pegar");
        QCOMPARE(shown(), QStringLiteral("0.45"));
    }

    void aNumberPastedIntoAnyFieldIsReadAndAnyOtherTextIsNot() {
        use("frmPenman", "txth");
        paste("1,5 m");
        QCOMPARE(shown(), QStringLiteral("1,5 m"));
        field().selectAll();
        paste("1,5");
        QCOMPARE(shown(), QStringLiteral("1.5"));
        field().selectAll();
        paste("12,345.5");
        QCOMPARE(shown(), QStringLiteral("12345.5"));
    }

    void aCommaThatNothingDecidesIsAskedFor() {
        use("frmPenman", "txth");
        const auto ask = [this](const char* button) {
            desktop_->expectBox(
                {QStringLiteral("¿Qué número es «1,234»?"), QStringLiteral("Pegar"),
                 QMessageBox::Question},
                [button] {
                    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                    box->findChild<QPushButton*>(QString::fromUtf8(button))->click();
                });
            field().selectAll();
            pasteIntoField(QStringLiteral("1,234"));
        };
        ask("decimales");
        QCOMPARE(shown(), QStringLiteral("1.234"));
        ask("miles");
        QCOMPARE(shown(), QStringLiteral("1234"));
        desktop_->expectBox({QStringLiteral("¿Qué número es «9,876»?"), QStringLiteral("Pegar"),
                             QMessageBox::Question});
        field().selectAll();
        pasteIntoField(QStringLiteral("9,876"));
        QCOMPARE(shown(), QStringLiteral("1234"));
    }

    void aRefusedCommaSaysThatThePointIsTheDecimalSign() {
        use("frmQmaxRacional", "txtaq");
        desktop_->type("1");
        QVERIFY(QToolTip::text().isEmpty());
        desktop_->type(",");
        QCOMPARE(shown(), QStringLiteral("1"));
        QCOMPARE(QToolTip::text(), QStringLiteral("El separador decimal es el punto"));
    }

    void aCommaThatAFieldTakesSaysNothing() {
        QToolTip::hideText();
        use("frmPenman", "txth");
        desktop_->type("1,5");
        QCOMPARE(shown(), QStringLiteral("1,5"));
        QTRY_VERIFY(QToolTip::text().isEmpty());
    }

    void theDecimalKeyOfTheNumberPadTypesThePoint() {
        use("frmQmaxRacional", "txtaq");
        desktop_->type("1");
        QTest::keyClick(&field(), Qt::Key_Comma, Qt::KeypadModifier);
        desktop_->type("5");
        QCOMPARE(shown(), QStringLiteral("1.5"));
        desktop_->open("frmParamEsta");
        desktop_->type("2");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Comma, Qt::KeypadModifier);
        desktop_->type("5");
        desktop_->press(Qt::Key_Return);
        QCOMPARE(desktop_->row(1), QStringLiteral(" 1|2.5"));
    }

    void aNumberPastedIntoTheOpenEditBoxKeepsItsDecimals() {
        desktop_->open("frmParamEsta");
        desktop_->press(Qt::Key_Space);
        paste("1,5");
        desktop_->press(Qt::Key_Return);
        QCOMPARE(desktop_->row(1), QStringLiteral(" 1|1.5"));
        desktop_->press(Qt::Key_Space);
        paste("-1.234,25\n");
        desktop_->press(Qt::Key_Return);
        QCOMPARE(desktop_->row(2), QStringLiteral(" 2|-1234.25"));
        desktop_->press(Qt::Key_Space);
        paste("1,5 m");
        desktop_->press(Qt::Key_Return);
        QCOMPARE(desktop_->row(3), QStringLiteral(" 3|1.0"));
    }

    void aTextOfAnyLengthIsTaken() {
        use("frmPenman", "txth");
        const QString longer(40000, u'7');
        paste(longer);
        QCOMPARE(shown(), longer);
        desktop_->type("8");
        QCOMPARE(shown(), longer + u'8');
    }

private:
    void use(const char* window, const char* name) {
        desktop_->open(window);
        field_ = &desktop_->widget<QLineEdit>(name);
        box_ = &desktop_->control<TextBox>(name);
        field_->setFocus();
    }
    QLineEdit& field() { return *field_; }
    TextBox& box() { return *box_; }
    /// Text of the widget, if the model's is the same and so are their carets.
    QString shown() {
        const QString text = field().text();
        const auto start =
            field().hasSelectedText() ? field().selectionStart() : field().cursorPosition();
        if (text != QString::fromStdString(box().text()))
            return QStringLiteral("model: ") + QString::fromStdString(box().text());
        if (text.left(start).toUcs4().size() != static_cast<qsizetype>(box().selStart()))
            return QStringLiteral("model's caret: %1").arg(box().selStart());
        return text;
    }
    static void paste(const QString& text) {
        QGuiApplication::clipboard()->setText(text);
        DesktopFixture::press(Qt::Key_V, Qt::ControlModifier);
    }
    /// Also while no window has the keyboard, as it is right behind a box.
    void pasteIntoField(const QString& text) {
        QGuiApplication::clipboard()->setText(text);
        QTest::keyClick(&field(), Qt::Key_V, Qt::ControlModifier);
    }
    void commit(const QString& text) {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(&field(), &event);
    }
    void drop(const QString& text) {
        QMimeData data;
        data.setText(text);
        // Only what was entered can be dropped upon.
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&field(), &enter);
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&field(), &event);
    }
    void choose(const char* entry) {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, field().mapToGlobal(QPoint()));
        QApplication::sendEvent(&field(), &event);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu)
            throw std::logic_error("no menu");
        auto* action = menu->findChild<QAction*>(QString::fromUtf8(entry));
        if (!action)
            throw std::logic_error("no such entry");
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
    }

    std::unique_ptr<DesktopFixture> desktop_;
    QLineEdit* field_ = nullptr;
    TextBox* box_ = nullptr;
};

} // namespace caudalera

using caudalera::FieldEditTest;
QTEST_MAIN(FieldEditTest)
#include "FieldEditTest.moc"
