#pragma once

#include "platform/linux/system/Inotify.h"

#include <QObject>
#include <QSocketNotifier>

#include <memory>
#include <string>

namespace LinuxDesktop {

/// Tells when a folder's content changes. Takes the folder's path in bytes. Where the system has no more watches
/// to give, it tells nothing. Main thread.
class FolderWatch : public QObject {
    Q_OBJECT

public:
    explicit FolderWatch(QObject* parent = nullptr);

    /// Watches this folder, and no longer the one before.
    void setFolder(const std::string& folder);

signals:
    /// Comes once for a burst of changes that arrived together.
    void changed();

private:
    void drain();

    Inotify m_queue;
    int m_watch = -1;
    /// Goes before the queue does.
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace LinuxDesktop
