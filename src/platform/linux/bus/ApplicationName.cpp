#include "platform/linux/bus/ApplicationName.h"

#include "platform/linux/bus/ApplicationInterface.h"
#include "platform/linux/bus/interfaces/ObjectPath.h"

#include <QDBusMessage>

#include <chrono>
#include <utility>

namespace LinuxDesktop {

namespace {

using namespace std::chrono_literals;

/// The other instance may be busy, for example reading from a slow disk.
constexpr std::chrono::milliseconds activationTimeout = 5s;

// Flag and answers of the bus's RequestName.
constexpr uint doNotQueue = 4;
constexpr uint primaryOwner = 1;
constexpr uint alreadyOwner = 4;

QDBusMessage askBus(const QDBusConnection& connection, const QString& method, const QVariantList& arguments)
{
    auto call = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
                                               QStringLiteral("/org/freedesktop/DBus"),
                                               QStringLiteral("org.freedesktop.DBus"), method);
    call.setArguments(arguments);
    return connection.call(call);
}

bool isReply(const QDBusMessage& message)
{
    return message.type() == QDBusMessage::ReplyMessage;
}

} // namespace

ApplicationName::ApplicationName(SessionBus& bus, std::string_view identifier)
    : m_bus(bus), m_identifier(QString::fromUtf8(identifier)),
      m_path(QString::fromStdString(BusInterface::objectPath(identifier)))
{}

void ApplicationName::release()
{
    if (!m_exported)
        return;
    // The name goes first, so that whoever sees it can activate its owner.
    if (const auto connection = m_bus.connection())
        askBus(*connection, QStringLiteral("ReleaseName"), {m_identifier});
    m_exported.reset();
}

bool ApplicationName::ownedByAnother()
{
    const auto connection = m_bus.connection();
    if (!connection)
        return false;
    const QDBusMessage owner = askBus(*connection, QStringLiteral("GetNameOwner"), {m_identifier});
    return isReply(owner) && owner.arguments().value(0).toString() != connection->baseService();
}

bool ApplicationName::activateOther(const QVariantMap& platformData)
{
    const auto connection = m_bus.connection();
    if (!connection)
        return false;
    auto call = QDBusMessage::createMethodCall(m_identifier, m_path, QStringLiteral("org.freedesktop.Application"),
                                               QStringLiteral("Activate"));
    call << platformData;
    // An owner that has just gone is not started anew by the bus: this process is there to take its place.
    call.setAutoStartService(false);
    return isReply(connection->call(call, QDBus::Block, static_cast<int>(activationTimeout.count())));
}

ApplicationName::Claim ApplicationName::claim()
{
    auto connection = m_bus.connection();
    if (!connection)
        return Claim::NoBus;
    if (m_exported)
        return Claim::Owned;

    // The object comes before the name, so that whoever sees the name can activate its owner.
    auto exported = std::make_unique<QObject>();
    new ApplicationInterface(*exported, *connection, [this] {
        if (m_activated)
            m_activated();
    });
    connection->registerObject(m_path, exported.get(), QDBusConnection::ExportAdaptors);
    const QDBusMessage answer = askBus(*connection, QStringLiteral("RequestName"), {m_identifier, doNotQueue});
    if (!isReply(answer))
        return Claim::NoBus;
    const uint result = answer.arguments().value(0).toUInt();
    if (result != primaryOwner && result != alreadyOwner)
        return Claim::OwnedByAnother;
    m_exported = std::move(exported);
    return Claim::Owned;
}

void ApplicationName::whenActivated(std::function<void()> activated)
{
    m_activated = std::move(activated);
}

} // namespace LinuxDesktop
