#include "platform/linux/program/ColorSchemeSetting.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace LinuxDesktop {

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString group = QStringLiteral("org.freedesktop.appearance");
const QString key = QStringLiteral("color-scheme");

/// The portal's values: 0 no preference, 1 dark, 2 light.
constexpr uint preferDark = 1;

} // namespace

ColorSchemeSetting::ColorSchemeSetting(SessionBus& bus, std::function<void(bool)> changed)
    : m_changed(std::move(changed))
{
    // Connecting to a signal that carries one needs it known by name.
    qRegisterMetaType<QDBusVariant>();
    if (bus.connection())
        ask(bus);
}

void ColorSchemeSetting::ask(SessionBus& bus)
{
    QDBusConnection connection = *bus.connection();
    connection.connect(service, path, interface, QStringLiteral("SettingChanged"), {group, key},
                       QStringLiteral("ssv"), this, SLOT(settingChanged(QString, QString, QDBusVariant)));
    QDBusMessage read = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Read"));
    read << group << key;
    auto* answer = new QDBusPendingCallWatcher(connection.asyncCall(read), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* watcher) {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (reply.isValid())
            report(reply.value().variant());
        watcher->deleteLater();
    });
}

void ColorSchemeSetting::settingChanged(const QString&, const QString&, const QDBusVariant& value)
{
    report(value.variant());
}

void ColorSchemeSetting::report(const QVariant& value)
{
    // The portal's Read wraps its answer once more than its signal does.
    const QVariant inner = value.canConvert<QDBusVariant>() ? qvariant_cast<QDBusVariant>(value).variant() : value;
    m_changed(inner.toUInt() == preferDark);
}

} // namespace LinuxDesktop
