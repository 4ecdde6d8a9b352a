#include "manual/maker/Formula.h"

#include <stdexcept>
#include <vector>

namespace caudalera::manual {

namespace {

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool continuesCharacter(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

std::string withoutTags(const std::string& html) {
    std::string text;
    bool inTag = false;
    for (const char c : html) {
        inTag = inTag || c == '<';
        if (!inTag)
            text += c;
        inTag = inTag && c != '>';
    }
    return text;
}

/// In brackets, unless it is one word.
std::string bracketed(const std::string& html) {
    const std::string text = withoutTags(html);
    const bool oneWord = text.find_first_of(" +()/") == text.npos && text.find("−") == text.npos;
    return oneWord ? html : "(" + html + ")";
}

/// With the bar of a mean above the last character.
std::string withBar(std::string html) {
    const std::size_t end = html.ends_with("</i>") ? html.size() - 4 : html.size();
    return html.insert(end, "\u0304");
}

/// A run of ordinary signs, or a fraction.
struct Piece {
    std::string html;
    std::string denominator;
    bool fraction = false;
};

class FormulaReader {
public:
    explicit FormulaReader(std::string_view line) : line_(line) {}

    std::vector<Piece> outer() {
        std::vector<Piece> pieces(1);
        while (at_ < line_.size()) {
            if (take("\\frac")) {
                Piece fraction{group(), {}, true};
                fraction.denominator = group();
                pieces.push_back(fraction);
                pieces.emplace_back();
            } else {
                pieces.back().html += next();
            }
        }
        return pieces;
    }

private:
    bool take(std::string_view word) {
        if (!line_.substr(at_).starts_with(word))
            return false;
        at_ += word.size();
        return true;
    }

    [[noreturn]] void fail(const char* what) const {
        throw std::runtime_error(std::string(what) + " in the formula: " + std::string(line_));
    }

    std::string inner() {
        std::string html;
        while (at_ < line_.size())
            html += next();
        return html;
    }

    std::string_view groupText() {
        if (at_ >= line_.size() || line_[at_] != '{')
            fail("no group");
        const std::size_t begin = ++at_;
        int depth = 1;
        while (at_ < line_.size()) {
            depth += line_[at_] == '{' ? 1 : line_[at_] == '}' ? -1 : 0;
            ++at_;
            if (depth == 0)
                return line_.substr(begin, at_ - begin - 1);
        }
        fail("group without end");
    }

    std::string group() { return FormulaReader(groupText()).inner(); }

    std::string lowOrHigh(const char* tag) {
        if (at_ >= line_.size())
            fail("nothing low or high");
        const std::string html = line_[at_] == '{' ? group() : next();
        return "<" + std::string(tag) + ">" + html + "</" + tag + ">";
    }

    std::string word() {
        const std::size_t begin = at_;
        while (at_ < line_.size() && (isLetter(line_[at_]) || isDigit(line_[at_])))
            ++at_;
        const std::string found(line_.substr(begin, at_ - begin));
        return found.size() == 1 ? "<i>" + found + "</i>" : found;
    }

    std::string command() {
        if (take("\\frac")) {
            const std::string over = group();
            const std::string under = group();
            return bracketed(over) + "/" + bracketed(under);
        }
        if (take("\\sqrt"))
            return "√(" + group() + ")";
        if (take("\\bar"))
            return withBar(group());
        fail("unknown command");
    }

    std::string next() {
        const char c = line_[at_];
        if (c == '\\')
            return command();
        if (isLetter(c))
            return word();
        if (take("_"))
            return lowOrHigh("sub");
        if (take("^"))
            return lowOrHigh("sup");
        if (take("<="))
            return "≤";
        if (take(">="))
            return "≥";
        if (take("*"))
            return "·";
        if (take("-"))
            return "−";
        std::string character(1, line_[at_++]);
        while (at_ < line_.size() && continuesCharacter(line_[at_]))
            character += line_[at_++];
        return escaped(character);
    }

    std::string_view line_;
    std::size_t at_ = 0;
};

} // namespace

std::string escaped(std::string_view text) {
    std::string html;
    for (const char c : text) {
        switch (c) {
        case '&':
            html += "&amp;";
            break;
        case '<':
            html += "&lt;";
            break;
        case '>':
            html += "&gt;";
            break;
        case '"':
            html += "&quot;";
            break;
        default:
            html += c;
        }
    }
    return html;
}

std::string formulaHtml(std::string_view line) {
    const std::vector<Piece> pieces = FormulaReader(line).outer();
    if (pieces.size() == 1)
        return "<p class=\"formula\">" + pieces.front().html + "</p>\n";
    std::string over;
    std::string under;
    for (const Piece& piece : pieces) {
        if (piece.fraction) {
            over += "<td class=\"over\">" + piece.html + "</td>";
            under += "<td class=\"under\">" + piece.denominator + "</td>";
        } else if (piece.html.find_first_not_of(' ') != std::string::npos) {
            over += "<td rowspan=\"2\">" + piece.html + "</td>";
        }
    }
    return "<table class=\"formula\"><tr>" + over + "</tr><tr>" + under + "</tr></table>\n";
}

} // namespace caudalera::manual
