// caudalera_journey SERIES FOLDER: opens the program, loads the series into the normal fit through
// the dialog, calculates, asks for the flow of 100 years, draws the chart, composes the report and
// saves it as RTF. Screenshots of each step and the report go into the folder. Ends with a
// non-zero status, saying why, at the first step that does not show what it should.

#include "app/registry.h"
#include "desktop/Views.h"
#include "desktop/session/Session.h"
#include "desktop/style/Style.h"
#include "desktop/words/Words.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <functional>

namespace {

[[noreturn]] void fail(const QString& what) {
    std::fprintf(stderr, "journey: %s\n", qPrintable(what));
    std::exit(1);
}

class Journey {
public:
    Journey(QString series, QString folder)
        : series_(std::move(series)), folder_(std::move(folder)) {}

    void run() {
        const QWidget& main = window("frmCaudalera");
        picture("inicio");
        openNormalFit(main);
        QWidget& fit = window("frmDisNormal");
        picture("ventana-vacia");

        answerFileDialog(series_, "cargar-archivo");
        click(fit, "bAccesar");
        picture("serie-cargada");

        click(fit, "bCalcular");
        if (caption(fit, "lblmensaje").isEmpty())
            fail("no verdict after the calculation");
        picture("ajuste-calculado");

        auto& period = child<QLineEdit>(fit, "txtxt");
        QTest::mouseClick(&period, Qt::LeftButton);
        QTest::keyClicks(&period, "100");
        click(fit, "bQ");
        const QString flow = child<QLineEdit>(fit, "txtxq").text();
        if (flow.toDouble() <= 0)
            fail("no design flow: " + flow);
        std::printf("Q(T = 100) = %s m3/s\n", qPrintable(flow));
        picture("caudal-de-diseno");

        click(fit, "bGraficar");
        picture("grafico");

        click(fit, "bReporte");
        QWidget& report = window("frmPadre");
        if (!report.findChild<QTextEdit*>()->toPlainText().contains(flow))
            fail("the report does not tell the design flow");
        report.showMaximized();
        QTest::qWait(300);
        report.findChild<QTextEdit*>()->verticalScrollBar()->setValue(0);
        picture("reporte");
        saveReport(report);
    }

private:
    static QWidget& window(const char* name) {
        QWidget* found = nullptr;
        const auto shown = [&] {
            for (QWidget* each : QApplication::topLevelWidgets()) {
                if (each->objectName() == QLatin1String(name) && each->isVisible())
                    found = each;
            }
            return found != nullptr;
        };
        if (!QTest::qWaitFor(shown, 10000))
            fail(QString("no window %1").arg(name));
        found->raise();
        found->activateWindow();
        static_cast<void>(QTest::qWaitForWindowActive(found));
        // The window manager may still be moving it.
        QTest::qWait(300);
        return *found;
    }

    template <typename Kind>
    static Kind& child(const QWidget& parent, const char* name) {
        auto* found = parent.findChild<Kind*>(name);
        if (!found)
            fail(QString("no control %1").arg(name));
        return *found;
    }

    static QString caption(const QWidget& parent, const char* name) {
        return child<QWidget>(parent, name).property("text").toString();
    }

    static void click(const QWidget& parent, const char* name) {
        QTest::mouseClick(&child<QWidget>(parent, name), Qt::LeftButton);
        QTest::qWait(50);
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            fail("unexpected message: " + box->text());
    }

    void picture(const char* name) {
        QTest::qWait(400);
        const QString file =
            QString("%1/%2-%3.png").arg(folder_).arg(++step_, 2, 10, QChar('0')).arg(name);
        if (!QApplication::primaryScreen()->grabWindow(0).save(file))
            fail("cannot write " + file);
        std::printf("%s\n", qPrintable(file));
    }

    void openNormalFit(const QWidget& main) {
        auto* bar = main.findChild<QMenuBar*>();
        for (QAction* title : bar->actions()) {
            if (title->objectName() != "mdistri" && !title->text().contains("Distribuciones"))
                continue;
            QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(title).center());
            picture("menu-distribuciones");
            QMenu* menu = title->menu();
            for (QAction* entry : menu->actions()) {
                if (entry->objectName() == "mdistrinormal") {
                    QTest::mouseClick(menu, Qt::LeftButton, {},
                                      menu->actionGeometry(entry).center());
                }
            }
            return;
        }
        fail("no menu of distributions");
    }

    /// Types the path into the file dialog that the next command opens, as a person would.
    void answerFileDialog(const QString& path, const char* pictureName) {
        QTimer::singleShot(300, [this, path, pictureName] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!dialog)
                fail("no file dialog");
            auto& name = child<QLineEdit>(*dialog, "fileNameEdit");
            name.selectAll();
            QTest::keyClicks(&name, path);
            picture(pictureName);
            QTest::keyClick(&name, Qt::Key_Return);
        });
    }

    void saveReport(const QWidget& report) {
        const QString file = folder_ + "/reporte.rtf";
        QFile::remove(file);
        answerFileDialog(file, "guardar-reporte");
        for (auto* action : report.findChildren<QAction*>("mnuFileSaveAs"))
            action->trigger();
        if (QFileInfo(file).size() == 0)
            fail("the report was not saved");
        picture("reporte-guardado");
        std::printf("%s\n", qPrintable(file));
    }

    QString series_;
    QString folder_;
    int step_ = 0;
};

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc != 3)
        fail("usage: caudalera_journey SERIES FOLDER");
    // The journey leaves no trace in the user's own settings.
    const QTemporaryDir store;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, store.path());
    caudalera::words::install(application);
    QApplication::setQuitOnLastWindowClosed(false);
    caudalera::style::apply(application);

    Journey journey(QFileInfo(argv[1]).absoluteFilePath(), QDir(argv[2]).absolutePath());
    caudalera::Session session(caudalera::ventanas(), caudalera::makeView);
    session.start();
    journey.run();
    return 0;
}
