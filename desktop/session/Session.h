#pragma once

#include "desktop/session/DesktopPlatform.h"
#include "desktop/session/Printers.h"
#include "shell/window/Program.h"

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

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
};

/// Shares what a widget shows with it: `shown` stays as long as the last of the widget's children.
void share(QWidget& widget, std::shared_ptr<const void> shown);

/// Makes the view of a window that was loaded; its widget is the session's to delete, and the
/// session shares the window with it.
using ViewFactory = std::function<View*(Session&, Window&)>;

/// The running program with its views. A person's act is one call on the program; then all views
/// are brought in line with the model. An exception that comes out of either is a fault of ours:
/// the user is told, and the program ends.
class Session : public QObject {
    Q_OBJECT

public:
    /// `windows` are those that the program can open; they must outlive the session.
    Session(const std::vector<WindowEntry>& windows, ViewFactory makeView);
    ~Session() override;

    Program& program() { return program_; }
    DesktopPlatform& platform() { return platform_; }
    Printers& printers() { return printers_; }
    /// Shows the main window.
    void start();

    /// Runs one act of the user on the program, then brings all views in line. While an act or a
    /// sync runs it does nothing: what the views report then is their own doing.
    void act(const std::function<void()>& event);
    /// Opens a view for each new window, retires those of unloaded ones, syncs the others.
    void sync();
    /// From within a catch: what was caught is a fault of the program, which the user is told in a
    /// box before it ends. Only the first one is told.
    void fail();
    /// What the widget shows is gone from the model: it disappears at once, takes no input any
    /// more, no more than its pop-ups do, and is deleted when the running event has ended.
    void retire(QWidget& widget);
    /// Inside an act or a sync: views must not turn programmatic changes into events.
    bool busy() const { return depth_ > 0; }

    /// The decimal sign of numbers that are copied from grids, which holds for the run; as they are
    /// shown, if null.
    QChar copyDecimal;
    /// Whether the report window was maximised when it was last seen, which holds for the run.
    bool reportsMaximized = false;

    /// nullptr while the window has none.
    QWidget* viewOf(const Window& window) const;

signals:
    /// The program has ended with this exit status; said once.
    void ended(int status);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Opened {
        const Window* window;
        std::uint64_t shown;
        View* view;
    };

    void retireUnloaded();
    void openNew();
    void raiseShown();
    /// What F1 does at a widget: opens the help at the page of its window.
    void help(const QWidget& widget);
    /// Whether an object is a retired widget or stands in one.
    bool retired(const QObject* object) const;
    /// Says so, unless it was said already.
    void end(const Ending& ending);
    friend class DesktopPlatform;

    DesktopPlatform platform_;
    Printers printers_;
    Program program_;
    ViewFactory makeView_;
    std::vector<Opened> views_;
    std::vector<QPointer<QWidget>> retired_;
    int depth_ = 0;
    bool ended_ = false;
};

} // namespace caudalera
