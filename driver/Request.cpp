#include "driver/Request.h"

#include <limits>

namespace caudalera {

namespace {

[[noreturn]] void wrongType(const char* member, const char* wanted) {
    throw RequestError("member \"" + std::string(member) + "\" is not " + wanted);
}

} // namespace

Request::Request(const std::string& line) {
    json_ = Json::parse(line, nullptr, false);
    if (json_.is_discarded())
        throw RequestError("malformed JSON");
    if (!json_.is_object())
        throw RequestError("the request is not a JSON object");
}

const Json& Request::at(const char* member) const {
    const auto found = json_.find(member);
    if (found == json_.end())
        throw RequestError("missing member \"" + std::string(member) + "\"");
    return *found;
}

const Json& Request::list(const char* member) const {
    const Json& value = at(member);
    if (!value.is_array())
        wrongType(member, "a list");
    return value;
}

std::string Request::text(const char* member) const {
    const Json& value = at(member);
    if (!value.is_string())
        wrongType(member, "a text");
    return value.get<std::string>();
}

std::string Request::text(const char* member, const std::string& otherwise) const {
    return has(member) ? text(member) : otherwise;
}

long Request::integer(const char* member) const {
    const Json& value = at(member);
    // Unsigned numbers past the signed range would wrap.
    const bool fits =
        value.is_number_unsigned()
            ? value.get<std::uint64_t>() <=
                  static_cast<std::uint64_t>(std::numeric_limits<std::int32_t>::max())
            : value.is_number_integer() &&
                  value.get<std::int64_t>() >= std::numeric_limits<std::int32_t>::min();
    if (!fits)
        wrongType(member, "an integer");
    return value.get<long>();
}

std::size_t Request::count(const char* member) const {
    const long value = integer(member);
    if (value < 0)
        wrongType(member, "an integer of 0 or more");
    return static_cast<std::size_t>(value);
}

std::size_t Request::count(const char* member, std::size_t otherwise) const {
    return has(member) ? count(member) : otherwise;
}

double Request::number(const char* member, double otherwise) const {
    if (!has(member))
        return otherwise;
    const Json& value = at(member);
    if (!value.is_number())
        wrongType(member, "a number");
    return value.get<double>();
}

bool Request::flag(const char* member, bool otherwise) const {
    if (!has(member))
        return otherwise;
    const Json& value = at(member);
    if (!value.is_boolean())
        wrongType(member, "true or false");
    return value.get<bool>();
}

std::vector<std::vector<std::string>> Request::rows(const char* member) const {
    std::vector<std::vector<std::string>> rows;
    for (const Json& row : list(member)) {
        if (!row.is_array())
            wrongType(member, "a list of lists of texts");
        auto& texts = rows.emplace_back();
        for (const Json& value : row) {
            if (!value.is_string())
                wrongType(member, "a list of lists of texts");
            texts.push_back(value.get<std::string>());
        }
    }
    return rows;
}

std::vector<std::optional<std::string>> Request::answers(const char* member) const {
    std::vector<std::optional<std::string>> answers;
    for (const Json& value : list(member)) {
        if (value.is_null()) {
            answers.emplace_back();
        } else if (value.is_string()) {
            answers.emplace_back(value.get<std::string>());
        } else {
            wrongType(member, "a list of texts and nulls");
        }
    }
    return answers;
}

} // namespace caudalera
