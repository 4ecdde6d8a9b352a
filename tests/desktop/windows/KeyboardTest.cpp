#include "desktop/grid/GridView.h"
#include "desktop/style/FocusRing.h"
#include "desktop/style/Style.h"
#include "tests/desktop/DesktopFixture.h"

#include <QClipboard>
#include <QComboBox>
#include <QFocusFrame>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTabBar>
#include <QTabWidget>

namespace caudalera {

/// What can be done without a mouse, and how it is seen where the keyboard is.
class KeyboardTest : public QObject {
    Q_OBJECT

private slots:
    void init() { desktop_ = std::make_unique<DesktopFixture>(); }
    void cleanup() {
        const QString boxes = desktop_->unexpectedBoxes();
        desktop_.reset();
        QVERIFY2(boxes.isEmpty(), qPrintable(boxes));
    }

    void aGroupOfOptionsIsOneStop() {
        desktop_->open("frmDisNormal");
        QStringList visited = stops();
        QCOMPARE(visited.filter(QRegularExpression("^opt0")), QStringList("opt005"));
        QCOMPARE(visited.filter(QRegularExpression("^opt[OM]")).size(), 1);
        // The one that is set, by whatever hand.
        desktop_->widget<QRadioButton>("opt005").setFocus();
        desktop_->press(Qt::Key_Right);
        QCOMPARE(stops().filter(QRegularExpression("^opt0")), QStringList("opt001"));
        desktop_->session.act([&] { desktop_->control<Option>("opt020").preset(true); });
        desktop_->gridView().setFocus();
        QCOMPARE(stops().filter(QRegularExpression("^opt0")), QStringList("opt020"));
    }

    void aGroupWithNoneSetIsEnteredAtItsFirst() {
        desktop_->open("frmEjRegSimple");
        desktop_->typeValues({"1"});
        QCOMPARE(stops().filter(QRegularExpression("^opt")), QStringList("optLineal"));
        desktop_->session.act([&] { desktop_->control<Option>("optLineal").enabled = false; });
        QCOMPARE(stops().filter(QRegularExpression("^opt")), QStringList("optExponencial"));
    }

    void resultsAreNoStopAndCanBeClickedAndCopied() {
        desktop_->open("frmPenman");
        for (const QString& name : stops()) {
            const auto* box = dynamic_cast<TextBox*>(desktop_->window().find(name.toStdString()));
            QVERIFY2(!box || !box->result, qPrintable(name));
        }
        auto& field = desktop_->widget<QLineEdit>("txtETo");
        desktop_->session.act([&] { desktop_->control<TextBox>("txtETo").setText("4.5"); });
        QTest::mouseDClick(&field, Qt::LeftButton);
        QVERIFY(field.hasFocus());
        desktop_->press(Qt::Key_A, Qt::ControlModifier);
        desktop_->press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("4.5"));
    }

    void enterPressesTheCommandOfAField() {
        desktop_->open("frmDisNormal");
        desktop_->typeValues({"10", "20", "30", "40"});
        desktop_->clickButton("bCalcular");
        auto& period = desktop_->widget<QLineEdit>("txtxt");
        period.setFocus();
        desktop_->type("2");
        desktop_->press(Qt::Key_Return);
        // The median of a normal distribution is its mean, (10 + 20 + 30 + 40) / 4.
        QCOMPARE(desktop_->widget<QLineEdit>("txtxq").text().toDouble(), 25.0);
        QVERIFY(period.hasFocus());
        QCOMPARE(desktop_->window().focus(), &desktop_->control<TextBox>("txtxt"));
        period.clear();
        auto& flow = desktop_->widget<QLineEdit>("txtxq");
        flow.setFocus();
        desktop_->press(Qt::Key_Enter);
        QCOMPARE(desktop_->widget<QLineEdit>("txtxt").text().toDouble(), 2.0);
    }

    void whatAWindowMakesOfEnterComesFirst() {
        desktop_->open("frmEjRegSimple");
        desktop_->typeValues({"1", "2", "2", "4", "3", "6.5"});
        desktop_->clickButton("bCalcular");
        auto& box = desktop_->control<TextBox>("txtvxx");
        box.command = &desktop_->control<Button>("bLimpiarDatos");
        desktop_->widget<QLineEdit>("txtvxx").setFocus();
        desktop_->type("2");
        desktop_->press(Qt::Key_Return);
        QCOMPARE(box.text(), std::string("2"));
        QVERIFY(desktop_->control<Option>("optLineal").checked());
    }

    void aFieldsCommandStandsBesideIt() {
        int fields = 0;
        for (const WindowEntry& entry : ventanas()) {
            desktop_.reset();
            desktop_ = std::make_unique<DesktopFixture>();
            Window& window = desktop_->open(std::string(entry.name));
            for (Control* control : window.controls()) {
                const auto* box = dynamic_cast<TextBox*>(control);
                if (!box || !box->command)
                    continue;
                ++fields;
                QVERIFY(!box->onEnter);
                const auto& field = desktop_->widget<QWidget>(box->name().c_str());
                const auto& button = desktop_->widget<QWidget>(box->command->name().c_str());
                QCOMPARE(field.parentWidget(), button.parentWidget());
            }
        }
        QVERIFY(fields >= 20);
    }

    void escapeClosesABoxByItsOnlyCommand() {
        desktop_->open("frmacerc");
        desktop_->press(Qt::Key_Escape);
        QVERIFY(!desktop_->program().find("frmacerc"));
        QVERIFY(desktop_->program().find("frmCaudalera")->visible);
    }

    void escapeClosesNothingElse() {
        desktop_->open("frmParamEsta");
        desktop_->widget<QPushButton>("bCalcular").setFocus();
        desktop_->press(Qt::Key_Escape);
        QVERIFY(desktop_->program().find("frmParamEsta"));
    }

    void theTabOfTheFocusComesForwardWithoutItsEvent() {
        desktop_->open("frmQmaxRacional");
        auto& model = desktop_->control<Tabs>("SSTab1");
        auto& tabs = desktop_->widget<QTabWidget>("SSTab1");
        int chosen = 0;
        const auto event = model.onClick;
        model.onClick = [&] {
            ++chosen;
            event();
        };
        desktop_->session.act([&] {
            desktop_->program().act(
                [&] { desktop_->window().setFocus(desktop_->control<TextBox>("txtac")); });
        });
        QCOMPARE(tabs.currentIndex(), 1);
        QCOMPARE(model.tab(), 1);
        QCOMPARE(chosen, 0);
        QCOMPARE(QApplication::focusWidget(), &desktop_->widget<QLineEdit>("txtac"));
        // What is not seen on its tab does not call it.
        desktop_->session.act([&] {
            desktop_->program().act([&] { desktop_->window().setFocus(desktop_->grid()); });
        });
        QCOMPARE(model.tab(), 1);
    }

    void aRingStandsAroundEveryKindOfControl() {
        desktop_->open("frmDisNormal");
        // Wider than the screen, so that nothing scrolls.
        desktop_->view().resize(1100, 700);
        for (const char* name : {"grdt", "opt005", "txtxq", "bCalcular", "bQ", "grddis"})
            checkRing(desktop_->widget<QWidget>(name), desktop_->widget<QWidget>(name));
        desktop_->open("frmPenman");
        auto& list = desktop_->widget<QComboBox>("cobMes");
        checkRing(list, list);
        desktop_->open("frmQmaxRacional");
        QTabBar& bar = *desktop_->widget<QTabWidget>("SSTab1").tabBar();
        checkRing(bar, bar);
    }

    void theRingGoesWithItsControl() {
        desktop_->open("frmDisNormal");
        auto& button = desktop_->widget<QPushButton>("bCalcular");
        button.setFocus();
        desktop_->view().resize(desktop_->view().size() + QSize(100, 80));
        QTest::qWait(20);
        checkRing(button, button);
        // A page of text has none, a closed window takes it along.
        desktop_->clickButton("bMenu");
        desktop_->open("frmPenman");
        checkRing(desktop_->widget<QWidget>("txtT"), desktop_->widget<QWidget>("txtT"));
    }

private:
    /// What the Tab key comes to, from the first focus on.
    QStringList stops() {
        QStringList visited;
        for (int i = 0; i < 80; ++i) {
            const QString name = QApplication::focusWidget()->objectName();
            if (visited.contains(name))
                break;
            visited.append(name);
            desktop_->press(Qt::Key_Tab);
        }
        return visited;
    }

    /// Two pixels of the accent colour on all sides of a control that has the keyboard.
    void checkRing(QWidget& control, QWidget& focus) {
        focus.setFocus();
        QTest::qWait(20);
        const auto* frame = desktop_->view().findChild<QFocusFrame*>();
        QVERIFY2(frame && frame->isVisible(), qPrintable(control.objectName()));
        QVERIFY(frame->testAttribute(Qt::WA_TransparentForMouseEvents));
        QWidget& window = desktop_->view();
        const QRect inside(control.mapTo(&window, QPoint(0, 0)), control.size());
        const QImage image = window.grab().toImage();
        for (int depth = 1; depth <= style::FocusRing::width; ++depth) {
            for (const QPoint& point : {QPoint(inside.center().x(), inside.top() - depth),
                                        QPoint(inside.center().x(), inside.bottom() + depth),
                                        QPoint(inside.left() - depth, inside.center().y()),
                                        QPoint(inside.right() + depth, inside.center().y())}) {
                QVERIFY2(image.pixelColor(point) == style::accent(),
                         qPrintable(QStringLiteral("%1: %2 at %3, %4")
                                        .arg(control.objectName(), image.pixelColor(point).name())
                                        .arg(point.x() - inside.left())
                                        .arg(point.y() - inside.top())));
            }
        }
    }

    std::unique_ptr<DesktopFixture> desktop_;
};

} // namespace caudalera

using caudalera::KeyboardTest;
QTEST_MAIN(KeyboardTest)
#include "KeyboardTest.moc"
