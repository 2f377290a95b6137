#include "platform/linux/bus/ApplicationInterface.h"

#include "platform/linux/bus/ActivationToken.h"

#include <QDBusError>

#include <utility>

namespace LinuxDesktop {

ApplicationInterface::ApplicationInterface(QObject& exported, QDBusConnection connection,
                                           std::function<void()> activated)
    : QDBusAbstractAdaptor(&exported), m_connection(std::move(connection)), m_activated(std::move(activated))
{}

void ApplicationInterface::Activate(const QVariantMap& platformData)
{
    QMetaObject::invokeMethod(
        this, [this, token = ActivationToken::in(platformData)] { ActivationToken::use(token, m_activated); },
        Qt::QueuedConnection);
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
