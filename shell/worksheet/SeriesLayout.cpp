#include "shell/worksheet/SeriesLayout.h"

#include <utility>

namespace caudalera {

SeriesLayout layoutSerieX() {
    return {{"X"}, "Valores de X|*.X", "Valores X|*.X"};
}

SeriesLayout layoutParesXY() {
    return {{"X", "Y"}, "Pares valores X,Y|*.XY"};
}

SeriesLayout layoutTriosTDI(std::string encabezadoIntensidad) {
    return {{"T (años)", "Duración (min)", std::move(encabezadoIntensidad)},
            "Trio valores T,D,I|*.TDI"};
}

} // namespace caudalera
