#pragma once

#include "platform/linux/bus/SessionBus.h"

#include <QDBusVariant>
#include <QObject>
#include <QString>

#include <functional>

namespace LinuxDesktop {

/// What a person wishes of every program's look.
struct AppearanceWishes {
    bool dark = false;
    bool highContrast = false;
    /// Two settings speak of motion, and either is enough.
    bool reducedMotion = false;
    bool noAnimations = false;

    friend bool operator==(const AppearanceWishes&, const AppearanceWishes&) = default;
};

/// The desktop's wishes for the look, from its settings portal. Main thread.
class AppearanceSettings : public QObject {
    Q_OBJECT

public:
    /// Asks once and calls `changed` whenever the wishes are others than before; at first there are none. A desktop
    /// without a portal never answers. `bus` must outlive the settings.
    AppearanceSettings(SessionBus& bus, std::function<void(const AppearanceWishes&)> changed);

private slots:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void ask(QDBusConnection connection, const QString& group, const QString& key);
    void report(const QString& key, const QVariant& value);

    std::function<void(const AppearanceWishes&)> m_changed;
    AppearanceWishes m_wishes;
};

} // namespace LinuxDesktop
