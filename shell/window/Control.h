#pragma once

#include "shell/window/EditedText.h"
#include "shell/window/Key.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace caudalera {

class Window;

enum class ControlKind {
    button,
    text,
    label,
    option,
    list,
    grid,
    chart,
    frame,
    tabs,
    menu,
    picture,
    status
};

/// What a window is made of, as plain data. A control is a named member of its window and
/// registers itself there when it is built, so views and tests find it by its name.
class Control {
public:
    Control(Window& window, std::string name, ControlKind kind, std::string caption = {});
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const std::string& name() const { return name_; }
    ControlKind kind() const { return kind_; }
    Window& window() const { return window_; }

    /// With '&' before the access key, where it has one.
    std::string caption;
    std::string toolTip;
    /// The control's own, whatever it stands in.
    bool visible = true;
    bool enabled = true;

    /// Grows whenever the program writes a text of it, be it the one that stands there.
    std::uint64_t written() const { return written_; }

    std::function<void()> onGotFocus;
    std::function<void()> onLostFocus;

protected:
    void countWriting() { ++written_; }

private:
    Window& window_;
    std::string name_;
    ControlKind kind_;
    std::uint64_t written_ = 0;
};

class Label : public Control {
public:
    Label(Window& window, std::string name, std::string text)
        : Control(window, std::move(name), ControlKind::label, std::move(text)) {}

    /// Shown in the heavier type of a heading.
    bool heading = false;
    /// May run over several lines in the room that it is given.
    bool wraps = false;
    /// A sign beside the text that tells its outcome without reading it.
    enum class Mark { none, yes, no };
    Mark mark = Mark::none;
};

class Frame : public Control {
public:
    Frame(Window& window, std::string name, std::string text)
        : Control(window, std::move(name), ControlKind::frame, std::move(text)) {}
};

class Button : public Control {
public:
    Button(Window& window, std::string name, std::string text, std::string tip = {})
        : Control(window, std::move(name), ControlKind::button, std::move(text)) {
        toolTip = std::move(tip);
    }

    std::function<void()> onClick;
};

class Picture : public Control {
public:
    Picture(Window& window, std::string name, std::string image)
        : Control(window, std::move(name), ControlKind::picture), image_(std::move(image)) {}

    /// Name of the drawing; the view knows where it lies.
    const std::string& image() const { return image_; }

private:
    std::string image_;
};

class StatusBar : public Control {
public:
    StatusBar(Window& window, std::string name, int count)
        : Control(window, std::move(name), ControlKind::status),
          panels(static_cast<std::size_t>(count)) {}

    std::vector<std::string> panels;
};

/// A menu's title (with entries below it), an entry, or an entry of a pop-up.
class MenuEntry : public Control {
public:
    MenuEntry(Window& window, std::string name, std::string text)
        : Control(window, std::move(name), ControlKind::menu, std::move(text)) {}

    std::function<void()> onClick;
    /// What stands below a title, in order; nullptr is a separator.
    std::vector<MenuEntry*> entries;
};

class Option;

/// Options of which at most one is set.
class OptionGroup {
public:
    void add(Option& option) { options_.push_back(&option); }
    const std::vector<Option*>& options() const { return options_; }
    /// Unsets them all; no event runs.
    void clear();

private:
    std::vector<Option*> options_;
};

class Option : public Control {
public:
    Option(Window& window, std::string name, std::string text, OptionGroup& group)
        : Control(window, std::move(name), ControlKind::option, std::move(text)), group_(group) {
        group.add(*this);
    }

    bool checked() const { return checked_; }
    /// Sets it, unsets the others of its group and runs its event, also when it was set already.
    void set();
    /// Sets or unsets it as a start value: no event runs.
    void preset(bool value);
    const OptionGroup& group() const { return group_; }

    std::function<void()> onClick;

private:
    OptionGroup& group_;
    bool checked_ = false;
};

class Tabs : public Control {
public:
    Tabs(Window& window, std::string name, std::vector<std::string> titles)
        : Control(window, std::move(name), ControlKind::tabs), titles_(std::move(titles)) {}

    const std::vector<std::string>& titles() const { return titles_; }
    int tab() const { return tab_; }
    /// Brings a tab forward and runs the event; failure 9 for one that is not there.
    void choose(int index);
    /// The same without the event: what is on it has the focus.
    void preset(int index);

    std::function<void()> onClick;

private:
    std::vector<std::string> titles_;
    int tab_ = 0;
};

/// A text field, with its label and unit as labels of their own.
class TextBox : public Control {
public:
    TextBox(Window& window, const std::string& name, const std::string& labelText = {},
            const std::string& unitText = {});

    const std::string& text() const { return content_.text(); }
    /// Replaces the text, the caret behind it; the change event runs if it differs.
    void setText(std::string text);
    /// The same, with the change event in any case and whatever the filter says.
    void enterText(std::string text);

    Label* label() const { return label_.get(); }
    Label* unit() const { return unit_.get(); }

    /// Selection in characters.
    std::size_t selStart() const { return content_.selStart(); }
    std::size_t selLength() const { return content_.selLength(); }
    void select(std::size_t start, std::size_t length) { content_.select(start, length); }

    // What the user's hands do to the text. Each is one change, which the filter lets in whole or
    // not at all and which runs the change event.
    /// A key at the selection.
    void type(Key key);
    /// Puts a text in place of the selection, as an input method does.
    void insert(std::string text);
    /// The same with a text from elsewhere, as this field reads such.
    void paste(std::string_view text);
    /// The text becomes another one by editing of whatever kind (cutting, undoing).
    void edit(std::string_view text);

    /// The filter: which texts the user's editing may lead to; all, if unset.
    std::function<bool(std::string_view)> acceptable;
    /// What a text that is pasted comes in as; as it stands, if unset.
    std::function<std::string(std::string_view)> asPasted;
    /// A key before anything else; true if it is consumed.
    std::function<bool(Key)> onKey;
    std::function<void()> onChange;
    std::function<void()> onEnter;
    /// The command that works with what this field holds. A view presses it by ENTER where
    /// `onEnter` gives that key no meaning.
    Button* command = nullptr;
    /// Holds a result: shown apart from what the user enters.
    bool result = false;
    /// Characters that it should show without scrolling.
    int width = 10;

private:
    bool accepts(const TextEdit& edit) const;
    void change(const TextEdit& edit);

    std::unique_ptr<Label> label_;
    EditedText content_;
    std::unique_ptr<Label> unit_;
};

/// A drop-down list that can also be typed into, with its label and unit as labels of their own.
class List : public Control {
public:
    List(Window& window, const std::string& name, std::vector<std::string> items, std::string start,
         const std::string& labelText = {}, const std::string& unitText = {});

    const std::vector<std::string>& items() const { return items_; }
    const std::string& text() const { return text_; }
    void setText(std::string text) { text_ = std::move(text); }
    /// What picking an item or typing does: the text changes and the event runs.
    void choose(std::string text);
    /// Types one character behind the text; backspace (8) deletes the last one.
    void type(char32_t character);

    Label* label() const { return label_.get(); }
    Label* unit() const { return unit_.get(); }
    std::function<void()> onChange;
    std::function<void()> onEnter;
    /// Characters that it should show without scrolling; 0 for its longest item.
    int width = 0;

private:
    std::unique_ptr<Label> label_;
    std::vector<std::string> items_;
    std::string text_;
    std::unique_ptr<Label> unit_;
};

} // namespace caudalera
