#include "evapotranspiration/balanceHidrico.h"

#include "evapotranspiration/tablasSolares.h"

#include <algorithm>
#include <cstddef>

namespace caudalera {

std::optional<long> primerMesConExceso(std::span<const float> diferencias) {
    const auto hallado = std::find_if(diferencias.begin(), diferencias.end(),
                                      [](float diferencia) { return diferencia > 0; });
    if (hallado == diferencias.end())
        return std::nullopt;
    return static_cast<long>(hallado - diferencias.begin()) + 1;
}

std::string_view nombreDelMes(long mes) {
    if (mes < 1 || mes > static_cast<long>(nombresMeses.size()))
        return nombresMeses.back();
    return nombresMeses[static_cast<std::size_t>(mes - 1)];
}

} // namespace caudalera
