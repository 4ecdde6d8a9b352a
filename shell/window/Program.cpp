#include "shell/window/Program.h"

#include "shell/window/Nesting.h"

#include <algorithm>
#include <utility>

namespace caudalera {

Program::~Program() = default;

void Program::start() {
    act([this] { show("frmCaudalera"); });
}

const WindowEntry* Program::entryOf(std::string_view name) const {
    const auto found = std::find_if(opens_.begin(), opens_.end(),
                                    [&](const WindowEntry& entry) { return entry.name == name; });
    return found == opens_.end() ? nullptr : &*found;
}

Window* Program::find(std::string_view name) const {
    for (const auto& window : windows_) {
        if (window->name() == name)
            return window.get();
    }
    return nullptr;
}

void Program::act(const std::function<void()>& handler) {
    if (ended_)
        return;
    try {
        const Nesting nesting(depth_);
        handler();
    } catch (const RuntimeFailure& failure) {
        if (!ended_)
            ended_ = Ending{Ending::Reason::fatal, failure.number(), {}};
    }
    if (depth_ == 0)
        finish();
}

void Program::actOn(const Window& window, const std::function<void()>& handler) {
    if (window.loaded())
        act(handler);
}

void Program::finish() {
    unloaded_.clear();
    if (windows_.empty() && !ended_)
        ended_ = Ending{};
    if (ended_)
        tellEnding();
}

void Program::tellEnding() {
    if (!std::exchange(told_, true))
        platform_.endProgram(*ended_);
}

void Program::click(Control& control) {
    if (!control.enabled)
        return;
    actOn(control.window(), [&] {
        Window& window = control.window();
        if (auto* button = dynamic_cast<Button*>(&control)) {
            window.setFocus(control);
            if (button->onClick)
                button->onClick();
        } else if (auto* option = dynamic_cast<Option*>(&control)) {
            window.setFocus(control);
            option->set();
        } else if (auto* entry = dynamic_cast<MenuEntry*>(&control)) {
            if (entry->onClick)
                entry->onClick();
        } else if (control.kind() == ControlKind::text || control.kind() == ControlKind::list ||
                   control.kind() == ControlKind::grid) {
            window.setFocus(control);
        }
    });
}

void Program::actOnText(TextBox& box, const std::function<void()>& handler) {
    if (!box.enabled)
        return;
    actOn(box.window(), [&] {
        box.window().setFocus(box);
        handler();
    });
}

void Program::changeText(TextBox& box, const std::string& text) {
    actOnText(box, [&] { box.enterText(text); });
}

void Program::insertText(TextBox& box, const std::string& text) {
    actOnText(box, [&] { box.insert(text); });
}

void Program::pasteText(TextBox& box, std::string_view text) {
    actOnText(box, [&] { box.paste(text); });
}

void Program::editText(TextBox& box, std::string_view text) {
    actOnText(box, [&] { box.edit(text); });
}

void Program::select(TextBox& box, std::size_t start, std::size_t length) {
    actOn(box.window(), [&] { box.select(start, length); });
}

void Program::choose(List& list, const std::string& text) {
    if (!list.enabled)
        return;
    actOn(list.window(), [&] {
        list.window().setFocus(list);
        list.choose(text);
    });
}

void Program::chooseTab(Tabs& tabs, int index) {
    actOn(tabs.window(), [&] {
        tabs.window().setFocus(tabs);
        tabs.choose(index);
    });
}

void Program::key(Window& window, Key key) {
    actOn(window, [&] {
        if (window.onKey)
            window.onKey(key);
    });
}

bool Program::consumedBefore(Control& control, Key key) {
    bool consumed = false;
    actOn(control.window(), [&] {
        Window& window = control.window();
        if (!window.onKey)
            return;
        window.setFocus(control);
        consumed = window.onKey(key);
    });
    return consumed;
}

void Program::key(Control& control, Key key) {
    if (!control.enabled || consumedBefore(control, key))
        return;
    if (control.kind() == ControlKind::button || control.kind() == ControlKind::option) {
        if (key.kind == Key::Kind::enter || key.character == U' ') {
            click(control);
        } else {
            focus(control);
        }
        return;
    }
    actOn(control.window(), [&] {
        if (auto* grid = dynamic_cast<MSFlexGrid*>(&control)) {
            if (grid->editor && grid->editor->visible) {
                keyOnText(*grid->editor, key);
            } else {
                control.window().setFocus(control);
                keyOnGrid(*grid, key);
            }
        } else if (auto* box = dynamic_cast<TextBox*>(&control)) {
            keyOnText(*box, key);
        } else if (auto* list = dynamic_cast<List*>(&control)) {
            control.window().setFocus(control);
            if (key.kind == Key::Kind::enter && list->onEnter) {
                list->onEnter();
            } else if (key.kind == Key::Kind::character) {
                list->type(key.character);
            }
        } else {
            control.window().setFocus(control);
        }
    });
}

void Program::keyOnText(TextBox& box, Key key) {
    box.window().setFocus(box);
    if (box.onKey && box.onKey(key))
        return;
    if (key.kind == Key::Kind::enter) {
        if (box.onEnter)
            box.onEnter();
    } else {
        box.type(key);
    }
}

void Program::keyOnGrid(MSFlexGrid& grid, Key key) {
    switch (key.kind) {
    case Key::Kind::up:
        if (grid.canSelect(grid.Row() - 1, grid.Col()))
            grid.setRow(grid.Row() - 1);
        break;
    case Key::Kind::down:
        if (grid.canSelect(grid.Row() + 1, grid.Col()))
            grid.setRow(grid.Row() + 1);
        break;
    case Key::Kind::enter:
        if (grid.onEnter)
            grid.onEnter();
        break;
    case Key::Kind::forwardDelete:
        // No character, so no key press either.
        break;
    default:
        if (grid.onKeyPress)
            grid.onKeyPress(key.code());
    }
}

void Program::selectCell(MSFlexGrid& grid, long row, long col) {
    actOn(grid.window(), [&] {
        grid.window().setFocus(grid);
        grid.selectCell(row, col);
    });
}

void Program::rightClick(MSFlexGrid& grid) {
    actOn(grid.window(), [&] {
        grid.window().setFocus(grid);
        if (grid.onRightClick)
            grid.onRightClick();
    });
}

void Program::scroll(MSFlexGrid& grid, long topRow) {
    actOn(grid.window(), [&] { grid.setTopRow(topRow); });
}

void Program::focus(Control& control) {
    actOn(control.window(), [&] { control.window().setFocus(control); });
}

void Program::leave(Control& control) {
    actOn(control.window(), [&] {
        if (control.window().focus() == &control)
            control.window().setFocus(nullptr);
    });
}

void Program::close(Window& window) {
    actOn(window, [&] { unload(window); });
}

Window* Program::show(std::string_view name) {
    Window* window = find(name);
    if (!window) {
        const WindowEntry* entry = entryOf(name);
        if (!entry)
            return nullptr;
        windows_.push_back(entry->create(*this));
        window = windows_.back().get();
        window->load();
    }
    window->visible = true;
    window->shown = ++showCount_;
    front_ = window;
    return window;
}

void Program::unload(Window& window) {
    const auto found = std::find_if(windows_.begin(), windows_.end(),
                                    [&](const auto& each) { return each.get() == &window; });
    if (found == windows_.end())
        return;
    window.unload();
    window.visible = false;
    window.loaded_ = false;
    if (front_ == &window)
        front_ = nullptr;
    unloaded_.push_back(std::move(*found));
    windows_.erase(found);
}

void Program::end() {
    ended_ = Ending{};
}

void Program::fail(std::string what) {
    if (told_)
        return;
    ended_ = Ending{Ending::Reason::fault, 0, std::move(what)};
    tellEnding();
}

} // namespace caudalera
