#pragma once

#include <QByteArray>
#include <QProcess>
#include <QTemporaryDir>

/// A session bus that this process starts and that knows no services; the environment's session bus while it lives.
/// It carries messages as large as an ordinary one does.
class PrivateBus {
public:
    PrivateBus();
    ~PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    /// Ends the bus as a crash would.
    void kill();
    [[nodiscard]] const QByteArray& address() const { return m_address; }
    /// The socket that it listens on.
    [[nodiscard]] QByteArray socketPath() const;

private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
    QByteArray m_address;
};
