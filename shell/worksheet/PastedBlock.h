#pragma once

#include "shell/window/Program.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace caudalera {

/// A block of numbers from the clipboard: columns parted by tabs, rows by line ends. If a comma
/// stands in it and every cell reads as a number with thousands points and a decimal comma, the
/// values are taken to the decimal point; otherwise every cell must be a number with a point.
class PastedBlock {
public:
    explicit PastedBlock(std::string_view text);

    /// Numbers with a decimal point, all rows of the same length.
    const std::vector<std::vector<std::string>>& rows() const { return rows_; }
    std::size_t columns() const { return rows_.empty() ? 0 : rows_.front().size(); }
    /// Why it can't be entered; empty if it can.
    const std::string& refusal() const { return refusal_; }
    /// The same for a grid with its current cell: a block that is too wide, whose new rows would
    /// not be complete, or that makes more rows than a grid counts.
    std::string refusalFor(const MSFlexGrid& grid) const;

    /// Enters the values as typing does, each with its ENTER, from the current cell on: downward
    /// over rows of data, then at the append row.
    void enter(Program& program, MSFlexGrid& grid) const;

private:
    std::vector<std::vector<std::string>> rows_;
    std::string refusal_;
};

/// A text as it comes into an edit box: a single number as a block of one cell gives it, any other
/// text as it stands.
std::string numberAsPasted(std::string_view text);

} // namespace caudalera
