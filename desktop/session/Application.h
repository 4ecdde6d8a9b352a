#pragma once

#include "desktop/session/Session.h"

#include <QApplication>
#include <QPointer>

namespace caudalera {

/// The toolkit's application around a session: an exception that comes out of any event, be it no
/// act on the program, ends in Session::fail and not in the event loop.
class Application : public QApplication {
public:
    using QApplication::QApplication;

    void watch(Session& session) { session_ = &session; }
    bool notify(QObject* receiver, QEvent* event) override;

private:
    QPointer<Session> session_;
};

} // namespace caudalera
