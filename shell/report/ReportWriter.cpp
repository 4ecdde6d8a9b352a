#include "shell/report/ReportWriter.h"

namespace caudalera {

void ReportWriter::titulo(std::string_view rotulo) {
    text_.setSelIndent(200);
    text_.setSelRightIndent(200);
    alinear(Alignment::center);
    *this << "Resultados" << LF << LF << rotulo << LF << LF;
    alinear(Alignment::left);
    *this << LF;
}

void ReportWriter::sangrar(int twips) {
    text_.setSelIndent(twips);
    text_.setSelRightIndent(twips);
}

void ReportWriter::regla(long guiones) {
    *this << std::string(static_cast<std::size_t>(guiones), '-') << LF;
}

void ReportWriter::filas(const MSFlexGrid& grid, long primera, long ultima, std::string_view tras) {
    for (long fila = primera; fila <= ultima; ++fila) {
        for (long col = 0; col < grid.Cols(); ++col)
            *this << grid.TextMatrix(fila, col) << tras;
        *this << LF;
    }
}

void ReportWriter::tablaDeDatos(std::string_view titulo, std::string_view columnas,
                                const MSFlexGrid& grid, long cuantas, long guiones) {
    *this << titulo << LF << LF;
    regla(guiones);
    *this << columnas << LF;
    regla(guiones);
    filas(grid, 1, cuantas, "\t\t");
    regla(guiones);
    *this << LF;
}

} // namespace caudalera
