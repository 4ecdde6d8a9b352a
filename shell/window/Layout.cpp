#include "shell/window/Layout.h"

#include "shell/window/Control.h"

namespace caudalera {

Layout::FieldLine::FieldLine(TextBox& box) : label(box.label()), fields{&box}, unit(box.unit()) {}

Layout::FieldLine::FieldLine(List& list) : label(list.label()), fields{&list}, unit(list.unit()) {}

namespace layout {

namespace {

Layout container(Layout::Kind kind, std::vector<Layout> children) {
    Layout node;
    node.kind = kind;
    node.children = std::move(children);
    return node;
}

std::vector<Layout> leaves(const std::vector<Control*>& controls) {
    std::vector<Layout> nodes;
    nodes.reserve(controls.size());
    for (Control* each : controls)
        nodes.push_back(control(*each));
    return nodes;
}

} // namespace

Layout row(std::vector<Layout> children) {
    return container(Layout::Kind::row, std::move(children));
}

Layout column(std::vector<Layout> children) {
    return container(Layout::Kind::column, std::move(children));
}

Layout control(Control& control) {
    Layout node;
    node.kind = Layout::Kind::control;
    node.control = &control;
    return node;
}

Layout frame(Frame& frame, Layout content) {
    Layout node;
    node.kind = Layout::Kind::frame;
    node.control = &frame;
    node.children.push_back(std::move(content));
    return node;
}

Layout tabs(Tabs& tabs, std::vector<Layout> pages) {
    Layout node = container(Layout::Kind::tabs, std::move(pages));
    node.control = &tabs;
    return node;
}

Layout fields(std::vector<Layout::FieldLine> lines) {
    Layout node;
    node.kind = Layout::Kind::fields;
    node.lines = std::move(lines);
    return node;
}

Layout buttons(const std::vector<Control*>& controls) {
    return container(Layout::Kind::buttons, leaves(controls));
}

Layout list(const std::vector<Control*>& controls) {
    return column(leaves(controls));
}

} // namespace layout

} // namespace caudalera
