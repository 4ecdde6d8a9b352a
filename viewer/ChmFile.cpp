#include "viewer/ChmFile.h"

#include <QFile>
#include <QtEndian>

// The library asks for a wide name on Windows only, under the name of its own system headers.
#ifdef Q_OS_WIN
#include <windows.h>
#endif
#include <chm_lib.h>

namespace caudalera::viewer {

namespace {

chmFile* open(const QString& path) {
#ifdef Q_OS_WIN
    return chm_open(reinterpret_cast<BSTR>(const_cast<ushort*>(path.utf16())));
#else
    return chm_open(QFile::encodeName(path).constData());
#endif
}

int takeName(chmFile* /*file*/, chmUnitInfo* unit, void* context) {
    const QString path = QString::fromUtf8(unit->path);
    if (path.endsWith(QLatin1String(".html")) || path.endsWith(QLatin1String(".htm")))
        static_cast<QStringList*>(context)->append(path);
    return CHM_ENUMERATOR_CONTINUE;
}

} // namespace

ChmFile::ChmFile(const QString& path) : file_(open(path)) {
    if (file_)
        readSystem();
}

ChmFile::~ChmFile() {
    if (file_)
        chm_close(file_);
}

QByteArray ChmFile::read(const QString& path) const {
    chmUnitInfo unit = {};
    if (!file_ ||
        chm_resolve_object(file_, path.toUtf8().constData(), &unit) != CHM_RESOLVE_SUCCESS)
        return {};
    // A damaged file may tell any length.
    constexpr LONGUINT64 most = 64U << 20U;
    if (unit.length > most)
        return {};
    QByteArray bytes(static_cast<qsizetype>(unit.length), '\0');
    const LONGINT64 got =
        chm_retrieve_object(file_, &unit, reinterpret_cast<unsigned char*>(bytes.data()), 0,
                            static_cast<LONGINT64>(unit.length));
    bytes.truncate(static_cast<qsizetype>(std::max<LONGINT64>(got, 0)));
    return bytes;
}

QStringList ChmFile::pages() const {
    QStringList found;
    if (file_)
        chm_enumerate(file_, CHM_ENUMERATE_ALL, takeName, &found);
    return found;
}

void ChmFile::readSystem() {
    enum Code { contentsEntry, indexEntry, firstPageEntry, titleEntry };
    // A version, then entries of a code, a length and as many bytes.
    const QByteArray system = read(QStringLiteral("/#SYSTEM"));
    qsizetype at = 4;
    while (at + 4 <= system.size()) {
        const auto code = qFromLittleEndian<quint16>(system.constData() + at);
        const auto length = qFromLittleEndian<quint16>(system.constData() + at + 2);
        at += 4;
        // Texts end with a zero byte.
        const QString text = QString::fromLatin1(system.mid(at, length).constData());
        if (code == contentsEntry) {
            contentsFile_ = QLatin1Char('/') + text;
        } else if (code == indexEntry) {
            indexFile_ = QLatin1Char('/') + text;
        } else if (code == firstPageEntry) {
            firstPage_ = QLatin1Char('/') + text;
        } else if (code == titleEntry) {
            title_ = text;
        }
        at += length;
    }
}

} // namespace caudalera::viewer
