#pragma once

#include <QFileSystemWatcher>
#include <QLockFile>
#include <QObject>

namespace caudalera::viewer {

/// Keeps one viewer a help file: whoever comes later hands its topic to the one that is there.
class OneViewer : public QObject {
    Q_OBJECT

public:
    /// `folder`: where the viewers of a user meet.
    OneViewer(const QString& folder, const QString& helpFile);

    /// True if there was none: this is the one. Otherwise the topic is handed over.
    bool take(const QString& topic);

signals:
    void asked(const QString& topic);

private:
    void readRequest();

    QString request_;
    QLockFile lock_;
    QFileSystemWatcher watcher_;
};

} // namespace caudalera::viewer
