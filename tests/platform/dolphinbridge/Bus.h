#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

/// A session bus that this process starts.
class Bus {
public:
    Bus();
    ~Bus();
    Bus(const Bus&) = delete;
    Bus& operator=(const Bus&) = delete;

    [[nodiscard]] const QString& address() const { return m_address; }
    /// Ends it as a crash would.
    void kill();
    /// Lets it take nothing, and go on.
    void stop() const;
    void goOn() const;

private:
    /// No test leaves a bus behind, not even one that crashes.
    class Daemon : public QProcess {
        void setupChildProcess() override;
    };

    QTemporaryDir m_folder;
    Daemon m_daemon;
    QString m_address;
};
