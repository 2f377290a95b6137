#pragma once

#include "platform/Timer.h"

#include <QPointer>
#include <QTimer>

#include <chrono>
#include <functional>

namespace LinuxDesktop {

/// A repeating timer of the main event loop. Main thread.
class WidgetTimer : public NS::Timer {
public:
    /// Runs as long as `owner` lives, or until it is invalidated.
    WidgetTimer(QObject& owner, std::chrono::milliseconds interval, std::function<void()> fire)
        : m_timer(new QTimer(&owner))
    {
        QObject::connect(m_timer, &QTimer::timeout, m_timer, std::move(fire));
        m_timer->start(interval);
    }

    void invalidate() override { delete m_timer.data(); }

private:
    QPointer<QTimer> m_timer;
};

} // namespace LinuxDesktop
