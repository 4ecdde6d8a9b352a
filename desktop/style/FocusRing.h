#pragma once

#include <QFocusFrame>
#include <QObject>
#include <QPointer>

class QApplication;

namespace caudalera::style {

/// Shows a ring around whatever control has the keyboard. The ring stands outside of the control,
/// on the ground of the window, so that it is seen beside any of them, in the accent colour too.
class FocusRing : public QObject {
    Q_OBJECT

public:
    static constexpr int width = 2;

    explicit FocusRing(QApplication& application);

private:
    void follow(QWidget* focused);

    /// Belongs to the window of the control it stands around.
    QPointer<QFocusFrame> frame_;
};

} // namespace caudalera::style
