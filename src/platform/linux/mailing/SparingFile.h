#pragma once

#include "platform/linux/system/FileDescriptor.h"

#include <cstddef>
#include <string>

struct stat;

namespace LinuxDesktop {

/// A new file that only the user can read and that leaves others some room on its disk. Any thread.
class SparingFile {
public:
    /// A file that cannot be made has an error() from the start.
    explicit SparingFile(std::string path);
    /// Removes the file, unless close() was successful.
    ~SparingFile();
    SparingFile(const SparingFile&) = delete;
    SparingFile& operator=(const SparingFile&) = delete;

    /// Does nothing once there is an error.
    void write(const void* bytes, std::size_t size);
    /// Whether all that was written has reached the file.
    [[nodiscard]] bool close();

    /// The errno value of what went wrong first: ENOSPC also where the disk would have been left too full. 0:
    /// nothing.
    [[nodiscard]] int error() const { return m_error; }
    /// Whether a file is this one.
    [[nodiscard]] bool is(const struct stat& status) const;

private:
    [[nodiscard]] bool leavesRoom(std::size_t size) const;

    std::string m_path;
    FileDescriptor m_file;
    int m_error = 0;
    bool m_stays = false;
};

} // namespace LinuxDesktop
