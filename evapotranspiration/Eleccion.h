#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace caudalera {

/// An item of a list and what choosing it stands for.
template <typename Valor>
struct Eleccion {
    std::string texto;
    Valor valor;
};

template <typename Valor>
std::vector<std::string> textosDe(const std::vector<Eleccion<Valor>>& elecciones) {
    std::vector<std::string> textos;
    textos.reserve(elecciones.size());
    for (const Eleccion<Valor>& eleccion : elecciones)
        textos.push_back(eleccion.texto);
    return textos;
}

/// None for a text that is none of the items.
template <typename Valor>
std::optional<Valor> valorElegido(const std::vector<Eleccion<Valor>>& elecciones,
                                  std::string_view texto) {
    const auto hallada =
        std::find_if(elecciones.begin(), elecciones.end(),
                     [&](const Eleccion<Valor>& eleccion) { return eleccion.texto == texto; });
    if (hallada == elecciones.end())
        return std::nullopt;
    return hallada->valor;
}

} // namespace caudalera
