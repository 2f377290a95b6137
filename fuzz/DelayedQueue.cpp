#include "platform/linux/store/DelayedQueue.h"

#include "WaitingJobs.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

struct WaitingJob {
    std::size_t program;
    const LinuxDesktop::DelayedQueue* queue;
    LinuxDesktop::DelayedQueue::Job job;
};

std::size_t poster = 0;
std::vector<WaitingJob> waitingJobs;

} // namespace

void postJobsFor(std::size_t program)
{
    poster = program;
}

void runJobsOf(std::size_t program)
{
    postJobsFor(program);
    for (;;) {
        const auto next = std::ranges::find(waitingJobs, program, &WaitingJob::program);
        if (next == waitingJobs.end())
            return;
        const auto job = std::move(next->job);
        waitingJobs.erase(next);
        job();
    }
}

namespace LinuxDesktop {

bool DelayedQueue::post(Job job, std::chrono::milliseconds)
{
    if (m_stopped)
        return false;
    waitingJobs.push_back({poster, this, std::move(job)});
    return true;
}

void DelayedQueue::stop()
{
    m_stopped = true;
    std::erase_if(waitingJobs, [this](const WaitingJob& waiting) { return waiting.queue == this; });
}

} // namespace LinuxDesktop
