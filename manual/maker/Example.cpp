#include "manual/maker/Example.h"

#include "manual/maker/Formula.h"

#include <map>
#include <stdexcept>

namespace caudalera::manual {

namespace {

using Words = std::vector<std::string>;

Words wordsOf(std::string_view line) {
    Words words;
    std::size_t at = 0;
    while ((at = line.find_first_not_of(' ', at)) != line.npos) {
        const bool quoted = line[at] == '"';
        const std::size_t begin = quoted ? at + 1 : at;
        const std::size_t end = line.find(quoted ? '"' : ' ', begin);
        if (quoted && end == line.npos)
            throw std::runtime_error("quote without end: " + std::string(line));
        words.emplace_back(line.substr(begin, end - begin));
        at = end == line.npos ? line.size() : end + 1;
    }
    return words;
}

struct Form {
    Step::Kind kind;
    /// Words behind the verb, the caption and the value included.
    std::size_t least;
    std::size_t most;
};

const std::map<std::string, Form>& forms() {
    static const std::map<std::string, Form> known = {
        {"abrir", {Step::Kind::open, 1, 1}},      {"cargar", {Step::Kind::load, 3, 3}},
        {"pulsar", {Step::Kind::click, 2, 2}},    {"escribir", {Step::Kind::enter, 3, 3}},
        {"escoger", {Step::Kind::choose, 3, 3}},  {"marcar", {Step::Kind::mark, 2, 2}},
        {"pestaña", {Step::Kind::tab, 2, 2}},     {"fila", {Step::Kind::row, 2, 99}},
        {"poner", {Step::Kind::cell, 5, 5}},      {"teclas", {Step::Kind::keys, 2, 2}},
        {"resultado", {Step::Kind::field, 3, 6}}, {"mensaje", {Step::Kind::message, 1, 1}},
    };
    return known;
}

bool isNumber(const std::string& word) {
    return !word.empty() && word.find_first_not_of("0123456789") == word.npos;
}

/// Words behind the control of a step that names a cell: row, column, what, value and a unit.
void takeCell(Step& step, const Words& words) {
    step.row = std::stol(words[0]);
    step.column = std::stol(words[1]);
    step.caption = words[2];
    step.values = {words[3]};
    if (words.size() > 4)
        step.unit = words[4];
}

Step stepOf(const std::string& line) {
    Words words = wordsOf(line);
    const auto form = forms().find(words.front());
    if (form == forms().end())
        throw std::runtime_error("unknown step: " + line);
    words.erase(words.begin());
    if (words.size() < form->second.least || words.size() > form->second.most)
        throw std::runtime_error("wrong number of words: " + line);

    Step step{form->second.kind, {}, {}, 0, 0, {}, {}};
    if (step.kind == Step::Kind::message) {
        step.values = words;
        return step;
    }
    step.control = words.front();
    words.erase(words.begin());
    if (step.kind == Step::Kind::row || step.kind == Step::Kind::keys) {
        step.values = words;
    } else if (step.kind == Step::Kind::cell) {
        takeCell(step, words);
    } else if (step.kind == Step::Kind::field && words.size() >= 4 && isNumber(words[0]) &&
               isNumber(words[1])) {
        step.kind = Step::Kind::gridCell;
        takeCell(step, words);
    } else if (!words.empty()) {
        step.caption = words[0];
        if (words.size() > 1)
            step.values = {words[1]};
        if (words.size() > 2)
            step.unit = words[2];
    }
    return step;
}

bool looksLikeNumber(const std::string& text) {
    return text.find_first_not_of("0123456789.+- ") == text.npos;
}

std::string bold(const std::string& text) {
    return "<b>" + escaped(text) + "</b>";
}
std::string code(const std::string& text) {
    return "<code>" + escaped(text) + "</code>";
}

std::string rowHtml(const Step& step) {
    std::string html;
    for (const std::string& value : step.values)
        html += (html.empty() ? "" : " · ") + code(value);
    return html;
}

/// What the reader does, as a sentence; empty for a step that is none of his.
std::string sentence(const Step& step) {
    switch (step.kind) {
    case Step::Kind::load:
        return "Pulse " + bold(step.caption) + " y escoja el archivo " + code(step.value()) +
               " de los ejemplos.";
    case Step::Kind::click:
        return "Pulse " + bold(step.caption) + ".";
    case Step::Kind::enter:
        return "Escriba " + code(step.value()) + " en " + bold(step.caption) + ".";
    case Step::Kind::choose:
        return "Escoja " + bold(step.value()) + " en " + bold(step.caption) + ".";
    case Step::Kind::mark:
        return "Marque " + bold(step.caption) + ".";
    case Step::Kind::tab:
        return "Pase a la pestaña " + bold(step.caption) + ".";
    case Step::Kind::row:
        return "Escriba en la tabla, con ENTER detrás de cada valor: " + rowHtml(step);
    case Step::Kind::cell:
        return "Escriba " + code(step.value()) + " en la celda de " + bold(step.caption) + ".";
    case Step::Kind::keys:
        return "Escriba " + code(step.value()) + ".";
    case Step::Kind::message:
        return "El programa avisa: «" + escaped(step.value()) + "».";
    case Step::Kind::open:
    case Step::Kind::field:
    case Step::Kind::gridCell:
        break;
    }
    return {};
}

/// The steps as a numbered list, with what is shown as a table below the step that shows it.
class ExampleWriter {
public:
    std::string write(const std::vector<Step>& steps) {
        for (const Step& step : steps)
            add(step);
        endItem();
        return "<ol>\n" + html_ + "</ol>\n";
    }

private:
    void add(const Step& step) {
        if (step.shows()) {
            addResult(step);
        } else if (step.kind == Step::Kind::row && lastWasRow_) {
            html_ += "<br>" + rowHtml(step);
        } else if (const std::string text = sentence(step); !text.empty()) {
            endItem();
            html_ += "<li>" + text;
            inItem_ = true;
        }
        lastWasRow_ = step.kind == Step::Kind::row;
    }

    void addResult(const Step& step) {
        if (!inItem_)
            html_ += "<li>La ventana muestra:";
        inItem_ = true;
        if (!inTable_)
            html_ += "\n<table class=\"results\">\n";
        inTable_ = true;
        const std::string unit = step.unit.empty() ? "" : " " + escaped(step.unit);
        const char* const kind = looksLikeNumber(step.value()) ? "number" : "text";
        html_ += "<tr><td>" + escaped(step.caption) + "</td><td class=\"" + kind + "\">" +
                 escaped(step.value()) + unit + "</td></tr>\n";
    }

    void endItem() {
        if (inTable_)
            html_ += "</table>\n";
        if (inItem_)
            html_ += "</li>\n";
        inTable_ = false;
        inItem_ = false;
    }

    std::string html_;
    bool inItem_ = false;
    bool inTable_ = false;
    bool lastWasRow_ = false;
};

} // namespace

std::string Step::key() const {
    if (kind == Kind::gridCell)
        return control + "." + std::to_string(row) + "." + std::to_string(column);
    return control;
}

std::vector<Step> parseExample(std::string_view text) {
    std::vector<Step> steps;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        const std::string line(text.substr(0, end));
        text.remove_prefix(end == text.npos ? text.size() : end + 1);
        if (line.find_first_not_of(' ') != line.npos)
            steps.push_back(stepOf(line));
    }
    return steps;
}

std::string exampleHtml(const std::vector<Step>& steps) {
    return ExampleWriter().write(steps);
}

} // namespace caudalera::manual
