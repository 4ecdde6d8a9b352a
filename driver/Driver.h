#pragma once

#include "driver/Request.h"

#include "recording/RecordingPlatform.h"
#include "shell/report/frmPadre.h"
#include "shell/window/Program.h"

#include <filesystem>
#include <memory>
#include <string>

namespace caudalera {

/// How a driver is started: what stands for the fixed directory and for the locale.
struct DriverOptions {
    std::filesystem::path fixedDirectory;
    std::string decimalSeparator = ".";
};

/// The program on the recording platform, driven by requests: one JSON object a line, answered by
/// one. All it does goes through the events of Program, and all it shows through the controls, so
/// it needs nothing for a window that is new.
class Driver {
public:
    explicit Driver(DriverOptions options);

    /// The reply to one line of input, without its line end.
    std::string answer(const std::string& line);

private:
    using Operation = void (Driver::*)(const Request&, Json& reply);
    static Operation operationOf(const std::string& name);

    void perform(const std::string& line, Json& reply);
    void startProgram(const std::string& decimalSeparator, bool keepSettings);

    Window& windowOf(const Request& request) const;
    Control& controlOf(const Request& request, const char* member = "control") const;
    template <typename Kind>
    Kind& controlOfKind(const Request& request, const char* wanted,
                        const char* member = "control") const {
        Control& control = controlOf(request, member);
        if (auto* found = dynamic_cast<Kind*>(&control))
            return *found;
        throw RequestError(control.name() + " is not a " + wanted);
    }
    /// The report window and its active document; RequestError without them.
    frmPadre& padre() const;
    frmDocumento& activeDocument() const;

    // What a person does at the windows.
    void restart(const Request& request, Json& reply);
    void menu(const Request& request, Json& reply);
    void close(const Request& request, Json& reply);
    void click(const Request& request, Json& reply);
    void text(const Request& request, Json& reply);
    void leave(const Request& request, Json& reply);
    void key(const Request& request, Json& reply);
    void choose(const Request& request, Json& reply);
    void tab(const Request& request, Json& reply);
    void rows(const Request& request, Json& reply);
    void cell(const Request& request, Json& reply);
    void rightclick(const Request& request, Json& reply);

    // What a person sees of them.
    void windows(const Request& request, Json& reply);
    void controls(const Request& request, Json& reply);
    void get(const Request& request, Json& reply);
    void grid(const Request& request, Json& reply);
    void chart(const Request& request, Json& reply);
    void focus(const Request& request, Json& reply);

    // The report window.
    void report(const Request& request, Json& reply);
    void activate(const Request& request, Json& reply);
    void caret(const Request& request, Json& reply);
    void rtf(const Request& request, Json& reply);
    void move(const Request& request, Json& reply);

    // What lies outside the program.
    void dialog(const Request& request, Json& reply);
    void clipboard(const Request& request, Json& reply);
    void settings(const Request& request, Json& reply);
    void processes(const Request& request, Json& reply);
    void printed(const Request& request, Json& reply);

    DriverOptions options_;
    std::unique_ptr<RecordingPlatform> platform_;
    std::unique_ptr<Program> program_;
};

} // namespace caudalera
