#pragma once

#include <QDBusMessage>
#include <QString>

/// The session-bus signal that carries a notification between programs.
namespace LinuxDesktop::NotificationSignal {

inline const QString path = QStringLiteral("/com/orvikstudio/DistributedNotificationCenter");
inline const QString interface = QStringLiteral("com.orvikstudio.DistributedNotificationCenter");
inline const QString member = QStringLiteral("Posted");
/// Two strings: the notification's name and its sender object.
inline const QString signature = QStringLiteral("ss");

/// The signal that posts the notification `name` on behalf of `object`.
[[nodiscard]] inline QDBusMessage posting(const QString& name, const QString& object)
{
    return QDBusMessage::createSignal(path, interface, member) << name << object;
}

} // namespace LinuxDesktop::NotificationSignal
