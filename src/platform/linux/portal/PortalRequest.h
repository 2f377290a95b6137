#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QString>
#include <QVariantMap>

#include <chrono>

namespace LinuxDesktop {

/// A call of a method on the object that all portals share.
[[nodiscard]] QDBusMessage portalCall(const QString& interface, const QString& method);

/// Something that the desktop's portal is asked to do. The portal takes the request, asks the user where it has to,
/// and answers with a signal. One use each. Main thread.
class PortalRequest : public QObject {
    Q_OBJECT

public:
    enum class Answer {
        Done,
        /// The user said no.
        Cancelled,
        /// The portal is not there, has gone, refuses, is silent, or could not do it.
        Failed
    };

    /// Asks for `method` of a portal interface that takes these arguments, then `options`. `patience` is how long
    /// the portal may take until it has taken the request, which may include its start; its answer may take the
    /// user's time.
    PortalRequest(QDBusConnection connection, const QString& interface, const QString& method,
                  const QVariantList& arguments, QVariantMap options, std::chrono::milliseconds patience);

    /// Why the answer is Failed, for the curious.
    [[nodiscard]] const QString& failure() const { return m_failure; }

signals:
    /// The portal has taken the request; not sent where it answers before it says so.
    void taken();
    /// Sent once.
    void answered(LinuxDesktop::PortalRequest::Answer answer);

private:
    void listenAt(const QString& handle);
    void receiveReply(const QDBusMessage& reply);
    void withdraw();
    void fail(const QString& why);
    void finish(Answer answer);
    Q_SLOT void receiveResponse(uint response, const QVariantMap& results);

    QDBusConnection m_connection;
    /// Where the portal answers.
    QString m_handle;
    QDBusServiceWatcher m_portal;
    bool m_finished = false;
    QString m_failure;
};

} // namespace LinuxDesktop
