#pragma once

#include "shell/numbers/Real.h"
#include "shell/numbers/RuntimeFailure.h"
#include "shell/window/Control.h"
#include "shell/window/Graph.h"
#include "shell/window/Layout.h"
#include "shell/window/MSFlexGrid.h"
#include "shell/window/Platform.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace caudalera {

class Program;

/// A window as data: its controls, which of them has the focus, how they stand. Handlers of its
/// events are set when it is built; Program runs them.
class Window {
public:
    Window(Program& program, std::string name, std::string caption);
    virtual ~Window() = default;
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    const std::string& name() const { return name_; }
    Program& program() const { return program_; }
    /// In the order in which they were built, which is that of the window's members.
    const std::vector<Control*>& controls() const { return controls_; }
    /// nullptr if there is none of that name.
    Control* find(std::string_view name) const;

    std::string caption;
    bool visible = false;
    /// A key before any control of the window gets it, or when none has the focus; true if it is
    /// consumed.
    std::function<bool(Key)> onKey;
    /// Grows each time the window is shown, so that a view brings it to the front.
    std::uint64_t shown = 0;

    Layout layout;
    /// Groups of commands, each with its frame or none, as every window shows them.
    struct CommandGroup {
        Frame* frame = nullptr;
        std::vector<Button*> buttons;
    };
    std::vector<CommandGroup> commands;
    /// Titles of the menu bar.
    std::vector<MenuEntry*> menuBar;
    /// The command that the view sets off from the others; nullptr if none.
    Button* mainAction = nullptr;

    /// False once it was unloaded; who still holds it then may read it, and nothing else.
    bool loaded() const { return loaded_; }

    Control* focus() const { return focus_; }
    /// The control that had the focus is left, this one gets it; nullptr leaves it with none.
    void setFocus(Control* control);
    void setFocus(Control& control) { setFocus(&control); }

    /// What the status bar tells of the window beside its panels; empty for nothing.
    virtual std::string status() const { return {}; }
    /// The controls whose results are not those of the data any more.
    virtual std::vector<const Control*> staleResults() const { return {}; }

    virtual void load() {}
    virtual void unload() {}

protected:
    Platform& platform() const;
    void mensaje(std::string text, std::string title = {}, Icon icon = Icon::none) const;
    void mensaje(const Message& message) const;
    /// Number formatter with the locale's separator.
    std::string formatear(Real value, std::string_view mascara) const;
    std::string formatear(float value, std::string_view mascara) const;

private:
    friend class Control;
    friend class Program;
    void add(Control& control) { controls_.push_back(&control); }

    Program& program_;
    std::string name_;
    std::vector<Control*> controls_;
    Control* focus_ = nullptr;
    bool loaded_ = true;
};

/// Runs the steps of a command under its trap: a run-time failure ends them where they stand and
/// goes to `siFalla`. Without a trap a failure is fatal.
template <typename Steps, typename Handler>
void conTrampa(Steps&& pasos, Handler&& siFalla) {
    try {
        std::forward<Steps>(pasos)();
    } catch (const RuntimeFailure& failure) {
        std::forward<Handler>(siFalla)(failure);
    }
}

} // namespace caudalera
