#pragma once

#include "tests/support/TemporaryFolder.h"

#include <nlohmann/json.hpp>

#include <gtest/gtest.h>

#include <string>
#include <sys/types.h>
#include <vector>

namespace caudalera {

using nlohmann::json;
using Row = std::vector<std::string>;
using Table = std::vector<Row>;

/// The driver as a process: one line in, one line out.
class DriverProcess {
public:
    explicit DriverProcess(std::vector<std::string> arguments = {});
    ~DriverProcess();
    DriverProcess(const DriverProcess&) = delete;
    DriverProcess& operator=(const DriverProcess&) = delete;

    /// The reply to a line of input; throws if there is none within some seconds.
    std::string exchange(const std::string& line);
    void send(const std::string& text);
    std::string receive();
    /// Closes its input and waits: its exit status, -1 if it did not end by itself.
    int finish();

private:
    pid_t pid_ = -1;
    int input_ = -1;
    int output_ = -1;
    std::string received_;
};

/// A driver of its own for every test, with a folder of its own. Every reply is checked for the
/// members that all replies have.
class DriverTest : public ::testing::Test {
protected:
    explicit DriverTest(std::vector<std::string> arguments = {});

    json raw(const std::string& line);
    json ask(const std::string& op, json members = json::object());
    /// A request that is understood; the reply.
    json ok(const std::string& op, const json& members = json::object());
    /// One that is not; its error. Nothing may have happened.
    std::string error(const std::string& op, const json& members = json::object());

    // The commonest requests.
    json click(const std::string& window, const std::string& control) {
        return ok("click", {{"window", window}, {"control", control}});
    }
    json key(const std::string& window, const std::string& control, const std::string& name) {
        return ok("key", {{"window", window}, {"control", control}, {"key", name}});
    }
    std::string text(const std::string& window, const std::string& control) {
        return ok("get", {{"window", window}, {"control", control}})["text"];
    }
    Table cells(const std::string& window, const std::string& grid) {
        return ok("grid", {{"window", window}, {"control", grid}})["cells"];
    }
    std::string focus(const std::string& window) {
        const json control = ok("focus", {{"window", window}})["control"];
        return control.is_null() ? "null" : control.get<std::string>();
    }
    json report() { return ok("report"); }
    /// Opens a window by its entry of the main menu.
    void open(const std::string& entry, const std::string& window);

    std::string file(const std::string& name) const { return folder_.file(name); }

    DriverProcess driver;

private:
    TemporaryFolder folder_;
};

} // namespace caudalera
