#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "shell/text/FixedFont.h"

namespace caudalera {

enum class Alignment { left, right, center, justify };

/// What a run of characters looks like, as far as RTF files that users open carry it. The empty
/// font name and size 0 stand for the box's default, colour -1 for the automatic one (otherwise
/// 0xRRGGBB). The size is in half points, as RTF counts it.
struct CharacterFormat {
    bool bold = false;
    bool italic = false;
    bool underline = false;
    std::string font;
    int halfPoints = 0;
    std::int32_t color = -1;

    bool operator==(const CharacterFormat&) const = default;
};

/// Indents in twips from the box's edges.
struct ParagraphFormat {
    Alignment alignment = Alignment::left;
    int indent = 0;
    int rightIndent = 0;

    bool operator==(const ParagraphFormat&) const = default;
};

/// A run of characters of one format; the text is UTF-8 and holds no line feed.
struct TextRun {
    std::string text;
    CharacterFormat format;

    bool operator==(const TextRun&) const = default;
};

/// The text between two line feeds.
struct Paragraph {
    std::vector<TextRun> runs;
    ParagraphFormat format;

    std::string text() const;
    /// In characters.
    std::size_t length() const;

    bool operator==(const Paragraph&) const = default;
};

/// The content and the selection of a rich-text box. Positions and lengths are in characters, a
/// line feed between two paragraphs counting as one. There is always at least one paragraph. No run
/// is empty and neighbouring runs differ in format. Whatever comes in, carriage returns and NULs
/// are dropped and bytes that are not UTF-8 become U+FFFD.
class RichText {
public:
    RichText() : paragraphs_(1), lengths_(1) {}
    explicit RichText(std::vector<Paragraph> paragraphs);

    const std::vector<Paragraph>& paragraphs() const { return paragraphs_; }
    std::string text() const;
    std::size_t length() const { return length_; }

    /// Grows with every change of content or selection; views compare it before they re-read.
    std::uint64_t revision() const { return revision_; }

    std::size_t selStart() const { return selStart_; }
    std::size_t selLength() const { return selLength_; }
    /// Cut to the text's length.
    void select(std::size_t start, std::size_t length);

    std::string selText() const;
    /// The selection as a text of its own, with its paragraph and character formats.
    RichText selection() const;

    /// Replaces the selection by plain text; the caret then stands behind it. The new characters
    /// take the format of the character in front of the insertion (of the paragraph's first one
    /// at its start), the new paragraphs the format of the paragraph they split. Where a removed
    /// selection joins two paragraphs, the first one's format stays, unless only the last one has
    /// text left. An insertion at the end of a paragraph costs no more than its own length.
    void setSelText(std::string_view utf8);
    /// Replaces the selection by rich text; the caret then stands behind it. Text without a line
    /// feed leaves the paragraph's own format; otherwise every inserted paragraph brings its own,
    /// but for an empty first or last one, which leaves the text it joins as it is.
    void setSelRich(const RichText& inserted);

    /// The paragraphs that the selection touches, as a text of their own in which the same
    /// characters are selected.
    RichText selParagraphs() const;
    /// Puts such a text in their place and takes its selection. What was done to it at its
    /// selection stands then as if it had been done here, but what lies behind has moved only once.
    void setSelParagraphs(RichText edited);

    /// Formats of the paragraphs that the selection touches (the caret's, if it is empty). One of
    /// which it holds nothing but the start is not touched.
    void setSelIndent(int twips);
    void setSelRightIndent(int twips);
    void setSelAlignment(Alignment alignment);

    /// Replaces everything, the caret at the start.
    void assign(std::vector<Paragraph> paragraphs);

private:
    /// A paragraph and the position of its first character.
    struct Place {
        std::size_t paragraph = 0;
        std::size_t start = 0;
    };

    Place placeOf(std::size_t position) const;
    std::size_t caretOffset() const { return selStart_ - caret_.start; }
    CharacterFormat formatAtCaret() const;
    void setParagraphs(std::vector<Paragraph> paragraphs);
    void eraseSelection();
    void insertAtCaret(std::vector<Paragraph> pieces);
    template <class Change>
    void changeParagraphs(Change change);

    std::vector<Paragraph> paragraphs_;
    /// Of every paragraph, so that no position has to be counted out in the text.
    std::vector<std::size_t> lengths_;
    /// Where selStart_ lies. Searches go from here, since work keeps near the caret.
    Place caret_;
    std::size_t length_ = 0;
    std::size_t selStart_ = 0;
    std::size_t selLength_ = 0;
    std::uint64_t revision_ = 0;
};

/// Whether a line belongs to a table or is a rule. Such a line may not be broken, since its columns
/// stand below those of other lines.
bool isTableLine(std::string_view line);

/// RTF source of the text: 7-bit, with a font and a colour table, \li \ri \ql \qr \qc \qj for
/// paragraphs, \b \i \ul \f \fs \cf for characters, \uN with a fallback for what is not ASCII. The
/// box's font and size are the whole file's; only runs that set one of their own name it. Paper and
/// tab stops are such that the columns of tables stand as in the box.
std::string writeRtf(const RichText& text, const FixedFont& box = {});

/// Reads RTF as far as it can be read: a cut, unbalanced or hostile source gives what stood before
/// the damage, in time and memory linear in its length. A source that does not begin with "{\rtf"
/// is plain text: UTF-8 if it is valid as that, otherwise Windows-1252. The size that our own files
/// state for the whole is that of the box and none of the runs'.
RichText readRtf(std::string_view source);

/// Whether a source begins as RTF does.
bool looksLikeRtf(std::string_view source);

} // namespace caudalera
