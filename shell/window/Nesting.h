#pragma once

namespace caudalera {

/// Counts how deep calls are nested while it lives, also where one is left by an exception.
class Nesting {
public:
    explicit Nesting(int& depth) : depth_(depth) { ++depth_; }
    ~Nesting() { --depth_; }
    Nesting(const Nesting&) = delete;
    Nesting& operator=(const Nesting&) = delete;

private:
    int& depth_;
};

} // namespace caudalera
