#include "shell/window/EditedText.h"

#include "shell/text/Utf8.h"

#include <algorithm>
#include <initializer_list>

namespace caudalera {

namespace {

std::size_t distance(std::size_t a, std::size_t b) {
    return a < b ? b - a : a - b;
}

} // namespace

EditedText::EditedText(std::string text)
    : text_(std::move(text)), whole_{utf8::count(text_), text_.size()} {
    first_ = last_ = whole_;
}

EditedText::Place EditedText::placeOf(std::size_t character) const {
    Place place;
    for (const Place& known : {first_, last_, whole_}) {
        if (distance(known.characters, character) < distance(place.characters, character))
            place = known;
    }
    for (; place.characters < character; ++place.characters) {
        do {
            ++place.bytes;
        } while (place.bytes < text_.size() && utf8::isContinuation(text_[place.bytes]));
    }
    for (; place.characters > character; --place.characters) {
        do {
            --place.bytes;
        } while (place.bytes > 0 && utf8::isContinuation(text_[place.bytes]));
    }
    return place;
}

void EditedText::select(std::size_t start, std::size_t length) {
    start = std::min(start, whole_.characters);
    const Place first = placeOf(start);
    last_ = placeOf(start + std::min(length, whole_.characters - start));
    first_ = first;
}

void EditedText::apply(const TextEdit& edit) {
    select(edit.start, edit.length);
    const std::size_t inserted = utf8::count(edit.inserted);
    text_.replace(first_.bytes, last_.bytes - first_.bytes, edit.inserted);
    whole_ = {whole_.characters - selLength() + inserted, text_.size()};
    first_ = last_ = {first_.characters + inserted, first_.bytes + edit.inserted.size()};
}

std::optional<TextEdit> editByKey(const EditedText& text, Key key) {
    constexpr char32_t backspaceCode = 8;
    constexpr char32_t blank = 32;
    const bool isCharacter = key.kind == Key::Kind::character;
    const bool backspace = isCharacter && key.character == backspaceCode;
    TextEdit edit{text.selStart(), text.selLength(), {}};
    if (backspace || key.kind == Key::Kind::forwardDelete) {
        if (edit.length > 0)
            return edit;
        if (edit.start == (backspace ? 0 : text.length()))
            return std::nullopt;
        if (backspace)
            --edit.start;
        edit.length = 1;
        return edit;
    }
    if (!isCharacter || key.character < blank)
        return std::nullopt;
    utf8::append(edit.inserted, key.character);
    return edit;
}

TextEdit editTowards(const EditedText& text, std::string_view wanted) {
    std::string_view old = text.text();
    const auto cuts = [](std::string_view in, std::size_t at) {
        return at < in.size() && utf8::isContinuation(in[at]);
    };
    auto front = static_cast<std::size_t>(
        std::mismatch(old.begin(), old.end(), wanted.begin(), wanted.end()).first - old.begin());
    while (front > 0 && (cuts(old, front) || cuts(wanted, front)))
        --front;
    const std::size_t start = utf8::count(old.substr(0, front));
    old.remove_prefix(front);
    wanted.remove_prefix(front);
    auto back = static_cast<std::size_t>(
        std::mismatch(old.rbegin(), old.rend(), wanted.rbegin(), wanted.rend()).first -
        old.rbegin());
    while (back > 0 && cuts(old, old.size() - back))
        --back;
    old.remove_suffix(back);
    wanted.remove_suffix(back);
    return {start, utf8::count(old), std::string(wanted)};
}

} // namespace caudalera
