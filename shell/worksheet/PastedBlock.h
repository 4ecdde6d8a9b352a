#pragma once

#include "shell/text/ForeignNumber.h"
#include "shell/window/Program.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace caudalera {

/// A block of numbers from the clipboard: columns parted by tabs, rows by line ends. The decimal
/// sign is the one by which every cell is a number; thousands may be grouped by the other one. A
/// first row with no number in it is taken for headings and left out.
class PastedBlock {
public:
    /// A cell that either sign reads, with the numbers that it gives.
    struct Example {
        std::string text;
        std::string withPoint;
        std::string withComma;
    };

    explicit PastedBlock(std::string_view text);

    /// Numbers with a decimal point, all rows of the same length.
    const std::vector<std::vector<std::string>>& rows() const { return rows_; }
    std::size_t columns() const { return columns_; }
    bool hasHeadings() const { return headings_; }
    /// Whether all of it is one number, as a field takes it.
    bool isSingleNumber() const;
    /// The first cell of a block that has commas and nothing that tells decimals from thousands; it
    /// is read with decimal commas until `read` says otherwise.
    const std::optional<Example>& undecided() const { return example_; }
    /// Reads all cells by a sign.
    void read(DecimalSign sign);

    /// Why it can't be entered; empty if it can.
    const std::string& refusal() const { return refusal_; }
    /// The same for a grid with its current cell: a block that is too wide, whose new rows would
    /// not be complete, or that makes more rows than a grid counts.
    std::string refusalFor(const MSFlexGrid& grid) const;

    /// Enters the values as typing does, each with its ENTER, from the current cell on: downward
    /// over rows of data, then at the append row.
    void enter(Program& program, MSFlexGrid& grid) const;

private:
    void chooseSign();
    /// Cells that are no number by a sign.
    std::ptrdiff_t unread(DecimalSign sign) const;
    void findExample();

    std::vector<std::vector<std::string>> cells_;
    std::vector<std::vector<std::string>> rows_;
    std::size_t columns_ = 0;
    bool headings_ = false;
    std::optional<Example> example_;
    std::string refusal_;
};

/// A text as it comes into an edit box: a single number as a block of one cell gives it, any other
/// text as it stands.
std::string numberAsPasted(std::string_view text);

} // namespace caudalera
