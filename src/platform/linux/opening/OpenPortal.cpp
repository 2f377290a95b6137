#include "platform/linux/opening/OpenPortal.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QEventLoop>
#include <QTimer>

namespace LinuxDesktop {

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString token = QStringLiteral("orvik_open");

/// Where the portal answers: known beforehand, so that no answer comes before somebody listens.
QString requestPath(const QDBusConnection& connection)
{
    QString sender = connection.baseService().mid(1);
    sender.replace(u'.', u'_');
    return QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2").arg(sender, token);
}

} // namespace

std::optional<bool> OpenPortal::open(const QString& address, std::chrono::milliseconds patience)
{
    m_connection.connect(service, requestPath(m_connection), QStringLiteral("org.freedesktop.portal.Request"),
                         QStringLiteral("Response"), this, SLOT(receive(uint, QVariantMap)));
    auto call =
        QDBusMessage::createMethodCall(service, QStringLiteral("/org/freedesktop/portal/desktop"),
                                       QStringLiteral("org.freedesktop.portal.OpenURI"), QStringLiteral("OpenURI"));
    const QString noParentWindow = QStringLiteral("");
    call << noParentWindow << address << QVariantMap{{QStringLiteral("handle_token"), token}};
    QEventLoop loop;
    const QDBusPendingCallWatcher reply(m_connection.asyncCall(call));
    connect(&reply, &QDBusPendingCallWatcher::finished, &loop, [&] {
        if (reply.isError())
            loop.quit();
    });
    connect(this, &OpenPortal::answered, &loop, &QEventLoop::quit);
    QTimer::singleShot(patience, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    if (reply.isFinished() && reply.isError())
        return std::nullopt;
    return m_response.value_or(0) == 0;
}

void OpenPortal::receive(uint response, const QVariantMap&)
{
    m_response = response;
    emit answered();
}

} // namespace LinuxDesktop
