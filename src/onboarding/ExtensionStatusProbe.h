#pragma once

#include "platform/Timer.h"

#include <atomic>
#include <functional>
#include <memory>

/// Finds out whether the file manager's companion runs, for a screen that shows it: once when asked, and every 5
/// seconds while the screen is in sight. Main thread.
class ExtensionStatusProbe {
public:
    /// `update` brings the screen's controls up to date; called on the main thread once for each probe, with that
    /// probe's result in isextensionrunning.
    explicit ExtensionStatusProbe(std::function<void()> update) : m_update(std::move(update)) {}

    /// Looks in the background, then updates. `screen` owns the probe, and is kept alive until then.
    void schedule(const std::shared_ptr<void>& screen);

    /// Schedules every 5 seconds from now on. A timer of before is let go, not stopped.
    void startPolling(const std::shared_ptr<void>& screen);
    /// Stops the timer of the last startPolling().
    void stopPolling();

    std::shared_ptr<NS::Timer> timer;
    /// False while a probe looks. Any thread.
    std::atomic<bool> isextensionrunning = false;

private:
    std::function<void()> m_update;
};
