#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace caudalera::manual {

/// A line of the contents: a page, or a title that pages stand below.
struct Entry {
    int level = 0;
    /// Empty for a title.
    std::string page;
    std::string title;
};

/// Reads the contents: one entry a line, two blanks before it for each level, the name of a page or
/// a title behind "+ ". Throws std::runtime_error if a line stands more than one level below the
/// one before it.
std::vector<Entry> readContents(std::string_view text);

} // namespace caudalera::manual
