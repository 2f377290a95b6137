#include "platform/linux/portal/PortalRequest.h"

#include <QDBusError>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>

#include <utility>

namespace LinuxDesktop {

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString desktopPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString requestInterface = QStringLiteral("org.freedesktop.portal.Request");

/// The numbers of a response. Any other is a failure too.
constexpr uint success = 0;
constexpr uint userCancelled = 1;

QString uniqueToken()
{
    static int made = 0;
    return QStringLiteral("orvik_menu_%1").arg(++made);
}

/// Where the portal answers: known beforehand, so that no answer comes before somebody listens.
QString handleFor(const QDBusConnection& connection, const QString& token)
{
    QString sender = connection.baseService().mid(1);
    sender.replace(u'.', u'_');
    return QStringLiteral("%1/request/%2/%3").arg(desktopPath, sender, token);
}

} // namespace

QDBusMessage portalCall(const QString& interface, const QString& method)
{
    return QDBusMessage::createMethodCall(service, desktopPath, interface, method);
}

PortalRequest::PortalRequest(QDBusConnection connection, const QString& interface, const QString& method,
                             const QVariantList& arguments, QVariantMap options, std::chrono::milliseconds patience)
    : m_connection(std::move(connection)),
      m_portal(service, m_connection, QDBusServiceWatcher::WatchForUnregistration)
{
    connect(&m_portal, &QDBusServiceWatcher::serviceUnregistered, this,
            [this] { fail(QStringLiteral("the portal has gone")); });
    const QString token = uniqueToken();
    listenAt(handleFor(m_connection, token));

    options.insert(QStringLiteral("handle_token"), token);
    QDBusMessage call = portalCall(interface, method);
    call.setArguments(arguments + QVariantList{options});
    auto* reply = new QDBusPendingCallWatcher(m_connection.asyncCall(call, static_cast<int>(patience.count())), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this,
            [this](const QDBusPendingCallWatcher* finished) { receiveReply(finished->reply()); });
}

void PortalRequest::listenAt(const QString& handle)
{
    m_handle = handle;
    m_connection.connect(service, handle, requestInterface, QStringLiteral("Response"), this,
                         SLOT(receiveResponse(uint, QVariantMap)));
}

void PortalRequest::receiveReply(const QDBusMessage& reply)
{
    if (m_finished)
        return;
    if (reply.type() != QDBusMessage::ReplyMessage) {
        if (QDBusError(reply).type() == QDBusError::NoReply)
            withdraw();
        fail(reply.errorMessage());
        return;
    }
    // Portals from before handles could be asked for choose their own.
    const QString handle = reply.arguments().value(0).value<QDBusObjectPath>().path();
    if (!handle.isEmpty() && handle != m_handle)
        listenAt(handle);
    emit taken();
}

void PortalRequest::withdraw()
{
    // A portal that was only slow would do it after all.
    m_connection.send(QDBusMessage::createMethodCall(service, m_handle, requestInterface, QStringLiteral("Close")));
}

void PortalRequest::fail(const QString& why)
{
    m_failure = why;
    finish(Answer::Failed);
}

void PortalRequest::finish(Answer answer)
{
    if (!std::exchange(m_finished, true))
        emit answered(answer);
}

void PortalRequest::receiveResponse(uint response, const QVariantMap&)
{
    if (response == success)
        finish(Answer::Done);
    else if (response == userCancelled)
        finish(Answer::Cancelled);
    else
        fail(QStringLiteral("the portal could not do it"));
}

} // namespace LinuxDesktop
