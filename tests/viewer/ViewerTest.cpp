#include "viewer/ChmFile.h"
#include "viewer/HelpSearch.h"
#include "viewer/OneViewer.h"
#include "viewer/SiteMap.h"
#include "viewer/ViewerWindow.h"

#include <QAction>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QProcess>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>
#include <memory>

namespace caudalera::viewer {

class ViewerTest : public QObject {
    Q_OBJECT

private slots:
    void theFileTellsItsPagesAndItsFirstOne() {
        const ChmFile file(QStringLiteral(CAUDALERA_HELP));
        QVERIFY(file.isOpen());
        QCOMPARE(file.title(), QString("Manual de Caudalera"));
        QCOMPARE(file.firstPage(), QString("/inicio.html"));
        QVERIFY(file.pages().contains("/frmDisGumbel.html"));
        QVERIFY(QString::fromUtf8(file.read("/frmDisGumbel.html"))
                    .contains("<title>Distribución Gumbel</title>"));
        QVERIFY(file.read("/falta.html").isEmpty());
    }

    void aFileThatIsNoneOpensNothing() {
        const QTemporaryDir folder;
        QFile bad(folder.filePath("Ayuda.chm"));
        QVERIFY(bad.open(QIODevice::WriteOnly));
        bad.write("ITSF is not all");
        bad.close();
        const ChmFile file(bad.fileName());
        QVERIFY(!file.isOpen());
        QVERIFY(file.pages().isEmpty());
        QVERIFY(file.read("/inicio.html").isEmpty());
        ViewerWindow window(bad.fileName());
        window.openTopic({});
        QVERIFY(page(window).toPlainText().contains("No se puede leer"));
    }

    void aSiteMapIsAListOfLevels() {
        const auto entries = readSiteMap(
            "<UL>\n<LI><OBJECT type=\"text/sitemap\">\n<param name=\"Name\" value=\"Curvas\">\n"
            "</OBJECT>\n<UL>\n<LI><OBJECT type=\"text/sitemap\">\n"
            "<param name=\"Name\" value=\"Variaci\xF3n &lt;mensual&gt; &#8594;\">\n"
            "<param name=\"Local\" value=\"a.html\">\n</OBJECT>\n</UL>\n"
            "<LI><OBJECT type=\"text/sitemap\"><param name=\"Name\" value=\"Fin\">"
            "<param name=\"Local\" value=\"b.html\"></OBJECT></UL>");
        QCOMPARE(entries.size(), 3);
        QCOMPARE(entries[0].name, QString("Curvas"));
        QCOMPARE(entries[0].level, 1);
        QCOMPARE(entries[0].page, QString());
        QCOMPARE(entries[1].name, QString("Variación <mensual> →"));
        QCOMPARE(entries[1].level, 2);
        QCOMPARE(entries[1].page, QString("/a.html"));
        QCOMPARE(entries[2].level, 1);
    }

    void theSearchKnowsNoAccentsAndNoCapitals() {
        HelpSearch search;
        search.add("/a.html", "<head><title>Distribución normal</title></head>"
                              "<p>La varianza &amp; la Distribución.</p>");
        search.add("/b.html", "<head><title>Otra</title></head><p>una distribucion</p>"
                              "<p>redistribución</p>");
        search.add("/c.html", "<head><title>Nada</title></head><p>redistribución</p>");
        const auto hits = search.find("DISTRIBUCIÓN");
        QCOMPARE(hits.size(), 2);
        // The title counts.
        QCOMPARE(hits[0].page, QString("/a.html"));
        QCOMPARE(hits[0].excerpt, QString("La varianza & la Distribución."));
        QCOMPARE(hits[1].page, QString("/b.html"));
        QCOMPARE(search.find("distrib una").size(), 1);
        QVERIFY(search.find("distribución caudal").isEmpty());
        QVERIFY(search.find("  ").isEmpty());
    }

    void placesStandWhereTheWordsBegin() {
        const auto places = placesOf("Período y periodo", {"period"});
        QCOMPARE(places.size(), 2);
        QCOMPARE(places[0].at, 0);
        QCOMPARE(places[1].at, 10);
        QCOMPARE(places[1].length, 6);
    }

    void aTopicOpensItsPageAndMarksItInTheContents() {
        ViewerWindow window(QStringLiteral(CAUDALERA_HELP));
        window.openTopic("frmDisGumbel.html");
        QCOMPARE(page(window).page(), QString("/frmDisGumbel.html"));
        QVERIFY(page(window).toPlainText().startsWith("Distribución Gumbel"));
        QCOMPARE(child<QTreeWidget>(window, "contents").currentItem()->text(0),
                 QString("Distribución Gumbel"));
        window.openTopic("falta.html");
        QCOMPARE(page(window).page(), QString("/inicio.html"));
    }

    void theContentsOpenTheirPages() {
        ViewerWindow window(QStringLiteral(CAUDALERA_HELP));
        window.openTopic({});
        show(window);
        auto& contents = child<QTreeWidget>(window, "contents");
        QTreeWidgetItem* second = contents.topLevelItem(1);
        QTest::mouseClick(contents.viewport(), Qt::LeftButton, {},
                          contents.visualItemRect(second).center());
        QCOMPARE(page(window).page(), QString("/primeros-pasos.html"));
        // And back again.
        child<QAction>(window, "Atras").trigger();
        QCOMPARE(page(window).page(), QString("/inicio.html"));
        child<QAction>(window, "Adelante").trigger();
        QCOMPARE(page(window).page(), QString("/primeros-pasos.html"));
    }

    void aSearchedWordIsMarkedOnItsPage() {
        ViewerWindow window(QStringLiteral(CAUDALERA_HELP));
        window.openTopic({});
        show(window);
        child<QAction>(window, "Buscar").trigger();
        auto& query = child<QLineEdit>(window, "query");
        QTRY_VERIFY(query.isVisible());
        QTest::keyClicks(&query, "evapotranspiracion penman");
        auto& hits = child<QListWidget>(window, "hits");
        QVERIFY(hits.count() > 0);
        QVERIFY(hits.item(0)->text().contains("Penman"));
        QTest::keyClick(&query, Qt::Key_Return);
        QCOMPARE(page(window).page(), QString("/frmPenman.html"));
        QVERIFY(!page(window).extraSelections().isEmpty());
        for (const auto& mark : page(window).extraSelections()) {
            const QString word = folded(mark.cursor.selectedText());
            QVERIFY2(word == "evapotranspiracion" || word == "penman", qPrintable(word));
        }
        // The next page is without marks.
        window.openTopic("inicio.html");
        QVERIFY(page(window).extraSelections().isEmpty());
        query.clear();
        QTest::keyClicks(&query, "zzz");
        QCOMPARE(hits.count(), 1);
        QVERIFY(!(hits.item(0)->flags() & Qt::ItemIsEnabled));
    }

    void theIndexShowsWhatHoldsTheTypedText() {
        ViewerWindow window(QStringLiteral(CAUDALERA_HELP));
        show(window);
        child<QTabWidget>(window, "panes").setCurrentIndex(1);
        auto& filter = child<QLineEdit>(window, "indexFilter");
        QTest::keyClicks(&filter, "gumbel");
        auto& index = child<QListWidget>(window, "index");
        int shown = 0;
        for (int row = 0; row < index.count(); ++row) {
            if (!index.isRowHidden(row)) {
                ++shown;
                QVERIFY(folded(index.item(row)->text()).contains("gumbel"));
            }
        }
        QVERIFY(shown > 0 && shown < index.count());
        QTest::keyClick(&filter, Qt::Key_Return);
        QVERIFY(!page(window).page().isEmpty());
    }

    void thePageGrowsAndShrinks() {
        ViewerWindow window(QStringLiteral(CAUDALERA_HELP));
        const qreal before = page(window).font().pointSizeF();
        child<QAction>(window, "Acercar").trigger();
        QVERIFY(page(window).font().pointSizeF() > before);
        child<QAction>(window, "Alejar").trigger();
        QCOMPARE(page(window).font().pointSizeF(), before);
    }

    void noPictureIsWiderThanThePage() {
        ViewerWindow window(QStringLiteral(CAUDALERA_HELP));
        window.resize(700, 500);
        show(window);
        window.openTopic("frmDisGumbel.html");
        QTRY_VERIFY(page(window).document()->idealWidth() <= page(window).viewport()->width());
    }

    void aSecondViewerHandsItsTopicOver() {
        const QTemporaryDir folder;
        OneViewer first(folder.path(), QStringLiteral(CAUDALERA_HELP));
        QVERIFY(first.take("a.html"));
        const QSignalSpy asked(&first, &OneViewer::asked);
        OneViewer second(folder.path(), QStringLiteral(CAUDALERA_HELP));
        QVERIFY(!second.take("b.html"));
        QTRY_COMPARE(asked.size(), 1);
        QCOMPARE(asked.front().front().toString(), QString("b.html"));
        // Another help file is another viewer's.
        OneViewer third(folder.path(), folder.filePath("otra.chm"));
        QVERIFY(third.take({}));
    }

#ifndef Q_OS_WIN
    void theLauncherAmongTheDataStartsTheViewer() {
        QProcess viewer;
        const QTemporaryDir folder;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("TMPDIR", folder.path());
        viewer.setProcessEnvironment(environment);
        viewer.start(QStringLiteral(CAUDALERA_HH),
                     {QStringLiteral(CAUDALERA_HELP "::/frmPenman.html")});
        QVERIFY(viewer.waitForStarted());
        // It stays, and a second one ends at once.
        QVERIFY(!viewer.waitForFinished(1500));
        QProcess another;
        another.setProcessEnvironment(environment);
        another.start(QStringLiteral(CAUDALERA_HH), {QStringLiteral(CAUDALERA_HELP)});
        QVERIFY(another.waitForFinished(20000));
        QCOMPARE(another.exitCode(), 0);
        QCOMPARE(viewer.state(), QProcess::Running);
        viewer.kill();
        QVERIFY(viewer.waitForFinished());
    }
#endif

private:
    template <typename Kind>
    static Kind& child(const QWidget& window, const char* name) {
        auto* found = window.findChild<Kind*>(QLatin1String(name));
        if (!found)
            qFatal("no %s", name);
        return *found;
    }
    static PageBrowser& page(const QWidget& window) {
        return child<PageBrowser>(window, "page");
    }
    static void show(QWidget& window) {
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
    }
};

} // namespace caudalera::viewer

QTEST_MAIN(caudalera::viewer::ViewerTest)
#include "ViewerTest.moc"
