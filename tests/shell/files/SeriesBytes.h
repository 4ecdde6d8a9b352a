#pragma once

#include "shell/files/FilePath.h"

#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace caudalera {

using Bytes = std::vector<std::uint8_t>;

inline Bytes bytesOf(const std::string& path) {
    std::ifstream stream(filePath(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

inline void writeBytes(const std::string& path, const Bytes& bytes) {
    std::ofstream stream(filePath(path), std::ios::binary);
    for (const std::uint8_t byte : bytes)
        stream.put(static_cast<char>(byte));
}

} // namespace caudalera
