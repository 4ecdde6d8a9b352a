#pragma once

#include "shell/window/Key.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace caudalera {

/// One change of a text: the characters from `start` on, `length` of them, are replaced.
struct TextEdit {
    std::size_t start = 0;
    std::size_t length = 0;
    std::string inserted;
};

/// A text as an edit box holds it, with its selection in characters. It knows at which bytes the
/// selection lies, so that a key costs no counting however long the text is.
class EditedText {
public:
    EditedText() = default;
    /// UTF-8; the caret stands behind it.
    explicit EditedText(std::string text);

    const std::string& text() const { return text_; }
    /// In characters.
    std::size_t length() const { return whole_.characters; }
    std::size_t selStart() const { return first_.characters; }
    std::size_t selLength() const { return last_.characters - first_.characters; }
    /// Cut to the text's length.
    void select(std::size_t start, std::size_t length);

    /// Makes a change, itself cut to the text's length; the caret then stands behind what came in.
    void apply(const TextEdit& edit);

private:
    /// The front of a text, in both measures.
    struct Place {
        std::size_t characters = 0;
        std::size_t bytes = 0;
    };

    /// The place in front of a character, which lies in the text or right behind it.
    Place placeOf(std::size_t character) const;

    std::string text_;
    Place first_;
    Place last_;
    Place whole_;
};

/// What a key does to a text: a character from the blank on replaces the selection, backspace (8)
/// and Delete take the selection out or, without one, the character before or behind the caret.
/// None for a key that does nothing.
std::optional<TextEdit> editByKey(const EditedText& text, Key key);

/// The change that makes the text another one, its ends cut off where both are the same.
TextEdit editTowards(const EditedText& text, std::string_view wanted);

} // namespace caudalera
