#pragma once

#include "shell/numbers/Real.h"

#include <string>
#include <string_view>
#include <vector>

namespace caudalera {

/// What the lists of cover, texture and urban surface offer, in their order.
std::vector<std::string> coberturasDelSuelo();
std::vector<std::string> texturasDelSuelo();
std::vector<std::string> superficiesUrbanas();

/// Runoff coefficient of the rational method for land that is not urban, by cover, soil texture
/// and slope (percent): a slope from 0 to 5 takes the first column of the table, from there to 10
/// the second, any other the third, those below 0 too. 0 for a text that is not in the table.
/// Source: after the table of Schwab, Frevert, Edminster and Barnes, Soil and Water Conservation
/// Engineering.
Real coeficienteNoUrbano(std::string_view cobertura, std::string_view textura, Real pendiente);

/// Runoff coefficient of an urban surface; 0 for a text that is not in the table. Source: the
/// usual values of ASCE, Design and Construction of Sanitary and Storm Sewers.
Real coeficienteUrbano(std::string_view superficie);

} // namespace caudalera
