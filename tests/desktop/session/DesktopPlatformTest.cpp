#include "desktop/style/Title.h"
#include "tests/desktop/DesktopFixture.h"

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QPainter>
#include <QPixmap>
#include <QPrinter>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <QScopeGuard>

namespace caudalera {

#ifndef Q_OS_WIN
/// A help viewer that only writes down what it was asked for.
class FakeViewer {
public:
    explicit FakeViewer(const QTemporaryDir& folder)
        : viewer_(folder.filePath("hh")), asked_(folder.filePath("asked")) {
        if (!viewer_.open(QIODevice::WriteOnly))
            throw std::runtime_error("no viewer");
        viewer_.write("#!/bin/sh\necho \"$1\" > \"$(dirname \"$0\")/tmp\"\n"
                      "mv \"$(dirname \"$0\")/tmp\" \"$(dirname \"$0\")/asked\"\n");
        viewer_.close();
        viewer_.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    ~FakeViewer() {
        QFile::remove(viewer_.fileName());
        QFile::remove(asked_);
    }
    FakeViewer(const FakeViewer&) = delete;
    FakeViewer& operator=(const FakeViewer&) = delete;

    /// Empty as long as it was not started.
    QString asked() const {
        QFile file(asked_);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).trimmed()
                                              : QString();
    }

private:
    QFile viewer_;
    QString asked_;
};
#endif

class DesktopPlatformTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        qputenv("CAUDALERA_DIR", folder_.path().toUtf8());
        restart();
    }
    void cleanup() {
        const QString boxes = desktop_->unexpectedBoxes();
        desktop_.reset();
        QVERIFY2(boxes.isEmpty(), qPrintable(boxes));
    }

    void filtersTellDescriptionAndPattern_data() {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("shown");
        QTest::newRow("series") << "Valores de X|*.X"
                                << "Valores de X (*.X)";
        QTest::newRow("named already") << "Archivos (*.RTF)|*.RTF"
                                       << "Archivos (*.RTF)";
        QTest::newRow("several") << "Uno|*.A|Dos|*.B"
                                 << "Uno (*.A);;Dos (*.B)";
    }
    void filtersTellDescriptionAndPattern() {
        QFETCH(QString, filter);
        QFETCH(QString, shown);
        QCOMPARE(nameFilter(filter.toStdString()), shown);
    }

    void aFileDialogStartsBesideTheProgramAndGivesTheNameAsItIs() {
        desktop_->expectDialog([this](QDialog& dialog) {
            auto& files = dynamic_cast<QFileDialog&>(dialog);
            QCOMPARE(files.windowTitle(), QStringLiteral("Seleccionar el archivo a cargar"));
            QCOMPARE(files.nameFilters(), QStringList("Valores X (*.X)"));
            QCOMPARE(files.directory().absolutePath(), QApplication::applicationDirPath());
            answer(files, folder_.filePath("sin extensión"));
        });
        const auto chosen = platform().showFileDialog(
            {FileDialog::Kind::open, "Seleccionar el archivo a cargar", "Valores X|*.X", ""});
        QVERIFY(chosen);
        QCOMPARE(QDir::fromNativeSeparators(QString::fromStdString(*chosen)),
                 folder_.filePath("sin extensión"));
    }

    void aSaveDialogStartsWithTheLastNameAndOverwritesWithoutAsking() {
        QFile existing(folder_.filePath("serie.X"));
        QVERIFY(existing.open(QIODevice::WriteOnly));
        existing.close();
        desktop_->expectDialog([this](QDialog& dialog) {
            auto& files = dynamic_cast<QFileDialog&>(dialog);
            QCOMPARE(files.acceptMode(), QFileDialog::AcceptSave);
            QCOMPARE(files.directory().absolutePath(), folder_.path());
            QCOMPARE(files.findChild<QLineEdit*>()->text(), QStringLiteral("serie.X"));
            answer(files, QStringLiteral("serie.X"));
        });
        const auto chosen =
            platform().showFileDialog({FileDialog::Kind::save, "Guardar", "Valores de X|*.X",
                                       existing.fileName().toStdString()});
        QVERIFY(chosen);
        QCOMPARE(QDir::fromNativeSeparators(QString::fromStdString(*chosen)), existing.fileName());
    }

    void aReportsNameGetsItsSuffixAndASeriesNameDoesNot() {
        const auto saved = [this](const char* filter, const char* name) {
            desktop_->expectDialog([this, name](QDialog& dialog) {
                answer(dynamic_cast<QFileDialog&>(dialog),
                       folder_.filePath(QString::fromUtf8(name)));
            });
            const auto chosen =
                platform().showFileDialog({FileDialog::Kind::save, "Guardar", filter, ""});
            return QFileInfo(QString::fromStdString(chosen.value_or(""))).fileName();
        };
        QCOMPARE(saved("Archivos (*.RTF)|*.RTF", "rep1"), QStringLiteral("rep1.rtf"));
        QCOMPARE(saved("Archivos RTF(*.RTF)|*.RTF", "rep1.txt"), QStringLiteral("rep1.txt"));
        QCOMPARE(saved("Valores de X|*.X", "serie"), QStringLiteral("serie"));
    }

    void aCancelledFileDialogGivesNone() {
        desktop_->expectDialog([](QDialog& dialog) { dialog.reject(); });
        QVERIFY(!platform().showFileDialog({FileDialog::Kind::open, "Abrir", "Todo|*.*", ""}));
    }

    void aReportThatIsTooLongIsRefusedBeforeItIsTaken() {
        const QTemporaryDir folder;
        const QString path = folder.filePath("largo.rtf");
        const auto opened = [&](qsizetype lineFeeds) {
            QFile file(path);
            static_cast<void>(file.open(QIODevice::WriteOnly));
            file.write(QByteArray(lineFeeds, '\n'));
            file.close();
            desktop_->expectDialog(
                [&](QDialog& dialog) { answer(dynamic_cast<QFileDialog&>(dialog), path); });
            return platform().showFileDialog(
                {FileDialog::Kind::open, "Abrir", "Archivos (*.RTF)|*.RTF", ""});
        };
        QVERIFY(opened(99999));
        desktop_->expectBox(
            {QString::fromUtf8("«largo.rtf» es demasiado largo para mostrarlo: 650\u00A0001 "
                               "párrafos, y caben 100\u00A0000.\n\nNo se ha abierto; el "
                               "documento queda como estaba."),
             "Abrir", QMessageBox::Information});
        QVERIFY(!opened(650000));
    }

    void settingsLastBeyondTheProgram() {
        QVERIFY(!platform().setting("MainLeft"));
        platform().setSetting("MainLeft", " 1500");
        QCOMPARE(*platform().setting("MainLeft"), std::string(" 1500"));
    }

    void theClipboardCarriesText() {
        platform().setClipboardText("caudal máximo");
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("caudal máximo"));
        QGuiApplication::clipboard()->setText("año");
        QCOMPARE(platform().clipboardText(), std::string("año"));
    }

    void theSeparatorIsTheLocalesUnlessOneIsNamed() {
        const QByteArray usual = qgetenv("CAUDALERA_DECIMAL");
        const auto restore = qScopeGuard([&usual] { qputenv("CAUDALERA_DECIMAL", usual); });
        qputenv("CAUDALERA_DECIMAL", ",");
        restart();
        QCOMPARE(platform().decimalSeparator(), std::string(","));
        qputenv("CAUDALERA_DECIMAL", "·");
        QCOMPARE(platform().decimalSeparator(), std::string(","));
        restart();
        QCOMPARE(platform().decimalSeparator(), std::string("·"));
        qunsetenv("CAUDALERA_DECIMAL");
        restart();
        QCOMPARE(QString::fromStdString(platform().decimalSeparator()),
                 QLocale::system().decimalPoint());
    }

#ifndef Q_OS_WIN
    void theHelpViewerIsStartedFromTheFixedDirectory() {
        const FakeViewer viewer(folder_);
        QVERIFY(platform().startProcess("c:\\Caudalera\\hh c:\\Caudalera\\Ayuda.chm"));
        QTRY_COMPARE(viewer.asked(), folder_.filePath("Ayuda.chm"));
    }

    void theKeyOpensThePageOfItsWindow() {
        const FakeViewer viewer(folder_);
        desktop_->open("frmDisGumbel");
        QTest::keyClick(&desktop_->widget<QWidget>("txtxt"), Qt::Key_F1);
        QTRY_COMPARE(viewer.asked(), folder_.filePath("Ayuda.chm::/frmDisGumbel.html"));
    }

    void theKeyInADialogOpensThePageOfTheWindowBehindIt() {
        const FakeViewer viewer(folder_);
        desktop_->open("frmPenman");
        desktop_->expectDialog([](QDialog& dialog) {
            QTest::keyClick(&dialog, Qt::Key_F1);
            dialog.reject();
        });
        QFileDialog dialog(&desktop_->view());
        dialog.exec();
        QTRY_COMPARE(viewer.asked(), folder_.filePath("Ayuda.chm::/frmPenman.html"));
    }
#endif

    void aProcessThatIsNotThereIsNotStarted() {
        QVERIFY(!platform().startProcess("c:\\Caudalera\\hh c:\\Caudalera\\Ayuda.chm"));
        QVERIFY(!platform().startProcess(""));
    }

    void aPrintedImageFillsThePageInItsProportions_data() {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<bool>("across");
        QTest::newRow("wide") << QSize(400, 100) << true;
        QTest::newRow("high") << QSize(100, 200) << false;
    }
    void aPrintedImageFillsThePageInItsProportions() {
        QFETCH(QSize, size);
        QFETCH(bool, across);
        QPixmap image(size);
        image.fill(Qt::red);
        QPrinter printer;
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(folder_.filePath("page.pdf"));
        printImage(printer, image);
        QCOMPARE(printer.pageLayout().orientation(),
                 across ? QPageLayout::Landscape : QPageLayout::Portrait);
        QFile file(folder_.filePath("page.pdf"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        // The page carries the picture, in its own number of dots.
        const QRegularExpression picture(
            QStringLiteral("/Width %1\\s+/Height %2").arg(size.width()).arg(size.height()));
        QVERIFY(picture.match(QString::fromLatin1(file.readAll())).hasMatch());
    }

    void aBoxIsWideEnoughForItsTitle() {
        const QString title = QStringLiteral("Error al leer los datos de la serie histórica");
        int width = 0;
        const auto shown = [&](const QString& text) {
            desktop_->expectBox({text, title, QMessageBox::Critical},
                                [&] { width = QApplication::activeModalWidget()->width(); });
            platform().showMessage({text.toStdString(), title.toStdString(), Icon::error});
            return width;
        };
        // The bar's font is at least as wide as the text's, and a button stands beside the title.
        const QFontMetrics metrics(QApplication::font());
        QVERIFY(shown("No") > metrics.horizontalAdvance(title) + 8 * metrics.height());
        QVERIFY(width >= style::titleWidth(title));
        QVERIFY(style::titleWidth(title) > style::titleWidth("Error"));
    }

    void anOpenMenuIsNoDialogsParent() {
        desktop_->open("frmParamEsta");
        QPointer<QMenu> menu = new QMenu(&desktop_->view());
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->addAction(QStringLiteral("Copiar"));
        menu->popup(desktop_->view().mapToGlobal(QPoint(10, 10)));
        QVERIFY(QTest::qWaitForWindowExposed(menu));
        QApplication::setActiveWindow(menu);
        QCOMPARE(QApplication::activeWindow(), menu.data());
        QWidget* parent = nullptr;
        desktop_->expectBox({"Hecho", "Caudalera", QMessageBox::NoIcon}, [&] {
            parent = QApplication::activeModalWidget()->parentWidget();
            // What a click beside it does, while the box stands.
            if (menu)
                menu->close();
        });
        platform().showMessage({"Hecho", "", Icon::none});
        QCOMPARE(parent, &desktop_->view());
        QTRY_VERIFY(!menu);
    }

    void aHiddenWindowIsNoDialogsParent() {
        desktop_->open("frmParamEsta");
        QWidget hidden;
        QApplication::setActiveWindow(&hidden);
        QWidget* parent = nullptr;
        desktop_->expectBox({"Hecho", "Caudalera", QMessageBox::NoIcon},
                            [&] { parent = QApplication::activeModalWidget()->parentWidget(); });
        platform().showMessage({"Hecho", "", Icon::none});
        QCOMPARE(parent, &desktop_->view());
    }

    void withoutAPrinterNothingIsPrintedAndNothingSaid() {
        // CTest hides the machine's printers; a start by hand does not.
        if (!QPrinterInfo::defaultPrinter().isNull())
            QSKIP("a printer stands ready, and no test prints");
        desktop_->open("frmParamEsta");
        desktop_->clickButton("bImprimir");
        QVERIFY(!desktop_->program().ended());
    }

private:
    void restart() {
        desktop_.reset();
        desktop_ = std::make_unique<DesktopFixture>();
    }
    DesktopPlatform& platform() {
        return desktop_->session.platform();
    }
    static void answer(QFileDialog& dialog, const QString& name) {
        dialog.findChild<QLineEdit*>()->setText(name);
        QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
    }

    QTemporaryDir folder_;
    std::unique_ptr<DesktopFixture> desktop_;
};

} // namespace caudalera

using caudalera::DesktopPlatformTest;
QTEST_MAIN(DesktopPlatformTest)
#include "DesktopPlatformTest.moc"
