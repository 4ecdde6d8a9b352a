#include "driver/Driver.h"

namespace caudalera {

namespace {

const char* kindName(ControlKind kind) {
    switch (kind) {
    case ControlKind::button:
        return "button";
    case ControlKind::text:
        return "text";
    case ControlKind::label:
        return "label";
    case ControlKind::option:
        return "option";
    case ControlKind::list:
        return "list";
    case ControlKind::grid:
        return "grid";
    case ControlKind::chart:
        return "chart";
    case ControlKind::frame:
        return "frame";
    case ControlKind::tabs:
        return "tabs";
    case ControlKind::menu:
        return "menu";
    case ControlKind::picture:
        return "picture";
    case ControlKind::status:
        return "status";
    }
    return "";
}

/// What a person reads on the control.
std::string textOf(const Control& control) {
    if (const auto* box = dynamic_cast<const TextBox*>(&control))
        return box->text();
    if (const auto* list = dynamic_cast<const List*>(&control))
        return list->text();
    if (const auto* grid = dynamic_cast<const MSFlexGrid*>(&control))
        return grid->Rows() > 0 ? grid->TextMatrix(grid->Row(), grid->Col()) : std::string();
    if (const auto* tabs = dynamic_cast<const Tabs*>(&control))
        return tabs->titles().at(static_cast<std::size_t>(tabs->tab()));
    if (const auto* status = dynamic_cast<const StatusBar*>(&control))
        return status->panels.empty() ? std::string() : status->panels.front();
    return control.caption;
}

bool hasCaption(ControlKind kind) {
    switch (kind) {
    case ControlKind::label:
    case ControlKind::button:
    case ControlKind::frame:
    case ControlKind::option:
    case ControlKind::menu:
        return true;
    default:
        return false;
    }
}

} // namespace

void Driver::windows(const Request& /*request*/, Json& reply) {
    Json list = Json::array();
    for (const auto& window : program_->windows()) {
        list.push_back(
            {{"name", window->name()}, {"caption", window->caption}, {"visible", window->visible}});
    }
    reply["windows"] = std::move(list);
}

void Driver::controls(const Request& request, Json& reply) {
    Json list = Json::array();
    for (const Control* control : windowOf(request).controls()) {
        list.push_back({{"name", control->name()},
                        {"kind", kindName(control->kind())},
                        {"caption", control->caption}});
    }
    reply["controls"] = std::move(list);
}

void Driver::get(const Request& request, Json& reply) {
    const Control& control = controlOf(request);
    reply["text"] = textOf(control);
    reply["visible"] = control.visible;
    reply["enabled"] = control.enabled;
    if (hasCaption(control.kind()))
        reply["caption"] = control.caption;
    if (const auto* option = dynamic_cast<const Option*>(&control))
        reply["checked"] = option->checked();
    if (const auto* list = dynamic_cast<const List*>(&control))
        reply["items"] = list->items();
    if (const auto* tabs = dynamic_cast<const Tabs*>(&control))
        reply["tab"] = tabs->tab();
}

void Driver::grid(const Request& request, Json& reply) {
    const auto& grid = controlOfKind<MSFlexGrid>(request, "grid");
    reply["rows"] = grid.Rows();
    reply["cols"] = grid.Cols();
    reply["fixedRows"] = grid.FixedRows();
    reply["fixedCols"] = grid.FixedCols();
    reply["row"] = grid.Row();
    reply["col"] = grid.Col();
    reply["visible"] = grid.visible;
    Json cells = Json::array();
    for (long row = 0; row < grid.Rows(); ++row) {
        Json texts = Json::array();
        for (long col = 0; col < grid.Cols(); ++col)
            texts.push_back(grid.TextMatrix(row, col));
        cells.push_back(std::move(texts));
    }
    reply["cells"] = std::move(cells);
}

void Driver::chart(const Request& request, Json& reply) {
    const std::string name = request.text("control", "Graph1");
    Control* control = windowOf(request).find(name);
    if (!control)
        throw RequestError("unknown control: " + name);
    const auto* graph = dynamic_cast<const Graph*>(control);
    if (!graph)
        throw RequestError(name + " is not a chart");
    reply["visible"] = graph->visible;
    reply["kind"] = graph->graphKind() == Graph::Kind::area ? "area" : "line";
    reply["style"] = graph->style();
    reply["points"] = graph->points();
    // The shortest digits that give the same double again: 17 significant ones where it needs them.
    reply["x"] = graph->x() ? Json(*graph->x()) : Json(nullptr);
    Json series = Json::array();
    for (const Graph::Series& each : graph->series())
        series.push_back({{"legend", each.legend}, {"y", each.y}});
    reply["series"] = std::move(series);
}

void Driver::focus(const Request& request, Json& reply) {
    const Control* control = windowOf(request).focus();
    reply["control"] = control ? Json(control->name()) : Json(nullptr);
}

} // namespace caudalera
