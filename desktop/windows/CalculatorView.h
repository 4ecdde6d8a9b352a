#pragma once

#include "desktop/controls/ButtonViews.h"
#include "desktop/session/Session.h"

#include <QLabel>
#include <QPointer>
#include <QWidget>
#include <memory>
#include <vector>

class QLayout;

namespace caudalera {

class frmCalculadora;

/// The figures of a calculator: large, at the right, smaller when they are many.
class FiguresLabel : public QLabel {
    Q_OBJECT

public:
    explicit FiguresLabel(QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// A key of a calculator: as wide as its neighbours, whatever stands on it.
class KeyButton : public CommandButton {
    Q_OBJECT

public:
    /// How it stands out from the others.
    enum class Face { number, basic, quiet };

    KeyButton(Session& session, Button& button, Face face, QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
};

/// The pocket calculator on the desktop. It stands beside the window that it was opened from and
/// stays above it without blocking it. The whole keyboard is its own, so that its keys take the
/// focus by Tab alone.
class CalculatorView : public QWidget, public View {
    Q_OBJECT

public:
    CalculatorView(Session& session, frmCalculadora& window);

    QWidget& widget() override { return *this; }
    void sync() override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    QWidget* buildDisplay();
    QLayout* buildOptions();
    /// Keys by their names, row by row, a blank name being a gap between two groups.
    QLayout* buildKeys(const std::vector<std::vector<const char*>>& rows);
    QWidget& key(const char* name);
    /// Takes a view among those that are brought in line; its widget.
    QWidget& keep(std::unique_ptr<ControlView> view);
    void openMenu(const QPoint& globalPosition);
    /// Stands above another window from now on, and beside it as far as the screen has room.
    void comeTo(QWidget& opener);
    void stayAbove();

    Session& session_;
    frmCalculadora& window_;
    std::vector<std::unique_ptr<ControlView>> views_;
    QWidget* display_ = nullptr;
    FiguresLabel* figures_ = nullptr;
    std::uint64_t shown_ = 0;
    /// What it stands above.
    QPointer<QWidget> below_;
};

} // namespace caudalera
