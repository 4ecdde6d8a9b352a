#pragma once

#include "shell/richtext/RichText.h"
#include "shell/window/MSFlexGrid.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace caudalera {

/// Writes a report piece by piece at the selection of a document's rich text, with the shapes that
/// the reports share. What was written stands in the document when the writer goes, also where a
/// failure takes it away; until then nothing else may change the document.
class ReportWriter {
public:
    static constexpr std::string_view LF = "\n";
    static constexpr std::string_view TAB = "\t";

    explicit ReportWriter(RichText& document)
        : document_(document), text_(document.selParagraphs()) {}
    ~ReportWriter() { document_.setSelParagraphs(std::move(text_)); }
    ReportWriter(const ReportWriter&) = delete;
    ReportWriter& operator=(const ReportWriter&) = delete;

    ReportWriter& operator<<(std::string_view pieza) {
        text_.setSelText(pieza);
        return *this;
    }

    /// Indents 200 and 200, centred "Resultados", the window's caption, and back to the left.
    void titulo(std::string_view rotulo);
    /// A rule of hyphens and its line end.
    void regla(long guiones);
    /// Lines between two rules.
    void encabezado(std::initializer_list<std::string_view> lineas, long guiones);

    /// Begins a table: title, empty line and its heading lines between two rules.
    void abrirTabla(std::string_view titulo, std::initializer_list<std::string_view> encabezados,
                    long guiones);
    /// Rows `primera` to `ultima` of a grid, every cell followed by `tras`, every row by a line
    /// end. A row that does not exist is failure 9.
    void filas(const MSFlexGrid& cuadricula, long primera, long ultima, std::string_view tras);
    /// Ends a table: rule, empty line.
    void cerrarTabla(long guiones);

    /// A data grid as the reports list it: a table of its first `cuantas` rows with two tabs behind
    /// every cell.
    void tablaDeDatos(std::string_view titulo, std::string_view columnas,
                      const MSFlexGrid& cuadricula, long cuantas, long guiones);

private:
    RichText& document_;
    /// The paragraphs at the document's selection. The report grows here, where no piece has to
    /// move what lies behind it.
    RichText text_;
};

} // namespace caudalera
