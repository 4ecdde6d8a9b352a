#include "desktop/report/DocumentStrip.h"
#include "desktop/richtext/LayoutLimits.h"
#include "tests/desktop/report/ReportFixture.h"

#include <QClipboard>
#include <QFileDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>
#include <QTimer>

using namespace caudalera;

class ReportWindowTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<ReportFixture> on;

    QAction* action(const char* name) {
        return on->window()->findChild<QAction*>(QLatin1String(name));
    }
    DocumentStrip& strip() { return *on->window()->findChild<DocumentStrip*>(); }
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

    void theStripListsTheDocumentsAndMarksTheActiveOne() {
        action("mnuFileNew")->trigger();
        action("mnuFileNew")->trigger();
        QCOMPARE(strip().count(), 3);
        QCOMPARE(strip().tabText(0), QStringLiteral("Documento 1"));
        QCOMPARE(strip().currentIndex(), 2);
        // It stands below the documents.
        QVERIFY(strip().mapTo(on->window(), QPoint()).y() >=
                on->area()->mapTo(on->window(), QPoint()).y() + on->area()->height());
        QTest::mouseClick(&strip(), Qt::LeftButton, {}, strip().tabRect(1).center());
        QCOMPARE(on->padre().active(), on->padre().documents()[1].get());
        QCOMPARE(on->area()->currentSubWindow()->windowTitle(), QStringLiteral("Documento 2"));
        QTest::keyClicks(QApplication::focusWidget(), "dos");
        QCOMPARE(QString::fromStdString(on->padre().documents()[1]->rtfText.text()),
                 QStringLiteral("dos"));
        // The other way round, and when one goes.
        on->area()->setActiveSubWindow(on->area()->subWindowList()[0]);
        QCOMPARE(strip().currentIndex(), 0);
        on->area()->currentSubWindow()->close();
        QCOMPARE(strip().count(), 2);
        QCOMPARE(strip().tabText(0), QStringLiteral("Documento 2"));
        QCOMPARE(on->padre().active(),
                 on->padre().documents()[static_cast<std::size_t>(strip().currentIndex())].get());
        on->session->act([this] { on->padre().closeDocument(*on->padre().documents()[0]); });
        on->session->act([this] { on->padre().closeDocument(*on->padre().documents()[0]); });
        QVERIFY(strip().isHidden());
    }

    void longNamesAreCutInTheStripAndItScrolls() {
        const QString path =
            QStringLiteral("/una/carpeta/Caudales de Gumbel & Nash de toda la cuenca.rtf");
        on->session->act([&] { on->padre().active()->caption = path.toStdString(); });
        QCOMPARE(strip().tabToolTip(0), path);
        QVERIFY(strip().tabRect(0).width() <
                strip().fontMetrics().horizontalAdvance(QFileInfo(path).fileName()));
        QCOMPARE(strip().tabText(0),
                 QStringLiteral("Caudales de Gumbel && Nash de toda la cuenca.rtf"));
        for (int i = 0; i < 12; ++i)
            action("mnuFileNew")->trigger();
        QCOMPARE(on->window()->width(), pixels(6500));
        // The current one is in sight, the first is scrolled away.
        QVERIFY(strip().rect().contains(strip().tabRect(12)));
        QVERIFY(strip().tabRect(0).right() < 0);
    }

    void savingConfirmsItself() {
        const QTemporaryDir folder;
        const QString path = QDir::toNativeSeparators(folder.filePath("informe.rtf"));
        const auto status = [this] { return on->window()->statusBar()->currentMessage(); };
        on->session->act([&] { on->padre().active()->caption = path.toStdString(); });
        QCOMPARE(status(), QString());
        action("mnuFileSave")->trigger();
        QCOMPARE(status(), QStringLiteral("Guardado: ") + path);
        QVERIFY(QFile::exists(path));
        on->window()->statusBar()->clearMessage();
        const auto dialog = [](bool accept, const QString& name) {
            QTimer::singleShot(0, [accept, name] {
                auto& box = *qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
                box.selectFile(name);
                accept ? QMetaObject::invokeMethod(&box, "accept") : (box.reject(), true);
            });
        };
        dialog(false, path);
        action("mnuFileSaveAs")->trigger();
        QCOMPARE(status(), QString());
        const QString other = QDir::toNativeSeparators(folder.filePath("otro.rtf"));
        dialog(true, other);
        action("mnuFileSaveAs")->trigger();
        QCOMPARE(status(), QStringLiteral("Guardado: ") + other);
        on->window()->statusBar()->clearMessage();
        // Opening says nothing.
        dialog(true, path);
        action("mnuFileOpen")->trigger();
        QCOMPARE(status(), QString());
        QCOMPARE(on->padre().active()->caption, path.toStdString());
    }

    void aPasteThatIsTooLongIsRefusedInWords() {
        QTest::keyClicks(on->view(), "ab");
        on->session->act([this] { on->text().select(0, 1); });
        const auto paste = [this](const QString& text) {
            QGuiApplication::clipboard()->setText(text);
            QString told;
            QTimer::singleShot(0, [&told] {
                if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                    told = box->windowTitle() + ": " + box->text();
                    box->buttons().constFirst()->click();
                }
            });
            action("mnuEditPaste")->trigger();
            QCoreApplication::processEvents();
            return told;
        };
        const QString tooMany =
            paste(QString(static_cast<qsizetype>(richtext::mostParagraphs), u'\n'));
        QVERIFY(tooMany.startsWith("Pegar: Lo que se pega no cabe"));
        QVERIFY(tooMany.contains(QString::fromUtf8("100\u00A0001 párrafos")));
        QVERIFY(paste(QString(400000, u'x'))
                    .contains(QString::fromUtf8("una palabra de 400\u00A0001 caracteres")));
        QCOMPARE(on->plainText(), QStringLiteral("ab"));
        QCOMPARE(on->text().selLength(), std::size_t{1});
        QCOMPARE(paste(QStringLiteral("x")), QString());
        QCOMPARE(on->plainText(), QStringLiteral("xb"));
    }

    void aReportThatIsTooLongIsNeitherEditedNorPrinted() {
        on->session->act(
            [this] { on->text().assign(std::vector<Paragraph>(richtext::mostParagraphs + 5)); });
        QGuiApplication::clipboard()->setText(QStringLiteral("x"));
        int told = 0;
        for (const char* name : {"mnuEditCut", "mnuEditPaste", "mnuFilePrint"}) {
            QTimer::singleShot(0, [&told] {
                if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                    told += box->text().contains("demasiado largo") ? 1 : 0;
                    box->buttons().constFirst()->click();
                }
            });
            action(name)->trigger();
        }
        QCOMPARE(told, 3);
        QCOMPARE(on->text().paragraphs().size(), richtext::mostParagraphs + 5);
        // Saving writes all of it.
        const QTemporaryDir folder;
        const QString path = folder.filePath("todo.rtf");
        on->session->act([&] { on->padre().active()->caption = path.toStdString(); });
        action("mnuFileSave")->trigger();
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(readRtf(file.readAll().toStdString()).paragraphs().size(),
                 richtext::mostParagraphs + 5);
    }

    void captionsFollowTheModel() {
        on->session->act([this] { on->padre().active()->caption = "/a/informe.RTF"; });
        QCOMPARE(on->area()->currentSubWindow()->windowTitle(), QStringLiteral("/a/informe.RTF"));
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

    void withinTheRunItComesBackMaximised() {
        on->window()->showMaximized();
        QCoreApplication::processEvents();
        on->window()->close();
        QVERIFY(on->open());
        QVERIFY(on->window()->isMaximized());
        on->window()->showNormal();
        QCoreApplication::processEvents();
        on->window()->close();
        QVERIFY(on->open());
        QVERIFY(!on->window()->isMaximized());
        on->window()->showMaximized();
        on->start();
        QVERIFY(on->open());
        QVERIFY(!on->window()->isMaximized());
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
