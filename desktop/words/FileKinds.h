#pragma once

#include <QFileIconProvider>

namespace caudalera::words {

/// What file dialogs write into their column of types: the system's list of types knows them in the
/// language of the system, and the suffix says as much.
class FileKinds : public QFileIconProvider {
public:
    /// "Archivo RTF" by its suffix, "Archivo" without one, "Carpeta", "Unidad".
    QString type(const QFileInfo& file) const override;
};

} // namespace caudalera::words
