#include "shell/numbers/logaritmos.h"

namespace caudalera {

std::vector<Real> logaritmos(std::span<const Real> valores) {
    std::vector<Real> todos;
    todos.reserve(valores.size());
    for (const Real valor : valores)
        todos.push_back(Log(valor));
    return todos;
}

} // namespace caudalera
