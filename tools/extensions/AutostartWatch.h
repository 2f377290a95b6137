#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>

namespace ExtensionsTool {

/// Tells when a file may have appeared, gone or changed, whether its folder is there or not. Main thread.
class AutostartWatch : public QObject {
    Q_OBJECT

public:
    /// `path` is absolute.
    explicit AutostartWatch(QString path);

    Q_SIGNAL void changed();

private:
    void follow();

    QString m_path;
    QFileSystemWatcher m_watcher;
};

} // namespace ExtensionsTool
