#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "shell/richtext/RichText.h"

namespace caudalera {

/// Format of what comes next in RTF source, fonts and colours by their number in the tables.
struct RtfFormat {
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool hidden = false;
    std::int32_t font = -1;
    std::int32_t color = -1;
    int halfPoints = 0;
};

/// Font and colour table, fed with the characters and words of their groups.
class RtfTables {
public:
    void beginFont(std::int32_t number);
    void addFontCharacter(char32_t character);
    void endFont();
    /// `shift` is the place of the part in 0xRRGGBB, in bits.
    void setColorPart(std::int32_t shift, std::int32_t value);
    void addColorCharacter(char32_t character);

    CharacterFormat resolved(const RtfFormat& format) const;

private:
    std::unordered_map<std::int32_t, std::string> fonts_;
    std::int32_t fontNumber_ = 0;
    std::string fontName_;
    std::vector<std::int32_t> colors_;
    std::int32_t nextColor_ = -1;
};

/// The paragraphs read so far.
class RtfParagraphs {
public:
    /// Must be told of every change of the format; in between, the format given to append is not
    /// looked at.
    void changeFormat() { formatChanged_ = true; }
    void append(std::string_view utf8, const RtfFormat& format, const ParagraphFormat& paragraph,
                const RtfTables& tables);
    bool isEmptyLast() const { return paragraphs_.back().runs.empty(); }
    /// `last` tells whether the text may end here, no paragraph following.
    void end(const ParagraphFormat& paragraph, bool last);
    std::vector<Paragraph> take();

private:
    std::vector<Paragraph> paragraphs_ = std::vector<Paragraph>(1);
    bool formatChanged_ = true;
    bool mayEnd_ = false;
};

} // namespace caudalera
