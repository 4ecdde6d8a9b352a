#include "regression/frmRegPoli3Gra.h"

namespace caudalera {

frmRegPoli3Gra::frmRegPoli3Gra(Program& program)
    : PolynomialRegressionWorksheet(
          program, "frmRegPoli3Gra", "Cálculos con ecuaciones de regresión polinomial de 3er grado",
          {.grado = 3,
           .capacidad = 500,
           .ecuacion = "Polinomio 3er grado",
           .pocosPares =
               "Para calcular el valor de Se, se requiere por lo menos cinco pares de datos",
           .guionesEcuacion = 150}) {}

} // namespace caudalera
