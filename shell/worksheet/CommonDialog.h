#pragma once

#include "shell/window/Platform.h"

#include <string>

namespace caudalera {

/// A file dialog of a calculation window. Cancelled, it gives back the name chosen last in it, and
/// the empty text if none was.
class CommonDialog {
public:
    CommonDialog(FileDialog::Kind kind, std::string title, std::string filter)
        : dialog_{kind, std::move(title), std::move(filter), {}} {}

    const std::string& show(Platform& platform) {
        if (auto chosen = platform.showFileDialog(dialog_))
            dialog_.fileName = *std::move(chosen);
        return dialog_.fileName;
    }

private:
    FileDialog dialog_;
};

} // namespace caudalera
