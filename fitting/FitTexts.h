#pragma once

#include <array>
#include <string_view>

namespace caudalera {

/// Headers of columns 3 and 4 of `grddis`, and the last three titles of the report's table.
struct FitColumns {
    std::array<std::string_view, 2> encabezados;
    std::array<std::string_view, 3> titulosReporte;
};

/// Of the distributions with a reduced variate Z, and of those with one called Y.
inline constexpr FitColumns columnasZ{{"F(Z) Ordinario", "F(Z) Mom Lineal"},
                                      {"F(Z) Ordinario ", "F(Z) Mom Lineal ", "Delta "}};
inline constexpr FitColumns columnasY{{"G(Y) Ordinario", "G(Y) Mom Lineal"},
                                      {"G(Y) Ordinario ", "G(Y) Mom Lineal ", "Delta "}};

/// The texts and masks in which the windows of the distributions differ, and whether a window has
/// linear moments.
struct FitTexts {
    bool momentosLineales = true;
    /// Name of the distribution in the verdict.
    std::string_view distribucion;

    std::string_view marcoParametros;
    /// Heading of the parameters in the report, and the length of the rule below it.
    std::string_view tituloParametros;
    long guionesParametros = 55;

    FitColumns columnas;

    std::string_view mascaraPeriodo;
    std::string_view mascaraProbabilidad;
    std::string_view mascaraTeorico = "#####0.###0";
    std::string_view mascaraTabular = "###0.###0";

    std::string_view falloCalculo = "Ingresar datos adecuadamente ";
    std::string_view excedenciaSinCalculo =
        "Efectuar cálculos antes de evaluar la probabilidad de no excedencia";
};

} // namespace caudalera
