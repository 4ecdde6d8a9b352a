#include "precipitation/frmThiessen.h"

#include "precipitation/thiessen.h"

namespace caudalera {

frmThiessen::frmThiessen(Program& program)
    : ArealWorksheet(program, "frmThiessen",
                     "Cálculo de la precipitación promedio por el método de Thiessen",
                     {{"Precipitación (mm)", "Área"}, "Pares valores P, A|*.PA"},
                     {.encabezadoFilas = "Estación",
                      .tituloDatos = "Ingreso de los pares de datos de las estaciones:",
                      .marcoResultado = "Resultado método de Thiessen:",
                      .sinDatos = "Ingresar datos antes de realizar los cálculos",
                      .dibujo = "thiessen",
                      .reporteDatos = "Pares de datos Precipitación, Área:",
                      .reporteColumnas = " Estación\t Precipitación\t Área",
                      .reporteResultado = "Resultado del método de Thiessen:"}) {
    columnas = {&precipitacion_, &area_};
    bLimpiar.caption = "Limpiar Pan&talla";
    disponer(ingreso.columna(grdt));
}

Real frmThiessen::precipitacionMedia() const {
    return thiessen(precipitacion_.primeros(n), area_.primeros(n));
}

} // namespace caudalera
