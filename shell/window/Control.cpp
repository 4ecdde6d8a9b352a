#include "shell/window/Control.h"

#include "shell/numbers/RuntimeFailure.h"
#include "shell/text/Text.h"
#include "shell/text/Utf8.h"
#include "shell/window/Window.h"

#include <algorithm>

namespace caudalera {

Control::Control(Window& window, std::string name, ControlKind kind, std::string text)
    : caption(std::move(text)), window_(window), name_(std::move(name)), kind_(kind) {
    window.add(*this);
}

void OptionGroup::clear() {
    for (Option* option : options_)
        option->preset(false);
}

void Option::set() {
    group_.clear();
    checked_ = true;
    if (onClick)
        onClick();
}

void Option::preset(bool value) {
    if (value)
        group_.clear();
    checked_ = value;
}

void Tabs::choose(int index) {
    if (index < 0 || index >= static_cast<int>(titles_.size()))
        throw RuntimeFailure(Failure::index);
    tab_ = index;
    if (onClick)
        onClick();
}

namespace {

std::unique_ptr<Label> attachedLabel(Window& window, const std::string& name,
                                     const std::string& text) {
    return text.empty() ? nullptr : std::make_unique<Label>(window, name, text);
}

} // namespace

TextBox::TextBox(Window& window, const std::string& name, const std::string& labelText,
                 const std::string& unitText)
    : Control(window, name, ControlKind::text),
      label_(attachedLabel(window, name + ".rótulo", labelText)),
      unit_(attachedLabel(window, name + ".unidad", unitText)) {}

void TextBox::setText(std::string text) {
    if (text == text_)
        return;
    enterText(std::move(text));
}

void TextBox::enterText(std::string text) {
    text_ = std::move(text);
    selStart = longitud(text_);
    selLength = 0;
    if (onChange)
        onChange();
}

void TextBox::type(char32_t character) {
    if (keyFilter && !keyFilter(character, text_))
        return;
    const std::size_t length = longitud(text_);
    std::size_t start = std::min(selStart, length);
    std::size_t count = std::min(selLength, length - start);
    const bool backspace = character == 8;
    if (backspace && count == 0) {
        if (start == 0)
            return;
        --start;
        count = 1;
    }
    if (!backspace && character < 32)
        return;
    std::string text = text_;
    const std::size_t from = utf8::offset(text, start);
    std::string typed;
    if (!backspace)
        utf8::append(typed, character);
    text.replace(from, utf8::offset(text, start + count) - from, typed);
    enterText(std::move(text));
    selStart = backspace ? start : start + 1;
}

List::List(Window& window, const std::string& name, std::vector<std::string> items,
           std::string start, const std::string& labelText)
    : Control(window, name, ControlKind::list),
      label_(attachedLabel(window, name + ".rótulo", labelText)), items_(std::move(items)),
      text_(std::move(start)) {}

void List::choose(std::string text) {
    text_ = std::move(text);
    if (onChange)
        onChange();
}

void List::type(char32_t character) {
    std::string text = text_;
    if (character == 8) {
        text.resize(utf8::offset(text, longitud(text) - std::min<std::size_t>(longitud(text), 1)));
    } else if (character >= 32) {
        utf8::append(text, character);
    } else {
        return;
    }
    choose(std::move(text));
}

} // namespace caudalera
