#include "extensions/AutostartWatch.h"

#include <QFileInfo>

#include <utility>

namespace ExtensionsTool {

AutostartWatch::AutostartWatch(QString path) : m_path(std::move(path))
{
    const auto note = [this] {
        follow();
        emit changed();
    };
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, note);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, note);
    follow();
}

/// Watches the file and the nearest folder above it that exists.
void AutostartWatch::follow()
{
    QStringList wanted;
    QFileInfo nearest(m_path);
    if (nearest.exists())
        wanted.append(m_path);
    do
        nearest.setFile(nearest.path());
    while (!nearest.isDir() && !nearest.isRoot());
    wanted.append(nearest.filePath());

    const QStringList watched = m_watcher.files() + m_watcher.directories();
    for (const QString& path : watched) {
        if (!wanted.contains(path))
            m_watcher.removePath(path);
    }
    // The watcher lets go of what has gone, also where the same name is there again.
    for (const QString& path : wanted) {
        if (!watched.contains(path))
            m_watcher.addPath(path);
    }
}

} // namespace ExtensionsTool
