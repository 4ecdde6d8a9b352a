#include "desktop/windows/WindowView.h"
#include "desktop/grid/GridView.h"
#include "tests/desktop/DesktopFixture.h"

#include <QClipboard>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTabBar>
#include <QTabWidget>

namespace caudalera {

namespace {

/// Asks every view for a new layout as soon as it has a child, as long work does that lets events
/// through while a view is being built.
class ImpatientLayout : public QObject {
public:
    ImpatientLayout() { QCoreApplication::instance()->installEventFilter(this); }
    int asked = 0;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::ChildAdded && qobject_cast<WindowView*>(watched)) {
            QEvent request(QEvent::LayoutRequest);
            QCoreApplication::sendEvent(watched, &request);
            ++asked;
        }
        return false;
    }
};

} // namespace

class WindowViewTest : public QObject {
    Q_OBJECT

private slots:
    void init() { desktop_ = std::make_unique<DesktopFixture>(); }
    void cleanup() {
        const QString boxes = desktop_->unexpectedBoxes();
        desktop_.reset();
        QVERIFY2(boxes.isEmpty(), qPrintable(boxes));
    }

    void aWindowShownAgainIsTheSameOneWithItsData() {
        Window& window = desktop_->open("frmParamEsta");
        desktop_->typeValues({"1", "2"});
        QWidget* view = &desktop_->view();
        desktop_->open("frmEjRegSimple");
        QCOMPARE(&desktop_->open("frmParamEsta"), &window);
        QCOMPARE(&desktop_->view(), view);
        QCOMPARE(desktop_->row(2), QStringLiteral(" 2|2.0"));
    }

    void eventsMayComeWhileAWindowIsBuilt() {
        desktop_->open("frmDisNormal");
        const QSize usual = desktop_->view().size();
        desktop_->clickButton("bMenu");
        const ImpatientLayout impatient;
        desktop_->open("frmDisNormal");
        QVERIFY(impatient.asked > 0);
        QCOMPARE(desktop_->view().size(), usual);
    }

    void bMenuClosesTheWindowAndShowsTheMainOne() {
        desktop_->open("frmParamEsta");
        const QPointer<QWidget> view = &desktop_->view();
        desktop_->clickButton("bMenu");
        QVERIFY(!desktop_->program().find("frmParamEsta"));
        QTRY_VERIFY(!view);
        QWidget* main = desktop_->session.viewOf(*desktop_->program().find("frmCaudalera"));
        QVERIFY(QTest::qWaitForWindowActive(main));
    }

    void aWindowClosedByItsFrameIsUnloaded() {
        desktop_->open("frmDisNormal");
        desktop_->typeValues({"1", "2"});
        const QPointer<QWidget> view = &desktop_->view();
        view->close();
        QVERIFY(!desktop_->program().find("frmDisNormal"));
        QTRY_VERIFY(!view);
        desktop_->open("frmDisNormal");
        QCOMPARE(desktop_->grid().Rows(), 2L);
    }

    void resultsStandInTheWindowRightAfterTheClick() {
        // Mean and L1 of 1, 2, 3, 4 are 2.5.
        desktop_->open("frmParamEsta");
        desktop_->typeValues({"1", "2", "3", "4"});
        desktop_->clickButton("bCalcular");
        QCOMPARE(desktop_->widget<QLineEdit>("txtL1").text(), QStringLiteral("2.5000"));
        const auto* cells = desktop_->widget<GridView>("grdParam").model();
        QCOMPARE(cells->index(0, 1).data().toString(), QStringLiteral("2.500"));
    }

    void hiddenControlsAppearWhenTheModelShowsThem() {
        desktop_->open("frmParamEsta");
        desktop_->typeValues({"3", "1"});
        auto& sorted = desktop_->widget<GridView>("grdorden");
        QVERIFY(!sorted.isVisible());
        desktop_->clickButton("bOrdenar");
        QVERIFY(sorted.isVisible());
        QVERIFY(desktop_->widget<QLabel>("lblOrdenado").isVisible());
    }

    void aMessageShowsItsTextTitleAndIcon() {
        desktop_->open("frmParamEsta");
        desktop_->expectBox({"Para el cálculo de los parámetros se requieren por lo menos dos "
                             "datos",
                             "Error", QMessageBox::Critical});
        desktop_->clickButton("bCalcular");
    }

    void theViewIsInLineWithTheModelBeforeAMessageOpens() {
        desktop_->open("frmParamEsta");
        QString seen;
        desktop_->expectBox({"Mensaje", "Caudalera", QMessageBox::NoIcon},
                            [this, &seen] { seen = desktop_->widget<QLineEdit>("txtL1").text(); });
        desktop_->session.act([this] {
            desktop_->program().act([this] {
                desktop_->control<TextBox>("txtL1").setText("7");
                desktop_->session.platform().showMessage({"Mensaje", "", Icon::none});
                desktop_->control<TextBox>("txtL1").setText("8");
            });
        });
        QCOMPARE(seen, QStringLiteral("7"));
        QCOMPARE(desktop_->widget<QLineEdit>("txtL1").text(), QStringLiteral("8"));
    }

    void anOptionRunsItsEventOnEveryClick() {
        desktop_->open("frmEjRegSimple");
        const DesktopFixture::Box box{
            "Antes de hallar valor de Y, efectuar los cálculos de correlación", "Caudalera",
            QMessageBox::NoIcon};
        auto& option = desktop_->widget<QRadioButton>("optPotencial");
        QVERIFY(!option.isChecked());
        desktop_->expectBox(box);
        clickOption("optPotencial");
        QVERIFY(option.isChecked());
        desktop_->expectBox(box);
        clickOption("optPotencial");
        QVERIFY(option.isChecked());
    }

    void aGroupMayHaveNoOptionSetAndShowsWhatTheModelSets() {
        desktop_->open("frmDisNormal");
        auto& level = desktop_->control<Option>("opt005");
        QVERIFY(desktop_->widget<QRadioButton>("opt005").isChecked());
        clickOption("opt010");
        QVERIFY(!desktop_->widget<QRadioButton>("opt005").isChecked());
        QVERIFY(desktop_->control<Option>("opt010").checked());
        desktop_->session.act([&] { level.preset(true); });
        QVERIFY(desktop_->widget<QRadioButton>("opt005").isChecked());
        desktop_->session.act([&] { level.preset(false); });
        for (const char* name : {"opt020", "opt010", "opt005", "opt001"})
            QVERIFY(!desktop_->widget<QRadioButton>(name).isChecked());
    }

    void arrowsMoveAmongTheOptionsOfAGroup() {
        desktop_->open("frmDisNormal");
        desktop_->widget<QRadioButton>("opt005").setFocus();
        desktop_->press(Qt::Key_Right);
        QVERIFY(desktop_->control<Option>("opt001").checked());
        QCOMPARE(QApplication::focusWidget(), &desktop_->widget<QRadioButton>("opt001"));
    }

    void theModelsFocusRequestsReachTheField() {
        desktop_->open("frmEjRegSimple");
        desktop_->typeValues({"1", "2", "2", "4", "3", "6.5"});
        desktop_->clickButton("bCalcular");
        desktop_->expectBox(
            {"Ingresar un valor adecuado para X", "Caudalera", QMessageBox::NoIcon});
        clickOption("optLineal");
        QCOMPARE(desktop_->view().focusWidget(), &desktop_->widget<QLineEdit>("txtvxx"));
    }

    void aWindowGivesTheKeyboardToTheFieldThatItsModelNames() {
        desktop_->open("frmPenman");
        QCOMPARE(QApplication::focusWidget(), &desktop_->widget<QLineEdit>("txtLatitud"));
    }

    void theUsersFocusReachesTheModel() {
        desktop_->open("frmPenman");
        desktop_->press(Qt::Key_Tab);
        QCOMPARE(desktop_->window().focus(), desktop_->window().find("cobNS"));
        QTest::mouseClick(&desktop_->widget<QLineEdit>("txtT"), Qt::LeftButton);
        QCOMPARE(desktop_->window().focus(), desktop_->window().find("txtT"));
    }

    void tabGoesDownTheColumnsAndToTheCommandsLast() {
        desktop_->open("frmPenman");
        QStringList visited;
        for (int i = 0; i < 60; ++i) {
            const QString name = QApplication::focusWidget()->objectName();
            if (visited.contains(name))
                break;
            visited.append(name);
            desktop_->press(Qt::Key_Tab);
        }
        const QStringList inputs = {"txtLatitud", "cobNS", "txth",  "cobMes",   "txtT", "txtHRmed",
                                    "txtHRmax",   "txtUz", "txtHz", "txtRVdVn", "txtnp"};
        QCOMPARE(visited.mid(0, inputs.size()), inputs);
        // Results are not gone through.
        QVERIFY(!visited.contains("txtRa") && !visited.contains("txtETo"));
        const QStringList last = visited.mid(visited.size() - 6);
        QCOMPARE(last, QStringList({"bCalcular", "bLimpiar", "bImprimir", "bReporte",
                                    "bCalculadora", "bMenu"}));
    }

    void typingAndPastingPassTheFieldsFilter() {
        desktop_->open("frmQmaxRacional");
        auto& field = desktop_->widget<QLineEdit>("txtaq");
        field.setFocus();
        QTest::keyClicks(&field, "1a2.5.");
        QCOMPARE(field.text(), QStringLiteral("12.5"));
        QCOMPARE(text("txtaq"), QStringLiteral("12.5"));
        desktop_->press(Qt::Key_Backspace);
        QCOMPARE(text("txtaq"), QStringLiteral("12."));
        QGuiApplication::clipboard()->setText("abc");
        desktop_->press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(text("txtaq"), QStringLiteral("12."));
        QCOMPARE(field.text(), QStringLiteral("12."));
    }

    void enterInAFieldRunsItsEvent() {
        desktop_->open("frmQmaxRacional");
        QCOMPARE(desktop_->window().focus(), desktop_->window().find("txtcq"));
        desktop_->type("0.5");
        desktop_->press(Qt::Key_Return);
        QCOMPARE(QApplication::focusWidget(), &desktop_->widget<QLineEdit>("txtaq"));
    }

    void resultFieldsCanBeReadAndCopiedButNotTypedInto() {
        desktop_->open("frmPenman");
        auto& field = desktop_->widget<QLineEdit>("txtETo");
        field.setFocus();
        QTest::keyClicks(&field, "5");
        QVERIFY(text("txtETo").isEmpty());
        QVERIFY(field.isReadOnly());
        QCOMPARE(QApplication::focusWidget(), &field);
    }

    void aListTakesAnItemAndAlsoTypedText() {
        desktop_->open("frmPenman");
        auto& list = desktop_->widget<QComboBox>("cobMes");
        list.setFocus();
        desktop_->press(Qt::Key_Down);
        QCOMPARE(listText("cobMes"), QStringLiteral("Febrero"));
        list.lineEdit()->selectAll();
        QTest::keyClicks(&list, "Mayx");
        QCOMPARE(listText("cobMes"), QStringLiteral("Mayx"));
        QCOMPARE(list.currentText(), QStringLiteral("Mayx"));
    }

    void whatEqualsAnItemButForCaseAndAccentsBecomesItWhenTheListIsLeft() {
        desktop_->open("frmPenman");
        auto& list = desktop_->widget<QComboBox>("cobMes");
        const auto type = [&](const QString& text) {
            list.setFocus();
            list.lineEdit()->selectAll();
            for (const QChar letter : text) {
                QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, letter);
                QApplication::sendEvent(&list, &key);
            }
        };
        type("  márzo ");
        QCOMPARE(listText("cobMes"), QStringLiteral("  márzo "));
        desktop_->press(Qt::Key_Tab);
        QCOMPARE(listText("cobMes"), QStringLiteral("Marzo"));
        QCOMPARE(list.currentText(), QStringLiteral("Marzo"));
        QVERIFY(QApplication::focusWidget() != &list);
        type("ABRIL");
        desktop_->press(Qt::Key_Return);
        QCOMPARE(listText("cobMes"), QStringLiteral("Abril"));
        type("mayo");
        QTest::mouseClick(&desktop_->widget<QLineEdit>("txtLatitud"), Qt::LeftButton);
        QCOMPARE(listText("cobMes"), QStringLiteral("Mayo"));
        QCOMPARE(QApplication::focusWidget(), &desktop_->widget<QLineEdit>("txtLatitud"));
        QCOMPARE(desktop_->window().focus(), &desktop_->control<TextBox>("txtLatitud"));
        // An access key leaves it, too, before its command runs.
        type("junio");
        QString listWhenCleared;
        desktop_->control<Button>("bLimpiar").onClick = [&] {
            listWhenCleared = listText("cobMes");
        };
        QTest::keyClick(desktop_->view().windowHandle(), Qt::Key_L, Qt::AltModifier);
        QTRY_COMPARE(listWhenCleared, QStringLiteral("Junio"));
        QCOMPARE(QApplication::focusWidget(), &desktop_->widget<QWidget>("bLimpiar"));
        // No other text is changed.
        type("may");
        desktop_->press(Qt::Key_Tab);
        QCOMPARE(listText("cobMes"), QStringLiteral("may"));
    }

    void aVerdictHasASignThatTellsItsOutcomes() {
        desktop_->open("frmDisNormal");
        auto& verdict = desktop_->widget<QLabel>("lblmensaje");
        auto& model = desktop_->control<Label>("lblmensaje");
        const auto shown = [&](Label::Mark mark) {
            desktop_->session.act([&] { model.mark = mark; });
            return verdict.grab().toImage();
        };
        const QImage none = shown(Label::Mark::none);
        QVERIFY(verdict.accessibleDescription().isEmpty());
        const QImage yes = shown(Label::Mark::yes);
        QCOMPARE(verdict.accessibleDescription(), QStringLiteral("Se ajusta"));
        const QImage no = shown(Label::Mark::no);
        QCOMPARE(verdict.accessibleDescription(), QStringLiteral("No se ajusta"));
        QVERIFY(none != yes && none != no);
        // Also where colours are not told apart.
        const auto grey = [](const QImage& image) {
            return image.convertToFormat(QImage::Format_Grayscale8);
        };
        QVERIFY(grey(yes) != grey(no));
        QCOMPARE(shown(Label::Mark::none), none);
        desktop_->typeValues({"1", "2", "3", "4"});
        desktop_->clickButton("bCalcular");
        QCOMPARE(verdict.accessibleDescription(), QStringLiteral("Se ajusta"));
    }

    void aTabComesForwardInModelAndView() {
        desktop_->open("frmQmaxRacional");
        auto& tabs = desktop_->widget<QTabWidget>("SSTab1");
        QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(1).center());
        QCOMPARE(desktop_->control<Tabs>("SSTab1").tab(), 1);
        QVERIFY(desktop_->widget<GridView>("grdC").isVisible());
        QCOMPARE(QApplication::focusWidget(), &desktop_->widget<QLineEdit>("txtac"));
    }

    void accessKeysPressTheirButtons() {
        desktop_->open("frmParamEsta");
        desktop_->typeValues({"1", "2", "3", "4"});
        desktop_->press(Qt::Key_U, Qt::AltModifier);
        QTRY_COMPARE(desktop_->widget<QLineEdit>("txtL1").text(), QStringLiteral("2.5000"));
    }

    void anAccessKeyThatNothingHasTypesNothing() {
        desktop_->open("frmPenman");
        auto& field = desktop_->widget<QLineEdit>("txth");
        field.setFocus();
        desktop_->type("5");
        QTest::keyEvent(QTest::Click, &field, 'z', Qt::AltModifier);
        QCOMPARE(text("txth"), QStringLiteral("5"));
        QCOMPARE(field.text(), QStringLiteral("5"));
    }

    void enterOnAButtonPressesIt() {
        desktop_->open("frmParamEsta");
        desktop_->typeValues({"1", "2", "3", "4"});
        desktop_->widget<QPushButton>("bCalcular").setFocus();
        desktop_->press(Qt::Key_Return);
        QCOMPARE(desktop_->widget<QLineEdit>("txtL1").text(), QStringLiteral("2.5000"));
    }

    void aFatalFailureShowsItsBoxAndEndsTheProgram() {
        desktop_->open("frmParamEsta");
        desktop_->session.act([this] { desktop_->grid().setRows(503); });
        QSignalSpy ended(&desktop_->session, &Session::ended);
        desktop_->expectBox({"Error '9' en tiempo de ejecución:\n\nEl subíndice está fuera del "
                             "intervalo",
                             "Caudalera", QMessageBox::Critical});
        desktop_->clickButton("bCalcular");
        QCOMPARE(ended.size(), 1);
        QCOMPARE(ended.constFirst().constFirst().toInt(), 1);
    }

private:
    void clickOption(const char* name) {
        auto& option = desktop_->widget<QRadioButton>(name);
        QTest::mouseClick(&option, Qt::LeftButton, {}, QPoint(8, option.height() / 2));
    }
    QString text(const char* name) {
        return QString::fromStdString(desktop_->control<TextBox>(name).text());
    }
    QString listText(const char* name) {
        return QString::fromStdString(desktop_->control<List>(name).text());
    }

    std::unique_ptr<DesktopFixture> desktop_;
};

} // namespace caudalera

using caudalera::WindowViewTest;
QTEST_MAIN(WindowViewTest)
#include "WindowViewTest.moc"
