#include "desktop/style/LongWork.h"

#include "desktop/session/Session.h"
#include "tests/desktop/DesktopFixture.h"

#include <QElapsedTimer>
#include <QProgressBar>

using namespace caudalera;

namespace {

class Painted : public QWidget {
public:
    int times = 0;

protected:
    void paintEvent(QPaintEvent* /*event*/) override { ++times; }
};

bool pointerBusy() {
    const QCursor* cursor = QGuiApplication::overrideCursor();
    return cursor && cursor->shape() == Qt::WaitCursor;
}

QWidget* panel() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == QStringLiteral("longWork") && widget->isVisible())
            return widget;
    }
    return nullptr;
}

void workFor(int milliseconds) {
    QElapsedTimer time;
    for (time.start(); time.elapsed() < milliseconds;)
        LongWork::step();
}

} // namespace

class LongWorkTest : public QObject {
    Q_OBJECT

private slots:
    void cleanup() {
        QVERIFY(!QGuiApplication::overrideCursor());
        QVERIFY(!panel());
    }

    void shortWorkShowsNothing() {
        const LongWork work;
        workFor(300);
        QVERIFY(!pointerBusy());
    }

    void beyondHalfASecondThePointerIsBusyBeyondTwoABarShows() {
        {
            const LongWork work;
            workFor(700);
            QVERIFY(pointerBusy());
            QVERIFY(!panel());
            workFor(1600);
            QVERIFY(pointerBusy());
            QVERIFY(panel());
            auto& bar = *panel()->findChild<QProgressBar*>();
            QCOMPARE(bar.maximum(), 0);
            QTest::qSleep(110);
            LongWork::step(1, 4);
            QCOMPARE(bar.value() * 4, bar.maximum());
            QVERIFY(bar.maximum() > 0);
        }
        QVERIFY(!pointerBusy());
        QVERIFY(!panel());
    }

    void workInsideWorkIsPartOfIt() {
        const LongWork outer;
        workFor(600);
        {
            const LongWork inner;
            workFor(200);
        }
        QVERIFY(pointerBusy());
    }

    void whileItWaitsForTheUserNothingShows() {
        const LongWork work;
        workFor(2200);
        QVERIFY(panel());
        {
            const LongWork::Pause pause;
            QVERIFY(!pointerBusy());
            QVERIFY(!panel());
            workFor(700);
            QVERIFY(!pointerBusy());
        }
        workFor(300);
        QVERIFY(!pointerBusy());
        workFor(400);
        QVERIFY(pointerBusy());
    }

    void announcedWorkMakesThePointerBusyAtOnce() {
        LongWork::announce();
        QVERIFY(!pointerBusy());
        const LongWork work;
        LongWork::announce();
        QVERIFY(pointerBusy());
    }

    void windowsRepaintMeanwhile() {
        Painted widget;
        widget.show();
        QVERIFY(QTest::qWaitForWindowExposed(&widget));
        const LongWork work;
        widget.times = 0;
        widget.update();
        workFor(700);
        QCOMPARE(widget.times, 1);
    }

    void theProgramTakesNoOtherActMeanwhile() {
        DesktopFixture desktop;
        bool taken = false;
        desktop.session.act([&] {
            QTimer::singleShot(0, &desktop.session,
                               [&] { desktop.session.act([&] { taken = true; }); });
            // Commands ask for the decimal sign with each number.
            QElapsedTimer time;
            for (time.start(); time.elapsed() < 700;)
                static_cast<void>(desktop.session.platform().decimalSeparator());
            QVERIFY(pointerBusy());
        });
        QVERIFY(!taken);
        QVERIFY(!pointerBusy());
    }
};

QTEST_MAIN(LongWorkTest)
#include "LongWorkTest.moc"
