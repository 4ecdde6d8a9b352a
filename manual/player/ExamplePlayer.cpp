#include "manual/player/ExamplePlayer.h"

#include "recording/Act.h"

#include <algorithm>

namespace caudalera::manual {

namespace {

/// As it is read: without the mark of its access key, the colon behind it and doubled blanks.
std::string plain(std::string caption) {
    std::erase(caption, '&');
    for (std::size_t at = 0; (at = caption.find("  ")) != caption.npos;)
        caption.erase(at, 1);
    while (caption.ends_with(':') || caption.ends_with(' '))
        caption.pop_back();
    return caption;
}

std::string labelOf(const Control& control) {
    if (const auto* box = dynamic_cast<const TextBox*>(&control))
        return box->label() ? box->label()->caption : std::string();
    if (const auto* list = dynamic_cast<const List*>(&control))
        return list->label() ? list->label()->caption : std::string();
    return control.caption;
}

std::string unitOf(const Control& control) {
    if (const auto* box = dynamic_cast<const TextBox*>(&control))
        return box->unit() ? box->unit()->caption : std::string();
    return {};
}

std::string isNot(const std::string& what, const std::string& is, const std::string& written) {
    return what + " is \"" + is + "\", not \"" + written + "\"";
}

} // namespace

void ExamplePlayer::open(const std::string& window) {
    program_.act([&] { window_ = program_.show(window); });
}

std::string ExamplePlayer::play(const Step& step) {
    if (step.kind == Step::Kind::message)
        return {};
    if (step.kind == Step::Kind::open) {
        open(step.control);
        return window_ ? "" : "no window " + step.control;
    }
    Control* const control = window_ ? window_->find(step.control) : nullptr;
    if (!control)
        return "no control " + step.control;
    if (std::string fault = captionFault(step, *control); !fault.empty())
        return fault;
    if (auto* grid = dynamic_cast<MSFlexGrid*>(control);
        grid && step.kind == Step::Kind::gridCell) {
        if (step.row >= grid->Rows() || step.column >= grid->Cols())
            return "no cell " + step.key();
        const std::string text = grid->TextMatrix(step.row, step.column);
        return text == step.value() ? "" : isNot(step.key(), text, step.value());
    }
    if (step.kind == Step::Kind::field) {
        const std::string text = shown(*control);
        return text == step.value() ? "" : isNot(step.control, text, step.value());
    }
    return act(step, *control);
}

std::string ExamplePlayer::captionFault(const Step& step, const Control& control) {
    const std::string caption = plain(labelOf(control));
    const bool named = step.kind != Step::Kind::tab && step.kind != Step::Kind::gridCell &&
                       step.kind != Step::Kind::cell && step.kind != Step::Kind::row &&
                       step.kind != Step::Kind::keys && control.kind() != ControlKind::label;
    if (named && !caption.empty() && caption != plain(step.caption))
        return isNot("the caption of " + step.control, caption, step.caption);
    const std::string unit = unitOf(control);
    if (!step.unit.empty() && !unit.empty() && unit != step.unit)
        return isNot("the unit of " + step.control, unit, step.unit);
    return {};
}

std::string ExamplePlayer::shown(const Control& control) {
    if (const auto* box = dynamic_cast<const TextBox*>(&control))
        return box->text();
    if (const auto* list = dynamic_cast<const List*>(&control))
        return list->text();
    return control.caption;
}

std::string ExamplePlayer::act(const Step& step, Control& control) {
    std::string wrong = "not possible at " + step.control;
    switch (step.kind) {
    case Step::Kind::load:
        answerFile_(step.value());
        program_.click(control);
        return {};
    case Step::Kind::click:
    case Step::Kind::mark:
        program_.click(control);
        return {};
    case Step::Kind::enter: {
        auto* box = dynamic_cast<TextBox*>(&control);
        if (!box)
            return wrong;
        program_.focus(*box);
        program_.changeText(*box, {});
        typeText(program_, *box, step.value());
        return box->text() == step.value() ? "" : isNot(step.control, box->text(), step.value());
    }
    case Step::Kind::choose: {
        auto* list = dynamic_cast<List*>(&control);
        if (!list)
            return wrong;
        const auto& items = list->items();
        if (std::find(items.begin(), items.end(), step.value()) == items.end())
            return "no item " + step.value() + " in " + step.control;
        program_.choose(*list, step.value());
        return {};
    }
    case Step::Kind::tab: {
        auto* tabs = dynamic_cast<Tabs*>(&control);
        return tabs ? chooseTab(step, *tabs) : wrong;
    }
    case Step::Kind::row:
    case Step::Kind::cell:
        return actOnGrid(step, control);
    case Step::Kind::keys:
        typeText(program_, control, step.value());
        return {};
    default:
        return wrong;
    }
}

std::string ExamplePlayer::actOnGrid(const Step& step, Control& control) {
    auto* grid = dynamic_cast<MSFlexGrid*>(&control);
    if (!grid)
        return step.control + " is no grid";
    if (step.kind == Step::Kind::row) {
        typeRows(program_, *grid, {step.values});
        return {};
    }
    program_.selectCell(*grid, step.row, step.column);
    typeText(program_, *grid, step.value());
    program_.key(*grid, {Key::Kind::enter});
    const std::string text = grid->TextMatrix(step.row, step.column);
    return text.empty() ? "nothing was stored in " + step.control : "";
}

std::string ExamplePlayer::chooseTab(const Step& step, Tabs& tabs) {
    const auto& titles = tabs.titles();
    for (std::size_t i = 0; i < titles.size(); ++i) {
        if (plain(titles[i]) == plain(step.caption)) {
            program_.chooseTab(tabs, static_cast<int>(i));
            return {};
        }
    }
    return "no tab " + step.caption;
}

} // namespace caudalera::manual
