#pragma once

#include "shell/numbers/Serie.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace caudalera {

/// A table file of the fixed directory: singles in blocks of a value a month, January first, a
/// block a latitude, from the northernmost to the southernmost.
struct FormatoDeTabla {
    std::string_view archivo;
    /// Latitudes (degrees), as keys name them, that the file has blocks for; from the equator on.
    std::span<const std::string_view> latitudes;
    /// Latitudes beyond the last of them that share its block.
    std::span<const std::string_view> latitudesMayores;
    /// Singles that are read of the file at most.
    std::size_t capacidad;
};

/// Correction factor of the month's evapotranspiration: Thornthwaite (1948).
extern const FormatoDeTabla tablaFactorThornthwaite;
/// Mean daily percentage P of the annual daytime hours: FAO Irrigation and Drainage Paper 24.
extern const FormatoDeTabla tablaHorasDiurnas;
/// Maximum sunshine N, hours a day, from the same paper.
extern const FormatoDeTabla tablaInsolacionMaxima;

/// The latitudes that the windows offer with these tables.
std::span<const std::string_view> latitudesThornthwaite();
std::span<const std::string_view> latitudesBlaneyCriddle();

/// Element (from 0) that the block of a latitude begins at. The key is the latitude's text joined
/// with "N" or "S", such as "10N"; both "0N" and "0S" name the equator. None for any other text.
std::optional<std::size_t> inicioDeBloque(const FormatoDeTabla& formato, std::string_view clave);

/// What a window holds of a table file.
class TablaDeLatitud {
public:
    /// All values are 0.
    explicit TablaDeLatitud(const FormatoDeTabla& formato);

    /// Reads the file as far as the table goes. Values that it does not hold are 0, all of them if
    /// it is missing or cannot be read.
    void cargar(const std::filesystem::path& directorio);
    /// Copies the twelve values of a key; of a text that is none it copies nothing.
    void copiar(std::string_view clave, SerieSimple& destino) const;

private:
    const FormatoDeTabla& formato_;
    std::vector<float> valores_;
};

} // namespace caudalera
