#pragma once

#include "platform/linux/system/FileDescriptor.h"

#include <cstddef>
#include <string>
#include <sys/types.h>

namespace LinuxDesktop {

/// The system calls that change the settings folder, in one place so that a test can make each of them fail.
/// They answer as the calls of those names do, with errno. Any thread.
class FileOperations {
public:
    virtual ~FileOperations() = default;

    /// Never one of the three standard streams, even where the host program has closed those, so that no message
    /// ends up in a settings file. Close-on-exec, and without waiting for the other end of a pipe.
    [[nodiscard]] virtual FileDescriptor open(const std::string& path, int flags, mode_t mode = 0);
    [[nodiscard]] virtual ssize_t write(int descriptor, const void* bytes, std::size_t count);
    [[nodiscard]] virtual int syncFile(int descriptor);
    /// A file system that has no such operation for folders counts as having done it.
    [[nodiscard]] virtual int syncFolder(int descriptor);
    [[nodiscard]] virtual int rename(const std::string& from, const std::string& to);
    [[nodiscard]] virtual int link(const std::string& existing, const std::string& name);
    virtual int unlink(const std::string& path);
    [[nodiscard]] virtual int makeFolder(const std::string& path, mode_t mode);
};

} // namespace LinuxDesktop
