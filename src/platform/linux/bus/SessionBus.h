#pragma once

#include <QDBusConnection>

#include <optional>
#include <string>

namespace LinuxDesktop {

/// The process's connection to the user's session bus. Make one, after the QCoreApplication and before everything
/// that uses it. A bus that does not run is not started. Main thread.
class SessionBus {
public:
    /// `complaint` is the line that standard error gets the first time the connection is asked for in vain.
    explicit SessionBus(std::string complaint);

    /// Keeps the toolkit, which looks for a bus of its own accord, from starting one where none runs: it finds an
    /// address in the environment, which what this process starts does not. Call before the QCoreApplication is made.
    static void keepToolkitFromStartingOne();

    ~SessionBus();
    SessionBus(const SessionBus&) = delete;
    SessionBus& operator=(const SessionBus&) = delete;

    /// The connection, which may be used from any thread; nothing without a bus. When the bus dies later, calls on
    /// the connection fail at once.
    [[nodiscard]] std::optional<QDBusConnection> connection();

private:
    std::string m_complaint;
    std::optional<QDBusConnection> m_connection;
};

} // namespace LinuxDesktop
