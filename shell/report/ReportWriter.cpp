#include "shell/report/ReportWriter.h"

namespace caudalera {

void ReportWriter::titulo(std::string_view rotulo) {
    constexpr int sangria = 200;
    text_.setSelIndent(sangria);
    text_.setSelRightIndent(sangria);
    text_.setSelAlignment(Alignment::center);
    *this << "Resultados" << LF << LF << rotulo << LF << LF;
    text_.setSelAlignment(Alignment::left);
    *this << LF;
}

void ReportWriter::regla(long guiones) {
    *this << std::string(static_cast<std::size_t>(guiones), '-') << LF;
}

void ReportWriter::encabezado(std::initializer_list<std::string_view> lineas, long guiones) {
    regla(guiones);
    for (const std::string_view linea : lineas)
        *this << linea << LF;
    regla(guiones);
}

void ReportWriter::abrirTabla(std::string_view titulo,
                              std::initializer_list<std::string_view> encabezados, long guiones) {
    *this << titulo << LF << LF;
    encabezado(encabezados, guiones);
}

void ReportWriter::filas(const MSFlexGrid& cuadricula, long primera, long ultima,
                         std::string_view tras) {
    for (long fila = primera; fila <= ultima; ++fila) {
        for (long col = 0; col < cuadricula.Cols(); ++col)
            *this << cuadricula.TextMatrix(fila, col) << tras;
        *this << LF;
    }
}

void ReportWriter::cerrarTabla(long guiones) {
    regla(guiones);
    *this << LF;
}

void ReportWriter::tablaDeDatos(std::string_view titulo, std::string_view columnas,
                                const MSFlexGrid& cuadricula, long cuantas, long guiones) {
    abrirTabla(titulo, {columnas}, guiones);
    filas(cuadricula, 1, cuantas, "\t\t");
    cerrarTabla(guiones);
}

} // namespace caudalera
