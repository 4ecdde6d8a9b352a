#pragma once

#include <QString>

namespace caudalera {

/// A text as the name of a file that every system takes, without a suffix; `otherwise` if nothing
/// of it remains.
QString fileNameOf(const QString& text, const QString& otherwise);

} // namespace caudalera
