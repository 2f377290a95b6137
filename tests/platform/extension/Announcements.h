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
    explicit Announcements(QDBusConnection connection,
                           const QString& interface = QStringLiteral("com.orvikstudio.FinderSyncExtension"))
    {
        connection.connect({}, companionPath(), QStringLiteral("org.freedesktop.DBus.Properties"),
                           QStringLiteral("PropertiesChanged"), {interface}, {}, this,
                           SLOT(note(QString, QVariantMap, QStringList)));
    }

    Q_SLOT void note(const QString&, const QVariantMap& changed, const QStringList& invalidated)
    {
        m_names.append(changed.keys());
        m_withoutValues.append(invalidated);
    }

    [[nodiscard]] bool isEmpty() const { return m_names.isEmpty() && m_withoutValues.isEmpty(); }
    /// Those since the last call.
    [[nodiscard]] QStringList take() { return std::exchange(m_names, {}); }
    [[nodiscard]] QStringList takeThoseWithoutValues() { return std::exchange(m_withoutValues, {}); }

private:
    QStringList m_names;
    QStringList m_withoutValues;
};
