#include "desktop/windows/CalculatorView.h"
#include "shell/main/frmCalculadora.h"
#include "tests/desktop/DesktopFixture.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QWindow>

namespace caudalera {

/// The pocket calculator under real clicks and keys.
class CalculatorViewTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        desktop_ = std::make_unique<DesktopFixture>();
        desktop_->open("frmCalculadora");
    }
    void cleanup() {
        const QString boxes = desktop_->unexpectedBoxes();
        desktop_.reset();
        QVERIFY2(boxes.isEmpty(), qPrintable(boxes));
    }

    void clicksPressItsKeys() {
        click({"cmdNum(1)", "cmdNum(2)", "cmdDecimal", "cmdNum(5)", "cmdOp(2)"});
        QCOMPARE(shown(), QString());
        click({"cmdNum(2)", "cmdEquals"});
        QCOMPARE(shown(), QStringLiteral("25."));
        click({"cmdValue", "cmdOp(12)", "cmdMem(MS)", "cmdClear(C)", "cmdNum(9)", "cmdOp(5)"});
        QCOMPARE(shown(), QStringLiteral("3."));
        click({"cmdMem(MR)"});
        QCOMPARE(shown(), QStringLiteral("-25."));
    }

    void everyKeyIsOnTheScreenOnce() {
        int keys = 0;
        for (const Control* control : desktop_->window().controls()) {
            if (control->kind() != ControlKind::button && control->kind() != ControlKind::option)
                continue;
            ++keys;
            const auto found = desktop_->view().findChildren<QAbstractButton*>(
                QString::fromStdString(control->name()));
            QCOMPARE(found.size(), 1);
            QVERIFY(found.constFirst()->isVisible());
            QCOMPARE(found.constFirst()->text(), QString::fromStdString(control->caption));
            QCOMPARE(found.constFirst()->toolTip(), QString::fromStdString(control->toolTip));
        }
        QCOMPARE(keys, 44);
    }

    void digitsStandAsOnAKeyboardAndOperatorsAtTheirRight() {
        for (const auto& [lower, upper] : {std::pair("1", "4"),
                                           {"4", "7"},
                                           {"2", "5"},
                                           {"5", "8"},
                                           {"3", "6"},
                                           {"6", "9"},
                                           {"0", "1"}}) {
            QVERIFY(number(lower).top() > number(upper).bottom());
            QCOMPARE(number(lower).left(), number(upper).left());
        }
        for (const auto& [left, right] :
             {std::pair("7", "8"), {"8", "9"}, {"4", "5"}, {"5", "6"}, {"1", "2"}, {"2", "3"}}) {
            QVERIFY(number(left).right() < number(right).left());
            QCOMPARE(number(left).top(), number(right).top());
        }
        const char* const operators[] = {"cmdOp(1)", "cmdOp(2)", "cmdOp(3)", "cmdOp(4)",
                                         "cmdEquals"};
        for (const char* name : operators)
            QVERIFY(place(name).left() > number("9").right());
    }

    void theKeyboardWorksIt() {
        desktop_->type("1234567890");
        QCOMPARE(shown(), QStringLiteral("1234567890"));
        desktop_->press(Qt::Key_Escape);
        QCOMPARE(shown(), QStringLiteral("0."));
        desktop_->type("12,5*2=");
        QCOMPARE(shown(), QStringLiteral("25."));
        desktop_->type("/4+1.75-3");
        desktop_->press(Qt::Key_Return);
        QCOMPARE(shown(), QStringLiteral("5."));
        desktop_->type("78");
        desktop_->press(Qt::Key_Backspace);
        QCOMPARE(shown(), QStringLiteral("7"));
        desktop_->type("+9");
        desktop_->press(Qt::Key_Delete);
        QCOMPARE(shown(), QStringLiteral("7."));
    }

    void theNumericKeypadWorksItToo() {
        for (int digit = 0; digit <= 9; ++digit)
            desktop_->press(static_cast<Qt::Key>(Qt::Key_0 + digit), Qt::KeypadModifier);
        QCOMPARE(shown(), QStringLiteral("0123456789"));
        desktop_->press(Qt::Key_Escape);
        desktop_->press(Qt::Key_6, Qt::KeypadModifier);
        desktop_->press(Qt::Key_Period, Qt::KeypadModifier);
        desktop_->press(Qt::Key_5, Qt::KeypadModifier);
        desktop_->press(Qt::Key_Asterisk, Qt::KeypadModifier);
        desktop_->press(Qt::Key_2, Qt::KeypadModifier);
        desktop_->press(Qt::Key_Enter, Qt::KeypadModifier);
        QCOMPARE(shown(), QStringLiteral("13."));
        desktop_->press(Qt::Key_Comma, Qt::KeypadModifier);
        desktop_->press(Qt::Key_5, Qt::KeypadModifier);
        QCOMPARE(shown(), QStringLiteral(".5"));
    }

    void shortcutsAndLettersTypeNothing() {
        desktop_->type("7abc");
        desktop_->press(Qt::Key_8, Qt::AltModifier);
        desktop_->press(Qt::Key_8, Qt::ControlModifier);
        desktop_->press(Qt::Key_Up);
        desktop_->press(Qt::Key_F5);
        QCOMPARE(shown(), QStringLiteral("7"));
    }

    void aClickLeavesTheKeyboardToTheCalculator() {
        click({"cmdNum(7)", "cmdOp(4)"});
        desktop_->type("5");
        desktop_->press(Qt::Key_Return);
        QCOMPARE(shown(), QStringLiteral("12."));
        QTest::mouseClick(&desktop_->widget<QRadioButton>("OptRadian"), Qt::LeftButton, {}, {8, 8});
        QVERIFY(desktop_->control<Option>("OptRadian").checked());
        desktop_->type("9");
        QCOMPARE(shown(), QStringLiteral("9"));
    }

    void tabReachesTheKeysAndTheBlankPressesThem() {
        auto& key = desktop_->widget<QPushButton>("cmdNum(7)");
        for (int i = 0; i < 60 && !key.hasFocus(); ++i)
            desktop_->press(Qt::Key_Tab);
        QVERIFY(key.hasFocus());
        desktop_->press(Qt::Key_Space);
        desktop_->press(Qt::Key_Space);
        QCOMPARE(shown(), QStringLiteral("77"));
        desktop_->type("+3");
        desktop_->press(Qt::Key_Enter);
        QCOMPARE(shown(), QStringLiteral("80."));
    }

    void theMenuOfTheDisplayCopiesAndPastes() {
        desktop_->type("12.50");
        QMenu* menu = openMenu();
        QVERIFY(menu);
        QStringList words;
        for (const QAction* action : menu->actions())
            words.append(action->text());
        QCOMPARE(words, QStringList({"Copy", "Paste"}));
        choose("mnuCopy");
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("12.50"));
        QGuiApplication::clipboard()->setText(QStringLiteral("-3.5 m"));
        choose("mnuPaste");
        QCOMPARE(shown(), QStringLiteral("-3.5"));
    }

    void theMenuIsTheDisplaysAlone() {
        const QPoint below = desktop_->widget<QPushButton>("cmdNum(5)").geometry().center();
        QContextMenuEvent elsewhere(QContextMenuEvent::Mouse, below,
                                    desktop_->view().mapToGlobal(below));
        QApplication::sendEvent(&desktop_->view(), &elsewhere);
        QVERIFY(!menuOfDisplay());
        QContextMenuEvent byKey(QContextMenuEvent::Keyboard, below,
                                desktop_->view().mapToGlobal(below));
        QApplication::sendEvent(&desktop_->view(), &byKey);
        QVERIFY(menuOfDisplay());
        menuOfDisplay()->close();
    }

    void copyAndPasteHaveTheirKeys() {
        desktop_->type("12.5");
        desktop_->press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("12.5"));
        desktop_->press(Qt::Key_Escape);
        desktop_->press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(shown(), QStringLiteral("12.5"));
    }

    void aRefusalHasItsBox() {
        const DesktopFixture::Box box{"No se puede cumplir con su petición.\r\n"
                                      "Esta operación ha sido cancelada.",
                                      "Error en cálculo", QMessageBox::Critical};
        desktop_->expectBox(box);
        click({"cmdNum(5)", "cmdOp(1)", "cmdNum(0)", "cmdEquals"});
        QCOMPARE(shown(), QStringLiteral("0"));
        desktop_->open("frmCalculadora");
        desktop_->expectBox(box);
        desktop_->type("2");
        click({"cmdSci(sin-1)"});
        desktop_->open("frmCalculadora");
        desktop_->type("3");
        QCOMPARE(shown(), QStringLiteral("3"));
    }

    void memoryAndWhatWaitsShowAboveTheFigures() {
        desktop_->type("12");
        click({"cmdMem(MS)"});
        desktop_->type("+");
        QCOMPARE(desktop_->widget<QLabel>("lblMemoria").text(), QStringLiteral("M"));
        QCOMPARE(desktop_->widget<QLabel>("lblPendiente").text(), QStringLiteral("12. +"));
    }

    void figuresAreLargeAndAtTheRight() {
        desktop_->type("8");
        const QRect few = inkOfFigures();
        const int line = desktop_->view().fontMetrics().capHeight();
        QVERIFY(few.height() > 2 * line);
        QVERIFY(few.right() > figures().width() * 9 / 10 &&
                few.left() > figures().width() * 8 / 10);
        const QSize before = desktop_->view().size();
        desktop_->type("8888888888888888888888888");
        const QRect many = inkOfFigures();
        QVERIFY(many.height() < few.height());
        QCOMPARE(desktop_->view().size(), before);
        QCOMPARE(figures().text().size(), 26);
    }

    void itStandsBesideAndAboveWhatOpenedItAndBlocksNothing() {
        desktop_->session.act([&] { desktop_->program().close(desktop_->window()); });
        Window& sheet = desktop_->open("frmParamEsta");
        QWidget& sheetView = desktop_->view();
        sheetView.move(0, 0);
        sheetView.resize(sheetView.minimumSizeHint());
        desktop_->clickButton("bCalculadora");
        Window* calculator = desktop_->program().find("frmCalculadora");
        QVERIFY(calculator);
        QWidget* view = desktop_->session.viewOf(*calculator);
        QTRY_VERIFY(view->isActiveWindow());
        QVERIFY(!view->isModal());
        QCOMPARE(view->windowHandle()->transientParent(), sheetView.windowHandle());
        const QRect screen = view->screen()->availableGeometry();
        QVERIFY(screen.contains(view->frameGeometry()));
        // The screen is too narrow for both side by side, and has room below the other one.
        QVERIFY(sheetView.frameGeometry().right() + view->frameGeometry().width() > screen.right());
        QVERIFY(!sheetView.frameGeometry().intersects(view->frameGeometry()));

        desktop_->type("7");
        desktop_->open("frmParamEsta");
        QCOMPARE(&desktop_->window(), &sheet);
        // A window is active for the toolkit as long as one that stands above it is.
        QTRY_COMPARE(QApplication::activeWindow(), &sheetView);
        desktop_->typeValues({"1", "2"});
        QCOMPARE(desktop_->row(2), QStringLiteral(" 2|2.0"));
        QVERIFY(view->isVisible());
        QCOMPARE(calculator->find("lblDisplay")->caption, std::string("7"));
    }

    void oneInstanceServesAllWindows() {
        desktop_->type("12+");
        const Window* const calculator = &desktop_->window();
        QWidget* const view = &desktop_->view();
        const QPoint where = view->pos();
        for (const char* name : {"frmParamEsta", "frmPenman"}) {
            desktop_->open(name);
            QTRY_COMPARE(QApplication::activeWindow(), &desktop_->view());
            desktop_->clickButton("bCalculadora");
            QCOMPARE(desktop_->program().find("frmCalculadora"), calculator);
            QCOMPARE(desktop_->session.viewOf(*calculator), view);
            QTRY_VERIFY(view->isActiveWindow());
            QCOMPARE(view->windowHandle()->transientParent(), desktop_->view().windowHandle());
            QCOMPARE(view->pos(), where);
        }
        desktop_->open("frmPenman");
        desktop_->clickButton("bMenu");
        desktop_->open("frmCalculadora");
        desktop_->type("5=");
        QCOMPARE(shown(), QStringLiteral("17."));
    }

    void closingItLosesEverything() {
        desktop_->type("12");
        click({"cmdMem(MS)"});
        desktop_->view().close();
        QVERIFY(!desktop_->program().find("frmCalculadora"));
        desktop_->open("frmCalculadora");
        QCOMPARE(shown(), QStringLiteral("0."));
        click({"cmdMem(MR)"});
        QCOMPARE(shown(), QStringLiteral("0."));
    }

private:
    void click(const std::vector<const char*>& names) {
        for (const char* name : names)
            desktop_->clickButton(name);
    }
    FiguresLabel& figures() { return desktop_->widget<FiguresLabel>("lblDisplay"); }
    QString shown() { return figures().text(); }
    QRect place(const char* name) { return desktop_->widget<QPushButton>(name).geometry(); }
    QRect number(const char* digit) {
        return place((std::string("cmdNum(") + digit + ")").c_str());
    }
    QMenu* menuOfDisplay() {
        return desktop_->view().findChild<QMenu*>(QStringLiteral("menúDePantalla"));
    }
    /// A right click on the figures.
    QMenu* openMenu() {
        const QPoint point = figures().rect().center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, point, figures().mapToGlobal(point));
        QApplication::sendEvent(&figures(), &event);
        return menuOfDisplay();
    }
    void choose(const char* entry) {
        QMenu* menu = openMenu();
        menu->findChild<QAction*>(QString::fromUtf8(entry))->trigger();
        menu->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    /// What the figures leave on their ground.
    QRect inkOfFigures() {
        QImage image(figures().size(), QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        figures().render(&image, {}, {}, QWidget::RenderFlags());
        QRect ink;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qAlpha(image.pixel(x, y)) > 0)
                    ink |= QRect(x, y, 1, 1);
            }
        }
        return ink;
    }

    std::unique_ptr<DesktopFixture> desktop_;
};

} // namespace caudalera

using caudalera::CalculatorViewTest;
QTEST_MAIN(CalculatorViewTest)
#include "CalculatorViewTest.moc"
