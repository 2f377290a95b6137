#pragma once

#include <deque>
#include <functional>
#include <utility>

/// Work that waits until the test runs it, on the test's own thread.
class FakeQueue {
public:
    void push(std::function<void()> work) { m_work.push_back(std::move(work)); }
    [[nodiscard]] std::size_t size() const { return m_work.size(); }

    /// Runs what waits now; what that adds waits for the next call.
    void run()
    {
        for (const auto& work : std::exchange(m_work, {}))
            work();
    }

private:
    std::deque<std::function<void()>> m_work;
};
