#include "regression/textosRegresion.h"

#include "shell/text/Text.h"

namespace caudalera {

std::string textoRecta(const std::string& a, const std::string& b) {
    const char* const signo = Val(b) < 0 ? "  " : " + ";
    return "Y = " + a + signo + b + " * X";
}

} // namespace caudalera
