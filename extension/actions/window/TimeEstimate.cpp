#include "extension/actions/window/TimeEstimate.h"

#include <cmath>

namespace MenuExtension {

namespace {

using Seconds = std::chrono::duration<double>;

/// Before, a guess would jump.
constexpr Seconds known{2};
/// What happened that long ago counts for a third of what happens now.
constexpr Seconds memory{5};
/// Shorter steps tell more of the clock than of the work.
constexpr Seconds shortestStep{0.1};

} // namespace

void TimeEstimate::advance(std::uint64_t done, std::uint64_t total, Clock::time_point now)
{
    m_total = total;
    const Seconds step = now - m_last;
    if (step < shortestStep || done < m_done)
        return;
    const double speed = static_cast<double>(done - m_done) / step.count();
    const Seconds sinceStart = now - m_start;
    // At first the mean of all, then the old fades.
    const double share = std::max(step / sinceStart, 1 - std::exp(-step / memory));
    m_speed += share * (speed - m_speed);
    m_done = done;
    m_last = now;
}

std::optional<std::chrono::seconds> TimeEstimate::remaining() const
{
    if (m_last - m_start < known || m_speed <= 0 || m_done > m_total)
        return std::nullopt;
    return std::chrono::seconds(std::llround(std::ceil(static_cast<double>(m_total - m_done) / m_speed)));
}

} // namespace MenuExtension
