#pragma once

#include "extension/menu/Menu.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>

class QDBusPendingCallWatcher;

namespace DolphinBridge {

/// A copy of what the companion says on the bus, kept by calls that nobody waits for. Main thread.
class CompanionCopy : public QObject {
    Q_OBJECT

public:
    explicit CompanionCopy(QDBusConnection bus, QObject* parent = nullptr);

    /// The one of this process, as long as its application lives.
    static CompanionCopy& shared();

    /// Nothing where no companion runs, or none has said anything yet.
    [[nodiscard]] std::shared_ptr<const MenuExtension::MenuSettings> settings() const;
    /// Whether a first answer may come: `settled` follows.
    [[nodiscard]] bool isWaiting() const;
    /// For a call to the companion.
    [[nodiscard]] QDBusConnection bus() const { return m_bus; }

Q_SIGNALS:
    /// The wait for the first answer is over.
    void settled();

private:
    // The toolkit finds these by their names.
    Q_SLOT void ownerChanged(const QString& service, const QString& before, const QString& now);
    Q_SLOT void propertiesChanged(const QDBusMessage& signal);

    void askForOwner();
    void take(const QString& owner);
    void ask();
    void answered(QDBusPendingCallWatcher* watcher);

    QDBusConnection m_bus;
    /// The companion's name of its own; empty while there is none.
    QString m_owner;
    std::shared_ptr<const MenuExtension::MenuSettings> m_settings;
    bool m_ownerIsKnown = false;
    /// The answer that counts, while it is awaited.
    QDBusPendingCallWatcher* m_awaited = nullptr;
    /// Whether something has changed since the companion was asked last.
    bool m_isOutdated = false;
    /// Runs while the host is left in peace after an answer.
    QTimer m_pause;
};

} // namespace DolphinBridge
