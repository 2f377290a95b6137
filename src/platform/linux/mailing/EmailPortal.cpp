#include "platform/linux/mailing/EmailPortal.h"

#include <QDBusMetaType>
#include <QDBusUnixFileDescriptor>
#include <QVariantMap>

#include <chrono>

namespace LinuxDesktop::EmailPortal {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds startTimeout = 5s;

QString interface()
{
    return QStringLiteral("org.freedesktop.portal.Email");
}

QDBusMessage methodCall(const QString& itsInterface, const QString& method)
{
    return QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.portal.Desktop"),
                                          QStringLiteral("/org/freedesktop/portal/desktop"), itsInterface, method);
}

} // namespace

bool answers(const QDBusConnection& connection)
{
    auto call = methodCall(QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    call << interface() << QStringLiteral("version");
    return connection.call(call, QDBus::Block, static_cast<int>(startTimeout.count())).type() ==
           QDBusMessage::ReplyMessage;
}

QDBusMessage compose(const QDBusConnection& connection, const std::vector<FileDescriptor>& files)
{
    QList<QDBusUnixFileDescriptor> attachments;
    for (const auto& file : files)
        attachments.append(QDBusUnixFileDescriptor(file.get()));
    qDBusRegisterMetaType<QList<QDBusUnixFileDescriptor>>();
    const QVariantMap options{{QStringLiteral("attachment_fds"), QVariant::fromValue(attachments)}};

    const QString noParentWindow = QStringLiteral("");
    auto call = methodCall(interface(), QStringLiteral("ComposeEmail"));
    call << noParentWindow << options;
    return connection.call(call);
}

} // namespace LinuxDesktop::EmailPortal
