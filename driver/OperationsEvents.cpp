#include "driver/Driver.h"

#include "recording/Act.h"
#include "shell/text/Utf8.h"

#include <algorithm>

namespace caudalera {

namespace {

Key keyOf(const std::string& name) {
    if (name == "Enter" || name == "\r")
        return {Key::Kind::enter};
    if (name == "Escape" || name == "\x1b")
        return {Key::Kind::escape};
    if (name == "Up")
        return {Key::Kind::up};
    if (name == "Down")
        return {Key::Kind::down};
    if (utf8::count(name) != 1)
        throw RequestError("unknown key: " + name);
    return {Key::Kind::character, utf8::decode(name, 0).character};
}

/// nullptr without any window.
const Window* lastShown(const Program& program) {
    const Window* last = nullptr;
    for (const auto& window : program.windows()) {
        if (!last || window->shown > last->shown)
            last = window.get();
    }
    return last;
}

bool takesKeys(const Control& control) {
    switch (control.kind()) {
    case ControlKind::button:
    case ControlKind::option:
    case ControlKind::text:
    case ControlKind::list:
    case ControlKind::grid:
    case ControlKind::tabs:
        return true;
    default:
        return false;
    }
}

bool takesClicks(const Control& control) {
    return control.kind() == ControlKind::menu ||
           (takesKeys(control) && control.kind() != ControlKind::tabs);
}

} // namespace

void Driver::menu(const Request& request, Json& reply) {
    const std::string name = request.text("entry");
    const Window* main = program_->find("frmCaudalera");
    if (!main)
        throw RequestError("unknown window: frmCaudalera");
    auto* entry = dynamic_cast<MenuEntry*>(main->find(name));
    if (!entry)
        throw RequestError("unknown entry: " + name);
    const std::uint64_t before = lastShown(*program_)->shown;
    program_->click(*entry);
    const Window* window = lastShown(*program_);
    reply["window"] = window && window->shown > before ? Json(window->name()) : Json(nullptr);
}

void Driver::close(const Request& request, Json& /*reply*/) {
    if (request.text("window") == "frmDocumento") {
        frmDocumento& document = activeDocument();
        program_->act([&] { padre().closeDocument(document); });
        return;
    }
    program_->close(windowOf(request));
}

void Driver::click(const Request& request, Json& /*reply*/) {
    if (request.text("window") == "frmDocumento") {
        // A document has no menu of its own: it shows that of its parent.
        activeDocument();
        const std::string name = request.text("control");
        auto* entry = dynamic_cast<MenuEntry*>(padre().find(name));
        if (!entry)
            throw RequestError("unknown control: " + name);
        program_->click(*entry);
        return;
    }
    Control& control = controlOf(request);
    if (!takesClicks(control))
        throw RequestError(control.name() + " takes no click");
    program_->click(control);
}

void Driver::text(const Request& request, Json& /*reply*/) {
    Control& control = controlOf(request);
    const std::string typed = request.text("text");
    if (auto* box = dynamic_cast<TextBox*>(&control)) {
        program_->changeText(*box, typed);
    } else if (auto* list = dynamic_cast<List*>(&control)) {
        program_->choose(*list, typed);
    } else {
        throw RequestError(control.name() + " is not a text field");
    }
}

void Driver::leave(const Request& request, Json& /*reply*/) {
    program_->leave(controlOf(request));
}

void Driver::key(const Request& request, Json& /*reply*/) {
    Control& control = controlOf(request);
    const Key pressed = keyOf(request.text("key"));
    if (!takesKeys(control))
        throw RequestError(control.name() + " takes no keys");
    program_->key(control, pressed);
}

void Driver::choose(const Request& request, Json& /*reply*/) {
    auto& list = controlOfKind<List>(request, "list");
    program_->choose(list, request.text("text"));
}

void Driver::tab(const Request& request, Json& /*reply*/) {
    auto* tabs = dynamic_cast<Tabs*>(windowOf(request).find("SSTab1"));
    if (!tabs)
        throw RequestError("unknown control: SSTab1");
    const std::size_t index = request.count("index");
    if (index >= tabs->titles().size())
        throw RequestError("there is no tab " + std::to_string(index));
    program_->chooseTab(*tabs, static_cast<int>(index));
}

void Driver::rows(const Request& request, Json& /*reply*/) {
    auto* grid = dynamic_cast<MSFlexGrid*>(windowOf(request).find("grdt"));
    if (!grid)
        throw RequestError("unknown control: grdt");
    typeRows(*program_, *grid, request.rows("rows"));
}

void Driver::cell(const Request& request, Json& /*reply*/) {
    auto& grid = controlOfKind<MSFlexGrid>(request, "grid", "grid");
    const long row = request.integer("row");
    const long col = request.integer("col");
    if (!grid.canSelect(row, col)) {
        throw RequestError("cell " + std::to_string(row) + ", " + std::to_string(col) + " of " +
                           grid.name() + " cannot be made current");
    }
    program_->selectCell(grid, row, col);
}

void Driver::rightclick(const Request& request, Json& reply) {
    auto& grid = controlOfKind<MSFlexGrid>(request, "grid", "grid");
    program_->rightClick(grid);
    Json menu = Json::array();
    if (grid.popup) {
        for (const MenuEntry* entry : grid.popup->entries) {
            if (entry)
                menu.push_back({{"name", entry->name()}, {"enabled", entry->enabled}});
        }
    }
    reply["menu"] = std::move(menu);
}

} // namespace caudalera
