#pragma once

#include <QMimeData>
#include <memory>
#include <string>

namespace caudalera::richtext {

/// What the clipboard carries of a rich text, given as RTF source: the source under the names that
/// programs know it by, HTML, and the text alone. The last two are made when somebody asks.
std::unique_ptr<QMimeData> toClipboard(std::string rtf);

/// The richest that a clipboard has: RTF source, or what HTML becomes as such, otherwise plain text
/// (which may be RTF source that somebody copied as text).
std::string fromClipboard(const QMimeData& clipboard);

} // namespace caudalera::richtext
