#include "platform/linux/processes/ChangedFolders.h"

#include <array>
#include <cerrno>
#include <sys/inotify.h>

namespace LinuxDesktop {

ChangedFolders::ChangedFolders() : m_queue(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {}

void ChangedFolders::watch(const std::string& folder)
{
    constexpr std::uint32_t changes = IN_CREATE | IN_DELETE | IN_MOVE | IN_MODIFY | IN_CLOSE_WRITE | IN_ATTRIB |
                                      IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR;
    if (!m_queue || ::inotify_add_watch(m_queue.get(), folder.c_str(), changes) < 0)
        m_any = true;
}

bool ChangedFolders::any()
{
    if (m_any || !m_queue)
        return true;
    alignas(inotify_event) std::array<char, 4096> events;
    m_any = ::read(m_queue.get(), events.data(), events.size()) > 0;
    return m_any;
}

} // namespace LinuxDesktop
