#include "platform/linux/program/AppearanceSettings.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

namespace LinuxDesktop {

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");

const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString colorScheme = QStringLiteral("color-scheme");
const QString contrast = QStringLiteral("contrast");
const QString reducedMotion = QStringLiteral("reduced-motion");
/// Of the desktop that had a setting for motion first.
const QString gnomeInterface = QStringLiteral("org.gnome.desktop.interface");
const QString enableAnimations = QStringLiteral("enable-animations");

/// The portal's value for dark colours, higher contrast and reduced motion; 0 is no preference.
constexpr uint preferred = 1;

} // namespace

AppearanceSettings::AppearanceSettings(SessionBus& bus, std::function<void(const AppearanceWishes&)> changed)
    : m_changed(std::move(changed))
{
    // Connecting to a signal that carries one needs it known by name.
    qRegisterMetaType<QDBusVariant>();
    const auto connection = bus.connection();
    if (!connection)
        return;
    for (const QString& key : {colorScheme, contrast, reducedMotion})
        ask(*connection, appearance, key);
    ask(*connection, gnomeInterface, enableAnimations);
}

void AppearanceSettings::ask(QDBusConnection connection, const QString& group, const QString& key)
{
    connection.connect(service, path, interface, QStringLiteral("SettingChanged"), {group, key},
                       QStringLiteral("ssv"), this, SLOT(settingChanged(QString, QString, QDBusVariant)));
    QDBusMessage read = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Read"));
    read << group << key;
    auto* answer = new QDBusPendingCallWatcher(connection.asyncCall(read), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, key](QDBusPendingCallWatcher* watcher) {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (reply.isValid())
            report(key, reply.value().variant());
        watcher->deleteLater();
    });
}

void AppearanceSettings::settingChanged(const QString&, const QString& key, const QDBusVariant& value)
{
    report(key, value.variant());
}

void AppearanceSettings::report(const QString& key, const QVariant& value)
{
    // The portal's Read wraps its answer once more than its signal does.
    const QVariant inner = value.canConvert<QDBusVariant>() ? qvariant_cast<QDBusVariant>(value).variant() : value;
    AppearanceWishes wishes = m_wishes;
    if (key == colorScheme)
        wishes.dark = inner.toUInt() == preferred;
    else if (key == contrast)
        wishes.highContrast = inner.toUInt() == preferred;
    else if (key == reducedMotion)
        wishes.reducedMotion = inner.toUInt() == preferred;
    else
        wishes.noAnimations = !inner.toBool();
    if (std::exchange(m_wishes, wishes) != wishes)
        m_changed(wishes);
}

} // namespace LinuxDesktop
