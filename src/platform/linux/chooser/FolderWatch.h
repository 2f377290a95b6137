#pragma once

#include <QObject>

#include <string>

class QSocketNotifier;

namespace LinuxDesktop {

/// Tells when a folder's content changes. Takes the folder's path in bytes. Where the system has no more watches
/// to give, it tells nothing. Main thread.
class FolderWatch : public QObject {
    Q_OBJECT

public:
    explicit FolderWatch(QObject* parent = nullptr);
    ~FolderWatch() override;

    /// Watches this folder, and no longer the one before.
    void setFolder(const std::string& folder);

signals:
    /// Comes once for a burst of changes that arrived together.
    void changed();

private:
    void drain();

    int m_queue;
    int m_watch = -1;
    QSocketNotifier* m_notifier = nullptr;
};

} // namespace LinuxDesktop
