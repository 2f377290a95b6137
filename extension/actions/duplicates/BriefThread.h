#pragma once

#include <chrono>
#include <future>
#include <stop_token>
#include <thread>

namespace MenuExtension::Duplicates {

/// A thread of a window. It reads what others have made, and may hang in a disk that does not answer or in a file
/// that is not worth reading: the process does not wait for it longer than a moment when it ends.
class BriefThread {
public:
    BriefThread() = default;
    /// Ends the process where the thread does not heed the request to stop.
    ~BriefThread();
    BriefThread(const BriefThread&) = delete;
    BriefThread& operator=(const BriefThread&) = delete;

    /// The token of the next start().
    [[nodiscard]] std::stop_token renew()
    {
        m_stop = {};
        return m_stop.get_token();
    }
    /// The one before must have been joined.
    template<typename Work>
    void start(Work work)
    {
        std::packaged_task<void()> task([work = std::move(work), stop = m_stop.get_token()] { work(stop); });
        m_end = task.get_future();
        m_thread = std::jthread(std::move(task));
    }
    void requestStop() { m_stop.request_stop(); }
    /// For one that has said that it ends.
    void join() { m_thread.join(); }

private:
    std::stop_source m_stop;
    std::future<void> m_end;
    std::jthread m_thread;
};

} // namespace MenuExtension::Duplicates
