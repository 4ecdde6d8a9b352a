#include "desktop/words/Words.h"

#include "desktop/words/FileKinds.h"
#include "tests/desktop/DesktopFixture.h"
#include "tests/desktop/words/ShownTexts.h"

#include <QAction>
#include <QClipboard>
#include <QColorDialog>
#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFontDialog>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPrintDialog>
#include <QProgressDialog>
#include <QPushButton>
#include <QScopeGuard>
#include <QScrollBar>
#include <QSet>
#include <QSpinBox>
#include <QTextEdit>
#include <qcustomplot.h>

namespace caudalera {

class WordsTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        // The program's own words, in a place without the toolkit's.
        own_ = std::make_unique<words::Words>(folder_.path());
        QCoreApplication::installTranslator(&unknown_);
        QCoreApplication::installTranslator(own_.get());
    }
    void cleanupTestCase() {
        QCoreApplication::removeTranslator(own_.get());
        QCoreApplication::removeTranslator(&unknown_);
    }
    void init() {
        unknown_.asked.clear();
        desktop_ = std::make_unique<DesktopFixture>();
        // What the fixture has installed knows the toolkit's own Spanish too.
        if (auto* installed = qApp->findChild<QTranslator*>(QStringLiteral("words")))
            QCoreApplication::removeTranslator(installed);
    }
    void cleanup() {
        const QString boxes = desktop_->unexpectedBoxes();
        desktop_.reset();
        QVERIFY2(boxes.isEmpty(), qPrintable(boxes));
        const QStringList asked = unknown_.asked.values();
        QVERIFY2(asked.isEmpty(), qPrintable(asked.join(u'\n')));
    }

    void whatIsUnknownIsNoticed() {
        static_cast<void>(QFileDialog::tr("An unknown text"));
        QCOMPARE(unknown_.asked.values(), QStringList("QFileDialog: An unknown text"));
        unknown_.asked.clear();
        QCOMPARE(foreign({"Archivo", "Ficheros de tipo:", "Look &in:", "&Undo\tCtrl+Z", "del"}),
                 QStringList({"Ficheros de tipo:", "Look &in:", "&Undo\tCtrl+Z"}));
    }

    void oneThingHasOneWord() {
        QCOMPARE(QFileDialog::tr("File &name:"), QStringLiteral("&Nombre de archivo:"));
        QCOMPARE(QFileDialog::tr("Go to the parent directory"),
                 QStringLiteral("Ir a la carpeta superior"));
        QCOMPARE(QPrintDialog::tr("Print to File (PDF)"),
                 QStringLiteral("Imprimir a archivo (PDF)"));
        QCOMPARE(QLineEdit::tr("Select All"), QStringLiteral("Seleccionar todo"));
    }

    void everyOwnTextKeepsThePlacesOfItsNumbers() {
        for (const auto& words :
             {words::dialogWords(), words::printingWords(), words::keyWords()}) {
            QVERIFY(!words.empty());
            for (const words::Word& word : words) {
                const QString english = QString::fromUtf8(word.english);
                const QString spanish = QString::fromUtf8(word.spanish);
                QVERIFY2(!spanish.isEmpty(), word.english);
                for (const char* place : {"%1", "%2", "%3"})
                    QVERIFY2(english.count(QLatin1String(place)) ==
                                 spanish.count(QLatin1String(place)),
                             word.english);
                // An access key, where there is one, and no more than one.
                QVERIFY2(english.count(u'&') == spanish.count(u'&'), word.english);
            }
        }
    }

    void noTextIsTranslatedTwice() {
        QSet<QString> seen;
        for (const auto& words :
             {words::dialogWords(), words::printingWords(), words::keyWords()}) {
            for (const words::Word& word : words) {
                const QString key = QString::fromUtf8(word.context) + u'|' + word.english;
                QVERIFY2(!seen.contains(key), qPrintable(key));
                seen.insert(key);
            }
        }
    }

    void keysAreNamedAsOnTheKeyboard_data() {
        QTest::addColumn<QKeySequence>("keys");
        QTest::addColumn<QString>("shown");
        QTest::newRow("new") << QKeySequence(Qt::CTRL | Qt::Key_N) << "Ctrl+N";
        QTest::newRow("delete") << QKeySequence(Qt::SHIFT | Qt::Key_Delete) << "Mayús+Supr";
        QTest::newRow("up") << QKeySequence(Qt::ALT | Qt::Key_Up) << "Alt+Arriba";
        QTest::newRow("page") << QKeySequence(Qt::CTRL | Qt::Key_PageDown) << "Ctrl+AvPág";
        QTest::newRow("function") << QKeySequence(Qt::Key_F4) << "F4";
    }
    void keysAreNamedAsOnTheKeyboard() {
        QFETCH(QKeySequence, keys);
        QFETCH(QString, shown);
        QCOMPARE(keys.toString(QKeySequence::NativeText), shown);
        QCOMPARE(QKeySequence::fromString(shown, QKeySequence::NativeText), keys);
    }

    void theToolkitsSpanishFillsUpWithOurWordForAFile() {
        const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
        QVERIFY(QFile::exists(folder + QStringLiteral("/qtbase_es.qm")));
        QTranslator theirs;
        QVERIFY(theirs.load(QStringLiteral("qtbase_es"), folder));
        const char* context = "QFile";
        const char* english = "Destination file is the same file.";
        QVERIFY(theirs.translate(context, english).contains(QStringLiteral("fichero")));
        const QString ours = words::Words(folder).translate(context, english);
        QCOMPARE(ours, theirs.translate(context, english)
                           .replace(QStringLiteral("fichero"), QStringLiteral("archivo")));
        QVERIFY(own_->translate(context, english).isNull());
    }

    void fileKindsAreSpanishWhateverTheSystems() {
        const words::FileKinds kinds;
        QCOMPARE(kinds.type(QFileInfo(folder_.path())), QStringLiteral("Carpeta"));
        QCOMPARE(kinds.type(QFileInfo(QDir::rootPath())), QStringLiteral("Unidad"));
        QCOMPARE(kinds.type(QFileInfo(folder_.filePath("informe.rtf"))),
                 QStringLiteral("Archivo RTF"));
        QCOMPARE(kinds.type(QFileInfo(folder_.filePath("serie"))), QStringLiteral("Archivo"));
    }

    void fileDialogs_data() {
        QTest::addColumn<bool>("saves");
        QTest::newRow("open") << false;
        QTest::newRow("save") << true;
    }
    void fileDialogs() {
        QFETCH(bool, saves);
        QFile report(folder_.filePath("informe.rtf"));
        QVERIFY(report.open(QIODevice::WriteOnly));
        report.close();
        QDir(folder_.path()).mkdir(QStringLiteral("carpeta"));
        bool looked = false;
        desktop_->expectDialog([&](QDialog& dialog) {
            looked = true;
            const auto close = qScopeGuard([&] { dialog.reject(); });
            auto& files = dynamic_cast<QFileDialog&>(dialog);
            files.setViewMode(QFileDialog::Detail);
            check(files);
            const auto* kinds = dynamic_cast<words::FileKinds*>(files.iconProvider());
            QVERIFY(kinds);
            auto& names = *dialog.findChild<QLineEdit*>();
            QStringList buttons;
            for (const auto* button :
                 dialog.findChild<QDialogButtonBox*>()->findChildren<QPushButton*>())
                buttons << QString(button->text()).remove(u'&');
            buttons.sort();
            QCOMPARE(buttons, saves ? QStringList({"Cancelar", "Guardar"})
                                    : QStringList({"Abrir", "Cancelar"}));
            QVERIFY(opensMenu(names));
        });
        desktop_->session.platform().showFileDialog(
            {saves ? FileDialog::Kind::save : FileDialog::Kind::open, "Informe",
             "Archivos (*.RTF)|*.RTF", folder_.filePath("informe.rtf").toStdString()});
        QVERIFY(looked);
    }

    void thePrintDialogAndItsProperties() {
        int looked = 0;
        desktop_->expectDialog([&](QDialog& dialog) {
            ++looked;
            const auto close = qScopeGuard([&] { dialog.reject(); });
            check(dialog);
            for (auto* spin : dialog.findChildren<QSpinBox*>())
                spin->setEnabled(true);
            QVERIFY(opensMenu(*dialog.findChild<QSpinBox*>()));
            // The fixture's watchdog is still at this dialog.
            QTimer watch;
            QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
                auto* properties = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                if (!properties || properties == &dialog)
                    return;
                watch.stop();
                ++looked;
                const auto back = qScopeGuard([&] { properties->reject(); });
                check(*properties);
            });
            watch.start(5);
            auto* more = dialog.findChild<QPushButton*>(QStringLiteral("properties"));
            QVERIFY(more && more->isEnabled());
            more->click();
        });
        QVERIFY(!desktop_->session.platform().showPrintDialog({"Imprimir", true}));
        QCOMPARE(looked, 2);
    }

    void colourFontAndProgressDialogs() {
        QColorDialog colours;
        colours.setOption(QColorDialog::ShowAlphaChannel);
        check(colours);
        QFontDialog fonts;
        check(fonts);
        check(QProgressDialog());
    }

    void everyButtonOfAMessageBox() {
        QMessageBox box;
        box.setDetailedText(QStringLiteral("más"));
        for (int button = QMessageBox::FirstButton; button <= QMessageBox::LastButton; button <<= 1)
            box.addButton(static_cast<QMessageBox::StandardButton>(button));
        check(box);
        QVERIFY(textsOf(box).contains(QStringLiteral("Aceptar")));
    }

    void contextMenus() {
        desktop_->open("frmQmaxRacional");
        QVERIFY(opensMenu(*desktop_->view().findChild<QLineEdit*>()));
        QTextEdit text;
        text.setPlainText(QStringLiteral("uno\n").repeated(100));
        text.show();
        QVERIFY(opensMenu(*text.viewport()));
        QVERIFY(opensMenu(*text.verticalScrollBar()));
    }

    void theReportWindowAndItsDocuments() {
        desktop_->open("frmPadre");
        auto& area = *desktop_->view().findChild<QMdiArea*>();
        auto* frame = area.currentSubWindow();
        QVERIFY(frame);
        for (const bool maximized : {true, false}) {
            maximized ? frame->showMaximized() : frame->showNormal();
            check(desktop_->view());
        }
        QVERIFY(textsOf(desktop_->view()).contains(QStringLiteral("Ctrl+N")));
    }

    void everyWindow_data() {
        QTest::addColumn<QString>("name");
        for (const WindowEntry& entry : ventanas())
            QTest::newRow(std::string(entry.name).c_str())
                << QString::fromUtf8(entry.name.data(), qsizetype(entry.name.size()));
    }
    void everyWindow() {
        QFETCH(QString, name);
        desktop_->open(name.toStdString());
        check(desktop_->view());
        // With the menus of all kinds of widgets that have one.
        QSet<QByteArray> kinds;
        for (QWidget* child : desktop_->view().findChildren<QWidget*>()) {
            const QByteArray kind = child->metaObject()->className();
            if (!kinds.contains(kind) && child->isEnabled() && opensMenu(*child))
                kinds.insert(kind);
        }
    }

    void theImageOfAChart() {
        desktop_->open("frmDisNormal");
        bool looked = false;
        desktop_->expectDialog([&](QDialog& dialog) {
            looked = true;
            const auto close = qScopeGuard([&] { dialog.reject(); });
            check(dialog);
            QVERIFY(
                dynamic_cast<words::FileKinds*>(dynamic_cast<QFileDialog&>(dialog).iconProvider()));
        });
        auto& plot = *desktop_->view().findChild<QCustomPlot*>();
        QVERIFY(opensMenu(plot, [](const QMenu& menu) {
            for (QAction* action : menu.actions()) {
                if (action->text().startsWith(QStringLiteral("Guardar imagen")))
                    action->trigger();
            }
        }));
        QVERIFY(looked);
    }

    void theQuestionAboutAComma() {
        desktop_->open("frmPenman");
        auto& field = desktop_->widget<QLineEdit>("txth");
        field.setFocus();
        QGuiApplication::clipboard()->setText(QStringLiteral("1,234"));
        bool looked = false;
        desktop_->expectBox({QStringLiteral("¿Qué número es «1,234»?"), QStringLiteral("Pegar"),
                             QMessageBox::Question},
                            [&] {
                                looked = true;
                                check(*QApplication::activeModalWidget());
                            });
        desktop_->press(Qt::Key_V, Qt::ControlModifier);
        QVERIFY(looked);
    }

private:
    void check(const QWidget& widget) {
        const QStringList texts = textsOf(widget);
        QVERIFY(!texts.isEmpty());
        QStringList found = foreign(texts);
        // What the window itself is given to say stays as it is.
        for (const Control* control : desktop_->window().controls())
            found.removeAll(QString::fromStdString(control->caption).remove(u'&'));
        QVERIFY2(found.isEmpty(), qPrintable(found.join(u'\n')));
    }
    /// Whether a right click opens a menu; one that opens is looked at and closed.
    bool opensMenu(QWidget& widget, const std::function<void(const QMenu&)>& look = {}) {
        bool opened = false;
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (!menu)
                return;
            opened = true;
            check(*menu);
            if (look)
                look(*menu);
            menu->close();
        });
        watch.start(0);
        const QPoint center = widget.rect().center();
        QContextMenuEvent click(QContextMenuEvent::Mouse, center, widget.mapToGlobal(center));
        QApplication::sendEvent(&widget, &click);
        QCoreApplication::processEvents();
        return opened;
    }

    QTemporaryDir folder_;
    UnknownTexts unknown_;
    std::unique_ptr<words::Words> own_;
    std::unique_ptr<DesktopFixture> desktop_;
};

} // namespace caudalera

using caudalera::WordsTest;
QTEST_MAIN(WordsTest)
#include "WordsTest.moc"
