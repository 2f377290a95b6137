#include "platform/linux/bus/DistributedNotificationCenter.h"

#include "platform/linux/bus/interfaces/DistributedNotificationCenter.h"

#include <algorithm>
#include <utility>

namespace LinuxDesktop {

namespace Notifications = BusInterface::DistributedNotificationCenter;

DistributedNotificationCenter::DistributedNotificationCenter(SessionBus& bus, ModalState& modalState)
    : m_bus(bus), m_modalState(modalState), m_modalEnd(modalState.whenEnded([this] { scheduleDelivery(); }))
{}

void DistributedNotificationCenter::addObserver_name_object(std::function<void()> handler, std::string_view name,
                                                            std::string_view object)
{
    auto connection = m_bus.connection();
    if (!connection)
        return;

    Observer observer{std::move(handler), QString::fromUtf8(name), QString::fromUtf8(object)};
    const bool asked = std::any_of(m_observers.begin(), m_observers.end(), [&](const Observer& other) {
        return other.name == observer.name && other.object == observer.object;
    });
    if (!asked)
        connection->connect({}, Notifications::path, Notifications::interface, Notifications::Posted::name,
                            {observer.name, observer.object}, Notifications::Posted::type, this,
                            SLOT(receive(QString, QString)));
    m_observers.push_back(std::move(observer));
}

void DistributedNotificationCenter::receive(const QString& name, const QString& object)
{
    for (std::size_t index = 0; index < m_observers.size(); ++index)
        if (m_observers[index].name == name && m_observers[index].object == object)
            m_undelivered.push_back(index);
    scheduleDelivery();
}

void DistributedNotificationCenter::scheduleDelivery()
{
    if (m_deliveryScheduled || m_undelivered.empty())
        return;
    m_deliveryScheduled = true;
    QMetaObject::invokeMethod(this, &DistributedNotificationCenter::deliverNext, Qt::QueuedConnection);
}

void DistributedNotificationCenter::deliverNext()
{
    m_deliveryScheduled = false;
    if (m_modalState.active() || m_undelivered.empty())
        return;
    // A copy: the handler may add observers, and it may run a panel, whose event loop comes back here.
    const auto handler = m_observers[m_undelivered.front()].handler;
    m_undelivered.pop_front();
    scheduleDelivery();
    handler();
}

} // namespace LinuxDesktop
