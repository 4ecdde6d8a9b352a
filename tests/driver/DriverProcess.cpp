#include "tests/driver/DriverProcess.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace caudalera {

namespace {

constexpr int patienceInMilliseconds = 30000;

std::array<int, 2> makePipe() {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0)
        throw std::runtime_error("no pipe");
    // Ours must not reach the process, or closing them would not end its input.
    for (const int end : ends)
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
    return ends;
}

} // namespace

DriverProcess::DriverProcess(std::vector<std::string> arguments) {
    // A driver that has ended shows as a missing reply, not as a signal.
    std::signal(SIGPIPE, SIG_IGN);
    const auto in = makePipe();
    const auto out = makePipe();
    // Another one, say that of another system, can be put in its place.
    const char* other = std::getenv("CAUDALERA_DRIVER");
    arguments.insert(arguments.begin(), other ? other : CAUDALERA_DRIVER);
    std::vector<char*> argv;
    argv.reserve(arguments.size() + 1);
    for (auto& argument : arguments)
        argv.push_back(argument.data());
    argv.push_back(nullptr);
    pid_ = ::fork();
    if (pid_ == 0) {
        ::dup2(in[0], STDIN_FILENO);
        ::dup2(out[1], STDOUT_FILENO);
        ::execv(argv.front(), argv.data());
        ::_exit(127);
    }
    ::close(in[0]);
    ::close(out[1]);
    input_ = in[1];
    output_ = out[0];
}

DriverProcess::~DriverProcess() {
    if (pid_ > 0) {
        ::kill(pid_, SIGKILL);
        finish();
    }
    ::close(output_);
}

void DriverProcess::send(const std::string& text) {
    for (std::size_t sent = 0; sent < text.size();) {
        const auto count = ::write(input_, text.data() + sent, text.size() - sent);
        if (count <= 0)
            throw std::runtime_error("the driver takes no input");
        sent += static_cast<std::size_t>(count);
    }
}

std::string DriverProcess::receive() {
    for (;;) {
        const auto end = received_.find('\n');
        if (end != std::string::npos) {
            std::string line = received_.substr(0, end);
            received_.erase(0, end + 1);
            return line;
        }
        pollfd ready{output_, POLLIN, 0};
        if (::poll(&ready, 1, patienceInMilliseconds) <= 0)
            throw std::runtime_error("the driver does not answer");
        std::array<char, 65536> buffer{};
        const auto count = ::read(output_, buffer.data(), buffer.size());
        if (count <= 0)
            throw std::runtime_error("the driver has ended");
        received_.append(buffer.data(), static_cast<std::size_t>(count));
    }
}

std::string DriverProcess::exchange(const std::string& line) {
    send(line + "\n");
    return receive();
}

int DriverProcess::finish() {
    if (input_ >= 0)
        ::close(input_);
    input_ = -1;
    int status = 0;
    while (::waitpid(pid_, &status, 0) < 0 && errno == EINTR) {
    }
    pid_ = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

DriverTest::DriverTest(std::vector<std::string> arguments) : driver(std::move(arguments)) {}

json DriverTest::raw(const std::string& line) {
    json reply = json::parse(driver.exchange(line));
    EXPECT_TRUE(reply.at("ok").is_boolean()) << line;
    EXPECT_TRUE(reply.at("messages").is_array()) << line;
    EXPECT_TRUE(reply.contains("ended")) << line;
    EXPECT_EQ(reply.contains("error"), !reply.at("ok").get<bool>()) << line;
    return reply;
}

json DriverTest::ask(const std::string& op, json members) {
    members["op"] = op;
    return raw(members.dump());
}

json DriverTest::ok(const std::string& op, const json& members) {
    json reply = ask(op, members);
    EXPECT_TRUE(reply["ok"].get<bool>()) << op << " " << members << ": " << reply;
    return reply;
}

std::string DriverTest::error(const std::string& op, const json& members) {
    const json reply = ask(op, members);
    EXPECT_FALSE(reply["ok"].get<bool>()) << op << " " << members << ": " << reply;
    EXPECT_EQ(reply["messages"], json::array());
    std::string told = reply.value("error", "");
    EXPECT_NE(told, "");
    return told;
}

void DriverTest::open(const std::string& entry, const std::string& window) {
    ASSERT_EQ(ok("menu", {{"entry", entry}})["window"], window);
}

} // namespace caudalera
