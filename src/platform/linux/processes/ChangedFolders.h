#pragma once

#include "platform/linux/system/Inotify.h"

#include <string>

namespace LinuxDesktop {

/// Tells, when asked, whether anything changed in some folders: their entries, or the content and the rights of the
/// files in them. It wakes nobody. Not for several threads at once.
class ChangedFolders {
public:
    /// Counts what changes in the folder from now on.
    void watch(const std::string& folder);
    /// Whether anything changed since the start. Always, where the system has no more watches to give.
    [[nodiscard]] bool any();

private:
    Inotify m_queue;
    bool m_any = false;
};

} // namespace LinuxDesktop
