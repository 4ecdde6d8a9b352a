#pragma once

#include <QFileIconProvider>

class QFileDialog;

namespace caudalera::words {

/// What file dialogs write into their column of types: the system's list of types knows them in the
/// language of the system, and the suffix says as much.
class FileKinds : public QFileIconProvider {
public:
    /// "Archivo RTF" by its suffix, "Archivo" without one, "Carpeta", "Unidad".
    QString type(const QFileInfo& file) const override;
};

/// Gives a file dialog these kinds and columns that show what is in them. `kinds` must outlive it.
void prepare(QFileDialog& dialog, FileKinds& kinds);

} // namespace caudalera::words
