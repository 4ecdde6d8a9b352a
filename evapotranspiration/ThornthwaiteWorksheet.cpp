#include "evapotranspiration/ThornthwaiteWorksheet.h"

#include <utility>

namespace caudalera {

namespace {

MonthlyTexts conLatitudes(MonthlyTexts textos) {
    textos.latitudes = latitudesThornthwaite();
    return textos;
}

} // namespace

ThornthwaiteWorksheet::ThornthwaiteWorksheet(Program& program, std::string name, std::string text,
                                             SeriesLayout seriesLayout, MonthlyTexts textos)
    : MonthlyWorksheet(program, std::move(name), std::move(text), std::move(seriesLayout),
                       conLatitudes(std::move(textos))) {}

void ThornthwaiteWorksheet::load() {
    MonthlyWorksheet::load();
    factores_.cargar(platform().fixedDirectory());
}

void ThornthwaiteWorksheet::calcularEvapotranspiracion() {
    factores_.copiar(clave(), anno.f);
    leerMeses();
    anno.calcular();
}

std::string ThornthwaiteWorksheet::textoExponente() const {
    return formatear(anno.a, "0.0####");
}

} // namespace caudalera
