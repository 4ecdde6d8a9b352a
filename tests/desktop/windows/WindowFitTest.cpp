#include "desktop/chart/ChartView.h"
#include "desktop/controls/PictureView.h"
#include "desktop/windows/ContentArea.h"
#include "desktop/windows/Placement.h"
#include "tests/desktop/DesktopFixture.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QTabWidget>
#include <algorithm>
#include <cstdlib>
#include <utility>

namespace caudalera {

namespace {

/// What a window's frame takes of the screen, and the desktop's own bar below it.
constexpr QSize frameSize(16, 40);
constexpr int barHeight = 28;

QSize screenSize() {
    return QGuiApplication::primaryScreen()->size();
}
QSize room() {
    return screenSize() - frameSize - QSize(0, barHeight);
}
/// Smaller screens are scrolled on.
bool everythingFits() {
    return screenSize().width() >= 1366 && screenSize().height() >= 768;
}

bool fits(const QSize& inner, const QSize& outer) {
    return inner.boundedTo(outer) == inner;
}

} // namespace

/// Every window that there is, on the screen that the test runs on: of 1024 x 600, the smallest one
/// that it has to suit, of 1366 x 768, the smallest one where nothing scrolls, and on a large one.
class WindowFitTest : public QObject {
    Q_OBJECT

private slots:
    void nothingIsCutOnASmallScreen_data() { addWindows(); }
    void nothingIsCutOnASmallScreen() {
        QFETCH(QString, name);
        DesktopFixture desktop;
        desktop.open(name.toStdString());
        QWidget& view = desktop.view();
        if (everythingFits())
            QVERIFY2(fits(smallest(view), room()), qPrintable(needs(view)));
        view.resize(room());
        checkTabs(view);
    }

    /// What waits for a choice or a drawing to be seen has its room as well.
    void nothingIsCutWhenAllOfItIsSeen_data() { addWindows(); }
    void nothingIsCutWhenAllOfItIsSeen() {
        QFETCH(QString, name);
        DesktopFixture desktop;
        Window& window = desktop.open(name.toStdString());
        const QSize firstSize = desktop.view().size();
        desktop.session.act([&] {
            desktop.program().act([&] {
                for (Control* control : window.controls())
                    control->visible = control->visible || !isEditor(window, *control);
            });
        });
        QWidget& view = desktop.view();
        settle();
        // What came into view found its room there.
        QCOMPARE(view.size(), firstSize);
        if (everythingFits())
            checkNothingScrolls(view);
        if (everythingFits())
            QVERIFY2(fits(smallest(view), room()), qPrintable(needs(view)));
        view.resize(room());
        checkTabs(view);
    }

    void theFirstSizeIsThatOfTheContentOverTheWindowItCameFrom_data() { addWindows(); }
    void theFirstSizeIsThatOfTheContentOverTheWindowItCameFrom() {
        QFETCH(QString, name);
        DesktopFixture desktop;
        QWidget& main = *desktop.session.viewOf(*desktop.program().find("frmCaudalera"));
        QVERIFY(QTest::qWaitForWindowActive(&main));
        main.move(30, 20);
        desktop.open(name.toStdString());
        QWidget& view = desktop.view();
        QVERIFY2(fits(view.size() + frameSize, screenSize()), qPrintable(sizeOf(view)));
        checkTabs(view);
        auto* content = view.findChild<ContentArea*>();
        if (!content)
            return;
        // 90 % of the screen, as whole pixels.
        const QSize most(screenSize().width() * 9 / 10 + 1, screenSize().height() * 9 / 10 + 1);
        QVERIFY2(fits(view.size(), most), qPrintable(sizeOf(view)));
        if (everythingFits())
            checkNothingScrolls(view);
        QVERIFY2(fits(content->size(), content->sizeHint().expandedTo(smallestWithAll(desktop)) +
                                           QSize(around(view).width() + scrollBar(*content), 0)),
                 qPrintable(sizeOf(view) + QStringLiteral(" is more than the content asks for")));
        const QRect screen = view.screen()->availableGeometry();
        QVERIFY(screen.contains(view.frameGeometry()));
        const QPoint off = view.frameGeometry().center() - main.frameGeometry().center();
        QVERIFY2(std::abs(off.x()) <= 1 || view.frameGeometry().left() == screen.left() ||
                     view.frameGeometry().right() == screen.right(),
                 qPrintable(QString::number(off.x())));
        QVERIFY2(std::abs(off.y()) <= 1 || view.frameGeometry().top() == screen.top() ||
                     view.frameGeometry().bottom() == screen.bottom(),
                 qPrintable(QString::number(off.y())));
    }

    void resultsThatAreWiderThanTheirTitlesWidenTheWindow() {
        if (!everythingFits())
            return;
        DesktopFixture desktop;
        desktop.open("frmQmaxNash");
        QWidget& view = desktop.view();
        const QSize before = view.size();
        const auto calculate = [&] {
            desktop.typeValues({"212345.678", "198765.432", "154321.987", "187654.321"});
            desktop.widget<QLineEdit>("txtTdato").setFocus();
            DesktopFixture::type("100");
            desktop.clickButton("bCalcular");
            settle();
        };
        calculate();
        QVERIFY(view.width() > before.width());
        QCOMPARE(view.height(), before.height());
        QVERIFY(view.width() <= screenSize().width() * 9 / 10 + 1);
        QVERIFY(view.screen()->availableGeometry().contains(view.frameGeometry()));
        // The user's own size stays.
        view.resize(before + QSize(3, 0));
        calculate();
        QCOMPARE(view.size(), before + QSize(3, 0));
    }

    /// The command that is farthest down the content, by the keyboard alone.
    void whatTheKeyboardComesToComesIntoSight() {
        DesktopFixture desktop;
        desktop.open("frmDisNormal");
        QWidget& view = desktop.view();
        if (everythingFits())
            return;
        auto& content = *view.findChild<ContentArea*>();
        auto& last = desktop.widget<QAbstractButton>("bPmenor");
        const auto seen = [&] {
            return content.viewport()->rect().contains(
                QRect(last.mapTo(content.viewport(), QPoint(0, 0)), last.size()));
        };
        QVERIFY(!seen());
        for (int i = 0; i < 30 && !last.hasFocus(); ++i)
            desktop.press(Qt::Key_Tab);
        QVERIFY(last.hasFocus());
        QVERIFY(seen());
        content.verticalScrollBar()->setValue(0);
        content.horizontalScrollBar()->setValue(0);
        desktop.session.act([&] { desktop.program().focus(desktop.control<Button>("bQ")); });
        QVERIFY(!seen());
        desktop.session.act([&] { desktop.program().focus(desktop.control<Button>("bPmenor")); });
        QVERIFY(seen());
    }

    void framesHugWhatTheyHold() {
        for (const auto& [name, frame] :
             {std::pair("frmRegPoli2Gra", "fraAplicar"), std::pair("frmPromArit", "fraResultado"),
              std::pair("frmCurvaDuracion", "fraCaudal")}) {
            DesktopFixture desktop;
            desktop.open(name);
            desktop.view().resize(1880, 1000);
            settle();
            const auto& group = desktop.widget<QWidget>(frame);
            QCOMPARE(group.size(), group.sizeHint());
        }
    }

    void nothingIsCutAtTheSmallestSize_data() { addWindows(); }
    void nothingIsCutAtTheSmallestSize() {
        QFETCH(QString, name);
        DesktopFixture desktop;
        desktop.open(name.toStdString());
        desktop.view().resize(1, 1);
        checkTabs(desktop.view());
        if (everythingFits())
            checkNothingScrolls(desktop.view());
    }

    void columnsOfFieldsStandApart() {
        DesktopFixture desktop;
        desktop.open("frmPenman");
        const auto& field = desktop.widget<QLineEdit>("txtRa");
        const QRect unit = labelOf(desktop, desktop.control<TextBox>("txtRa").unit());
        const QRect next = labelOf(desktop, desktop.control<TextBox>("txt1w").label());
        const int within = unit.left() - field.geometry().right();
        QVERIFY2(within > 0 && next.left() - unit.right() > 2 * within,
                 qPrintable(QStringLiteral("%1 px between the columns, %2 px before the unit")
                                .arg(next.left() - unit.right())
                                .arg(within)));
    }

    /// Also where a window takes the whole screen.
    void theCalculatorHidesNothingThatIsWorkedWith_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("whole");
        for (const char* name :
             {"frmDisNormal", "frmPenman", "frmCurvaDuracion", "frmQmaxRacional"})
            QTest::addRow("%s", name) << QString::fromLatin1(name) << false;
        for (const char* name : {"frmDisNormal", "frmPenman", "frmCurvaDuracion", "frmQmaxRacional",
                                 "frmEjRegSimple", "frmAforoCorren", "frmThornthwaite"})
            QTest::addRow("%s on the whole screen", name) << QString::fromLatin1(name) << true;
    }
    void theCalculatorHidesNothingThatIsWorkedWith() {
        QFETCH(QString, name);
        QFETCH(bool, whole);
        if (!everythingFits())
            return;
        DesktopFixture desktop;
        desktop.open(name.toStdString());
        QWidget& view = desktop.view();
        if (whole) {
            view.showMaximized();
            settle();
        }
        desktop.clickButton("bCalculadora");
        QWidget& calculator = *desktop.session.viewOf(*desktop.program().find("frmCalculadora"));
        QVERIFY(view.screen()->availableGeometry().contains(calculator.frameGeometry()));
        for (const QWidget* widget : view.findChildren<QWidget*>()) {
            const bool worked = qobject_cast<const QAbstractButton*>(widget) ||
                                qobject_cast<const QLineEdit*>(widget) ||
                                qobject_cast<const QComboBox*>(widget);
            if (!worked || !widget->isVisible())
                continue;
            const QRect place(widget->mapToGlobal(QPoint(0, 0)), widget->size());
            QVERIFY2(!calculator.frameGeometry().intersects(place),
                     qPrintable(widget->objectName() + " is hidden"));
        }
    }

    void aLargeScreenGivesItsRoomToGridsAndCharts() {
        DesktopFixture desktop;
        desktop.open("frmDisNormal");
        QWidget& view = desktop.view();
        view.resize(1280, 700);
        settle();
        const QSize small = desktop.widget<QWidget>("grddis").size();
        const int field = desktop.widget<QLineEdit>("txtxq").width();
        view.resize(1880, 1000);
        settle();
        QCOMPARE(desktop.widget<QWidget>("grddis").width() - small.width(), 600);
        QCOMPARE(desktop.widget<QLineEdit>("txtxq").width(), field);
    }

private:
    /// Lets layouts ask each other until they are done.
    static void settle() {
        for (int i = 0; i < 10; ++i)
            QCoreApplication::processEvents();
    }

    static QString sizeOf(const QWidget& view) {
        return QStringLiteral("%1 x %2").arg(view.width()).arg(view.height());
    }
    static QString needs(QWidget& view) {
        return QStringLiteral("needs %1 x %2")
            .arg(smallest(view).width())
            .arg(smallest(view).height());
    }

    /// What stands around the content of a window: its commands and the status bar.
    static QSize around(const QWidget& view) {
        const auto* content = view.findChild<ContentArea*>();
        return (view.layout()->totalMinimumSize() - content->minimumSizeHint()).expandedTo({0, 0});
    }
    /// At which nothing of a window is cut, and nothing scrolls.
    static QSize smallest(const QWidget& view) {
        const auto* content = view.findChild<ContentArea*>();
        return content ? content->smallestContent() + around(view) : view.minimumSizeHint();
    }
    static QSize smallestWithAll(DesktopFixture& desktop) {
        for (Control* control : desktop.window().controls())
            control->visible = control->visible || !isEditor(desktop.window(), *control);
        desktop.session.sync();
        settle();
        auto* content = desktop.view().findChild<ContentArea*>();
        placement::remeasure(*content);
        return content->smallestContent();
    }
    static int scrollBar(const ContentArea& content) {
        return content.verticalScrollBar()->sizeHint().width();
    }
    static void checkNothingScrolls(const QWidget& view) {
        const auto* content = view.findChild<ContentArea*>();
        if (content)
            QCOMPARE(content->widget()->size(), content->viewport()->size());
    }

    /// A box that floats over a cell while it is edited.
    static bool isEditor(const Window& window, const Control& control) {
        const auto& all = window.controls();
        return std::any_of(all.begin(), all.end(), [&](const Control* each) {
            const auto* grid = dynamic_cast<const MSFlexGrid*>(each);
            return grid && grid->editor == &control;
        });
    }

    static QRect labelOf(DesktopFixture& desktop, const Label* label) {
        return desktop.widget<QLabel>(label->name().c_str()).geometry();
    }

    static void addWindows() {
        QTest::addColumn<QString>("name");
        for (const WindowEntry& entry : ventanas()) {
            const QByteArray name(entry.name.data(), static_cast<qsizetype>(entry.name.size()));
            QTest::newRow(name.constData()) << QString::fromUtf8(name);
        }
    }

    static void checkTabs(QWidget& view) {
        settle();
        auto* tabs = view.findChild<QTabWidget*>();
        for (int tab = 0; tab < (tabs ? tabs->count() : 1); ++tab) {
            if (tabs) {
                tabs->setCurrentIndex(tab);
                settle();
            }
            checkWidgets(view);
        }
    }

    static void checkWidgets(const QWidget& view) {
        int checked = 0;
        for (const QWidget* widget : view.findChildren<QWidget*>()) {
            const bool ours = !widget->objectName().startsWith(QStringLiteral("qt_"));
            if (!widget->isVisible() || !ours || widget->parentWidget()->inherits("QComboBox"))
                continue;
            const QString what = QStringLiteral("%1 %2 in %3")
                                     .arg(widget->metaObject()->className(), widget->objectName(),
                                          widget->parentWidget()->objectName());
            if (isControl(*widget)) {
                ++checked;
                QVERIFY2(isInside(*widget), qPrintable(what + " sticks out"));
                QSize needed = widget->minimumSizeHint();
                if (const auto* label = qobject_cast<const QLabel*>(widget);
                    label && label->wordWrap())
                    needed.setHeight(label->heightForWidth(label->width()));
                QVERIFY2(widget->width() >= needed.width() && widget->height() >= needed.height(),
                         qPrintable(what + QStringLiteral(" is cut: %1 x %2 of %3 x %4")
                                               .arg(widget->width())
                                               .arg(widget->height())
                                               .arg(needed.width())
                                               .arg(needed.height())));
            }
        }
        QVERIFY(checked > 0);
    }

    /// Of all that it stands in, up to what scrolls: its bars reach the rest.
    static bool isInside(const QWidget& widget) {
        QRect place = widget.geometry();
        for (const QWidget* around = widget.parentWidget(); around && !place.isNull();
             around = around->parentWidget()) {
            if (const auto* area = qobject_cast<const ContentArea*>(around->parentWidget());
                area && around == area->viewport()) {
                const QSize hidden = area->widget()->size() - area->viewport()->size();
                return area->horizontalScrollBar()->maximum() == std::max(hidden.width(), 0) &&
                       area->verticalScrollBar()->maximum() == std::max(hidden.height(), 0);
            }
            if (!around->rect().contains(place))
                return false;
            if (around->isWindow())
                break;
            place.translate(around->pos());
        }
        return true;
    }

    static bool isControl(const QWidget& widget) {
        return qobject_cast<const QAbstractButton*>(&widget) ||
               qobject_cast<const QLabel*>(&widget) || qobject_cast<const QLineEdit*>(&widget) ||
               qobject_cast<const QComboBox*>(&widget) || widget.inherits("QGroupBox") ||
               widget.inherits("QTableView") || qobject_cast<const ChartView*>(&widget) ||
               qobject_cast<const Drawing*>(&widget);
    }
};

} // namespace caudalera

using caudalera::WindowFitTest;
QTEST_MAIN(WindowFitTest)
#include "WindowFitTest.moc"
#include "app/registry.h"
