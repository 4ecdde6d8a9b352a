#pragma once

#include "desktop/session/Session.h"

#include <QMainWindow>
#include <vector>

class QMenu;

namespace caudalera {

class CommandButton;
class frmCaudalera;

/// The main window: the menu bar, the cover and the exit button.
class MainWindow : public QMainWindow, public View {
    Q_OBJECT

public:
    MainWindow(Session& session, frmCaudalera& window);

    QWidget& widget() override { return *this; }
    void sync() override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void buildMenu();
    void fill(QMenu& menu, const MenuEntry& title);
    void placeExit();

    Session& session_;
    frmCaudalera& window_;
    CommandButton* exit_;
    std::vector<std::pair<const MenuEntry*, QAction*>> actions_;
};

} // namespace caudalera
