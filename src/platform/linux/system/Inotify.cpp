#include "platform/linux/system/Inotify.h"

#include <array>
#include <cstring>
#include <sys/inotify.h>
#include <unistd.h>

namespace LinuxDesktop {

Inotify::Inotify() : m_queue(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {}

int Inotify::add(const std::string& path, std::uint32_t events)
{
    return ::inotify_add_watch(m_queue.get(), path.c_str(), events);
}

void Inotify::remove(int watch)
{
    ::inotify_rm_watch(m_queue.get(), watch);
}

void Inotify::read(const std::function<void(const Event&)>& happened)
{
    // Room for many at once; the system wants it for one of the longest name at least.
    alignas(inotify_event) std::array<char, 16384> events;
    for (ssize_t length = 0; (length = ::read(m_queue.get(), events.data(), events.size())) > 0;) {
        for (const char* at = events.data(); at < events.data() + length;) {
            inotify_event event{};
            std::memcpy(&event, at, sizeof event);
            // The name is filled up with NUL.
            happened({event.wd, event.mask, event.len > 0 ? at + sizeof event : ""});
            at += sizeof event + event.len;
        }
    }
}

} // namespace LinuxDesktop
