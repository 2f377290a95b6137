#include "PanelStandIn.h"

#include "settings/Deployment.h"

#include <QDBusMessage>
#include <QVariantList>

#include <gtest/gtest.h>

namespace {

const QString path = QStringLiteral("/com/orvikstudio/FinderSync");
const QString interface = QStringLiteral("com.orvikstudio.FinderSync");
const QString panelName =
    QString::fromUtf8(Deployment::applicationIdentifier.data(), Deployment::applicationIdentifier.size());

} // namespace

PanelStandIn::PanelStandIn()
{
    EXPECT_TRUE(m_bus.connection());
}

void PanelStandIn::takeName()
{
    EXPECT_TRUE(m_bus.connection()->registerService(panelName));
}

void PanelStandIn::releaseName()
{
    EXPECT_TRUE(m_bus.connection()->unregisterService(panelName));
}

void PanelStandIn::publish(const QStringList& directories)
{
    m_directories = directories;
    EXPECT_TRUE(m_bus.connection()->registerObject(path, this, QDBusConnection::ExportAllProperties));
}

void PanelStandIn::signal(const QStringList& directories, const QString& destination)
{
    QDBusMessage message =
        destination.isEmpty()
            ? QDBusMessage::createSignal(path, interface, QStringLiteral("DirectoryURLs"))
            : QDBusMessage::createTargetedSignal(destination, path, interface, QStringLiteral("DirectoryURLs"));
    message << directories;
    EXPECT_TRUE(m_bus.connection()->send(message));
}

void PanelStandIn::pretendOwnership(const QString& destination)
{
    auto message = QDBusMessage::createTargetedSignal(destination, QStringLiteral("/org/freedesktop/DBus"),
                                                      QStringLiteral("org.freedesktop.DBus"),
                                                      QStringLiteral("NameOwnerChanged"));
    message << panelName << QString() << m_bus.connection()->baseService();
    EXPECT_TRUE(m_bus.connection()->send(message));
}
