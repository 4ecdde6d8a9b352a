#pragma once

#include <string>
#include <string_view>

namespace caudalera::manual {

/// A character or text with what HTML reserves written as entities.
std::string escaped(std::string_view text);

/// One line of a formula as a block of HTML. `_` and `^` put the next character, word or group in
/// braces low or high, `\frac{a}{b}` is a fraction (over each other at the outer level, with a
/// slash within another group), `\sqrt{a}` a root, `\bar{x}` a mean. Letters that stand alone are
/// set as variables, words are not; `*` is the product. Throws std::runtime_error at a group
/// without end or an unknown command.
std::string formulaHtml(std::string_view line);

} // namespace caudalera::manual
