#pragma once

#include "shell/numbers/Real.h"

#include <cstdint>
#include <optional>

namespace caudalera {

// What the keys of the pocket calculator compute. A refusal is no value; what an operation does not
// look at before it computes ends in a run-time failure.

/// The circle constant as the calculator writes it and turns degrees with it.
inline constexpr double piDeCalculadora = 3.14159265358979;

/// The codes of the operation keys.
enum class Operacion : std::int32_t {
    division = 1,
    multiplicacion,
    resta,
    suma,
    raizCuadrada,
    porcentaje,
    inversa,
    potencia,
    cubo,
    cuadrado,
    modulo,
    entero,
    raizN,
    raizCubica
};

/// Whether the operation takes one operand, and is computed as its key is pressed.
bool deUnOperando(Operacion operacion);

/// Result of an operation on `a` and, if it takes two, `b`. None, which refuses it:
/// - `division`, the absolute value of a / b, and `porcentaje`, a / b in hundredths: b = 0
/// - `raizCuadrada`: a negative
/// - `inversa`: a = 0
///
/// Without a refusal: `modulo` takes both rounded to integers of 32 bits, halves to the even one,
/// and has the sign of `a`; failure 11 for b = 0, 6 past 32 bits. `entero` cuts towards 0.
/// `potencia`, `cubo`, `cuadrado`, `raizN` (a to the power 1 / b; failure 11 for b = 0) and
/// `raizCubica` (to the power 1 / 3) fail as powers do: 5 for a fractional power of a negative and
/// a negative one of 0. All of them: failure 6 past the double range.
std::optional<Real> operar(Operacion operacion, Real a, Real b);

enum class Funcion { seno, coseno, tangente, arcoSeno, arcoCoseno, arcoTangente };
enum class Angulo { grados, radianes };

/// A trigonometric function of x, or the angle that has it. In degrees the functions take the
/// absolute value of x rounded to an integer, halves to the even one, and reduced by whole turns:
/// fractions and the sign are lost. `arcoSeno` and `arcoCoseno` have no value outside -1 to 1.
std::optional<Real> evaluar(Funcion funcion, Real x, Angulo angulo);

} // namespace caudalera
