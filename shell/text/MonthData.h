#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace caudalera {

/// Month labels as all windows write them.
inline constexpr std::array<std::string_view, 12> mesesCortos = {
    "Ene", "Feb", "Mar", "Abr", "May", "Jun", "Jul", "Ago", "Set", "Oct", "Nov", "Dic"};

/// Label of a row of a month grid, cyclic: 1 is "Ene", 13 "Ene" again. Rows count from 1.
constexpr std::string_view mesDeFila(long fila) {
    return mesesCortos[static_cast<std::size_t>((fila - 1) % 12)];
}

} // namespace caudalera
