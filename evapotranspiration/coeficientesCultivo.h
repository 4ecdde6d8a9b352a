#pragma once

#include "evapotranspiration/Eleccion.h"

#include <vector>

namespace caudalera {

// Crop coefficients Kc, as lists of crops show them: "Alfalfa (0.85)".

/// The crops of the Blaney-Criddle method, with a coefficient for the whole season. That of beans
/// is 0.65 and that of tobacco 0.75, other than what their items show.
const std::vector<Eleccion<double>>& cultivosBlaneyCriddle();

/// Stage of a crop: its beginning, the middle and the end of the season.
enum class EtapaCultivo { inicio, mediados, fin };

/// The crops of the Hargreaves method with their coefficient in a stage.
const std::vector<Eleccion<double>>& cultivosHargreaves(EtapaCultivo etapa);

} // namespace caudalera
