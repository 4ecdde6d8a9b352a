#include "precipitation/frmPromArit.h"

#include "precipitation/promedioAritmetico.h"

namespace caudalera {

frmPromArit::frmPromArit(Program& program)
    : ArealWorksheet(program, "frmPromArit",
                     "Cálculo de la precipitación promedio por el método del promedio aritmético",
                     {{"Precipitación (mm)"}, "Valores de precipitación P|*.P"},
                     {.encabezadoFilas = "Estación",
                      .tituloDatos = "Ingreso de las precipitaciones de las estaciones:",
                      .marcoResultado = "Resultado método del promedio aritmético:",
                      .sinDatos = "Antes de realizar cálculos, ingresar datos",
                      .dibujo = "promedio",
                      .reporteDatos = "Datos de precipitación:",
                      .reporteColumnas = " Estación\t Precipitación (mm)",
                      .reporteResultado = "Resultado del método del promedio aritmético:"}) {
    columnas = {&precipitacion_};
    bLimpiar.caption = "Limpiar Pan&talla";
    disponer(ingreso.columna(grdt));
}

Real frmPromArit::precipitacionMedia() const {
    return promedioAritmetico(precipitacion_.primeros(n));
}

} // namespace caudalera
