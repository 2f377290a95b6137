#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <thread>

namespace LinuxDesktop {

/// Runs jobs on a thread of its own, each once and a while after it was posted. The thread starts with the first
/// job, takes no signals, and sleeps until the next one is due. Any thread.
class DelayedQueue {
public:
    using Job = std::function<void()>;

    DelayedQueue() = default;
    ~DelayedQueue() { stop(); }
    DelayedQueue(const DelayedQueue&) = delete;
    DelayedQueue& operator=(const DelayedQueue&) = delete;

    /// False, and the job is not taken, after stop() or where no thread can be had.
    [[nodiscard]] bool post(Job job, std::chrono::milliseconds delay);
    /// Waits for the job that runs and drops those that wait.
    void stop();

private:
    using Clock = std::chrono::steady_clock;

    void startThread();
    void run();

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::multimap<Clock::time_point, Job> m_jobs;
    std::thread m_thread;
    bool m_stopped = false;
};

} // namespace LinuxDesktop
