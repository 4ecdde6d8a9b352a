#pragma once

#include "desktop/session/Session.h"
#include "desktop/windows/ViewSet.h"

#include <QWidget>

class QLabel;

namespace caudalera {

class frmacerc;

/// The about box: the picture and the text of the model, and between them the name, the version,
/// the licence and what the program is built with.
class AboutView : public QWidget, public View {
    Q_OBJECT

public:
    AboutView(Session& session, frmacerc& window);

    QWidget& widget() override { return *this; }
    void sync() override;

protected:
    void closeEvent(QCloseEvent* event) override;
    /// Escape closes it as its button does.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void build();
    /// The one that its content and its title ask for.
    void takeSize();
    QLabel* line(const char* name, const QString& text);

    Session& session_;
    frmacerc& window_;
    ViewSet views_;
};

} // namespace caudalera
