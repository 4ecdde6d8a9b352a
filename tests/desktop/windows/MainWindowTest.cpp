#include "tests/desktop/DesktopFixture.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>

namespace caudalera {

class MainWindowTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        qunsetenv("CAUDALERA_DIR");
        desktop_ = std::make_unique<DesktopFixture>();
        QVERIFY(QTest::qWaitForWindowActive(&desktop_->view()));
    }
    void cleanup() {
        const QString boxes = desktop_->unexpectedBoxes();
        desktop_.reset();
        QVERIFY2(boxes.isEmpty(), qPrintable(boxes));
    }

    void theMenuBarHasTheModelsTitles() {
        QStringList titles;
        for (const QAction* action : bar().actions())
            titles.append(action->text());
        QCOMPARE(titles, QStringList({"Parámetros Estadísticos", "&Regresión", "&Distribuciones",
                                      "Curvas características", "Precipitación", "Aforo",
                                      "Caudales máximos", "Evapotranspiración", "Ayuda"}));
        QVERIFY(desktop_->view().windowTitle().startsWith("Caudalera, software"));
    }

    void entriesAreEnabledWhereTheirWindowExists() {
        const auto& entries = desktop_->window().controls();
        int compared = 0;
        for (const Control* control : entries)
            if (const auto* action =
                    desktop_->view().findChild<QAction*>(QString::fromStdString(control->name()))) {
                QCOMPARE(action->isEnabled(), control->enabled);
                ++compared;
            }
        // 34 calculations, leaving, help and about.
        QCOMPARE(compared, 37);
        QVERIFY(action("mdistrinormal").isEnabled());
    }

    void anEntryOpensItsWindow() {
        auto* menu = desktop_->view().findChild<QMenu*>("mdistri");
        QTest::mouseClick(&bar(), Qt::LeftButton, {},
                          bar().actionGeometry(menu->menuAction()).center());
        QTest::mouseClick(menu, Qt::LeftButton, {},
                          menu->actionGeometry(&action("mdistrinormal")).center());
        const Window* opened = desktop_->program().find("frmDisNormal");
        QVERIFY(opened);
        QVERIFY(QTest::qWaitForWindowActive(desktop_->session.viewOf(*opened)));
    }

    void everyEntryOpensAWindowThatComesForward() {
        const Window& main = desktop_->window();
        int opened = 0;
        for (const Control* control : main.controls()) {
            auto* entry =
                desktop_->view().findChild<QAction*>(QString::fromStdString(control->name()));
            if (!entry || control->name() == "mparasalir" || control->name() == "mayuayu")
                continue;
            entry->trigger();
            const Window* front = desktop_->program().front();
            QVERIFY2(front && front != &main, control->name().c_str());
            QWidget* view = desktop_->session.viewOf(*front);
            QVERIFY2(view && view->isVisible(), control->name().c_str());
            ++opened;
            view->close();
            QVERIFY(!front->loaded() || desktop_->program().front() == &main);
        }
        // 34 calculations and the about box.
        QCOMPARE(opened, 35);
    }

    void theMenuLeavesSeparatorsOut() {
        const auto* menu = desktop_->view().findChild<QMenu*>("mpara");
        QCOMPARE(menu->actions().size(), 5);
        QVERIFY(menu->actions().at(3)->isSeparator());
    }

    void theExitButtonEndsTheProgramWithOpenWindows() {
        desktop_->open("frmParamEsta");
        QSignalSpy ended(&desktop_->session, &Session::ended);
        QWidget* main = desktop_->session.viewOf(*desktop_->program().find("frmCaudalera"));
        QTest::mouseClick(main->findChild<QPushButton*>("bsalir"), Qt::LeftButton);
        QCOMPARE(ended.size(), 1);
        QCOMPARE(ended.constFirst().constFirst().toInt(), 0);
    }

    void closingTheMainWindowLeavesTheOthersOpen() {
        desktop_->open("frmParamEsta");
        QSignalSpy ended(&desktop_->session, &Session::ended);
        desktop_->session.viewOf(*desktop_->program().find("frmCaudalera"))->close();
        QVERIFY(ended.isEmpty());
        QVERIFY(desktop_->view().isVisible());
        desktop_->clickButton("bMenu");
        QVERIFY(desktop_->program().find("frmCaudalera"));
    }

    void closingTheLastWindowEndsTheProgram() {
        QSignalSpy ended(&desktop_->session, &Session::ended);
        desktop_->view().close();
        QCOMPARE(ended.size(), 1);
    }

    void helpWithoutAViewerTellsOfTheKey() {
        const QTemporaryDir empty;
        qputenv("CAUDALERA_DIR", empty.path().toUtf8());
        desktop_->expectBox({"Para obtener la ayuda presionar tecla F1 ", "Mensaje de error",
                             QMessageBox::Information});
        action("mayuayu").trigger();
        QCOMPARE(desktop_->unexpectedBoxes(), QString());
        desktop_->expectBox({"Para obtener la ayuda presionar tecla F1 ", "Mensaje de error",
                             QMessageBox::Information});
        QTest::keyClick(&desktop_->view(), Qt::Key_F1);
    }

    void theAboutBoxClosesToTheMainWindow() {
        action("mayuacerca").trigger();
        Window* about = desktop_->program().find("frmacerc");
        QVERIFY(about);
        QWidget* view = desktop_->session.viewOf(*about);
        QVERIFY(QTest::qWaitForWindowActive(view));
        QTest::mouseClick(view->findChild<QPushButton*>("bsalir"), Qt::LeftButton);
        QVERIFY(!desktop_->program().find("frmacerc"));
    }

private:
    QMenuBar& bar() { return *desktop_->view().findChild<QMenuBar*>(); }
    QAction& action(const char* name) {
        return *desktop_->session.viewOf(*desktop_->program().find("frmCaudalera"))
                    ->findChild<QAction*>(QString::fromUtf8(name));
    }

    std::unique_ptr<DesktopFixture> desktop_;
};

} // namespace caudalera

using caudalera::MainWindowTest;
QTEST_MAIN(MainWindowTest)
#include "MainWindowTest.moc"
