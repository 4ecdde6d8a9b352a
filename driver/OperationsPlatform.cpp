#include "driver/Driver.h"

#include <utility>

namespace caudalera {

void Driver::dialog(const Request& request, Json& reply) {
    for (auto& answer : request.answers("answers"))
        platform_->answers.push_back(std::move(answer));
    Json seen = Json::array();
    for (const auto& dialog : std::exchange(platform_->dialogsSeen, {}))
        seen.push_back({{"kind", dialog.kind}, {"title", dialog.title}, {"filter", dialog.filter}});
    reply["seen"] = std::move(seen);
}

void Driver::clipboard(const Request& request, Json& reply) {
    if (request.has("text"))
        platform_->clipboard = request.text("text");
    reply["text"] = platform_->clipboard;
}

void Driver::settings(const Request& /*request*/, Json& reply) {
    reply["settings"] = Json::object();
    for (const auto& [key, value] : platform_->settings)
        reply["settings"][key] = value;
}

void Driver::processes(const Request& request, Json& reply) {
    platform_->processesFail = request.flag("fail", platform_->processesFail);
    reply["started"] = platform_->processes;
}

void Driver::printed(const Request& /*request*/, Json& reply) {
    Json list = Json::array();
    for (const auto& each : platform_->printed)
        list.push_back({{"what", each.what}, {"name", each.name}, {"selection", each.selection}});
    reply["printed"] = std::move(list);
}

} // namespace caudalera
