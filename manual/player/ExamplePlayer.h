#pragma once

#include "manual/maker/Example.h"
#include "shell/window/Program.h"

#include <functional>
#include <string>
#include <vector>

namespace caudalera::manual {

/// Goes through an example of the manual as its reader does, and compares what the windows show.
class ExamplePlayer {
public:
    /// `answerFile`: makes the next file dialog choose the sample of that name.
    ExamplePlayer(Program& program, std::function<void(const std::string&)> answerFile)
        : program_(program), answerFile_(std::move(answerFile)) {}

    /// Opens the window as its menu entry does.
    void open(const std::string& window);
    /// Takes the step, or looks whether the window shows what it says; empty if all is as written,
    /// otherwise what is not. A message box is nothing of it: who runs the program sees it.
    std::string play(const Step& step);

    /// The window that the last steps were at.
    Window* window() const { return window_; }

private:
    std::string act(const Step& step, Control& control);
    std::string actOnGrid(const Step& step, Control& control);
    std::string chooseTab(const Step& step, Tabs& tabs);
    static std::string shown(const Control& control);
    static std::string captionFault(const Step& step, const Control& control);

    Program& program_;
    std::function<void(const std::string&)> answerFile_;
    Window* window_ = nullptr;
};

} // namespace caudalera::manual
