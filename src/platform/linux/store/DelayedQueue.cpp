#include "platform/linux/store/DelayedQueue.h"

#include <csignal>
#include <pthread.h>
#include <system_error>
#include <utility>

namespace LinuxDesktop {

bool DelayedQueue::post(Job job, std::chrono::milliseconds delay)
{
    const std::lock_guard lock(m_mutex);
    if (m_stopped)
        return false;
    if (!m_thread.joinable()) {
        try {
            startThread();
        } catch (const std::system_error&) {
            return false;
        }
    }
    m_jobs.emplace(Clock::now() + delay, std::move(job));
    m_changed.notify_one();
    return true;
}

void DelayedQueue::startThread()
{
    // A thread inherits the mask; signals stay with the host program's own threads.
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    try {
        m_thread = std::thread([this] { run(); });
    } catch (...) {
        pthread_sigmask(SIG_SETMASK, &before, nullptr);
        throw;
    }
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

void DelayedQueue::stop()
{
    {
        const std::lock_guard lock(m_mutex);
        m_stopped = true;
        m_jobs.clear();
        m_changed.notify_one();
    }
    if (m_thread.joinable())
        m_thread.join();
}

void DelayedQueue::run()
{
    std::unique_lock lock(m_mutex);
    while (!m_stopped) {
        if (m_jobs.empty()) {
            m_changed.wait(lock);
            continue;
        }
        const auto due = m_jobs.begin()->first;
        if (Clock::now() < due) {
            m_changed.wait_until(lock, due);
            continue;
        }
        const Job job = std::move(m_jobs.begin()->second);
        m_jobs.erase(m_jobs.begin());
        lock.unlock();
        job();
        lock.lock();
    }
}

} // namespace LinuxDesktop
