#include "viewer/OneViewer.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace caudalera::viewer {

namespace {

QString nameFor(const QString& helpFile) {
    const QByteArray path = QFileInfo(helpFile).absoluteFilePath().toUtf8();
    return QString::fromLatin1(
        QCryptographicHash::hash(path, QCryptographicHash::Sha1).toHex().left(16));
}

} // namespace

OneViewer::OneViewer(const QString& folder, const QString& helpFile)
    : request_(QDir(folder).filePath(nameFor(helpFile) + QStringLiteral(".request"))),
      lock_(QDir(folder).filePath(nameFor(helpFile) + QStringLiteral(".lock"))) {
    QDir().mkpath(folder);
    // It is held as long as its process lives.
    lock_.setStaleLockTime(0);
}

bool OneViewer::take(const QString& topic) {
    if (lock_.tryLock(0)) {
        QFile::remove(request_);
        watcher_.addPath(QFileInfo(request_).absolutePath());
        connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, &OneViewer::readRequest);
        return true;
    }
#ifdef Q_OS_WIN
    // Whom the user has just started may let another one come to the front.
    AllowSetForegroundWindow(ASFW_ANY);
#endif
    // Written beside it and renamed, so that the other one reads the whole of it.
    QSaveFile file(request_);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(topic.toUtf8());
        file.commit();
    }
    return false;
}

void OneViewer::readRequest() {
    QFile file(request_);
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QString topic = QString::fromUtf8(file.readAll());
    file.close();
    file.remove();
    emit asked(topic);
}

} // namespace caudalera::viewer
