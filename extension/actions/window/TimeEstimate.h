#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

namespace MenuExtension {

/// How long a work still takes, by how fast it has come on lately. Any unit of work: bytes, files.
class TimeEstimate {
public:
    using Clock = std::chrono::steady_clock;

    explicit TimeEstimate(Clock::time_point start) : m_last(start), m_start(start) {}

    /// So much of `total` is done at that time.
    void advance(std::uint64_t done, std::uint64_t total, Clock::time_point now);
    /// Nothing while too little is known to say: in the first two seconds, and where nothing moves.
    [[nodiscard]] std::optional<std::chrono::seconds> remaining() const;

private:
    Clock::time_point m_last;
    Clock::time_point m_start;
    std::uint64_t m_done = 0;
    std::uint64_t m_total = 0;
    /// Units a second.
    double m_speed = 0;
};

} // namespace MenuExtension
