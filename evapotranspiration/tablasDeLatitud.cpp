#include "evapotranspiration/tablasDeLatitud.h"

#include "shell/files/TableFile.h"
#include "shell/text/MonthData.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace caudalera {

namespace {

constexpr std::size_t meses = mesesCortos.size();

constexpr std::array<std::string_view, 11> cadaCinco = {"0",  "5",  "10", "15", "20", "25",
                                                        "30", "35", "40", "45", "50"};
constexpr std::array<std::string_view, 19> cadaDosDesdeCuarenta = {
    "0",  "5",  "10", "15", "20", "25", "30", "35", "40", "42",
    "44", "46", "48", "50", "52", "54", "56", "58", "60"};
/// The table of sunshine ends at 50 degrees.
constexpr std::size_t hastaCincuenta = 14;

} // namespace

constinit const FormatoDeTabla tablaFactorThornthwaite = {"FThornthwite.TF", cadaCinco, {}, 300};
constinit const FormatoDeTabla tablaHorasDiurnas = {
    "PBlaneyCriddle.BP", cadaDosDesdeCuarenta, {}, 500};
constinit const FormatoDeTabla tablaInsolacionMaxima = {
    "InsolacionMaxN.NN", std::span(cadaDosDesdeCuarenta).first(hastaCincuenta),
    std::span(cadaDosDesdeCuarenta).subspan(hastaCincuenta), 500};

std::span<const std::string_view> latitudesThornthwaite() {
    return cadaCinco;
}

std::span<const std::string_view> latitudesBlaneyCriddle() {
    return cadaDosDesdeCuarenta;
}

std::optional<std::size_t> inicioDeBloque(const FormatoDeTabla& formato, std::string_view clave) {
    const auto contiene = [](std::span<const std::string_view> latitudes, std::string_view grados) {
        return std::find(latitudes.begin(), latitudes.end(), grados) != latitudes.end();
    };
    const bool norte = clave.ends_with('N');
    if (!norte && !clave.ends_with('S'))
        return std::nullopt;
    clave.remove_suffix(1);
    // Blocks between the equator's and that of the latitude.
    const std::size_t ultimo = formato.latitudes.size() - 1;
    std::size_t desdeEcuador = ultimo;
    if (!contiene(formato.latitudesMayores, clave)) {
        const auto hallada = std::find(formato.latitudes.begin(), formato.latitudes.end(), clave);
        if (hallada == formato.latitudes.end())
            return std::nullopt;
        desdeEcuador = static_cast<std::size_t>(hallada - formato.latitudes.begin());
    }
    return meses * (norte ? ultimo - desdeEcuador : ultimo + desdeEcuador);
}

TablaDeLatitud::TablaDeLatitud(const FormatoDeTabla& formato)
    : formato_(formato), valores_(formato.capacidad) {}

void TablaDeLatitud::cargar(const std::filesystem::path& directorio) {
    valores_ = readTable(directorio / formato_.archivo, formato_.capacidad);
    valores_.resize(formato_.capacidad);
}

void TablaDeLatitud::copiar(std::string_view clave, SerieSimple& destino) const {
    const auto inicio = inicioDeBloque(formato_, clave);
    if (!inicio)
        return;
    std::copy_n(valores_.begin() + static_cast<std::ptrdiff_t>(*inicio), meses,
                destino.primeros(static_cast<long>(meses)).begin());
}

} // namespace caudalera
