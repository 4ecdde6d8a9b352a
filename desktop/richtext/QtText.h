#pragma once

#include <QString>
#include <QStringDecoder>
#include <string>

namespace caudalera {

/// A text of the model as the toolkit has it. The toolkit's own conversions take U+FEFF at the
/// start for a mark of the encoding and drop it, and every position behind would be one off.
inline QString toQString(const std::string& utf8) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return decoder.decode(QByteArrayView(utf8.data(), static_cast<qsizetype>(utf8.size())));
}

} // namespace caudalera
