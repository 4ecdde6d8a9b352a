#include "regression/frmRegPoli2Gra.h"

namespace caudalera {

frmRegPoli2Gra::frmRegPoli2Gra(Program& program)
    : PolynomialRegressionWorksheet(
          program, "frmRegPoli2Gra", "Cálculos con ecuaciones de regresión polinomial de 2° grado",
          {.grado = 2,
           .capacidad = 300,
           .ecuacion = "Polinomio 2° grado",
           .pocosPares = "Para calcular el valor de Se, se requiere por lo menos cuatro puntos",
           .guionesEcuacion = 140}) {}

} // namespace caudalera
