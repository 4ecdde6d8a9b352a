#include "manual/maker/Page.h"

#include "manual/maker/Formula.h"

#include <cmark-gfm-core-extensions.h>
#include <cmark-gfm-extension_api.h>
#include <cmark-gfm.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <memory>
#include <stdexcept>

namespace caudalera::manual {

namespace {

struct Freed {
    void operator()(cmark_node* node) const { cmark_node_free(node); }
    void operator()(cmark_parser* parser) const { cmark_parser_free(parser); }
    void operator()(cmark_iter* iterator) const { cmark_iter_free(iterator); }
    void operator()(char* text) const { std::free(text); }
};

std::string textOf(const char* text) {
    return text ? text : "";
}

/// The words of a node and all below it.
std::string plainText(cmark_node* node) {
    std::string text;
    const std::unique_ptr<cmark_iter, Freed> iterator(cmark_iter_new(node));
    while (cmark_iter_next(iterator.get()) != CMARK_EVENT_DONE) {
        cmark_node* at = cmark_iter_get_node(iterator.get());
        const auto type = cmark_node_get_type(at);
        if (cmark_iter_get_event_type(iterator.get()) == CMARK_EVENT_ENTER &&
            (type == CMARK_NODE_TEXT || type == CMARK_NODE_CODE))
            text += textOf(cmark_node_get_literal(at));
    }
    return text;
}

/// The name that a heading goes by in links: small letters without accents, and hyphens.
std::string anchorOf(const std::string& heading) {
    static const std::map<std::string, char> plain = {
        {"á", 'a'}, {"é", 'e'}, {"í", 'i'}, {"ó", 'o'}, {"ú", 'u'}, {"ü", 'u'}, {"ñ", 'n'},
        {"Á", 'a'}, {"É", 'e'}, {"Í", 'i'}, {"Ó", 'o'}, {"Ú", 'u'}, {"Ñ", 'n'}};
    std::string anchor;
    for (std::size_t i = 0; i < heading.size(); ++i) {
        const char c = heading[i];
        if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9')) {
            anchor += c;
        } else if (c >= 'A' && c <= 'Z') {
            anchor += static_cast<char>(c - 'A' + 'a');
        } else if (const auto found = plain.find(heading.substr(i, 2)); found != plain.end()) {
            anchor += found->second;
            ++i;
        } else if (!anchor.empty() && anchor.back() != '-') {
            anchor += '-';
        }
    }
    while (anchor.ends_with('-'))
        anchor.pop_back();
    return anchor;
}

std::vector<std::string> parted(std::string_view text, char separator) {
    std::vector<std::string> parts;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(separator), text.size());
        std::string_view part = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        part.remove_prefix(std::min(part.find_first_not_of(' '), part.size()));
        part = part.substr(0, part.find_last_not_of(' ') + 1);
        if (!part.empty())
            parts.emplace_back(part);
    }
    return parts;
}

std::string formulas(const std::string& block) {
    std::string html;
    for (const std::string& line : parted(block, '\n'))
        html += formulaHtml(line);
    return html;
}

class PageReader {
public:
    explicit PageReader(std::string name) { page_.name = std::move(name); }

    Page read(const std::string& source) {
        cmark_gfm_core_extensions_ensure_registered();
        const std::unique_ptr<cmark_parser, Freed> parser(
            cmark_parser_new(CMARK_OPT_UNSAFE | CMARK_OPT_VALIDATE_UTF8));
        cmark_parser_attach_syntax_extension(parser.get(), cmark_find_syntax_extension("table"));
        cmark_parser_feed(parser.get(), source.data(), source.size());
        const std::unique_ptr<cmark_node, Freed> document(cmark_parser_finish(parser.get()));
        takeTitle(document.get());
        takeWords(document.get());
        visit(document.get());
        const std::unique_ptr<char, Freed> html(cmark_render_html(
            document.get(), CMARK_OPT_UNSAFE, cmark_parser_get_syntax_extensions(parser.get())));
        page_.body = quoted(html.get());
        return std::move(page_);
    }

private:
    void takeTitle(cmark_node* document) {
        cmark_node* first = cmark_node_first_child(document);
        if (!first || cmark_node_get_type(first) != CMARK_NODE_HEADING ||
            cmark_node_get_heading_level(first) != 1)
            throw std::runtime_error("no title");
        page_.title = plainText(first);
        cmark_node_free(first);
    }

    void takeWords(cmark_node* document) {
        constexpr std::string_view mark = "Palabras:";
        cmark_node* first = cmark_node_first_child(document);
        if (!first || cmark_node_get_type(first) != CMARK_NODE_PARAGRAPH)
            return;
        const std::string text = plainText(first);
        if (!text.starts_with(mark))
            return;
        page_.words = parted(std::string_view(text).substr(mark.size()), ';');
        cmark_node_free(first);
    }

    void visit(cmark_node* document) {
        std::vector<cmark_node*> nodes;
        {
            const std::unique_ptr<cmark_iter, Freed> iterator(cmark_iter_new(document));
            while (cmark_iter_next(iterator.get()) != CMARK_EVENT_DONE) {
                if (cmark_iter_get_event_type(iterator.get()) == CMARK_EVENT_ENTER)
                    nodes.push_back(cmark_iter_get_node(iterator.get()));
            }
        }
        for (cmark_node* node : nodes)
            take(node);
    }

    void take(cmark_node* node) {
        const auto type = cmark_node_get_type(node);
        if (type == CMARK_NODE_HEADING) {
            takeHeading(node);
        } else if (type == CMARK_NODE_CODE_BLOCK) {
            takeBlock(node);
        } else if (type == CMARK_NODE_LINK) {
            takeLink(node);
        } else if (type == CMARK_NODE_IMAGE) {
            page_.pictures.push_back(textOf(cmark_node_get_url(node)));
        }
    }

    void takeHeading(cmark_node* heading) {
        if (cmark_node_get_heading_level(heading) == 1)
            throw std::runtime_error("a second title");
        const std::string anchor = anchorOf(plainText(heading));
        page_.anchors.push_back(anchor);
        cmark_node* mark = cmark_node_new(CMARK_NODE_HTML_INLINE);
        cmark_node_set_literal(mark, ("<a id=\"" + anchor + "\"></a>").c_str());
        cmark_node_prepend_child(heading, mark);
    }

    void takeBlock(cmark_node* block) {
        const std::string kind = textOf(cmark_node_get_fence_info(block));
        const std::string text = textOf(cmark_node_get_literal(block));
        std::string html;
        if (kind == "formula") {
            html = formulas(text);
        } else if (kind == "ejemplo") {
            const std::vector<Step> steps = parseExample(text);
            page_.example.insert(page_.example.end(), steps.begin(), steps.end());
            html = exampleHtml(steps);
        } else {
            return;
        }
        cmark_node* written = cmark_node_new(CMARK_NODE_HTML_BLOCK);
        cmark_node_set_literal(written, html.c_str());
        cmark_node_replace(block, written);
        cmark_node_free(block);
    }

    void takeLink(cmark_node* link) {
        const std::string url = textOf(cmark_node_get_url(link));
        if (url.find(':') != url.npos)
            return;
        page_.links.push_back(url);
        const std::size_t suffix = url.find(".md");
        if (suffix == url.npos && !url.starts_with('#'))
            throw std::runtime_error("a link to no page: " + url);
        if (suffix != url.npos) {
            const std::string target = url.substr(0, suffix) + ".html" + url.substr(suffix + 3);
            cmark_node_set_url(link, target.c_str());
        }
    }

    /// With what the example shows in place of {{control}}.
    std::string quoted(std::string html) const {
        std::size_t at = 0;
        while ((at = html.find("{{", at)) != html.npos) {
            const std::size_t end = html.find("}}", at);
            if (end == html.npos)
                throw std::runtime_error("{{ without end");
            const std::string key = html.substr(at + 2, end - at - 2);
            const Step* shown = nullptr;
            for (const Step& step : page_.example) {
                if (step.shows() && step.key() == key)
                    shown = &step;
            }
            if (!shown)
                throw std::runtime_error("the example does not show " + key);
            const std::string value = escaped(shown->value());
            html.replace(at, end + 2 - at, value);
            at += value.size();
        }
        return html;
    }

    Page page_;
};

} // namespace

std::string readText(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        throw std::runtime_error("cannot read " + file.string());
    return {std::istreambuf_iterator<char>(stream), {}};
}

Page readPage(const std::filesystem::path& file) {
    try {
        return PageReader(file.stem().string()).read(readText(file));
    } catch (const std::runtime_error& fault) {
        throw std::runtime_error(file.string() + ": " + fault.what());
    }
}

std::map<std::string, Page> readPages(const std::filesystem::path& folder) {
    std::map<std::string, Page> pages;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == ".md")
            pages.emplace(entry.path().stem().string(), readPage(entry.path()));
    }
    return pages;
}

} // namespace caudalera::manual
