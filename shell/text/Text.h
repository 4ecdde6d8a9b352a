#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace caudalera {

// A value that is not finite has no text: failure 6 for an infinite one, 5 for a not-a-number.

/// Numeric reading of a text: the longest leading decimal number, 0 if there is none. Blanks, tabs
/// and line ends inside the number are skipped; the point is the only separator whatever the
/// locale; an exponent E, e, D or d with optional sign counts when a digit follows it. No
/// hexadecimal. Failure 6 for a value past the double range.
double Val(std::string_view text);

/// Number-to-text conversion: a leading blank in front of a value that is not negative, no zero
/// before the point (" 1", " .5", "-.5"). 15 significant digits; fixed notation up to 15 integer
/// digits and 15 decimals, otherwise mantissa and exponent (" 1.5E-16", " 1E+16").
std::string Str(double value);
/// The same for a single: 7 significant digits.
std::string Str(float value);
inline std::string Str(long value) {
    return Str(static_cast<double>(value));
}

/// Plain text of a number: the digits of Str without the leading blank and with the zero before
/// the point ("1", "0.5", "-0.5").
std::string textoPlano(double value);
std::string textoPlano(float value);
std::string textoPlano(long value);

/// Number formatter. Renders the value's 15 significant decimal digits (7 of a single) by a mask
/// of '#', '0' and '.', with an optional literal '+', rounding half away from zero at the last
/// place. Behind the point a '0' always shows its digit, a '#' only while a non-zero digit stands
/// at its place or to its right. `separador` is what is written for the mask's point.
std::string formatear(double value, std::string_view mascara, std::string_view separador = ".");
std::string formatear(float value, std::string_view mascara, std::string_view separador = ".");

/// Number of characters (not bytes) of an UTF-8 text.
std::size_t longitud(std::string_view texto);

/// Text of `cuantos` blanks; none if it is negative.
std::string blancos(long cuantos);

/// Blanks that centre a text of `largo` characters in `ancho`: (ancho - largo) / 2 rounded half to
/// even, none where that is negative.
long blancosParaCentrar(long ancho, long largo);

/// The text with its centring blanks on both sides.
std::string centrado(std::string_view texto, long ancho);

/// Nearest integer, halves to the even one.
long redondeoAlPar(double value);

} // namespace caudalera
