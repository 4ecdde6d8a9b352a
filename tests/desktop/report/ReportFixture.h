#pragma once

#include "app/registry.h"
#include "desktop/Views.h"
#include "desktop/report/DocumentFrame.h"
#include "desktop/report/DocumentView.h"
#include "desktop/report/ReportWindow.h"
#include "desktop/richtext/QtText.h"
#include "desktop/session/Session.h"
#include "desktop/style/Style.h"
#include "shell/report/ReportWriter.h"
#include "shell/report/frmPadre.h"

#include <QApplication>
#include <QMdiArea>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

namespace caudalera {

/// A running session with the report window on the screen, its settings in a folder of their own.
class ReportFixture {
public:
    ReportFixture() {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder_.path());
        start();
    }

    /// A new session, as after the program was started again.
    void start() {
        session.reset();
        session = std::make_unique<Session>(ventanas(), makeView);
        session->start();
    }
    ReportWindow* open() {
        session->act([this] { session->program().show("frmPadre"); });
        auto* found = window();
        return found && QTest::qWaitForWindowActive(found) ? found : nullptr;
    }

    frmPadre& padre() { return *ventanaDeReportes(session->program()); }
    RichText& text() { return padre().active()->rtfText; }
    QString plainText() { return toQString(text().text()); }
    ReportWindow* window() { return qobject_cast<ReportWindow*>(session->viewOf(padre())); }
    QMdiArea* area() { return window()->findChild<QMdiArea*>(); }
    DocumentView* view() {
        auto* frame = static_cast<DocumentFrame*>(area()->currentSubWindow());
        return frame ? &frame->view() : nullptr;
    }

    /// What a worksheet does behind its report button.
    void compose(const std::string& caption, int rows) {
        session->act([&] {
            session->program().show("frmPadre");
            ReportWriter report(padre().documentForReport().rtfText);
            report.titulo(caption);
            report.regla(145);
            for (int row = 1; row <= rows; ++row)
                report << std::to_string(row) << "\t122.0\t0.0143\t-1.4454\t0.0742\t0.0700\t0.0599"
                       << ReportWriter::LF;
        });
    }

    std::unique_ptr<Session> session;

private:
    QTemporaryDir folder_;
};

} // namespace caudalera
