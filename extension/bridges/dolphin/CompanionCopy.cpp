#include "extension/bridges/dolphin/CompanionCopy.h"

#include "extension/bridges/dolphin/Guarded.h"
#include "extension/bridges/dolphin/Properties.h"
#include "platform/linux/bus/interfaces/FinderSyncMenu.h"
#include "platform/linux/bus/interfaces/ObjectPath.h"
#include "settings/Deployment.h"

#include <QCoreApplication>
#include <QDBusError>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QElapsedTimer>
#include <QPointer>

#include <algorithm>
#include <string>
#include <utility>

namespace DolphinBridge {

namespace {

namespace Companion = BusInterface::FinderSyncMenu;

const auto daemonName = QStringLiteral("org.freedesktop.DBus");
const auto daemonPath = QStringLiteral("/org/freedesktop/DBus");
const auto propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

QString companionName()
{
    return QString::fromUtf8(Deployment::extensionIdentifier.data(), int{Deployment::extensionIdentifier.size()});
}

QString companionPath()
{
    return QString::fromStdString(BusInterface::objectPath(Deployment::extensionIdentifier));
}

/// How long the host is left in peace after an answer that took `milliseconds` to read: a companion that has a
/// thousand changes a second, or very large ones, gets a small part of the host's time.
int pauseAfter(qint64 milliseconds)
{
    constexpr qint64 least = 5;
    constexpr qint64 part = 20;
    constexpr qint64 most = 2'000;
    return static_cast<int>(std::min(least + part * milliseconds, most));
}

} // namespace

CompanionCopy::CompanionCopy(QDBusConnection bus, QObject* parent) : QObject(parent), m_bus(std::move(bus))
{
    m_pause.setSingleShot(true);
    m_pause.setTimerType(Qt::PreciseTimer);
    connect(&m_pause, &QTimer::timeout, this, [this] {
        guarded([this] {
            if (std::exchange(m_isOutdated, false))
                ask();
        });
    });
    // Signals of a sender that is named by a well-known name would make the toolkit wait for the bus to say who that
    // is.
    m_bus.connect(daemonName, daemonPath, daemonName, QStringLiteral("NameOwnerChanged"), {companionName()},
                  QStringLiteral("sss"), this, SLOT(ownerChanged(QString, QString, QString)));
    m_bus.connect(QString(), companionPath(), propertiesInterface, QStringLiteral("PropertiesChanged"),
                  {QLatin1String(Companion::interface)}, QString(), this, SLOT(propertiesChanged(QDBusMessage)));
    askForOwner();
}

CompanionCopy& CompanionCopy::shared()
{
    static QPointer<CompanionCopy> copy;
    if (!copy)
        copy = new CompanionCopy(QDBusConnection::sessionBus(), QCoreApplication::instance());
    return *copy;
}

std::shared_ptr<const MenuExtension::MenuSettings> CompanionCopy::settings() const
{
    return m_bus.isConnected() ? m_settings : nullptr;
}

bool CompanionCopy::isWaiting() const
{
    return m_bus.isConnected() && !m_settings && (!m_ownerIsKnown || m_awaited != nullptr);
}

void CompanionCopy::askForOwner()
{
    QDBusMessage question =
        QDBusMessage::createMethodCall(daemonName, daemonPath, daemonName, QStringLiteral("GetNameOwner"));
    question << companionName();
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* answer) {
        guarded([&] {
            answer->deleteLater();
            const QDBusPendingReply<QString> owner = *answer;
            // Whoever came meanwhile is newer than this answer.
            if (!m_ownerIsKnown)
                take(owner.isError() ? QString() : owner.value());
        });
    });
}

void CompanionCopy::ownerChanged(const QString& service, const QString& before, const QString& now)
{
    Q_UNUSED(before);
    guarded([&] {
        if (service == companionName())
            take(now);
    });
}

void CompanionCopy::take(const QString& owner)
{
    m_ownerIsKnown = true;
    m_owner = owner;
    m_settings.reset();
    m_isOutdated = false;
    m_pause.stop();
    // What a former owner still says counts for nothing.
    delete std::exchange(m_awaited, nullptr);
    if (m_owner.isEmpty())
        Q_EMIT settled();
    else
        ask();
}

void CompanionCopy::propertiesChanged(const QDBusMessage& signal)
{
    // One that comes before the owner is known is older than the answer that will be asked for.
    guarded([&] {
        if (!m_owner.isEmpty() && signal.service() == m_owner)
            ask();
    });
}

void CompanionCopy::ask()
{
    if (m_awaited != nullptr || m_pause.isActive()) {
        m_isOutdated = true;
        return;
    }
    QDBusMessage question =
        QDBusMessage::createMethodCall(m_owner, companionPath(), propertiesInterface, QStringLiteral("GetAll"));
    question << QString::fromLatin1(Companion::interface);
    m_awaited = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(m_awaited, &QDBusPendingCallWatcher::finished, this, &CompanionCopy::answered);
}

void CompanionCopy::answered(QDBusPendingCallWatcher* watcher)
{
    watcher->deleteLater();
    m_awaited = nullptr;
    QElapsedTimer reading;
    reading.start();
    if (watcher->isError() && watcher->error().type() == QDBusError::NoReply) {
        // One that is stopped may go on; until then, what it said last is the best that is known.
        m_isOutdated = true;
    } else {
        m_settings.reset();
        guarded([&] {
            if (auto settings = readProperties(watcher->reply()))
                m_settings = std::make_shared<const MenuExtension::MenuSettings>(std::move(*settings));
        });
    }
    m_pause.start(pauseAfter(reading.elapsed()));
    Q_EMIT settled();
}

} // namespace DolphinBridge
