#include "driver/Driver.h"

#include "app/registry.h"
#include "shell/report/frmPadre.h"
#include "shell/text/Utf8.h"

#include <unordered_map>
#include <utility>

namespace caudalera {

namespace {

const char* iconName(Icon icon) {
    switch (icon) {
    case Icon::information:
        return "information";
    case Icon::error:
        return "error";
    case Icon::none:
        break;
    }
    return "none";
}

Json messagesOf(std::vector<Message> messages) {
    Json list = Json::array();
    for (Message& message : messages) {
        list.push_back({{"text", std::move(message.text)},
                        {"title", std::move(message.title)},
                        {"icon", iconName(message.icon)}});
    }
    return list;
}

Json endingOf(const std::optional<Ending>& ended) {
    if (!ended)
        return nullptr;
    Json ending;
    ending["reason"] = ended->reason == Ending::Reason::fatal ? "fatal" : "exit";
    if (ended->reason == Ending::Reason::fatal)
        ending["number"] = ended->number;
    return ending;
}

} // namespace

Driver::Driver(DriverOptions options) : options_(std::move(options)) {
    startProgram(options_.decimalSeparator, false);
}

void Driver::startProgram(const std::string& decimalSeparator, bool keepSettings) {
    auto platform = std::make_unique<RecordingPlatform>();
    if (keepSettings && platform_)
        platform->settings = std::move(platform_->settings);
    platform->directory = options_.fixedDirectory;
    platform->separator = decimalSeparator;
    program_.reset();
    platform_ = std::move(platform);
    program_ = std::make_unique<Program>(*platform_, ventanas());
    program_->start();
}

Driver::Operation Driver::operationOf(const std::string& name) {
    static const std::unordered_map<std::string, Operation> operations = {
        {"restart", &Driver::restart},
        {"menu", &Driver::menu},
        {"windows", &Driver::windows},
        {"close", &Driver::close},
        {"controls", &Driver::controls},
        {"click", &Driver::click},
        {"text", &Driver::text},
        {"leave", &Driver::leave},
        {"key", &Driver::key},
        {"choose", &Driver::choose},
        {"tab", &Driver::tab},
        {"rows", &Driver::rows},
        {"cell", &Driver::cell},
        {"rightclick", &Driver::rightclick},
        {"get", &Driver::get},
        {"grid", &Driver::grid},
        {"chart", &Driver::chart},
        {"focus", &Driver::focus},
        {"dialog", &Driver::dialog},
        {"report", &Driver::report},
        {"activate", &Driver::activate},
        {"caret", &Driver::caret},
        {"rtf", &Driver::rtf},
        {"clipboard", &Driver::clipboard},
        {"settings", &Driver::settings},
        {"move", &Driver::move},
        {"processes", &Driver::processes},
        {"printed", &Driver::printed},
    };
    const auto found = operations.find(name);
    if (found == operations.end())
        throw RequestError("unknown operation: " + name);
    return found->second;
}

void Driver::perform(const std::string& line, Json& reply) {
    const Request request(line);
    if (program_->ended() && !request.asksFor("restart"))
        throw RequestError("ended");
    (this->*operationOf(request.text("op")))(request, reply);
}

std::string Driver::answer(const std::string& line) {
    Json reply;
    reply["ok"] = true;
    try {
        perform(line, reply);
    } catch (const std::exception& error) {
        // RequestError is what a request can cause; anything else would be a fault of ours, which
        // the tests had better see than lose with the process.
        const bool ours = dynamic_cast<const RequestError*>(&error) == nullptr;
        reply = Json::object();
        reply["ok"] = false;
        reply["error"] = (ours ? "internal fault: " : "") + std::string(error.what());
    }
    reply["messages"] = messagesOf(std::exchange(platform_->messages, {}));
    reply["ended"] = endingOf(program_->ended());
    return reply.dump(-1, ' ', false, Json::error_handler_t::replace);
}

Window& Driver::windowOf(const Request& request) const {
    const std::string name = request.text("window");
    if (Window* window = program_->find(name))
        return *window;
    throw RequestError("unknown window: " + name);
}

Control& Driver::controlOf(const Request& request, const char* member) const {
    const Window& window = windowOf(request);
    const std::string name = request.text(member);
    if (Control* control = window.find(name))
        return *control;
    throw RequestError("unknown control: " + name);
}

frmPadre& Driver::padre() const {
    if (frmPadre* padre = ventanaDeReportes(*program_))
        return *padre;
    throw RequestError("unknown window: frmPadre");
}

frmDocumento& Driver::activeDocument() const {
    if (frmDocumento* document = padre().active())
        return *document;
    throw RequestError("unknown window: frmDocumento");
}

void Driver::restart(const Request& request, Json& /*reply*/) {
    const std::string separator = request.text("decimalSeparator", options_.decimalSeparator);
    const bool keepSettings = request.flag("keepSettings", false);
    if (utf8::count(separator) != 1)
        throw RequestError("member \"decimalSeparator\" is not one character");
    startProgram(separator, keepSettings);
}

} // namespace caudalera
