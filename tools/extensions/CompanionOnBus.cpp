#include "extensions/CompanionOnBus.h"

#include "platform/linux/bus/interfaces/FinderSyncExtension.h"
#include "platform/linux/bus/interfaces/ObjectPath.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

namespace ExtensionsTool {

CompanionOnBus::CompanionOnBus(LinuxDesktop::SessionBus& bus, QString identifier)
    : m_bus(bus), m_identifier(std::move(identifier))
{
    auto connection = m_bus.connection();
    if (!connection)
        return;
    m_hasBus = true;
    m_watcher.setConnection(*connection);
    m_watcher.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    m_watcher.addWatchedService(m_identifier);
    connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& owner) { setRunning(!owner.isEmpty()); });
    connection->connect({}, QStringLiteral("/org/freedesktop/DBus/Local"),
                        QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                        SLOT(loseBus()));
    m_isRunning = connection->interface()->isServiceRegistered(m_identifier);
}

void CompanionOnBus::quit()
{
    const auto connection = m_bus.connection();
    if (!connection)
        return;
    using namespace BusInterface;
    auto call =
        QDBusMessage::createMethodCall(m_identifier, QString::fromStdString(objectPath(m_identifier.toStdString())),
                                       FinderSyncExtension::interface, FinderSyncExtension::Quit::name);
    call.setAutoStartService(false);
    auto* answer = new QDBusPendingCallWatcher(connection->asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* watcher) {
        const QDBusPendingReply<> reply = *watcher;
        // One that ends while it is asked has done as it was told.
        if (reply.isError() && m_isRunning)
            emit refused(reply.error().message());
        watcher->deleteLater();
    });
}

void CompanionOnBus::loseBus()
{
    m_hasBus = false;
    m_isRunning = false;
    emit changed();
}

void CompanionOnBus::setRunning(bool running)
{
    m_isRunning = running;
    emit changed();
}

} // namespace ExtensionsTool
