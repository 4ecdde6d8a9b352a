#pragma once

#include "desktop/session/DesktopPlatform.h"
#include "shell/window/Program.h"

#include <QObject>
#include <functional>
#include <memory>
#include <vector>

class QWidget;

namespace caudalera {

class Session;

/// What stands on the screen for one window of the model.
class View {
public:
    View() = default;
    virtual ~View() = default;
    View(const View&) = delete;
    View& operator=(const View&) = delete;

    virtual QWidget& widget() = 0;
    /// Brings every widget in line with the model; writes only what differs.
    virtual void sync() = 0;
    /// The model's window is gone: the view disappears at once, reads nothing any more and is
    /// deleted when the running event has ended.
    virtual void retire();
};

/// Makes the view of a window that was loaded; its widget is the session's to delete.
using ViewFactory = std::function<View*(Session&, Window&)>;

/// The running program with its views. A person's act is one call on the program; then all views
/// are brought in line with the model.
class Session : public QObject {
    Q_OBJECT

public:
    /// `windows` are those that the program can open; they must outlive the session.
    Session(const std::vector<WindowEntry>& windows, ViewFactory makeView);
    ~Session() override;

    Program& program() { return program_; }
    DesktopPlatform& platform() { return platform_; }
    /// Shows the main window.
    void start();

    /// Runs one act of the user on the program, then brings all views in line. While an act or a
    /// sync runs it does nothing: what the views report then is their own doing.
    void act(const std::function<void()>& event);
    /// Opens a view for each new window, closes those of unloaded ones, syncs the others.
    void sync();
    /// Inside an act or a sync: views must not turn programmatic changes into events.
    bool busy() const { return depth_ > 0; }

    /// nullptr while the window has none.
    QWidget* viewOf(const Window& window) const;

signals:
    /// The program has ended with this exit status.
    void ended(int status);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Opened {
        const Window* window;
        std::uint64_t shown;
        View* view;
    };

    void closeUnloaded();
    void openNew();
    void raiseShown();
    void end(const Ending& ending);
    friend class DesktopPlatform;

    DesktopPlatform platform_;
    Program program_;
    ViewFactory makeView_;
    std::vector<Opened> views_;
    int depth_ = 0;
};

} // namespace caudalera
