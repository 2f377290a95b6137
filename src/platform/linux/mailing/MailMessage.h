#pragma once

#include "platform/linux/system/Command.h"

#include <QDBusConnection>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QThread>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace LinuxDesktop {

class Attachments;
class PortalRequest;
class PreparingWindow;

/// One new message in the user's mail program, with items attached: by the desktop's e-mail portal, or by xdg-email
/// where that fails. What takes time is done in the background, and what goes wrong is told in a window. Main thread.
class MailMessage : public QObject {
    Q_OBJECT

public:
    using Clock = std::chrono::steady_clock;

    /// Begins at once. `items` are absolute paths, a folder's without a slash at the end; `connection` is nothing
    /// where there is no bus.
    MailMessage(std::optional<QDBusConnection> connection, std::vector<std::string> items);
    /// Ends what is under way. A mail program that was started stays.
    ~MailMessage() override;

    /// When temporary files were handed over; nothing when there are none.
    [[nodiscard]] std::optional<Clock::time_point> temporaryHandedOver() const { return m_temporaryHandedOver; }

signals:
    /// The items have been handed over once, or will not be.
    void settled();

private:
    /// Runs `work` in a thread, then `next` in this one.
    void inBackground(std::function<void(Attachments&)> work, std::function<void()> next);
    void showThatItWorks();
    void handOver();
    void throughPortal();
    void throughCommand(const QString& portalFailure);
    void startCommand(const std::string& command);
    void lookAfter(Command::Process started, const std::string& command);
    void handedOver();

    std::optional<QDBusConnection> m_connection;
    /// The thread has a share, since one that hangs in a dead file system is left behind in the end.
    std::shared_ptr<Attachments> m_attachments;
    std::unique_ptr<QThread> m_thread;
    /// The program's end may take it away first.
    QPointer<PreparingWindow> m_preparing;
    std::unique_ptr<PortalRequest> m_request;
    std::optional<Clock::time_point> m_temporaryHandedOver;
};

} // namespace LinuxDesktop
