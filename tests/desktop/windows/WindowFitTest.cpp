#include "tests/desktop/DesktopFixture.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>

namespace caudalera {

/// Every window that the menu opens, at the smallest screen that it has to suit.
class WindowFitTest : public QObject {
    Q_OBJECT

private slots:
    void nothingIsCutOnASmallScreen_data() { addWindows(); }
    void nothingIsCutOnASmallScreen() {
        QFETCH(QString, name);
        DesktopFixture desktop;
        desktop.open(name.toStdString());
        QWidget& view = desktop.view();
        // 1366 by 768 without a window's frame and the desktop's own bar.
        const QSize room(1350, 700);
        QVERIFY2(view.minimumSizeHint().width() <= room.width() &&
                     view.minimumSizeHint().height() <= room.height(),
                 qPrintable(QStringLiteral("needs %1 x %2")
                                .arg(view.minimumSizeHint().width())
                                .arg(view.minimumSizeHint().height())));
        view.resize(room);
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
    static QRect labelOf(DesktopFixture& desktop, const Label* label) {
        return desktop.widget<QLabel>(label->name().c_str()).geometry();
    }

    static void addWindows() {
        QTest::addColumn<QString>("name");
        for (const WindowEntry& entry : ventanas()) {
            const QByteArray name(entry.name.data(), static_cast<qsizetype>(entry.name.size()));
            QTest::newRow(name.constData()) << QString::fromUtf8(name);
        }
        QTest::newRow("frmacerc") << QStringLiteral("frmacerc");
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
                         qPrintable(what + " is cut"));
            }
        }
        QVERIFY(checked > 0);
    }

    static bool isControl(const QWidget& widget) {
        return qobject_cast<const QAbstractButton*>(&widget) ||
               qobject_cast<const QLabel*>(&widget) || qobject_cast<const QLineEdit*>(&widget) ||
               qobject_cast<const QComboBox*>(&widget) || widget.inherits("QGroupBox") ||
               widget.inherits("QTableView");
    }
};

} // namespace caudalera

using caudalera::WindowFitTest;
QTEST_MAIN(WindowFitTest)
#include "WindowFitTest.moc"
#include "app/registry.h"
