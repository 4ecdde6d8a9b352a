#include "shell/window/Control.h"

#include "shell/numbers/RuntimeFailure.h"
#include "shell/text/Utf8.h"
#include "shell/window/Window.h"

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

void Tabs::preset(int index) {
    if (index < 0 || index >= static_cast<int>(titles_.size()))
        throw RuntimeFailure(Failure::index);
    tab_ = index;
}

void Tabs::choose(int index) {
    preset(index);
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
    countWriting();
    if (text == content_.text())
        return;
    enterText(std::move(text));
}

void TextBox::enterText(std::string text) {
    content_ = EditedText(std::move(text));
    if (onChange)
        onChange();
}

bool TextBox::accepts(const TextEdit& edit) const {
    // What stands there can always be taken out.
    if (!acceptable || edit.inserted.empty())
        return true;
    EditedText edited = content_;
    edited.apply(edit);
    if (acceptable(edited.text()))
        return true;
    // A text that came in past the filter can be edited, too: then what is added is judged alone.
    return !acceptable(content_.text()) && acceptable(edit.inserted);
}

void TextBox::change(const TextEdit& edit) {
    if (!accepts(edit))
        return;
    content_.apply(edit);
    if (onChange)
        onChange();
}

void TextBox::type(Key key) {
    if (const auto edit = editByKey(content_, key))
        change(*edit);
}

void TextBox::insert(std::string text) {
    change({selStart(), selLength(), std::move(text)});
}

void TextBox::paste(std::string_view text) {
    insert(asPasted ? asPasted(text) : std::string(text));
}

void TextBox::edit(std::string_view text) {
    change(editTowards(content_, text));
}

List::List(Window& window, const std::string& name, std::vector<std::string> items,
           std::string start, const std::string& labelText, const std::string& unitText)
    : Control(window, name, ControlKind::list),
      label_(attachedLabel(window, name + ".rótulo", labelText)), items_(std::move(items)),
      text_(std::move(start)), unit_(attachedLabel(window, name + ".unidad", unitText)) {}

void List::choose(std::string text) {
    text_ = std::move(text);
    if (onChange)
        onChange();
}

void List::type(char32_t character) {
    if (character == 8) {
        while (!text_.empty() && utf8::isContinuation(text_.back()))
            text_.pop_back();
        if (!text_.empty())
            text_.pop_back();
    } else if (character >= 32) {
        utf8::append(text_, character);
    } else {
        return;
    }
    if (onChange)
        onChange();
}

} // namespace caudalera
