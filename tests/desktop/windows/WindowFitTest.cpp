#include "desktop/chart/ChartView.h"
#include "desktop/controls/PictureView.h"
#include "tests/desktop/DesktopFixture.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QTabWidget>
#include <algorithm>

namespace caudalera {

namespace {

/// The smallest screen that a window has to suit, what the window's frame takes of it, and the
/// screen without that and the desktop's own bar.
constexpr QSize screenSize(1366, 768);
constexpr QSize frameSize(16, 40);
constexpr QSize room(1350, 700);

bool fits(const QSize& inner, const QSize& outer) {
    return inner.boundedTo(outer) == inner;
}

} // namespace

/// Every window that there is, at the smallest screen that it has to suit.
class WindowFitTest : public QObject {
    Q_OBJECT

private slots:
    void nothingIsCutOnASmallScreen_data() { addWindows(); }
    void nothingIsCutOnASmallScreen() {
        QFETCH(QString, name);
        DesktopFixture desktop;
        desktop.open(name.toStdString());
        QWidget& view = desktop.view();
        QVERIFY2(fits(view.minimumSizeHint(), room), qPrintable(needs(view)));
        view.resize(room);
        checkTabs(view);
    }

    /// What waits for a choice or a drawing to be seen has its room as well.
    void nothingIsCutWhenAllOfItIsSeen_data() { addWindows(); }
    void nothingIsCutWhenAllOfItIsSeen() {
        QFETCH(QString, name);
        DesktopFixture desktop;
        Window& window = desktop.open(name.toStdString());
        desktop.session.act([&] {
            desktop.program().act([&] {
                for (Control* control : window.controls())
                    control->visible = control->visible || !isEditor(window, *control);
            });
        });
        QWidget& view = desktop.view();
        QTest::qWait(20);
        QVERIFY2(fits(view.minimumSizeHint(), room), qPrintable(needs(view)));
        view.resize(room);
        checkTabs(view);
    }

    void theFirstSizeFitsTheScreen_data() { addWindows(); }
    void theFirstSizeFitsTheScreen() {
        QFETCH(QString, name);
        DesktopFixture desktop;
        desktop.open(name.toStdString());
        QWidget& view = desktop.view();
        QCOMPARE(view.screen()->size(), screenSize);
        QVERIFY2(fits(view.size() + frameSize, screenSize),
                 qPrintable(QStringLiteral("%1 x %2").arg(view.width()).arg(view.height())));
        checkTabs(view);
    }

    void nothingIsCutAtTheSmallestSize_data() { addWindows(); }
    void nothingIsCutAtTheSmallestSize() {
        QFETCH(QString, name);
        DesktopFixture desktop;
        desktop.open(name.toStdString());
        desktop.view().resize(1, 1);
        checkTabs(desktop.view());
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

    void aLargeScreenGivesItsRoomToGridsAndCharts() {
        DesktopFixture desktop;
        desktop.open("frmDisNormal");
        QWidget& view = desktop.view();
        view.resize(1280, 700);
        QTest::qWait(20);
        const QSize small = desktop.widget<QWidget>("grddis").size();
        const int field = desktop.widget<QLineEdit>("txtxq").width();
        view.resize(1880, 1000);
        QTest::qWait(20);
        QCOMPARE(desktop.widget<QWidget>("grddis").width() - small.width(), 600);
        QCOMPARE(desktop.widget<QLineEdit>("txtxq").width(), field);
    }

private:
    static QString needs(const QWidget& view) {
        return QStringLiteral("needs %1 x %2")
            .arg(view.minimumSizeHint().width())
            .arg(view.minimumSizeHint().height());
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
        QTest::qWait(20);
        auto* tabs = view.findChild<QTabWidget*>();
        for (int tab = 0; tab < (tabs ? tabs->count() : 1); ++tab) {
            if (tabs) {
                tabs->setCurrentIndex(tab);
                QTest::qWait(20);
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
            const QRect inside = widget->parentWidget()->rect();
            const QString what = QStringLiteral("%1 %2 in %3")
                                     .arg(widget->metaObject()->className(), widget->objectName(),
                                          widget->parentWidget()->objectName());
            if (isControl(*widget)) {
                ++checked;
                QVERIFY2(inside.contains(widget->geometry()), qPrintable(what + " sticks out"));
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
