#include "manual/maker/Contents.h"

#include <stdexcept>

namespace caudalera::manual {

std::vector<Entry> readContents(std::string_view text) {
    std::vector<Entry> entries;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text.remove_prefix(end == text.npos ? text.size() : end + 1);
        const std::size_t blanks = line.find_first_not_of(' ');
        if (blanks == line.npos)
            continue;
        line.remove_prefix(blanks);
        Entry entry;
        entry.level = static_cast<int>(blanks / 2);
        if (entry.level > (entries.empty() ? 0 : entries.back().level + 1))
            throw std::runtime_error("too deep in the contents: " + std::string(line));
        (line.starts_with("+ ") ? entry.title : entry.page) =
            line.starts_with("+ ") ? line.substr(2) : line;
        entries.push_back(entry);
    }
    return entries;
}

} // namespace caudalera::manual
