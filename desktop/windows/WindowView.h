#pragma once

#include "desktop/session/Session.h"
#include "desktop/windows/StaleDress.h"
#include "desktop/windows/ViewSet.h"

#include <QWidget>

namespace caudalera {

class ContentArea;

/// A window of the model as a window of the desktop, built from its layout data: its frames and
/// fields, the commands below them, the status bar. Results that are older than the data are muted.
class WindowView : public QWidget, public View {
    Q_OBJECT

public:
    WindowView(Session& session, Window& window);

    QWidget& widget() override { return *this; }
    void sync() override;

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// What can have the keyboard, in the order of the Tab key.
    struct Focusable {
        QWidget* widget;
        Control* control;
    };

    void build();
    void orderFocus();
    void syncFocus();
    /// Widens the window, as far as its first size may go, for results that are wider than their
    /// titles.
    void growForResults();
    /// Whether the key takes back or brings again a change of the data.
    bool undoneByKey(QKeyEvent& event);
    /// Brings forward the tabs that a widget stands on, with no event: nobody has chosen them.
    void bringForward(const QWidget& widget);
    /// The user has brought the keyboard to a widget.
    void focused(const QObject* widget, Qt::FocusReason reason);
    /// No smaller than its content, unless the screen is: then the content scrolls.
    void takeSmallestSize();
    /// The size that its content asks for, with room for what comes into view later, over the
    /// window that it came from.
    void takeFirstPlace();
    /// What the content needs when all of it is seen.
    QSize smallestWithAllSeen();

    Session& session_;
    Window& window_;
    ViewSet views_;
    StaleDress staleDress_;
    ContentArea* content_ = nullptr;
    /// As it was opened or has grown since, as long as the user leaves it so.
    QSize ownSize_;
    std::vector<Focusable> focusChain_;
};

} // namespace caudalera
