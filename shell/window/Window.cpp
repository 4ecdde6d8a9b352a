#include "shell/window/Window.h"

#include "shell/text/Text.h"
#include "shell/window/Program.h"

#include <algorithm>

namespace caudalera {

Window::Window(Program& program, std::string name, std::string text)
    : caption(std::move(text)), program_(program), name_(std::move(name)) {}

Control* Window::find(std::string_view name) const {
    const auto found =
        std::find_if(controls_.begin(), controls_.end(),
                     [&](const Control* control) { return control->name() == name; });
    return found == controls_.end() ? nullptr : *found;
}

void Window::setFocus(Control* control) {
    if (control == focus_)
        return;
    Control* const left = std::exchange(focus_, control);
    if (left && left->onLostFocus)
        left->onLostFocus();
    if (control && control->onGotFocus)
        control->onGotFocus();
}

Platform& Window::platform() const {
    return program_.platform();
}

void Window::mensaje(std::string text, std::string title, Icon icon) const {
    mensaje(Message{std::move(text), std::move(title), icon});
}

void Window::mensaje(const Message& message) const {
    platform().showMessage(message);
}

std::string Window::formatear(Real value, std::string_view mascara) const {
    return caudalera::formatear(value.value(), mascara, platform().decimalSeparator());
}

std::string Window::formatear(float value, std::string_view mascara) const {
    return caudalera::formatear(value, mascara, platform().decimalSeparator());
}

} // namespace caudalera
