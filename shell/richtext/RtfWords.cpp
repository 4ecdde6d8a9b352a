#include "shell/richtext/RtfWords.h"

#include <unordered_map>

#include "shell/richtext/RichText.h"

namespace caudalera {

namespace {

using Words = std::unordered_map<std::string_view, RtfWord>;

void addTextWords(Words& words) {
    const auto add = [&words](std::string_view name, RtfWordKind kind, std::int32_t value = 0) {
        words.insert_or_assign(name, RtfWord{kind, value});
    };
    add("u", RtfWordKind::unit);
    add("uc", RtfWordKind::fallbackLength);
    add("par", RtfWordKind::paragraphEnd);
    add("sect", RtfWordKind::sectionEnd);
    add("line", RtfWordKind::lineEnd);
    // Tables become lines of cells with tabs between, as the reports write theirs.
    add("row", RtfWordKind::paragraphEnd);
    add("nestrow", RtfWordKind::paragraphEnd);
    add("cell", RtfWordKind::character, '\t');
    add("nestcell", RtfWordKind::character, '\t');
    add("tab", RtfWordKind::character, '\t');
    add("emspace", RtfWordKind::character, 0x2003);
    add("enspace", RtfWordKind::character, 0x2002);
    add("qmspace", RtfWordKind::character, 0x2005);
    add("endash", RtfWordKind::character, 0x2013);
    add("emdash", RtfWordKind::character, 0x2014);
    add("lquote", RtfWordKind::character, 0x2018);
    add("rquote", RtfWordKind::character, 0x2019);
    add("ldblquote", RtfWordKind::character, 0x201C);
    add("rdblquote", RtfWordKind::character, 0x201D);
    add("bullet", RtfWordKind::character, 0x2022);
}

void addFormatWords(Words& words) {
    const auto add = [&words](std::string_view name, RtfWordKind kind, std::int32_t value = 0) {
        words.insert_or_assign(name, RtfWord{kind, value});
    };
    const auto addAlignment = [&add](std::string_view name, Alignment alignment) {
        add(name, RtfWordKind::alignment, static_cast<std::int32_t>(alignment));
    };
    add("pard", RtfWordKind::defaultParagraph);
    addAlignment("ql", Alignment::left);
    addAlignment("qr", Alignment::right);
    addAlignment("qc", Alignment::center);
    addAlignment("qj", Alignment::justify);
    addAlignment("qd", Alignment::justify);
    add("li", RtfWordKind::indent);
    add("lin", RtfWordKind::indent);
    add("ri", RtfWordKind::rightIndent);
    add("rin", RtfWordKind::rightIndent);

    add("plain", RtfWordKind::defaultCharacter);
    add("b", RtfWordKind::bold);
    add("i", RtfWordKind::italic);
    for (const std::string_view name : {"ul", "uld", "uldash", "uldashd", "uldashdd", "uldb",
                                        "ulhwave", "ulth", "ulw", "ulwave"}) {
        add(name, RtfWordKind::underline, 1);
    }
    add("ulnone", RtfWordKind::underline, 0);
    add("v", RtfWordKind::hidden);
    add("f", RtfWordKind::font);
    add("fs", RtfWordKind::fontSize);
    add("cf", RtfWordKind::color);
    add("red", RtfWordKind::colorPart, 16);
    add("green", RtfWordKind::colorPart, 8);
    add("blue", RtfWordKind::colorPart, 0);
}

/// Groups of other matter that may lack the \* of ignorable ones.
void addDestinations(Words& words) {
    words.insert_or_assign("fonttbl", RtfWord{RtfWordKind::fonts, 0});
    words.insert_or_assign("colortbl", RtfWord{RtfWordKind::colors, 0});
    words.insert_or_assign("generator", RtfWord{RtfWordKind::generator, 0});
    for (const std::string_view name :
         {"annotation", "author",   "bkmkend",      "bkmkstart",
          "comment",    "company",  "doccomm",      "factoidname",
          "filetbl",    "fldinst",  "footer",       "footerf",
          "footerl",    "footerr",  "footnote",     "ftncn",
          "ftnsep",     "ftnsepc",  "header",       "headerf",
          "headerl",    "headerr",  "info",         "keywords",
          "listtable",  "listtext", "nonesttables", "objdata",
          "operator",   "pict",     "pntext",       "pntxta",
          "pntxtb",     "private",  "revtbl",       "rsidtbl",
          "rxe",        "shprslt",  "stylesheet",   "subject",
          "tc",         "tcn",      "template",     "title",
          "txe",        "xe",       "xmlnstbl",     "listoverridetable"}) {
        words.insert_or_assign(name, RtfWord{RtfWordKind::skipped, 0});
    }
}

Words allWords() {
    Words words;
    addTextWords(words);
    addFormatWords(words);
    addDestinations(words);
    return words;
}

} // namespace

RtfWord findRtfWord(std::string_view name) {
    static const Words words = allWords();
    const auto found = words.find(name);
    return found == words.end() ? RtfWord{} : found->second;
}

} // namespace caudalera
