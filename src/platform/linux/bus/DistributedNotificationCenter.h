#pragma once

#include "platform/DistributedNotificationCenter.h"
#include "platform/linux/bus/SessionBus.h"
#include "platform/linux/system/ModalState.h"

#include <QObject>
#include <QString>

#include <cstddef>
#include <deque>
#include <functional>
#include <string_view>
#include <vector>

namespace LinuxDesktop {

/// Notifications as signals of the session bus. The bus is asked for the observed names and objects only, so no
/// other posting wakes the process; both are ASCII without apostrophes, as the bus's match rules want them. Without a
/// bus observers are never called.
class DistributedNotificationCenter final : public QObject, public NS::DistributedNotificationCenter {
    Q_OBJECT

public:
    /// Both arguments must outlive the centre.
    DistributedNotificationCenter(SessionBus& bus, ModalState& modalState);

    void addObserver_name_object(std::function<void()> handler, std::string_view name,
                                 std::string_view object) override;

private:
    struct Observer {
        std::function<void()> handler;
        QString name;
        QString object;
    };

    Q_SLOT void receive(const QString& name, const QString& object);
    void scheduleDelivery();
    void deliverNext();

    SessionBus& m_bus;
    ModalState& m_modalState;
    std::shared_ptr<const ModalState::Callback> m_modalEnd;
    std::vector<Observer> m_observers;
    /// The observers to call, by index, in the order of the postings.
    std::deque<std::size_t> m_undelivered;
    bool m_deliveryScheduled = false;
};

} // namespace LinuxDesktop
