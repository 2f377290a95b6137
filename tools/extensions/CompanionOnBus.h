#pragma once

#include "platform/linux/bus/SessionBus.h"

#include <QDBusServiceWatcher>
#include <QObject>
#include <QString>

namespace ExtensionsTool {

/// An extension's process as the session bus knows it, by its name. Main thread.
class CompanionOnBus : public QObject {
    Q_OBJECT

public:
    /// Blocks for one bus call. `bus` must outlive it.
    CompanionOnBus(LinuxDesktop::SessionBus& bus, QString identifier);

    /// False without a session bus, and once that has gone.
    [[nodiscard]] bool hasBus() const { return m_hasBus; }
    [[nodiscard]] bool isRunning() const { return m_isRunning; }
    /// Asks it to end. An answer that says no comes as refused().
    void quit();

    /// hasBus() or isRunning() is other than before.
    Q_SIGNAL void changed();
    Q_SIGNAL void refused(const QString& why);

private:
    Q_SLOT void loseBus();
    void setRunning(bool running);

    LinuxDesktop::SessionBus& m_bus;
    const QString m_identifier;
    QDBusServiceWatcher m_watcher;
    bool m_hasBus = false;
    bool m_isRunning = false;
};

} // namespace ExtensionsTool
