#include "manual/maker/Book.h"

#include "manual/maker/Formula.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>
#include <utility>

namespace caudalera::manual {

namespace {

const char* const firstPage = "inicio";

void checkLink(const Book& book, const Page& page, const std::string& link) {
    const std::size_t suffix = link.find(".md");
    const std::string name = link.starts_with('#') ? page.name : link.substr(0, suffix);
    const std::size_t hash = link.find('#');
    const auto target = book.pages.find(name);
    const bool found = target != book.pages.end() &&
                       (hash == link.npos ||
                        std::find(target->second.anchors.begin(), target->second.anchors.end(),
                                  link.substr(hash + 1)) != target->second.anchors.end());
    if (!found)
        throw std::runtime_error(page.name + ".md: the link leads nowhere: " + link);
}

void check(const Book& book, const std::filesystem::path& folder) {
    for (const auto& named : book.pages) {
        const Page& page = named.second;
        if (std::none_of(book.contents.begin(), book.contents.end(),
                         [&](const Entry& entry) { return entry.page == page.name; }))
            throw std::runtime_error(page.name + ".md is not in the contents");
        for (const std::string& link : page.links)
            checkLink(book, page, link);
        for (const std::string& picture : page.pictures) {
            if (!std::filesystem::exists(folder / "pictures" / picture))
                throw std::runtime_error("there is no picture for " + page.name + ": " + picture);
        }
    }
}

/// The pages before and behind one in the contents; nullptr where there is none.
std::pair<const Entry*, const Entry*> neighbours(const Book& book, const std::string& name) {
    const Entry* before = nullptr;
    const Entry* behind = nullptr;
    bool passed = false;
    for (const Entry& entry : book.contents) {
        if (entry.page.empty())
            continue;
        if (entry.page == name) {
            passed = true;
        } else if (!passed) {
            before = &entry;
        } else if (!behind) {
            behind = &entry;
        }
    }
    return {before, behind};
}

std::string link(const std::string& page, const std::string& text) {
    return "<a href=\"" + page + ".html\">" + text + "</a>";
}

/// Text of UTF-8 in Windows-1252, with entities for what Latin-1 lacks.
std::string narrow(std::string_view text) {
    std::string bytes;
    for (std::size_t i = 0; i < text.size();) {
        const auto lead = static_cast<unsigned char>(text[i++]);
        if (lead < 0x80) {
            bytes += static_cast<char>(lead);
            continue;
        }
        unsigned code = lead >= 0xE0 ? lead & 0x0FU : lead & 0x1FU;
        while (i < text.size() && (static_cast<unsigned char>(text[i]) & 0xC0U) == 0x80U)
            code = code << 6U | (static_cast<unsigned char>(text[i++]) & 0x3FU);
        if (code >= 0xA0 && code <= 0xFF) {
            bytes += static_cast<char>(code);
        } else {
            bytes += "&#" + std::to_string(code) + ";";
        }
    }
    return bytes;
}

/// The contents as nested lists of links.
std::string contentsList(const Book& book) {
    std::string html;
    int level = -1;
    for (const Entry& entry : book.contents) {
        if (entry.page == firstPage)
            continue;
        if (level >= entry.level)
            html += "</li>\n";
        for (; level < entry.level; ++level)
            html += "<ul>\n";
        for (; level > entry.level; --level)
            html += "</ul>\n</li>\n";
        html += "<li>" + (entry.page.empty() ? escaped(entry.title)
                                             : link(entry.page, escaped(entry.title)));
    }
    for (; level >= 0; --level)
        html += "</li>\n</ul>\n";
    return html;
}

std::string item(const std::string& title, const std::string& page) {
    std::string html = "<LI><OBJECT type=\"text/sitemap\">\n<param name=\"Name\" value=\"" +
                       narrow(escaped(title)) + "\">\n";
    if (!page.empty())
        html += "<param name=\"Local\" value=\"" + page + ".html\">\n";
    return html + "</OBJECT>\n";
}

const char* const siteMapHead =
    "<!DOCTYPE HTML PUBLIC \"-//IETF//DTD HTML//EN\">\n<HTML>\n<HEAD>\n</HEAD>\n<BODY>\n";
const char* const siteMapFoot = "</BODY>\n</HTML>\n";

std::string contentsMap(const Book& book) {
    std::string html = siteMapHead;
    int level = -1;
    for (const Entry& entry : book.contents) {
        for (; level < entry.level; ++level)
            html += "<UL>\n";
        for (; level > entry.level; --level)
            html += "</UL>\n";
        html += item(entry.title, entry.page);
    }
    for (; level >= 0; --level)
        html += "</UL>\n";
    return html + siteMapFoot;
}

std::string indexMap(const Book& book) {
    std::vector<std::pair<std::string, std::string>> words;
    for (const auto& [name, page] : book.pages) {
        for (const std::string& word : page.words)
            words.emplace_back(word, name);
    }
    std::sort(words.begin(), words.end());
    std::string html = siteMapHead;
    html += "<UL>\n";
    for (const auto& [word, page] : words)
        html += item(word, page);
    return html + "</UL>\n" + siteMapFoot;
}

std::string project(const Book& book, const std::vector<std::string>& files) {
    // 0xC0A is Spanish.
    std::string text = "[OPTIONS]\nCompatibility=1.1 or later\nCompiled file=Ayuda.chm\n"
                       "Contents file=Ayuda.hhc\nIndex file=Ayuda.hhk\nDefault topic=" +
                       std::string(firstPage) + ".html\nFull-text search=Yes\n" +
                       "Language=0xC0A Spanish\nTitle=" + narrow(book.pages.at(firstPage).title) +
                       "\n\n[FILES]\n";
    for (const std::string& file : files)
        text += file + "\n";
    return text;
}

void write(const std::filesystem::path& file, const std::string& text) {
    std::ofstream stream(file, std::ios::binary);
    stream << text;
    if (!stream.flush())
        throw std::runtime_error("cannot write " + file.string());
}

} // namespace

Book readBook(const std::filesystem::path& folder) {
    Book book{readContents(readText(folder / "contents.txt")), readPages(folder / "pages")};
    for (Entry& entry : book.contents) {
        if (entry.page.empty())
            continue;
        const auto page = book.pages.find(entry.page);
        if (page == book.pages.end())
            throw std::runtime_error("contents.txt: there is no page " + entry.page);
        entry.title = page->second.title;
    }
    check(book, folder);
    return book;
}

std::string htmlOf(const Book& book, const Page& page) {
    const auto [before, behind] = neighbours(book, page.name);
    std::string foot;
    if (before && before->page != firstPage)
        foot += "← " + link(before->page, escaped(before->title)) + " · ";
    foot += link(firstPage, "Contenido");
    if (behind)
        foot += " · " + link(behind->page, escaped(behind->title)) + " →";
    return "<!DOCTYPE html>\n<html lang=\"es\">\n<head>\n<meta charset=\"utf-8\">\n"
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>" +
           escaped(page.title) +
           "</title>\n<link rel=\"stylesheet\" type=\"text/css\" "
           "href=\"style.css\">\n</head>\n<body>\n<h1>" +
           escaped(page.title) + "</h1>\n" + page.body +
           (page.name == firstPage ? contentsList(book) : "") + "<hr>\n<p class=\"foot\">" + foot +
           "</p>\n</body>\n</html>\n";
}

void writeProject(const Book& book, const std::filesystem::path& source,
                  const std::filesystem::path& target) {
    std::filesystem::create_directories(target);
    std::vector<std::string> files = {"style.css"};
    for (const auto& [name, page] : book.pages) {
        files.push_back(name + ".html");
        write(target / files.back(), htmlOf(book, page));
        for (const std::string& picture : page.pictures) {
            if (std::find(files.begin(), files.end(), picture) == files.end())
                files.push_back(picture);
            write(target / picture, readText(source / "pictures" / picture));
        }
    }
    write(target / "style.css", readText(source / "style.css"));
    write(target / "Ayuda.hhc", contentsMap(book));
    write(target / "Ayuda.hhk", indexMap(book));
    write(target / "Ayuda.hhp", project(book, files));
}

} // namespace caudalera::manual
