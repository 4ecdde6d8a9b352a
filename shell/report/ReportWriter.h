#pragma once

#include "shell/richtext/RichText.h"
#include "shell/window/MSFlexGrid.h"

#include <string>
#include <string_view>

namespace caudalera {

/// Writes a report piece by piece at the selection of a document's rich text, with the shapes that
/// the reports share.
class ReportWriter {
public:
    static constexpr std::string_view LF = "\n";
    static constexpr std::string_view TAB = "\t";

    explicit ReportWriter(RichText& text) : text_(text) {}

    ReportWriter& operator<<(std::string_view pieza) {
        text_.setSelText(pieza);
        return *this;
    }

    /// Indents 200 and 200, centred "Resultados", the window's caption, and back to the left.
    void titulo(std::string_view rotulo);
    void sangrar(int twips);
    void alinear(Alignment alignment) { text_.setSelAlignment(alignment); }
    /// A rule of hyphens and its line end.
    void regla(long guiones);
    /// Rows `primera` to `ultima` of a grid, every cell followed by `tras`, every row by a line
    /// end. A row that does not exist is failure 9.
    void filas(const MSFlexGrid& grid, long primera, long ultima, std::string_view tras);

    /// A data grid as the reports list it: title, rule, line of column titles, rule, the first
    /// `cuantas` rows with two tabs behind every cell, rule, empty line.
    void tablaDeDatos(std::string_view titulo, std::string_view columnas, const MSFlexGrid& grid,
                      long cuantas, long guiones);

private:
    RichText& text_;
};

} // namespace caudalera
