#include "support/FakeClock.h"

#include <algorithm>
#include <utility>

void FakeClock::performAfterDelay(std::function<void()> perform, double delay)
{
    m_pending.push_back({{m_now.timeIntervalSince1970 + delay}, delay, std::move(perform)});
}

std::vector<double> FakeClock::pendingDelays() const
{
    std::vector<double> delays;
    delays.reserve(m_pending.size());
    for (const Pending& pending : m_pending)
        delays.push_back(pending.delay);
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
