#pragma once

namespace caudalera {

/// One key as a person presses it.
struct Key {
    enum class Kind { character, enter, escape, up, down, forwardDelete };
    Kind kind = Kind::character;
    char32_t character = 0;

    /// What a key press reports: the character, 13 for ENTER, 27 for Escape.
    char32_t code() const {
        if (kind == Kind::enter)
            return 13;
        return kind == Kind::escape ? 27 : character;
    }
};

} // namespace caudalera
