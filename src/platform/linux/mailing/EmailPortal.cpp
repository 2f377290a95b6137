#include "platform/linux/mailing/EmailPortal.h"

#include <QDBusError>
#include <QDBusMetaType>
#include <QDBusUnixFileDescriptor>
#include <QVariantMap>

#include <chrono>

namespace LinuxDesktop::EmailPortal {

namespace {

using namespace std::chrono_literals;

/// The panel waits for it. What has not answered by then is there, and slow.
constexpr std::chrono::milliseconds startPatience = 500ms;
/// Half of the time that the process has after a hand-over, so that there is some left for another way.
constexpr std::chrono::milliseconds composePatience = 10s;

QString interface()
{
    return QStringLiteral("org.freedesktop.portal.Email");
}

} // namespace

bool exists(const QDBusConnection& connection)
{
    QDBusMessage call = portalCall(QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    call << interface() << QStringLiteral("version");
    const QDBusMessage reply = connection.call(call, QDBus::Block, static_cast<int>(startPatience.count()));
    return reply.type() == QDBusMessage::ReplyMessage || QDBusError(reply).type() == QDBusError::NoReply;
}

std::unique_ptr<PortalRequest> compose(const QDBusConnection& connection, const std::vector<FileDescriptor>& files)
{
    QList<QDBusUnixFileDescriptor> attachments;
    for (const auto& file : files)
        attachments.append(QDBusUnixFileDescriptor(file.get()));
    qDBusRegisterMetaType<QList<QDBusUnixFileDescriptor>>();
    const QString noParentWindow = QStringLiteral("");
    return std::make_unique<PortalRequest>(
        connection, interface(), QStringLiteral("ComposeEmail"), QVariantList{noParentWindow},
        QVariantMap{{QStringLiteral("attachment_fds"), QVariant::fromValue(attachments)}}, composePatience);
}

} // namespace LinuxDesktop::EmailPortal
