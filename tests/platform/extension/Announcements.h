#pragma once

#include "CompanionProcess.h"

#include <QDBusConnection>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <utility>

/// Notes which properties the companion announces to be changed.
class Announcements : public QObject {
    Q_OBJECT

public:
    explicit Announcements(QDBusConnection connection)
    {
        connection.connect({}, companionPath(), QStringLiteral("org.freedesktop.DBus.Properties"),
                           QStringLiteral("PropertiesChanged"),
                           {QStringLiteral("com.orvikstudio.FinderSyncExtension")}, {}, this,
                           SLOT(note(QString, QVariantMap, QStringList)));
    }

    Q_SLOT void note(const QString&, const QVariantMap& changed, const QStringList&)
    {
        m_names.append(changed.keys());
    }

    [[nodiscard]] bool isEmpty() const { return m_names.isEmpty(); }
    /// Those since the last call.
    [[nodiscard]] QStringList take() { return std::exchange(m_names, {}); }

private:
    QStringList m_names;
};
