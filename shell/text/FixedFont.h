#pragma once

#include <string>

namespace caudalera {

/// A font of one width for all characters, such as reports show in.
struct FixedFont {
    std::string name = "Courier New";
    int halfPoints = 18;
    /// Width of a character as a part of the font's size; this and its kin have six tenths.
    double width = 0.6;

    bool operator==(const FixedFont&) const = default;
};

} // namespace caudalera
