#include "desktop/session/Application.h"

namespace caudalera {

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        if (!session_)
            throw;
        session_->fail();
        return true;
    }
}

} // namespace caudalera
