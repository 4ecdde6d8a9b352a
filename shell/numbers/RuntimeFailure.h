#pragma once

#include <exception>
#include <string>

namespace caudalera {

/// The run-time failures that a command can meet, by their numbers.
enum class Failure : int {
    invalidArgument = 5, ///< root or logarithm out of range, fractional power of a negative
    overflow = 6,        ///< past the double range, or past 16 bits for the counters
    index = 9,           ///< past an array or a grid
    divisionByZero = 11, ///< 0 / 0 included
    fileNumber = 52,     ///< file cannot be opened under number 1
    fileNotFound = 53,   ///< file does not exist
    fileInUse = 55,      ///< file number 1 is in use
    fileAccess = 75,     ///< file cannot be read or written
    noActiveChild = 91,  ///< the report window holds no active document
    dialogCancelled = 32755,
};

/// What a handler throws when it cannot go on. A command with a trap catches it; without one it
/// is fatal and ends the program.
class RuntimeFailure : public std::exception {
public:
    explicit RuntimeFailure(Failure failure) : failure_(failure) {}

    Failure failure() const noexcept { return failure_; }
    int number() const noexcept { return static_cast<int>(failure_); }
    const char* what() const noexcept override { return "run-time failure"; }

private:
    Failure failure_;
};

/// The platform's Spanish name of a failure, as the box that ends the program shows it.
std::string nombreFallo(int number);

} // namespace caudalera
