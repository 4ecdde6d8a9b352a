#include "desktop/session/Printers.h"

#include "tests/desktop/DesktopFixture.h"

#include <QAbstractButton>
#include <QAction>
#include <QHelpEvent>
#include <QMenu>
#include <QPrinterInfo>
#include <QSignalSpy>
#include <QToolTip>

namespace caudalera {

class PrintersTest : public QObject {
    Q_OBJECT

private slots:
    void init() { desktop_ = std::make_unique<DesktopFixture>(); }
    void cleanup() {
        QToolTip::hideText();
        const QString boxes = desktop_->unexpectedBoxes();
        desktop_.reset();
        QVERIFY2(boxes.isEmpty(), qPrintable(boxes));
    }

    void aWindowPrintsWhileThereIsADefaultPrinter() {
        desktop_->open("frmParamEsta");
        auto& button = desktop_->widget<QAbstractButton>("bImprimir");
        QVERIFY(button.isEnabled());
        QCOMPARE(button.toolTip(), QStringLiteral("Imprimir pantalla"));
        printers().found(false, false);
        QVERIFY(!button.isEnabled());
        QCOMPARE(button.toolTip(), QStringLiteral("No hay ninguna impresora"));
        QVERIFY(desktop_->widget<QAbstractButton>("bCalcular").isEnabled());
        printers().found(true, false);
        QVERIFY(!button.isEnabled());
        QCOMPARE(button.toolTip(), QStringLiteral("No hay impresora predeterminada"));
        printers().found(true, true);
        QVERIFY(button.isEnabled());
        QCOMPARE(button.toolTip(), QStringLiteral("Imprimir pantalla"));
    }

    void aWindowThatOpensWithoutAPrinterKnowsIt() {
        printers().found(false, false);
        desktop_->open("frmThornthwaite");
        QVERIFY(!desktop_->widget<QAbstractButton>("bImprimir").isEnabled());
    }

    void theReasonShowsOverTheButtonThatIsOutOfReach() {
        printers().found(false, false);
        desktop_->open("frmParamEsta");
        auto& button = desktop_->widget<QAbstractButton>("bImprimir");
        const QPoint center = button.rect().center();
        QHelpEvent help(QEvent::ToolTip, center, button.mapToGlobal(center));
        QApplication::sendEvent(&button, &help);
        QCOMPARE(QToolTip::text(), QStringLiteral("No hay ninguna impresora"));
    }

    void aReportIsPrintedOnAnyPrinter() {
        desktop_->open("frmPadre");
        auto& print = *desktop_->view().findChild<QAction*>(QStringLiteral("mnuFilePrint"));
        QVERIFY(print.isEnabled());
        printers().found(true, false);
        QVERIFY(print.isEnabled());
        printers().found(false, false);
        QVERIFY(!print.isEnabled());
        // Its key neither: no dialog comes.
        QTest::keyClick(&desktop_->view(), Qt::Key_P, Qt::ControlModifier);
        auto* menu = qobject_cast<QMenu*>(print.associatedObjects().constFirst());
        QVERIFY(menu);
        menu->popup(desktop_->view().mapToGlobal(QPoint(0, 0)));
        QVERIFY(QTest::qWaitForWindowExposed(menu));
        const QPoint over = menu->actionGeometry(&print).center();
        QHelpEvent help(QEvent::ToolTip, over, menu->mapToGlobal(over));
        QApplication::sendEvent(menu, &help);
        QCOMPARE(QToolTip::text(), QStringLiteral("No hay ninguna impresora"));
        menu->close();
        printers().found(true, true);
        QVERIFY(print.isEnabled());
        // The other commands are as they were.
        QVERIFY(desktop_->view().findChild<QAction*>(QStringLiteral("mnuFileSave"))->isEnabled());
    }

    void onlyAChangeIsTold() {
        const QSignalSpy told(&printers(), &Printers::changed);
        printers().found(true, true);
        QCOMPARE(told.size(), 0);
        printers().found(true, false);
        printers().found(true, false);
        QCOMPARE(told.size(), 1);
    }

    void theSystemIsAskedAgainWhenTheProgramComesForward() {
        // CTest hides the machine's printers; a start by hand does not.
        const bool none = QPrinterInfo::availablePrinterNames().isEmpty();
        QVERIFY(printers().anyMissing().isEmpty());
        printers().watch();
        QCOMPARE(printers().anyMissing().isEmpty(), !none);
        // What the system says stands again as soon as the program comes forward, and not before.
        printers().found(none, false);
        emit qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
        QCOMPARE(printers().anyMissing().isEmpty(), none);
        emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
        QCOMPARE(printers().anyMissing().isEmpty(), !none);
        // While all is well there is nothing to ask.
        printers().found(true, true);
        emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
        QVERIFY(printers().standardMissing().isEmpty());
    }

private:
    Printers& printers() { return desktop_->session.printers(); }

    std::unique_ptr<DesktopFixture> desktop_;
};

} // namespace caudalera

using caudalera::PrintersTest;
QTEST_MAIN(PrintersTest)
#include "PrintersTest.moc"
