#pragma once

#include <cstddef>
#include <filesystem>
#include <vector>

namespace caudalera {

/// The first singles of a file of little-endian singles, at most `capacity`; fewer where the file
/// ends before, a part of a single left out. A file that is not there, cannot be read or is no
/// regular file gives none.
std::vector<float> readTable(const std::filesystem::path& file, std::size_t capacity);

} // namespace caudalera
