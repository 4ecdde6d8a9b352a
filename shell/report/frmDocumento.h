#pragma once

#include "shell/richtext/RichText.h"

#include <string>

namespace caudalera {

/// A document of the report window: a caption and a rich-text box.
class frmDocumento {
public:
    explicit frmDocumento(std::string text) : caption(std::move(text)) {}

    /// "Documento " and its number, or the path of its file.
    std::string caption;
    RichText rtfText;
};

} // namespace caudalera
