#include "desktop/session/Application.h"
#include "shell/numbers/RuntimeFailure.h"
#include "shell/report/frmPadre.h"
#include "tests/desktop/DesktopFixture.h"

#include "desktop/grid/GridView.h"
#include "desktop/report/DocumentFrame.h"
#include "desktop/report/DocumentView.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QMdiArea>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <new>
#include <stdexcept>

namespace caudalera {

namespace {

/// A click that waits in the event queue.
void queueClick(QWidget& widget, const QPoint& at) {
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const bool press = type == QEvent::MouseButtonPress;
        QCoreApplication::postEvent(
            &widget, new QMouseEvent(type, at, widget.mapToGlobal(at), Qt::LeftButton,
                                     press ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier));
    }
}

DesktopFixture::Box faultBox(const QString& what = {}) {
    QString text = QStringLiteral("Caudalera ha tenido un fallo interno y debe cerrarse.");
    if (!what.isEmpty())
        text += QStringLiteral("\n\n") + what;
    return {text, QStringLiteral("Caudalera"), QMessageBox::Critical};
}

/// A view that shows nothing and whose sync throws once it is told to.
class BrokenView : public QWidget, public View {
public:
    explicit BrokenView(const bool& broken) : broken_(broken) {}
    QWidget& widget() override { return *this; }
    void sync() override {
        if (broken_)
            throw std::runtime_error("vista rota");
    }

private:
    const bool& broken_;
};

/// A widget whose event handler throws.
class BrokenWidget : public QWidget {
protected:
    void mousePressEvent(QMouseEvent* /*event*/) override { throw std::bad_alloc(); }
};

} // namespace

class SessionTest : public QObject {
    Q_OBJECT

private slots:
    void init() { desktop_ = std::make_unique<DesktopFixture>(); }
    void cleanup() {
        const QString boxes = desktop_->unexpectedBoxes();
        desktop_.reset();
        QVERIFY2(boxes.isEmpty(), qPrintable(boxes));
    }

    void ofTwoClicksThatWaitTheSecondFindsNoWindowAnyMore() {
        desktop_->open("frmParamEsta");
        QPointer<QWidget> view = &desktop_->view();
        auto& button = desktop_->widget<QPushButton>("bMenu");
        const QSignalSpy clicked(&button, &QPushButton::clicked);
        queueClick(button, button.rect().center());
        queueClick(button, button.rect().center());
        QCoreApplication::sendPostedEvents();
        QVERIFY(!desktop_->program().find("frmParamEsta"));
        QCOMPARE(clicked.size(), 1);
        QVERIFY(view);
        QVERIFY(view->isHidden());
        QTRY_VERIFY(!view);
    }

    void aRetiredViewTakesNoKeysNoWheelAndNoFocus() {
        desktop_->open("frmEjRegSimple");
        desktop_->typeValues({"1", "2"});
        const std::shared_ptr<Window> held = desktop_->program().windows().back();
        GridView& grid = desktop_->gridView();
        auto& editor = desktop_->widget<QWidget>("txtt");
        desktop_->session.act([&] { desktop_->program().close(*held); });
        const Control* const focus = held->focus();
        QTest::keyClick(&grid, '7');
        QTest::keyClick(&grid, Qt::Key_V, Qt::ControlModifier);
        QTest::keyClick(&grid, Qt::Key_F1);
        QFocusEvent came(QEvent::FocusIn, Qt::TabFocusReason);
        QCoreApplication::sendEvent(&editor, &came);
        QCOMPARE(held->focus(), focus);
        QCOMPARE(static_cast<MSFlexGrid*>(held->find("grdt"))->Rows(), 3L);
    }

    void theMenuOfARetiredViewTakesNoChoice() {
        desktop_->open("frmEjRegSimple");
        desktop_->typeValues({"1", "2"});
        const std::shared_ptr<Window> held = desktop_->program().windows().back();
        QContextMenuEvent event(QContextMenuEvent::Keyboard, desktop_->centerOf(1, 1),
                                desktop_->gridView().mapToGlobal(QPoint()));
        QCoreApplication::sendEvent(desktop_->gridView().viewport(), &event);
        auto* menu = desktop_->gridView().findChild<QMenu*>();
        QVERIFY(menu);
        auto* deletes = menu->findChild<QAction*>("mnuEditEliminar");
        desktop_->session.act([&] { desktop_->program().close(*held); });
        const QSignalSpy triggered(deletes, &QAction::triggered);
        queueClick(*menu, menu->actionGeometry(deletes).center());
        QCoreApplication::sendPostedEvents();
        QCOMPARE(triggered.size(), 0);
        // Nor does one that reaches the entry on another way.
        deletes->trigger();
        QCOMPARE(static_cast<MSFlexGrid*>(held->find("grdt"))->Rows(), 3L);
    }

    void theWindowLivesAsLongAsItsView() {
        desktop_->open("frmParamEsta");
        const std::weak_ptr<Window> window = desktop_->program().windows().back();
        QPointer<QWidget> view = &desktop_->view();
        desktop_->clickButton("bMenu");
        QVERIFY(view);
        QVERIFY(!window.expired());
        QTRY_VERIFY(!view);
        QVERIFY(window.expired());
    }

    void aViewThatWasRetiredLastGoesWithTheSession() {
        auto session = std::make_unique<Session>(ventanas(), makeView);
        session->start();
        session->act([&] { session->program().act([&] { session->program().show("frmacerc"); }); });
        Window& about = *session->program().find("frmacerc");
        const QPointer<QWidget> view = session->viewOf(about);
        session->act([&] { session->program().close(about); });
        QVERIFY(view);
        session.reset();
        QVERIFY(!view);
    }

    void aClosedDocumentTakesNothingThatWasMeantForItsNeighbour() {
        desktop_->open("frmPadre");
        auto& padre = static_cast<frmPadre&>(desktop_->window());
        desktop_->session.act([&] { desktop_->program().click(padre.mnuFileNew); });
        const std::shared_ptr<frmDocumento> first = padre.documents()[0];
        const std::shared_ptr<frmDocumento> second = padre.documents()[1];
        desktop_->session.act([&] {
            first->rtfText.setSelText("primero");
            second->rtfText.setSelText("segundo");
            second->rtfText.select(0, 7);
        });
        DocumentView* closed = nullptr;
        for (QMdiSubWindow* each : desktop_->view().findChild<QMdiArea*>()->subWindowList()) {
            if (auto* frame = static_cast<DocumentFrame*>(each); frame->document() == first.get())
                closed = &frame->view();
        }
        QVERIFY(closed);
        desktop_->session.act([&] { padre.closeDocument(*first); });
        // What the queue still held for it.
        QKeyEvent letter(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
        QCoreApplication::sendEvent(closed, &letter);
        QContextMenuEvent menu(QContextMenuEvent::Mouse, QPoint(), closed->mapToGlobal(QPoint()));
        QCoreApplication::sendEvent(closed->viewport(), &menu);
        QVERIFY(!QApplication::activePopupWidget());
        QCOMPARE(QString::fromStdString(first->rtfText.text()), QStringLiteral("primero"));
        QCOMPARE(QString::fromStdString(second->rtfText.text()), QStringLiteral("segundo"));
    }

    void anExceptionOfAHandlerIsToldOnceAndEndsTheProgram() {
        const QSignalSpy ended(&desktop_->session, &Session::ended);
        desktop_->expectBox(faultBox(QStringLiteral("std::bad_alloc")), [&] {
            // The words are read before anything ends, and nothing happens behind them.
            QCOMPARE(ended.size(), 0);
            desktop_->session.act([] { throw std::logic_error("otra"); });
        });
        desktop_->session.act([this] { desktop_->program().act([] { throw std::bad_alloc(); }); });
        QCOMPARE(ended.size(), 1);
        QVERIFY(ended.constFirst().constFirst().toInt() != 0);
        QCOMPARE(desktop_->program().ended()->reason, Ending::Reason::fault);
        desktop_->session.act([] { throw std::logic_error("otra"); });
        QCOMPARE(ended.size(), 1);
    }

    void aThingThrownThatHasNoWordsIsToldToo() {
        const QSignalSpy ended(&desktop_->session, &Session::ended);
        desktop_->expectBox(faultBox());
        desktop_->session.act([] { throw 1; });
        QCOMPARE(ended.size(), 1);
    }

    void anExceptionOfAViewIsAFaultToo() {
        bool broken = false;
        Session session(ventanas(),
                        [&](Session&, Window&) -> View* { return new BrokenView(broken); });
        session.start();
        const QSignalSpy ended(&session, &Session::ended);
        desktop_->expectBox(faultBox(QStringLiteral("vista rota")));
        broken = true;
        session.act([] {});
        QCOMPARE(ended.size(), 1);
        QCOMPARE(ended.constFirst().constFirst().toInt(), 1);
    }

    void aFailureThatCannotBeShownEndsTheProgramAllTheSame() {
        bool broken = false;
        Session session(ventanas(),
                        [&](Session&, Window&) -> View* { return new BrokenView(broken); });
        session.start();
        const QSignalSpy ended(&session, &Session::ended);
        broken = true;
        session.act([&] { session.program().act([] { throw RuntimeFailure(Failure::index); }); });
        QCOMPARE(ended.size(), 1);
        QCOMPARE(ended.constFirst().constFirst().toInt(), 1);
    }

    void anExceptionOfAnyEventIsAFaultToo() {
        static_cast<Application*>(qApp)->watch(desktop_->session);
        const QSignalSpy ended(&desktop_->session, &Session::ended);
        desktop_->expectBox(faultBox(QStringLiteral("std::bad_alloc")));
        BrokenWidget widget;
        widget.show();
        QTest::mousePress(&widget, Qt::LeftButton);
        QCOMPARE(ended.size(), 1);
    }

private:
    std::unique_ptr<DesktopFixture> desktop_;
};

} // namespace caudalera

int main(int argc, char** argv) {
    caudalera::Application application(argc, argv);
    caudalera::SessionTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "SessionTest.moc"
