#pragma once

#include "shell/files/Variables.h"
#include "shell/window/Control.h"
#include "shell/window/MSFlexGrid.h"
#include "shell/window/Platform.h"
#include "shell/window/Window.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace caudalera {

/// A window that the program can open: its name and how it is made.
struct WindowEntry {
    std::string_view name;
    std::unique_ptr<Window> (*create)(Program&);
};

/// The running program: its loaded windows and its globals. A person's act is one call on it; the
/// handler runs to its end and changes controls. A failure that leaves a handler ends the program;
/// any other exception is a fault of ours and goes on to whoever runs the act.
class Program {
public:
    /// `opens` are the windows that it can open, the main window "frmCaudalera" among them; they
    /// must outlive it.
    Program(Platform& platform, const std::vector<WindowEntry>& opens)
        : platform_(platform), opens_(opens) {}
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// Loads and shows the main window.
    void start();

    Platform& platform() const { return platform_; }
    Variables variables;

    /// The loaded windows in the order they were loaded. Who shows one shares it, so that it stays
    /// as long as it is looked at.
    const std::vector<std::shared_ptr<Window>>& windows() const { return windows_; }
    Window* find(std::string_view name) const;
    const std::optional<Ending>& ended() const { return ended_; }
    /// Whether the handler of an event is under way.
    bool running() const { return depth_ > 0; }
    /// The window shown last.
    Window* front() const { return front_; }
    /// Whether there is a window of that name to open.
    bool knows(std::string_view name) const { return entryOf(name) != nullptr; }

    // What a person does. Events on a control give it the focus first. An event on a control that
    // is not enabled, or whose window is no longer loaded, does nothing.
    void click(Control& control);
    /// Replaces a field's whole text, whatever its filter says.
    void changeText(TextBox& box, const std::string& text);
    /// Puts a text in place of a field's selection, if its filter accepts the result.
    void insertText(TextBox& box, const std::string& text);
    /// The same with a text from elsewhere, as the field reads such.
    void pasteText(TextBox& box, std::string_view text);
    /// The text that a field's own editing leads to, if its filter accepts it.
    void editText(TextBox& box, std::string_view text);
    /// Moves the caret, in characters; the focus stays where it is.
    void select(TextBox& box, std::size_t start, std::size_t length);
    void key(Control& control, Key key);
    /// The same in a window none of whose controls has the focus.
    void key(Window& window, Key key);
    void choose(List& list, const std::string& text);
    void chooseTab(Tabs& tabs, int index);
    void selectCell(MSFlexGrid& grid, long row, long col);
    void rightClick(MSFlexGrid& grid);
    /// The grid scrolls under the user's hand.
    void scroll(MSFlexGrid& grid, long topRow);
    void focus(Control& control);
    void leave(Control& control);
    /// Closes a window by its frame.
    void close(Window& window);
    /// Any other act (on a document of the report window, say) as one event.
    void act(const std::function<void()>& handler);

    // What handlers do.
    /// Shows the window of that name, creating it if its slot is empty; nullptr if it is unknown.
    Window* show(std::string_view name);
    /// Unloads a window when the running event has ended; it is gone from windows() at once.
    void unload(Window& window);
    /// Ends the program at once: no question, nothing saved.
    void end();
    /// Ends the program for a fault of its own, which the platform tells at once. `what` are the
    /// fault's own words, if it has any.
    void fail(std::string what);

private:
    void actOnText(TextBox& box, const std::function<void()>& handler);
    /// One event on a window; none once it is unloaded.
    void actOn(const Window& window, const std::function<void()>& handler);
    /// Whether the control's window takes the key before it.
    bool consumedBefore(Control& control, Key key);
    static void keyOnGrid(MSFlexGrid& grid, Key key);
    static void keyOnText(TextBox& box, Key key);
    const WindowEntry* entryOf(std::string_view name) const;
    void finish();
    void tellEnding();

    Platform& platform_;
    const std::vector<WindowEntry>& opens_;
    std::vector<std::shared_ptr<Window>> windows_;
    /// What the running event may still stand on.
    std::vector<std::shared_ptr<Window>> unloaded_;
    Window* front_ = nullptr;
    std::optional<Ending> ended_;
    std::uint64_t showCount_ = 0;
    bool told_ = false;
    int depth_ = 0;
};

} // namespace caudalera
