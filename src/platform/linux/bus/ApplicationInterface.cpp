#include "platform/linux/bus/ApplicationInterface.h"

#include <QDBusError>

#include <utility>

namespace LinuxDesktop {

ApplicationInterface::ApplicationInterface(QObject& exported, QDBusConnection connection,
                                           std::function<void(QString)> activated)
    : QDBusAbstractAdaptor(&exported), m_connection(std::move(connection)), m_activated(std::move(activated))
{}

void ApplicationInterface::Activate(const QVariantMap& platformData)
{
    QString token = platformData.value(QStringLiteral("activation-token")).toString();
    if (token.isEmpty())
        token = platformData.value(QStringLiteral("desktop-startup-id")).toString();
    QMetaObject::invokeMethod(
        this, [this, token] { m_activated(token); }, Qt::QueuedConnection);
}

void ApplicationInterface::Open(const QStringList&, const QVariantMap& platformData)
{
    Activate(platformData);
}

void ApplicationInterface::ActivateAction(const QString& name, const QVariantList&, const QVariantMap&,
                                          const QDBusMessage& message)
{
    message.setDelayedReply(true);
    m_connection.send(
        message.createErrorReply(QDBusError::InvalidArgs, QStringLiteral("there is no action \"%1\"").arg(name)));
}

} // namespace LinuxDesktop
