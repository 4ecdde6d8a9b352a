#pragma once

#include <filesystem>
#include <string>

namespace caudalera {

// The model's one place where texts become paths and paths texts. Its texts are UTF-8; on Windows a
// path holds wide characters, and a stream that is opened by it calls the system's functions for
// wide names, so that any name works whatever the code page.

/// The path that an UTF-8 text names, also where the system's own paths are not UTF-8.
inline std::filesystem::path filePath(const std::string& utf8) {
    return {std::u8string(utf8.begin(), utf8.end())};
}

/// A path as an UTF-8 text.
inline std::string pathText(const std::filesystem::path& path) {
    const std::u8string utf8 = path.u8string();
    return {utf8.begin(), utf8.end()};
}

} // namespace caudalera
