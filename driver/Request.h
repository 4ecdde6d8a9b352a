#pragma once

#include <nlohmann/json.hpp>

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace caudalera {

/// Keeps its members in the order they are written.
using Json = nlohmann::ordered_json;

/// What a request that is not understood throws; its text is the reply's "error".
class RequestError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// One line of input, with its members read by type. A member that is missing or of another type
/// is a RequestError.
class Request {
public:
    /// Throws RequestError for what is no JSON object.
    explicit Request(const std::string& line);

    /// Whether its operation is the one of that name.
    bool asksFor(const char* operation) const {
        return has("op") && at("op").is_string() && text("op") == operation;
    }
    bool has(const char* member) const { return json_.contains(member); }
    std::string text(const char* member) const;
    std::string text(const char* member, const std::string& otherwise) const;
    long integer(const char* member) const;
    /// A position or length: an integer that is not negative.
    std::size_t count(const char* member) const;
    std::size_t count(const char* member, std::size_t otherwise) const;
    double number(const char* member, double otherwise) const;
    bool flag(const char* member, bool otherwise) const;
    std::vector<std::vector<std::string>> rows(const char* member) const;
    /// Texts, or null for none.
    std::vector<std::optional<std::string>> answers(const char* member) const;

private:
    const Json& at(const char* member) const;
    const Json& list(const char* member) const;

    Json json_;
};

} // namespace caudalera
