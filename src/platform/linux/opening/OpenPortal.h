#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>

#include <chrono>
#include <optional>

namespace LinuxDesktop {

/// The desktop's portal that opens addresses. One use each. Main thread.
class OpenPortal : public QObject {
    Q_OBJECT

public:
    explicit OpenPortal(QDBusConnection connection) : m_connection(std::move(connection)) {}

    /// Whether the address was opened; one that the user is still asked about after `patience` counts as opened.
    /// Nothing when there is no portal. Handles other events meanwhile, but not the user's input.
    [[nodiscard]] std::optional<bool> open(const QString& address, std::chrono::milliseconds patience);

signals:
    void answered();

private:
    Q_SLOT void receive(uint response, const QVariantMap& results);

    QDBusConnection m_connection;
    std::optional<uint> m_response;
};

} // namespace LinuxDesktop
