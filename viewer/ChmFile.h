#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

struct chmFile;

namespace caudalera::viewer {

/// A compiled help file, open for reading.
class ChmFile {
public:
    explicit ChmFile(const QString& path);
    ~ChmFile();
    ChmFile(const ChmFile&) = delete;
    ChmFile& operator=(const ChmFile&) = delete;

    bool isOpen() const { return file_ != nullptr; }
    /// What stands at a path within it ("/inicio.html"); empty if nothing does.
    QByteArray read(const QString& path) const;
    /// Paths of all pages of HTML, as they stand in it.
    QStringList pages() const;

    // What the file tells of itself; paths begin with '/'.
    QString title() const { return title_; }
    QString firstPage() const { return firstPage_; }
    QString contentsFile() const { return contentsFile_; }
    QString indexFile() const { return indexFile_; }

private:
    void readSystem();

    chmFile* file_;
    QString title_;
    QString firstPage_;
    QString contentsFile_;
    QString indexFile_;
};

} // namespace caudalera::viewer
