#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

/// A desktop that shows notifications, and notes each: the number of the one that it replaces, title and words.
class NotificationsStandIn : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    explicit NotificationsStandIn(const QByteArray& busAddress)
        : m_connection(QDBusConnection::connectToBus(QString::fromUtf8(busAddress), QStringLiteral("desktop")))
    {
        m_connection.registerObject(QStringLiteral("/org/freedesktop/Notifications"), this,
                                    QDBusConnection::ExportAllSlots);
        m_connection.registerService(QStringLiteral("org.freedesktop.Notifications"));
    }
    ~NotificationsStandIn() override { QDBusConnection::disconnectFromBus(QStringLiteral("desktop")); }
    NotificationsStandIn(const NotificationsStandIn&) = delete;
    NotificationsStandIn& operator=(const NotificationsStandIn&) = delete;

    [[nodiscard]] const QStringList& shown() const { return m_shown; }

public slots:
    uint Notify(const QString&, uint replaces, const QString&, const QString& summary, const QString& body,
                const QStringList&, const QVariantMap&, int)
    {
        m_shown << QStringLiteral("%1 %2: %3").arg(replaces).arg(summary, body);
        return replaces != 0 ? replaces : static_cast<uint>(m_shown.size());
    }

private:
    QDBusConnection m_connection;
    QStringList m_shown;
};
