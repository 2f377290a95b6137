#include "platform/linux/processes/ChangedFolders.h"

#include <sys/inotify.h>

namespace LinuxDesktop {

void ChangedFolders::watch(const std::string& folder)
{
    constexpr std::uint32_t changes = IN_CREATE | IN_DELETE | IN_MOVE | IN_MODIFY | IN_CLOSE_WRITE | IN_ATTRIB |
                                      IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR;
    if (m_queue.add(folder, changes) < 0)
        m_any = true;
}

bool ChangedFolders::any()
{
    m_queue.read([this](const Inotify::Event&) { m_any = true; });
    return m_any || !m_queue;
}

} // namespace LinuxDesktop
