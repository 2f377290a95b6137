#pragma once

#include "platform/Date.h"
#include "platform/Timer.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

/// A clock that stands still until the test moves it.
class FakeClock {
public:
    [[nodiscard]] NS::Date now() const { return m_now; }

    void performAfterDelay(std::function<void()> perform, double delay);
    /// Calls `fire` every `interval` seconds until the timer is invalidated.
    [[nodiscard]] std::shared_ptr<NS::Timer> schedule(double interval, std::function<void()> fire);
    /// The delays of the performs that are still to come, in the order in which they were asked for.
    [[nodiscard]] std::vector<double> pendingDelays() const;

    /// Moves the clock on, calling what falls due on the way at its own moment, the earliest first.
    void advance(double seconds);

private:
    struct Pending {
        NS::Date due;
        /// Nothing for a timer's turn.
        std::optional<double> delay;
        std::function<void()> perform;
    };

    struct Repetition;
    struct Repeating;

    void repeat(const std::shared_ptr<Repetition>& repetition);

    NS::Date m_now{1'700'000'000.0};
    std::vector<Pending> m_pending;
};
