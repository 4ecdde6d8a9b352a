#pragma once

#include <optional>
#include <string>
#include <vector>

// What the command lines of our programs are answered with before anything is shown, and without a
// display: the version, the help, a refusal. Nothing else is taken from a command line; the options
// that the toolkit knows are refused like any other.

namespace caudalera::commandline {

/// What a program says instead of starting.
struct Answer {
    /// Whole lines, UTF-8.
    std::string text;
    /// The exit status: 0 for what was asked, whose text belongs on the standard output; 2 for a
    /// refusal, which belongs on the standard error output.
    int status = 0;

    bool operator==(const Answer&) const = default;
};

/// The arguments of main() behind the name of the program.
std::vector<std::string> argumentsOf(int argc, char** argv);

/// The answer of caudalera, which starts without arguments alone.
std::optional<Answer> answerOfProgram(const std::vector<std::string>& arguments);

/// The answer of caudalera-ayuda, which starts with one file at most; what begins with a dash is
/// none.
std::optional<Answer> answerOfViewer(const std::vector<std::string>& arguments);

/// Writes the text where it belongs. Returns the status to exit with: the answer's, or 1 if the
/// text could not be written.
int say(const Answer& answer);

} // namespace caudalera::commandline
