#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace caudalera {

/// A single as all files hold it: IEEE 754, the lowest byte first.
using SingleBytes = std::array<char, 4>;

constexpr SingleBytes bytesOfSingle(float value) {
    const auto bits = std::bit_cast<std::uint32_t>(value);
    SingleBytes bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>(static_cast<unsigned char>(bits >> (8 * i)));
    return bytes;
}

constexpr float singleOf(const SingleBytes& bytes) {
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bits |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[i])) << (8 * i);
    return std::bit_cast<float>(bits);
}

} // namespace caudalera
