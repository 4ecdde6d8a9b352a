#pragma once

#include <bit>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace caudalera {

/// Writes a series file of 4-byte records byte by byte, the lowest byte of each single first.
inline void writeSingles(const std::string& path, const std::vector<float>& values) {
    std::ofstream file(path, std::ios::binary);
    for (const float value : values) {
        const auto bits = std::bit_cast<std::uint32_t>(value);
        for (int shift = 0; shift < 32; shift += 8)
            file.put(static_cast<char>((bits >> shift) & 0xFFU));
    }
}

inline std::vector<unsigned char> bytesOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

} // namespace caudalera
