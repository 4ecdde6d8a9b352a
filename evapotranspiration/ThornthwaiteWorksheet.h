#pragma once

#include "evapotranspiration/MonthlyWorksheet.h"
#include "evapotranspiration/tablasDeLatitud.h"
#include "evapotranspiration/thornthwaite.h"

namespace caudalera {

/// What the windows share that compute a year by Thornthwaite's method.
class ThornthwaiteWorksheet : public MonthlyWorksheet {
public:
    ThornthwaiteWorksheet(Program& program, std::string name, std::string caption,
                          SeriesLayout seriesLayout, MonthlyTexts textos);

    void load() override;

protected:
    AnnoThornthwaite anno;

    /// Takes the factors of the latitude and the grid, and computes the year.
    void calcularEvapotranspiracion();
    /// The exponent as fields show it.
    std::string textoExponente() const;

private:
    TablaDeLatitud factores_{tablaFactorThornthwaite};
};

} // namespace caudalera
