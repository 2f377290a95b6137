#pragma once

#include "platform/linux/system/FileDescriptor.h"

#include <mutex>
#include <optional>
#include <string>

namespace LinuxDesktop {

/// Private folders for files that live no longer than this object: in $XDG_RUNTIME_DIR, or where temporary files go
/// when that is unset. Any thread.
class TemporaryFolders {
public:
    TemporaryFolders() = default;
    /// Removes the folders with everything in them.
    ~TemporaryFolders();
    TemporaryFolders(const TemporaryFolders&) = delete;
    TemporaryFolders& operator=(const TemporaryFolders&) = delete;

    /// The folder that they are made in.
    [[nodiscard]] static std::string place();

    /// A new, empty folder that only the user may enter. Nothing, with errno and a complaint, when it cannot be made.
    [[nodiscard]] std::optional<std::string> make();

    /// Removes the folders of processes that were killed. Those of processes that run are left alone.
    static void removeLeftovers();

private:
    bool makeRoot();

    std::mutex m_mutex;
    std::string m_root;
    /// Locked while this object lives, which is how other processes know.
    FileDescriptor m_lock;
    int m_made = 0;
};

} // namespace LinuxDesktop
