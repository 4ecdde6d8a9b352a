#include "shell/richtext/RichText.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "shell/text/Utf8.h"

namespace caudalera {

namespace {

std::string cleaned(std::string_view text) {
    std::string clean;
    clean.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const utf8::Decoded next = utf8::decode(text, at);
        if (!next.valid) {
            utf8::append(clean, utf8::replacement);
        } else if (next.character != '\r' && next.character != 0) {
            clean.append(text, at, next.bytes);
        }
        at += next.bytes;
    }
    return clean;
}

bool isCleanLine(std::string_view text) {
    constexpr std::string_view foreign("\r\n\0", 3);
    return text.find_first_of(foreign) == std::string_view::npos && utf8::isValid(text);
}

void appendRun(std::vector<TextRun>& runs, TextRun run) {
    if (run.text.empty()) {
        return;
    }
    if (!runs.empty() && runs.back().format == run.format) {
        runs.back().text += run.text;
    } else {
        runs.push_back(std::move(run));
    }
}

void appendRuns(std::vector<TextRun>& runs, std::vector<TextRun> more) {
    for (TextRun& run : more) {
        appendRun(runs, std::move(run));
    }
}

/// Takes away what stands behind the first `offset` characters.
std::vector<TextRun> cutBehind(std::vector<TextRun>& runs, std::size_t offset) {
    std::vector<TextRun> tail;
    std::size_t kept = 0;
    while (kept < runs.size()) {
        TextRun& run = runs[kept];
        const std::size_t length = utf8::count(run.text);
        if (offset < length) {
            if (offset > 0) {
                const std::size_t byte = utf8::offset(run.text, offset);
                tail.push_back({run.text.substr(byte), run.format});
                run.text.resize(byte);
                ++kept;
            }
            break;
        }
        offset -= length;
        ++kept;
    }
    const auto from = runs.begin() + static_cast<std::ptrdiff_t>(kept);
    tail.insert(tail.end(), std::make_move_iterator(from), std::make_move_iterator(runs.end()));
    runs.erase(from, runs.end());
    return tail;
}

/// Appends text, every line feed of which ends a paragraph and begins one of the same format.
void appendLines(std::vector<Paragraph>& paragraphs, std::string_view text,
                 const CharacterFormat& format) {
    while (true) {
        const std::size_t end = text.find('\n');
        appendRun(paragraphs.back().runs, {std::string(text.substr(0, end)), format});
        if (end == std::string_view::npos) {
            return;
        }
        text.remove_prefix(end + 1);
        Paragraph next;
        next.format = paragraphs.back().format;
        paragraphs.push_back(std::move(next));
    }
}

/// Puts `pieces` in the place of `count` elements from number `first` on.
template <class Element>
void replace(std::vector<Element>& elements, std::size_t first, std::size_t count,
             std::vector<Element> pieces) {
    const auto from = elements.begin() + static_cast<std::ptrdiff_t>(first);
    const auto common = static_cast<std::ptrdiff_t>(std::min(count, pieces.size()));
    const auto rest = std::move(pieces.begin(), pieces.begin() + common, from);
    if (pieces.size() <= count) {
        elements.erase(rest, from + static_cast<std::ptrdiff_t>(count));
    } else {
        elements.insert(rest, std::make_move_iterator(pieces.begin() + common),
                        std::make_move_iterator(pieces.end()));
    }
}

} // namespace

std::string Paragraph::text() const {
    std::string all;
    for (const TextRun& run : runs) {
        all += run.text;
    }
    return all;
}

std::size_t Paragraph::length() const {
    std::size_t characters = 0;
    for (const TextRun& run : runs) {
        characters += utf8::count(run.text);
    }
    return characters;
}

RichText::RichText(std::vector<Paragraph> paragraphs) {
    setParagraphs(std::move(paragraphs));
}

void RichText::assign(std::vector<Paragraph> paragraphs) {
    setParagraphs(std::move(paragraphs));
    ++revision_;
}

void RichText::setParagraphs(std::vector<Paragraph> paragraphs) {
    paragraphs_.clear();
    for (Paragraph& given : paragraphs) {
        paragraphs_.emplace_back().format = given.format;
        for (TextRun& run : given.runs) {
            if (isCleanLine(run.text)) {
                appendRun(paragraphs_.back().runs, std::move(run));
            } else {
                appendLines(paragraphs_, cleaned(run.text), run.format);
            }
        }
    }
    if (paragraphs_.empty()) {
        paragraphs_.resize(1);
    }
    lengths_.clear();
    lengths_.reserve(paragraphs_.size());
    length_ = paragraphs_.size() - 1;
    for (const Paragraph& paragraph : paragraphs_) {
        lengths_.push_back(paragraph.length());
        length_ += lengths_.back();
    }
    caret_ = {};
    selStart_ = 0;
    selLength_ = 0;
}

std::string RichText::text() const {
    std::string all;
    for (std::size_t i = 0; i < paragraphs_.size(); ++i) {
        if (i > 0) {
            all += '\n';
        }
        for (const TextRun& run : paragraphs_[i].runs) {
            all += run.text;
        }
    }
    return all;
}

RichText::Place RichText::placeOf(std::size_t position) const {
    Place place = caret_;
    while (position < place.start) {
        --place.paragraph;
        place.start -= lengths_[place.paragraph] + 1;
    }
    while (position > place.start + lengths_[place.paragraph]) {
        place.start += lengths_[place.paragraph] + 1;
        ++place.paragraph;
    }
    return place;
}

void RichText::select(std::size_t start, std::size_t length) {
    start = std::min(start, length_);
    caret_ = placeOf(start);
    selStart_ = start;
    selLength_ = std::min(length, length_ - start);
    ++revision_;
}

std::string RichText::selText() const {
    return selection().text();
}

RichText RichText::selection() const {
    const Place end = placeOf(selStart_ + selLength_);
    const auto first = paragraphs_.begin() + static_cast<std::ptrdiff_t>(caret_.paragraph);
    const auto last = paragraphs_.begin() + static_cast<std::ptrdiff_t>(end.paragraph);
    std::vector<Paragraph> pieces(first, std::next(last));
    cutBehind(pieces.back().runs, selStart_ + selLength_ - end.start);
    pieces.front().runs = cutBehind(pieces.front().runs, caretOffset());
    return RichText(std::move(pieces));
}

CharacterFormat RichText::formatAtCaret() const {
    const std::vector<TextRun>& runs = paragraphs_[caret_.paragraph].runs;
    if (runs.empty()) {
        return {};
    }
    std::size_t offset = caretOffset();
    if (offset == lengths_[caret_.paragraph]) {
        return runs.back().format;
    }
    for (const TextRun& run : runs) {
        const std::size_t length = utf8::count(run.text);
        if (offset <= length) {
            return run.format;
        }
        offset -= length;
    }
    return runs.back().format;
}

void RichText::eraseSelection() {
    if (selLength_ == 0) {
        return;
    }
    const Place end = placeOf(selStart_ + selLength_);
    const std::size_t endOffset = selStart_ + selLength_ - end.start;
    const std::size_t tailLength = lengths_[end.paragraph] - endOffset;
    Paragraph& first = paragraphs_[caret_.paragraph];
    Paragraph& last = paragraphs_[end.paragraph];
    std::vector<TextRun> tail = cutBehind(last.runs, endOffset);
    cutBehind(first.runs, caretOffset());
    if (first.runs.empty() && !tail.empty()) {
        first.format = last.format;
    }
    appendRuns(first.runs, std::move(tail));
    lengths_[caret_.paragraph] = caretOffset() + tailLength;

    const auto from = static_cast<std::ptrdiff_t>(caret_.paragraph) + 1;
    const auto to = static_cast<std::ptrdiff_t>(end.paragraph) + 1;
    paragraphs_.erase(paragraphs_.begin() + from, paragraphs_.begin() + to);
    lengths_.erase(lengths_.begin() + from, lengths_.begin() + to);
    length_ -= selLength_;
    selLength_ = 0;
}

void RichText::insertAtCaret(std::vector<Paragraph> pieces) {
    const std::size_t offset = caretOffset();
    const std::size_t tailLength = lengths_[caret_.paragraph] - offset;
    Paragraph& target = paragraphs_[caret_.paragraph];
    std::vector<TextRun> tail;
    if (tailLength > 0) {
        tail = cutBehind(target.runs, offset);
    }
    const std::size_t firstLength = pieces.front().length();
    if (pieces.size() == 1) {
        appendRuns(target.runs, std::move(pieces.front().runs));
        appendRuns(target.runs, std::move(tail));
        lengths_[caret_.paragraph] += firstLength;
        selStart_ += firstLength;
        length_ += firstLength;
        return;
    }

    Paragraph& back = pieces.back();
    if (back.runs.empty() && tailLength > 0) {
        back.format = target.format;
    }
    if (firstLength > 0 || offset == 0) {
        target.format = pieces.front().format;
    }
    appendRuns(target.runs, std::move(pieces.front().runs));
    lengths_[caret_.paragraph] = offset + firstLength;

    std::vector<std::size_t> newLengths;
    std::size_t inserted = firstLength;
    for (std::size_t i = 1; i < pieces.size(); ++i) {
        newLengths.push_back(pieces[i].length());
        inserted += newLengths.back() + 1;
    }
    const std::size_t lastLength = newLengths.back();
    newLengths.back() += tailLength;
    appendRuns(back.runs, std::move(tail));

    const auto behind = static_cast<std::ptrdiff_t>(caret_.paragraph) + 1;
    paragraphs_.insert(paragraphs_.begin() + behind, std::make_move_iterator(pieces.begin() + 1),
                       std::make_move_iterator(pieces.end()));
    lengths_.insert(lengths_.begin() + behind, newLengths.begin(), newLengths.end());
    selStart_ += inserted;
    length_ += inserted;
    caret_.paragraph += newLengths.size();
    caret_.start = selStart_ - lastLength;
}

void RichText::setSelText(std::string_view utf8) {
    // Before the erasure, since the text may be a view into this one.
    const std::string clean = cleaned(utf8);
    const CharacterFormat format = formatAtCaret();
    eraseSelection();
    std::vector<Paragraph> pieces(1);
    pieces.front().format = paragraphs_[caret_.paragraph].format;
    appendLines(pieces, clean, format);
    insertAtCaret(std::move(pieces));
    ++revision_;
}

void RichText::setSelRich(const RichText& inserted) {
    std::vector<Paragraph> pieces = inserted.paragraphs_;
    eraseSelection();
    insertAtCaret(std::move(pieces));
    ++revision_;
}

RichText RichText::selParagraphs() const {
    const Place end = placeOf(selStart_ + selLength_);
    const auto first = paragraphs_.begin() + static_cast<std::ptrdiff_t>(caret_.paragraph);
    const auto last = paragraphs_.begin() + static_cast<std::ptrdiff_t>(end.paragraph);
    RichText touched(std::vector<Paragraph>(first, std::next(last)));
    touched.select(caretOffset(), selLength_);
    return touched;
}

void RichText::setSelParagraphs(RichText edited) {
    const Place end = placeOf(selStart_ + selLength_);
    const std::size_t count = end.paragraph + 1 - caret_.paragraph;
    length_ -= end.start + lengths_[end.paragraph] - caret_.start;
    length_ += edited.length_;
    replace(paragraphs_, caret_.paragraph, count, std::move(edited.paragraphs_));
    replace(lengths_, caret_.paragraph, count, std::move(edited.lengths_));
    selStart_ = caret_.start + edited.selStart_;
    selLength_ = edited.selLength_;
    caret_ = {caret_.paragraph + edited.caret_.paragraph, caret_.start + edited.caret_.start};
    ++revision_;
}

template <class Change>
void RichText::changeParagraphs(Change change) {
    const std::size_t last =
        selLength_ == 0 ? caret_.paragraph : placeOf(selStart_ + selLength_ - 1).paragraph;
    for (std::size_t i = caret_.paragraph; i <= last; ++i) {
        change(paragraphs_[i].format);
    }
    ++revision_;
}

void RichText::setSelIndent(int twips) {
    changeParagraphs([twips](ParagraphFormat& format) { format.indent = twips; });
}

void RichText::setSelRightIndent(int twips) {
    changeParagraphs([twips](ParagraphFormat& format) { format.rightIndent = twips; });
}

void RichText::setSelAlignment(Alignment alignment) {
    changeParagraphs([alignment](ParagraphFormat& format) { format.alignment = alignment; });
}

} // namespace caudalera
