#include "support/FakeClock.h"

#include <algorithm>
#include <utility>

/// What a timer calls, and how often. The clock keeps it: a timer that is let go of runs on, and one that was
/// stopped holds nothing.
struct FakeClock::Repetition {
    double interval;
    std::function<void()> fire;
};

struct FakeClock::Repeating : NS::Timer {
    explicit Repeating(std::weak_ptr<Repetition> ofClock) : repetition(std::move(ofClock)) {}

    void invalidate() override
    {
        if (const auto running = repetition.lock())
            running->fire = nullptr;
    }

    std::weak_ptr<Repetition> repetition;
};

void FakeClock::performAfterDelay(std::function<void()> perform, double delay)
{
    m_pending.push_back({{m_now.timeIntervalSince1970 + delay}, delay, std::move(perform)});
}

std::shared_ptr<NS::Timer> FakeClock::schedule(double interval, std::function<void()> fire)
{
    const auto repetition = std::make_shared<Repetition>(Repetition{interval, std::move(fire)});
    repeat(repetition);
    return std::make_shared<Repeating>(repetition);
}

void FakeClock::repeat(const std::shared_ptr<Repetition>& repetition)
{
    const auto tick = [this, repetition] {
        // A copy: what it calls may stop the timer.
        const auto fire = repetition->fire;
        if (!fire)
            return;
        repeat(repetition);
        fire();
    };
    m_pending.push_back({{m_now.timeIntervalSince1970 + repetition->interval}, std::nullopt, tick});
}

std::vector<double> FakeClock::pendingDelays() const
{
    std::vector<double> delays;
    delays.reserve(m_pending.size());
    for (const Pending& pending : m_pending) {
        if (pending.delay)
            delays.push_back(*pending.delay);
    }
    return delays;
}

void FakeClock::advance(double seconds)
{
    const double end = m_now.timeIntervalSince1970 + seconds;
    while (!m_pending.empty()) {
        const auto earliest = std::ranges::min_element(
            m_pending, {}, [](const Pending& pending) { return pending.due.timeIntervalSince1970; });
        if (earliest->due.timeIntervalSince1970 > end)
            break;
        const Pending due = std::move(*earliest);
        m_pending.erase(earliest);
        m_now = due.due;
        due.perform();
    }
    m_now = {end};
}
