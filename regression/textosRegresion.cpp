#include "regression/textosRegresion.h"

#include "shell/Text.h"

namespace caudalera {

std::string textoRecta(const std::string& a, const std::string& b) {
    const char* const signo = Val(b) < 0 ? "  " : " + ";
    return "Y = " + a + signo + b + " * X";
}

void escribirTablaDatos(ReportWriter& reporte, std::string_view titulo, std::string_view columnas,
                        const MSFlexGrid& grid, long filas, long guiones) {
    constexpr auto LF = ReportWriter::LF;
    reporte << titulo << LF << LF;
    reporte.regla(guiones);
    reporte << columnas << LF;
    reporte.regla(guiones);
    reporte.filas(grid, 1, filas, "\t\t");
    reporte.regla(guiones);
    reporte << LF;
}

} // namespace caudalera
