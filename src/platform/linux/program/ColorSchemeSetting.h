#pragma once

#include "platform/linux/bus/SessionBus.h"

#include <QDBusVariant>
#include <QObject>
#include <QString>

#include <functional>

namespace LinuxDesktop {

/// The desktop's wish for dark or light colours, from its settings portal. Main thread.
class ColorSchemeSetting : public QObject {
    Q_OBJECT

public:
    /// Asks once and calls `changed` with whether dark is wished: when the answer comes and at every change. A
    /// desktop without a portal never answers. `bus` must outlive the setting.
    ColorSchemeSetting(SessionBus& bus, std::function<void(bool dark)> changed);

private slots:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void ask(SessionBus& bus);
    void report(const QVariant& value);

    std::function<void(bool)> m_changed;
};

} // namespace LinuxDesktop
