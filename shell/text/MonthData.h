#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace caudalera {

/// Month labels as all windows write them.
inline constexpr std::array<std::string_view, 12> mesesCortos = {
    "Ene", "Feb", "Mar", "Abr", "May", "Jun", "Jul", "Ago", "Set", "Oct", "Nov", "Dic"};

/// Days of each month, February always with 28.
inline constexpr std::array<long, 12> diasDeMes = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

/// Caption of the horizontal axis of the charts with a point a month.
inline constexpr const char* rotuloEjeMeses = "Eje de Meses: 0 = Ene, 1 = Feb, ... ,11= Dic";

/// Label of a row of a month grid, cyclic: 1 is "Ene", 13 "Ene" again. Rows count from 1.
constexpr std::string_view mesDeFila(long fila) {
    return mesesCortos[static_cast<std::size_t>((fila - 1) % 12)];
}

} // namespace caudalera
