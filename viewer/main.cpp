// caudalera-ayuda FILE[::/TOPIC]: shows a help file at a page of it.

#include "desktop/CommandLine.h"
#include "desktop/style/Style.h"
#include "desktop/words/Words.h"
#include "viewer/OneViewer.h"
#include "viewer/ViewerWindow.h"

#include <QApplication>
#include <QDir>
#include <QStandardPaths>

int main(int argc, char** argv) {
    namespace commandline = caudalera::commandline;
    if (const auto answer = commandline::answerOfViewer(commandline::argumentsOf(argc, argv)))
        return commandline::say(*answer);
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Caudalera"));
    QGuiApplication::setDesktopFileName(QStringLiteral("org.caudalera.Caudalera"));

    const QString asked = QApplication::arguments().value(1);
    const QString separator = QStringLiteral("::/");
    const qsizetype at = asked.indexOf(separator);
    const QString file = at < 0 ? asked : asked.left(at);
    const QString topic = at < 0 ? QString() : asked.mid(at + separator.size());

    const QString meeting =
        QDir(QStandardPaths::writableLocation(QStandardPaths::TempLocation))
            .filePath(QStringLiteral("caudalera-ayuda-%1")
                          .arg(qEnvironmentVariable("USER", qEnvironmentVariable("USERNAME"))));
    caudalera::viewer::OneViewer one(meeting, file);
    if (!one.take(topic))
        return 0;

    caudalera::words::install(application);
    caudalera::style::apply(application);
    caudalera::viewer::ViewerWindow window(file);
    QObject::connect(&one, &caudalera::viewer::OneViewer::asked, &window,
                     [&window](const QString& another) {
                         window.openTopic(another);
                         if (window.isMinimized())
                             window.showNormal();
                         window.raise();
                         window.activateWindow();
                     });
    window.openTopic(topic);
    window.show();
    return QApplication::exec();
}
