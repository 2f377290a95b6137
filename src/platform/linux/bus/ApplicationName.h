#pragma once

#include "platform/linux/bus/SessionBus.h"

#include <QObject>
#include <QString>
#include <QVariantMap>

#include <functional>
#include <memory>
#include <string_view>

namespace LinuxDesktop {

/// The application's identifier as a name on the session bus: one process owns it, and others activate that one
/// through the interface org.freedesktop.Application. Main thread.
class ApplicationName {
public:
    enum class Claim { Owned, OwnedByAnother, NoBus };

    ApplicationName(SessionBus& bus, std::string_view identifier);
    ~ApplicationName() { release(); }
    ApplicationName(const ApplicationName&) = delete;
    ApplicationName& operator=(const ApplicationName&) = delete;

    /// Whether another process owns the name now. Blocks for one bus call.
    [[nodiscard]] bool ownedByAnother();
    /// Activates the owner and waits for its answer, 5 seconds at most. False when nobody answered.
    [[nodiscard]] bool activateOther(const QVariantMap& platformData);

    /// Makes this process the owner, until release(), unless another is. Blocks for one bus call.
    [[nodiscard]] Claim claim();
    /// Gives the name back, if it is this process's.
    void release();
    /// What to do when another process activates this one; the window that is activated then may come to the front.
    /// Called from the event loop, also while a modal panel runs; the other process does not wait for it.
    void whenActivated(std::function<void()> activated);

private:
    SessionBus& m_bus;
    QString m_identifier;
    QString m_path;
    std::function<void()> m_activated;
    /// What others call; there while the name is owned.
    std::unique_ptr<QObject> m_exported;
};

} // namespace LinuxDesktop
