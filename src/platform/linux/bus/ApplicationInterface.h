#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

#include <functional>

namespace LinuxDesktop {

/// org.freedesktop.Application of a program that opens no files and has no named actions: whatever it is asked to
/// open, it comes to the front.
class ApplicationInterface final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    /// Owned by `exported`, which is registered on `connection`. `activated` is called from a later turn of the event
    /// loop, after the caller has been answered.
    ApplicationInterface(QObject& exported, QDBusConnection connection, std::function<void()> activated);

    // The names and arguments are the interface's.
    Q_SLOT void Activate(const QVariantMap& platformData);
    Q_SLOT void Open(const QStringList& uris, const QVariantMap& platformData);
    Q_SLOT void ActivateAction(const QString& name, const QVariantList& parameter, const QVariantMap& platformData,
                               const QDBusMessage& message);

private:
    QDBusConnection m_connection;
    std::function<void()> m_activated;
};

} // namespace LinuxDesktop
