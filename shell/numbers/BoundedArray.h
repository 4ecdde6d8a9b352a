#pragma once

#include "shell/numbers/RuntimeFailure.h"

#include <array>
#include <cstddef>

namespace caudalera {

/// An array with fixed bounds First..Last, both valid indices; an index outside is failure 9.
template <typename T, long First, long Last>
class BoundedArray {
public:
    static constexpr long first = First;
    static constexpr long last = Last;

    T& operator[](long index) { return items_[position(index)]; }
    const T& operator[](long index) const { return items_[position(index)]; }

private:
    static std::size_t position(long index) {
        if (index < First || index > Last)
            throw RuntimeFailure(Failure::index);
        return static_cast<std::size_t>(index - First);
    }

    std::array<T, static_cast<std::size_t>(Last - First + 1)> items_{};
};

} // namespace caudalera
