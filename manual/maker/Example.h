#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace caudalera::manual {

/// One step of an example: what the reader does at a window, or what it then shows.
struct Step {
    enum class Kind {
        open,     ///< abrir VENTANA
        load,     ///< cargar BOTÓN "título" ARCHIVO (one of the samples)
        click,    ///< pulsar BOTÓN "título"
        enter,    ///< escribir CAMPO "etiqueta" VALOR
        choose,   ///< escoger LISTA "etiqueta" VALOR
        mark,     ///< marcar OPCIÓN "título"
        tab,      ///< pestaña PESTAÑAS "título"
        row,      ///< fila TABLA VALOR...: a row typed behind the last one
        cell,     ///< poner TABLA FILA COLUMNA "qué" VALOR
        keys,     ///< teclas CONTROL TEXTO: typed as it stands
        field,    ///< resultado CONTROL "etiqueta" VALOR [UNIDAD]
        gridCell, ///< resultado TABLA FILA COLUMNA "qué" VALOR [UNIDAD]
        message,  ///< mensaje TEXTO
    };

    Kind kind = Kind::open;
    std::string control;
    /// What the window calls it.
    std::string caption;
    long row = 0;
    long column = 0;
    /// What is typed, chosen, shown; of a row each value.
    std::vector<std::string> values;
    std::string unit;

    bool shows() const { return kind == Kind::field || kind == Kind::gridCell; }
    const std::string& value() const { return values.front(); }
    /// By which the text around an example quotes what is shown: "txtxm", "grddis.3.2".
    std::string key() const;
};

/// Reads the lines of an example, words parted by blanks, those with blanks in double quotes.
/// Throws std::runtime_error at a line that it does not know.
std::vector<Step> parseExample(std::string_view text);

/// The example as HTML: numbered steps, results as tables between them.
std::string exampleHtml(const std::vector<Step>& steps);

} // namespace caudalera::manual
