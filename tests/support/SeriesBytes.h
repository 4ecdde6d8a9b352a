#pragma once

#include "shell/files/FilePath.h"

#include <bit>
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

/// Writes a series file of 4-byte records byte by byte, the lowest byte of each single first.
inline void writeSingles(const std::string& path, const std::vector<float>& values) {
    Bytes bytes;
    for (const float value : values) {
        const auto bits = std::bit_cast<std::uint32_t>(value);
        for (int shift = 0; shift < 32; shift += 8)
            bytes.push_back(static_cast<std::uint8_t>(bits >> shift));
    }
    writeBytes(path, bytes);
}

} // namespace caudalera
