#pragma once

#include "app/registry.h"
#include "recording/Act.h"
#include "recording/RecordingPlatform.h"
#include "tests/support/TemporaryFolder.h"

#include "shell/window/Program.h"

#include <gtest/gtest.h>
#include <source_location>
#include <stdexcept>
#include <string>
#include <vector>

namespace caudalera {

/// These windows and those of the program itself: the main, the about and the report window.
std::vector<WindowEntry> withProgramWindows(std::vector<WindowEntry> windows);

/// A started program on the recording platform, with what a test says and reads in one word each.
/// Every test has an empty folder of its own.
class WindowTest : public ::testing::Test {
protected:
    /// `opens`: the windows that the program can open; all that there are, if not given.
    explicit WindowTest(const std::vector<WindowEntry>& opens = ventanas());

    RecordingPlatform platform;
    Program program;

    /// Opens a window as its menu entry does.
    Window& open(const std::string& name);
    Window& window(const std::string& name);
    template <typename Kind>
    Kind& control(const std::string& name) {
        Control* found = current_->find(name);
        if (!found)
            throw std::logic_error("no control " + name);
        return dynamic_cast<Kind&>(*found);
    }

    // All of these act on the window opened last.
    void click(const std::string& name);
    void enter(const std::string& name, const std::string& text);
    void key(const std::string& name, Key::Kind kind);
    void type(const std::string& name, const std::string& characters);
    void choose(const std::string& list, const std::string& text);
    void cell(const std::string& grid, long row, long col);
    void rows(const std::vector<std::vector<std::string>>& rows);
    /// One column of values.
    void values(const std::vector<std::string>& column);

    /// Text of a field or list; caption of anything else.
    std::string text(const std::string& name);
    std::string cellText(const std::string& grid, long row, long col);
    /// Cells of a row joined by '|'.
    std::string rowText(const std::string& grid, long row);
    std::string focus();

    /// The message boxes since the last call.
    std::vector<Message> messages();
    /// That this is the one message box since the last call.
    void expectMessage(const Message& message,
                       std::source_location where = std::source_location::current());
    /// Text of the active document of the report window.
    std::string report();
    bool fatal(int number) const;
    std::string file(const std::string& name) const { return folder_.file(name); }

private:
    TemporaryFolder folder_;
    Window* current_ = nullptr;
};

} // namespace caudalera
