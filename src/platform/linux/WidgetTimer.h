#pragma once

#include "platform/Timer.h"
#include "platform/linux/system/ModalState.h"

#include <QPointer>
#include <QTimer>

#include <chrono>
#include <functional>

namespace LinuxDesktop {

/// A repeating timer of the main event loop, which leaves out the turns that fall into a modal panel. Main thread.
class WidgetTimer : public NS::Timer {
public:
    /// Runs as long as `owner` lives, or until it is invalidated. `modalState` must outlive the owner.
    WidgetTimer(QObject& owner, const ModalState& modalState, std::chrono::milliseconds interval,
                std::function<void()> fire)
        : m_timer(new QTimer(&owner))
    {
        QObject::connect(m_timer, &QTimer::timeout, m_timer, [&modalState, fire = std::move(fire)] {
            if (!modalState.active())
                fire();
        });
        m_timer->start(interval);
    }

    void invalidate() override { delete m_timer.data(); }

private:
    QPointer<QTimer> m_timer;
};

} // namespace LinuxDesktop
