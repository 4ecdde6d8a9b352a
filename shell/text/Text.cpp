#include "shell/text/Text.h"

#include "shell/numbers/Real.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace caudalera {

std::size_t longitud(std::string_view texto) {
    // In UTF-8 every byte but those of the form 10xxxxxx begins a character.
    return static_cast<std::size_t>(std::count_if(texto.begin(), texto.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
    }));
}

std::string blancos(long cuantos) {
    return std::string(static_cast<std::size_t>(std::max(cuantos, 0L)), ' ');
}

long blancosParaCentrar(long ancho, long largo) {
    if (largo >= ancho)
        return 0;
    const long libres = ancho - largo;
    const long mitad = libres / 2;
    const bool sobraMedio = libres % 2 != 0;
    return sobraMedio && mitad % 2 != 0 ? mitad + 1 : mitad;
}

std::string centrado(std::string_view texto, long ancho) {
    const std::string lado = blancos(blancosParaCentrar(ancho, static_cast<long>(longitud(texto))));
    return lado + std::string(texto) + lado;
}

long redondeoAlPar(double value) {
    const double below = std::floor(Real::checked(value).value());
    const double rest = value - below;
    const bool belowIsOdd = std::fmod(below, 2) != 0;
    const double nearest = rest > 0.5 || (rest == 0.5 && belowIsOdd) ? below + 1 : below;
    // The lowest long is a power of two, which a double holds exactly; the highest is not.
    constexpr auto lowest = static_cast<double>(std::numeric_limits<long>::min());
    if (nearest < lowest || nearest >= -lowest)
        throw RuntimeFailure(Failure::overflow);
    return static_cast<long>(nearest);
}

} // namespace caudalera
