#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "shell/richtext/CodePages.h"
#include "shell/richtext/RichText.h"
#include "shell/richtext/RtfContent.h"
#include "shell/richtext/RtfTokens.h"
#include "shell/richtext/RtfWords.h"
#include "shell/text/Utf8.h"

namespace caudalera {

namespace {

/// Groups past this depth are counted but keep no state of their own. Writers stay below a hundred.
constexpr std::size_t deepestGroup = 4096;
/// 22 inches, as far as word processors indent.
constexpr std::int32_t widestIndent = 31680;
constexpr std::int32_t largestHalfPoints = 3276;
/// More fallback characters for one \u than any writer gives are taken for damage.
constexpr std::int32_t longestFallback = 255;

enum class Destination { text, skipped, fonts, colors, generator };

/// What a group's end takes back.
struct GroupState {
    Destination destination = Destination::text;
    RtfFormat format;
    ParagraphFormat paragraph;
    std::int32_t fallbackLength = 1;
};

class Reader {
public:
    explicit Reader(std::string_view source) : tokens_(source) {}

    std::vector<Paragraph> read();

private:
    bool take(const RtfToken& token);
    void openGroup();
    bool closeGroup();
    void takeWord(const RtfToken& token);
    void takeCharacterWord(const RtfWord& word, const RtfToken& token);
    void takeParagraphWord(const RtfWord& word, const RtfToken& token);
    void takeSymbol(unsigned char symbol);
    void takeText(std::string_view bytes);
    void takeUnit(std::int32_t number);

    void addCharacter(char32_t character);
    void addAscii(std::string_view bytes);
    void flushSurrogate();
    void endParagraph(bool last);

    RtfTokens tokens_;
    GroupState state_;
    std::vector<GroupState> outer_;
    std::size_t uncountedDepth_ = 0;
    bool starred_ = false;
    std::size_t fallbackLeft_ = 0;
    char32_t highSurrogate_ = 0;

    std::string generator_;
    bool own_ = false;
    RtfTables tables_;
    RtfParagraphs paragraphs_;
};

std::vector<Paragraph> Reader::read() {
    while (take(tokens_.next())) {
    }
    return paragraphs_.take();
}

/// False at the end of the text.
bool Reader::take(const RtfToken& token) {
    const bool isUnit = token.kind == RtfTokenKind::word && token.text == "u";
    if (token.kind == RtfTokenKind::open || token.kind == RtfTokenKind::close || isUnit) {
        fallbackLeft_ = 0;
    } else if (fallbackLeft_ > 0 && token.kind != RtfTokenKind::text) {
        --fallbackLeft_;
        return token.kind != RtfTokenKind::end;
    }
    if (token.kind != RtfTokenKind::word && token.kind != RtfTokenKind::symbol) {
        starred_ = false;
    }
    switch (token.kind) {
    case RtfTokenKind::end:
        return false;
    case RtfTokenKind::open:
        openGroup();
        break;
    case RtfTokenKind::close:
        return closeGroup();
    case RtfTokenKind::word:
        takeWord(token);
        break;
    case RtfTokenKind::symbol:
        takeSymbol(token.character);
        break;
    case RtfTokenKind::byte:
        addCharacter(fromWindows1252(token.character));
        break;
    case RtfTokenKind::text:
        takeText(token.text);
        break;
    }
    return true;
}

void Reader::openGroup() {
    flushSurrogate();
    if (outer_.size() < deepestGroup) {
        outer_.push_back(state_);
    } else {
        ++uncountedDepth_;
    }
}

bool Reader::closeGroup() {
    flushSurrogate();
    if (state_.destination == Destination::fonts) {
        tables_.endFont();
    } else if (state_.destination == Destination::generator) {
        own_ = generator_ == rtfGenerator;
    }
    if (uncountedDepth_ > 0) {
        --uncountedDepth_;
        return true;
    }
    if (outer_.empty()) {
        return false;
    }
    state_ = outer_.back();
    outer_.pop_back();
    paragraphs_.changeFormat();
    return !outer_.empty();
}

void Reader::takeWord(const RtfToken& token) {
    RtfWord word = findRtfWord(token.text);
    if (starred_ && word.kind != RtfWordKind::generator) {
        word.kind = RtfWordKind::skipped;
    }
    starred_ = false;
    switch (word.kind) {
    case RtfWordKind::unknown:
        break;
    case RtfWordKind::skipped:
        state_.destination = Destination::skipped;
        break;
    case RtfWordKind::fonts:
    case RtfWordKind::colors:
        if (state_.destination == Destination::text) {
            state_.destination =
                word.kind == RtfWordKind::fonts ? Destination::fonts : Destination::colors;
        }
        break;
    case RtfWordKind::generator:
        if (state_.destination == Destination::text) {
            state_.destination = Destination::generator;
        }
        break;
    case RtfWordKind::character:
        addCharacter(static_cast<char32_t>(word.value));
        break;
    case RtfWordKind::unit:
        takeUnit(token.parameter);
        break;
    case RtfWordKind::fallbackLength:
        state_.fallbackLength =
            token.parameter >= 0 && token.parameter <= longestFallback ? token.parameter : 1;
        break;
    case RtfWordKind::paragraphEnd:
        endParagraph(true);
        break;
    case RtfWordKind::lineEnd:
        endParagraph(false);
        break;
    case RtfWordKind::sectionEnd:
        if (!paragraphs_.isEmptyLast()) {
            endParagraph(true);
        }
        break;
    case RtfWordKind::alignment:
    case RtfWordKind::indent:
    case RtfWordKind::rightIndent:
    case RtfWordKind::defaultParagraph:
        takeParagraphWord(word, token);
        break;
    default:
        takeCharacterWord(word, token);
        break;
    }
}

void Reader::takeParagraphWord(const RtfWord& word, const RtfToken& token) {
    ParagraphFormat& format = state_.paragraph;
    const std::int32_t twips = std::clamp(token.parameter, -widestIndent, widestIndent);
    if (word.kind == RtfWordKind::alignment) {
        format.alignment = static_cast<Alignment>(word.value);
    } else if (word.kind == RtfWordKind::indent) {
        format.indent = twips;
    } else if (word.kind == RtfWordKind::rightIndent) {
        format.rightIndent = twips;
    } else {
        format = {};
    }
}

void Reader::takeCharacterWord(const RtfWord& word, const RtfToken& token) {
    // Within the tables these words tell of entries.
    if (state_.destination == Destination::fonts) {
        if (word.kind == RtfWordKind::font) {
            tables_.beginFont(token.parameter);
        }
        return;
    }
    if (word.kind == RtfWordKind::colorPart) {
        if (state_.destination == Destination::colors) {
            tables_.setColorPart(word.value, token.parameter);
        }
        return;
    }
    RtfFormat& format = state_.format;
    const bool on = !token.hasParameter || token.parameter != 0;
    switch (word.kind) {
    case RtfWordKind::bold:
        format.bold = on;
        break;
    case RtfWordKind::italic:
        format.italic = on;
        break;
    case RtfWordKind::underline:
        format.underline = on && word.value != 0;
        break;
    case RtfWordKind::hidden:
        format.hidden = on;
        break;
    case RtfWordKind::font:
        format.font = token.parameter;
        break;
    case RtfWordKind::fontSize:
        // Outside all groups our own files state the box's size, which its runs leave open.
        if (own_ && outer_.size() == 1) {
            return;
        }
        format.halfPoints = std::clamp(token.parameter, 0, largestHalfPoints);
        break;
    case RtfWordKind::color:
        format.color = token.parameter;
        break;
    case RtfWordKind::defaultCharacter:
        format = {};
        break;
    default:
        break;
    }
    paragraphs_.changeFormat();
}

void Reader::takeSymbol(unsigned char symbol) {
    starred_ = symbol == '*';
    switch (symbol) {
    case '\\':
    case '{':
    case '}':
        addCharacter(symbol);
        break;
    case '~':
        addCharacter(0x00A0);
        break;
    case '_':
        addCharacter(0x2011);
        break;
    case '-':
        addCharacter(0x00AD);
        break;
    case '\t':
        addCharacter('\t');
        break;
    case '\r':
    case '\n':
        endParagraph(true);
        break;
    default:
        break;
    }
}

void Reader::takeText(std::string_view bytes) {
    const std::size_t passed = std::min(fallbackLeft_, bytes.size());
    fallbackLeft_ -= passed;
    bytes.remove_prefix(passed);
    while (!bytes.empty()) {
        const auto other = std::find_if(bytes.begin(), bytes.end(), [](char byte) {
            return static_cast<unsigned char>(byte) >= 0x80;
        });
        const auto ascii = static_cast<std::size_t>(other - bytes.begin());
        addAscii(bytes.substr(0, ascii));
        bytes.remove_prefix(ascii);
        if (!bytes.empty()) {
            addCharacter(fromWindows1252(static_cast<unsigned char>(bytes.front())));
            bytes.remove_prefix(1);
        }
    }
}

void Reader::takeUnit(std::int32_t number) {
    fallbackLeft_ = static_cast<std::size_t>(state_.fallbackLength);
    // The number is a signed 16-bit one; some writers give it unsigned, or the whole character.
    if (number < -0x8000 || number > 0x10FFFF) {
        addCharacter(utf8::replacement);
        return;
    }
    const auto unit = static_cast<char32_t>(number < 0 ? number + 0x10000 : number);
    if (unit >= 0xD800 && unit <= 0xDBFF) {
        flushSurrogate();
        highSurrogate_ = unit;
    } else if (unit >= 0xDC00 && unit <= 0xDFFF && highSurrogate_ != 0) {
        const char32_t high = std::exchange(highSurrogate_, 0);
        addCharacter(0x10000 + ((high - 0xD800) << 10U) + (unit - 0xDC00));
    } else {
        addCharacter(unit);
    }
}

/// A first half of a pair that no second one follows.
void Reader::flushSurrogate() {
    if (highSurrogate_ != 0) {
        highSurrogate_ = 0;
        addCharacter(utf8::replacement);
    }
}

void Reader::addCharacter(char32_t character) {
    flushSurrogate();
    if (character == 0 || character == '\r') {
        return;
    }
    switch (state_.destination) {
    case Destination::skipped:
        break;
    case Destination::fonts:
        tables_.addFontCharacter(character);
        break;
    case Destination::colors:
        tables_.addColorCharacter(character);
        break;
    case Destination::generator:
        if (character != ';' && generator_.size() <= rtfGenerator.size()) {
            utf8::append(generator_, character);
        }
        break;
    case Destination::text:
        if (character == '\n') {
            endParagraph(false);
        } else if (!state_.format.hidden) {
            std::string bytes;
            utf8::append(bytes, character);
            paragraphs_.append(bytes, state_.format, state_.paragraph, tables_);
        }
        break;
    }
}

void Reader::addAscii(std::string_view bytes) {
    if (bytes.empty()) {
        return;
    }
    if (state_.destination == Destination::text) {
        flushSurrogate();
        if (!state_.format.hidden) {
            paragraphs_.append(bytes, state_.format, state_.paragraph, tables_);
        }
    } else if (state_.destination != Destination::skipped) {
        for (const char byte : bytes) {
            addCharacter(static_cast<unsigned char>(byte));
        }
    }
}

void Reader::endParagraph(bool last) {
    flushSurrogate();
    if (state_.destination == Destination::text) {
        paragraphs_.end(state_.paragraph, last);
    }
}

std::string decodedPlainText(std::string_view source) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (utf8::isValid(source)) {
        if (source.substr(0, byteOrderMark.size()) == byteOrderMark) {
            source.remove_prefix(byteOrderMark.size());
        }
        return std::string(source);
    }
    return decodeWindows1252(source);
}

} // namespace

bool looksLikeRtf(std::string_view source) {
    constexpr std::string_view beginning = "{\\rtf";
    return source.substr(0, beginning.size()) == beginning;
}

RichText readRtf(std::string_view source) {
    if (looksLikeRtf(source)) {
        return RichText(Reader(source).read());
    }
    RichText text;
    text.setSelText(decodedPlainText(source));
    text.select(0, 0);
    return text;
}

} // namespace caudalera
