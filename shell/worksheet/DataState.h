#pragma once

#include "shell/window/MSFlexGrid.h"

#include <cstdint>
#include <optional>
#include <string>

namespace caudalera {

/// What is known of a data grid beyond its cells: how many rows of data it holds, what was done
/// with them last, and whether they are still those that were calculated with. Data that are
/// changed and changed back are the same data.
class DataState {
public:
    explicit DataState(const MSFlexGrid& data) : data_(data) {}

    /// Rows of data: neither headers nor the append row.
    long count() const;
    /// Something was done with the data as they are now, in a word or two.
    void done(std::string what);
    /// The results that stand are those of the data as they are now.
    void calculated();
    /// Whether the data are others than those of the last calculation.
    bool changedSinceCalculation() const { return calculated_ && !isNow(*calculated_); }
    /// What was done last, unless the data have changed since.
    const std::string& lastDone() const;

private:
    /// Stands for the content of the data cells.
    struct Print {
        long rows;
        std::uint64_t hash;
    };

    bool isNow(const Print& print) const;
    Print now() const { return {count(), hash()}; }
    std::uint64_t hash() const;

    const MSFlexGrid& data_;
    std::optional<Print> calculated_;
    std::optional<Print> handled_;
    std::string lastDone_;
    /// The hash as of a revision of the grid, which is not computed twice.
    mutable std::uint64_t hash_ = 0;
    mutable std::optional<std::uint64_t> hashed_;
};

} // namespace caudalera
