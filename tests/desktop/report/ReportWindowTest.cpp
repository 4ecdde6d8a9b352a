#include "tests/desktop/report/ReportFixture.h"

#include <QMenuBar>
#include <QScreen>

using namespace caudalera;

class ReportWindowTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<ReportFixture> on;

    QAction* action(const char* name) {
        return on->window()->findChild<QAction*>(QLatin1String(name));
    }
    int pixels(double twips) { return qRound(twips * on->window()->logicalDpiX() / 1440); }
    std::optional<std::string> stored(const char* key) {
        return on->session->platform().setting(key);
    }

private slots:
    void initTestCase() { style::apply(*qApp); }
    void init() {
        on = std::make_unique<ReportFixture>();
        QVERIFY(on->open());
    }
    void cleanup() { on.reset(); }

    void itHasTheMenuOfTheModel() {
        QStringList titles;
        for (const QAction* title : on->window()->menuBar()->actions())
            titles.append(title->text());
        QCOMPARE(titles, (QStringList{"&Archivo", "&Edición"}));
        QStringList entries;
        for (const QAction* entry : on->window()->menuBar()->actions()[0]->menu()->actions())
            entries.append(entry->isSeparator() ? QStringLiteral("-") : entry->text());
        QCOMPARE(entries, (QStringList{"&Nuevo", "A&brir...", "-", "&Guardar", "Guardar &como ...",
                                       "-", "I&mprimir...", "-", "&Salir"}));
        QVERIFY(on->window()->windowTitle().startsWith("Guardar datos"));
    }

    void entriesCarryTheUsualKeys() {
        QCOMPARE(action("mnuFileNew")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_N));
        QCOMPARE(action("mnuFileOpen")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_O));
        QCOMPARE(action("mnuFileSave")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_S));
        QCOMPARE(action("mnuFilePrint")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_P));
        QCOMPARE(action("mnuEditCopy")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_C));
    }

    void aNewDocumentIsOneMoreWindow() {
        QCOMPARE(on->area()->subWindowList().size(), 1);
        QTest::keyClick(on->view(), Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(on->area()->subWindowList().size(), 2);
        QCOMPARE(on->area()->currentSubWindow()->windowTitle(), QStringLiteral("Documento 2"));
        QCOMPARE(on->padre().active(), on->padre().documents()[1].get());
    }

    void choosingADocumentMakesItTheActiveOne() {
        action("mnuFileNew")->trigger();
        on->area()->setActiveSubWindow(on->area()->subWindowList()[0]);
        QCOMPARE(on->padre().active(), on->padre().documents()[0].get());
        QTest::keyClicks(on->view(), "uno");
        QCOMPARE(QString::fromStdString(on->padre().documents()[0]->rtfText.text()),
                 QStringLiteral("uno"));
        QCOMPARE(on->padre().documents()[1]->rtfText.length(), std::size_t{0});
    }

    void aDocumentClosesByItsKey() {
        action("mnuFileNew")->trigger();
        QVERIFY(on->area()->currentSubWindow()->isMaximized());
        QTest::keyClick(on->view(), Qt::Key_F4, Qt::ControlModifier);
        QCOMPARE(on->padre().documents().size(), std::size_t{1});
        QCOMPARE(on->area()->currentSubWindow()->windowTitle(), QStringLiteral("Documento 1"));
        QVERIFY(on->area()->currentSubWindow()->isMaximized());
    }

    void aDocumentClosesByItsFrame() {
        action("mnuFileNew")->trigger();
        on->area()->currentSubWindow()->close();
        QCOMPARE(on->padre().documents().size(), std::size_t{1});
        QCOMPARE(on->area()->subWindowList().size(), 1);
        on->area()->currentSubWindow()->close();
        QVERIFY(!on->padre().active());
        QVERIFY(on->area()->subWindowList().isEmpty());
        // With all of them closed, the next report has one made.
        on->compose("Otro", 1);
        QCOMPARE(on->area()->subWindowList().size(), 1);
        QCOMPARE(on->area()->currentSubWindow()->windowTitle(), QStringLiteral("Documento 3"));
        QVERIFY(on->view()->toPlainText().contains("Otro"));
    }

    void withoutADocumentOnlyMakingAndOpeningOneAreLeft() {
        const auto enabled = [this] {
            QStringList names;
            for (const QAction* action : on->window()->findChildren<QAction*>())
                if (action->objectName().startsWith(QStringLiteral("mnu")) && action->isEnabled())
                    names.append(action->objectName());
            names.sort();
            return names;
        };
        QVERIFY(on->open());
        QVERIFY(enabled().contains(QStringLiteral("mnuFileSave")));
        auto& padre = *ventanaDeReportes(on->session->program());
        on->session->act([&] { padre.closeDocument(*padre.active()); });
        QCOMPARE(enabled(), QStringList({"mnuFileExit", "mnuFileNew", "mnuFileOpen"}));
        QTest::keyClick(on->window(), Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!on->session->program().ended());
        QTest::keyClick(on->window(), Qt::Key_N, Qt::ControlModifier);
        QVERIFY(enabled().contains(QStringLiteral("mnuEditPaste")));
    }

    void captionsFollowTheModel() {
        on->session->act([this] { on->padre().active()->caption = "/tmp/informe.RTF"; });
        QCOMPARE(on->area()->currentSubWindow()->windowTitle(), QStringLiteral("/tmp/informe.RTF"));
    }

    void theFirstTimeItStandsWhereTheDefaultsSay() {
        QCOMPARE(on->window()->size(), QSize(pixels(6500), pixels(6500)));
        QCOMPARE(on->window()->pos(), QPoint(pixels(1000), pixels(1000)));
        QVERIFY(on->padre().place == frmPadre::Place{});
    }

    void closingKeepsItsPlace() {
        on->window()->move(200, 120);
        on->window()->resize(520, 410);
        QCoreApplication::processEvents();
        const int dpi = on->window()->logicalDpiX();
        QCOMPARE(on->padre().place.width, 520 * 1440.0 / dpi);
        on->window()->close();
        QVERIFY(!ventanaDeReportes(on->session->program()));
        QCOMPARE(stored("MainLeft"), std::to_string(200 * 1440 / dpi));
        QCOMPARE(stored("MainTop"), std::to_string(120 * 1440 / dpi));
        QCOMPARE(stored("MainWidth"), std::to_string(520 * 1440 / dpi));
        QCOMPARE(stored("MainHeight"), std::to_string(410 * 1440 / dpi));
        on->start();
        QVERIFY(on->open());
        QCOMPARE(on->window()->pos(), QPoint(200, 120));
        QCOMPARE(on->window()->size(), QSize(520, 410));
    }

    void closingUntouchedKeepsTheTwipsAsTheyWere() {
        on->window()->close();
        QCOMPARE(stored("MainLeft"), std::string("1000"));
        QCOMPARE(stored("MainWidth"), std::string("6500"));
    }

    void minimizedAtClosingTheFormerPlaceStays() {
        on->window()->resize(520, 410);
        on->window()->close();
        const auto width = stored("MainWidth");
        QVERIFY(on->open());
        on->window()->resize(600, 400);
        on->window()->showMinimized();
        QCoreApplication::processEvents();
        QVERIFY(on->padre().place.minimized);
        on->window()->close();
        QCOMPARE(stored("MainWidth"), width);
    }

    void aPlaceOffTheScreenComesBackIntoSight() {
        on->window()->close();
        on->session->platform().setSetting("MainLeft", "90000");
        on->session->platform().setSetting("MainTop", "-9000");
        QVERIFY(on->open());
        const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
        QVERIFY(room.contains(QRect(on->window()->pos(), on->window()->size())));
        // Until the user moves it, the stored place stays as it was.
        on->window()->close();
        QCOMPARE(stored("MainLeft"), std::string("90000"));
    }

    void exitClosesItAndTheProgramGoesOn() {
        action("mnuFileExit")->trigger();
        QVERIFY(!ventanaDeReportes(on->session->program()));
        QVERIFY(!on->session->program().ended());
        // Its count of documents begins anew.
        QVERIFY(on->open());
        QCOMPARE(on->area()->currentSubWindow()->windowTitle(), QStringLiteral("Documento 1"));
    }
};

QTEST_MAIN(ReportWindowTest)
#include "ReportWindowTest.moc"
