#include "app/registry.h"
#include "desktop/CommandLine.h"
#include "desktop/Views.h"
#include "desktop/session/Application.h"
#include "desktop/style/Style.h"
#include "desktop/words/Words.h"
#include "shell/files/FileSizeSignal.h"

#include <QElapsedTimer>
#include <QTimer>
#include <cstdio>

int main(int argc, char** argv) {
    namespace commandline = caudalera::commandline;
    if (const auto answer = commandline::answerOfProgram(commandline::argumentsOf(argc, argv)))
        return commandline::say(*answer);
    caudalera::ignoreFileSizeSignal();
    QElapsedTimer sinceStart;
    sinceStart.start();

#ifdef Q_OS_WIN
    // An entry of the Start menu sets no variable, so the program is its own launcher here: numbers
    // are written with the point, which they are read with, unless the user asks for another sign.
    if (qEnvironmentVariableIsEmpty("CAUDALERA_DECIMAL"))
        qputenv("CAUDALERA_DECIMAL", ".");
#endif

    caudalera::Application application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Caudalera"));
    QGuiApplication::setDesktopFileName(QStringLiteral("org.caudalera.Caudalera"));
    QApplication::setOrganizationName(QStringLiteral("Caudalera"));
    // The model says when the program ends, not the number of windows.
    QApplication::setQuitOnLastWindowClosed(false);

    caudalera::words::install(application);
    caudalera::style::apply(application);

    caudalera::Session session(caudalera::ventanas(), caudalera::makeView);
    application.watch(session);
    QObject::connect(&session, &caudalera::Session::ended, &application,
                     [](int status) { QApplication::exit(status); });
    session.start();
    if (qEnvironmentVariableIsSet("CAUDALERA_TIMING")) {
        QTimer::singleShot(0, &session, [&sinceStart] {
            std::fprintf(stderr, "first window after %lld ms\n",
                         static_cast<long long>(sinceStart.elapsed()));
        });
    }
    // A print server may take its time, which the first window does not wait for.
    QTimer::singleShot(300, &session, [&session] { session.printers().watch(); });
    return QApplication::exec();
}
