#include "desktop/chart/ChartExport.h"
#include "desktop/chart/ChartImage.h"
#include "tests/desktop/DesktopFixture.h"
#include "tests/desktop/chart/ChartFixture.h"

#include <QFileDialog>
#include <QSvgRenderer>

using namespace caudalera;

/// The picture of a chart on its way to a file.
class ChartExportTest : public QObject {
    Q_OBJECT

private:
    QTemporaryDir folder;
    std::unique_ptr<DesktopFixture> desktop;
    QCustomPlot* plot = nullptr;

    QString in(const QString& name) const { return folder.filePath(name); }
    static QByteArray contents(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static void write(const QString& path, const QByteArray& text) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    /// What a file is by its first bytes.
    static QString kindOf(const QString& path) {
        const QByteArray all = contents(path);
        if (all.startsWith("\x89PNG\r\n"))
            return "png";
        if (all.startsWith("\xFF\xD8\xFF"))
            return "jpg";
        if (all.startsWith("BM"))
            return "bmp";
        if (all.startsWith("%PDF"))
            return "pdf";
        return QSvgRenderer(all).isValid() ? "svg" : "?";
    }
    static QFileDialog& saving(QDialog& dialog) { return dynamic_cast<QFileDialog&>(dialog); }
    static void accept(QDialog& dialog) { dialog.done(QDialog::Accepted); }
    static QString filterOf(const QString& suffix) {
        for (const QString& filter : chartImageFilters())
            if (filter.contains("*." + suffix))
                return filter;
        return {};
    }
    /// Answers the dialog of the menu's entry with a name under a filter.
    void save(const QString& name, const QString& filter) {
        desktop->expectDialog([=](QDialog& dialog) {
            saving(dialog).selectNameFilter(filter);
            emit saving(dialog).filterSelected(filter);
            saving(dialog).selectFile(name);
            accept(dialog);
        });
        chooseInMenu(*plot, QStringLiteral("Guardar imagen..."));
    }

private slots:
    void init() {
        desktop = std::make_unique<DesktopFixture>();
        desktop->open("frmEjRegSimple");
        desktop->typeValues({"1", "2", "3", "5"});
        desktop->clickButton("bGraficar");
        plot = desktop->view().findChild<QCustomPlot*>();
        QVERIFY(plot->isVisible());
    }
    void cleanup() {
        QCOMPARE(desktop->unexpectedBoxes(), QString());
        desktop.reset();
    }

    void aCaptionBecomesAFileName_data() {
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("name");
        QTest::newRow("as it is") << "Curva de variación estacional"
                                  << "Curva de variación estacional";
        QTest::newRow("what no file system takes") << "P(Q>q) <1/2>: \"a\\b\"|c?*"
                                                   << "P(Q q) 1 2 a b c";
        QTest::newRow("no suffix of its own") << "vol. 2.5\tfin."
                                              << "vol 2 5 fin";
        QTest::newRow("nothing") << " ... "
                                 << "gráfico";
        QTest::newRow("long") << QString(300, u'x') << QString(80, u'x');
    }
    void aCaptionBecomesAFileName() {
        QFETCH(QString, caption);
        QTEST(imageNameFor(caption), "name");
    }

    void theSuffixNamesTheFormatOrElseTheFilterDoes_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("written");
        QTest::newRow("its own") << "/a/c.JPEG" << filterOf("png") << "/a/c.JPEG";
        QTest::newRow("none") << "/a/c" << filterOf("svg") << "/a/c.svg";
        QTest::newRow("unknown") << "/a/c.2024" << filterOf("jpg") << "/a/c.2024.jpg";
        QTest::newRow("of a folder") << "/a.png/c" << filterOf("bmp") << "/a.png/c.bmp";
        QTest::newRow("a full stop") << "/a/c." << filterOf("pdf") << "/a/c.pdf";
        QTest::newRow("no filter") << "/a/c" << QString() << "/a/c.png";
    }
    void theSuffixNamesTheFormatOrElseTheFilterDoes() {
        QFETCH(QString, path);
        QFETCH(QString, filter);
        QTEST(withImageSuffix(path, filter), "written");
    }

    void theMenuSavesTheImage_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("kind");
        for (const char* suffix : {"png", "jpg", "bmp", "svg", "pdf"}) {
            QTest::newRow(suffix) << "curva" << filterOf(suffix) << QString("curva.") + suffix
                                  << suffix;
        }
        QTest::newRow("the suffix wins") << "otra.jpeg" << filterOf("png") << "otra.jpeg"
                                         << "jpg";
        QTest::newRow("unknown") << "curva.2024" << filterOf("svg") << "curva.2024.svg"
                                 << "svg";
    }
    void theMenuSavesTheImage() {
        QFETCH(QString, name);
        QFETCH(QString, filter);
        QFETCH(QString, file);
        QVERIFY(!filter.isEmpty());
        save(in(name), filter);
        QVERIFY2(QFile::exists(in(file)), qPrintable(file));
        QTEST(kindOf(in(file)), "kind");
        if (const QImage image(in(file)); !image.isNull() && !file.endsWith("svg"))
            QCOMPARE(image.size(), 3 * plot->size());
    }

    /// At first the pictures of the user, or else the documents; then where the last one went.
    void theDialogSuggestsANameAndAFolder() {
        QTemporaryDir home;
        const QByteArray before = qgetenv("HOME");
        qputenv("HOME", home.path().toUtf8());
        const auto expectFolder = [&](const QString& path) {
            desktop->expectDialog([this, path](QDialog& dialog) {
                QCOMPARE(saving(dialog).directory().canonicalPath(), QDir(path).canonicalPath());
                QCOMPARE(
                    saving(dialog).selectedFiles().constFirst(),
                    saving(dialog).directory().filePath(
                        imageNameFor(QString::fromStdString(desktop->window().caption)) + ".png"));
                dialog.reject();
            });
            chooseInMenu(*plot, QStringLiteral("Guardar imagen..."));
        };
        // The one of another test is gone.
        QVERIFY(QDir(home.path()).mkdir("antes"));
        save(home.filePath("antes/curva.png"), filterOf("png"));
        QVERIFY(QDir(home.filePath("antes")).removeRecursively());
        expectFolder(home.path());
        QVERIFY(QDir(home.path()).mkdir("Documents"));
        expectFolder(home.filePath("Documents"));
        QVERIFY(QDir(home.path()).mkdir("Pictures"));
        expectFolder(home.filePath("Pictures"));
        QVERIFY(QDir(home.path()).mkdir("otra"));
        save(home.filePath("otra/curva.png"), filterOf("png"));
        expectFolder(home.filePath("otra"));
        QVERIFY(QDir(home.filePath("otra")).removeRecursively());
        expectFolder(home.filePath("Pictures"));
        qputenv("HOME", before);
    }

    void aFileThatTheDialogDidNotKnowIsNotReplacedInSilence() {
        write(in("vieja.2023.png"), "algo");
        const DesktopFixture::Box asked{"vieja.2023.png ya existe.\n¿Desea reemplazarlo?",
                                        "Guardar imagen", QMessageBox::Question};
        desktop->expectBox(asked);
        save(in("vieja.2023"), filterOf("png"));
        QCOMPARE(contents(in("vieja.2023.png")), QByteArray("algo"));
        desktop->expectBox(asked, [] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            for (QAbstractButton* button : box->buttons())
                if (button->text() == QStringLiteral("Reemplazar"))
                    button->click();
        });
        save(in("vieja.2023"), filterOf("png"));
        QCOMPARE(kindOf(in("vieja.2023.png")), QStringLiteral("png"));
    }

    void anImageThatCannotBeWrittenIsTold() {
        for (const char* name : {"a.png", "a.jpg", "a.bmp", "a.pdf", "a.svg"}) {
            const QString path = in(QStringLiteral("no/hay/") + name);
            QVERIFY(!saveChartImage(*plot, path));
            desktop->expectBox({"No se pudo guardar la imagen en\n" +
                                    QDir::toNativeSeparators(path) +
                                    "\n\nCompruebe que la carpeta existe y que puede escribir en "
                                    "ella.",
                                "Guardar imagen", QMessageBox::Warning});
            save(path, filterOf("png"));
        }
    }
};

QTEST_MAIN(ChartExportTest)
#include "ChartExportTest.moc"
