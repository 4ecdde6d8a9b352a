#include "tests/support/WindowTest.h"

#include "shell/report/frmPadre.h"

#include <stdexcept>
#include <utility>

namespace caudalera {

std::vector<WindowEntry> withProgramWindows(std::vector<WindowEntry> windows) {
    for (const WindowEntry& entry : ventanas()) {
        if (entry.name == "frmCaudalera" || entry.name == "frmacerc" || entry.name == "frmPadre")
            windows.push_back(entry);
    }
    return windows;
}

WindowTest::WindowTest(const std::vector<WindowEntry>& opens) : program(platform, opens) {
    platform.directory = folder_.path();
    program.start();
    current_ = program.find("frmCaudalera");
}

Window& WindowTest::open(const std::string& name) {
    program.act([&] { current_ = program.show(name); });
    if (!current_)
        throw std::logic_error("no window " + name);
    return *current_;
}

Window& WindowTest::window(const std::string& name) {
    current_ = program.find(name);
    if (!current_)
        throw std::logic_error("window not loaded: " + name);
    return *current_;
}

void WindowTest::click(const std::string& name) {
    program.click(control<Control>(name));
}

void WindowTest::enter(const std::string& name, const std::string& text) {
    program.changeText(control<TextBox>(name), text);
}

void WindowTest::key(const std::string& name, Key::Kind kind) {
    program.key(control<Control>(name), {kind});
}

void WindowTest::type(const std::string& name, const std::string& characters) {
    typeText(program, control<Control>(name), characters);
}

void WindowTest::choose(const std::string& list, const std::string& text) {
    program.choose(control<List>(list), text);
}

void WindowTest::cell(const std::string& grid, long row, long col) {
    program.selectCell(control<MSFlexGrid>(grid), row, col);
}

void WindowTest::rows(const std::vector<std::vector<std::string>>& rows) {
    typeRows(program, control<MSFlexGrid>("grdt"), rows);
}

void WindowTest::values(const std::vector<std::string>& column) {
    std::vector<std::vector<std::string>> typed;
    for (const auto& value : column)
        typed.push_back({value});
    rows(typed);
}

std::string WindowTest::text(const std::string& name) {
    Control& found = control<Control>(name);
    if (const auto* box = dynamic_cast<TextBox*>(&found))
        return box->text();
    if (const auto* list = dynamic_cast<List*>(&found))
        return list->text();
    return found.caption;
}

std::string WindowTest::cellText(const std::string& grid, long row, long col) {
    return control<MSFlexGrid>(grid).TextMatrix(row, col);
}

std::string WindowTest::rowText(const std::string& grid, long row) {
    const auto& cells = control<MSFlexGrid>(grid);
    std::string joined = cells.TextMatrix(row, 0);
    for (long col = 1; col < cells.Cols(); ++col)
        joined += "|" + cells.TextMatrix(row, col);
    return joined;
}

std::string WindowTest::focus() {
    return current_->focus() ? current_->focus()->name() : std::string();
}

std::vector<Message> WindowTest::messages() {
    return std::exchange(platform.messages, {});
}

void WindowTest::expectMessage(const Message& message, std::source_location where) {
    const ::testing::ScopedTrace trace(where.file_name(), static_cast<int>(where.line()), "");
    EXPECT_EQ(messages(), std::vector{message});
}

std::string WindowTest::report() {
    const auto* padre = ventanaDeReportes(program);
    return padre && padre->active() ? padre->active()->rtfText.text() : std::string();
}

bool WindowTest::fatal(int number) const {
    return platform.ending && platform.ending->reason == Ending::Reason::fatal &&
           platform.ending->number == number;
}

} // namespace caudalera
