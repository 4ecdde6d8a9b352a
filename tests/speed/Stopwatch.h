#pragma once

#include <ctime>

namespace caudalera {

/// Seconds that the process has computed since the watch was made: what else the machine does
/// meanwhile, which may be much, does not count.
class Stopwatch {
public:
    double seconds() const {
        return static_cast<double>(std::clock() - begin_) / static_cast<double>(CLOCKS_PER_SEC);
    }

private:
    std::clock_t begin_ = std::clock();
};

} // namespace caudalera
