#include "extension/actions/transfer/window/DoneNotice.h"

#include "settings/Deployment.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QTimer>
#include <QVariantMap>

#include <utility>

namespace MenuExtension::Transfers {

namespace {

const QString service = QStringLiteral("org.freedesktop.Notifications");
const QString path = QStringLiteral("/org/freedesktop/Notifications");
const QString undoAction = QStringLiteral("undo");
const QString showAction = QStringLiteral("show");
constexpr int desktopsOwnTime = -1;
constexpr int forEver = 0;
/// Why a notification is closed, by its protocol.
constexpr uint hadItsTime = 1;
constexpr int patience = 5000;
constexpr int untilNoButton = 300;

QDBusMessage call(const QString& method)
{
    return QDBusMessage::createMethodCall(service, path, service, method);
}

} // namespace

DoneNotice::DoneNotice(std::optional<QDBusConnection> bus) : m_bus(std::move(bus))
{
    if (!m_bus)
        return;
    m_bus->connect(service, path, service, QStringLiteral("ActionInvoked"), this, SLOT(takeAction(uint, QString)));
    m_bus->connect(service, path, service, QStringLiteral("NotificationClosed"), this, SLOT(takeEnd(uint, uint)));
}

DoneNotice::~DoneNotice()
{
    if (m_bus && m_isOpen) {
        QDBusMessage close = call(QStringLiteral("CloseNotification"));
        close << m_number;
        m_bus->send(close);
    }
}

void DoneNotice::show(const QString& title, const QString& words, const Offer& offer)
{
    if (!m_bus) {
        QTimer::singleShot(0, this, &DoneNotice::notShown);
        return;
    }
    QStringList actions;
    if (offer.undo)
        actions << undoAction << tr("Undo");
    if (offer.show)
        actions << showAction << tr("Show");
    // What was done can be undone after it was shown too: the notification stays until it is closed.
    const QString application =
        QString::fromUtf8(Deployment::applicationIdentifier.data(), Deployment::applicationIdentifier.size());
    QDBusMessage notify = call(QStringLiteral("Notify"));
    notify << QStringLiteral("Orvik Menu") << m_number << application << title << words.toHtmlEscaped() << actions
           << QVariantMap{{QStringLiteral("desktop-entry"), application}, {QStringLiteral("resident"), true}}
           << (offer.stays ? forEver : desktopsOwnTime);
    m_isAwaited = true;
    auto* watcher = new QDBusPendingCallWatcher(m_bus->asyncCall(notify, patience), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* ended) {
        const QDBusPendingReply<uint> reply = *ended;
        ended->deleteLater();
        if (reply.isError())
            emit notShown();
        else
            m_number = reply.value();
        m_isOpen = reply.isValid();
        m_isAwaited = false;
        if (m_isOpen)
            emit shown();
        if (m_isOpen && m_gone.contains(m_number))
            takeEnd(m_number, 0);
        m_gone.clear();
    });
}

void DoneNotice::takeAction(uint number, const QString& action)
{
    if (number != m_number)
        return;
    if (action == undoAction)
        emit undoAsked();
    else if (action == showAction)
        emit showAsked();
}

void DoneNotice::takeEnd(uint number, uint reason)
{
    if (reason == hadItsTime)
        return;
    if (m_isAwaited)
        m_gone.insert(number);
    if (m_isAwaited || number != m_number)
        return;
    // Some desktops tell it before they tell which button it was.
    m_isOpen = false;
    QTimer::singleShot(untilNoButton, this, &DoneNotice::closed);
}

} // namespace MenuExtension::Transfers
