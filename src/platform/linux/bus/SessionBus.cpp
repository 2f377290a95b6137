#include "platform/linux/bus/SessionBus.h"

#include "platform/linux/system/OwnEnvironment.h"

#include <QByteArrayList>

#include <cstdio>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace LinuxDesktop {

namespace {

/// Where the bus listens, without the ways of starting one; empty when there is none.
QString busAddress()
{
    const QByteArray given = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    if (!given.isEmpty()) {
        QByteArrayList running;
        for (const QByteArray& address : given.split(';'))
            if (!address.isEmpty() && !address.startsWith("autolaunch:"))
                running.append(address);
        return QString::fromUtf8(running.join(';'));
    }

    const QByteArray folder = qgetenv("XDG_RUNTIME_DIR");
    if (!folder.startsWith('/'))
        return {};
    const QByteArray socket = folder + "/bus";
    struct stat status = {};
    if (::stat(socket.constData(), &status) != 0 || !S_ISSOCK(status.st_mode) || status.st_uid != ::geteuid())
        return {};
    return QStringLiteral("unix:path=") + QString::fromLatin1(socket.toPercentEncoding("/", "~"));
}

} // namespace

SessionBus::SessionBus(std::string complaint) : m_complaint(std::move(complaint))
{
    const QString address = busAddress();
    if (address.isEmpty())
        return;
    const QString name = QStringLiteral("session bus %1").arg(reinterpret_cast<quintptr>(this));
    const QDBusConnection connection = QDBusConnection::connectToBus(address, name);
    if (connection.isConnected())
        m_connection = connection;
    else
        QDBusConnection::disconnectFromBus(name);
}

void SessionBus::keepToolkitFromStartingOne()
{
    // Nobody listens there.
    if (busAddress().isEmpty())
        OwnEnvironment::set("DBUS_SESSION_BUS_ADDRESS", "unix:path=/dev/null");
}

SessionBus::~SessionBus()
{
    if (m_connection)
        QDBusConnection::disconnectFromBus(m_connection->name());
}

std::optional<QDBusConnection> SessionBus::connection()
{
    if (!m_connection && !m_complaint.empty()) {
        std::fprintf(stderr, "%s\n", m_complaint.c_str());
        m_complaint.clear();
    }
    return m_connection;
}

} // namespace LinuxDesktop
